#include "Data/VexelChatModeInfo.h"

FVexelChatModeInfo::FVexelChatModeInfo(FString InChatMode, FString InDisplayText, bool bInAgentMode)
	: ChatMode(MoveTemp(InChatMode))
	, DisplayText(MoveTemp(InDisplayText))
	, bAgentMode(bInAgentMode)
{
}

TArray<FVexelChatModeInfo> FVexelChatModeInfo::GetOfferedModes()
{
	return {
		FVexelChatModeInfo(TEXT("vexel_agent"), TEXT("Agent"), true),
		FVexelChatModeInfo(TEXT("vexel_agent_lite"), TEXT("Agent Lite"), true),
	};
}

FVexelChatModeInfo FVexelChatModeInfo::FromId(const FString& Id)
{
	for (const FVexelChatModeInfo& Mode : {MakeUserMode(), MakeLiteMode()})
	{
		if (Mode.ChatMode.Equals(Id))
		{
			return Mode;
		}
	}
	for (const FVexelChatModeInfo& Mode : GetOfferedModes())
	{
		if (Mode.ChatMode.Equals(Id))
		{
			return Mode;
		}
	}
	return FVexelChatModeInfo(Id, Id, false);
}

FVexelChatModeInfo FVexelChatModeInfo::MakeLiteMode()
{
	return FVexelChatModeInfo(TEXT("vexel_lite"), TEXT("Vexel Lite"), false);
}

FVexelChatModeInfo FVexelChatModeInfo::MakeUserMode()
{
	return FVexelChatModeInfo(TEXT("user"), TEXT("User"), false);
}

TSharedRef<FJsonObject> FVexelChatModeInfo::ToJson() const
{
	const TSharedRef<FJsonObject> Object = MakeShared<FJsonObject>();
	Object->SetStringField(TEXT("chat_mode"), ChatMode);
	Object->SetStringField(TEXT("display_text"), DisplayText);
	Object->SetBoolField(TEXT("is_agent_mode"), bAgentMode);
	return Object;
}

bool FVexelChatModeInfo::FromJson(const TSharedRef<FJsonObject>& Object)
{
	Object->TryGetStringField(TEXT("display_text"), DisplayText);
	Object->TryGetBoolField(TEXT("is_agent_mode"), bAgentMode);
	return Object->TryGetStringField(TEXT("chat_mode"), ChatMode);
}
