#include "BlueprintEditTest.h"
#include "EdGraphUtilities.h"
#include "K2Node.h"
#include "K2Node_CustomEvent.h"
#include "NodeTextImportResult.h"
#include "NodeTextSamples.h"

#include <algorithm>
#include <cstdio>
#include <map>

namespace
{
/** What a compile says of an input by reference that the text links to nothing. */
std::string MakeUnlinked(const std::string& Pin, const std::string& Node)
{
	return "The value of '" + Pin + "' in action '" + Node +
		"' must have an input wired into it (\"by ref\" params expect a valid input to operate on).";
}

/** What a text lacks, so that its nodes alone do not compile. */
struct FIncompleteText
{
	const char* Name;
	/** The errors of its compile, in their order. The Blueprint is BP_Text. */
	std::vector<std::string> Errors;
};

const FIncompleteText IncompleteTexts[] = {
	// The return node of an override, of a class of a plug-in that is not here.
	{"issue30", {"Return Node refers to something that does not exist"}},
	{"linkingColorPropagation",
		{"Could not find a variable named \"Color\" in 'BP_Text'.\nMake sure 'BP_Text' has been compiled for Get Color"}},
	{"nodeAddLocalNavigationGridForBox", {MakeUnlinked("Location", "Add Local Navigation Grid for Box")}},
	{"nodeAsyncChangeBundleStateForMatchingPrimaryAssets",
		{MakeUnlinked("New Bundles", "Async Change Bundle State for Matching Primary Assets"),
			MakeUnlinked("Old Bundles", "Async Change Bundle State for Matching Primary Assets")}},
	{"nodeForEachLoop",
		{"The type of Array is undetermined.  Connect something to For Each Loop to imply a specific type.",
			"The type of Array Element is undetermined.  Connect something to For Each Loop to imply a specific type."}},
	{"nodeLineTraceByProfile", {MakeUnlinked("Actors to Ignore", "Line Trace By Profile")}},
	{"nodeSpawnActorNONE", {"Spawn node Spawn Actor from Class must have a Class specified."}},
	// An enumeration of a module that is not here.
	{"nodeSwitchonENiagaraOrientationAxis", {"Switch on ENiagaraOrientationAxis refers to something that does not exist"}},
};

/** Nodes of texts whose functions need a certain self; others go into an actor. */
const std::map<std::string, const TCHAR*> Parents = {
	{"nodeLineTraceComponent", TEXT("/Script/Engine.StaticMeshComponent")},
};

class FSampleTextCompileTest : public FBlueprintEditTest
{
protected:
	/** Has each node of the text executed, or its first value used. */
	static void Use(UBlueprint& InBlueprint, const TArray<UEdGraphNode*>& Nodes)
	{
		for (UEdGraphNode* const Node : Nodes)
		{
			const UK2Node* const Executed = Cast<UK2Node>(Node);
			if (Executed && Executed->IsNodePure())
			{
				UseValue(InBlueprint, *Executed);
				continue;
			}
			for (UEdGraphPin* const Pin : TArray<UEdGraphPin*>(Node->Pins))
			{
				if (Pin->Direction == EGPD_Input && UEdGraphSchema_K2::IsExecPin(*Pin) && Pin->LinkedTo.IsEmpty())
				{
					Link(AddEvent(InBlueprint, TEXT("Start"))->FindPinChecked(UEdGraphSchema_K2::PN_Then), Pin);
				}
			}
		}
	}

