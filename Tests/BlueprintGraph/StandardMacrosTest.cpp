#include "GraphFixture.h"

#include "Containers/StringConv.h"
#include "EdGraphUtilities.h"
#include "K2Node_AssignmentStatement.h"
#include "K2Node_IfThenElse.h"
#include "K2Node_MacroInstance.h"

#include <set>

namespace
{
class FStandardMacrosTest : public FGraphTest
{
protected:
	/** Nodes that execution can reach from the macro's inputs. */
	static std::set<const UEdGraphNode*> Reach(const UK2Node_Tunnel* Entry)
	{
		std::set<const UEdGraphNode*> Reached;
		std::vector<const UEdGraphNode*> Open = {Entry};
		while (!Open.empty())
		{
			const UEdGraphNode* const Node = Open.back();
			Open.pop_back();
			if (!Reached.insert(Node).second)
			{
				continue;
			}
			for (const UEdGraphPin* const Pin : Node->Pins)
			{
				for (const UEdGraphPin* const Linked : Pin->LinkedTo)
				{
					if (Pin->Direction == EGPD_Output && UEdGraphSchema_K2::IsExecPin(*Pin))
					{
						Open.push_back(Linked->GetOwningNode());
					}
				}
			}
		}
		return Reached;
	}

	static TArray<UEdGraph*> GetAll()
	{
		TArray<UEdGraph*> Graphs;
		for (const TCHAR* const Path : {TEXT("/Engine/EditorBlueprintResources/StandardMacros.StandardMacros"),
				 TEXT("/Engine/EditorBlueprintResources/ActorMacros.ActorMacros")})
		{
			const UBlueprint* const Library = FindObject<UBlueprint>(nullptr, Path);
			for (UEdGraph* const Macro : Library ? Library->MacroGraphs : TArray<TObjectPtr<UEdGraph>>())
			{
				Graphs.Add(Macro);
			}
		}
		return Graphs;
	}
};

TEST_F(FStandardMacrosTest, EveryMacroIsWiredFromItsInputsToItsOutputs)
{
	const TArray<UEdGraph*> Macros = GetAll();
	EXPECT_EQ(Macros.Num(), 13);
	for (const UEdGraph* const Macro : Macros)
	{
		SCOPED_TRACE(TCHAR_TO_UTF8(*Macro->GetName()));
		const UK2Node_Tunnel* const Entry = UK2Node_MacroInstance::FindTunnel(Macro, true);
		const UK2Node_Tunnel* const Exit = UK2Node_MacroInstance::FindTunnel(Macro, false);
		ASSERT_TRUE(Entry && Exit);
		const std::set<const UEdGraphNode*> Reached = Reach(Entry);
		EXPECT_TRUE(Reached.contains(Exit));
		for (const UK2Node_Tunnel* const Tunnel : {Entry, Exit})
		{
			for (const UEdGraphPin* const Pin : Tunnel->Pins)
			{
				EXPECT_GT(Pin->LinkedTo.Num(), 0) << TCHAR_TO_UTF8(*Pin->PinName.ToString());
			}
		}
		for (const UEdGraphNode* const Node : Macro->Nodes)
		{
			const UK2Node* const K2 = CastChecked<UK2Node>(Node);
			EXPECT_TRUE(K2->IsNodePure() || Reached.contains(Node))
				<< "is never executed: " << TCHAR_TO_UTF8(*Node->GetNodeTitle(ENodeTitleType::ListView).ToString());
			for (const UEdGraphPin* const Pin : Node->Pins)
			{
				for (const UEdGraphPin* const Linked : Pin->LinkedTo)
				{
					EXPECT_TRUE(Linked->LinkedTo.Contains(const_cast<UEdGraphPin*>(Pin)));
					EXPECT_TRUE(Schema().ArePinsCompatible(Pin, Linked))
						<< TCHAR_TO_UTF8(*Pin->GetName()) << " and " << TCHAR_TO_UTF8(*Linked->GetName());
				}
			}
		}
	}
}

TEST_F(FStandardMacrosTest, ReconstructionOfTheirNodesKeepsTheWires)
{
	for (UEdGraph* const Macro : GetAll())
	{
		SCOPED_TRACE(TCHAR_TO_UTF8(*Macro->GetName()));
		// A copy: the library is shared by the whole program.
		UEdGraph* const Copy = FEdGraphUtilities::CloneGraph(Macro, Blueprint);
		for (UEdGraphNode* const Node : TArray<UEdGraphNode*>(Copy->Nodes))
		{
			TArray<int32> Before;
			TArray<int32> After;
			for (const UEdGraphPin* const Pin : Node->Pins)
			{
				Before.Add(Pin->LinkedTo.Num());
			}
			Node->ReconstructNode();
			for (const UEdGraphPin* const Pin : Node->Pins)
			{
				After.Add(Pin->LinkedTo.Num());
			}
			EXPECT_EQ(After, Before) << TCHAR_TO_UTF8(*Node->GetNodeTitle(ENodeTitleType::ListView).ToString());
		}
	}
}

TEST_F(FStandardMacrosTest, LoopBodyRunsBeforeTheNextElement)
{
	const UEdGraph* const Loop = FStandardMacros::Find(TEXT("ForEachLoop"));
	const UK2Node_Tunnel* const Exit = UK2Node_MacroInstance::FindTunnel(Loop, false);
	const UEdGraphPin* const Body = Exit->FindPin(TEXT("LoopBody"));
	const UEdGraphPin* const Completed = Exit->FindPin(TEXT("Completed"));
	ASSERT_TRUE(Body && Completed && Body->LinkedTo.Num() == 1 && Completed->LinkedTo.Num() == 1);
	const UK2Node_IfThenElse* const Test = Cast<UK2Node_IfThenElse>(Completed->LinkedTo[0]->GetOwningNode());
	ASSERT_NE(Test, nullptr);
	EXPECT_EQ(Completed->LinkedTo[0], Test->GetElsePin());
	EXPECT_EQ(Body->LinkedTo[0]->PinName, FName(TEXT("then_0")));
	// What counts leads back to the test.
	const UEdGraphPin* const Next = Body->LinkedTo[0]->GetOwningNode()->FindPin(TEXT("then_1"));
	ASSERT_EQ(Next->LinkedTo.Num(), 1);
	const UK2Node_AssignmentStatement* const Step = Cast<UK2Node_AssignmentStatement>(Next->LinkedTo[0]->GetOwningNode());
	ASSERT_NE(Step, nullptr);
	EXPECT_EQ(Step->GetThenPin()->LinkedTo[0], Test->GetExecPin());
}
}
