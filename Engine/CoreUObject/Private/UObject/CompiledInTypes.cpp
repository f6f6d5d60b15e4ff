#include "ObjectBootstrap.h"
#include "UObject/GeneratedCppIncludes.h"
#include "UObject/Interface.h"
#include "UObject/Package.h"
#include "UObject/PlaceholderObject.h"
#include "UObject/PropertyConstruction.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"
#include "CompiledInTypes.h"
#include "IntrinsicClasses.h"

#include <unordered_map>
#include <vector>

namespace
{
/** The data of classes that have been named but perhaps not completed. */
std::unordered_map<const UClass*, const UECodeGen_Private::FClassParams*>& GetClassData()
{
	static auto& Data = *new std::unordered_map<const UClass*, const UECodeGen_Private::FClassParams*>;
	return Data;
}

struct FPendingTypes
{
	UClass* (*const* Classes)();
	int32 NumClasses;
	UScriptStruct* (*const* Structs)();
	int32 NumStructs;
	UEnum* (*const* Enums)();
	int32 NumEnums;
};

std::vector<FPendingTypes>& GetQueue()
{
	static std::vector<FPendingTypes>& Queue = *new std::vector<FPendingTypes>;
	return Queue;
}

constexpr EObjectFlags TypeFlags = static_cast<EObjectFlags>(RF_Public | RF_Transient | RF_MarkAsNative);

UPackage* GetScriptPackage(const char* NameUTF8)
{
	UPackage* const Package = CreatePackage(UTF8_TO_TCHAR(NameUTF8));
	Package->SetPackageFlags(PKG_CompiledIn | PKG_ContainsScript);
	Package->SetInternalFlags(EInternalObjectFlags::Native);
	return Package;
}

void SetMetaData(UField* Field, const UECodeGen_Private::FMetaDataPairParam* Pairs, int32 Num, const FString& Prefix = FString())
{
	for (int32 Index = 0; Index < Num; ++Index)
	{
		Field->SetMetaData(FName(*(Prefix + UTF8_TO_TCHAR(Pairs[Index].NameUTF8))), UTF8_TO_TCHAR(Pairs[Index].ValueUTF8));
	}
}

template <typename T>
T* NewType(UObject* Outer, FName Name, UClass* Class = T::StaticClass())
{
	// Through the allocator, so that a stand-in of the same name gives way; not through NewObject, whose defaults may not exist yet.
	UObject* const Existing = StaticFindObjectFast(nullptr, Outer, Name);
	void* const Memory = StaticAllocateObject(Class, Outer, Name, TypeFlags);
	T* const Type = ::new (Memory) T();
	if (Existing && UE::CoreUObject::IsPlaceholder(Existing))
	{
		UE::CoreUObject::ReplacePlaceholder(Existing, Type);
	}
	return Type;
}

}

/** A reference to a class of parts (components) is one to the owner's own part, whether its declaration says so or not. */
void MarkInstancedReferences(UStruct* Struct)
{
	const auto Mark = [](auto&& Self, FProperty* Property) -> bool
	{
		bool bInstanced = false;
		if (const FObjectProperty* const Object = CastField<FObjectProperty>(Property))
		{
			bInstanced = Object->PropertyClass && Object->PropertyClass->HasAnyClassFlags(CLASS_DefaultToInstanced);
			Property->PropertyFlags |= bInstanced ? CPF_InstancedReference | CPF_ExportObject : CPF_None;
		}
		TArray<FField*> Inner;
		Property->GetInnerFields(Inner);
		for (FField* const Field : Inner)
		{
			FProperty* const InnerProperty = CastField<FProperty>(Field);
			if (InnerProperty && Self(Self, InnerProperty))
			{
				Property->PropertyFlags |= CPF_ContainsInstancedReference;
				bInstanced = true;
			}
		}
		return bInstanced;
	};
	for (FField* Field = Struct->ChildProperties; Field; Field = Field->Next)
	{
		if (FProperty* const Property = CastField<FProperty>(Field))
		{
			Mark(Mark, Property);
		}
	}
}

namespace
{
void PrependChild(UStruct* Owner, UField* Child)
{
	Child->Next = Owner->Children;
	Owner->Children = Child;
}

EClassCastFlags GetCastFlagOfName(const char* NameUTF8)
{
	static constexpr std::pair<std::string_view, EClassCastFlags> Table[] = {
		{"Level", CASTCLASS_ULevel},
		{"Actor", CASTCLASS_AActor},
		{"PlayerController", CASTCLASS_APlayerController},
		{"Pawn", CASTCLASS_APawn},
		{"SceneComponent", CASTCLASS_USceneComponent},
		{"PrimitiveComponent", CASTCLASS_UPrimitiveComponent},
		{"SkinnedMeshComponent", CASTCLASS_USkinnedMeshComponent},
		{"SkeletalMeshComponent", CASTCLASS_USkeletalMeshComponent},
		{"StaticMeshComponent", CASTCLASS_UStaticMeshComponent},
		{"Blueprint", CASTCLASS_UBlueprint},
	};
	for (const auto& [Name, Flag] : Table)
	{
		if (Name == NameUTF8)
		{
			return Flag;
		}
	}
	return CASTCLASS_None;
}
}

