#include "Chat/VexelChatHistoryManager.h"
#include "Containers/StringConv.h"
#include "Data/VexelChatConversation.h"
#include "Misc/OutputDeviceRedirector.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fcntl.h>
#include <map>
#include <random>
#include <string>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

/**
 * Kills editors while they save, and looks at what is left.
 *
 *     HistoryCrash KILLS [SEED]
 *
 * Two writers at a time, each a process of its own, add numbered messages to the same few conversations and report each save before
 * it begins and when it is done. Both are killed at a random instant. Then every conversation must be readable, with each writer's
 * messages once and in order: all that were reported as saved, and of the one that was being saved all or nothing.
 */
namespace
{
constexpr int32 NumChats = 3;
constexpr int32 NumWriters = 2;
constexpr int32 MaxMicrosecondsToLive = 40'000;

/** What a writer reports, whole in one write to its pipe. */
struct FReport
{
	int32 Chat;
	int32 Number;
	bool bDone;
};

FString MakeChatId(int32 Chat)
{
	return FString::Printf(TEXT("chat-%d"), Chat);
}

TSharedRef<FVexelChatConversation> Open(FVexelChatHistoryManager& History, const FString& ChatId)
{
	if (const TSharedPtr<FVexelChatConversation> Found = History.Find(ChatId))
	{
		return Found.ToSharedRef();
	}
	const TSharedRef<FVexelChatConversation> Made =
		MakeShared<FVexelChatConversation>(TEXT("user"), ChatId, FVexelChatModeInfo::FromId(TEXT("vexel_agent")));
	History.Add(Made);
	return Made;
}

/** Writer and number of each message, such as "1:25" and a filler that makes files long enough to be cut. */
std::vector<std::pair<int32, int32>> ReadMessages(const FVexelChatConversation& Conversation)
{
	std::vector<std::pair<int32, int32>> Messages;
	for (const FVexelChatMessage& Message : Conversation.GetMessages())
	{
		int32 Writer = -1;
		int32 Number = -1;
		std::sscanf(TCHAR_TO_UTF8(*Message.GetText()), "%d:%d", &Writer, &Number);
		Messages.emplace_back(Writer, Number);
	}
	return Messages;
}

int32 CountOf(const FVexelChatConversation& Conversation, int32 Writer)
{
	int32 Count = 0;
	for (const auto& [MessageWriter, Number] : ReadMessages(Conversation))
	{
		Count += MessageWriter == Writer ? 1 : 0;
	}
	return Count;
}

/** Saves until it is killed. */
[[noreturn]] void Write(const FString& Directory, int32 Writer, uint32 Seed)
{
	FVexelChatHistoryManager History(Directory);
	std::minstd_rand Random(Seed);
	const FString Filler = FString::ChrN(2000, TEXT('x'));
	int32 NextNumber[NumChats] = {};
	for (int32 Chat = 0; Chat < NumChats; ++Chat)
	{
		NextNumber[Chat] = CountOf(*Open(History, MakeChatId(Chat)), Writer);
	}
	while (true)
	{
		FReport Report{int32(Random() % NumChats), 0, false};
		Report.Number = NextNumber[Report.Chat]++;
		const TSharedRef<FVexelChatConversation> Conversation = Open(History, MakeChatId(Report.Chat));
		FVexelChatMessage Message(EVexelChatRole::User);
		Message.AddBlock(FVexelChatMessageBlock::MakeText(FString::Printf(TEXT("%d:%d %s"), Writer, Report.Number, *Filler)));
		Conversation->AddMessage(MoveTemp(Message));
		const bool bTold = write(STDOUT_FILENO, &Report, sizeof(Report)) == sizeof(Report);
		if (!bTold || History.Save(Conversation->GetChatId()).HasError())
		{
			_exit(EXIT_FAILURE);
		}
		Report.bDone = true;
		if (write(STDOUT_FILENO, &Report, sizeof(Report)) != sizeof(Report))
		{
			_exit(EXIT_FAILURE);
		}
	}
}

struct FWriter
{
	pid_t Process;
	int Reports;
};

FWriter StartWriter(const char* Program, const std::string& Directory, int32 Writer, uint32 Seed)
{
	int Pipe[2];
	if (pipe2(Pipe, O_CLOEXEC) != 0)
	{
		std::perror("pipe");
		std::exit(2);
	}
	const pid_t Process = fork();
	if (Process == 0)
	{
		dup2(Pipe[1], STDOUT_FILENO);
		execl(Program, Program, "--write", Directory.c_str(), std::to_string(Writer).c_str(), std::to_string(Seed).c_str(), nullptr);
		_exit(127);
	}
	close(Pipe[1]);
	return {Process, Pipe[0]};
}

/** What a dead writer had said about one conversation. */
struct FKnown
{
	int32 NumSaved = 0;
	bool bSaving = false;
};

struct FTally
{
	int32 NumKills = 0;
	int32 NumKilledInSave = 0;
	int32 NumLosses = 0;
};

class FRounds
{
public:
	FRounds(const char* InProgram, std::string InDirectory, uint32 Seed)
		: Program(InProgram)
		, Directory(std::move(InDirectory))
		, Random(Seed)
	{
	}

