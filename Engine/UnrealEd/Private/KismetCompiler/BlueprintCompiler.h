#pragma once

#include "CoreMinimal.h"

class FCompilerResultsLog;
class UBlueprint;

/**
 * Compiles one Blueprint: checks it, rebuilds its classes, sets its status and marks its nodes. Blueprints that use members which the
 * compile changed are refreshed and compiled after it. Game thread.
 */
class FBlueprintCompiler
{
public:
	FBlueprintCompiler(UBlueprint& InBlueprint, FCompilerResultsLog& InLog)
		: Blueprint(InBlueprint)
		, Log(InLog)
	{
	}

	void Compile();

private:
	void CompileDirtyParents();
	void ClearMarks();
	void CheckAndBuild();
	void SetStatus();
	void CompileDependents();

	UBlueprint& Blueprint;
	FCompilerResultsLog& Log;
};
