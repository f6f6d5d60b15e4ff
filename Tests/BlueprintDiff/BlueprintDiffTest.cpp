#include "BlueprintDiff.h"

#include "BlueprintWatch.h"
#include "Components/SceneComponent.h"
#include "Containers/StringConv.h"
#include "Editor.h"
#include "Editor/EditorEngine.h"
#include "Engine/BlueprintGeneratedClass.h"
#include "Engine/InheritableComponentHandler.h"
#include "Engine/SimpleConstructionScript.h"
#include "GraphFixture.h"
#include "K2Node_FunctionEntry.h"
#include "K2Node_IfThenElse.h"
#include "K2Node_VariableGet.h"
#include "ScopedTransaction.h"

#include <gmock/gmock.h>

#include <functional>
#include <string>
#include <vector>

namespace
{
using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;
using testing::UnorderedElementsAreArray;

using FLines = std::vector<std::string>;

std::string ToText(const FString& Text)
{
	return TCHAR_TO_UTF8(*Text);
}

std::string GetSign(EDifference Kind)
{
	return Kind == EDifference::Added ? "+ " : Kind == EDifference::Removed ? "- "
																			: "~ ";
}

void DescribeMembers(const TArray<FMemberDifference>& Members, FLines& Lines)
{
	for (const FMemberDifference& Member : Members)
	{
		std::string Line = GetSign(Member.Kind) + ToText(Member.What) + " " + ToText(Member.Name);
		Line += Member.OldName.IsEmpty() ? "" : " was " + ToText(Member.OldName);
		for (const FValueDifference& Value : Member.Kind == EDifference::Changed ? Member.Values : TArray<FValueDifference>())
		{
			Line += "; " + ToText(Value.Name) + ": " + ToText(Value.Before) + " > " + ToText(Value.After);
		}
		Lines.push_back(Line);
	}
}

void DescribeGraph(const FGraphDifference& Graph, FLines& Lines)
{
	if (Graph.Kind != EDifference::Changed || Graph.IsRenamed())
	{
		Lines.push_back(GetSign(Graph.Kind) + ToText(Graph.GetShown().Kind) + " " + ToText(Graph.GetShown().Name));
	}
	for (const FNodeDifference& Node : Graph.Nodes)
	{
		const FNodeSnapshot& Shown = Node.After == INDEX_NONE ? Graph.Before->Nodes[Node.Before] : Graph.After->Nodes[Node.After];
		std::string Line = GetSign(Node.Kind) + "node " + ToText(Shown.Title) + (Node.bFollows ? " follows" : "");
		for (const FAspectDifference& Aspect : Node.bFollows ? TArray<FAspectDifference>() : Node.Aspects)
		{
			Line += "; " + ToText(ToWord(Aspect.Aspect)) + " " + ToText(Aspect.Name);
			Line += ": " + ToText(Aspect.Before) + " > " + ToText(Aspect.After);
		}
		Lines.push_back(Line);
	}
	for (const FWireDifference& Wire : Graph.Wires)
	{
		const FGraphSnapshot& Owner = Wire.Kind == EDifference::Added ? *Graph.After : *Graph.Before;
		const auto Describe = [&](const FPinLink& End)
		{ return ToText(Owner.Nodes[End.Node].Title + TEXT(".") + Owner.GetPin(End).Name.ToString()); };
		Lines.push_back(GetSign(Wire.Kind) + "wire " + Describe(Wire.From) + " > " + Describe(Wire.To));
	}
	DescribeMembers(Graph.Members, Lines);
}

FLines Describe(const FBlueprintDiff& Diff)
{
	FLines Lines;
	for (const TArray<FValueDifference>* const Values : {&Diff.Settings, &Diff.ClassDefaults})
	{
		for (const FValueDifference& Value : *Values)
		{
			Lines.push_back("~ " + ToText(Value.Name) + ": " + ToText(Value.Before) + " > " + ToText(Value.After));
		}
	}
	DescribeMembers(Diff.Members, Lines);
	for (const FGraphDifference& Graph : Diff.Graphs)
	{
		DescribeGraph(Graph, Lines);
	}
	return Lines;
}

FEdGraphPinType MakeType(const FName& Category, const FName& SubCategory = NAME_None)
{
	return FEdGraphPinType(Category, SubCategory, nullptr, EPinContainerType::None, false, FEdGraphTerminalType());
}

const FEdGraphPinType& GetReal()
{
	static const FEdGraphPinType Real = MakeType(UEdGraphSchema_K2::PC_Real, UEdGraphSchema_K2::PC_Double);
	return Real;
}

class BlueprintDiff : public FGraphTest
{
protected:
	TSharedRef<const FBlueprintSnapshot> Take() const { return MakeShared<FBlueprintSnapshot>(FBlueprintSnapshot::Take(*Blueprint)); }

