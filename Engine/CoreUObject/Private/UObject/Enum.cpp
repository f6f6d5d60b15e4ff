#include "UObject/Class.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UObjectIterator.h"

UEnum::UEnum(const FObjectInitializer& ObjectInitializer)
	: UField(ObjectInitializer)
{
}

int64 UEnum::GetValueByIndex(int32 Index) const
{
	check(Names.IsValidIndex(Index));
	return Names[Index].Value;
}

FName UEnum::GetNameByIndex(int32 Index) const
{
	return Names.IsValidIndex(Index) ? Names[Index].Key : FName();
}

int32 UEnum::GetIndexByName(FName InName, EGetByNameFlags Flags) const
{
	for (int32 Index = 0; Index < Names.Num(); ++Index)
	{
		if (Names[Index].Key == InName)
		{
			return Index;
		}
	}
	const FString Text = InName.ToString();
	if (CppForm != ECppForm::Regular && !IsFullEnumName(*Text))
	{
		const FName FullName(*GenerateFullEnumName(*Text), FNAME_Find);
		for (int32 Index = 0; Index < Names.Num() && FullName != NAME_None; ++Index)
		{
			if (Names[Index].Key == FullName)
			{
				return Index;
			}
		}
	}
	if (EnumHasAnyFlags(Flags, EGetByNameFlags::CheckAuthoredName))
	{
		for (int32 Index = 0; Index < Names.Num(); ++Index)
		{
			if (GetAuthoredNameStringByIndexForUser(Index) == Text)
			{
				return Index;
			}
		}
	}
	return INDEX_NONE;
}

int32 UEnum::GetIndexByNameString(const FString& InSearchString, EGetByNameFlags Flags) const
{
	FString Search = InSearchString;
	int32 Separator = INDEX_NONE;
	// "EDoor::Open" names an enumerator of a regular enum too.
	if (CppForm == ECppForm::Regular &&
		(Separator = Search.Find(TEXT("::"), ESearchCase::CaseSensitive, ESearchDir::FromEnd)) != INDEX_NONE)
	{
		Search = Search.Mid(Separator + 2);
	}
	if (EnumHasAnyFlags(Flags, EGetByNameFlags::CaseSensitive))
	{
		for (int32 Index = 0; Index < Names.Num(); ++Index)
		{
			if (GetNameStringByIndex(Index).Equals(Search, ESearchCase::CaseSensitive) ||
				Names[Index].Key.ToString().Equals(Search, ESearchCase::CaseSensitive))
			{
				return Index;
			}
		}
		return INDEX_NONE;
	}
	return GetIndexByName(FName(*Search), Flags);
}

int32 UEnum::GetIndexByValue(int64 InValue) const
{
	for (int32 Index = 0; Index < Names.Num(); ++Index)
	{
		if (Names[Index].Value == InValue)
		{
			return Index;
		}
	}
	return INDEX_NONE;
}

FName UEnum::GetNameByValue(int64 InValue) const
{
	return GetNameByIndex(GetIndexByValue(InValue));
}

int64 UEnum::GetValueByName(FName InName, EGetByNameFlags Flags) const
{
	const int32 Index = GetIndexByName(InName, Flags);
	return Index == INDEX_NONE ? static_cast<int64>(INDEX_NONE) : Names[Index].Value;
}

int64 UEnum::GetValueByNameString(const FString& SearchString, EGetByNameFlags Flags) const
{
	const int32 Index = GetIndexByNameString(SearchString, Flags);
	return Index == INDEX_NONE ? static_cast<int64>(INDEX_NONE) : Names[Index].Value;
}

FString UEnum::GetNameStringByIndex(int32 InIndex) const
{
	if (!Names.IsValidIndex(InIndex))
	{
		return FString();
	}
	const FString FullName = Names[InIndex].Key.ToString();
	const int32 Separator =
		CppForm == ECppForm::Regular ? INDEX_NONE : FullName.Find(TEXT("::"), ESearchCase::CaseSensitive, ESearchDir::FromEnd);
	return Separator == INDEX_NONE ? FullName : FullName.Mid(Separator + 2);
}

