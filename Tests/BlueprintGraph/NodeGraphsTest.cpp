#include "GraphFixture.h"

#include "Containers/StringConv.h"
#include "EdGraphUtilities.h"
#include "Engine/TimelineTemplate.h"
#include "K2Node_AddDelegate.h"
#include "K2Node_AsyncAction.h"
#include "K2Node_CallDelegate.h"
#include "K2Node_Composite.h"
#include "K2Node_CreateDelegate.h"
#include "K2Node_CustomEvent.h"
#include "K2Node_IfThenElse.h"
#include "K2Node_Timeline.h"
#include "Kismet2/BlueprintEditorUtils.h"
#include "UObject/NoExportTypes.h"
#include "UObject/UnrealType.h"

namespace
{
using Schema_K2 = UEdGraphSchema_K2;

/** Nodes with something of their own in the Blueprint: a graph, a timeline, a dispatcher, a task. */
class FNodeGraphsTest : public FGraphTest
{
protected:
	static FEdGraphPinType MakeType(const FName Category)
	{
		FEdGraphPinType Type;
		Type.PinCategory = Category;
		return Type;
	}

	TArray<UEdGraphNode*> CopyAndPaste(const TSet<UObject*>& Nodes, UEdGraph* Target)
	{
		FString Text;
		FEdGraphUtilities::ExportNodesToText(Nodes, Text);
		TSet<UEdGraphNode*> Pasted;
		FEdGraphUtilities::ImportNodesFromText(Target, Text, Pasted);
		FEdGraphUtilities::PostProcessPastedNodes(Pasted);
		return Pasted.Array();
	}

	/** A collapsed graph that branches: an execution and a condition in, two ways out. */
	UK2Node_Composite* MakeCollapsedBranch()
	{
		UK2Node_Composite* const Composite = Add<UK2Node_Composite>();
		UEdGraphPin* const Run = Composite->GetEntryNode()->CreateUserDefinedPin(TEXT("Run"), MakeType(Schema_K2::PC_Exec), EGPD_Output);
		UEdGraphPin* const If = Composite->GetEntryNode()->CreateUserDefinedPin(TEXT("If"), MakeType(Schema_K2::PC_Boolean), EGPD_Output);
		UEdGraphPin* const Yes = Composite->GetExitNode()->CreateUserDefinedPin(TEXT("Yes"), MakeType(Schema_K2::PC_Exec), EGPD_Input);
		FGraphNodeCreator<UK2Node_IfThenElse> Creator(*Composite->BoundGraph);
		const UK2Node_IfThenElse* const Branch = Creator.CreateNode(false);
		Creator.Finalize();
		EXPECT_TRUE(Schema().TryCreateConnection(Run, Branch->GetExecPin()));
		EXPECT_TRUE(Schema().TryCreateConnection(If, Branch->GetConditionPin()));
		EXPECT_TRUE(Schema().TryCreateConnection(Branch->GetThenPin(), Yes));
		Composite->ReconstructNode();
		return Composite;
	}

	static const UK2Node_IfThenElse* FindBranch(const UK2Node_Composite& Composite)
	{
		TArray<UK2Node_IfThenElse*> Branches;
		Composite.BoundGraph->GetNodesOfClass(Branches);
		return Branches.Num() == 1 ? Branches[0] : nullptr;
	}

	UK2Node_Timeline* MakeTimeline()
	{
		UK2Node_Timeline* const Node = Add<UK2Node_Timeline>();
		UTimelineTemplate* const Template = Node->GetTemplate();
		Template->FloatTracks.AddDefaulted_GetRef().SetTrackName(TEXT("Angle"), Template);
		Template->VectorTracks.AddDefaulted_GetRef().SetTrackName(TEXT("Place"), Template);
		Template->EventTracks.AddDefaulted_GetRef().SetTrackName(TEXT("Click"), Template);
		Template->TimelineLength = 2.5f;
		Node->ReconstructNode();
		return Node;
	}