namespace
{
/** Completes a native class; its supers come first, whose layout and functions it builds on. */
void ConstructRegisteredClass(UClass* Class)
{
	const auto Found = GetClassData().find(Class);
	if (Found != GetClassData().end())
	{
		UECodeGen_Private::ConstructClass(Class, *Found->second);
	}
}
}

namespace UECodeGen_Private
{
UClass* GetClass(UClass*& Singleton, const FClassParams& Params)
{
	if (Singleton)
	{
		return Singleton;
	}
	UClass* const Super = Params.SuperFunc ? Params.SuperFunc() : nullptr;
	if (Singleton)
	{
		return Singleton;
	}
	UClass* const Class = NewType<UClass>(GetScriptPackage(Params.PackageNameUTF8), FName(UTF8_TO_TCHAR(Params.NameUTF8)));
	Singleton = Class;
	GetClassData().emplace(Class, &Params);
	Class->PropertiesSize = static_cast<int32>(Params.SizeOf);
	Class->MinAlignment = static_cast<int32>(Params.AlignOf);
	Class->ClassFlags = Params.ClassFlags | CLASS_Native | CLASS_MatchedSerializers;
	Class->ClassCastFlags = GetCastFlagOfName(Params.NameUTF8);
	Class->ClassConstructor = Params.Constructor;
	Class->ClassAddReferencedObjects = Params.AddReferencedObjects;
	Class->ClassConfigName = Params.ConfigNameUTF8 ? FName(UTF8_TO_TCHAR(Params.ConfigNameUTF8)) : FName();
	Class->SetSuperStruct(Super);
	Class->Bind();
	return Class;
}

UClass* ConstructClass(UClass*& Singleton, const FClassParams& Params)
{
	UClass* const Class = GetClass(Singleton, Params);
	if (Class->HasAnyClassFlags(CLASS_Constructed))
	{
		return Class;
	}
	// Marked before members are made: their types may lead back here.
	Class->ClassFlags |= CLASS_Constructed;
	if (UClass* const Super = Class->GetSuperClass())
	{
		ConstructRegisteredClass(Super);
	}
	Class->ClassWithin = Params.WithinFunc
		? Params.WithinFunc()
		: (Class->GetSuperClass() ? Class->GetSuperClass()->ClassWithin.Get() : UObject::StaticClass());
	for (int32 Index = 0; Index < Params.NumProperties; ++Index)
	{
		if (FProperty* const Property = ConstructProperty(Class, Params.Properties[Index], Params.SizeOf))
		{
			Class->AddCppProperty(Property);
		}
	}
	for (int32 Index = Params.NumFunctions - 1; Index >= 0; --Index)
	{
		UFunction* const Function = Params.Functions[Index]();
		PrependChild(Class, Function);
		if (!Function->HasAnyFunctionFlags(FUNC_Delegate))
		{
			Class->AddFunctionToFunctionMap(Function, Function->GetFName());
		}
	}
	for (int32 Index = 0; Index < Params.NumInterfaces; ++Index)
	{
		Class->Interfaces.Add(FImplementedInterface(Params.Interfaces[Index].ClassFunc(), Params.Interfaces[Index].Offset));
	}
	SetMetaData(Class, Params.MetaData, Params.NumMetaData);
	MarkInstancedReferences(Class);
	Class->StaticLink();
	return Class;
}

UScriptStruct* ConstructScriptStruct(UScriptStruct*& Singleton, const FStructParams& Params)
{
	if (Singleton)
	{
		return Singleton;
	}
	UScriptStruct* const Super = Params.SuperFunc ? Params.SuperFunc() : nullptr;
	UScriptStruct* const Struct = NewType<UScriptStruct>(GetScriptPackage(Params.PackageNameUTF8), FName(UTF8_TO_TCHAR(Params.NameUTF8)));
	Singleton = Struct;
	Struct->StructFlags = Params.StructFlags | STRUCT_Native;
	Struct->PropertiesSize = static_cast<int32>(Params.SizeOf);
	Struct->MinAlignment = static_cast<int32>(Params.AlignOf);
	Struct->SetSuperStruct(Super);
	if (Params.StructOpsFunc)
	{
		Struct->SetCppStructOps(static_cast<ICppStructOps*>(Params.StructOpsFunc()));
	}
	for (int32 Index = 0; Index < Params.NumProperties; ++Index)
	{
		if (FProperty* const Property = ConstructProperty(Struct, Params.Properties[Index], Params.SizeOf))
		{
			Struct->AddCppProperty(Property);
		}
	}
	SetMetaData(Struct, Params.MetaData, Params.NumMetaData);
	MarkInstancedReferences(Struct);
	Struct->StaticLink();
	return Struct;
}

UEnum* ConstructEnum(UEnum*& Singleton, const FEnumParams& Params)
{
	if (Singleton)
	{
		return Singleton;
	}
	UEnum* const Enum = NewType<UEnum>(GetScriptPackage(Params.PackageNameUTF8), FName(UTF8_TO_TCHAR(Params.NameUTF8)));
	Singleton = Enum;
	Enum->CppType = UTF8_TO_TCHAR(Params.CppTypeUTF8);
	TArray<TPair<FName, int64>> Names;
	for (int32 Index = 0; Index < Params.NumEnumerators; ++Index)
	{
		Names.Emplace(FName(UTF8_TO_TCHAR(Params.Enumerators[Index].NameUTF8)), Params.Enumerators[Index].Value);
	}
	Enum->SetEnums(Names, static_cast<UEnum::ECppForm>(Params.CppForm), Params.bFlags ? EEnumFlags::Flags : EEnumFlags::None);
	SetMetaData(Enum, Params.MetaData, Params.NumMetaData);
	for (int32 Index = 0; Index < Params.NumEnumerators; ++Index)
	{
		SetMetaData(Enum, Params.Enumerators[Index].MetaData, Params.Enumerators[Index].NumMetaData,
			Enum->GetNameStringByIndex(Index) + TEXT("."));
	}
	return Enum;
}

UFunction* ConstructFunction(UFunction*& Singleton, const FFunctionParams& Params)
{
	if (Singleton)
	{
		return Singleton;
	}
	UObject* const Outer = Params.OuterFunc ? static_cast<UObject*>(Params.OuterFunc()) : GetScriptPackage(Params.PackageNameUTF8);
	if (Singleton)
	{
		return Singleton;
	}
	const FName Name(UTF8_TO_TCHAR(Params.NameUTF8));
	UFunction* const Function = (Params.FunctionFlags & FUNC_Delegate) ? static_cast<UFunction*>(NewType<UDelegateFunction>(Outer, Name))
																	   : NewType<UFunction>(Outer, Name);
	Singleton = Function;
	Function->FunctionFlags = Params.FunctionFlags;
	if (UClass* const Class = Function->GetOuterUClass(); Class && Class->GetSuperClass())
	{
		ConstructRegisteredClass(Class->GetSuperClass());
		Function->SetSuperStruct(Class->GetSuperClass()->FindFunctionByName(Name));
	}
	for (int32 Index = 0; Index < Params.NumParameters; ++Index)
	{
		if (FProperty* const Property = ConstructProperty(Function, Params.Parameters[Index]))
		{
			Function->AddCppProperty(Property);
		}
	}
	SetMetaData(Function, Params.MetaData, Params.NumMetaData);
	Function->StaticLink(true);
	return Function;
}

FRegisterCompiledIn::FRegisterCompiledIn(UClass* (*const* Classes)(), int32 NumClasses, UScriptStruct* (*const* Structs)(),
	int32 NumStructs, UEnum* (*const* Enums)(), int32 NumEnums)
{
	GetQueue().push_back({Classes, NumClasses, Structs, NumStructs, Enums, NumEnums});
}
}

