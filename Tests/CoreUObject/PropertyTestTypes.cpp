#include "PropertyTestTypes.h"

#include "Serialization/Archive.h"
#include "UObject/StrongObjectPtr.h"

FTestValue::FTestValue(const FPropertyDescription& Description)
	: Property(ConstructPropertyFromDescription(FFieldVariant(), Description))
{
	FArchive Linker;
	Property->LinkWithoutChangingOffset(Linker);
	Memory = Property->AllocateAndInitializeValue();
}

FTestValue::~FTestValue()
{
	Property->DestroyAndFreeValue(Memory);
}

FString FTestValue::Export(int32 PortFlags) const
{
	FString Result;
	Property->ExportTextItem_Direct(Result, Memory, nullptr, nullptr, PortFlags);
	return Result;
}

bool FTestValue::Import(const TCHAR* Text, int32 PortFlags)
{
	const TCHAR* const End = Property->ImportText_Direct(Text, Memory, nullptr, PortFlags, &Errors);
	return End && *End == TEXT('\0');
}

FPropertyDescription Describe(EPropertyGenKind Kind, const TCHAR* Name, UField* Type)
{
	FPropertyDescription Description;
	Description.Name = FName(Name);
	Description.Kind = Kind;
	Description.Type = Type;
	return Description;
}

FPropertyDescription DescribeContainer(EPropertyGenKind Kind, const FPropertyDescription& Inner, const TCHAR* Name)
{
	FPropertyDescription Description = Describe(Kind, Name);
	Description.Inner = MakeShared<FPropertyDescription>(Inner);
	return Description;
}

FPropertyDescription DescribeMap(const FPropertyDescription& Key, const FPropertyDescription& Value, const TCHAR* Name)
{
	FPropertyDescription Description = DescribeContainer(EPropertyGenKind::Map, Key, Name);
	Description.Value = MakeShared<FPropertyDescription>(Value);
	return Description;
}

UPackage* MakeTestPackage(const TCHAR* Name)
{
	ProcessNewlyLoadedUObjects();
	return CreatePackage(Name);
}

namespace
{
void AddMembers(UStruct* Struct, const TArray<FPropertyDescription>& Members)
{
	// A chain is built from its front, so the last member goes in first.
	for (int32 Index = Members.Num() - 1; Index >= 0; --Index)
	{
		FProperty* const Property = ConstructPropertyFromDescription(Struct, Members[Index]);
		check(Property);
		Property->Next = Struct->ChildProperties;
		Struct->ChildProperties = Property;
	}
	Struct->StaticLink(true);
}
}

UScriptStruct* MakeTestStruct(UPackage* Package, const TCHAR* Name, const TArray<FPropertyDescription>& Members)
{
	UScriptStruct* const Struct = NewObject<UScriptStruct>(Package, FName(Name), RF_Public | RF_Standalone);
	AddMembers(Struct, Members);
	return Struct;
}

UClass* MakeTestClass(UPackage* Package, const TCHAR* Name, const TArray<FPropertyDescription>& Members)
{
	UClass* const Class = NewObject<UClass>(Package, FName(Name), RF_Public | RF_Standalone);
	Class->SetSuperStruct(UObject::StaticClass());
	Class->ClassConstructor = UObject::StaticClass()->ClassConstructor;
	AddMembers(Class, Members);
	Class->Bind();
	Class->GetDefaultObject();
	return Class;
}

UEnum* GetDoorEnum()
{
	static TStrongObjectPtr<UEnum> Enum;
	if (!Enum)
	{
		Enum.Reset(NewObject<UEnum>(MakeTestPackage(TEXT("/Script/PropertyTests")), TEXT("EDoor"), RF_Public | RF_Standalone));
		const TArray<TPair<FName, int64>> Names = {{TEXT("EDoor::Open"), 0}, {TEXT("EDoor::Closed"), 1}, {TEXT("EDoor::Locked"), 4}};
		Enum->SetEnums(Names, UEnum::ECppForm::EnumClass);
	}
	return Enum.Get();
}

UScriptStruct* GetItemStruct()
{
	static TStrongObjectPtr<UScriptStruct> Struct;
	if (!Struct)
	{
		Struct.Reset(MakeTestStruct(MakeTestPackage(TEXT("/Script/PropertyTests")), TEXT("Item"),
			{Describe(EPropertyGenKind::Str, TEXT("Name")), Describe(EPropertyGenKind::Int, TEXT("Count")),
				Describe(EPropertyGenKind::Double, TEXT("Ratio")), Describe(EPropertyGenKind::Name, TEXT("Note"))}));
	}
	return Struct.Get();
}