	static void UseValue(UBlueprint& InBlueprint, const UK2Node& Giver)
	{
		UEdGraphPin* const* const Value = Giver.Pins.FindByPredicate([](const UEdGraphPin* Pin)
			{
				const FName Category = Pin->PinType.PinCategory;
				// A delegate is bound, not passed.
				const bool bIsValue = Category != UEdGraphSchema_K2::PC_Wildcard && Category != UEdGraphSchema_K2::PC_Delegate;
				return Pin->Direction == EGPD_Output && !Pin->bHidden && bIsValue; });
		if (!Value || !(*Value)->LinkedTo.IsEmpty())
		{
			return;
		}
		FEdGraphPinType Type = (*Value)->PinType;
		Type.bIsReference = false;
		UK2Node_CustomEvent* const Taker = AddEvent(InBlueprint, TEXT("Take"));
		Taker->CreateUserDefinedPin(TEXT("Value"), Type, EGPD_Output);
		FBlueprintEditorUtils::MarkBlueprintAsStructurallyModified(&InBlueprint);
		UEdGraph* const Page = Taker->GetGraph();
		const UFunction* const Function = InBlueprint.SkeletonGeneratedClass->FindFunctionByName(Taker->CustomFunctionName);
		UK2Node_CallFunction* const Call = AddNode<UK2Node_CallFunction>(Page, [Function](UK2Node_CallFunction& Node)
			{ Node.SetFromFunction(Function); });
		Link(AddEvent(InBlueprint, TEXT("Start"))->FindPinChecked(UEdGraphSchema_K2::PN_Then), Call->GetExecPin());
		Link(*Value, Call->FindPin(TEXT("Value")));
	}

	static UK2Node_CustomEvent* AddEvent(UBlueprint& InBlueprint, const TCHAR* Name)
	{
		return AddNode<UK2Node_CustomEvent>(FBlueprintEditorUtils::FindEventGraph(&InBlueprint), [Name](UK2Node_CustomEvent& Event)
			{ Event.CustomFunctionName = Name; });
	}

	static void Link(UEdGraphPin* From, UEdGraphPin* To)
	{
		ASSERT_TRUE(From && To);
		EXPECT_TRUE(From->GetSchema()->TryCreateConnection(From, To)) << TCHAR_TO_UTF8(*To->GetName());
	}

	static std::vector<std::string> CompileText(UBlueprint& InBlueprint)
	{
		std::vector<std::string> Errors;
		for (const FString& Error : Compile(&InBlueprint, EMessageSeverity::Error))
		{
			Errors.push_back(TCHAR_TO_UTF8(*Error.Replace(*InBlueprint.GetName(), TEXT("BP_Text"))));
		}
		return Errors;
	}
};

TEST_F(FSampleTextCompileTest, EachTextThatIsCompleteCompiles)
{
	const std::vector<FNodeTextSample> Samples = LoadNodeTextSamples();
	if (Samples.empty())
	{
		GTEST_SKIP() << "the folder of sample texts is missing";
	}
	int32 NumCompiled = 0;
	for (const FNodeTextSample& Sample : Samples)
	{
		SCOPED_TRACE(Sample.Name);
		const auto Parent = Parents.find(Sample.Name);
		UClass* const ParentClass = Parent == Parents.end() ? AActor::StaticClass() : FindObject<UClass>(nullptr, Parent->second);
		ASSERT_NE(ParentClass, nullptr);
		UBlueprint* const Target = MakeBlueprint(TEXT("BP_Text"), ParentClass);
		const FNodeTextImportResult Pasted =
			FEdGraphUtilities::ImportNodesFromTextWithResult(FBlueprintEditorUtils::FindEventGraph(Target), Sample.Text);
		TSet<UEdGraphNode*> Nodes;
		for (UEdGraphNode* const Node : Pasted.Nodes)
		{
			Nodes.Add(Node);
		}
		FEdGraphUtilities::PostProcessPastedNodes(Nodes);
		if (Pasted.Nodes.IsEmpty())
		{
			printf("%-60s no nodes of a Blueprint\n", Sample.Name.c_str());
			continue;
		}
		Use(*Target, Pasted.Nodes);
		const FIncompleteText* const Row = std::find_if(std::begin(IncompleteTexts), std::end(IncompleteTexts),
			[&Sample](const FIncompleteText& Candidate)
			{ return Sample.Name == Candidate.Name; });
		EXPECT_EQ(CompileText(*Target), Row == std::end(IncompleteTexts) ? std::vector<std::string>() : Row->Errors);
		NumCompiled += Row == std::end(IncompleteTexts) ? 1 : 0;
	}
	printf("%d texts compile\n", NumCompiled);
	EXPECT_GT(NumCompiled, 40);
}
}
