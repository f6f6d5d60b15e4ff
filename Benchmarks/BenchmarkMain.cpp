#include "BenchmarkMain.h"

#include <benchmark/benchmark.h>
#include <cstdio>
#include <map>
#include <ostream>
#include <string>
#include <vector>

namespace
{
constexpr const char* OursName = "Ours";
constexpr const char* PeerPrefix = "Peer:";

/** Seconds that one iteration of a benchmark took, of its repetitions the shortest: the rest is what else the machine did. */
double GetSeconds(const benchmark::BenchmarkReporter::Run& Run)
{
	return Run.iterations > 0 ? Run.real_accumulated_time / double(Run.iterations) : 0.0;
}

/** "1.2 us" */
std::string FormatTime(double Seconds)
{
	struct FUnit
	{
		double Seconds;
		const char* Name;
	};
	constexpr FUnit Units[] = {{1.0, "s"}, {1e-3, "ms"}, {1e-6, "us"}, {1e-9, "ns"}};
	const FUnit* Unit = Units;
	while (Unit != Units + 3 && Seconds < Unit->Seconds)
	{
		++Unit;
	}
	char Text[32];
	std::snprintf(Text, sizeof(Text), "%.3g %s", Seconds / Unit->Seconds, Unit->Name);
	return Text;
}

/** Prints the usual table, and below it, for each group, our time as a ratio to each peer's of the same run. */
class FRatioReporter final : public benchmark::ConsoleReporter
{
public:
	virtual void ReportRuns(const std::vector<Run>& Runs) override
	{
		ConsoleReporter::ReportRuns(Runs);
		for (const Run& Each : Runs)
		{
			if (Each.run_type == Run::RT_Iteration && !Each.error_occurred)
			{
				Add(Each);
			}
		}
	}

	virtual void Finalize() override
	{
		ConsoleReporter::Finalize();
		for (const std::string& Name : Order)
		{
			Print(Name, Groups[Name]);
		}
	}

private:
	struct FGroup
	{
		double OursSeconds = 0.0;
		std::vector<std::pair<std::string, double>> Peers;
	};

	/** Takes the run of "Group/Ours" or "Group/Peer:name". */
	void Add(const Run& Each)
	{
		const std::string& Name = Each.run_name.function_name;
		const size_t Slash = Name.rfind('/');
		if (Slash == std::string::npos)
		{
			return;
		}
		const std::string Group = Name.substr(0, Slash);
		const std::string Side = Name.substr(Slash + 1);
		if (Groups.find(Group) == Groups.end())
		{
			Order.push_back(Group);
		}
		FGroup& Found = Groups[Group];
		if (Side == OursName)
		{
			KeepShorter(Found.OursSeconds, GetSeconds(Each));
		}
		else if (Side.rfind(PeerPrefix, 0) == 0)
		{
			KeepShorter(FindPeer(Found, Side.substr(std::string(PeerPrefix).size())), GetSeconds(Each));
		}
	}

	static void KeepShorter(double& Kept, double Seconds) { Kept = Kept == 0.0 || Seconds < Kept ? Seconds : Kept; }

	static double& FindPeer(FGroup& Group, const std::string& Peer)
	{
		for (auto& [Name, Seconds] : Group.Peers)
		{
			if (Name == Peer)
			{
				return Seconds;
			}
		}
		return Group.Peers.emplace_back(Peer, 0.0).second;
	}

	void Print(const std::string& Name, const FGroup& Group)
	{
		for (const auto& [Peer, Seconds] : Group.Peers)
		{
			if (Group.OursSeconds > 0.0 && Seconds > 0.0)
			{
				char Ratio[32];
				std::snprintf(Ratio, sizeof(Ratio), "%.2fx", Group.OursSeconds / Seconds);
				GetOutputStream() << Name << ": " << Ratio << " of " << Peer << " (ours " << FormatTime(Group.OursSeconds) << ", peer "
								  << FormatTime(Seconds) << ")\n";
			}
		}
	}

	std::map<std::string, FGroup> Groups;
	std::vector<std::string> Order;
};

std::vector<void (*)()>& GetEndOfMain()
{
	static std::vector<void (*)()> Functions;
	return Functions;
}
}

void RunAtEndOfMain(void (*Function)())
{
	GetEndOfMain().push_back(Function);
}

int main(int NumArguments, char** Arguments)
{
	benchmark::Initialize(&NumArguments, Arguments);
	if (benchmark::ReportUnrecognizedArguments(NumArguments, Arguments))
	{
		return 2;
	}
	FRatioReporter Reporter;
	benchmark::RunSpecifiedBenchmarks(&Reporter);
	benchmark::Shutdown();
	for (void (*const Function)() : GetEndOfMain())
	{
		Function();
	}
	return 0;
}
