#pragma once

#include "CoreMinimal.h"

/** A class, struct, union, enum or function in a C++ file. */
struct FVexelSourceDeclaration
{
	/** "class", "struct", "union", "enum" or "function"; a literal. */
	const TCHAR* Kind = TEXT("");
	/** With the names around it: "Game::ADoor::Open". */
	FString Name;
	/** From 1, with the comment and the macros before it. */
	int32 FirstLine = 0;
	int32 LastLine = 0;
	/** Whether it has a body. */
	bool bDefinition = false;
};

/**
 * The declarations of a C++ file, in the order of their ends. The file is read as it stands: macros are not expanded, both branches of
 * a condition count, and what is no C++ is passed over.
 */
TArray<FVexelSourceDeclaration> ReadVexelSourceDeclarations(FStringView Text);
