#pragma once

#include "Containers/UnrealString.h"
#include "CoreTypes.h"

class FArchive;

enum class EVersionComponent
{
	Major,
	Minor,
	Patch,
	Changelist,
	Branch
};

enum class EVersionComparison
{
	Neither,
	First,
	Second
};

/** The numbers of an engine version. The highest bit of the change list marks a licensee's engine. */
class CORE_API FEngineVersionBase
{
public:
	FEngineVersionBase() = default;
	FEngineVersionBase(uint16 InMajor, uint16 InMinor, uint16 InPatch = 0, uint32 InChangelist = 0)
		: Major(InMajor)
		, Minor(InMinor)
		, Patch(InPatch)
		, Changelist(InChangelist)
	{
	}

	uint16 GetMajor() const { return Major; }
	uint16 GetMinor() const { return Minor; }
	uint16 GetPatch() const { return Patch; }
	uint32 GetChangelist() const { return Changelist & 0x7fffffffu; }
	bool IsLicenseeVersion() const { return (Changelist & 0x80000000u) != 0; }
	bool IsEmpty() const { return Major == 0 && Minor == 0 && Patch == 0; }
	bool HasChangelist() const { return GetChangelist() != 0; }
	/** Which of the two is newer; OutComponent says in what they differ. */
	static EVersionComparison GetNewest(const FEngineVersionBase& First, const FEngineVersionBase& Second, EVersionComponent* OutComponent);

protected:
	uint16 Major = 0;
	uint16 Minor = 0;
	uint16 Patch = 0;
	uint32 Changelist = 0;
};

/** An engine version with its branch. */
class CORE_API FEngineVersion : public FEngineVersionBase
{
public:
	FEngineVersion() = default;
	FEngineVersion(uint16 InMajor, uint16 InMinor, uint16 InPatch, uint32 InChangelist, const FString& InBranch)
		: FEngineVersionBase(InMajor, InMinor, InPatch, InChangelist)
		, Branch(InBranch)
	{
	}

	void Set(uint16 InMajor, uint16 InMinor, uint16 InPatch, uint32 InChangelist, const FString& InBranch)
	{
		*this = FEngineVersion(InMajor, InMinor, InPatch, InChangelist, InBranch);
	}
	void Empty() { *this = FEngineVersion(); }
	bool IsCompatibleWith(const FEngineVersionBase& Other) const;
	const FString& GetBranch() const { return Branch; }
	/** "5.7.0-12345+++UE5+Release-5.7", cut after the given component. */
	FString ToString(EVersionComponent LastComponent = EVersionComponent::Branch) const;
	static bool Parse(const FString& Text, FEngineVersion& OutVersion);

	/** The version whose API and formats this engine has. */
	static const FEngineVersion& Current();
	static const FEngineVersion& CompatibleWith() { return Current(); }

	friend CORE_API FArchive& operator<<(FArchive& Ar, FEngineVersion& Version);

private:
	FString Branch;
};
