#include "Lum/LumTypeSuggestions.h"

#include "Blueprint/Builders/VexelBlueprintPropTypeBuilder.h"
#include "Lum/LumNearestNames.h"
#include "Lum/LumStructureEdit.h"

#include "EdGraphSchema_K2.h"
#include "UObject/Class.h"
#include "UObject/UObjectIterator.h"

namespace
{
const TCHAR* const HowIdsAreWritten =
	TEXT(". A type id is such as 'int', 'struct.Vector', 'object.Actor', 'class.Actor', 'array|name' or 'map|name,int'");

/** What is rated lower: a type of another sort than the id speaks of. */
constexpr double OtherSort = 0.9;
/** The words for the common types are often meant by others like them. */
constexpr double CommonWord = 1.25;

enum class ESort : uint8
{
	/** The id has no category. */
	Any,
	Word,
	Class,
	Struct,
	Enum
};

/** The part of a type id that names no type, with what stands around it. */
struct FUnknownElement
{
	FString Before;
	FString Element;
	FString After;
};

bool IsType(const FString& Element)
{
	return FVexelBlueprintPropTypeBuilder::ParseId(TVexelPropTypeId(Element)).HasValue();
}

/** Unset where the id is not written as type ids are. */
TOptional<FUnknownElement> FindUnknownElement(const FString& Id)
{
	const bool bIsCode = Id.Contains(TEXT("<")) || Id.Contains(TEXT("["));
	if (bIsCode)
	{
		return {};
	}
	FUnknownElement Found;
	FString Container;
	if (!Id.Split(TEXT("|"), &Container, &Found.Element))
	{
		Found.Element = Id;
		return Found;
	}
	Found.Before = Container + TEXT("|");
	FString Key;
	FString Value;
	if (Container != TEXT("map"))
	{
		const bool bHoldsOne = (Container == TEXT("array") || Container == TEXT("set")) && !Found.Element.Contains(TEXT("|"));
		return bHoldsOne ? TOptional<FUnknownElement>(Found) : TOptional<FUnknownElement>();
	}
	const bool bIsPair = Found.Element.Replace(TEXT("|"), TEXT(",")).Split(TEXT(","), &Key, &Value) && !Value.Contains(TEXT(","));
	if (!bIsPair)
	{
		return {};
	}
	return IsType(Key) ? FUnknownElement{Found.Before + Key + TEXT(","), Value, FString()}
					   : FUnknownElement{Found.Before, Key, TEXT(",") + Value};
}

/** An element's parts: "object" and "Actor" of "object.Actor", also where people write the object's path. */
struct FElementParts
{
	explicit FElementParts(const FString& Element)
	{
		FString Path = Element;
		Element.Split(TEXT("."), &Category, &Path);
		int32 Place = INDEX_NONE;
		Name = Path.FindLastChar(TEXT('.'), Place) || Path.FindLastChar(TEXT('/'), Place) ? Path.RightChop(Place + 1) : Path;
		Name.RemoveFromEnd(TEXT("_C"));
	}

	FString Category;
	FString Name;
};

/** Categories other than an object's that name a class. */
bool IsOfClass(const FString& Category)
{
	const FName Categories[] = {UEdGraphSchema_K2::PC_Class, UEdGraphSchema_K2::PC_SoftObject, UEdGraphSchema_K2::PC_SoftClass};
	return Category.Len() < NAME_SIZE && MakeArrayView(Categories).Contains(FName(*Category));
}

ESort FindSort(const FString& Category)
{
	if (Category == TEXT("struct"))
	{
		return ESort::Struct;
	}
	if (Category == TEXT("enum") || Category == TEXT("byte"))
	{
		return ESort::Enum;
	}
	return Category == TEXT("object") || Category == TEXT("interface") || IsOfClass(Category) ? ESort::Class : ESort::Any;
}

/** Rates what may stand in the place of an element. */
class FElementSearch
{
public:
	explicit FElementSearch(const FUnknownElement& InUnknown)
		: Unknown(InUnknown)
		, Parts(InUnknown.Element)
		, Sort(FindSort(Parts.Category))
		, Nearest(Parts.Name)
	{
	}

	FString Describe()
	{
		for (const TCHAR* const Word : {TEXT("bool"), TEXT("byte"), TEXT("int"), TEXT("int64"), TEXT("real"), TEXT("name"), TEXT("string"), TEXT("text")})
		{
			Offer(Word, ESort::Word, [Word]
				{ return FString(Word); });
		}
		for (TObjectIterator<UStruct> It; It; ++It)
		{
			OfferStruct(**It);
		}
		for (TObjectIterator<UEnum> It; It; ++It)
		{
			const FString Name = It->GetName();
			Offer(Name, ESort::Enum, [&Name]
				{ return TEXT("enum.") + Name; });
		}
		return Nearest.Describe();
	}

private:
	void Offer(FStringView Name, ESort NameSort, TFunctionRef<FString()> MakeId)
	{
		const double Weight = NameSort == ESort::Word ? CommonWord : 1;
		Nearest.Offer(Name, Sort == ESort::Any || Sort == NameSort ? Weight : OtherSort,
			[&]
			{ return FString::Printf(TEXT("'%s%s%s'"), *Unknown.Before, *MakeId(), *Unknown.After); });
	}

	void OfferStruct(const UStruct& Struct)
	{
		const UClass* const Class = Cast<UClass>(&Struct);
		const bool bIsOutdated = Class && Class->HasAnyClassFlags(CLASS_NewerVersionExists);
		if (bIsOutdated || !(Class || Struct.IsA<UScriptStruct>()))
		{
			return;
		}
		FString Name = Struct.GetName();
		if (Name.StartsWith(TEXT("SKEL_")))
		{
			return;
		}
		if (Class)
		{
			Name.RemoveFromEnd(TEXT("_C"));
		}
		Offer(Name, Class ? ESort::Class : ESort::Struct,
			[&]
			{
				return Class && IsOfClass(Parts.Category) ? Parts.Category + TEXT(".") + Name
														  : FVexelBlueprintPropTypeBuilder::MakeStructId(Struct).ToString();
			});
	}

	const FUnknownElement& Unknown;
	FElementParts Parts;
	ESort Sort;
	FLumNearestNames Nearest;
};
}

FString LumTypeSuggestions::Describe(const TVexelPropTypeId& TypeId)
{
	if (!FLumEditBatch::TakeSuggestion())
	{
		return FString();
	}
	const TOptional<FUnknownElement> Unknown = FindUnknownElement(TypeId.ToString());
	FString Nearest = Unknown ? FElementSearch(*Unknown).Describe() : FString();
	return Nearest.IsEmpty() ? FString(HowIdsAreWritten) : MoveTemp(Nearest);
}
