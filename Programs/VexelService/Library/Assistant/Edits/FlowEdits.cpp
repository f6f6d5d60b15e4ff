#include "Assistant/Edits/FlowEdits.h"

#include "Assistant/BlueprintDescriber.h"
#include "Assistant/Edits/FlowPhrases.h"
#include "Assistant/Edits/FlowReport.h"
#include "Assistant/Edits/EditRun.h"
#include "Assistant/Edits/FlowPlanner.h"
#include "Assistant/Edits/FlowRequest.h"
#include "Assistant/Edits/Recipes.h"
#include "Assistant/Markdown.h"
#include "Assistant/NodeTitles.h"
#include "Assistant/Words.h"

#include <algorithm>

namespace VexelService
{

namespace
{

class FFlowEdit final : public IEdit
{
public:
	explicit FFlowEdit(FFlowRequest InRequest)
		: Request(std::move(InRequest))
	{
	}

	void Run(FEditSession& Session) const override
	{
		FEditRun Run(Session.Editor);
		FFlowPlanner Planner(Session.Editor);
		if (!Planner.Plan(Request))
		{
			TellProblems(Session, Run, Planner);
			return;
		}
		const FRunOutcome Outcome = Run.Execute(Planner.GetPlan());
		if (Session.IsOver())
		{
			return;
		}
		Session.Say(Outcome.bDone ? Report(Session, Run, Planner, Outcome) : DescribeFailure(Outcome));
	}

private:
	void TellProblems(FEditSession& Session, FEditRun& Run, const FFlowPlanner& Planner) const
	{
		if (Session.IsOver())
		{
			return;
		}
		const bool bClean = Run.TakeBack(Planner.GetPlan());
		Session.Say("I understood " + Understood() + ", but I do not know enough to do it:\n\n" + BulletList(Planner.GetProblems()) +
			(bClean ? "\nI changed nothing. Say it again with what is missing.\n"
					: "\nSome nodes that I tried are still there: undo takes them back.\n"));
	}

	std::string Understood() const
	{
		std::vector<std::string> Chains;
		for (const FFlowChain& Chain : Request.Chains)
		{
			Chains.push_back("\"" + Shortened(JoinWords(Chain.EventWords), 100) + "\": " + DescribeSteps(Chain.Steps));
		}
		return JoinWithAnd(Chains);
	}

	static std::string Report(FEditSession& Session, const FEditRun& Run, const FFlowPlanner& Planner, const FRunOutcome& Outcome)
	{
		const FEditPlan& Plan = Planner.GetPlan();
		const FBlueprintModel& Blueprint = Session.Editor.Blueprint();
		std::vector<std::string> Made;
		for (const std::string& Function : Plan.NewFunctions)
		{
			Made.push_back("The function **" + Function + "** is new.");
		}
		for (const FPlanVariable& Variable : Plan.Variables)
		{
			Made.push_back("The variable **" + Variable.Variable.Name + "** (" + TypeInWords(Variable.Variable.Type) + ") is new" +
				(Variable.Default.empty() ? "." : "; it begins with " + Variable.Default + "."));
		}
		const auto IsNew = [](const FPlanNode& Node)
		{ return Node.Existing.empty() && Node.Type != "graph.entry"; };
		const auto Count = static_cast<std::size_t>(std::count_if(Plan.Nodes.begin(), Plan.Nodes.end(), IsNew));
		Made.push_back(UpperFirst(CountOf(Count, "node")) + (Count == 1 ? " is" : " are") + " new in " + GraphsOf(Plan) + ".");
		for (const FFlowPlanner::FEntry& Entry : Planner.GetEntries())
		{
			if (Entry.bExtended)
			{
				Made.push_back(
					"What is new follows what **" + TitleOf(Blueprint, Entry.Graph, Run.GetNodes()[Entry.Node]) + "** did already.");
			}
		}
		Made.insert(Made.end(), Plan.Notes.begin(), Plan.Notes.end());
		Made.insert(Made.end(), Outcome.Notes.begin(), Outcome.Notes.end());
		std::string Text =
			"Done in **" + Blueprint.Name + "**:\n\n" + BulletList(Made) + "\n" + DescribeCompile(Outcome.Compiled, Blueprint.Name);
		return Text + "\n" + WhatHappensNow(Blueprint, Run, Planner);
	}

