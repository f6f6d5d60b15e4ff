#include "Server/TurnChannel.h"

#include "Auth/Crypto.h"

#include <cstdio>
#include <string>
#include <utility>

namespace VexelService
{

namespace
{

std::string InSeconds(std::chrono::milliseconds Time)
{
	char Text[32];
	std::snprintf(Text, sizeof(Text), "%g", static_cast<double>(Time.count()) / 1000.0);
	return std::string(Text) + (Time.count() == 1000 ? " second" : " seconds");
}

}

FTurnChannel::FTurnChannel(
	FChatTurn& InTurn, FStreamWriter& InWriter, std::chrono::milliseconds InToolTimeout, std::function<bool()> InIsListening,
	FKeepImage InKeepImage)
	: Turn(InTurn)
	, Writer(InWriter)
	, ToolTimeout(InToolTimeout)
	, IsListening(std::move(InIsListening))
	, KeepImage(std::move(InKeepImage))
{
}

bool FTurnChannel::Say(std::string_view Text)
{
	bBroken = bBroken || Turn.HasEnded() || !Writer.Text(Text);
	return !bBroken;
}

bool FTurnChannel::ShowImage(std::string_view Base64)
{
	const std::optional<FKeptImage> Image = KeepImage(Base64);
	if (!Image)
	{
		return false;
	}
	bBroken = bBroken || Turn.HasEnded() || !Writer.Image(Image->Id, Image->Url);
	return !bBroken;
}

FToolOutcome FTurnChannel::CallTool(std::string_view ToolName, const FJson& Arguments)
{
	// The reply may arrive before the tag's last byte is acknowledged, so the call is open before it is sent.
	const std::string ReplyId = Turn.BeginCall();
	if (bBroken || !Writer.ToolCall(ToolName, ReplyId, Arguments))
	{
		bBroken = true;
		return {.Status = EToolStatus::Gone};
	}
	FToolOutcome Outcome = Turn.WaitForAnswer(ToolTimeout, IsListening);
	if (Outcome.Status == EToolStatus::TimedOut)
	{
		Writer.Error("The editor did not answer the call of `" + std::string(ToolName) + "` within " + InSeconds(ToolTimeout) + ".");
	}
	bBroken = Outcome.Status == EToolStatus::TimedOut || Outcome.Status == EToolStatus::Gone;
	return Outcome;
}

void FTurnChannel::Finish()
{
	if (!bBroken)
	{
		Writer.Checkpoint(RandomId());
	}
}

}