	/** An event dispatcher of the Blueprint with one integer. */
	UEdGraph* AddDispatcher(const TCHAR* Name)
	{
		FBlueprintEditorUtils::AddMemberVariable(Blueprint, Name, MakeType(Schema_K2::PC_MCDelegate));
		UEdGraph* const Signature = FBlueprintEditorUtils::CreateNewGraph(
			Blueprint, Name, UEdGraph::StaticClass(), Schema_K2::StaticClass());
		Schema().CreateFunctionGraphTerminators(*Signature, static_cast<UClass*>(nullptr));
		Schema().MarkFunctionEntryAsEditable(Signature, true);
		Blueprint->DelegateSignatureGraphs.Add(Signature);
		FBlueprintEditorUtils::GetEntryNode(Signature)->CreateUserDefinedPin(TEXT("Strength"), MakeType(Schema_K2::PC_Int), EGPD_Output);
		FKismetEditorUtilities::CompileBlueprint(Blueprint, EBlueprintCompileOptions::SkipGarbageCollection);
		return Signature;
	}

	template <class NodeType>
	NodeType* AddForDispatcher(const TCHAR* Name)
	{
		return Add<NodeType>([Name](NodeType& Node)
			{ Node.DelegateReference.SetSelfMember(Name); });
	}
};

TEST_F(FNodeGraphsTest, CollapsedGraphHasThePinsOfItsEnds)
{
	UK2Node_Composite* const Composite = MakeCollapsedBranch();
	EXPECT_NE(Composite->FindPin(TEXT("Run"), EGPD_Input), nullptr);
	EXPECT_NE(Composite->FindPin(TEXT("If"), EGPD_Input), nullptr);
	EXPECT_NE(Composite->FindPin(TEXT("Yes"), EGPD_Output), nullptr);
	EXPECT_EQ(Composite->GetEntryNode()->InputSinkNode, Composite);
	EXPECT_EQ(Composite->GetExitNode()->OutputSourceNode, Composite);
	EXPECT_TRUE(Graph->SubGraphs.Contains(Composite->BoundGraph));
	FText Error;
	EXPECT_FALSE(Composite->GetEntryNode()->CanCreateUserDefinedPin(MakeType(Schema_K2::PC_Int), EGPD_Input, Error));
	EXPECT_EQ(Error.ToString(), FString(TEXT("Cannot add input pins to entry node!")));
}

TEST_F(FNodeGraphsTest, CopyOfACollapsedGraphHasAGraphOfItsOwn)
{
	UK2Node_Composite* const Composite = MakeCollapsedBranch();
	Composite->OnRenameNode(TEXT("Decide"));
	UK2Node_CallFunction* const Source = Call(TEXT("/Script/Engine.KismetMathLibrary"), TEXT("RandomBool"));
	ASSERT_TRUE(Schema().TryCreateConnection(Source->GetReturnValuePin(), Composite->FindPin(TEXT("If"))));
	const TArray<UEdGraphNode*> Pasted = CopyAndPaste({Composite, Source}, Graph);
	ASSERT_EQ(Pasted.Num(), 2);
	const UK2Node_Composite* const Copy = Cast<UK2Node_Composite>(Pasted[0]) ? Cast<UK2Node_Composite>(Pasted[0])
																			 : Cast<UK2Node_Composite>(Pasted[1]);
	ASSERT_TRUE(Copy && Copy->BoundGraph);
	EXPECT_NE(Copy->BoundGraph, Composite->BoundGraph);
	EXPECT_EQ(Copy->BoundGraph->GetOuter(), Copy);
	EXPECT_EQ(Copy->GetNodeTitle(ENodeTitleType::ListView).ToString(), FString(TEXT("Decide_0")));
	EXPECT_TRUE(Graph->SubGraphs.Contains(Copy->BoundGraph));
	ASSERT_NE(Copy->FindPin(TEXT("If")), nullptr);
	EXPECT_EQ(Copy->FindPin(TEXT("If"))->LinkedTo.Num(), 1);
	EXPECT_EQ(Copy->GetEntryNode()->InputSinkNode, Copy);
	const UK2Node_IfThenElse* const Branch = FindBranch(*Copy);
	ASSERT_NE(Branch, nullptr);
	EXPECT_NE(Branch->NodeGuid, FindBranch(*Composite)->NodeGuid);
	ASSERT_EQ(Branch->GetConditionPin()->LinkedTo.Num(), 1);
	EXPECT_EQ(Branch->GetConditionPin()->LinkedTo[0]->GetOwningNode(), Copy->GetEntryNode());
}

TEST_F(FNodeGraphsTest, CollapsedGraphGoesWithItsNode)
{
	UK2Node_Composite* const Composite = MakeCollapsedBranch();
	UK2Node_Composite* const Sibling = Add<UK2Node_Composite>();
	const FString Name = Composite->BoundGraph->GetName();
	Sibling->OnRenameNode(Name);
	EXPECT_NE(Sibling->BoundGraph->GetName(), Name);
	Composite->DestroyNode();
	EXPECT_EQ(Graph->SubGraphs, TArray<TObjectPtr<UEdGraph>>({Sibling->BoundGraph}));
	Sibling->OnRenameNode(Name);
	EXPECT_EQ(Sibling->BoundGraph->GetName(), Name);
}

TEST_F(FNodeGraphsTest, TimelineHasAPinForEachTrack)
{
	UK2Node_Timeline* const Node = MakeTimeline();
	ASSERT_TRUE(Node->FindPin(TEXT("Angle")) && Node->FindPin(TEXT("Place")) && Node->FindPin(TEXT("Click")));
	EXPECT_EQ(Node->FindPin(TEXT("Angle"))->PinType.PinSubCategory, Schema_K2::PC_Float);
	EXPECT_EQ(Node->FindPin(TEXT("Place"))->PinType.PinSubCategoryObject.Get(), TBaseStructure<FVector>::Get());
	EXPECT_TRUE(Schema_K2::IsExecPin(*Node->FindPin(TEXT("Click"))));
	ASSERT_TRUE(Schema().TryCreateConnection(Node->FindPin(TEXT("Click")), Add<UK2Node_IfThenElse>()->GetExecPin()));
	Node->GetTemplate()->EventTracks.Empty();
	Node->GetTemplate()->FloatTracks.Empty();
	Node->ReconstructNode();
	EXPECT_EQ(Node->FindPin(TEXT("Angle")), nullptr);
	ASSERT_NE(Node->FindPin(TEXT("Click")), nullptr);
	EXPECT_TRUE(Node->FindPin(TEXT("Click"))->bOrphanedPin);
}

TEST_F(FNodeGraphsTest, CopyOfATimelineRunsByItself)
{
	UK2Node_Timeline* const Node = MakeTimeline();
	const TArray<UEdGraphNode*> Pasted = CopyAndPaste({Node}, Graph);
	ASSERT_EQ(Pasted.Num(), 1);
	const UK2Node_Timeline* const Copy = CastChecked<UK2Node_Timeline>(Pasted[0]);
	ASSERT_NE(Copy->GetTemplate(), nullptr);
	EXPECT_NE(Copy->GetTemplate(), Node->GetTemplate());
	EXPECT_NE(Copy->TimelineName, Node->TimelineName);
	EXPECT_NE(Copy->TimelineGuid, Node->TimelineGuid);
	EXPECT_EQ(Copy->GetTemplate()->TimelineGuid, Copy->TimelineGuid);
	EXPECT_EQ(Copy->GetTemplate()->TimelineLength, 2.5f);
	EXPECT_EQ(Blueprint->Timelines.Num(), 2);
	EXPECT_NE(Copy->FindPin(TEXT("Place")), nullptr);
}

TEST_F(FNodeGraphsTest, TimelineOfAnUnknownBlueprintGetsTracksForItsPins)
{
	UK2Node_Timeline* const Node = MakeTimeline();
	FString Text;
	FEdGraphUtilities::ExportNodesToText({Node}, Text);
	FBlueprintEditorUtils::RemoveNode(Blueprint, Node, true);
	EXPECT_EQ(Blueprint->Timelines.Num(), 0);
	// No timeline that is here has this id.
	Text = Text.Replace(*Node->TimelineGuid.ToString(), TEXT("0123456789ABCDEF0123456789ABCDEF"));
	TSet<UEdGraphNode*> Pasted;
	FEdGraphUtilities::ImportNodesFromText(Graph, Text, Pasted);
	FEdGraphUtilities::PostProcessPastedNodes(Pasted);
	ASSERT_EQ(Pasted.Num(), 1);
	const UK2Node_Timeline* const Copy = CastChecked<UK2Node_Timeline>(*Pasted.begin());
	const UTimelineTemplate* const Template = Copy->GetTemplate();
	ASSERT_NE(Template, nullptr);
	EXPECT_EQ(Copy->TimelineName, FName(TEXT("Timeline"))) << "the name is free again";
	ASSERT_TRUE(Template->FloatTracks.Num() == 1 && Template->VectorTracks.Num() == 1 && Template->EventTracks.Num() == 1);
	EXPECT_EQ(Template->FloatTracks[0].GetTrackName(), FName(TEXT("Angle")));
	EXPECT_NE(Template->FloatTracks[0].CurveFloat, nullptr);
	for (const TCHAR* const Track : {TEXT("Angle"), TEXT("Place"), TEXT("Click")})
	{
		EXPECT_TRUE(Copy->FindPin(Track) && !Copy->FindPin(Track)->bOrphanedPin) << TCHAR_TO_UTF8(Track);
	}
}

TEST_F(FNodeGraphsTest, NodesOfADispatcherFollowItsSignature)
{
	UEdGraph* const Signature = AddDispatcher(TEXT("OnRing"));
	UK2Node_CallDelegate* const Caller = AddForDispatcher<UK2Node_CallDelegate>(TEXT("OnRing"));
	UK2Node_AddDelegate* const Bind = AddForDispatcher<UK2Node_AddDelegate>(TEXT("OnRing"));
	ASSERT_NE(Caller->FindPin(TEXT("Strength"), EGPD_Input), nullptr);
	ASSERT_NE(Bind->GetDelegatePin(), nullptr);
	EXPECT_EQ(Bind->GetDelegatePin()->PinType.PinSubCategoryMemberReference.MemberName, FName(TEXT("OnRing__DelegateSignature")));

	UK2Node_CustomEvent* const Matching = Add<UK2Node_CustomEvent>([](UK2Node_CustomEvent& Node)
		{ Node.CustomFunctionName = TEXT("Matching"); });
	Matching->CreateUserDefinedPin(TEXT("Value"), MakeType(Schema_K2::PC_Int), EGPD_Output);
	FKismetEditorUtilities::CompileBlueprint(Blueprint, EBlueprintCompileOptions::SkipGarbageCollection);
	EXPECT_TRUE(Schema().TryCreateConnection(Matching->FindPin(UK2Node_Event::DelegateOutputName), Bind->GetDelegatePin()));

	FBlueprintEditorUtils::GetEntryNode(Signature)->CreateUserDefinedPin(TEXT("Loud"), MakeType(Schema_K2::PC_Boolean), EGPD_Output);
	FKismetEditorUtilities::CompileBlueprint(Blueprint, EBlueprintCompileOptions::SkipGarbageCollection);
	Schema().TrySetDefaultValue(*Caller->FindPinChecked(TEXT("Strength")), TEXT("3"));
	Caller->ReconstructNode();
	EXPECT_NE(Caller->FindPin(TEXT("Loud"), EGPD_Input), nullptr);
	EXPECT_EQ(Caller->FindPinChecked(TEXT("Strength"))->DefaultValue, FString(TEXT("3")));
	Bind->ReconstructNode();
	EXPECT_EQ(Bind->GetDelegatePin()->LinkedTo.Num(), 1) << "the compiler says that the event does not fit any more";
}

TEST_F(FNodeGraphsTest, CreatedEventHasTheSignatureOfWhatItIsBoundTo)
{
	AddDispatcher(TEXT("OnRing"));
	const UK2Node_AddDelegate* const Bind = AddForDispatcher<UK2Node_AddDelegate>(TEXT("OnRing"));
	UK2Node_CreateDelegate* const Create = Add<UK2Node_CreateDelegate>();
	Create->SetFunction(TEXT("Heard"));
	ASSERT_TRUE(Schema().TryCreateConnection(Create->GetDelegateOutPin(), Bind->GetDelegatePin()));
	EXPECT_EQ(Create->GetDelegateOutPin()->PinType.PinSubCategoryMemberReference.MemberName, FName(TEXT("OnRing__DelegateSignature")));
	Create->ReconstructNode();
	EXPECT_EQ(Create->GetDelegateOutPin()->LinkedTo.Num(), 1);
	EXPECT_EQ(Create->GetFunctionName(), FName(TEXT("Heard")));
	const TArray<UEdGraphNode*> Pasted = CopyAndPaste({Create}, Graph);
	ASSERT_EQ(Pasted.Num(), 1);
	EXPECT_EQ(CastChecked<UK2Node_CreateDelegate>(Pasted[0])->GetFunctionName(), FName(TEXT("Heard")));
}

TEST_F(FNodeGraphsTest, TaskHasItsEventsAndTheParametersOfItsFunction)
{
	const UClass* const Factory = FindObject<UClass>(nullptr, TEXT("/Script/Engine.AsyncActionChangePrimaryAssetBundles"));
	ASSERT_NE(Factory, nullptr);
	UK2Node_AsyncAction* const Task = Add<UK2Node_AsyncAction>([Factory](UK2Node_AsyncAction& Node)
		{ Node.InitializeProxyFromFunction(Factory->FindFunctionByName(TEXT("AsyncChangeBundleStateForPrimaryAssetList"))); });
	EXPECT_TRUE(Task->FindPin(TEXT("Completed"), EGPD_Output) && Schema_K2::IsExecPin(*Task->FindPin(TEXT("Completed"))));
	EXPECT_NE(Task->FindPin(TEXT("AddBundles"), EGPD_Input), nullptr);
	EXPECT_EQ(Task->FindPin(TEXT("AsyncTaskProxy")), nullptr);
	ASSERT_TRUE(Schema().TryCreateConnection(Task->FindPin(TEXT("Completed")), Add<UK2Node_IfThenElse>()->GetExecPin()));

	// A task that can be given up shows itself, so that the user can do so.
	const FObjectProperty* const ProxyClass = FindFProperty<FObjectProperty>(Task->GetClass(), TEXT("ProxyClass"));
	ProxyClass->SetObjectPropertyValue_InContainer(Task, FindObject<UClass>(nullptr, TEXT("/Script/Engine.CancellableAsyncAction")));
	Task->ReconstructNode();
	const UEdGraphPin* const Proxy = Task->FindPin(TEXT("AsyncTaskProxy"), EGPD_Output);
	ASSERT_NE(Proxy, nullptr);
	EXPECT_EQ(Proxy->PinFriendlyName.ToString(), FString(TEXT("Async Action")));
	ASSERT_NE(Task->FindPin(TEXT("Completed")), nullptr);
	EXPECT_TRUE(Task->FindPin(TEXT("Completed"))->bOrphanedPin) << "that class has no such event";
}
}