	/** What an edit did, a line each. */
	FLines After(const std::function<void()>& Edit) const
	{
		const TSharedRef<const FBlueprintSnapshot> Before = Take();
		Edit();
		return Describe(FBlueprintDiff::Compare(Before, Take()));
	}

	void AddVariable(const TCHAR* Name, const TCHAR* Default = TEXT(""))
	{
		FBlueprintEditorUtils::AddMemberVariable(Blueprint, Name, GetReal(), Default);
	}

	UEdGraphNode* AddGet(const TCHAR* Variable)
	{
		return Add<UK2Node_VariableGet>([&](UK2Node_VariableGet& Node)
			{ Node.VariableReference.SetSelfMember(Variable); });
	}

	UEdGraph* AddFunction(const TCHAR* Name)
	{
		UEdGraph* const Made =
			FBlueprintEditorUtils::CreateNewGraph(Blueprint, Name, UEdGraph::StaticClass(), UEdGraphSchema_K2::StaticClass());
		FBlueprintEditorUtils::AddFunctionGraph<UClass>(Blueprint, Made, true, nullptr);
		return Made;
	}

	UEdGraphNode* AddOwnCall(const TCHAR* Function)
	{
		return Add<UK2Node_CallFunction>([&](UK2Node_CallFunction& Call)
			{ Call.FunctionReference.SetSelfMember(Function); });
	}
};
}

TEST_F(BlueprintDiff, NodesAndWiresAreToldByTheirIds)
{
	UEdGraphNode* const Event = AddEvent(TEXT("Go"));
	UEdGraphNode* const First = AddPrint(TEXT("same"));
	UEdGraphNode* Second = nullptr;
	EXPECT_THAT(After([&]
					{
						Second = AddPrint(TEXT("same"));
						Link(Event, Second); }),
		UnorderedElementsAre("+ node Print String", "+ wire Go.then > Print String.execute"));
	EXPECT_THAT(After([&]
					{ First->FindPinChecked(TEXT("InString"))->DefaultValue = TEXT("other"); }),
		ElementsAre("~ node Print String; pin_value In String: same > other"));
	EXPECT_THAT(After([&]
					{
						Remove(Second);
						Second = AddPrint(TEXT("same"));
						Link(Event, Second); }),
		UnorderedElementsAre("- node Print String", "+ node Print String", "- wire Go.then > Print String.execute",
			"+ wire Go.then > Print String.execute"))
		<< "a node like another is not that other";
}

TEST_F(BlueprintDiff, WhereNodesStandAndWhatTheirObjectsAreCalledIsNoChange)
{
	UEdGraphNode* const Event = AddEvent(TEXT("Go"));
	UEdGraphNode* const Print = AddPrint(TEXT("a"));
	Link(Event, Print);
	EXPECT_THAT(After([&]
					{
						Print->NodePosX += 500;
						Print->Rename(TEXT("K2Node_CallFunction_700"));
						Graph->Nodes.Swap(Graph->Nodes.Find(Event), Graph->Nodes.Find(Print));
						Print->ReconstructNode();
						FKismetEditorUtilities::CompileBlueprint(Blueprint); }),
		IsEmpty());
}

TEST_F(BlueprintDiff, NodesWithoutIdsAreToldByTheirNames)
{
	UEdGraphNode* const First = AddPrint(TEXT("a"));
	UEdGraphNode* const Second = AddPrint(TEXT("b"));
	First->NodeGuid = FGuid();
	Second->NodeGuid = FGuid();
	EXPECT_THAT(After([&]
					{ Second->FindPinChecked(TEXT("InString"))->DefaultValue = TEXT("c"); }),
		ElementsAre("~ node Print String; pin_value In String: b > c"));
	Second->NodeGuid = First->NodeGuid = FGuid::NewGuid();
	EXPECT_THAT(After([&]
					{ First->FindPinChecked(TEXT("InString"))->DefaultValue = TEXT("d"); }),
		ElementsAre("~ node Print String; pin_value In String: a > d"));
}

TEST_F(BlueprintDiff, CommentsAndWhetherANodeIsCompiledAreAspects)
{
	UEdGraphNode* const Print = AddPrint(TEXT("a"));
	EXPECT_THAT(After([&]
					{
						Print->NodeComment = TEXT("why");
						Print->DisableNode(); }),
		ElementsAre("~ node Print String; comment :  > why; enabled : enabled > disabled"));
}

