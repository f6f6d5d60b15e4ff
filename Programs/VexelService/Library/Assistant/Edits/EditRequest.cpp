#include "Assistant/Edits/EditRequest.h"

#include "Assistant/Edits/EditMessage.h"

#include <algorithm>

namespace VexelService
{

namespace
{

// What a message that asks begins with. A request may ask as well: "can you add ...", "would you please ...".
constexpr std::string_view QuestionOpeners =
	"what|which|where|who|whose|why|how|does|do|did|is|are|has|have|was|explain|describe|summarize|summarise|show|list";

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
	return std::nullopt;
}

}
