#pragma once

#include "Containers/Array.h"
#include "Containers/Map.h"
#include "Containers/UnrealString.h"
#include "CoreTypes.h"
#include "Math/MathFwd.h"
#include "Templates/UniquePtr.h"
#include "UObject/NameTypes.h"

class FText;

/** The lines of one [section]: a key may have many values, which keep their order. Keys compare without regard to case. */
class CORE_API FConfigSection
{
public:
	struct FEntry
	{
		FString Key;
		FString Value;
		bool operator==(const FEntry&) const = default;
	};

	/** The last value of the key, or null. */
	const FString* Find(const FString& Key) const;
	void MultiFind(const FString& Key, TArray<FString>& OutValues) const;
	/** Gives the key this one value, in the place of its first. */
	void Set(const FString& Key, const FString& Value);
	void Add(const FString& Key, const FString& Value) { Entries.Add(FEntry{Key, Value}); }
	void AddUnique(const FString& Key, const FString& Value);
	int32 Remove(const FString& Key);
	int32 RemoveSingle(const FString& Key, const FString& Value);
	/** Each key once, in order. */
	TArray<FString> GetKeys() const;

	TArray<FEntry> Entries;
};

/** What some .ini files say together, and what has been changed since. */
class CORE_API FConfigFile
{
public:
	/** Reads a text over what is there: "Key=Value" sets, "+Key" adds if missing, ".Key" adds, "-Key" takes a value away, "!Key" all. */
	void CombineFromBuffer(const FString& Buffer);
	/** The same for a file; false when it cannot be read. */
	bool Combine(const FString& Filename);
	/** A text that, read over Base, gives what this file says. */
	FString ToText(const FConfigFile& Base) const;

	/** Puts a file's contents, or nothing when it cannot be read, in place of what is there. */
	void Read(const FString& Filename);
	/** All of it, in one step; false when the file cannot be written. */
	bool Write(const FString& Filename) const;

	bool GetString(const TCHAR* Section, const TCHAR* Key, FString& Value) const;
	bool GetBool(const TCHAR* Section, const TCHAR* Key, bool& Value) const;
	bool GetInt(const TCHAR* Section, const TCHAR* Key, int32& Value) const;
	bool GetInt64(const TCHAR* Section, const TCHAR* Key, int64& Value) const;
	bool GetFloat(const TCHAR* Section, const TCHAR* Key, float& Value) const;
	bool GetDouble(const TCHAR* Section, const TCHAR* Key, double& Value) const;
	/** The number of values. */
	int32 GetArray(const TCHAR* Section, const TCHAR* Key, TArray<FString>& Value) const;
	void SetString(const TCHAR* Section, const TCHAR* Key, const TCHAR* Value);
	void SetArray(const TCHAR* Section, const TCHAR* Key, const TArray<FString>& Value);
	bool Contains(const FString& Section) const { return Sections.Contains(Section); }
	bool IsEmpty() const { return Sections.IsEmpty(); }
	int32 Num() const { return Sections.Num(); }

	const FConfigSection* FindSection(const FString& Section) const { return Sections.Find(Section); }
	FConfigSection& FindOrAddSection(const FString& Section) { return Sections.FindOrAdd(Section); }

	TMap<FString, FConfigSection> Sections;
	/** Changed since it was read or written. */
	bool Dirty = false;
};

/** The program's configuration by file name. Game thread only. The file that is named is the user's layer, which Flush writes. */
class CORE_API FConfigCacheIni
{
public:
	/**
	 * Makes GConfig and loads the engine's standard names in their layers: the engine's Base.ini, its Base<Name>.ini, the project's
	 * Default<Name>.ini, and the user's <Name>.ini in the project's Saved/Config, after which the file is named.
	 */
	static void InitializeConfigSystem();
	/** Writes what has changed and unloads all. */
	static void ShutdownConfigSystem();
	/** Loads one more name in those layers and answers its file. */
	FString LoadGlobalIniFile(const FString& BaseName);
	/** The same; with bForceReload, a file that is loaded already is read anew, and what has not been flushed is lost. */
	static bool LoadGlobalIniFile(
		FString& OutFinalIniFilename, const TCHAR* BaseIniName, const TCHAR* Platform = nullptr, bool bForceReload = false);

