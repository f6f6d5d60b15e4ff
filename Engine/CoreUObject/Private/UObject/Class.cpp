#include "UObject/Class.h"

#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UObjectHash.h"
#include "UObject/UnrealType.h"
#include "UObjectHashTables.h"

UClass::UClass() = default;

UClass::UClass(const FObjectInitializer& ObjectInitializer)
	: UStruct(ObjectInitializer)
	, ClassWithin(UObject::StaticClass())
{
	ClassFlags = CLASS_None;
}

UClass::~UClass() = default;

void UClass::FinishDestroy()
{
	SetSuperStruct(nullptr);
	ClassDefaultObject = nullptr;
	Super::FinishDestroy();
}

void UClass::AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector)
{
	UClass* const This = static_cast<UClass*>(InThis);
	for (FImplementedInterface& Interface : This->Interfaces)
	{
		Collector.AddStableReference(&Interface.Class);
	}
	for (TPair<FName, TObjectPtr<UFunction>>& Function : This->FuncMap)
	{
		Collector.AddStableReference(&Function.Value);
	}
	Collector.AddStableReference(&This->ClassWithin);
	Collector.AddReferencedObject(This->ClassGeneratedBy, This);
	Collector.AddStableReference(&This->ClassDefaultObject);
	// Found functions of other classes may be collected with them.
	This->SuperFuncMap.Empty();
	UStruct::AddReferencedObjects(InThis, Collector);
}

void UClass::SetSuperStruct(UStruct* NewSuperStruct)
{
	FUObjectHashTables& Tables = FUObjectHashTables::Get();
	if (UClass* const OldSuper = GetSuperClass())
	{
		Tables.RemoveFromClassTree(this, OldSuper);
	}
	Super::SetSuperStruct(NewSuperStruct);
	if (UClass* const NewSuper = GetSuperClass())
	{
		Tables.AddToClassTree(this, NewSuper);
	}
	ClearFunctionMapsCaches();
}

void UClass::Bind()
{
	UField::Bind();
	UClass* const SuperClass = GetSuperClass();
	if (!SuperClass)
	{
		return;
	}
	if (!ClassConstructor)
	{
		ClassConstructor = SuperClass->ClassConstructor;
	}
	if (!ClassAddReferencedObjects)
	{
		ClassAddReferencedObjects = SuperClass->ClassAddReferencedObjects;
	}
	if (!ClassWithin)
	{
		ClassWithin = SuperClass->ClassWithin;
	}
	if (ClassConfigName == NAME_None)
	{
		ClassConfigName = SuperClass->ClassConfigName;
	}
	ClassFlags |= SuperClass->ClassFlags & CLASS_Inherit;
	ClassCastFlags |= SuperClass->ClassCastFlags;
}

void UClass::Link(FArchive& Ar, bool bRelinkExistingProperties)
{
	Super::Link(Ar, bRelinkExistingProperties);
	for (const FProperty* Property = PropertyLink; Property; Property = Property->PropertyLinkNext)
	{
		if (Property->ContainsInstancedObjectProperty())
		{
			ClassFlags |= CLASS_HasInstancedReference;
			return;
		}
	}
}

bool UClass::Rename(const TCHAR* NewName, UObject* NewOuter, ERenameFlagsType Flags)
{
	const bool bRenamed = Super::Rename(NewName, NewOuter, Flags);
	// The default object goes where its class goes, under the class's name.
	if (bRenamed && ClassDefaultObject && !(Flags & REN_Test))
	{
		ClassDefaultObject->Rename(
			*GetDefaultObjectName().ToString(), GetOuter(), Flags | REN_DoNotDirty | REN_DontCreateRedirectors | REN_NonTransactional);
	}
	return bRenamed;
}

FString UClass::GetDesc()
{
	return GetName();
}

const TCHAR* UClass::GetPrefixCPP() const
{
	for (const UClass* Class = this; Class; Class = Class->GetSuperClass())
	{
		if (Class->GetFName() == FName(TEXT("Actor")) && IsNativeClass(Class))
		{
			return HasAnyClassFlags(CLASS_Deprecated) ? TEXT("ADEPRECATED_") : TEXT("A");
		}
	}
	return HasAnyClassFlags(CLASS_Deprecated) ? TEXT("UDEPRECATED_") : TEXT("U");
}

FName UClass::GetDefaultObjectName() const
{
	return FName(*(FString(DEFAULT_OBJECT_PREFIX) + GetName()));
}

UObject* UClass::CreateDefaultObject()
{
	if (ClassDefaultObject)
	{
		return ClassDefaultObject;
	}
	UObject* ParentDefaults = nullptr;
	if (UClass* const SuperClass = GetSuperClass())
	{
		ParentDefaults = SuperClass->GetDefaultObject();
		if (ClassDefaultObject)
		{
			return ClassDefaultObject;
		}
	}
	checkf(ClassConstructor, TEXT("Class %s has no constructor"), *GetName());
	const bool bNative = IsNativeClass(this);
	const EObjectFlags Flags =
		static_cast<EObjectFlags>(RF_Public | RF_ClassDefaultObject | RF_ArchetypeObject | (bNative ? RF_MarkAsRootSet : RF_NoFlags));
	ClassDefaultObject = StaticAllocateObject(this, GetOuter(), NAME_None, Flags);
	ClassConstructor(FObjectInitializer(
		ClassDefaultObject, ParentDefaults, bNative ? EObjectInitializerOptions::None : EObjectInitializerOptions::InitializeProperties));
	return ClassDefaultObject;
}

UObject* UClass::GetDefaultSubobjectByName(FName ToFind)
{
	UObject* const Defaults = GetDefaultObject();
	return Defaults ? Defaults->GetDefaultSubobjectByName(ToFind) : nullptr;
}

