#include "UObject/Class.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"

namespace
{
const FString EmptyText;

/** The name that a person knows a type by: without what the Blueprint compiler adds. */
FString GetPlainName(const UField& Field)
{
	FString Name = Field.GetName();
	if (Field.IsA<UClass>() && !static_cast<const UClass&>(Field).HasAnyClassFlags(CLASS_Native))
	{
		Name.RemoveFromEnd(TEXT("_C"));
		Name.RemoveFromStart(TEXT("SKEL_"));
	}
	return Name;
}

bool IsTrue(const FString& Value)
{
	return Value.IsEmpty() || Value == TEXT("true");
}
}

UField::UField(const FObjectInitializer& ObjectInitializer)
	: UObject(ObjectInitializer)
{
}

void UField::AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector)
{
	Collector.AddStableReference(&static_cast<UField*>(InThis)->Next);
	UObject::AddReferencedObjects(InThis, Collector);
}

void UField::AddCppProperty(FProperty* Property)
{
	checkf(false, TEXT("%s cannot have properties"), *GetFullName());
}

UClass* UField::GetOwnerClass() const
{
	for (UObject* Object = const_cast<UField*>(this); Object; Object = Object->GetOuter())
	{
		if (Object->IsA<UClass>())
		{
			return static_cast<UClass*>(Object);
		}
	}
	return nullptr;
}

UStruct* UField::GetOwnerStruct() const
{
	for (UObject* Object = const_cast<UField*>(this); Object; Object = Object->GetOuter())
	{
		if (Object->IsA<UStruct>())
		{
			return static_cast<UStruct*>(Object);
		}
	}
	return nullptr;
}

FString UField::GetAuthoredNameForField(const UField* Field)
{
	const UStruct* const Owner = Field ? Field->GetOwnerStruct() : nullptr;
	return Owner ? Owner->GetAuthoredNameForField(Field) : GetNameSafe(Field);
}

const FString* UField::FindMetaData(const TCHAR* Key) const
{
	return FindMetaData(FName(Key, FNAME_Find));
}

const FString* UField::FindMetaData(const FName& Key) const
{
	const UPackage* const Package = GetPackage();
	return Package ? Package->GetMetaData().FindValue(this, Key) : nullptr;
}

const FString& UField::GetMetaData(const TCHAR* Key) const
{
	return GetMetaData(FName(Key, FNAME_Find));
}

const FString& UField::GetMetaData(const FName& Key) const
{
	const FString* const Value = FindMetaData(Key);
	return Value ? *Value : EmptyText;
}

FText UField::GetMetaDataText(const TCHAR* MetaDataKey, const FString LocalizationNamespace, const FString LocalizationKey) const
{
	return GetMetaDataText(FName(MetaDataKey, FNAME_Find), LocalizationNamespace, LocalizationKey);
}

FText UField::GetMetaDataText(const FName& MetaDataKey, const FString LocalizationNamespace, const FString LocalizationKey) const
{
	const FString* const Value = FindMetaData(MetaDataKey);
	return Value ? FText::FromString(*Value) : FText::GetEmpty();
}

void UField::SetMetaData(const TCHAR* Key, const TCHAR* InValue)
{
	SetMetaData(FName(Key), InValue);
}

void UField::SetMetaData(const FName& Key, const TCHAR* InValue)
{
	GetPackage()->GetMetaData().SetValue(this, Key, InValue);
}

bool UField::GetBoolMetaData(const TCHAR* Key) const
{
	return GetBoolMetaData(FName(Key, FNAME_Find));
}

bool UField::GetBoolMetaData(const FName& Key) const
{
	const FString* const Value = FindMetaData(Key);
	return Value && IsTrue(*Value);
}

UClass* UField::GetClassMetaData(const TCHAR* Key) const
{
	return GetClassMetaData(FName(Key, FNAME_Find));
}

UClass* UField::GetClassMetaData(const FName& Key) const
{
	return UClass::TryFindTypeSlow<UClass>(GetMetaData(Key));
}

void UField::RemoveMetaData(const TCHAR* Key)
{
	RemoveMetaData(FName(Key, FNAME_Find));
}

void UField::RemoveMetaData(const FName& Key)
{
	GetPackage()->GetMetaData().RemoveValue(this, Key);
}

FText UField::GetDisplayNameText() const
{
	const FString& DisplayName = GetMetaData(TEXT("DisplayName"));
	return FText::FromString(DisplayName.IsEmpty() ? FName::NameToDisplayString(GetPlainName(*this), false) : DisplayName);
}

FText UField::GetToolTipText(bool bShortTooltip) const
{
	FString ToolTip = bShortTooltip ? GetMetaData(TEXT("ShortToolTip")) : FString();
	if (ToolTip.IsEmpty())
	{
		ToolTip = GetMetaData(TEXT("ToolTip"));
	}
	if (ToolTip.IsEmpty())
	{
		return FText::FromString(FName::NameToDisplayString(GetPlainName(*this), false));
	}
	FormatNativeToolTip(ToolTip, false);
	return FText::FromString(ToolTip);
}

void UField::FormatNativeToolTip(FString& ToolTipString, bool bRemoveExtraSections)
{
	// A hand-written metadata value may still have the comment's slashes.
	TArray<FString> Lines;
	ToolTipString.ParseIntoArray(Lines, TEXT("\n"), false);
	FString Result;
	for (FString& Line : Lines)
	{
		Line.TrimEndInline();
		Line.RemoveFromStart(TEXT("//"));
		if (bRemoveExtraSections && (Line.IsEmpty() || Line.TrimStart().StartsWith(TEXT("@"))) && !Result.IsEmpty())
		{
			break;
		}
		Result += (Result.IsEmpty() ? TEXT("") : TEXT("\n")) + Line;
	}
	Result.ReplaceInline(TEXT("@see"), TEXT("See:"));
	Result.TrimStartAndEndInline();
	ToolTipString = Result;
}
