#pragma once

#include "CoreMinimal.h"

/**
 * One named configuration value, registered by a static of this type. Its text comes, in rising order, from its default, the
 * per-user editor settings (.ini), the environment (VEXEL_API_URL for "ApiUrl"), the command line (-ApiUrl=) and SetOverride().
 * Any thread after static initialisation.
 */
class VEXELCORE_API FVexelConfigValue
{
public:
	FVexelConfigValue(const TCHAR* Key, const TCHAR* Default);

	UE_NONCOPYABLE(FVexelConfigValue)

	const FString& GetKey() const { return Key; }
	/** The value; read from its sources at the first use. */
	FString Get() const;
	/** The value as a number within bounds; a text that is no number counts as the default, with a line in the log. */
	double GetNumber(double Min, double Max) const;
	/** A program's own choice, above every other source, for the rest of the process. */
	void SetOverride(const FString& Value);
	/** Forgets what was read, so that the next use reads the sources again; an override stays. */
	void Reload();

private:
	void EnsureLoaded() const;

	FString Key;
	FString Default;
	mutable FCriticalSection Lock;
	mutable TOptional<FString> Loaded;
	TOptional<FString> Override;
};

/** The registry of all configuration values. */
class VEXELCORE_API FVexelInternalConfig
{
public:
	/** The value of that key; null for none. */
	static FVexelConfigValue* Find(const FString& Key);

private:
	friend class FVexelConfigValue;
	static TArray<FVexelConfigValue*>& GetValues();
};
