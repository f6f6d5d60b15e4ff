#pragma once

#include "CoreMinimal.h"

/**
 * Makes reflection types of declaration-only headers: the classes, structs, enums and functions that Blueprints may use and
 * that have no C++ in this host. A header may also add functions and properties to a native class. Game thread; call it before
 * ProcessNewlyLoadedUObjects(), which makes default objects: a class that has one takes no more properties. The engine has
 * nothing like it.
 */
namespace UE::CoreUObject
{
struct FScriptHeaderReport
{
	int32 NumHeaders = 0;
	int32 NumClasses = 0;
	int32 NumExtendedClasses = 0;
	int32 NumStructs = 0;
	int32 NumEnums = 0;
	int32 NumFunctions = 0;
	/** "path:line:column: error: what". A declaration with an error is left out; the rest is made. */
	TArray<FString> Errors;
};

/** A header in memory. */
struct FScriptHeaderSource
{
	/** For error texts. */
	FString Path;
	/** UTF-8. */
	TArray<uint8> Text;
};

/**
 * Reads every header below the directory, in the order of their paths, and DefaultSubobjects.txt where it has one. A type that
 * exists already is extended or left alone.
 */
COREUOBJECT_API FScriptHeaderReport LoadScriptHeaders(const FString& Directory);
COREUOBJECT_API FScriptHeaderReport LoadScriptHeaderSources(const TArray<FScriptHeaderSource>& Sources);
/** Reads what sub-objects the constructors of declared classes make; ScriptApi/README.md describes the table. A bad row is left out. */
COREUOBJECT_API FScriptHeaderReport LoadScriptSubobjects(const FScriptHeaderSource& Table);
}