	FTally Run(int32 NumKills)
	{
		while (Tally.NumKills < NumKills)
		{
			KillWritersOnce();
			Check();
		}
		return Tally;
	}

private:
	void KillWritersOnce()
	{
		std::vector<FWriter> Writers;
		Writers.reserve(NumWriters);
		for (int32 Writer = 0; Writer < NumWriters; ++Writer)
		{
			Writers.push_back(StartWriter(Program, Directory, Writer, uint32(Random())));
		}
		// The time to live counts from a writer's first report, because a program takes its time to start.
		FReport First;
		const bool bStarted = read(Writers[0].Reports, &First, sizeof(First)) == sizeof(First);
		Note(0, First, bStarted);
		std::this_thread::sleep_for(std::chrono::microseconds(Random() % MaxMicrosecondsToLive));
		for (int32 Writer = 0; Writer < NumWriters; ++Writer)
		{
			kill(Writers[size_t(Writer)].Process, SIGKILL);
			int Status = 0;
			waitpid(Writers[size_t(Writer)].Process, &Status, 0);
			if (!WIFSIGNALED(Status))
			{
				Fail("writer " + std::to_string(Writer) + " ended by itself");
			}
			++Tally.NumKills;
			ReadReports(Writer, Writers[size_t(Writer)].Reports);
		}
	}

	void ReadReports(int32 Writer, int Reports)
	{
		FReport Report;
		while (read(Reports, &Report, sizeof(Report)) == sizeof(Report))
		{
			Note(Writer, Report, true);
		}
		close(Reports);
		for (int32 Chat = 0; Chat < NumChats; ++Chat)
		{
			Tally.NumKilledInSave += Known[{Writer, Chat}].bSaving ? 1 : 0;
		}
	}

	void Note(int32 Writer, const FReport& Report, bool bRead)
	{
		if (bRead)
		{
			FKnown& Entry = Known[{Writer, Report.Chat}];
			Entry.bSaving = !Report.bDone;
			Entry.NumSaved = Report.Number + (Report.bDone ? 1 : 0);
		}
	}

	void Check()
	{
		FVexelChatHistoryManager History(FString(UTF8_TO_TCHAR(Directory.c_str())));
		for (int32 Chat = 0; Chat < NumChats; ++Chat)
		{
			const TSharedPtr<FVexelChatConversation> Conversation = History.Find(MakeChatId(Chat));
			std::vector<int32> Counts(NumWriters, 0);
			for (const auto& [Writer, Number] : Conversation ? ReadMessages(*Conversation) : std::vector<std::pair<int32, int32>>())
			{
				if (Writer < 0 || Writer >= NumWriters || Number != Counts[size_t(Writer)]++)
				{
					Fail("chat " + std::to_string(Chat) + " has a message out of its place");
				}
			}
			for (int32 Writer = 0; Writer < NumWriters; ++Writer)
			{
				CheckCount(Writer, Chat, Counts[size_t(Writer)]);
			}
		}
		if (!History.FindSetAside().IsEmpty())
		{
			Fail("a file was damaged");
		}
	}

	void CheckCount(int32 Writer, int32 Chat, int32 Count)
	{
		FKnown& Entry = Known[{Writer, Chat}];
		if (Count != Entry.NumSaved && !(Entry.bSaving && Count == Entry.NumSaved + 1))
		{
			Fail("chat " + std::to_string(Chat) + " has " + std::to_string(Count) + " messages of writer " + std::to_string(Writer) + ", " +
				std::to_string(Entry.NumSaved) + " were saved");
		}
		Entry = {Count, false};
	}

	void Fail(const std::string& What)
	{
		++Tally.NumLosses;
		std::fprintf(stderr, "after %d kills: %s\n", Tally.NumKills, What.c_str());
	}

	const char* Program;
	std::string Directory;
	std::minstd_rand Random;
	std::map<std::pair<int32, int32>, FKnown> Known;
	FTally Tally;
};
}

int main(int NumArguments, char** Arguments)
{
	GLog->SetConsoleVerbosity(ELogVerbosity::NoLogging);
	if (NumArguments == 5 && std::strcmp(Arguments[1], "--write") == 0)
	{
		Write(FString(UTF8_TO_TCHAR(Arguments[2])), std::atoi(Arguments[3]), uint32(std::atoi(Arguments[4])));
	}
	if (NumArguments < 2 || std::atoi(Arguments[1]) < 1)
	{
		std::fprintf(stderr, "usage: HistoryCrash KILLS [SEED]\n");
		return 2;
	}
	std::string Directory = (std::filesystem::temp_directory_path() / "vexel-crash-XXXXXX").string();
	if (!mkdtemp(Directory.data()))
	{
		std::perror("mkdtemp");
		return 2;
	}
	const FTally Tally = FRounds(Arguments[0], Directory, NumArguments > 2 ? uint32(std::atoi(Arguments[2])) : 1).Run(std::atoi(Arguments[1]));
	std::filesystem::remove_all(Directory);
	std::printf("kills %d, in the middle of a save %d, losses %d\n", Tally.NumKills, Tally.NumKilledInSave, Tally.NumLosses);
	return Tally.NumLosses == 0 ? 0 : 1;
}
