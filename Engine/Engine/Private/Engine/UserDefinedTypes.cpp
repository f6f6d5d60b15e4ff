#include "Engine/UserDefinedEnum.h"
#include "Engine/UserDefinedStruct.h"
#include "Templates/Casts.h"
#include "UObject/ReferenceCollector.h"
#include "UObject/UnrealType.h"

namespace
{
constexpr int32 GuidLength = 32;
}

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

void UUserDefinedEnum::PreEditUndo()
{
	Super::PreEditUndo();
	EnumeratorsBeforeUndo = Names;
}

FString UUserDefinedStruct::GetAuthoredNameForField(const FField* Field) const
{
	// "Health_12_0F3A..." is what the user called "Health": an index and 32 digits of an id stand behind the name.
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

FGuid UUserDefinedStruct::GetMemberGuid(FName PropertyName)
{
	const FString Name = PropertyName.ToString();
	FGuid Guid;
	const bool bHasGuid = Name.Len() > GuidLength && Name[Name.Len() - GuidLength - 1] == TEXT('_');
	if (bHasGuid)
	{
		FGuid::ParseExact(Name.Right(GuidLength), EGuidFormats::Digits, Guid);
	}
	return Guid;
}

bool UUserDefinedStruct::IsSameMember(FName A, FName B)
{
	const FGuid Guid = GetMemberGuid(A);
	return Guid.IsValid() && Guid == GetMemberGuid(B);
}

FProperty* UUserDefinedStruct::CustomFindProperty(const FName InName) const
{
	const FGuid Wanted = GetMemberGuid(InName);
	for (FProperty* Property = PropertyLink; Wanted.IsValid() && Property; Property = Property->PropertyLinkNext)
	{
		if (GetMemberGuid(Property->GetFName()) == Wanted)
		{
			return Property;
		}
	}
	return nullptr;
}

void UUserDefinedStruct::InitializeStruct(void* Dest, int32 ArrayDim) const
{
	Super::InitializeStruct(Dest, ArrayDim);
	for (int32 Index = 0; DefaultInstance && Index < ArrayDim; ++Index)
	{
		CopyScriptStruct(static_cast<uint8*>(Dest) + static_cast<SIZE_T>(Index) * static_cast<SIZE_T>(GetStructureSize()), DefaultInstance);
	}
}

void UUserDefinedStruct::SetDefaults(TFunctionRef<void(uint8*)> Fill)
{
	FreeDefaultInstance();
	uint8* const Instance = static_cast<uint8*>(
		FMemory::Malloc(static_cast<SIZE_T>(FMath::Max(GetStructureSize(), 1)), static_cast<uint32>(FMath::Max(GetMinAlignment(), 1))));
	Super::InitializeStruct(Instance);
	Fill(Instance);
	DefaultInstance = Instance;
}

void UUserDefinedStruct::MoveMembersTo(UUserDefinedStruct& Other)
{
	check(!Other.ChildProperties && !Other.DefaultInstance);
	Other.ChildProperties = ChildProperties;
	Other.PropertiesSize = PropertiesSize;
	Other.MinAlignment = MinAlignment;
	Other.StructFlags = StructFlags;
	Other.DefaultInstance = DefaultInstance;
	Other.Guid = Guid;
	for (FField* Field = Other.ChildProperties; Field; Field = Field->Next)
	{
		Field->Owner = &Other;
	}
	ChildProperties = nullptr;
	DefaultInstance = nullptr;
	Other.StaticLink(false);
	PropertiesSize = 0;
	StaticLink(true);
}

void UUserDefinedStruct::FreeDefaultInstance()
{
	if (DefaultInstance)
	{
		DestroyStruct(DefaultInstance);
		FMemory::Free(DefaultInstance);
		DefaultInstance = nullptr;
	}
}

void UUserDefinedStruct::FinishDestroy()
{
	FreeDefaultInstance();
	Super::FinishDestroy();
}

void UUserDefinedStruct::AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector)
{
	UUserDefinedStruct* const This = CastChecked<UUserDefinedStruct>(InThis);
	if (This->DefaultInstance)
	{
		This->GetReferenceSchema().Visit(This->DefaultInstance, Collector, This);
	}
	Super::AddReferencedObjects(InThis, Collector);
}
