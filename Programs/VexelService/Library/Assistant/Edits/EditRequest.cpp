#include "Assistant/Edits/EditRequest.h"

#include "Assistant/Edits/EditMessage.h"

#include <algorithm>

namespace VexelService
{

namespace
{

// What a message that asks begins with. A request may ask as well: "can you add ...", "would you please ...".
constexpr std::string_view QuestionOpeners =
	"what|which|where|who|whose|why|how|does|do|did|is|are|has|was|explain|describe|summarize|summarise|show|list";

// What nothing but a request to change something begins with.
constexpr std::string_view ChangeOpeners =
	"give|make|let|change|connect|disconnect|wire|remove|delete|rename|insert|put|implement|toggle|bind|spawn|print|destroy|set";

constexpr const char* NotUnderstood =
	"I see that you want something changed, but I did not understand what. Say it in steps, as in \"when it is hit, subtract 10 from "
	"Health, then print Health\" or \"add a function Open that calls OpenDoor\"; \"help\" lists what I can do. I changed nothing.\n";

bool AsksForChange(const FEditWords& Words)
{
	return Words.size() > 2 && IsWord(Words.front(), ChangeOpeners) && !IsWord(Words[1], "me|us");
}

bool IsQuestion(const FEditWords& Words)
{
	const auto First = std::find_if(Words.begin(), Words.end(), [](const FEditWord& Word)
		{ return !Word.bMark && !IsWord(Word, "and|so|ok|okay|well|but|hi|hello|hey|please|now|then"); });
	// "Tell me what would happen if ..." wants to know as well.
	const auto Happens = std::find_if(Words.begin(), Words.end(), [](const FEditWord& Word)
		{ return IsWord(Word, "happen|happens|happened"); });
	const bool bAsksWhat = Happens != Words.begin() && Happens != Words.end() && IsWord(*(Happens - 1), "what|would|will|that|could");
	return First == Words.end() || IsWord(*First, QuestionOpeners) || bAsksWhat;
}

}

std::optional<FEditRequest> ReadEditRequest(std::string_view Message, const std::vector<std::string>& OpenNames, const std::string& Subject)
{
	std::optional<FEditMessage> Read = ReadEditMessage(Message, OpenNames);
	if (!Read)
	{
		return std::nullopt;
	}
	Read->Subject = Subject;
	for (const FEditFamily& Family : GetEditFamilies())
	{
		if (IsQuestion(Read->Words) && !Family.bAsks)
		{
			continue;
		}
		std::optional<FEditRequest> Request = Family.Read(*Read);
		if (Request)
		{
			Request->Blueprint = Request->Blueprint.empty() ? Read->Blueprint : Request->Blueprint;
			return Request;
		}
	}
	return AsksForChange(Read->Words) ? std::optional<FEditRequest>({.Blueprint = {}, .Edit = nullptr, .Question = NotUnderstood}) : std::nullopt;
}

}
