#include "ObjectEditFixture.h"

#include "EdGraphSchema_K2.h"
#include "Editor.h"
#include "GameFramework/Actor.h"
#include "K2Node_CallFunction.h"
#include "K2Node_CustomEvent.h"
#include "K2Node_VariableGet.h"
#include "K2Node_VariableSet.h"

#include <gmock/gmock.h>

namespace
{
UBlueprint* MakeBlueprint(const FString& Name, UClass* Parent)
{
	return FKismetEditorUtilities::CreateBlueprint(Parent, CreatePackage(*(TEXT("/Game/") + Name)), FName(*Name), BPTYPE_Normal);
}

void Compile(UBlueprint* Blueprint)
{
	FKismetEditorUtilities::CompileBlueprint(Blueprint);
	ASSERT_NE(BS_Error, Blueprint->Status) << ToStd(Blueprint->GetName());
}
}

void FObjectEditTest::Link(UEdGraphNode& From, const TCHAR* FromPin, UEdGraphNode& To, const TCHAR* ToPin)
{
	ASSERT_TRUE(From.GetSchema()->TryCreateConnection(From.FindPinChecked(FromPin), To.FindPinChecked(ToPin)))
		<< ToStd(FromPin) << " to " << ToStd(ToPin);
}

void FObjectEditTest::SetUp()
{
	FBlueprintToolTest::SetUp();
	Declare();
	FKismetEditorUtilities::CompileBlueprint(Blueprint);
	User = MakeBlueprint(Blueprint->GetName() + TEXT("_User"), AActor::StaticClass());
	Child = MakeBlueprint(Blueprint->GetName() + TEXT("_Child"), Blueprint->GeneratedClass);
	Use();
	Compile(Blueprint);
	Compile(User);
	Compile(Child);
	GEditor->ResetTransaction(INVTEXT("Test"));
}

void FObjectEditTest::TearDown()
{
	for (UBlueprint* const Made : {User, Child})
	{
		if (Made)
		{
			Forget(*Made);
		}
	}
	FBlueprintToolTest::TearDown();
}

void FObjectEditTest::Declare()
{
	ASSERT_FALSE(Call(TEXT("graph_add"), "{'blueprint': 'BP', 'graph': 'Heal'}").HasError());
	ASSERT_FALSE(Call(TEXT("graph_add"), "{'blueprint': 'BP', 'graph': 'Plain'}").HasError());
	UEdGraph* const Macro = FBlueprintEditorUtils::CreateNewGraph(
		Blueprint, TEXT("Twice"), UEdGraph::StaticClass(), UEdGraphSchema_K2::StaticClass());
	FBlueprintEditorUtils::AddMacroGraph(Blueprint, Macro, true, nullptr);
	Place<UK2Node_CustomEvent>([](UK2Node_CustomEvent& Event)
		{ Event.CustomFunctionName = TEXT("Hurt"); });
	ASSERT_THAT(EditErrors("{'target_type': 'blueprint'}",
					"{'operation': 'add_variable', 'scope': 'member', 'name': 'Health', 'value': {'type_id': 'int'}},"
					"{'operation': 'add_variable', 'scope': 'member', 'name': 'OnHurt', 'value': {'type_id': 'mcdelegate'}}"),
		testing::IsEmpty());
	ASSERT_THAT(EditErrors("{'target_type': 'graph', 'graph': 'Heal'}",
					"{'operation': 'add_variable', 'scope': 'in', 'name': 'Amount', 'value': {'type_id': 'int'}},"
					"{'operation': 'add_variable', 'scope': 'out', 'name': 'Total', 'value': {'type_id': 'int'}},"
					"{'operation': 'add_variable', 'scope': 'local', 'name': 'Left', 'value': {'type_id': 'int'}}"),
		testing::IsEmpty());
	ASSERT_THAT(EditErrors("{'target_type': 'graph', 'graph': 'Twice'}",
					"{'operation': 'add_variable', 'scope': 'in', 'name': 'Number', 'value': {'type_id': 'int'}}"),
		testing::IsEmpty());
	ASSERT_THAT(EditErrors("{'target_type': 'graph', 'graph': 'OnHurt'}",
					"{'operation': 'add_variable', 'scope': 'in', 'name': 'Damage', 'value': {'type_id': 'int'}}"),
		testing::IsEmpty());
	ASSERT_THAT(EditErrors("{'target_type': 'node', 'graph': 'EventGraph', 'node': 'Hurt_0'}",
					"{'operation': 'add_pin', 'scope': 'out', 'name': 'Damage', 'value': {'type_id': 'int'}}"),
		testing::IsEmpty());
}