TEST_F(BlueprintDiff, TheValueUnderAWireIsNoChange)
{
	UEdGraphNode* const Print = AddPrint(TEXT("a"));
	UEdGraphNode* const Text = AddCall(TEXT("KismetStringLibrary"), TEXT("Conv_IntToString"));
	Link(Text, TEXT("ReturnValue"), Print, TEXT("InString"));
	EXPECT_THAT(After([&]
					{ Print->FindPinChecked(TEXT("InString"))->DefaultValue = TEXT("nobody sees it"); }),
		IsEmpty());
}

TEST_F(BlueprintDiff, OneWireOfManyIsFound)
{
	std::vector<UEdGraphNode*> Prints;
	UEdGraphNode* const Text = AddCall(TEXT("KismetStringLibrary"), TEXT("Conv_IntToString"));
	for (int32 Index = 0; Index < 100; ++Index)
	{
		Prints.push_back(AddPrint(*FString::FromInt(Index)));
		Link(Text, TEXT("ReturnValue"), Prints.back(), TEXT("InString"));
	}
	EXPECT_THAT(After([&]
					{ Prints[50]->FindPinChecked(TEXT("InString"))->BreakAllPinLinks(); }),
		ElementsAre("- wire To String (Integer).ReturnValue > Print String.InString"));
}

TEST_F(BlueprintDiff, VariablesComeGoAndChange)
{
	EXPECT_THAT(After([&]
					{ AddVariable(TEXT("Health"), TEXT("100.0")); }),
		ElementsAre("+ variable Health"));
	EXPECT_THAT(After([&]
					{ FKismetEditorUtilities::CompileBlueprint(Blueprint); }),
		IsEmpty())
		<< "the class has the value then in its own form";
	EXPECT_THAT(After([&]
					{
						FBlueprintEditorUtils::SetBlueprintVariableCategory(Blueprint, TEXT("Health"), nullptr, FText::FromString(TEXT("Body")));
						FBlueprintEditorUtils::SetBlueprintOnlyEditableFlag(Blueprint, TEXT("Health"), false); }),
		ElementsAre("~ variable Health; category: Default > Body; instance editable:  > yes"));
	EXPECT_THAT(After([&]
					{
						UObject* const Defaults = Blueprint->GeneratedClass->GetDefaultObject();
						*FindFProperty<FDoubleProperty>(Blueprint->GeneratedClass, TEXT("Health"))->ContainerPtrToValuePtr<double>(Defaults) = 7.5; }),
		ElementsAre("~ variable Health; default: 100 > 7.5"));
	EXPECT_THAT(After([&]
					{ FBlueprintEditorUtils::ChangeMemberVariableType(Blueprint, TEXT("Health"), MakeType(UEdGraphSchema_K2::PC_String)); }),
		ElementsAre(testing::StartsWith("~ variable Health; type: Float (double-precision) > String")));
	EXPECT_THAT(After([&]
					{ FBlueprintEditorUtils::RemoveMemberVariable(Blueprint, TEXT("Health")); }),
		ElementsAre("- variable Health"));
}

TEST_F(BlueprintDiff, ADefaultIsToldBeforeAndAfterTheCompile)
{
	const FEdGraphPinType Vector(UEdGraphSchema_K2::PC_Struct, NAME_None, FindObject<UScriptStruct>(nullptr, TEXT("/Script/CoreUObject.Vector")), EPinContainerType::None, false,
		FEdGraphTerminalType());
	AddVariable(TEXT("Health"));
	FBlueprintEditorUtils::AddMemberVariable(Blueprint, TEXT("Place"), Vector);
	EXPECT_THAT(After([&]
					{ FKismetEditorUtilities::CompileBlueprint(Blueprint); }),
		IsEmpty())
		<< "nobody wrote a default";
	AddVariable(TEXT("Speed"));
	const int32 Speed = FBlueprintEditorUtils::FindNewVariableIndex(Blueprint, TEXT("Speed"));
	EXPECT_THAT(After([&]
					{ Blueprint->NewVariables[Speed].DefaultValue = TEXT("5.0"); }),
		ElementsAre("~ variable Speed; default:  > 5"));
}