	bool GetString(const TCHAR* Section, const TCHAR* Key, FString& Value, const FString& Filename);
	bool GetBool(const TCHAR* Section, const TCHAR* Key, bool& Value, const FString& Filename);
	bool GetInt(const TCHAR* Section, const TCHAR* Key, int32& Value, const FString& Filename);
	bool GetInt64(const TCHAR* Section, const TCHAR* Key, int64& Value, const FString& Filename);
	bool GetFloat(const TCHAR* Section, const TCHAR* Key, float& Value, const FString& Filename);
	bool GetDouble(const TCHAR* Section, const TCHAR* Key, double& Value, const FString& Filename);
	bool GetText(const TCHAR* Section, const TCHAR* Key, FText& Value, const FString& Filename);
	bool GetVector(const TCHAR* Section, const TCHAR* Key, FVector& Value, const FString& Filename);
	bool GetRotator(const TCHAR* Section, const TCHAR* Key, FRotator& Value, const FString& Filename);
	bool GetColor(const TCHAR* Section, const TCHAR* Key, FColor& Value, const FString& Filename);
	FString GetStringOrDefault(const TCHAR* Section, const TCHAR* Key, const FString& DefaultValue, const FString& Filename);
	bool GetBoolOrDefault(const TCHAR* Section, const TCHAR* Key, bool DefaultValue, const FString& Filename);
	int32 GetIntOrDefault(const TCHAR* Section, const TCHAR* Key, int32 DefaultValue, const FString& Filename);
	float GetFloatOrDefault(const TCHAR* Section, const TCHAR* Key, float DefaultValue, const FString& Filename);
	double GetDoubleOrDefault(const TCHAR* Section, const TCHAR* Key, double DefaultValue, const FString& Filename);
	/** The number of values. */
	int32 GetArray(const TCHAR* Section, const TCHAR* Key, TArray<FString>& OutArray, const FString& Filename);
	/** The values of one line, with white space between them; those with white space inside are in quotes. */
	int32 GetSingleLineArray(const TCHAR* Section, const TCHAR* Key, TArray<FString>& OutArray, const FString& Filename);
	/** "Key=Value" of every line. */
	bool GetSection(const TCHAR* Section, TArray<FString>& Result, const FString& Filename);
	bool GetSectionNames(const FString& Filename, TArray<FString>& OutSectionNames);
	bool DoesSectionExist(const TCHAR* Section, const FString& Filename);

	void SetString(const TCHAR* Section, const TCHAR* Key, const TCHAR* Value, const FString& Filename);
	void SetBool(const TCHAR* Section, const TCHAR* Key, bool Value, const FString& Filename);
	void SetInt(const TCHAR* Section, const TCHAR* Key, int32 Value, const FString& Filename);
	void SetInt64(const TCHAR* Section, const TCHAR* Key, int64 Value, const FString& Filename);
	void SetFloat(const TCHAR* Section, const TCHAR* Key, float Value, const FString& Filename);
	void SetDouble(const TCHAR* Section, const TCHAR* Key, double Value, const FString& Filename);
	void SetArray(const TCHAR* Section, const TCHAR* Key, const TArray<FString>& Value, const FString& Filename);
	void SetText(const TCHAR* Section, const TCHAR* Key, const FText& Value, const FString& Filename);
	void SetVector(const TCHAR* Section, const TCHAR* Key, const FVector& Value, const FString& Filename);
	void SetRotator(const TCHAR* Section, const TCHAR* Key, const FRotator& Value, const FString& Filename);
	void SetColor(const TCHAR* Section, const TCHAR* Key, FColor Value, const FString& Filename);
	void SetSingleLineArray(const TCHAR* Section, const TCHAR* Key, const TArray<FString>& Value, const FString& Filename);
	/** One value of a key of several; what changes nothing answers false. */
	bool AddToSection(const TCHAR* Section, FName Key, const FString& Value, const FString& Filename);
	bool AddUniqueToSection(const TCHAR* Section, FName Key, const FString& Value, const FString& Filename);
	bool RemoveFromSection(const TCHAR* Section, FName Key, const FString& Value, const FString& Filename);
	bool RemoveKey(const TCHAR* Section, const TCHAR* Key, const FString& Filename);
	bool EmptySection(const TCHAR* Section, const FString& Filename);

	/** The file, loaded if need be; a file that is not there is empty. */
	FConfigFile* Find(const FString& Filename);
	FConfigFile* FindConfigFile(const FString& Filename);
	/** Writes the changed files, or the named one, each in one step; bRemoveFromCache lets them be read anew. False if one failed. */
	bool Flush(bool bRemoveFromCache, const FString& Filename = FString());
	void UnloadFile(const FString& Filename);

private:
	/** A value that the command line put in place of others; it is not saved unless somebody changed it again. */
	struct FOverride
	{
		FString Section;
		FString Key;
		FString Value;
		TArray<FString> OldValues;
	};
	struct FLayeredFile
	{
		/** What the layers below the user's say. */
		FConfigFile Base;
		FConfigFile Merged;
		TArray<FOverride> Overrides;
	};

	FLayeredFile& Load(const FString& Filename, const TArray<FString>& BaseLayers);
	bool Write(const FString& Filename, FLayeredFile& File);
	/** Applies the command line's -ini:Name:[Section]:Key=Value,[Section]:Key=Value */
	static void Override(FLayeredFile& File, const FString& BaseName);
	/** What the file says without the command line's values. */
	static FConfigFile WithoutOverrides(const FLayeredFile& File);

	TMap<FString, TUniquePtr<FLayeredFile>> Files;
};

/** Null before InitializeConfigSystem and after ShutdownConfigSystem. */
extern CORE_API FConfigCacheIni* GConfig;
extern CORE_API FString GEngineIni;
extern CORE_API FString GGameIni;
extern CORE_API FString GInputIni;
extern CORE_API FString GEditorIni;
extern CORE_API FString GEditorSettingsIni;
extern CORE_API FString GEditorPerProjectIni;
