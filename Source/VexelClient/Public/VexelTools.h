#pragma once

#include "Containers/Set.h"
#include "CoreMinimal.h"
#include "Dom/JsonObject.h"
#include "VexelTaskResult.h"

class FVexelChatConversation;

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
};

/** Calls of tools as the assistant makes them, in one conversation: the ids that one call answers hold in the next. Game thread. */
class VEXELCLIENT_API FVexelToolSession
{
public:
	FVexelToolSession();

	/** The nodes of a Blueprint that the input names first have the ids that "read_blueprint" answers for it. */
	TVexelTaskResult<TSharedRef<FJsonObject>> Call(const FString& Name, const TSharedRef<FJsonObject>& Input);

private:
	TSharedRef<FVexelChatConversation> Conversation;
	/** Blueprints whose nodes have their ids, by what the inputs call them. */
	TSet<FString> Named;
};
