#pragma once

#include "Containers/UnrealString.h"
#include "CoreTypes.h"

class FText;

/** Paths as text, with '/' between their parts, and the folders of the engine and of the open project. */
class CORE_API FPaths
{
public:
	/** The set functions are the program's to call, once, before other threads ask; folders are answered with a slash at their ends. */
	static void SetProjectFilePath(const FString& NewGameProjectFilePath);
	static FString GetProjectFilePath();
	static bool IsProjectFilePathSet();
	/** Where the headless editor's own content and configuration are. Ours, not the engine's. */
	static void SetEngineDir(const FString& Dir);
	/** Puts another folder in place of the project's Saved; empty goes back to it. For tests; ours, not the engine's. */
	static void SetProjectSavedDir(const FString& Dir);

	static FString RootDir();
	static FString EngineDir();
	static FString EngineContentDir() { return EngineDir() + TEXT("Content/"); }
	static FString EngineConfigDir() { return EngineDir() + TEXT("Config/"); }
	static FString EnginePluginsDir() { return EngineDir() + TEXT("Plugins/"); }
	static FString EngineSavedDir() { return EngineDir() + TEXT("Saved/"); }
	static FString EngineIntermediateDir() { return EngineDir() + TEXT("Intermediate/"); }
	static FString EngineSourceDir() { return EngineDir() + TEXT("Source/"); }
	static FString EngineUserDir() { return EngineDir(); }
	static FString GameAgnosticSavedDir() { return EngineSavedDir(); }
	/** The folder of the program. */
	static FString LaunchDir();
	/** The folder of the project's file; the current folder when no project is open. */
	static FString ProjectDir();
	static FString ProjectContentDir() { return ProjectDir() + TEXT("Content/"); }
	static FString ProjectConfigDir() { return ProjectDir() + TEXT("Config/"); }
	static FString ProjectSavedDir();
	static FString ProjectIntermediateDir() { return ProjectDir() + TEXT("Intermediate/"); }
	static FString ProjectPluginsDir() { return ProjectDir() + TEXT("Plugins/"); }
	static FString ProjectLogDir() { return ProjectSavedDir() + TEXT("Logs/"); }
	static FString ProjectUserDir() { return ProjectDir(); }
	static FString AutomationDir() { return ProjectSavedDir() + TEXT("Automation/"); }
	static FString AutomationTransientDir() { return AutomationDir() + TEXT("Transient/"); }
	static FString BugItDir() { return ProjectSavedDir() + TEXT("BugIt/"); }
	static FString CloudDir() { return ProjectSavedDir() + TEXT("Cloud/"); }
	static FString DiffDir() { return ProjectSavedDir() + TEXT("Diff/"); }
	static FString ProfilingDir() { return ProjectSavedDir() + TEXT("Profiling/"); }
	static FString VideoCaptureDir() { return ProjectSavedDir() + TEXT("VideoCaptures/"); }
	static FString ScreenShotDir() { return ProjectSavedDir() + TEXT("Screenshots/"); }
	static FString GeneratedConfigDir() { return ProjectSavedDir() + TEXT("Config/"); }
	static FString SourceConfigDir() { return ProjectConfigDir(); }
	static FString GameSourceDir() { return ProjectDir() + TEXT("Source/"); }

	/** "uasset" of "/A/B.uasset"; with the dot if asked. */
	static FString GetExtension(const FString& InPath, bool bIncludeDot = false);
	/** "B.uasset" of "/A/B.uasset". */
	static FString GetCleanFilename(const FString& InPath);
	/** "B" of "/A/B.uasset"; with bRemovePath false, "/A/B". */
	static FString GetBaseFilename(const FString& InPath, bool bRemovePath = true);
	/** "/A" of "/A/B.uasset". */
	static FString GetPath(const FString& InPath);
	/** "B" of "/A/B/". */
	static FString GetPathLeaf(const FString& InPath);
	/** Only a path that has an extension gets the new one. */
	static FString ChangeExtension(const FString& InPath, const FString& InNewExtension);
	static FString SetExtension(const FString& InPath, const FString& InNewExtension);

	static bool FileExists(const FString& InPath);
	static bool DirectoryExists(const FString& InPath);
	static bool IsRelative(const FString& InPath);
	static bool IsDrive(const FString& InPath);
	static bool IsSamePath(const FString& PathA, const FString& PathB);
	/** Whether the first path is the second or below it; both are made full first. */
	static bool IsUnderDirectory(const FString& InPath, const FString& InDirectory);

	/** Turns backslashes into slashes. */
	static void NormalizeFilename(FString& InPath);
	/** The same, without a slash at the end. */
	static void NormalizeDirectoryName(FString& InPath);
	/** Resolves "." and ".."; false, with the path unchanged, when it climbs above its root. */
	static bool CollapseRelativeDirectories(FString& InPath);
	static void RemoveDuplicateSlashes(FString& InPath);
	static void MakeStandardFilename(FString& InPath);
	static void MakePlatformFilename(FString& InPath) { NormalizeFilename(InPath); }
	/** Makes the path relative to the folder of the other, which names a folder only with a slash at its end. */
	static bool MakePathRelativeTo(FString& InPath, const TCHAR* InRelativeTo);
	static FString ConvertRelativePathToFull(const FString& InPath);
	static FString ConvertRelativePathToFull(const FString& BasePath, const FString& InPath);

	static void Split(const FString& InPath, FString& PathPart, FString& FilenamePart, FString& ExtensionPart);
	/** A file name beside the others that does not exist yet: "Prefix0001.ext". */
	static FString CreateTempFilename(const TCHAR* Path, const TCHAR* Prefix = TEXT(""), const TCHAR* Extension = TEXT(".tmp"));
	/** What no file name should hold on any system. */
	static FString GetInvalidFileSystemChars();
	/** Replaces what a file name must not hold. */
	static FString MakeValidFileName(const FString& InString, TCHAR InReplacementChar = 0);
	static bool ValidatePath(const FString& InPath, FText* OutReason = nullptr);

	template <class... PathTypes>
	static FString Combine(const PathTypes&... InPaths)
	{
		FString Result;
		(AppendPart(Result, FString(InPaths)), ...);
		return Result;
	}

private:
	static void AppendPart(FString& Path, const FString& Part);
};
