#pragma once

#include "CoreMinimal.h"

class FJsonObject;

namespace EHostType
{
/** What kinds of program a module is for. */
enum Type : int
{
	Runtime,
	RuntimeNoCommandlet,
	RuntimeAndProgram,
	CookedOnly,
	UncookedOnly,
	Developer,
	DeveloperTool,
	Editor,
	EditorNoCommandlet,
	EditorAndProgram,
	Program,
	ServerOnly,
	ClientOnly,
	ClientOnlyNoCommandlet,
	Max
};

/** Max for a text that names none; case does not matter. */
PROJECTS_API EHostType::Type FromString(const TCHAR* Text);
PROJECTS_API const TCHAR* ToString(EHostType::Type Value);
}

namespace ELoadingPhase
{
/** When a module is loaded. */
enum Type : int
{
	EarliestPossible,
	PostConfigInit,
	PostSplashScreen,
	PreEarlyLoadingScreen,
	PreLoadingScreen,
	PreDefault,
	Default,
	PostDefault,
	PostEngineInit,
	None,
	Max
};

/** Max for a text that names none; case does not matter. */
PROJECTS_API ELoadingPhase::Type FromString(const TCHAR* Text);
PROJECTS_API const TCHAR* ToString(ELoadingPhase::Type Value);
}

/** One C++ module of a project or a plug-in, as its descriptor file names it. */
struct PROJECTS_API FModuleDescriptor
{
	FName Name;
	EHostType::Type Type = EHostType::Runtime;
	ELoadingPhase::Type LoadingPhase = ELoadingPhase::Default;
	TArray<FString> AdditionalDependencies;

	bool Read(const FJsonObject& Object, FText& OutFailReason);

	/** Reads an array field; a missing one is an empty one. */
	static bool ReadArray(const FJsonObject& Object, const TCHAR* Name, TArray<FModuleDescriptor>& OutModules, FText& OutFailReason);
};