FString UEnum::GetNameStringByValue(int64 InValue) const
{
	return GetNameStringByIndex(GetIndexByValue(InValue));
}

bool UEnum::FindNameStringByValue(FString& Out, int64 InValue) const
{
	const int32 Index = GetIndexByValue(InValue);
	if (Index == INDEX_NONE)
	{
		return false;
	}
	Out = GetNameStringByIndex(Index);
	return true;
}

FText UEnum::GetDisplayNameTextByIndex(int32 InIndex) const
{
	if (!Names.IsValidIndex(InIndex))
	{
		return FText::GetEmpty();
	}
	const FString DisplayName = GetMetaData(TEXT("DisplayName"), InIndex);
	return FText::FromString(DisplayName.IsEmpty() ? FName::NameToDisplayString(GetNameStringByIndex(InIndex), false) : DisplayName);
}

FText UEnum::GetDisplayNameTextByValue(int64 InValue) const
{
	return GetDisplayNameTextByIndex(GetIndexByValue(InValue));
}

bool UEnum::FindDisplayNameTextByValue(FText& Out, int64 InValue) const
{
	const int32 Index = GetIndexByValue(InValue);
	if (Index == INDEX_NONE)
	{
		return false;
	}
	Out = GetDisplayNameTextByIndex(Index);
	return true;
}

FString UEnum::GetValueOrBitfieldAsString(int64 InValue) const
{
	if (!HasAnyEnumFlags(EEnumFlags::Flags) || InValue == 0)
	{
		return GetNameStringByValue(InValue);
	}
	FString Result;
	for (int32 Index = 0; Index < Names.Num(); ++Index)
	{
		const int64 Bit = Names[Index].Value;
		if (Bit != 0 && (Bit & (Bit - 1)) == 0 && (InValue & Bit) == Bit)
		{
			Result += (Result.IsEmpty() ? TEXT("") : TEXT(" | ")) + GetNameStringByIndex(Index);
		}
	}
	return Result;
}

FText UEnum::GetToolTipTextByIndex(int32 NameIndex) const
{
	FString ToolTip = GetMetaData(TEXT("ToolTip"), NameIndex);
	FormatNativeToolTip(ToolTip);
	return FText::FromString(ToolTip);
}

int64 UEnum::GetMaxEnumValue() const
{
	int64 Max = Names.IsEmpty() ? 0 : Names[0].Value;
	for (const TPair<FName, int64>& Pair : Names)
	{
		Max = std::max(Max, Pair.Value);
	}
	return Max;
}

bool UEnum::IsValidEnumValue(int64 InValue) const
{
	return GetIndexByValue(InValue) != INDEX_NONE;
}

bool UEnum::IsValidEnumValueOrBitfield(int64 InValue) const
{
	if (IsValidEnumValue(InValue) || !HasAnyEnumFlags(EEnumFlags::Flags))
	{
		return IsValidEnumValue(InValue);
	}
	int64 Known = 0;
	for (const TPair<FName, int64>& Pair : Names)
	{
		Known |= Pair.Value;
	}
	return (InValue & ~Known) == 0;
}

bool UEnum::IsValidEnumName(FName InName) const
{
	return GetIndexByName(InName) != INDEX_NONE;
}

bool UEnum::ContainsExistingMax() const
{
	if (GetIndexByName(FName(*GenerateFullEnumName(TEXT("MAX")))) != INDEX_NONE)
	{
		return true;
	}
	return GetIndexByName(FName(*GenerateFullEnumName(*(GenerateEnumPrefix() + TEXT("_MAX"))))) != INDEX_NONE;
}