void UClass::GetDefaultObjectSubobjects(TArray<UObject*>& OutDefaultSubobjects)
{
	if (UObject* const Defaults = GetDefaultObject())
	{
		Defaults->GetDefaultSubobjects(OutDefaultSubobjects);
	}
}

UObject* UClass::GetArchetypeForCDO() const
{
	return GetSuperClass() ? GetSuperClass()->GetDefaultObject() : nullptr;
}

void UClass::AddFunctionToFunctionMap(UFunction* Function, FName FuncName)
{
	FuncMap.Add(FuncName, Function);
	ClearFunctionMapsCachesOfFamily();
}

void UClass::AddFunctionsToFunctionMap(TConstArrayView<UFunction*> Functions)
{
	for (UFunction* const Function : Functions)
	{
		FuncMap.Add(Function->GetFName(), Function);
	}
	ClearFunctionMapsCachesOfFamily();
}

void UClass::RemoveFunctionFromFunctionMap(UFunction* Function)
{
	FuncMap.Remove(Function->GetFName());
	ClearFunctionMapsCachesOfFamily();
}

void UClass::ClearFunctionMapsCachesOfFamily()
{
	ClearFunctionMapsCaches();
	TArray<UClass*> Derived;
	GetDerivedClasses(this, Derived);
	for (UClass* const Class : Derived)
	{
		Class->ClearFunctionMapsCaches();
	}
}

UFunction* UClass::FindFunctionByName(FName InName, EIncludeSuperFlag::Type IncludeSuper) const
{
	if (const TObjectPtr<UFunction>* const Own = FuncMap.Find(InName))
	{
		return *Own;
	}
	if (IncludeSuper == EIncludeSuperFlag::ExcludeSuper || InName == NAME_None)
	{
		return nullptr;
	}
	if (UFunction* const* const Cached = SuperFuncMap.Find(InName))
	{
		return *Cached;
	}
	UFunction* Found = nullptr;
	for (int32 Index = 0; Index < Interfaces.Num() && !Found; ++Index)
	{
		Found = Interfaces[Index].Class ? Interfaces[Index].Class->FindFunctionByName(InName) : nullptr;
	}
	if (!Found && GetSuperClass())
	{
		Found = GetSuperClass()->FindFunctionByName(InName);
	}
	if (Found)
	{
		SuperFuncMap.Add(InName, Found);
	}
	return Found;
}

void UClass::GenerateFunctionList(TArray<FName>& OutArray) const
{
	FuncMap.GetKeys(OutArray);
}

const FImplementedInterface* UClass::FindImplementedInterface(const UClass* SomeInterface) const
{
	for (const UClass* Class = this; Class; Class = Class->GetSuperClass())
	{
		for (const FImplementedInterface& Interface : Class->Interfaces)
		{
			if (Interface.Class && Interface.Class->IsChildOf(SomeInterface))
			{
				return &Interface;
			}
		}
	}
	return nullptr;
}

bool UClass::ImplementsInterface(const UClass* SomeInterface) const
{
	return SomeInterface && SomeInterface->HasAnyClassFlags(CLASS_Interface) && SomeInterface != UObject::StaticClass() &&
		FindImplementedInterface(SomeInterface) != nullptr;
}

UClass* UClass::FindCommonBase(UClass* InClassA, UClass* InClassB)
{
	UClass* Common = InClassA;
	while (Common && InClassB && !InClassB->IsChildOf(Common))
	{
		Common = Common->GetSuperClass();
	}
	return Common;
}

UClass* UClass::FindCommonBase(const TArray<UClass*>& InClasses)
{
	UClass* Common = InClasses.IsEmpty() ? nullptr : InClasses[0];
	for (UClass* const Class : InClasses)
	{
		Common = FindCommonBase(Common, Class);
	}
	return Common;
}

FString UClass::GetConfigName() const
{
	return ClassConfigName == NAME_None ? FString() : ClassConfigName.ToString();
}

void UClass::PurgeClass(bool bRecompilingOnLoad)
{
	ClassConstructor = nullptr;
	ClassAddReferencedObjects = nullptr;
	ClassCastFlags = CASTCLASS_None;
	ClassUnique = 0;
	ClassFlags = CLASS_None;
	ClassConfigName = NAME_None;
	ClassWithin = nullptr;
	Interfaces.Empty();
	ClassDefaultObject = nullptr;
	FuncMap.Empty();
	ClearFunctionMapsCaches();
	Children = nullptr;
	Script.Empty();
	ScriptAndPropertyObjectReferences.Empty();
	MinAlignment = 1;
	PropertiesSize = 0;
	DestroyChildPropertiesAndResetPropertyLinks();
	SetSuperStruct(nullptr);
}

UField* UClass::TryFindTypeByName(UClass* TypeClass, const FString& InPathNameOrShortName)
{
	if (InPathNameOrShortName.IsEmpty())
	{
		return nullptr;
	}
	const bool bIsPath = InPathNameOrShortName.Contains(TEXT("/")) || InPathNameOrShortName.Contains(TEXT("."));
	UObject* const Found = bIsPath ? StaticFindObject(TypeClass, nullptr, *InPathNameOrShortName)
								   : StaticFindFirstObject(TypeClass, *InPathNameOrShortName, EFindFirstObjectOptions::NativeFirst);
	return static_cast<UField*>(Found);
}

FArchive& operator<<(FArchive& Ar, FImplementedInterface& A)
{
	UObject* Class = A.Class;
	Ar << Class;
	if (Ar.IsLoading() || Class != A.Class)
	{
		A.Class = Class && Class->IsA<UClass>() ? static_cast<UClass*>(Class) : nullptr;
	}
	Ar << A.PointerOffset;
	Ar << A.bImplementedByK2;
	return Ar;
}
