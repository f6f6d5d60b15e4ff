// Package: /Script/Engine
#pragma once

#include "Kismet/BlueprintFunctionLibrary.h"
#include "BlueprintPathsLibrary.generated.h"

/** Files and folders by their paths. */
UCLASS(meta = (BlueprintThreadSafe))
class ENGINE_API UBlueprintPathsLibrary : public UBlueprintFunctionLibrary
{
	GENERATED_BODY()

public:
	/** True if files are saved in the user's folder. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Paths")
	static bool ShouldSaveToUserDir();

	/** Folder that the program was begun in. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Paths")
	static FString LaunchDir();

	/** Folder of the engine. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Paths")
	static FString EngineDir();

	/** Folder of the engine's files of the user. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Paths")
	static FString EngineUserDir();

	/** Folder of the user's files of all engine versions. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Paths")
	static FString EngineVersionAgnosticUserDir();

	/** Folder of the engine's content. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Paths")
	static FString EngineContentDir();

	/** Folder of the engine's settings. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Paths")
	static FString EngineConfigDir();

	/** Folder of the engine's files between steps. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Paths")
	static FString EngineIntermediateDir();

	/** Folder of the engine's saved files. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Paths")
	static FString EngineSavedDir();

	/** Folder of the engine's plug-ins. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Paths")
	static FString EnginePluginsDir();

	/** Folder above the engine's. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Paths")
	static FString RootDir();

	/** Folder of the project. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Paths")
	static FString ProjectDir();

	/** Folder of the project's files of the user. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Paths")
	static FString ProjectUserDir();

	/** Folder of the project's content. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Paths")
	static FString ProjectContentDir();

	/** Folder of the project's settings. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Paths")
	static FString ProjectConfigDir();

	/** Folder of the project's saved files. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Paths")
	static FString ProjectSavedDir();

	/** Folder of the project's files between steps. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Paths")
	static FString ProjectIntermediateDir();

	/** Folder of the project's plug-ins. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Paths")
	static FString ProjectPluginsDir();

	/** Folder of the project's mods. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Paths")
	static FString ProjectModsDir();

	/** True if there is a folder for downloads that stay. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Paths")
	static bool HasProjectPersistentDownloadDir();

	/** Folder for downloads that stay. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Paths")
	static FString ProjectPersistentDownloadDir();

	/** Folder of the settings before they are merged. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Paths")
	static FString SourceConfigDir();

	/** Folder of the settings that are written. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Paths")
	static FString GeneratedConfigDir();

	/** Folder of sandboxes. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Paths")
	static FString SandboxesDir();

	/** Folder of profiles. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Paths")
	static FString ProfilingDir();

	/** Folder of pictures of the screen. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Paths")
	static FString ScreenShotDir();

	/** Folder of bug reports. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Paths")
	static FString BugItDir();

	/** Folder of films. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Paths")
	static FString VideoCaptureDir();

	/** Folder of logs. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Paths")
	static FString ProjectLogDir();

	/** Folder of automatic tests. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Paths")
	static FString AutomationDir();

	/** Folder of short-lived files of automatic tests. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Paths")
	static FString AutomationTransientDir();

	/** Folder of logs of automatic tests. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Paths")
	static FString AutomationLogDir();

	/** Folder of the cloud's files. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Paths")
	static FString CloudDir();

	/** Folder of the developers. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Paths")
	static FString GameDevelopersDir();

	/** Folder of this developer. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Paths")
	static FString GameUserDeveloperDir();

	/** Folder of differences. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Paths")
	static FString DiffDir();

	/** Folders of the engine's translations. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Paths")
	static const TArray<FString>& GetEngineLocalizationPaths();

	/** Folders of the editor's translations. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Paths")
	static const TArray<FString>& GetEditorLocalizationPaths();

	/** Folders of the translations of property names. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Paths")
	static const TArray<FString>& GetPropertyNameLocalizationPaths();

	/** Folders of the translations of tool tips. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Paths")
	static const TArray<FString>& GetToolTipLocalizationPaths();

	/** Folders of the game's translations. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Paths")
	static const TArray<FString>& GetGameLocalizationPaths();

	/** Folder names that are not shipped. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Paths")
	static const TArray<FString>& GetRestrictedFolderNames();

	/** Folder of saved files of all games. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Paths")
	static FString GameAgnosticSavedDir();

	/** Folder of the engine's source. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Paths")
	static FString EngineSourceDir();

	/** Folder of the game's source. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Paths")
	static FString GameSourceDir();

	/** Folder of feature packs. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Paths")
	static FString FeaturePackDir();

	/** True if the project's file is known. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Paths")
	static bool IsProjectFilePathSet();

	/** The project's file. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Paths")
	static FString GetProjectFilePath();

	/** Sets the project's file. */
	UFUNCTION(BlueprintCallable, Category = "Utilities|Paths")
	static void SetProjectFilePath(const FString& NewGameProjectFilePath);

