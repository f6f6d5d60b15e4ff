#include "UObject/UObjectBase.h"

#include "ObjectBootstrap.h"
#include "UObject/Class.h"
#include "UObject/Package.h"
#include "UObjectHashTables.h"

DEFINE_LOG_CATEGORY(LogObj);
DEFINE_LOG_CATEGORY(LogClass);
DEFINE_LOG_CATEGORY(LogGarbage);
DEFINE_LOG_CATEGORY(LogUObjectGlobals);

FObjectBootstrap::FIdentity FObjectBootstrap::Pending;

namespace
{
std::unordered_map<const UObjectBase*, UPackage*>& ExternalPackages()
{
	static std::unordered_map<const UObjectBase*, UPackage*>& Map = *new std::unordered_map<const UObjectBase*, UPackage*>;
	return Map;
}
}

void FObjectBootstrap::Register(UObjectBase* Object, EInternalObjectFlags InternalFlags)
{
	GUObjectArray.AllocateUObjectIndex(Object, InternalFlags);
	FUObjectHashTables::Get().Add(Object);
}

UObjectBase::UObjectBase()
{
	FObjectBootstrap::FIdentity& Pending = FObjectBootstrap::Pending;
	checkf(Pending.Memory == this, TEXT("Objects are made with NewObject, not with new or on the stack"));
	ObjectFlags = Pending.Flags;
	InternalIndex = INDEX_NONE;
	ClassPrivate = Pending.Class;
	NamePrivate = Pending.Name;
	OuterPrivate = Pending.Outer;
	Pending.Memory = nullptr;
	if (Pending.KnownIndex != INDEX_NONE)
	{
		InternalIndex = Pending.KnownIndex;
		Pending.KnownIndex = INDEX_NONE;
	}
	else if (Pending.bRegister)
	{
		FObjectBootstrap::Register(this, Pending.InternalFlags);
	}
}

UObjectBase::~UObjectBase()
{
	if (InternalIndex == INDEX_NONE)
	{
		return;
	}
	if (ObjectFlags & RF_HasExternalPackage)
	{
		ExternalPackages().erase(this);
	}
	FUObjectHashTables::Get().Remove(this);
	GUObjectArray.FreeUObjectIndex(this);
}

bool UObjectBase::IsValidLowLevel() const
{
	return GUObjectArray.IsValid(this) && ClassPrivate && GUObjectArray.IsValid(ClassPrivate);
}

bool UObjectBase::IsValidLowLevelFast(bool bRecursive) const
{
	return IsValidLowLevel();
}

UPackage* UObjectBase::GetExternalPackage() const
{
	if (!(ObjectFlags & RF_HasExternalPackage))
	{
		return nullptr;
	}
	const auto Found = ExternalPackages().find(this);
	return Found == ExternalPackages().end() ? nullptr : Found->second;
}

void UObjectBase::SetExternalPackage(UPackage* InPackage)
{
	if (InPackage)
	{
		ExternalPackages()[this] = InPackage;
		AtomicallySetFlags(RF_HasExternalPackage);
	}
	else
	{
		ExternalPackages().erase(this);
		AtomicallyClearFlags(RF_HasExternalPackage);
	}
}

void UObjectBase::LowLevelRename(FName NewName, UObject* NewOuter)
{
	FUObjectHashTables& Tables = FUObjectHashTables::Get();
	Tables.Remove(this);
	NamePrivate = NewName;
	if (NewOuter)
	{
		OuterPrivate = NewOuter;
	}
	Tables.Add(this);
}

void UObjectBase::SetClass(UClass* NewClass)
{
	FUObjectHashTables& Tables = FUObjectHashTables::Get();
	Tables.Remove(this);
	ClassPrivate = NewClass;
	Tables.Add(this);
}
