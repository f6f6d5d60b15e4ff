#include "ActionDatabaseFixture.h"
#include "EditorAssetLibrary.h"
#include "Engine/SCS_Node.h"
#include "Engine/SimpleConstructionScript.h"
#include "K2Node_AddDelegate.h"
#include "K2Node_CallDelegate.h"
#include "K2Node_CallFunction.h"
#include "K2Node_CustomEvent.h"
#include "K2Node_MacroInstance.h"
#include "K2Node_Tunnel.h"
#include "K2Node_VariableGet.h"
#include "UObject/SavePackage.h"

namespace
{
/** What the database has of a Blueprint after each kind of change of it, without anybody telling it. */
class FActionDatabaseChangesTest : public FActionDatabaseTest
{
protected:
	/** How many actions of the node class there are whose titles hold the text. */
	int32 Count(const UClass* NodeClass, const TCHAR* Text) const
	{
		int32 Number = 0;
		for (UBlueprintNodeSpawner* const Action : GetActions(Blueprint))
		{
			const bool bIsOne = Action->NodeClass == NodeClass &&
				Action->PrimeDefaultUiSpec().MenuName.ToString().Contains(Text, ESearchCase::CaseSensitive);
			Number += bIsOne ? 1 : 0;
		}
		return Number;
	}

