#include "Assistant/Edits/CompileEdits.h"

#include "Assistant/Edits/MemberReport.h"

#include <algorithm>

namespace VexelService
{

namespace
{

constexpr std::string_view CompileWordings[] = {
	"compile|recompile [it|this|blueprint]",
	"can|could|would you compile|recompile [it|this]",
	"why does it|this|blueprint not compile",
	"why doesn't|won't|can't|isn't it|this|blueprint compile|compiling",
	"why does|is it|this|blueprint fail|failing to compile",
	"why does not compile",
	"why doesn't|won't|does compile",
	"why doesn't|won't {name} compile",
	"why does {name} not compile",
	"does it|this|blueprint compile",
	"does compile",
	"does {name} compile",
	"what is|are wrong with it|this|blueprint",
	"what's wrong with it|this|blueprint",
	"what are compile|compiler|compilation error|message|problem [of|in]",
	"[show] compile|compiler|compilation error|message|problem [of|in]",
	"explain compile|compiler|compilation error|message",
	"are there [any] compile|compiler|compilation error",
	"compile|recompile|build|rebuild {name:1}",
	"check|verify|test|see that|whether|if {name:1} compile",
	"check|verify|test|see that|whether|if it|this|blueprint compile",
	"make sure [that] {name:1} compile",
};

class FCompileEdit final : public IEdit
{
public:
	void Run(FEditSession& Session) const override
	{
		TellCompile(Session);
	}
};

}

std::optional<FEditRequest> ReadCompileRequest(const FEditMessage& Message)
{
	for (const std::string_view Wording : CompileWordings)
	{
		if (const std::optional<FCaptures> Captures = MatchWords(Wording, Message.Words))
		{
			return FEditRequest{.Blueprint = CapturedText(*Captures, "name"), .Edit = std::make_shared<FCompileEdit>(), .Question = {}};
		}
	}
	return std::nullopt;
}

}
