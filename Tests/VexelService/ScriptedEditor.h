#pragma once

#include "Assistant/AssistantChannel.h"
#include "Chat/ChatRequest.h"

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace VexelService
{

/** A user and an editor with a small project, for whom the assistant works without a network. */
class FScriptedEditor final : public IAssistantChannel
{
public:
	/** Answers a tool's call by its arguments; an error where it returns null. */
	using FTool = std::function<FJson(const FJson& Arguments)>;

	/** The project: BP_Door, BP_Enemy and BP_Player in folders, and the level L_Harbor. */
	FScriptedEditor();

	void SetTool(const std::string& Name, FTool Tool) { Tools[Name] = std::move(Tool); }

	/** Has every call of a tool end so, without an answer. */
	void SetOutcome(const std::string& Name, EToolStatus Status) { Outcomes[Name] = Status; }

	/** Asks a question in the conversation so far; returns what the assistant says to it. */
	std::string Ask(const std::string& Question);

	/** "tool argument" of each call of the last answer. */
	const std::vector<std::string>& GetCalls() const { return Calls; }
	const std::vector<std::string>& GetImages() const { return Images; }

	bool Say(std::string_view Text) override;
	bool ShowImage(std::string_view Base64) override;
	FToolOutcome CallTool(std::string_view ToolName, const FJson& Arguments) override;

private:
	FJson ReadBlueprint(const FJson& Arguments) const;
	FJson SearchAssets(const FJson& Arguments) const;

	std::map<std::string, FTool> Tools;
	std::map<std::string, EToolStatus> Outcomes;
	std::map<std::string, FJson> Blueprints;
	FChatRequest Request;
	std::string Answer;
	std::vector<std::string> Calls;
	std::vector<std::string> Images;
};

}
