#pragma once

#include "CoreMinimal.h"
#include "VexelJson.h"

/** A way of chatting that the user can select. */
class VEXELCLIENT_API FVexelChatModeInfo : public IVexelJsonable
{
public:
	FVexelChatModeInfo() = default;
	FVexelChatModeInfo(FString InChatMode, FString InDisplayText, bool bInAgentMode);

	/** The modes that the client offers by itself, the first one being the default. */
	static TArray<FVexelChatModeInfo> GetOfferedModes();
	/** The mode of a conversation that names none. */
	static FVexelChatModeInfo MakeUserMode();
	/** The mode to fall back to where none is offered. */
	static FVexelChatModeInfo MakeLiteMode();
	/** The mode of an identifier. One that is not known here is its own label, without tools. */
	static FVexelChatModeInfo FromId(const FString& Id);

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
