#include "Engine/UserDefinedEnum.h"
#include "Engine/UserDefinedStruct.h"
#include "UObject/UnrealType.h"

FText UUserDefinedEnum::GetDisplayNameTextByIndex(int32 NameIndex) const
{
	const FText* const DisplayName = DisplayNameMap.Find(FName(*GetNameStringByIndex(NameIndex)));
	return DisplayName ? *DisplayName : Super::GetDisplayNameTextByIndex(NameIndex);
}

FString UUserDefinedEnum::GenerateNewEnumeratorName()
{
	FString Name;
	do
	{
		Name = FString::Printf(TEXT("NewEnumerator%u"), UniqueNameIndex++);
	} while (IsValidEnumName(FName(*GenerateFullEnumName(*Name))));
	return Name;
}

FString UUserDefinedStruct::GetAuthoredNameForField(const FField* Field) const
{
	// "Health_12_0F3A..." is what the user called "Health": an index and 32 digits of an id stand behind the name.
	constexpr int32 GuidLength = 32;
	const FProperty* const Property = CastField<FProperty>(Field);
	if (!Property)
	{
		return Super::GetAuthoredNameForField(Field);
	}
	const FString Name = Property->GetName();
	const int32 GuidStart = Name.Len() - GuidLength;
	if (GuidStart < 3 || Name[GuidStart - 1] != TEXT('_'))
	{
		return Name;
	}
	int32 IndexStart = GuidStart - 1;
	while (IndexStart > 0 && FChar::IsDigit(Name[IndexStart - 1]))
	{
		--IndexStart;
	}
	const bool bHasIndex = IndexStart < GuidStart - 1 && IndexStart > 1 && Name[IndexStart - 1] == TEXT('_');
	return bHasIndex ? Name.Left(IndexStart - 1) : Name;
}