TEST_F(BlueprintDiff, NodesOfARenamedVariableFollowIt)
{
	AddVariable(TEXT("Health"));
	FKismetEditorUtilities::CompileBlueprint(Blueprint);
	UEdGraphNode* const Get = AddGet(TEXT("Health"));
	UEdGraphNode* const Commented = AddGet(TEXT("Health"));
	EXPECT_THAT(After([&]
					{
						Commented->NodeComment = TEXT("why");
						FBlueprintEditorUtils::RenameMemberVariable(Blueprint, TEXT("Health"), TEXT("Life")); }),
		UnorderedElementsAre("~ variable Life was Health", "~ node Get Life follows",
			"~ node Get Life; title : Get Health > Get Life; comment :  > why; pin Life: Health > Life"));
	ASSERT_NE(Get, nullptr);
}

TEST_F(BlueprintDiff, FunctionsComeGoAndAreRenamedWithTheirCalls)
{
	UEdGraph* Function = nullptr;
	EXPECT_THAT(After([&]
					{ Function = AddFunction(TEXT("Shout")); }),
		ElementsAre("+ function Shout", "+ node Shout"));
	FKismetEditorUtilities::CompileBlueprint(Blueprint);
	AddOwnCall(TEXT("Shout"));
	EXPECT_THAT(After([&]
					{ FBlueprintEditorUtils::RenameGraph(Function, TEXT("Whisper")); }),
		UnorderedElementsAre("~ function Whisper", "~ node Whisper follows", "~ node Whisper follows"));
	EXPECT_THAT(After([&]
					{ FBlueprintEditorUtils::RemoveGraph(Blueprint, Function); }),
		testing::Contains("- function Whisper"));
}

TEST_F(BlueprintDiff, AParameterThatGoesLeavesOrphansAtItsCalls)
{
	UEdGraph* const Function = AddFunction(TEXT("Shout"));
	UK2Node_EditablePinBase* const Entry = FBlueprintEditorUtils::GetEntryNode(Function);
	EXPECT_THAT(After([&]
					{ Entry->CreateUserDefinedPin(TEXT("Loudness"), GetReal(), EGPD_Output); }),
		ElementsAre("~ node Shout; pin Loudness:  > Loudness"));
	FKismetEditorUtilities::CompileBlueprint(Blueprint);
	UEdGraphNode* const Call = AddOwnCall(TEXT("Shout"));
	Call->FindPinChecked(TEXT("Loudness"))->DefaultValue = TEXT("3.0");
	EXPECT_THAT(After([&]
					{
						Entry->RemoveUserDefinedPinByName(TEXT("Loudness"));
						FBlueprintEditorUtils::MarkBlueprintAsStructurallyModified(Blueprint);
						Call->ReconstructNode(); }),
		UnorderedElementsAre("~ node Shout; pin Loudness: Loudness > ", "~ node Shout; orphan Loudness: defined > orphaned"));
}

TEST_F(BlueprintDiff, DeclarationsOfEventsAndFunctionsAreAspects)
{
	UK2Node_CustomEvent* const Event = AddEvent(TEXT("Go"));
	EXPECT_THAT(After([&]
					{
						Event->FunctionFlags |= FUNC_Net | FUNC_NetServer;
						Event->bCallInEditor = true; }),
		ElementsAre("~ node Go; declaration runs:  > on the server; declaration call in editor:  > yes"));
	UK2Node_FunctionEntry* const Entry = Cast<UK2Node_FunctionEntry>(FBlueprintEditorUtils::GetEntryNode(AddFunction(TEXT("Shout"))));
	EXPECT_THAT(After([&]
					{
						Entry->MetaData.ToolTip = FText::FromString(TEXT("Loud"));
						FBPVariableDescription& Local = Entry->LocalVariables.AddDefaulted_GetRef();
						Local.VarName = TEXT("Count");
						Local.VarGuid = FGuid::NewGuid();
						Local.VarType = GetReal(); }),
		UnorderedElementsAre("~ node Shout; declaration description:  > Loud", "+ local variable Count"));
}

TEST_F(BlueprintDiff, ComponentsAndClassDefaultsAreToldByTheirValues)
{
	USimpleConstructionScript* const Script = Blueprint->SimpleConstructionScript;
	USCS_Node* Lamp = nullptr;
	EXPECT_THAT(After([&]
					{
						Lamp = Script->CreateNode(USceneComponent::StaticClass(), TEXT("Lamp"));
						Script->AddNode(Lamp); }),
		testing::Contains("+ component Lamp"));
	EXPECT_THAT(After([&]
					{ CastChecked<USceneComponent>(Lamp->ComponentTemplate)->SetRelativeLocation(FVector(0.0, 0.0, 50.0)); }),
		ElementsAre("~ component Lamp; RelativeLocation:  > (X=0.000000,Y=0.000000,Z=50.000000)"));
	FKismetEditorUtilities::CompileBlueprint(Blueprint);
	EXPECT_THAT(After([&]
					{
						AActor* const Defaults = CastChecked<AActor>(Blueprint->GeneratedClass->GetDefaultObject());
						Defaults->InitialLifeSpan = 3.0f; }),
		ElementsAre("~ InitialLifeSpan:  > 3.000000"));
}

