#pragma once

#include "CoreMinimal.h"

class FJsonObject;

/**
 * What the program was doing, as nested scopes: "tool_execution" with its tool's name inside "chat" with its id.
 * Every error raised inside a scope carries the chain, and so does every task started inside it.
 */
class VEXELCORE_API FVexelErrorContext
{
public:
	struct FScope
	{
		FString Name;
		/** Values that describe the scope; null when its name says all. Never changed once the scope is open. */
		TSharedPtr<const FJsonObject> Data;
		TSharedPtr<const FScope> Outer;
	};

	/** The calling thread's chain of open scopes, innermost first; empty outside any scope. */
	static FVexelErrorContext Capture();

	const TSharedPtr<const FScope>& GetInnermost() const { return Innermost; }

	/** The scope names from the outermost to the innermost, joined with " > ". */
	FString ToString() const;

private:
	friend class FVexelErrorContextScope;
	friend class FVexelErrorContextRestore;

	TSharedPtr<const FScope> Innermost;
};

/** Opens a context on the calling thread until it is destroyed. Scopes close in the reverse order of opening. */
class VEXELCORE_API FVexelErrorContextScope
{
public:
	explicit FVexelErrorContextScope(FString Name, TSharedPtr<const FJsonObject> Data = nullptr);
	~FVexelErrorContextScope();

	UE_NONCOPYABLE(FVexelErrorContextScope)

private:
	TSharedPtr<const FVexelErrorContext::FScope> Previous;
};

/** Makes a captured chain the calling thread's own until it is destroyed, so that work keeps its context across threads. */
class VEXELCORE_API FVexelErrorContextRestore
{
public:
	explicit FVexelErrorContextRestore(const FVexelErrorContext& Context);
	~FVexelErrorContextRestore();

	UE_NONCOPYABLE(FVexelErrorContextRestore)

private:
	TSharedPtr<const FVexelErrorContext::FScope> Previous;
};
