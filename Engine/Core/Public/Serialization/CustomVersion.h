#pragma once

#include "Containers/Array.h"
#include "Misc/Guid.h"
#include "UObject/NameTypes.h"

class FArchive;

/** The version of one plug-in's or feature's data. */
struct FCustomVersion
{
	FCustomVersion() = default;
	FCustomVersion(const FGuid& InKey, int32 InVersion, FName InFriendlyName)
		: Key(InKey)
		, Version(InVersion)
		, FriendlyName(InFriendlyName)
	{
	}

	const FName GetFriendlyName() const { return FriendlyName; }
	friend bool operator==(const FCustomVersion& A, const FCustomVersion& B) { return A.Key == B.Key; }
	friend CORE_API FArchive& operator<<(FArchive& Ar, FCustomVersion& Version);

	FGuid Key;
	int32 Version = 0;
	/** How many registrations stand for this version. */
	int32 ReferenceCount = 1;

private:
	FName FriendlyName;
};

using FCustomVersionArray = TArray<FCustomVersion>;

/** How the versions are written: as numbered pairs in old files, with a GUID since. */
struct ECustomVersionSerializationFormat
{
	enum Type
	{
		Unknown,
		Guids,
		Enums,
		Optimized,
		CustomVersion_Automatic_Plus_One,
		Latest = CustomVersion_Automatic_Plus_One - 1
	};
};

/** The versions of the data in one archive. */
class CORE_API FCustomVersionContainer
{
public:
	const FCustomVersionArray& GetAllVersions() const { return Versions; }
	const FCustomVersion* GetVersion(FGuid CustomKey) const;
	const FName GetFriendlyName(FGuid CustomKey) const;
	void SetVersion(FGuid CustomKey, int32 Version, FName FriendlyName);
	void SetVersionUsingRegistry(FGuid CustomKey);
	void Empty() { Versions.Empty(); }
	void SortByKey();
	void Serialize(FArchive& Ar, ECustomVersionSerializationFormat::Type Format = ECustomVersionSerializationFormat::Latest);

private:
	FCustomVersionArray Versions;
};

/** The versions that this program's code writes. Safe to ask from any thread. */
class CORE_API FCurrentCustomVersions
{
public:
	static FCustomVersionContainer GetAll();
	static bool Get(const FGuid& Guid, FCustomVersion& OutVersion);

private:
	friend class FCustomVersionRegistration;
	static void Register(const FGuid& Key, int32 Version, const TCHAR* FriendlyName);
	static void Unregister(const FGuid& Key);
};

/** A static of this makes a version known as long as its module is loaded. */
class CORE_API FCustomVersionRegistration
{
public:
	/** FriendlyName must be a literal. */
	FCustomVersionRegistration(FGuid InKey, int32 InVersion, const TCHAR* FriendlyName);
	~FCustomVersionRegistration();
	FCustomVersionRegistration(const FCustomVersionRegistration&) = delete;
	FCustomVersionRegistration& operator=(const FCustomVersionRegistration&) = delete;

private:
	FGuid Key;
};
