#include "Tools/VexelProjectFiles.h"

#include "HAL/FileManager.h"
#include "HAL/PlatformFileManager.h"
#include "Interfaces/IPluginManager.h"
#include "Misc/Paths.h"
#include "VexelErrorKinds.h"

namespace
{
constexpr int32 MaxPathLength = 1024;
const TCHAR* const ReadableFolders[] = {TEXT("Source"), TEXT("Config"), TEXT("Shaders")};
/** Folders of a plug-in whose own Source folders, if any, are no sources. */
const TCHAR* const ClosedFolders[] = {TEXT("Content"), TEXT("Saved"), TEXT("Intermediate"), TEXT("Binaries")};

constexpr FStringView ForbiddenCharacters = TEXT("\\:*?\"<>|");

bool IsOneOf(const FString& Name, TConstArrayView<const TCHAR*> Names)
{
	return Names.ContainsByPredicate([&Name](const TCHAR* Each)
		{ return Name.Equals(Each, ESearchCase::CaseSensitive); });
}

/** A name that means on every system the file that it says: no parent, stream, device, hidden file or ending that some system drops. */
bool IsPlainName(const FString& Name)
{
	if (Name.IsEmpty() || Name.StartsWith(TEXT(".")) || Name.EndsWith(TEXT(".")) || Name.EndsWith(TEXT(" ")))
	{
		return false;
	}
	for (const TCHAR Character : Name)
	{
		int32 Place = INDEX_NONE;
		if (Character < 0x20 || Character == 0x7F || ForbiddenCharacters.FindChar(Character, Place))
		{
			return false;
		}
	}
	return true;
}

/** "Plugins/Weather/Rain/Source/Rain/Drop.h", "Plugins/Weather/Rain/Rain.uplugin" */
bool IsReadableInPlugin(const TArray<FString>& Names)
{
	const int32 NumFolders = Names.Num() - 1;
	for (int32 Index = 1; Index < NumFolders; ++Index)
	{
		if (IsOneOf(Names[Index], ClosedFolders))
		{
			return false;
		}
		// "Plugins/Source" is a plug-in of that name.
		if (Index > 1 && IsOneOf(Names[Index], ReadableFolders))
		{
			return true;
		}
	}
	return NumFolders > 1 && Names.Last().EndsWith(TEXT(".uplugin"), ESearchCase::CaseSensitive);
}

bool IsReadable(const TArray<FString>& Names)
{
	if (Names.Num() == 1)
	{
		return Names[0].EndsWith(TEXT(".uproject"), ESearchCase::CaseSensitive);
	}
	return IsOneOf(Names[0], ReadableFolders) || (Names[0].Equals(TEXT("Plugins"), ESearchCase::CaseSensitive) && IsReadableInPlugin(Names));
}

bool IsLink(const FString& Path)
{
	return FPlatformFileManager::Get().GetPlatformFile().IsSymlink(*Path) == ESymlinkResult::Symlink;
}
}

FVexelProjectFiles::FVexelProjectFiles()
	: ProjectDir(FPaths::ConvertRelativePathToFull(FPaths::ProjectDir()))
{
	for (const TSharedRef<IPlugin>& Plugin : IPluginManager::Get().GetDiscoveredPlugins())
	{
		FString Folder = FPaths::ConvertRelativePathToFull(Plugin->GetBaseDir());
		if (FPaths::MakePathRelativeTo(Folder, *ProjectDir))
		{
			PluginFolders.Add(Folder);
		}
	}
}

TVexelExpected<FString> FVexelProjectFiles::Resolve(const FString& Path) const
{
	TArray<FString> Names;
	Path.ParseIntoArray(Names, TEXT("/"), false);
	if (Path.IsEmpty() || Path.Len() > MaxPathLength || Names.ContainsByPredicate([](const FString& Name)
															{ return !IsPlainName(Name); }))
	{
		return VEXEL_ERROR(FVexelError_ToolInvalidInput,
			"'%s' is not a path below the project's folder: it must be like 'Source/Game/Door.h'", *Path.Left(MaxPathLength));
	}
	if (!IsReadable(Names))
	{
		return VEXEL_ERROR(FVexelError_ToolInvalidInput,
			"'%s' is not a source or configuration file: those are below Source, Config and Shaders of the project and of its plug-ins", *Path);
	}
	FString File = ProjectDir;
	for (const FString& Name : Names)
	{
		File /= Name;
		if (IsLink(File))
		{
			return VEXEL_ERROR(FVexelError_ToolInvalidInput, "'%s' leads through a symbolic link, and links are not followed", *Path);
		}
	}
	if (!IFileManager::Get().FileExists(*File))
	{
		return VEXEL_ERROR(FVexelError_ToolInvalidInput, "There is no file '%s' in the project", *Path);
	}
	return File;
}

TArray<FString> FVexelProjectFiles::List(const TCHAR* FolderName) const
{
	TArray<FString> Paths;
	ListBelow(FolderName, Paths);
	for (const FString& PluginFolder : PluginFolders)
	{
		ListBelow(PluginFolder / FolderName, Paths);
	}
	Paths.Sort();
	return Paths;
}

void FVexelProjectFiles::ListBelow(const FString& Folder, TArray<FString>& OutPaths) const
{
	const FString FullFolder = ProjectDir / Folder;
	if (IsLink(FullFolder))
	{
		return;
	}
	IFileManager::Get().IterateDirectory(*FullFolder, [&](const TCHAR* Entry, bool bIsDirectory)
		{
			const FString Name = FPaths::GetCleanFilename(Entry);
			if (IsPlainName(Name) && bIsDirectory)
			{
				ListBelow(Folder / Name, OutPaths);
			}
			else if (IsPlainName(Name) && !IsLink(Entry))
			{
				OutPaths.Add(Folder / Name);
			}
			return true; });
}