bool UEnum::SetEnums(const TArray<TPair<FName, int64>>& InNames, ECppForm InCppForm, EEnumFlags InFlags, bool bAddMaxKeyIfMissing)
{
	Names = InNames;
	CppForm = InCppForm;
	EnumFlags = InFlags;
	if (!bAddMaxKeyIfMissing || ContainsExistingMax())
	{
		return true;
	}
	const FName MaxName(*GenerateFullEnumName(*(GenerateEnumPrefix() + TEXT("_MAX"))));
	const int64 MaxValue = GetMaxEnumValue();
	if (MaxValue == MAX_int64)
	{
		return false;
	}
	Names.Emplace(MaxName, MaxValue + 1);
	return true;
}

FString UEnum::GenerateEnumPrefix() const
{
	if (Names.IsEmpty())
	{
		return FString();
	}
	FString Prefix = Names[0].Key.ToString();
	for (int32 Index = 1; Index < Names.Num(); ++Index)
	{
		const FString Name = Names[Index].Key.ToString();
		int32 Length = 0;
		while (Length < Prefix.Len() && Length < Name.Len() && Prefix[Length] == Name[Length])
		{
			++Length;
		}
		Prefix.LeftInline(Length);
	}
	// The prefix ends before the last underscore of what is common, or it is the enum's own name.
	const int32 Separator = Prefix.Find(TEXT("_"), ESearchCase::CaseSensitive, ESearchDir::FromEnd);
	if (Separator > 0)
	{
		Prefix.LeftInline(Separator);
		const int32 Scope = Prefix.Find(TEXT("::"), ESearchCase::CaseSensitive, ESearchDir::FromEnd);
		return Scope == INDEX_NONE ? Prefix : Prefix.Mid(Scope + 2);
	}
	return GetName();
}

FString UEnum::GenerateFullEnumName(const TCHAR* InEnumName) const
{
	return GenerateFullEnumName(this, InEnumName);
}

FString UEnum::GenerateFullEnumName(const UEnum* InEnum, const TCHAR* InEnumName)
{
	if (InEnum->GetCppForm() == ECppForm::Regular || IsFullEnumName(InEnumName))
	{
		return InEnumName;
	}
	return InEnum->GetName() + TEXT("::") + InEnumName;
}

bool UEnum::IsFullEnumName(const TCHAR* InEnumName)
{
	return FCString::Strstr(InEnumName, TEXT("::")) != nullptr;
}

int64 UEnum::LookupEnumName(FName PackageName, FName TestName)
{
	for (TObjectIterator<UEnum> It; It; ++It)
	{
		const int32 Index = It->GetIndexByName(TestName);
		if (Index != INDEX_NONE && (PackageName == NAME_None || It->GetOutermost()->GetFName() == PackageName))
		{
			return It->GetValueByIndex(Index);
		}
	}
	return INDEX_NONE;
}

int64 UEnum::LookupEnumNameSlow(const TCHAR* InTestShortName)
{
	return LookupEnumName(NAME_None, FName(InTestShortName, FNAME_Find));
}

FName UEnum::MetaDataKey(const TCHAR* Key, int32 NameIndex) const
{
	// An enumerator's metadata is the enum's, under "Open.DisplayName".
	return NameIndex == INDEX_NONE ? FName(Key) : FName(*(GetNameStringByIndex(NameIndex) + TEXT(".") + Key));
}

FString UEnum::GetMetaData(const TCHAR* Key, int32 NameIndex, bool bAllowRemap) const
{
	return UField::GetMetaData(MetaDataKey(Key, NameIndex));
}

bool UEnum::HasMetaData(const TCHAR* Key, int32 NameIndex) const
{
	return UField::HasMetaData(MetaDataKey(Key, NameIndex));
}

void UEnum::SetMetaData(const TCHAR* Key, const TCHAR* InValue, int32 NameIndex) const
{
	const_cast<UEnum*>(this)->UField::SetMetaData(MetaDataKey(Key, NameIndex), InValue);
}

void UEnum::RemoveMetaData(const TCHAR* Key, int32 NameIndex) const
{
	const_cast<UEnum*>(this)->UField::RemoveMetaData(MetaDataKey(Key, NameIndex));
}
