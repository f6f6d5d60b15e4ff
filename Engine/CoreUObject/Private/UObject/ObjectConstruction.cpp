#include "Misc/ITransaction.h"
#include "ObjectBootstrap.h"
#include "UObject/Package.h"
#include "UObject/PlaceholderObject.h"
#include "UObject/UObjectGlobals.h"
#include "UObjectHashTables.h"

namespace
{
/** Ends an object's life at once, leaving its memory to a successor of the same class. */
void DestroyInPlace(UObject* Object)
{
	Object->ConditionalBeginDestroy();
	while (!Object->IsReadyForFinishDestroy())
	{
	}
	Object->ConditionalFinishDestroy();
	Object->~UObject();
}

void ReportNameTaken(UObject* Existing, const UClass* Class)
{
	UE_LOG(LogUObjectGlobals, Error, TEXT("%s is in the way of a new object of class %s and is moved to the transient package."),
		*Existing->GetFullName(), *Class->GetName());
	Existing->Rename(nullptr, GetTransientPackageAsObject(), REN_ForceGlobalUnique | REN_DoNotDirty | REN_NonTransactional);
}

/** Before it was made the object was not there: to the open transaction it is as one that was given up. */
void RememberCreation(UObject& Object, const FStaticConstructObjectParameters& Params)
{
	constexpr EObjectFlags NotForUndo = static_cast<EObjectFlags>(RF_ClassDefaultObject | RF_NeedLoad);
	const bool bRemember =
		GUndo && (Params.SetFlags & RF_Transactional) != 0 && (Params.SetFlags & NotForUndo) == 0 && !Object.IsA<UField>();
	if (bRemember)
	{
		Object.MarkAsGarbage();
		SaveToTransactionBuffer(&Object, false);
		Object.ClearGarbage();
	}
}
}

UObject* StaticAllocateObject(const UClass* Class, UObject* InOuter, FName Name, EObjectFlags SetFlags,
	EInternalObjectFlags InternalSetFlags, bool bCanReuseSubobjects, bool* bOutReusedSubobject, UPackage* ExternalPackage)
{
	if (bOutReusedSubobject)
	{
		*bOutReusedSubobject = false;
	}
	UClass* const MutableClass = const_cast<UClass*>(Class);
	if (Name == NAME_None)
	{
		Name = (SetFlags & RF_ClassDefaultObject) ? Class->GetDefaultObjectName() : MakeUniqueObjectName(InOuter, Class);
	}
	void* Memory = nullptr;
	if (UObject* const Existing = FUObjectHashTables::Get().FindInOuter(InOuter, Name, [](UObject*)
			{ return true; }))
	{
		if (UE::CoreUObject::IsPlaceholder(Existing))
		{
			UE::CoreUObject::VacatePlaceholderName(Existing);
		}
		else if (Existing->GetClass() != Class)
		{
			ReportNameTaken(Existing, Class);
		}
		else if (bCanReuseSubobjects && Existing->HasAnyFlags(RF_DefaultSubObject))
		{
			if (bOutReusedSubobject)
			{
				*bOutReusedSubobject = true;
			}
			return Existing;
		}
		else if (GUndo && Existing->HasAnyFlags(RF_Transactional) &&
			!Existing->HasAnyFlags(static_cast<EObjectFlags>(RF_ClassDefaultObject | RF_DefaultSubObject)))
		{
			// An undo may bring it back, so it is not there to be overwritten.
			Existing->Rename(nullptr, GetTransientPackageAsObject(), REN_ForceGlobalUnique | REN_DoNotDirty | REN_DontCreateRedirectors);
		}
		else
		{
			const EObjectFlags Kept = Existing->GetMaskedFlags(RF_MarkAsRootSet);
			SetFlags = static_cast<EObjectFlags>(SetFlags | Kept);
			DestroyInPlace(Existing);
			Memory = Existing;
		}
	}
	const SIZE_T Size = static_cast<SIZE_T>(Class->bStandsInForUnknown ? FObjectBootstrap::StandInCapacity : Class->GetStructureSize());
	if (!Memory)
	{
		Memory = FMemory::Malloc(Size, static_cast<uint32>(std::max(16, Class->GetMinAlignment())));
	}
	FMemory::Memzero(Memory, Size);

	FObjectBootstrap::FIdentity& Identity = FObjectBootstrap::Pending;
	check(!Identity.Memory);
	Identity.Memory = Memory;
	Identity.Class = MutableClass;
	Identity.Name = Name;
	Identity.Outer = InOuter;
	Identity.Flags = SetFlags;
	Identity.InternalFlags = InternalSetFlags |
		((SetFlags & RF_MarkAsRootSet) ? EInternalObjectFlags::RootSet : EInternalObjectFlags::None) |
		((SetFlags & RF_MarkAsNative) ? EInternalObjectFlags::Native : EInternalObjectFlags::None);
	Identity.bRegister = true;
	return static_cast<UObject*>(Memory);
}