namespace
{
/** Classes that are complete and wait for their default objects. */
std::vector<UClass*>& GetClassesWithoutDefaults()
{
	static std::vector<UClass*>& Classes = *new std::vector<UClass*>;
	return Classes;
}
}

void ConstructCompiledInTypes()
{
	ConstructIntrinsicClasses();
	while (!GetQueue().empty())
	{
		const std::vector<FPendingTypes> Pending = std::move(GetQueue());
		GetQueue().clear();
		for (const FPendingTypes& Types : Pending)
		{
			for (int32 Index = 0; Index < Types.NumEnums; ++Index)
			{
				Types.Enums[Index]();
			}
		}
		for (const FPendingTypes& Types : Pending)
		{
			for (int32 Index = 0; Index < Types.NumStructs; ++Index)
			{
				Types.Structs[Index]();
			}
			for (int32 Index = 0; Index < Types.NumClasses; ++Index)
			{
				GetClassesWithoutDefaults().push_back(Types.Classes[Index]());
			}
		}
	}
}

void ProcessNewlyLoadedUObjects(FName Package, bool bCanProcessNewlyLoadedObjects)
{
	ConstructCompiledInTypes();
	const std::vector<UClass*> Classes = std::move(GetClassesWithoutDefaults());
	GetClassesWithoutDefaults().clear();
	for (const UClass* const Class : Classes)
	{
		Class->GetDefaultObject();
	}
}
