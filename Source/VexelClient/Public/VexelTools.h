#pragma once

#include "CoreMinimal.h"
#include "Dom/JsonObject.h"
#include "VexelTaskResult.h"

/** A row of the tool table, for whoever shows it. */
struct FVexelToolInfo
{
	FString Name;
	FString Icon;
	FString ProgressText;
	FString DoneText;
	/** Whether the editor performs the tool; the service performs the others itself. */
	bool bProducesResponse = false;
};

/** The assistant's tools, for programs that call them without a chat. Game thread. */
class VEXELCLIENT_API FVexelTools
{
public:
	/** The tool table, in its order. */
	static TArray<FVexelToolInfo> List();

	/**
	 * Calls a tool as the assistant would, in a conversation of this call alone. The nodes of a Blueprint that the input names have the ids
	 * there that "read_blueprint" answers for it.
	 */
	static TVexelTaskResult<TSharedRef<FJsonObject>> Call(const FString& Name, const TSharedRef<FJsonObject>& Input);
};