bool FObjectBootstrap::FitsStandIn(const UClass* Class)
{
	constexpr int32 ObjectAlignment = 16;
	return Class->GetStructureSize() <= StandInCapacity && Class->GetMinAlignment() <= ObjectAlignment;
}

void FObjectBootstrap::ConstructAnew(UObject* Object, UObject* Template)
{
	check(!Pending.Memory);
	Pending.Memory = Object;
	Pending.Class = Object->GetClass();
	Pending.Name = Object->GetFName();
	Pending.Outer = Object->GetOuter();
	Pending.Flags = Object->GetFlags();
	Pending.KnownIndex = static_cast<int32>(Object->GetUniqueID());
	FMemory::Memzero(static_cast<void*>(Object), static_cast<SIZE_T>(Pending.Class->GetStructureSize()));
	Pending.Class->ClassConstructor(FObjectInitializer(static_cast<UObject*>(Pending.Memory), Template,
		EObjectInitializerOptions::InitializeProperties));
}

UObject* StaticConstructObject_Internal(const FStaticConstructObjectParameters& Params)
{
	const UClass* const Class = Params.Class;
	if (!Class)
	{
		UE_LOG(LogUObjectGlobals, Error, TEXT("NewObject called with no class"));
		return nullptr;
	}
	if (Class->HasAnyClassFlags(CLASS_Abstract) && !(Params.SetFlags & RF_ClassDefaultObject) && !Params.Template)
	{
		UE_LOG(LogUObjectGlobals, Error, TEXT("Cannot make an object of the abstract class %s"), *Class->GetName());
		return nullptr;
	}
	if (!Params.Outer && Class != UPackage::StaticClass())
	{
		UE_LOG(LogUObjectGlobals, Error, TEXT("Object of class %s is not in a package: no outer was given"), *Class->GetName());
		return nullptr;
	}
	if (Class->bLayoutChanging)
	{
		UE_LOG(LogUObjectGlobals, Error, TEXT("Cannot make an object of class %s while its layout changes"), *Class->GetName());
		return nullptr;
	}
	if (!(Params.SetFlags & RF_ClassDefaultObject))
	{
		Class->GetDefaultObject();
	}
	UObject* Replaced = nullptr;
	if (Params.Name != NAME_None)
	{
		UObject* const Existing = StaticFindObjectFastInternal(nullptr, Params.Outer, Params.Name);
		Replaced = Existing && UE::CoreUObject::IsPlaceholder(Existing) ? Existing : nullptr;
	}

	bool bReused = false;
	const bool bCanReuse = IsNativeClass(Class) && !Params.Template && (Params.SetFlags & RF_DefaultSubObject);
	UObject* const Object = StaticAllocateObject(
		Class, Params.Outer, Params.Name, Params.SetFlags, Params.InternalSetFlags, bCanReuse, &bReused, Params.ExternalPackage);
	if (bReused)
	{
		return Object;
	}
	Class->ClassConstructor(FObjectInitializer(Object, Params));
	if (Params.ExternalPackage)
	{
		Object->SetExternalPackage(Params.ExternalPackage);
	}
	if (Replaced)
	{
		UE::CoreUObject::ReplacePlaceholder(Replaced, Object);
	}
	RememberCreation(*Object, Params);
	return Object;
}

FName MakeUniqueObjectName(UObject* Outer, const UClass* Class, FName BaseName, EUniqueObjectNameOptions Options)
{
	const FName Base = BaseName == NAME_None ? Class->GetFName() : BaseName;
	while (true)
	{
		const int32 Number = FUObjectHashTables::Get().NextNameNumber(Outer, Class);
		const FName Candidate(Base, NAME_EXTERNAL_TO_INTERNAL(Number));
		const bool bTaken = EnumHasAnyFlags(Options, EUniqueObjectNameOptions::GloballyUnique)
			? FUObjectHashTables::Get().FindByName(Candidate, [](UObject*)
				  { return true; }) != nullptr
			: FUObjectHashTables::Get().FindInOuter(Outer, Candidate, [](UObject*)
				  { return true; }) != nullptr;
		if (!bTaken)
		{
			return Candidate;
		}
	}
}

FName MakeObjectNameFromDisplayLabel(const FString& DisplayLabel, const FName CurrentObjectName)
{
	FString Name;
	for (const TCHAR Character : DisplayLabel)
	{
		const bool bKeep = (Character >= 'a' && Character <= 'z') || (Character >= 'A' && Character <= 'Z') ||
			(Character >= '0' && Character <= '9') || Character == '_' || Character == '-';
		if (bKeep)
		{
			Name.AppendChar(Character);
		}
	}
	return Name.IsEmpty() ? CurrentObjectName : FName(*Name);
}
