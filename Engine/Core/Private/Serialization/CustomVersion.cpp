#include "Serialization/CustomVersion.h"

#include "Containers/Map.h"
#include "Containers/UnrealString.h"
#include "HAL/CriticalSection.h"
#include "Misc/ScopeLock.h"
#include "Serialization/Archive.h"

namespace
{
struct FRegisteredVersion
{
	int32 Version = 0;
	int32 ReferenceCount = 0;
	// Registrations are statics, which come before the name table may be used; so the name is made when asked for.
	const TCHAR* FriendlyName = nullptr;
};

struct FRegistry
{
	FCriticalSection Lock;
	TMap<FGuid, FRegisteredVersion> Versions;
};

FRegistry& GetRegistry()
{
	// Never destructed, because statics of other modules unregister in any order.
	static FRegistry* const Registry = new FRegistry;
	return *Registry;
}

FCustomVersion MakeVersion(const FGuid& Key, const FRegisteredVersion& Registered)
{
	return FCustomVersion(Key, Registered.Version, FName(Registered.FriendlyName));
}
}

FArchive& operator<<(FArchive& Ar, FCustomVersion& Version)
{
	return Ar << Version.Key << Version.Version;
}

const FCustomVersion* FCustomVersionContainer::GetVersion(FGuid CustomKey) const
{
	return Versions.FindByPredicate([&CustomKey](const FCustomVersion& Version)
		{ return Version.Key == CustomKey; });
}

const FName FCustomVersionContainer::GetFriendlyName(FGuid CustomKey) const
{
	const FCustomVersion* const Version = GetVersion(CustomKey);
	return Version != nullptr ? Version->GetFriendlyName() : FName();
}

void FCustomVersionContainer::SetVersion(FGuid CustomKey, int32 Version, FName FriendlyName)
{
	if (FCustomVersion* const Existing = const_cast<FCustomVersion*>(GetVersion(CustomKey)))
	{
		*Existing = FCustomVersion(CustomKey, Version, FriendlyName);
		return;
	}
	Versions.Emplace(CustomKey, Version, FriendlyName);
}

void FCustomVersionContainer::SetVersionUsingRegistry(FGuid CustomKey)
{
	FCustomVersion Registered;
	if (GetVersion(CustomKey) == nullptr && FCurrentCustomVersions::Get(CustomKey, Registered))
	{
		Versions.Add(Registered);
	}
}

void FCustomVersionContainer::SortByKey()
{
	Versions.Sort([](const FCustomVersion& A, const FCustomVersion& B)
		{ return A.Key < B.Key; });
}

void FCustomVersionContainer::Serialize(FArchive& Ar, ECustomVersionSerializationFormat::Type Format)
{
	if (Format == ECustomVersionSerializationFormat::Optimized)
	{
		Ar << Versions;
		return;
	}
	if (!Ar.IsLoading() || Format != ECustomVersionSerializationFormat::Guids)
	{
		Ar.SetError();
		return;
	}
	// The form of a few early packages, which carried the name with each GUID.
	Versions.Reset();
	const int32 Num = SerializeContainerNum(Ar, 0, sizeof(FGuid));
	for (int32 Index = 0; Index < Num && !Ar.IsError(); ++Index)
	{
		FGuid Key;
		int32 Version = 0;
		FString FriendlyName;
		Ar << Key << Version << FriendlyName;
		Versions.Emplace(Key, Version, FName(*FriendlyName));
	}
}

FCustomVersionContainer FCurrentCustomVersions::GetAll()
{
	FRegistry& Registry = GetRegistry();
	FScopeLock Lock(&Registry.Lock);
	FCustomVersionContainer Result;
	for (const TPair<FGuid, FRegisteredVersion>& Pair : Registry.Versions)
	{
		Result.SetVersion(Pair.Key, Pair.Value.Version, FName(Pair.Value.FriendlyName));
	}
	return Result;
}

bool FCurrentCustomVersions::Get(const FGuid& Guid, FCustomVersion& OutVersion)
{
	FRegistry& Registry = GetRegistry();
	FScopeLock Lock(&Registry.Lock);
	const FRegisteredVersion* const Registered = Registry.Versions.Find(Guid);
	if (Registered == nullptr)
	{
		return false;
	}
	OutVersion = MakeVersion(Guid, *Registered);
	return true;
}

void FCurrentCustomVersions::Register(const FGuid& Key, int32 Version, const TCHAR* FriendlyName)
{
	FRegistry& Registry = GetRegistry();
	FScopeLock Lock(&Registry.Lock);
	FRegisteredVersion& Registered = Registry.Versions.FindOrAdd(Key);
	checkf(Registered.ReferenceCount == 0 || Registered.Version == Version, TEXT("Custom version %s is registered as %d and as %d"),
		FriendlyName, Registered.Version, Version);
	Registered.Version = Version;
	Registered.FriendlyName = FriendlyName;
	++Registered.ReferenceCount;
}

void FCurrentCustomVersions::Unregister(const FGuid& Key)
{
	FRegistry& Registry = GetRegistry();
	FScopeLock Lock(&Registry.Lock);
	FRegisteredVersion* const Registered = Registry.Versions.Find(Key);
	if (Registered != nullptr && --Registered->ReferenceCount == 0)
	{
		Registry.Versions.Remove(Key);
	}
}

FCustomVersionRegistration::FCustomVersionRegistration(FGuid InKey, int32 InVersion, const TCHAR* FriendlyName)
	: Key(InKey)
{
	FCurrentCustomVersions::Register(InKey, InVersion, FriendlyName);
}

FCustomVersionRegistration::~FCustomVersionRegistration()
{
	FCurrentCustomVersions::Unregister(Key);
}
