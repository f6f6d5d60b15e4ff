#pragma once

#include "CoreMinimal.h"
#include "VexelJson.h"

/** A way of chatting that the user can select. */
class VEXELCLIENT_API FVexelChatModeInfo : public IVexelJsonable
{
public:
	FVexelChatModeInfo() = default;
	FVexelChatModeInfo(FString InChatMode, FString InDisplayText, bool bInAgentMode);

	/** The mode of a conversation that names none. */
	static FVexelChatModeInfo MakeUserMode();

	virtual TSharedRef<FJsonObject> ToJson() const override;
	virtual bool FromJson(const TSharedRef<FJsonObject>& Object) override;

	/** A mode with an identifier. */
	bool IsValid() const { return !ChatMode.IsEmpty(); }

	/** Identifier on the wire, such as "vexel_agent". */
	FString ChatMode;
	/** Label for the user. */
	FString DisplayText;
	/** Whether the assistant may call tools. */
	bool bAgentMode = false;
};
