#pragma once

#include "CoreMinimal.h"

class UBlueprint;
class UEdGraph;

/**
 * The macros that every Blueprint has: loops, gates, checks. They are graphs of a macro library of this host's own making, at
 * the path under which the engine keeps its library, so that node text and packages of the editor find them. Game thread.
 */
class BLUEPRINTGRAPH_API FStandardMacros
{
public:
	/** Makes the library, or answers the one that was made before. Native types and the script API must be loaded. */
	static UBlueprint* Create();
	/** The macro's graph ("ForEachLoop"); null when there is none of the name or the library was not made. */
	static UEdGraph* Find(FName MacroName);
};