void FObjectEditTest::Use()
{
	const std::string Name = ToStd(Blueprint->GetName());
	const std::string OwnSpawns =
		"{'blueprint': 'BP', 'graph': 'EventGraph', 'nodes': [{'node_type': 'var.get.Health'}, {'node_type': 'var.set.Health'},"
		"{'node_type': 'call." +
		Name + ".Heal'}, {'node_type': 'call." + Name + ".Hurt'}, {'node_type': 'macro.Twice'},"
														"{'node_type': 'delegate.call." +
		Name + ".OnHurt'}]}";
	ASSERT_THAT(ItemErrorsOf(TEXT("node_spawn"), OwnSpawns.c_str()), testing::IsEmpty());
	UEdGraphNode* const Event = FindNodeOfClass<UK2Node_CustomEvent>(EventGraph);
	UEdGraphNode* const Get = FindNodeOfClass<UK2Node_VariableGet>(EventGraph);
	UEdGraphNode* const Set = FindNodeOfClass<UK2Node_VariableSet>(EventGraph);
	UEdGraphNode* const Heal = FindNodeOfClass<UK2Node_CallFunction>(EventGraph);
	Link(*Event, TEXT("then"), *Set, TEXT("execute"));
	Link(*Event, TEXT("Damage"), *Set, TEXT("Health"));
	Link(*Set, TEXT("then"), *Heal, TEXT("execute"));
	Link(*Get, TEXT("Health"), *Heal, TEXT("Amount"));
	ASSERT_THAT(ItemErrorsOf(TEXT("node_spawn"),
					"{'blueprint': 'BP', 'graph': 'Heal', 'nodes': [{'node_type': 'var.local.get.Left'}, {'node_type': 'var.local.set.Left'},"
					"{'node_type': 'var.local.get.Amount'}, {'node_type': 'graph.return'}]}"),
		testing::IsEmpty());
	const std::string UserPath = ToStd(User->GetPathName());
	const std::string Spawns = "{'blueprint': '" + UserPath + "', 'graph': 'EventGraph', 'nodes': [{'node_type': 'var.get." + Name +
		".Health'}, {'node_type': 'call." + Name + ".Heal'}, {'node_type': 'call." + Name + ".Hurt'}]}";
	ASSERT_THAT(ItemErrorsOf(TEXT("node_spawn"), Spawns.c_str()), testing::IsEmpty());
	const std::string ChildSpawns = "{'blueprint': '" + ToStd(Child->GetPathName()) +
		"', 'graph': 'EventGraph', 'nodes': [{'node_type': 'var.set." + Name + ".Health'}, {'node_type': 'call." + Name + ".Heal'}]}";
	ASSERT_THAT(ItemErrorsOf(TEXT("node_spawn"), ChildSpawns.c_str()), testing::IsEmpty());
}

FObjectEditTest::FAnswer FObjectEditTest::Edit(const std::string& Target, const std::string& Operations)
{
	const std::string Input = "{'blueprint': 'BP', 'requests': [{'target': " + Target + ", 'operations': [" + Operations + "]}]}";
	return Call(TEXT("object_edit"), Input);
}

std::vector<std::string> FObjectEditTest::EditErrors(const std::string& Target, const std::string& Operations)
{
	const FAnswer Answer = Edit(Target, Operations);
	if (Answer.HasError())
	{
		return {ToStd(Answer.GetError().ToChainString())};
	}
	return TextsOf(*Answer.GetValue(), TEXT("errors"));
}

std::string FObjectEditTest::EditError(const std::string& Target, const std::string& Operation)
{
	const std::vector<std::string> Errors = EditErrors(Target, Operation);
	return Errors.size() == 1 ? Errors[0] : std::to_string(Errors.size()) + " errors";
}

FString FObjectEditTest::TakeText() const
{
	FString Text;
	for (const UBlueprint* const Shown : {Blueprint, User, Child})
	{
		Text += FBlueprintText::Take(*Shown);
		const UObject* const Defaults = Shown->GeneratedClass->GetDefaultObject();
		for (TFieldIterator<FProperty> It(Shown->GeneratedClass); It && It->GetOwnerClass()->ClassGeneratedBy; ++It)
		{
			It->ExportTextItem_InContainer(Text, Defaults, nullptr, nullptr, PPF_None);
			Text += TEXT("\n");
		}
	}
	return Text;
}

UEdGraph* FObjectEditTest::FindGraph(const TCHAR* Name) const
{
	TArray<UEdGraph*> Graphs;
	Blueprint->GetAllGraphs(Graphs);
	UEdGraph* const* const Found = Graphs.FindByPredicate([Name](const UEdGraph* Graph)
		{ return Graph->GetName() == Name; });
	return Found ? *Found : nullptr;
}
