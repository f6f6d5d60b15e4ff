#pragma once

#include "CoreMinimal.h"
#include "Dom/JsonObject.h"
#include "Tools/VexelTool.h"
#include "UObject/StrongObjectPtr.h"

class FVexelBlueprintMapping;
class UBlueprint;
class UEdGraph;

/** The Blueprint that a tool call is about, kept from collection for the length of the call, in the ids of the call's conversation. */
class FVexelBlueprintToolTarget
{
public:
	FVexelBlueprintToolTarget(UBlueprint& InBlueprint, const TSharedRef<FVexelBlueprintMapping>& InMapping);

	/** The mapping of the call's conversation, or "Tool call failed" with the text when the call has none. */
	static TVexelExpected<TSharedRef<FVexelBlueprintMapping>> FindMapping(const FVexelToolContext& Context, const TCHAR* TextOfNone);
	/** The Blueprint of the id, or "Invalid input" when no asset is one. */
	static TVexelExpected<FVexelBlueprintToolTarget> Find(const TSharedRef<FVexelBlueprintMapping>& Mapping, const FString& BlueprintId);

	UBlueprint& GetBlueprint() const { return *Blueprint; }
	FVexelBlueprintMapping& GetMapping() const { return *Mapping; }
	const TSharedRef<FVexelBlueprintMapping>& GetSharedMapping() const { return Mapping; }
	/** Null where the Blueprint has no such graph. */
	UEdGraph* FindGraph(const FString& GraphId) const;

	/** The Blueprint as the property model shows it, or "Tool call failed". */
	TVexelExpected<TSharedRef<FJsonObject>> Export() const;

private:
	TStrongObjectPtr<UBlueprint> Blueprint;
	TSharedRef<FVexelBlueprintMapping> Mapping;
};
