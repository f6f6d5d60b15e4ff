#pragma once

#include "CoreMinimal.h"
#include "Containers/Map.h"
#include "Tools/VexelTool.h"

/** The registry of all tools. Built at its first use, read-only afterwards. */
class FVexelToolManager
{
public:
	static const FVexelToolManager& Get();

	/** The tool of exactly that name, or "Tool '%s' not found". */
	TVexelExpected<TSharedRef<FVexelTool>> FindTool(const FName& Name) const;

	/** All tools, in the order of the table. */
	const TArray<TSharedRef<FVexelTool>>& GetTools() const { return Tools; }

private:
	FVexelToolManager();

	/** Names are compared with their case, which an engine name as a key would ignore. */
	struct FCaseSensitiveKeys : TDefaultMapKeyFuncs<FString, TSharedRef<FVexelTool>, false>
	{
		static bool Matches(const FString& A, const FString& B) { return A.Equals(B, ESearchCase::CaseSensitive); }
	};

	TArray<TSharedRef<FVexelTool>> Tools;
	TMap<FString, TSharedRef<FVexelTool>, FDefaultSetAllocator, FCaseSensitiveKeys> ToolsByName;
};