TEST_F(BlueprintDiff, AnInheritedComponentIsToldByWhatTheChildMakesOfIt)
{
	USimpleConstructionScript* const Script = Blueprint->SimpleConstructionScript;
	USCS_Node* const Lamp = Script->CreateNode(USceneComponent::StaticClass(), TEXT("Lamp"));
	Script->AddNode(Lamp);
	CastChecked<USceneComponent>(Lamp->ComponentTemplate)->SetRelativeLocation(FVector(0.0, 0.0, 50.0));
	FKismetEditorUtilities::CompileBlueprint(Blueprint);
	const FString Name = Blueprint->GetName() + TEXT("_Child");
	UBlueprint* const Parent = Blueprint;
	Blueprint = FKismetEditorUtilities::CreateBlueprint(
		Parent->GeneratedClass, CreatePackage(*(TEXT("/Game/") + Name)), FName(*Name), BPTYPE_Normal);
	EXPECT_THAT(After([&]
					{
						UInheritableComponentHandler* const Handler = Blueprint->GetInheritableComponentHandler(true);
						UActorComponent* const Template = Handler->CreateOverridenComponentTemplate(FComponentKey(Lamp));
						CastChecked<USceneComponent>(Template)->SetRelativeLocation(FVector(0.0, 0.0, 9.0)); }),
		ElementsAre("~ component Lamp; RelativeLocation: (X=0.000000,Y=0.000000,Z=50.000000) > (X=0.000000,Y=0.000000,Z=9.000000)"));
	Blueprint = Parent;
}

TEST_F(BlueprintDiff, AnEventThatTheEditorOfferedComesWhenItIsLinked)
{
	UEdGraphNode* const Ghost = AddEvent(TEXT("Offered"));
	Ghost->MakeAutomaticallyPlacedGhostNode();
	UEdGraphNode* const Print = AddPrint(TEXT("a"));
	EXPECT_THAT(After([&]
					{
						GetDefault<UEdGraphSchema_K2>()->TryCreateConnection(Ghost->FindPinChecked(TEXT("then")), Print->FindPinChecked(TEXT("execute")));
						Ghost->EnableNode(); }),
		ElementsAre("+ node Offered", "+ wire Offered.then > Print String.execute"));
	EXPECT_THAT(After([&]
					{ AddEvent(TEXT("Another"))->MakeAutomaticallyPlacedGhostNode(); }),
		IsEmpty());
}

TEST_F(BlueprintDiff, AWatchSeesEditsAndUndoAndNothingElse)
{
	AddVariable(TEXT("Health"));
	FKismetEditorUtilities::CompileBlueprint(Blueprint);
	FBlueprintWatch Watch;
	const auto TakeLines = [&Watch]
	{
		const TArray<FBlueprintDiff> Diffs = Watch.TakeDiffs();
		return Diffs.IsEmpty() ? FLines() : Describe(Diffs[0]);
	};
	EXPECT_THAT(TakeLines(), IsEmpty());
	{
		const FScopedTransaction Transaction(INVTEXT("Edit"));
		AddPrint(TEXT("a"));
		FBlueprintEditorUtils::RenameMemberVariable(Blueprint, TEXT("Health"), TEXT("Life"));
	}
	EXPECT_THAT(TakeLines(), UnorderedElementsAre("~ variable Life was Health", "+ node Print String"));
	EXPECT_THAT(TakeLines(), IsEmpty()) << "what was taken is not told again";
	ASSERT_TRUE(GEditor->UndoTransaction());
	EXPECT_THAT(TakeLines(), UnorderedElementsAre("~ variable Health was Life", "- node Print String"));
	ASSERT_TRUE(GEditor->RedoTransaction());
	EXPECT_THAT(TakeLines(), UnorderedElementsAre("~ variable Life was Health", "+ node Print String"));
	AddPrint(TEXT("b"));
	Watch.Forget();
	EXPECT_THAT(TakeLines(), IsEmpty());
}
