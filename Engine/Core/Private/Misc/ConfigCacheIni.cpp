#include "Misc/ConfigCacheIni.h"

#include "CoreGlobals.h"
#include "HAL/FileManager.h"
#include "Misc/AtomicFile.h"
#include "Misc/CString.h"
#include "Misc/Paths.h"

FConfigCacheIni* GConfig = nullptr;
FString GEngineIni;
FString GGameIni;
FString GInputIni;
FString GEditorIni;
FString GEditorSettingsIni;
FString GEditorPerProjectIni;

namespace
{
struct FStandardIni
{
	const TCHAR* BaseName;
	FString* Filename;
};

const FStandardIni StandardInis[] = {
	{TEXT("Engine"), &GEngineIni},
	{TEXT("Game"), &GGameIni},
	{TEXT("Input"), &GInputIni},
	{TEXT("Editor"), &GEditorIni},
	{TEXT("EditorSettings"), &GEditorSettingsIni},
	{TEXT("EditorPerProjectUserSettings"), &GEditorPerProjectIni},
};
}

void FConfigCacheIni::InitializeConfigSystem()
{
	ShutdownConfigSystem();
	GConfig = new FConfigCacheIni;
	for (const FStandardIni& Ini : StandardInis)
	{
		*Ini.Filename = GConfig->LoadGlobalIniFile(Ini.BaseName);
	}
}

void FConfigCacheIni::ShutdownConfigSystem()
{
	if (GConfig != nullptr)
	{
		GConfig->Flush(false);
		delete GConfig;
		GConfig = nullptr;
	}
}

FString FConfigCacheIni::LoadGlobalIniFile(const FString& BaseName)
{
	const FString Filename = FPaths::GeneratedConfigDir() + BaseName + TEXT(".ini");
	Load(Filename,
		{FPaths::EngineConfigDir() + TEXT("Base.ini"), FPaths::EngineConfigDir() + TEXT("Base") + BaseName + TEXT(".ini"),
			FPaths::ProjectConfigDir() + TEXT("Default") + BaseName + TEXT(".ini")});
	return Filename;
}

FConfigCacheIni::FLayeredFile& FConfigCacheIni::Load(const FString& Filename, const TArray<FString>& BaseLayers)
{
	TUniquePtr<FLayeredFile> File = MakeUnique<FLayeredFile>();
	for (const FString& Layer : BaseLayers)
	{
		File->Base.Combine(Layer);
	}
	File->Merged = File->Base;
	File->Merged.Combine(Filename);
	FLayeredFile& Result = *File;
	Files.Add(Filename, MoveTemp(File));
	return Result;
}

FConfigFile* FConfigCacheIni::FindConfigFile(const FString& Filename)
{
	TUniquePtr<FLayeredFile>* const File = Files.Find(Filename);
	return File != nullptr ? &(*File)->Merged : nullptr;
}

FConfigFile* FConfigCacheIni::Find(const FString& Filename)
{
	FConfigFile* const File = FindConfigFile(Filename);
	return File != nullptr ? File : &Load(Filename, {}).Merged;
}

bool FConfigCacheIni::Write(const FString& Filename, FLayeredFile& File)
{
	if (!File.Merged.Dirty)
	{
		return true;
	}
	FString Error;
	IFileManager::Get().MakeDirectory(*FPaths::GetPath(Filename), true);
	if (!UE::SaveFileAtomically(Filename, File.Merged.ToText(File.Base), Error))
	{
		UE_LOG(LogCore, Error, TEXT("Configuration was not saved: %s"), *Error);
		return false;
	}
	File.Merged.Dirty = false;
	return true;
}

bool FConfigCacheIni::Flush(bool bRemoveFromCache, const FString& Filename)
{
	bool bAllWritten = true;
	TArray<FString> Done;
	for (const TPair<FString, TUniquePtr<FLayeredFile>>& Pair : Files)
	{
		if (Filename.IsEmpty() || Pair.Key == Filename)
		{
			bAllWritten = Write(Pair.Key, *Pair.Value) && bAllWritten;
			Done.Add(Pair.Key);
		}
	}
	for (const FString& Name : Done)
	{
		if (bRemoveFromCache)
		{
			Files.Remove(Name);
		}
	}
	return bAllWritten;
}

void FConfigCacheIni::UnloadFile(const FString& Filename)
{
	Files.Remove(Filename);
}

bool FConfigCacheIni::GetString(const TCHAR* Section, const TCHAR* Key, FString& Value, const FString& Filename)
{
	const FConfigSection* const Found = Find(Filename)->FindSection(Section);
	const FString* const Text = Found != nullptr ? Found->Find(Key) : nullptr;
	if (Text == nullptr)
	{
		return false;
	}
	Value = *Text;
	return true;
}

bool FConfigCacheIni::GetBool(const TCHAR* Section, const TCHAR* Key, bool& Value, const FString& Filename)
{
	FString Text;
	const bool bFound = GetString(Section, Key, Text, Filename);
	Value = bFound ? Text.ToBool() : Value;
	return bFound;
}