	/** What follows the last dot. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Paths")
	static FString GetExtension(const FString& InPath, bool bIncludeDot = false);

	/** The file's name without its folder. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Paths")
	static FString GetCleanFilename(const FString& InPath);

	/** The file's name without its extension. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Paths")
	static FString GetBaseFilename(const FString& InPath, bool bRemovePath = true);

	/** The file's folder. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Paths")
	static FString GetPath(const FString& InPath);

	/** The path with another extension. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Paths")
	static FString ChangeExtension(const FString& InPath, const FString& InNewExtension);

	/** The path with an extension, if it has none. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Paths")
	static FString SetExtension(const FString& InPath, const FString& InNewExtension);

	/** True if the file is there. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Paths")
	static bool FileExists(const FString& InPath);

	/** True if the folder is there. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Paths")
	static bool DirectoryExists(const FString& InPath);

	/** True if the path is a drive. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Paths")
	static bool IsDrive(const FString& InPath);

	/** True if the path does not begin at a root. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Paths")
	static bool IsRelative(const FString& InPath);

	/** The path with plain slashes. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Paths")
	static void NormalizeFilename(const FString& InPath, FString& OutPath);

	/** True if both paths are of one file. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Paths")
	static bool IsSamePath(const FString& PathA, const FString& PathB);

	/** The folder with plain slashes and none at its end. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Paths")
	static void NormalizeDirectoryName(const FString& InPath, FString& OutPath);

	/** The path without parts that lead up. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Paths")
	static bool CollapseRelativeDirectories(const FString& InPath, FString& OutPath);

	/** The path with single slashes. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Paths")
	static FString RemoveDuplicateSlashes(const FString& InPath);

	/** The path as the engine writes it. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Paths")
	static FString MakeStandardFilename(const FString& InPath);

	/** The path as the machine writes it. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Paths")
	static void MakePlatformFilename(const FString& InPath, FString& OutPath);

	/** The path from a folder. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Paths")
	static bool MakePathRelativeTo(const FString& InPath, const FString& InRelativeTo, FString& OutPath);

	/** The whole path. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Paths")
	static FString ConvertRelativePathToFull(const FString& InPath, const FString& InBasePath = TEXT(""));

	/** The path in a sandbox. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Paths")
	static FString ConvertToSandboxPath(const FString& InPath, const FString& InSandboxName);

	/** The path outside a sandbox. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Paths")
	static FString ConvertFromSandboxPath(const FString& InPath, const FString& InSandboxName);

	/** A file name that nobody has. */
	UFUNCTION(BlueprintCallable, Category = "Utilities|Paths")
	static FString CreateTempFilename(const FString& Path, const FString& Prefix = TEXT(""), const FString& Extension = TEXT(".tmp"));

	/** Characters that no file name has. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Paths")
	static FString GetInvalidFileSystemChars();

	/** The text as a file name. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Paths")
	static FString MakeValidFileName(const FString& InString, const FString& InReplacementChar = TEXT(""));

	/** Whether a path can be, and why not. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Paths")
	static void ValidatePath(const FString& InPath, bool& bDidSucceed, FText& OutReason);

	/** Folder, name and extension. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Paths")
	static void Split(const FString& InPath, FString& PathPart, FString& FilenamePart, FString& ExtensionPart);

	/** The paths joined by slashes. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Paths")
	static FString Combine(const TArray<FString>& InPaths);
};
