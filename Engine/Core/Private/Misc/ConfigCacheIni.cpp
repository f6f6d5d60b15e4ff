#include "Misc/ConfigCacheIni.h"

#include "CoreGlobals.h"
#include "HAL/FileManager.h"
#include "Misc/AtomicFile.h"
#include "Misc/CommandLine.h"
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
	Override(*Files.FindChecked(Filename), BaseName);
	return Filename;
}

bool FConfigCacheIni::LoadGlobalIniFile(FString& OutFinalIniFilename, const TCHAR* BaseIniName, const TCHAR* Platform, bool bForceReload)
{
	checkf(GConfig != nullptr, TEXT("LoadGlobalIniFile before InitializeConfigSystem"));
	OutFinalIniFilename = FPaths::GeneratedConfigDir() + BaseIniName + TEXT(".ini");
	if (bForceReload || GConfig->FindConfigFile(OutFinalIniFilename) == nullptr)
	{
		GConfig->LoadGlobalIniFile(FString(BaseIniName));
	}
	return true;
}

void FConfigCacheIni::Override(FLayeredFile& File, const FString& BaseName)
{
	TArray<FString> Tokens;
	TArray<FString> Switches;
	FCommandLine::Parse(FCommandLine::Get(), Tokens, Switches);
	const FString Prefix = TEXT("ini:") + BaseName + TEXT(":[");
	for (FString& Switch : Switches)
	{
		if (!Switch.RemoveFromStart(Prefix))
		{
			continue;
		}
		TArray<FString> Settings;
		Switch.ParseIntoArray(Settings, TEXT(",["));
		for (const FString& Setting : Settings)
		{
			FOverride Added;
			FString Assignment;
			if (!Setting.Split(TEXT("]:"), &Added.Section, &Assignment) || !Assignment.Split(TEXT("="), &Added.Key, &Added.Value))
			{
				UE_LOG(LogCore, Warning, TEXT("The command line's setting [%s was not understood"), *Setting);
				continue;
			}
			File.Merged.GetArray(*Added.Section, *Added.Key, Added.OldValues);
			File.Merged.SetString(*Added.Section, *Added.Key, *Added.Value);
			File.Overrides.Add(MoveTemp(Added));
		}
	}
	File.Merged.Dirty = false;
}

FConfigFile FConfigCacheIni::WithoutOverrides(const FLayeredFile& File)
{
	FConfigFile Result = File.Merged;
	// The last one first, since a key may have been set twice.
	for (int32 Index = File.Overrides.Num() - 1; Index >= 0; --Index)
	{
		const FOverride& Override = File.Overrides[Index];
		TArray<FString> Values;
		Result.GetArray(*Override.Section, *Override.Key, Values);
		if (Values.Num() == 1 && Values[0].Equals(Override.Value))
		{
			Result.SetArray(*Override.Section, *Override.Key, Override.OldValues);
		}
	}
	return Result;
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
	if (!UE::SaveFileAtomically(Filename, WithoutOverrides(File).ToText(File.Base), Error))
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
