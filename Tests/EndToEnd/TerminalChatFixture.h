#pragma once

#include "ForeignServiceFixture.h"
#include "TerminalProgram.h"

#include <sstream>
#include <string>
#include <vector>

/** A chat on a terminal with a service that follows a script. */
class FTerminalChatTest : public FForeignServiceTest
{
protected:
	FProgramSurroundings MakeTerminalSurroundings() const
	{
		FProgramSurroundings Surroundings = MakeSurroundings("first\n");
		// No silence is waited for here: on a busy machine a second passes before the service's side gets its turn.
		Surroundings.Environment[2] = "VEXEL_CHAT_STALL_TIMEOUT_SECONDS=50";
		Surroundings.Environment[3] = "VEXEL_AUTH_TIMEOUT_SECONDS=50";
		Surroundings.Environment.push_back("XDG_STATE_HOME=" + (Project.GetPath() / "state").string());
		return Surroundings;
	}

	std::vector<std::string> MakeWords() const
	{
		return {"chat", "--project", Project.GetPath(), "--service", GetUrl(), "--token-fd", "3"};
	}

	FProgramResult RunInPipe(const std::string& Input, std::vector<std::string> More = {}) const
	{
		std::vector<std::string> Words = MakeWords();
		Words.insert(Words.end(), More.begin(), More.end());
		FProgramSurroundings Surroundings = MakeTerminalSurroundings();
		Surroundings.Input = Input;
		return RunVexel(Words, Surroundings);
	}
};

/** The documents of a text that has one a line; a discarded one for a line that is none. */
inline std::vector<nlohmann::json> ParseLines(const std::string& Output)
{
	std::vector<nlohmann::json> Events;
	std::istringstream Lines(Output);
	for (std::string Line; std::getline(Lines, Line);)
	{
		Events.push_back(nlohmann::json::parse(Line, nullptr, false));
	}
	return Events;
}
