#pragma once

#include "CoreMinimal.h"
#include "VexelExpected.h"

/**
 * The files of the open project that the assistant may read: below Source, Config and Shaders of the project and of its plug-ins, and
 * their descriptors. Paths are relative to the project's folder, with slashes. Any thread.
 */
class FVexelProjectFiles
{
public:
	/** Of the project that is open. Game thread. */
	FVexelProjectFiles();

	/**
	 * Where a file is on disk. "Invalid input" for a path that is none of those above in exactly this spelling, that leads through a
	 * symbolic link, or where there is no file.
	 */
	TVexelExpected<FString> Resolve(const FString& Path) const;

	/** The files below folders of that name ("Config") of the project and its plug-ins, in order. Hidden ones and links are left out. */
	TArray<FString> List(const TCHAR* FolderName) const;

private:
	void ListBelow(const FString& Folder, TArray<FString>& OutPaths) const;

	FString ProjectDir;
	/** Below the project's folder. */
	TArray<FString> PluginFolders;
};
