#pragma once

#include "CoreMinimal.h"
#include "Misc/EnumClassFlags.h"

enum class EConfigValueFlags : uint8
{
	None = 0,
	/** Its text enters no log, and no command line sets it, which every user of the machine can read. */
	Secret = 1 << 0
};
ENUM_CLASS_FLAGS(EConfigValueFlags)

/**
 * One named configuration value, kept as text and registered by a static of this type. The text comes, in rising order, from its
 * default, the per-user settings object (whose .ini holds what the user changed), the environment (VEXEL_API_URL for "ApiUrl"),
 * the command line (-ApiUrl=) and SetOverride(). An empty text in a source counts as none. Any thread after static initialisation.
 */
class VEXELCORE_API FConfigValueBase
{
public:
	FConfigValueBase(const TCHAR* Key, const TCHAR* Default, EConfigValueFlags Flags = EConfigValueFlags::None);

	UE_NONCOPYABLE(FConfigValueBase)

	const FString& GetKey() const { return Key; }
	EConfigValueFlags GetFlags() const { return Flags; }
	/** The value; read from its sources at the first use. */
	FString Get() const;
	/** The value as a number within bounds; a text that is no number counts as the default, with a line in the log. */
	double GetNumber(double Min, double Max) const;
	/** A program's own choice, above every other source, for the rest of the process. */
	void SetOverride(const FString& Value);
	void ClearOverride();
	/** Reads the sources again; an override stays. Game thread, whose the .ini files are: other threads then find the value read. */
	void Reload();

private:
	void EnsureLoaded() const;

	FString Key;
	FString Default;
	EConfigValueFlags Flags;
	mutable FCriticalSection Lock;
	mutable TOptional<FString> Loaded;
	TOptional<FString> Override;
};

/** The registry of all configuration values. */
class VEXELCORE_API FVexelInternalConfig
{
public:
	/** The value of that key; null for none. */
	static FConfigValueBase* Find(const FString& Key);
	static TArray<FString> GetKeys();
	/** Reload() for all of them: the .ini files are there, or the settings object was edited. */
	static void ReloadAll();

private:
	friend class FConfigValueBase;
	static TArray<FConfigValueBase*>& GetValues();
};