	/** Told from the Blueprint as the editor has it now, and not from what was planned. */
	static std::string WhatHappensNow(const FBlueprintModel& Blueprint, const FEditRun& Run, const FFlowPlanner& Planner)
	{
		const FBlueprintDescriber Describer(Blueprint);
		std::string Text;
		for (const FFlowPlanner::FEntry& Entry : Planner.GetEntries())
		{
			const std::string Section = Describer.Entry(Entry.Graph, Run.GetNodes()[Entry.Node]);
			Text += (Text.empty() || Section.empty() ? "" : "\n") + Section;
		}
		return Text.empty() ? Text : "This is what happens there now:\n\n" + Text;
	}

	static std::string GraphsOf(const FEditPlan& Plan)
	{
		std::vector<std::string> Graphs;
		for (const FPlanNode& Node : Plan.Nodes)
		{
			if (std::find(Graphs.begin(), Graphs.end(), "**" + Node.Graph + "**") == Graphs.end())
			{
				Graphs.push_back("**" + Node.Graph + "**");
			}
		}
		return JoinWithAnd(Graphs);
	}

	static std::string TitleOf(const FBlueprintModel& Blueprint, const std::string& GraphId, const std::string& NodeId)
	{
		const FBlueprintGraph* const Graph = Blueprint.FindGraph(GraphId);
		const FBlueprintNode* const Node = Graph ? Graph->FindNode(NodeId) : nullptr;
		return Node ? NodeTitle(*Node) : NodeId;
	}

	const FFlowRequest Request;
};

std::optional<FEditRequest> MakeRequest(FFlowRequest Flow)
{
	return FEditRequest{.Blueprint = {}, .Edit = std::make_shared<FFlowEdit>(std::move(Flow)), .Question = {}};
}

std::optional<FEditRequest> Ask(std::string Question)
{
	return FEditRequest{.Blueprint = {}, .Edit = nullptr, .Question = std::move(Question)};
}

// Whether every step is known: words without an event that hold more than steps may be about anything.
bool AreKnown(const FFlowSteps& Steps) { return !Steps.empty() && UnknownSteps(Steps).empty(); }

std::optional<FFlowRequest> ReadMessage(const FEditMessage& Message)
{
	const FEditWords Plain = WithoutLead(ToPlainPhrases(Message.Words));
	return ReadFlow(ExpandRecipe(Plain).value_or(Plain));
}

}

std::optional<FEditRequest> ReadFlowRequest(const FEditMessage& Message)
{
	std::optional<FFlowRequest> Flow = ReadMessage(Message);
	return Flow && IsWhole(*Flow) ? MakeRequest(std::move(*Flow)) : std::nullopt;
}

std::optional<FEditRequest> ReadPartialFlowRequest(const FEditMessage& Message)
{
	std::optional<FFlowRequest> Flow = ReadMessage(Message);
	if (!Flow)
	{
		return std::nullopt;
	}
	for (const FFlowChain& Chain : Flow->Chains)
	{
		if (!Chain.Event && AreKnown(Chain.Steps))
		{
			return Ask("I understood what to do: " + DescribeSteps(Chain.Steps) +
				". But when should it happen? Say for example \"on BeginPlay ...\", \"when it is hit ...\", \"when F is pressed ...\", "
				"\"every 5 seconds ...\" or \"add a function NAME that ...\". I changed nothing.\n");
		}
		if (!Chain.Event || Chain.Steps.empty())
		{
			return std::nullopt;
		}
	}
	return MakeRequest(std::move(*Flow));
}

}
