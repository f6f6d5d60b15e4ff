#pragma once

#include "CoreMinimal.h"

class FCompilerResultsLog;
class UBlueprint;

/** Finds what is wrong with a Blueprint as a whole and with each of its graphs. Its skeleton class must be up to date. */
class FBlueprintValidator
{
public:
	FBlueprintValidator(const UBlueprint& InBlueprint, FCompilerResultsLog& InLog)
		: Blueprint(InBlueprint)
		, Log(InLog)
	{
	}

	/** Whether the Blueprint can be given a class at all. Says why not. */
	bool ValidateParent() const;
	void Validate() const;

private:
	void ValidateVariables() const;
	void ValidateNames() const;
	void ValidateInterfaces() const;
	void ValidateOverrides() const;
	void ValidateComponents() const;
	void ValidateGraphs() const;

	const UBlueprint& Blueprint;
	FCompilerResultsLog& Log;
};
