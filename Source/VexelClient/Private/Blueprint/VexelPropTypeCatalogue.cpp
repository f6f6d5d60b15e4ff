#include "Blueprint/VexelPropTypeCatalogue.h"

#include "Blueprint/Builders/VexelBlueprintPropTypeBuilder.h"
#include "Blueprint/VexelBlueprintPropType.h"
#include "Blueprint/VexelNamedObjects.h"

#include "Algo/Sort.h"
#include "EdGraphSchema_K2.h"
#include "Kismet2/KismetEditorUtilities.h"
#include "UObject/Class.h"
#include "UObject/UObjectIterator.h"

namespace
{
FEdGraphPinType MakePinType(FName Category, FName SubCategory, UObject* Object)
{
	FEdGraphPinType Type;
	Type.PinCategory = Category;
	Type.PinSubCategory = SubCategory;
	Type.PinSubCategoryObject = Object;
	return Type;
}

/** Collects types; of several with one id, which the id could not tell apart, the first stays. */
class FTypeCollector
{
public:
	void Add(const FEdGraphPinType& PinType, const FAssetData* Asset = nullptr)
	{
		const TSharedRef<FVexelBlueprintPropType> Type = FVexelBlueprintPropTypeBuilder::MakePropType(PinType, Asset);
		bool bIsThere = false;
		Ids.Add(Type->Id, &bIsThere);
		if (!bIsThere)
		{
			Types.Add(Type);
		}
	}

	/** References of every kind to objects of a class. */
	void AddClass(bool bIsInterface, UClass* Class, const FAssetData* Asset = nullptr)
	{
		if (bIsInterface)
		{
			Add(MakePinType(UEdGraphSchema_K2::PC_Interface, NAME_None, Class), Asset);
			return;
		}
		for (const FName& Category : {UEdGraphSchema_K2::PC_Object, UEdGraphSchema_K2::PC_Class, UEdGraphSchema_K2::PC_SoftObject,
				 UEdGraphSchema_K2::PC_SoftClass})
		{
			Add(MakePinType(Category, NAME_None, Class), Asset);
		}
	}

	TArray<TSharedRef<FVexelBlueprintPropType>> Finish()
	{
		Algo::Sort(Types, [](const TSharedRef<FVexelBlueprintPropType>& A, const TSharedRef<FVexelBlueprintPropType>& B)
			{ return A->Id.ToString().Compare(B->Id.ToString()) < 0; });
		return MoveTemp(Types);
	}

private:
	TArray<TSharedRef<FVexelBlueprintPropType>> Types;
	TSet<TVexelPropTypeId> Ids;
};

void AddWords(FTypeCollector& Types)
{
	for (const FName& Category : {UEdGraphSchema_K2::PC_Boolean, UEdGraphSchema_K2::PC_Byte, UEdGraphSchema_K2::PC_Int,
			 UEdGraphSchema_K2::PC_Int64, UEdGraphSchema_K2::PC_Name, UEdGraphSchema_K2::PC_String, UEdGraphSchema_K2::PC_Text})
	{
		Types.Add(MakePinType(Category, NAME_None, nullptr));
	}
	Types.Add(MakePinType(UEdGraphSchema_K2::PC_Real, UEdGraphSchema_K2::PC_Double, nullptr));
}

void AddLoaded(FTypeCollector& Types)
{
	for (UClass* const Class : TObjectRange<UClass>())
	{
		const bool bIsCurrent = !Class->HasAnyClassFlags(CLASS_NewerVersionExists) && !FKismetEditorUtilities::IsClassABlueprintSkeleton(Class);
		if (bIsCurrent && UEdGraphSchema_K2::IsAllowableBlueprintVariableType(Class))
		{
			Types.AddClass(Class->HasAnyClassFlags(CLASS_Interface), Class);
		}
	}
	for (UScriptStruct* const Struct : TObjectRange<UScriptStruct>())
	{
		if (UEdGraphSchema_K2::IsAllowableBlueprintVariableType(Struct))
		{
			Types.Add(MakePinType(UEdGraphSchema_K2::PC_Struct, NAME_None, Struct));
		}
	}
	for (UEnum* const Enum : TObjectRange<UEnum>())
	{
		if (UEdGraphSchema_K2::IsAllowableBlueprintVariableType(Enum))
		{
			Types.Add(MakePinType(UEdGraphSchema_K2::PC_Byte, NAME_None, Enum));
		}
	}
}

void AddAssets(FTypeCollector& Types)
{
	for (const FAssetData& Asset : VexelNamedObjects::ListTypeAssets(*UClass::StaticClass()))
	{
		// An asset that is loaded stands among the loaded types.
		if (!Asset.IsAssetLoaded())
		{
			FString BlueprintType;
			Asset.GetTagValue(TEXT("BlueprintType"), BlueprintType);
			Types.AddClass(BlueprintType == TEXT("BPTYPE_Interface"), nullptr, &Asset);
		}
	}
	const auto AddUnloaded = [&Types](const UClass& Kind, FName Category)
	{
		for (const FAssetData& Asset : VexelNamedObjects::ListTypeAssets(Kind))
		{
			if (!Asset.IsAssetLoaded())
			{
				Types.Add(MakePinType(Category, NAME_None, nullptr), &Asset);
			}
		}
	};
	AddUnloaded(*UScriptStruct::StaticClass(), UEdGraphSchema_K2::PC_Struct);
	AddUnloaded(*UEnum::StaticClass(), UEdGraphSchema_K2::PC_Enum);
}
}

TArray<TSharedRef<FVexelBlueprintPropType>> VexelPropTypeCatalogue::List()
{
	FTypeCollector Types;
	AddWords(Types);
	AddLoaded(Types);
	AddAssets(Types);
	return Types.Finish();
}