bool FConfigCacheIni::GetInt(const TCHAR* Section, const TCHAR* Key, int32& Value, const FString& Filename)
{
	FString Text;
	const bool bFound = GetString(Section, Key, Text, Filename);
	Value = bFound ? FCString::Atoi(*Text) : Value;
	return bFound;
}

bool FConfigCacheIni::GetInt64(const TCHAR* Section, const TCHAR* Key, int64& Value, const FString& Filename)
{
	FString Text;
	const bool bFound = GetString(Section, Key, Text, Filename);
	Value = bFound ? FCString::Atoi64(*Text) : Value;
	return bFound;
}

bool FConfigCacheIni::GetFloat(const TCHAR* Section, const TCHAR* Key, float& Value, const FString& Filename)
{
	FString Text;
	const bool bFound = GetString(Section, Key, Text, Filename);
	Value = bFound ? FCString::Atof(*Text) : Value;
	return bFound;
}

bool FConfigCacheIni::GetDouble(const TCHAR* Section, const TCHAR* Key, double& Value, const FString& Filename)
{
	FString Text;
	const bool bFound = GetString(Section, Key, Text, Filename);
	Value = bFound ? FCString::Atod(*Text) : Value;
	return bFound;
}

int32 FConfigCacheIni::GetArray(const TCHAR* Section, const TCHAR* Key, TArray<FString>& OutArray, const FString& Filename)
{
	OutArray.Reset();
	if (const FConfigSection* const Found = Find(Filename)->FindSection(Section))
	{
		Found->MultiFind(Key, OutArray);
	}
	return OutArray.Num();
}

bool FConfigCacheIni::GetSection(const TCHAR* Section, TArray<FString>& Result, const FString& Filename)
{
	Result.Reset();
	const FConfigSection* const Found = Find(Filename)->FindSection(Section);
	if (Found == nullptr)
	{
		return false;
	}
	for (const FConfigSection::FEntry& Entry : Found->Entries)
	{
		Result.Add(Entry.Key + TEXT("=") + Entry.Value);
	}
	return true;
}

bool FConfigCacheIni::GetSectionNames(const FString& Filename, TArray<FString>& OutSectionNames)
{
	OutSectionNames.Reset();
	for (const TPair<FString, FConfigSection>& Pair : Find(Filename)->Sections)
	{
		OutSectionNames.Add(Pair.Key);
	}
	return !OutSectionNames.IsEmpty();
}

bool FConfigCacheIni::DoesSectionExist(const TCHAR* Section, const FString& Filename)
{
	return Find(Filename)->FindSection(Section) != nullptr;
}

void FConfigCacheIni::SetString(const TCHAR* Section, const TCHAR* Key, const TCHAR* Value, const FString& Filename)
{
	SetArray(Section, Key, {FString(Value)}, Filename);
}

void FConfigCacheIni::SetBool(const TCHAR* Section, const TCHAR* Key, bool Value, const FString& Filename)
{
	SetString(Section, Key, Value ? TEXT("True") : TEXT("False"), Filename);
}

void FConfigCacheIni::SetInt(const TCHAR* Section, const TCHAR* Key, int32 Value, const FString& Filename)
{
	SetString(Section, Key, *FString::Printf(TEXT("%d"), Value), Filename);
}

void FConfigCacheIni::SetInt64(const TCHAR* Section, const TCHAR* Key, int64 Value, const FString& Filename)
{
	SetString(Section, Key, *FString::Printf(TEXT("%lld"), Value), Filename);
}

void FConfigCacheIni::SetFloat(const TCHAR* Section, const TCHAR* Key, float Value, const FString& Filename)
{
	SetString(Section, Key, *FString::Printf(TEXT("%f"), Value), Filename);
}

void FConfigCacheIni::SetDouble(const TCHAR* Section, const TCHAR* Key, double Value, const FString& Filename)
{
	SetString(Section, Key, *FString::Printf(TEXT("%f"), Value), Filename);
}

void FConfigCacheIni::SetArray(const TCHAR* Section, const TCHAR* Key, const TArray<FString>& Value, const FString& Filename)
{
	FConfigFile* const File = Find(Filename);
	FConfigSection& Target = File->FindOrAddSection(Section);
	if (Value.Num() == 1)
	{
		Target.Set(Key, Value[0]);
	}
	else
	{
		Target.Remove(Key);
		for (const FString& Item : Value)
		{
			Target.Add(Key, Item);
		}
	}
	File->Dirty = true;
}

bool FConfigCacheIni::RemoveKey(const TCHAR* Section, const TCHAR* Key, const FString& Filename)
{
	FConfigFile* const File = Find(Filename);
	FConfigSection* const Found = File->Sections.Find(Section);
	const bool bRemoved = Found != nullptr && Found->Remove(Key) > 0;
	File->Dirty = File->Dirty || bRemoved;
	return bRemoved;
}

bool FConfigCacheIni::EmptySection(const TCHAR* Section, const FString& Filename)
{
	FConfigFile* const File = Find(Filename);
	const bool bRemoved = File->Sections.Remove(Section) > 0;
	File->Dirty = File->Dirty || bRemoved;
	return bRemoved;
}
