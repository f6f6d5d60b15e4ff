#pragma once

#include "Assistant/Edits/EditWords.h"
#include "Assistant/Edits/ProjectEditor.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace VexelService
{

/** What an edit works with: the Blueprint that it changes, and the user. */
class FEditSession
{
public:
	/** Both must outlive the session. */
	FEditSession(IAssistantChannel& InChannel, FProjectReader& Reader, const std::string& Path)
		: Editor(Reader, Path)
		, Channel(InChannel)
	{
	}

	/** Says Markdown to the user. */
	void Say(std::string_view Markdown) { Channel.Say(Markdown); }

	/** Whether nobody listens any more, or a tool never answered: nothing more can be done. */
	bool IsOver() { return Editor.GetReader().IsOver(); }

	FProjectEditor Editor;

private:
	IAssistantChannel& Channel;
};

/** Something that a user wants done to a Blueprint, as it was understood. */
class IEdit
{
public:
	virtual ~IEdit() = default;

	/** Does it and tells the user what was done, or why not. The Blueprint's model has been read. */
	virtual void Run(FEditSession& Session) const = 0;
};

/** A message that wants something changed. */
struct FEditRequest
{
	/** The Blueprint as the user wrote it; empty or "it" for that of the conversation. */
	std::string Blueprint;
	/** What to do; null where the words tell too little, and Question asks for the rest. */
	std::shared_ptr<const IEdit> Edit = {};
	/** Markdown that says what was understood, and asks. */
	std::string Question = {};
	/** The one thing of the Blueprint that it is about, as the user wrote it, which a next message may call "it"; may be empty. */
	std::string Subject = {};
};

/** Requests of one sort. A family reads what is its own alone, and gives nothing for any other message. */
struct FEditFamily
{
	std::optional<FEditRequest> (*Read)(const FEditMessage& Message);
	/** What "help" says of it: a line of examples. */
	const char* Help;
	/** Whether its requests begin as questions do: "why does it not compile?". Others are not shown any. */
	bool bAsks = false;
};

/** All families; the first that understands a message has it. */
const std::vector<FEditFamily>& GetEditFamilies();

/**
 * Understands the requests that Docs/Assistant.md lists; nothing for a question and for what no family knows. OpenNames are the names
 * of the assets that are open in the editor, Subject is what the message before was about.
 */
std::optional<FEditRequest> ReadEditRequest(
	std::string_view Message, const std::vector<std::string>& OpenNames = {}, const std::string& Subject = {});

}
