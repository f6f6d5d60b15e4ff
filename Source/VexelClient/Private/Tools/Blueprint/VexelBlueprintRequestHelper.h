#pragma once

#include "CoreMinimal.h"
#include "Dom/JsonObject.h"
#include "Tools/VexelTool.h"
#include "UObject/StrongObjectPtr.h"

class FVexelBlueprintMapping;
class UBlueprint;
class UEdGraph;

/**
 * What a request about a Blueprint goes by: the Blueprint, which this keeps from collection, and the ids of the request's conversation. Copies
 * are of the same request. Game thread.
 */
class FVexelBlueprintRequestHelper
{
public:
	FVexelBlueprintRequestHelper(UBlueprint& InBlueprint, const TSharedRef<FVexelBlueprintMapping>& InMapping);

	/** The mapping of the call's conversation, or "Tool call failed" with the text when the call has none. */
	static TVexelExpected<TSharedRef<FVexelBlueprintMapping>> FindMapping(const FVexelToolContext& Context, const TCHAR* TextOfNone);
	/** The Blueprint of the id, or "Invalid input" when no asset is one. */
	static TVexelExpected<FVexelBlueprintRequestHelper> Find(const TSharedRef<FVexelBlueprintMapping>& Mapping, const FString& BlueprintId);

	/** The Blueprints that are open in editors, in the order of their opening. */
	static TArray<UBlueprint*> GetOpenedBlueprints();

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