	UEdGraph* MakeGraph(const TCHAR* Name)
	{
		return FBlueprintEditorUtils::CreateNewGraph(Blueprint, FName(Name), UEdGraph::StaticClass(), UEdGraphSchema_K2::StaticClass());
	}
};

TEST_F(FActionDatabaseChangesTest, ADispatcherComesIsRenamedAndGoes)
{
	FEdGraphPinType Type;
	Type.PinCategory = UEdGraphSchema_K2::PC_MCDelegate;
	ASSERT_TRUE(FBlueprintEditorUtils::AddMemberVariable(Blueprint, TEXT("OnOpened"), Type));
	UEdGraph* const Signature = MakeGraph(TEXT("OnOpened"));
	Schema().CreateFunctionGraphTerminators(*Signature, static_cast<UClass*>(nullptr));
	Blueprint->DelegateSignatureGraphs.Add(Signature);
	FBlueprintEditorUtils::MarkBlueprintAsStructurallyModified(Blueprint);
	EXPECT_EQ(Count(UK2Node_CallDelegate::StaticClass(), TEXT("On Opened")), 1);
	EXPECT_EQ(Count(UK2Node_AddDelegate::StaticClass(), TEXT("On Opened")), 1);
	FBlueprintEditorUtils::RenameMemberVariable(Blueprint, TEXT("OnOpened"), TEXT("OnShut"));
	EXPECT_EQ(Count(UK2Node_CallDelegate::StaticClass(), TEXT("On Opened")), 0);
	EXPECT_EQ(Count(UK2Node_CallDelegate::StaticClass(), TEXT("On Shut")), 1);
	FBlueprintEditorUtils::RemoveMemberVariable(Blueprint, TEXT("OnShut"));
	EXPECT_EQ(Count(UK2Node_CallDelegate::StaticClass(), TEXT("On Shut")), 0);
}

TEST_F(FActionDatabaseChangesTest, AMacroComesIsRenamedAndGoesAndItsTemplateFollowsItsPins)
{
	UEdGraph* const Macro = MakeGraph(TEXT("Ring"));
	FBlueprintEditorUtils::AddMacroGraph(Blueprint, Macro, true, nullptr);
	ASSERT_EQ(Count(UK2Node_MacroInstance::StaticClass(), TEXT("Ring")), 1);
	EXPECT_EQ(Find(Blueprint, TEXT("Ring"))->GetTemplateNode()->FindPin(TEXT("Times")), nullptr);
	FEdGraphPinType Type;
	Type.PinCategory = UEdGraphSchema_K2::PC_Int;
	const_cast<UK2Node_Tunnel*>(UK2Node_MacroInstance::FindTunnel(Macro, true))->CreateUserDefinedPin(TEXT("Times"), Type, EGPD_Output);
	FBlueprintEditorUtils::MarkBlueprintAsStructurallyModified(Blueprint);
	EXPECT_NE(Find(Blueprint, TEXT("Ring"))->GetTemplateNode()->FindPin(TEXT("Times")), nullptr);
	ASSERT_TRUE(FBlueprintEditorUtils::RenameGraph(Macro, TEXT("Chime")));
	EXPECT_EQ(Count(UK2Node_MacroInstance::StaticClass(), TEXT("Ring")), 0);
	EXPECT_EQ(Count(UK2Node_MacroInstance::StaticClass(), TEXT("Chime")), 1);
	FBlueprintEditorUtils::RemoveGraph(Blueprint, Macro);
	EXPECT_EQ(Count(UK2Node_MacroInstance::StaticClass(), TEXT("Chime")), 0);
}

TEST_F(FActionDatabaseChangesTest, AComponentComesIsRenamedAndGoes)
{
	USimpleConstructionScript* const Script = Blueprint->SimpleConstructionScript;
	USCS_Node* const Component = Script->CreateNode(FindClass(TEXT("/Script/Engine.BoxComponent")), TEXT("Trigger"));
	Script->AddNode(Component);
	FBlueprintEditorUtils::MarkBlueprintAsStructurallyModified(Blueprint);
	EXPECT_EQ(Count(UK2Node_VariableGet::StaticClass(), TEXT("Trigger")), 1);
	FBlueprintEditorUtils::RenameComponentMemberVariable(Blueprint, Component, TEXT("Zone"));
	EXPECT_EQ(Count(UK2Node_VariableGet::StaticClass(), TEXT("Trigger")), 0);
	EXPECT_EQ(Count(UK2Node_VariableGet::StaticClass(), TEXT("Zone")), 1);
	Script->RemoveNodeAndPromoteChildren(Component);
	FBlueprintEditorUtils::MarkBlueprintAsStructurallyModified(Blueprint);
	EXPECT_EQ(Count(UK2Node_VariableGet::StaticClass(), TEXT("Zone")), 0);
}

TEST_F(FActionDatabaseChangesTest, ACustomEventsParametersAndALocalVariableAreThoseOfNow)
{
	UK2Node_CustomEvent* const Event = Add<UK2Node_CustomEvent>([](UK2Node_CustomEvent& Node)
		{ Node.CustomFunctionName = TEXT("Announce"); });
	FBlueprintEditorUtils::MarkBlueprintAsStructurallyModified(Blueprint);
	ASSERT_EQ(Count(UK2Node_CallFunction::StaticClass(), TEXT("Announce")), 1);
	EXPECT_EQ(Find(Blueprint, TEXT("Announce"))->GetTemplateNode()->FindPin(TEXT("Words")), nullptr);
	FEdGraphPinType Type;
	Type.PinCategory = UEdGraphSchema_K2::PC_String;
	Event->CreateUserDefinedPin(TEXT("Words"), Type, EGPD_Output);
	FBlueprintEditorUtils::MarkBlueprintAsStructurallyModified(Blueprint);
	EXPECT_NE(Find(Blueprint, TEXT("Announce"))->GetTemplateNode()->FindPin(TEXT("Words")), nullptr);
	FBlueprintEditorUtils::RemoveNode(Blueprint, Event);
	EXPECT_EQ(Count(UK2Node_CallFunction::StaticClass(), TEXT("Announce")), 0);

	UEdGraph* const Function = MakeGraph(TEXT("Work"));
	FBlueprintEditorUtils::AddFunctionGraph<UClass>(Blueprint, Function, true, nullptr);
	ASSERT_TRUE(FBlueprintEditorUtils::AddLocalVariable(Blueprint, Function, TEXT("Depth"), Type));
	EXPECT_EQ(Count(UK2Node_VariableGet::StaticClass(), TEXT("Depth")), 1);
	FBlueprintEditorUtils::RemoveLocalVariable(
		Blueprint, Blueprint->SkeletonGeneratedClass->FindFunctionByName(TEXT("Work")), TEXT("Depth"));
	EXPECT_EQ(Count(UK2Node_VariableGet::StaticClass(), TEXT("Depth")), 0);
}

TEST_F(FActionDatabaseChangesTest, ABlueprintThatIsLoadedHasActionsAndOneThatIsDeletedHasNone)
{
	const TCHAR* const Path = TEXT("/Game/BP_Stored");
	Blueprint = FKismetEditorUtilities::CreateBlueprint(AActor::StaticClass(), CreatePackage(Path), TEXT("BP_Stored"), BPTYPE_Normal);
	AddVariable(TEXT("Health"));
	FKismetEditorUtilities::CompileBlueprint(Blueprint);
	ASSERT_EQ(Count(UK2Node_VariableGet::StaticClass(), TEXT("Health")), 1);
	ASSERT_TRUE(UEditorAssetLibrary::SaveLoadedAsset(Blueprint, false));
	const FObjectKey Key(Blueprint);
	ASSERT_TRUE(UEditorAssetLibrary::DeleteLoadedAsset(Blueprint));
	EXPECT_FALSE(FBlueprintActionDatabase::Get().GetAllActions().Contains(Key));
	Blueprint = nullptr;
}
}
