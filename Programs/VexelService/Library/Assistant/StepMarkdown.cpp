#include "Assistant/StepMarkdown.h"

#include "Assistant/Words.h"

#include <algorithm>
#include <utility>

namespace VexelService
{

namespace
{

constexpr std::size_t MaxInlineBytes = 180;
constexpr std::size_t MaxItems = 120;
constexpr std::size_t MaxItemBytes = 600;

bool SameSteps(const std::vector<FStep>& A, const std::vector<FStep>& B);

bool SameBranch(const FStepBranch& A, const FStepBranch& B)
{
	return A.Label == B.Label && SameSteps(A.Steps, B.Steps);
}

bool SameStep(const FStep& A, const FStep& B)
{
	return A.Text == B.Text && std::equal(A.Branches.begin(), A.Branches.end(), B.Branches.begin(), B.Branches.end(), SameBranch);
}

bool SameSteps(const std::vector<FStep>& A, const std::vector<FStep>& B)
{
	return std::equal(A.begin(), A.end(), B.begin(), B.end(), SameStep);
}

// Branches that do the same become one with both labels; an "otherwise" that does nothing is not worth a line.
std::vector<FStepBranch> FoldedBranches(const FStep& Step)
{
	std::vector<FStepBranch> Folded;
	for (const FStepBranch& Branch : Step.Branches)
	{
		if (Branch.Steps.empty() && Branch.Label == "otherwise")
		{
			continue;
		}
		const auto Same = std::find_if(Folded.begin(), Folded.end(), [&](const FStepBranch& Earlier)
			{ return SameSteps(Earlier.Steps, Branch.Steps); });
		if (Same == Folded.end())
		{
			Folded.push_back(Branch);
		}
		else
		{
			Same->Label += ", or " + Branch.Label;
		}
	}
	return Folded;
}

bool IsShort(const FStepBranch& Branch)
{
	return Branch.Steps.size() <= 1 && std::all_of(Branch.Steps.begin(), Branch.Steps.end(), [](const FStep& Step)
										   { return Step.Branches.empty(); });
}

std::string ShortBranch(const FStepBranch& Branch)
{
	const std::string Comma = Branch.Label == "otherwise" ? " " : ", ";
	return Branch.Label + Comma + (Branch.Steps.empty() ? "goes straight on" : Branch.Steps.front().Text);
}

// The whole step on one line, or empty when it needs a list.
std::string OneLine(const FStep& Step, const std::vector<FStepBranch>& Branches)
{
	if (Branches.empty())
	{
		return Step.Text;
	}
	if (!std::all_of(Branches.begin(), Branches.end(), IsShort))
	{
		return {};
	}
	std::string Line = Step.Text;
	for (const FStepBranch& Branch : Branches)
	{
		Line += (Line.empty() ? "" : "; ") + ShortBranch(Branch);
	}
	return Line.size() > MaxInlineBytes ? std::string() : Line;
}

/** Writes list items until a list is as long as anybody reads, and counts the rest. */
class FListWriter
{
public:
	void WriteSteps(int Level, const std::vector<FStep>& Steps)
	{
		for (std::size_t Index = 0; Index < Steps.size();)
		{
			std::size_t End = Index + 1;
			while (End < Steps.size() && SameStep(Steps[Index], Steps[End]))
			{
				++End;
			}
			const std::size_t Count = End - Index;
			WriteStep(Level, Steps[Index], Count == 1 ? "" : " (" + std::to_string(Count) + " times in a row)");
			Index = End;
		}
	}

	std::string Finish()
	{
		if (LeftOut > 0)
		{
			Output += "- … and " + CountOf(LeftOut, "further line") + " that I leave out for their number\n";
		}
		return std::move(Output);
	}

private:
	void WriteItem(int Level, const std::string& Text)
	{
		if (Items == MaxItems)
		{
			++LeftOut;
			return;
		}
		++Items;
		Output.append(static_cast<std::size_t>(Level) * 2, ' ');
		Output += "- " + UpperFirst(Shortened(Text, MaxItemBytes)) + "\n";
	}

	void WriteStep(int Level, const FStep& Step, const std::string& Suffix)
	{
		const std::vector<FStepBranch> Branches = FoldedBranches(Step);
		const std::string Line = OneLine(Step, Branches);
		if (!Line.empty())
		{
			WriteItem(Level, Line + Suffix);
			return;
		}
		const int BranchLevel = Step.Text.empty() ? Level : Level + 1;
		if (!Step.Text.empty())
		{
			WriteItem(Level, Step.Text + Suffix + ":");
		}
		for (const FStepBranch& Branch : Branches)
		{
			if (Branch.Steps.empty())
			{
				WriteItem(BranchLevel, ShortBranch(Branch));
				continue;
			}
			WriteItem(BranchLevel, Branch.Label + ":");
			WriteSteps(BranchLevel + 1, Branch.Steps);
		}
	}

	std::string Output;
	std::size_t Items = 0;
	std::size_t LeftOut = 0;
};

}

std::string StepsToMarkdown(const std::vector<FStep>& Steps)
{
	FListWriter Writer;
	Writer.WriteSteps(0, Steps);
	return Writer.Finish();
}

}
