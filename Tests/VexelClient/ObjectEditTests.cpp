#include "Editor.h"
#include "EdGraphSchema_K2.h"
#include "Editor.h"
#include "K2Node_CallFunction.h"
#include "K2Node_CreateDelegate.h"
#include "K2Node_CustomEvent.h"
#include "K2Node_FunctionEntry.h"
#include "K2Node_FunctionResult.h"
#include "K2Node_VariableGet.h"
#include "K2Node_VariableSet.h"
#include "LogCapture.h"
#include "Lum/Compound/LumGraphCompound.h"
#include "Lum/LumHelper.h"
#include "Lum/LumVariable.h"
#include "ObjectEditFixture.h"
#include "UObject/Interface.h"

#include <gmock/gmock.h>

namespace
{
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using testing::StartsWith;

const char* const OnBlueprint = "{'target_type': 'blueprint'}";
const char* const OnHeal = "{'target_type': 'graph', 'graph': 'Heal'}";
const char* const OnEvent = "{'target_type': 'node', 'graph': 'EventGraph', 'node': 'Hurt_0'}";
const char* const OnTwice = "{'target_type': 'graph', 'graph': 'Twice'}";

struct FRefusal
{
	const char* Target;
	const char* Operation;
	/** Behind "Failed to execute operation on target 'X': ". */
	const char* Error;
};

const FRefusal Refusals[] = {
	// Finding
	{OnBlueprint, "{'operation': 'update', 'prop_path': 'Nothing', 'value': '1'}",
		"Traverse failed: Property 'Nothing' not found in compound, while resolving segment 'Nothing', while resolving path 'Nothing', while "
		"resolving path 'Nothing' in target"},
	{OnBlueprint, "{'operation': 'update', 'scope': 'member', 'prop_path': 'Nothing', 'value': '1'}",
		"Traverse failed: Variable 'Nothing' with scope 'member' not found in target"},
	{OnBlueprint, "{'operation': 'update', 'scope': 'local', 'prop_path': 'Health', 'value': '1'}",
		"Traverse failed: Variable 'Health' with scope 'local' not found in target"},
	// Values
	{OnBlueprint, "{'operation': 'update', 'scope': 'member', 'prop_path': 'Health'}",
		"Write Error: Update operation requires a value for property 'Health'"},
	{OnBlueprint, "{'operation': 'update', 'scope': 'member', 'prop_path': 'Health', 'value': null}",
		"Write Error: Update operation requires a value for property 'Health'"},
	{OnBlueprint, "{'operation': 'update', 'scope': 'member', 'prop_path': 'Health', 'value': {}}",
		"Write Error: Failed to set value for property 'Health'"},
	{OnBlueprint, "{'operation': 'insert', 'scope': 'member', 'prop_path': 'Health', 'value': '1'}",
		"Write Error: Insert operation requires a valid index for property 'Health'"},
	{OnBlueprint, "{'operation': 'insert', 'scope': 'member', 'prop_path': 'Health', 'index': 0}",
		"Write Error: Insert operation requires a value for property 'Health'"},
	{OnBlueprint, "{'operation': 'insert', 'scope': 'member', 'prop_path': 'Health', 'index': 0, 'value': '1'}",
		"Write Error: Property 'Health' is not a compound/collection and cannot be inserted into"},
	{OnBlueprint, "{'operation': 'insert', 'prop_path': '$ClassDefaultObject', 'index': '0', 'value': '1'}",
		"Traverse failed: Property '$ClassDefaultObject' is not a collection"},
	{OnBlueprint, "{'operation': 'remove', 'prop_path': '$ClassDefaultObject'}",
		"Write Error: Remove operation requires a valid index for property '$ClassDefaultObject'"},
	{OnBlueprint, "{'operation': 'remove', 'prop_path': '$ClassDefaultObject', 'index': 0}",
		"Write Error: Property '$ClassDefaultObject' is not a compound/collection and cannot remove by index"},
	{OnBlueprint, "{'operation': 'remove', 'scope': 'member', 'prop_path': 'Health', 'index': 0}",
		"Write Error: Property 'Health' is not a compound/collection and cannot remove by index"},
	// Names
	{OnHeal, "{'operation': 'update', 'prop_path': 'name', 'value': 7}",
		"Write Error: Failed to set value for property 'name': Import failed: Expected string for graph name"},
	{OnEvent, "{'operation': 'update', 'prop_path': 'name', 'value': ['x']}",
		"Write Error: Failed to set value for property 'name': Import failed: Expected string for node name"},
	{OnHeal, "{'operation': 'update', 'prop_path': 'name', 'value': 'Health'}",
		"Write Error: Failed to set value for property 'name': Write Error: Failed to rename 'Heal' to 'Health': Name is already in use."},
	{OnHeal, "{'operation': 'update', 'prop_path': 'name', 'value': ''}", "Failed to rename 'Heal' to '': Name cannot be empty."},
	{OnEvent, "{'operation': 'update', 'prop_path': 'name', 'value': 'a.b'}",
		"Failed to rename 'Hurt' to 'a.b': Name a.b cannot contain the following characters"},
	{OnEvent, "{'operation': 'update', 'prop_path': 'name', 'value': 'ReceiveTick'}",
		"Failed to rename 'Hurt' to 'ReceiveTick': Name is already in use."},
	{"{'target_type': 'graph', 'graph': 'UserConstructionScript'}", "{'operation': 'update', 'prop_path': 'name', 'value': 'Built'}",
		"what the graph overrides gives it its name"},
	// New variables
	{OnBlueprint, "{'operation': 'add_variable', 'name': 'New', 'value': {'type_id': 'int'}}",
		"Write Error: AddVariable requires 'scope' or 'value.scope_id'"},
	{OnBlueprint, "{'operation': 'add_variable', 'scope': 'member', 'value': {'type_id': 'int'}}",
		"Write Error: AddVariable requires 'name' or 'value.prop_id'"},
	{OnBlueprint, "{'operation': 'add_variable', 'scope': 'member', 'name': 'New'}", "Write Error: AddVariable requires 'value.type_id'"},
	{OnBlueprint, "{'operation': 'add_pin', 'scope': 'in', 'name': 'New', 'value': {'type_id': 'int'}}",
		"Write Error: Scope 'in' is not supported by target"},
	{"{'target_type': 'node', 'graph': 'EventGraph', 'node': 'SetHealth_0'}",
		"{'operation': 'add_pin', 'scope': 'in', 'name': 'New', 'value': {'type_id': 'int'}}",
		"Write Error: Target does not support variable management"},
	{OnHeal, "{'operation': 'add_variable', 'scope': 'member', 'name': 'New', 'value': {'type_id': 'int'}}",
		"Write Error: Scope 'member' is not supported by target"},
	{OnBlueprint, "{'operation': 'add_variable', 'scope': 'member', 'name': 'health', 'value': {'type_id': 'int'}}",
		"Write Error: Variable 'health' in scope 'member' already exists"},
	{OnHeal, "{'operation': 'add_variable', 'scope': 'in', 'name': 'Amount', 'value': {'type_id': 'int'}}",
		"Write Error: Variable 'Amount' in scope 'in' already exists"},
	{OnBlueprint, "{'operation': 'add_variable', 'scope': 'member', 'name': 'New', 'value': {'type_id': 'object.Actr'}}",
		"Write Error: Failed to add variable 'New' of type 'object.Actr': Failed to load subcategory object 'Actr' for pin type 'object.Actr'!. "
		"Nearest: 'object.Actor'"},
	{OnBlueprint, "{'operation': 'add_variable', 'scope': 'member', 'name': 'New', 'value': {'type_id': 'list|int'}}",
		"Failed to add variable 'New' of type 'list|int': Unknown collection type 'list' in pin type reference 'list|int'"},
	{OnBlueprint, "{'operation': 'add_variable', 'scope': 'member', 'name': 'New', 'value': {'type_id': 'array|array|int'}}",
		"Failed to add variable 'New' of type 'array|array|int'"},
	{OnBlueprint, "{'operation': 'add_variable', 'scope': 'member', 'name': 'New', 'value': {'type_id': 'map|int'}}", "is missing value type!"},
	{OnBlueprint, "{'operation': 'add_variable', 'scope': 'member', 'name': 'New', 'value': {'type_id': 'set|bool'}}",
		"sets and maps need elements and keys that can be hashed"},
	{OnBlueprint, "{'operation': 'add_variable', 'scope': 'member', 'name': 'New', 'value': {'type_id': 'exec'}}", "only pins have that type"},
	{OnBlueprint, "{'operation': 'add_variable', 'scope': 'member', 'name': 'New', 'value': {'type_id': 'object'}}",
		"the id must name what it is of"},
	{OnBlueprint, "{'operation': 'add_variable', 'scope': 'member', 'name': 'New', 'value': {'type_id': 'delegate'}}",
		"a type id tells no signature"},
	{OnBlueprint, "{'operation': 'add_variable', 'scope': 'member', 'name': 'Heal', 'value': {'type_id': 'int'}}",
		"Failed to add variable 'Heal' of type 'int': Name is already in use."},
	{OnBlueprint, "{'operation': 'add_variable', 'scope': 'member', 'name': 'InitialLifeSpan', 'value': {'type_id': 'int'}}",
		"Name is already in use."},
	{OnBlueprint, "{'operation': 'add_variable', 'scope': 'member', 'name': 'None', 'value': {'type_id': 'int'}}", "Name cannot be empty."},
	{OnBlueprint, "{'operation': 'add_variable', 'scope': 'member', 'name': 'a(b)', 'value': {'type_id': 'int'}}",
		"cannot contain the following characters"},
	{OnHeal, "{'operation': 'add_variable', 'scope': 'local', 'name': 'Amount', 'value': {'type_id': 'int'}}",
		"Failed to add variable 'Amount' of type 'int': Conflicts with another object in the same scope!"},
	{OnHeal, "{'operation': 'add_variable', 'scope': 'local', 'name': 'New', 'value': {'type_id': 'int', 'instance_editable': true}}",
		"only member variables have the key 'instance_editable'"},
	{OnTwice, "{'operation': 'add_variable', 'scope': 'local', 'name': 'New', 'value': {'type_id': 'int'}}",
		"Write Error: Graph does not support local variables"},
	{"{'target_type': 'graph', 'graph': 'EventGraph'}",
		"{'operation': 'add_variable', 'scope': 'in', 'name': 'New', 'value': {'type_id': 'int'}}",
		"Write Error: No function entry/result node found in graph"},
	{"{'target_type': 'graph', 'graph': 'OnHurt'}", "{'operation': 'add_variable', 'scope': 'out', 'name': 'New', 'value': {'type_id': 'int'}}",
		"Write Error: No function entry/result node found in graph"},
	{OnHeal, "{'operation': 'add_variable', 'scope': 'out', 'name': 'Amount', 'value': {'type_id': 'int'}}",
		"Write Error: Pin 'Amount' already exists"},
	{OnHeal, "{'operation': 'add_variable', 'scope': 'in', 'name': 'Left', 'value': {'type_id': 'int'}}", "Write Error: Pin 'Left' already exists"},
	{OnHeal, "{'operation': 'add_variable', 'scope': 'in', 'name': 'self', 'value': {'type_id': 'int'}}",
		"Failed to create pin 'self' of type 'int'. Every node has a pin of the name 'self' of its own."},
	{OnHeal, "{'operation': 'add_variable', 'scope': 'in', 'name': 'New', 'value': {'type_id': 'exec'}}",
		"Write Error: Cannot add more exec pins to this node."},
	{OnHeal, "{'operation': 'add_variable', 'scope': 'in', 'name': 'New', 'value': {'type_id': 'wildcard'}}", "Only macros have wildcard pins."},
	{"{'target_type': 'graph', 'graph': 'UserConstructionScript'}",
		"{'operation': 'add_variable', 'scope': 'in', 'name': 'New', 'value': {'type_id': 'int'}}",
		"Failed to create pin 'New' of type 'int'. Node does not have editable pins."},
	{OnEvent, "{'operation': 'add_pin', 'scope': 'in', 'name': 'New', 'value': {'type_id': 'int'}}",
		"Failed to create pin 'New' of type 'int'. Cannot add input pins to custom event node!"},
	{OnEvent, "{'operation': 'add_pin', 'scope': 'out', 'name': 'then', 'value': {'type_id': 'int'}}", "Write Error: Pin 'then' already exists"},
	// Removal
	{OnBlueprint, "{'operation': 'remove_variable', 'name': 'Health'}", "Write Error: RemoveVariable requires 'scope' or 'value.scope_id'"},
	{OnBlueprint, "{'operation': 'remove_variable', 'scope': 'member'}", "Write Error: RemoveVariable requires 'name' or 'value.prop_id'"},
	{OnBlueprint, "{'operation': 'remove_variable', 'scope': 'member', 'name': 'Gone'}",
		"Write Error: Variable 'Gone' with scope 'member' not found"},
	{OnEvent, "{'operation': 'remove_pin', 'scope': 'out', 'name': 'then'}", "Write Error: Variable 'then' with scope 'out' not found"},
	// Changes
	{OnBlueprint, "{'operation': 'edit_variable', 'scope': 'member', 'name': 'Gone', 'value': {}}",
		"Traverse failed: Variable 'Gone' with scope 'member' not found in target"},
	{OnBlueprint, "{'operation': 'edit_variable', 'scope': 'member', 'name': 'Health', 'value': {'prop_id': 'Heal'}}",
		"Write Error: Failed to edit variable 'Health': Name is already in use."},
	{OnBlueprint, "{'operation': 'edit_variable', 'scope': 'member', 'name': 'Health', 'value': {'type_id': 'nothing'}}",
		"Write Error: Failed to edit variable 'Health': Unknown pin type 'nothing'"},
	{OnBlueprint, "{'operation': 'edit_variable', 'scope': 'member', 'name': 'Health', 'value': {'scope_id': 'local'}}",
		"it cannot leave its scope 'member'"},
	{OnBlueprint, "{'operation': 'edit_variable', 'scope': 'member', 'name': 'Health', 'value': {'type_id': 'mcdelegate'}}",
		"a variable does not become an event dispatcher"},
	{OnBlueprint, "{'operation': 'edit_variable', 'scope': 'member', 'name': 'Health', 'value': {'type_id': 'set|int', 'replicated': true}}",
		"sets and maps cannot be replicated"},
	{OnHeal, "{'operation': 'edit_variable', 'scope': 'local', 'name': 'Left', 'value': {'prop_id': 'Amount'}}",
		"Failed to edit variable 'Left': Conflicts with another object in the same scope!"},
	{OnHeal, "{'operation': 'edit_variable', 'scope': 'in', 'name': 'Amount', 'value': {'prop_id': 'Total'}}",
		"Write Error: Pin 'Total' already exists"},
	{OnHeal, "{'operation': 'edit_variable', 'scope': 'in', 'name': 'Amount', 'value': {'scope_id': 'out'}}", "Pin direction invalid"},
	{OnHeal, "{'operation': 'edit_variable', 'scope': 'in', 'name': 'Amount', 'value': {'private': true}}",
		"only member variables have the key 'private'"},
	{OnHeal, "{'operation': 'edit_variable', 'scope': 'in', 'name': 'Amount', 'value': 'int'}", "EditVariable requires an object as 'value'"},
	{OnEvent, "{'operation': 'edit_pin', 'scope': 'out', 'name': 'Damage', 'value': {'type_id': 'exec'}}",
		"Write Error: Cannot add more exec pins to this node."},
	{OnEvent, "{'operation': 'edit_pin', 'scope': 'out', 'name': 'Damage', 'value': {'type_id': 'struct.Nothing'}}",
		"Failed to create pin 'Damage' of type 'struct.Nothing'. Failed to load subcategory object 'Nothing'"},
};

TEST_F(FObjectEditTest, WhatIsRefusedSaysWhyAndChangesNothing)
{
	const FString Before = TakeText();
	for (const FRefusal& Refusal : Refusals)
	{
		EXPECT_THAT(EditError(Refusal.Target, Refusal.Operation),
			testing::AllOf(StartsWith("Failed to execute operation on target '"), HasSubstr(Refusal.Error)))
			<< Refusal.Operation;
	}
	EXPECT_EQ("", ToStd(DescribeDifference(Before, TakeText())));
	EXPECT_EQ(0, NumUndos());
}

TEST_F(FObjectEditTest, MistakesInTheInputEndTheCall)
{
	const std::pair<const char*, const char*> Cases[] = {
		{"{'requests': [{}]}", "Tool call failed: Missing `blueprint`"},
		{"{'blueprint': 5, 'requests': [{}]}", "Tool call failed: Missing `blueprint`"},
		{"{'blueprint': 'BP'}", "Tool call failed: Missing or empty `requests` array"},
		{"{'blueprint': 'BP', 'requests': []}", "Tool call failed: Missing or empty `requests` array"},
		{"{'blueprint': 'BP', 'requests': {}}", "Tool call failed: Missing or empty `requests` array"},
		{"{'blueprint': '/Game/Gone', 'requests': [{}]}", "Blueprint not found: /Game/Gone"},
	};
	for (const auto& [Input, Error] : Cases)
	{
		EXPECT_THAT(ErrorOf(TEXT("object_edit"), Input), HasSubstr(Error)) << Input;
	}
}

TEST_F(FObjectEditTest, ATargetThatIsNotThereCostsItsOperationsAlone)
{
	const FAnswer Answer = Call(TEXT("object_edit"),
		"{'blueprint': 'BP', 'requests': [7,"
		"{'target': {'target_type': 'thing'}, 'operations': [{'operation': 'update'}, {'operation': 'update'}]}, {},"
		"{'target': {'target_type': 'graph', 'graph': 'Gone'}, 'operations': [{'operation': 'update'}]},"
		"{'target': {'target_type': 'node', 'graph': 'Heal', 'node': 'Gone_0'}},"
		"{'target': {'target_type': 'blueprint'}, 'operations': ['x', {}, {'operation': 'dance'}, {'operation': 'unknown'},"
		"{'operation': 'add_variable', 'value': {'scope_id': 'member', 'prop_id': 'Fresh', 'type_id': 'int'}}]}]}");
	ASSERT_TRUE(Answer.HasValue()) << ToStd(Answer.GetError().ToChainString());
	const std::string Path = ToStd(Blueprint->GetPathName());
	EXPECT_THAT(TextsOf(*Answer.GetValue(), TEXT("errors")),
		ElementsAre("Failed to resolve target 'Unknown Target': Traverse failed: Invalid target type 'unknown' for edit request, while resolving "
					"target `Unknown Target` for edit request. Target types are 'blueprint', 'graph', 'node'",
			testing::StartsWith("Failed to resolve target 'Unknown Target'"),
			"Failed to resolve target 'Graph (Gone)': Traverse failed: Graph 'Gone' not found, while resolving graph 'Gone' in blueprint '" + Path +
				"', while resolving target `Graph (Gone)` for edit request",
			"Failed to resolve target 'Node (Gone_0) in Graph (Heal)': Traverse failed: Node 'Gone_0' not found, while resolving node 'Gone_0' in "
			"graph 'Heal', while resolving target `Node (Gone_0) in Graph (Heal)` for edit request"));
	EXPECT_NE(INDEX_NONE, FBlueprintEditorUtils::FindNewVariableIndex(Blueprint, TEXT("Fresh")));
}

TEST_F(FObjectEditTest, EveryOperationMayFailAndTheBlueprintIsAnsweredAndMarked)
{
	Blueprint->GetPackage()->SetDirtyFlag(false);
	const FAnswer Answer = Edit(OnBlueprint, "{'operation': 'update', 'prop_path': 'Gone', 'value': '1'}");
	ASSERT_TRUE(Answer.HasValue());
	EXPECT_EQ(ToStd(Blueprint->GetPathName()), ToStd(Answer.GetValue()->GetObjectField(TEXT("blueprint"))->GetStringField(TEXT("id"))));
	EXPECT_TRUE(Blueprint->GetPackage()->IsDirty());
	EXPECT_EQ(BS_Dirty, Blueprint->Status);
	EXPECT_FALSE(Edit(OnBlueprint, "{'operation': 'none'}").GetValue()->HasField(TEXT("errors")));
}

TEST_F(FObjectEditTest, AnIndexIsANumberOrTheTextOfOne)
{
	FLogCapture Log;
	EXPECT_THAT(EditError(OnBlueprint, "{'operation': 'insert', 'scope': 'member', 'prop_path': 'Health', 'index': 'abc', 'value': '1'}"),
		HasSubstr("Insert operation requires a valid index for property 'Health'"));
	EXPECT_TRUE(Log.Contains("Invalid index value 'abc' in edit request"));
	for (const char* const Index : {"2.5", "'1e3'", "99999999999"})
	{
		EXPECT_THAT(EditError(OnBlueprint,
						std::string("{'operation': 'remove', 'scope': 'member', 'prop_path': 'Health', 'index': ") + Index + "}"),
			HasSubstr("Remove operation requires a valid index for property 'Health'"))
			<< Index;
	}
	for (const char* const Index : {"-5", "'7'"})
	{
		EXPECT_THAT(EditError(OnBlueprint,
						std::string("{'operation': 'remove', 'scope': 'member', 'prop_path': 'Health', 'index': ") + Index + "}"),
			HasSubstr("cannot remove by index"))
			<< Index;
	}
}

TEST_F(FObjectEditTest, ARenamedVariableIsFollowedByEveryUse)
{
	ASSERT_THAT(EditErrors(OnBlueprint, "{'operation': 'edit_variable', 'scope': 'member', 'name': 'Health', 'value': {'prop_id': 'Life'}}"), IsEmpty());
	UK2Node_VariableSet* const Set = FindNodeOfClass<UK2Node_VariableSet>(EventGraph);
	EXPECT_EQ("Life", ToStd(Set->GetVarNameString()));
	EXPECT_EQ(1, Set->FindPinChecked(TEXT("Life"))->LinkedTo.Num());
	for (const UBlueprint* const Other : {User, Child})
	{
		UEdGraph* const Graph = FBlueprintEditorUtils::FindEventGraph(Other);
		EXPECT_EQ("Life", ToStd(FindNodeOfClass<UK2Node_Variable>(Graph)->GetVarNameString())) << ToStd(Other->GetName());
		EXPECT_TRUE(Other->GetPackage()->IsDirty());
	}
	for (UBlueprint* const Compiled : {Blueprint, User, Child})
	{
		FKismetEditorUtilities::CompileBlueprint(Compiled);
		EXPECT_NE(BS_Error, Compiled->Status) << ToStd(Compiled->GetName());
	}
}

TEST_F(FObjectEditTest, ARenamedParameterKeepsTheLinksOfItsCalls)
{
	ASSERT_THAT(EditErrors(OnHeal, "{'operation': 'edit_variable', 'scope': 'in', 'name': 'Amount', 'value': {'prop_id': 'Points'}}"), IsEmpty());
	ASSERT_THAT(EditErrors(OnEvent, "{'operation': 'edit_pin', 'scope': 'out', 'name': 'Damage', 'value': {'prop_id': 'Force'}}"), IsEmpty());
	UK2Node_CallFunction* const Call = FindNodeOfClass<UK2Node_CallFunction>(EventGraph);
	ASSERT_NE(nullptr, Call->FindPin(TEXT("Points")));
	EXPECT_EQ(1, Call->FindPin(TEXT("Points"))->LinkedTo.Num());
	EXPECT_EQ(nullptr, Call->FindPin(TEXT("Amount")));
	const UEdGraph* const UserGraph = FBlueprintEditorUtils::FindEventGraph(User);
	TArray<UK2Node_CallFunction*> Calls;
	UserGraph->GetNodesOfClass(Calls);
	ASSERT_EQ(2, Calls.Num());
	EXPECT_NE(nullptr, Calls[0]->FindPin(TEXT("Points")));
	EXPECT_NE(nullptr, Calls[1]->FindPin(TEXT("Force")));
	EXPECT_NE(nullptr, FindNodeOfClass<UK2Node_VariableGet>(FindGraph(TEXT("Heal"))));
	FKismetEditorUtilities::CompileBlueprint(Blueprint);
	EXPECT_NE(BS_Error, Blueprint->Status);
}

TEST_F(FObjectEditTest, AllResultsOfAFunctionHaveTheSameOutputs)
{
	UEdGraph* const Heal = FindGraph(TEXT("Heal"));
	TArray<UK2Node_FunctionResult*> Results;
	Heal->GetNodesOfClass(Results);
	ASSERT_EQ(2, Results.Num());
	ASSERT_THAT(EditErrors(OnHeal,
					"{'operation': 'add_variable', 'scope': 'out', 'name': 'Rest', 'value': {'type_id': 'real'}},"
					"{'operation': 'edit_variable', 'scope': 'out', 'name': 'Total', 'value': {'prop_id': 'Sum', 'type_id': 'int64'}}"),
		IsEmpty());
	for (const UK2Node_FunctionResult* const Result : Results)
	{
		ASSERT_NE(nullptr, Result->FindPin(TEXT("Sum")));
		EXPECT_EQ(UEdGraphSchema_K2::PC_Int64, Result->FindPin(TEXT("Sum"))->PinType.PinCategory);
		EXPECT_NE(nullptr, Result->FindPin(TEXT("Rest")));
	}
	ASSERT_THAT(EditErrors(OnHeal, "{'operation': 'remove_variable', 'scope': 'out', 'name': 'Sum'}"), IsEmpty());
	for (const UK2Node_FunctionResult* const Result : Results)
	{
		EXPECT_EQ(nullptr, Result->FindPin(TEXT("Sum")));
	}
}

TEST_F(FObjectEditTest, WhatALossyEditCostsIsTold)
{
	const FAnswer Retyped =
		Edit(OnBlueprint, "{'operation': 'edit_variable', 'scope': 'member', 'name': 'Health', 'value': {'type_id': 'object.Actor'}}");
	EXPECT_THAT(TextsOf(*Retyped.GetValue(), TEXT("warnings")),
		testing::UnorderedElementsAre("The link from 'Hurt_0'.'Damage' to 'SetHealth_0'.'Health' in graph 'EventGraph' does not fit any more",
			HasSubstr("The link from 'GetHealth_0'.'Health' to ")));
	const FAnswer Removed = Edit(OnEvent, "{'operation': 'remove_pin', 'scope': 'out', 'name': 'Damage'}");
	EXPECT_THAT(TextsOf(*Removed.GetValue(), TEXT("warnings")),
		ElementsAre("The link from 'Hurt_0'.'Damage' to 'SetHealth_0'.'Health' in graph 'EventGraph' is lost"));
	EXPECT_FALSE(Edit(OnHeal, "{'operation': 'edit_variable', 'scope': 'local', 'name': 'Left', 'value': {'prop_id': 'Rest'}}")
					 .GetValue()
					 ->HasField(TEXT("warnings")));
}

TEST_F(FObjectEditTest, ALinkThatCanBeConvertedIsKept)
{
	const FAnswer Retyped = Edit(OnBlueprint, "{'operation': 'edit_variable', 'scope': 'member', 'name': 'Health', 'value': {'type_id': 'real'}}");
	EXPECT_FALSE(Retyped.GetValue()->HasField(TEXT("errors")));
	EXPECT_FALSE(Retyped.GetValue()->HasField(TEXT("warnings"))) << "it goes on by way of a conversion";
	const UK2Node_VariableSet* const Set = FindNodeOfClass<UK2Node_VariableSet>(EventGraph);
	ASSERT_EQ(1, Set->FindPinChecked(TEXT("Health"))->LinkedTo.Num());
	const UK2Node_CallFunction* const Conversion =
		Cast<UK2Node_CallFunction>(Set->FindPinChecked(TEXT("Health"))->LinkedTo[0]->GetOwningNode());
	ASSERT_NE(nullptr, Conversion);
	EXPECT_EQ("Conv_IntToDouble", ToStd(Conversion->FunctionReference.GetMemberName().ToString()));
	FKismetEditorUtilities::CompileBlueprint(Blueprint);
	EXPECT_NE(BS_Error, Blueprint->Status);

	ASSERT_THAT(EditErrors(OnEvent, "{'operation': 'edit_pin', 'scope': 'out', 'name': 'Damage', 'value': {'type_id': 'bool'}}"), IsEmpty());
	const UK2Node_CustomEvent* const Event = FindNodeOfClass<UK2Node_CustomEvent>(EventGraph);
	EXPECT_EQ(1, Event->FindPinChecked(TEXT("Damage"))->LinkedTo.Num());
	FKismetEditorUtilities::CompileBlueprint(Blueprint);
	EXPECT_NE(BS_Error, Blueprint->Status);
}

TEST_F(FObjectEditTest, ARenamedEventIsFollowedByCallsOverridesAndDelegates)
{
	const std::string Name = ToStd(Blueprint->GetName());
	const std::string Spawns = "{'blueprint': '" + ToStd(Child->GetPathName()) + "', 'graph': 'EventGraph', 'nodes': [{'node_type': 'event." + Name +
		".Hurt'}, {'node_type': 'delegate.create.None'}]}";
	ASSERT_THAT(ItemErrorsOf(TEXT("node_spawn"), Spawns.c_str()), IsEmpty());
	UEdGraph* const ChildGraph = FBlueprintEditorUtils::FindEventGraph(Child);
	UK2Node_CreateDelegate* const Delegate = FindNodeOfClass<UK2Node_CreateDelegate>(ChildGraph);
	ASSERT_NE(nullptr, Delegate);
	Delegate->SetFunction(TEXT("Hurt"));
	ASSERT_THAT(EditErrors(OnEvent, "{'operation': 'update', 'prop_path': 'name', 'value': 'Ouch'}"), IsEmpty());
	TArray<UK2Node_Event*> Overrides;
	ChildGraph->GetNodesOfClass(Overrides);
	EXPECT_TRUE(Overrides.ContainsByPredicate([](const UK2Node_Event* Event)
		{ return Event->GetFunctionName() == TEXT("Ouch"); }));
	EXPECT_EQ("Ouch", ToStd(Delegate->GetFunctionName().ToString()));
	TArray<UK2Node_CallFunction*> Calls;
	FBlueprintEditorUtils::FindEventGraph(User)->GetNodesOfClass(Calls);
	EXPECT_EQ("Ouch", ToStd(Calls[1]->FunctionReference.GetMemberName().ToString()));
}

TEST_F(FObjectEditTest, FlagsOfAVariableAreSetReadAndCleared)
{
	ASSERT_THAT(EditErrors(OnBlueprint,
					"{'operation': 'edit_variable', 'scope': 'member', 'name': 'Health', 'value': {'category': 'Vital', 'instance_editable': true,"
					"'read_only': true, 'private': true, 'expose_on_spawn': true, 'save_game': true, 'transient': true, 'replicated': true}}"),
		IsEmpty());
	const FBPVariableDescription& Health = Blueprint->NewVariables[0];
	EXPECT_EQ(static_cast<uint64>(CPF_Edit | CPF_BlueprintVisible | CPF_BlueprintReadOnly | CPF_SaveGame | CPF_Transient | CPF_Net), Health.PropertyFlags);
	EXPECT_EQ("true", ToStd(Health.GetMetaData(TEXT("ExposeOnSpawn"))));
	EXPECT_EQ("Vital", ToStd(Health.Category.ToString()));
	const FAnswer Answer =
		Edit(OnBlueprint, "{'operation': 'edit_variable', 'scope': 'member', 'name': 'Health', 'value': {'read_only': false, 'private': false}}");
	const TSharedPtr<FJsonObject> Shown = Answer.GetValue()->GetObjectField(TEXT("blueprint"))->GetArrayField(TEXT("variables"))[0]->AsObject();
	EXPECT_TRUE(Shown->GetBoolField(TEXT("instance_editable")));
	EXPECT_TRUE(Shown->GetBoolField(TEXT("expose_on_spawn")));
	EXPECT_FALSE(Shown->HasField(TEXT("private")));
	EXPECT_EQ("read_write", ToStd(Shown->GetStringField(TEXT("access"))));
	const FProperty* const Property = Blueprint->SkeletonGeneratedClass->FindPropertyByName(TEXT("Health"));
	EXPECT_FALSE(Property->HasAnyPropertyFlags(CPF_DisableEditOnInstance)) << "the skeleton class follows";
}

TEST_F(FObjectEditTest, ANameThatWasGivenUpIsFreeWithinTheCall)
{
	EXPECT_THAT(EditErrors(OnBlueprint,
					"{'operation': 'add_variable', 'scope': 'member', 'name': 'A', 'value': {'type_id': 'int'}},"
					"{'operation': 'edit_variable', 'scope': 'member', 'name': 'A', 'value': {'prop_id': 'B'}},"
					"{'operation': 'add_variable', 'scope': 'member', 'name': 'A', 'value': {'type_id': 'bool'}},"
					"{'operation': 'remove_variable', 'scope': 'member', 'name': 'B'},"
					"{'operation': 'edit_variable', 'scope': 'member', 'name': 'A', 'value': {'prop_id': 'B'}},"
					"{'operation': 'remove_variable', 'scope': 'member', 'name': 'Health'},"
					"{'operation': 'add_variable', 'scope': 'member', 'name': 'Health', 'value': {'type_id': 'string'}}"),
		IsEmpty());
	const UClass* const Skeleton = Blueprint->SkeletonGeneratedClass;
	EXPECT_EQ(nullptr, Skeleton->FindPropertyByName(TEXT("A")));
	EXPECT_NE(nullptr, Skeleton->FindPropertyByName(TEXT("B")));
	EXPECT_EQ(7, NumUndos());
}

TEST_F(FObjectEditTest, WhatAnotherDeclaresIsNotEditable)
{
	const std::string ChildPath = ToStd(Child->GetPathName());
	const auto EditChild = [&](const std::string& Target, const std::string& Operation)
	{
		const std::string Input = "{'blueprint': '" + ChildPath + "', 'requests': [{'target': " + Target + ", 'operations': [" + Operation + "]}]}";
		const FAnswer Answer = Call(TEXT("object_edit"), Input.c_str());
		const std::vector<std::string> Errors = TextsOf(*Answer.GetValue(), TEXT("errors"));
		return Errors.empty() ? std::string("no error") : Errors[0];
	};
	UEdGraph* const Override =
		FBlueprintEditorUtils::CreateNewGraph(Child, TEXT("Heal"), UEdGraph::StaticClass(), UEdGraphSchema_K2::StaticClass());
	FBlueprintEditorUtils::AddFunctionGraph<UClass>(Child, Override, false, Blueprint->GeneratedClass);
	ASSERT_NE(nullptr, FindNodeOfClass<UK2Node_FunctionEntry>(Override)->FindPin(TEXT("Amount")));
	EXPECT_THAT(EditChild(OnHeal, "{'operation': 'add_variable', 'scope': 'in', 'name': 'New', 'value': {'type_id': 'int'}}"),
		HasSubstr("Node does not have editable pins."));
	EXPECT_THAT(EditChild(OnHeal, "{'operation': 'edit_variable', 'scope': 'in', 'name': 'Amount', 'value': {'prop_id': 'New'}}"),
		HasSubstr("Write Error: Variable 'Amount' with scope 'in' is not editable"));
	EXPECT_THAT(EditChild(OnHeal, "{'operation': 'remove_variable', 'scope': 'in', 'name': 'Amount'}"),
		HasSubstr("User defined pin 'Amount' not found in blueprint node."));
	EXPECT_THAT(EditChild(OnHeal, "{'operation': 'update', 'prop_path': 'name', 'value': 'New'}"),
		HasSubstr("what the graph overrides gives it its name"));
	EXPECT_THAT(EditChild(OnBlueprint, "{'operation': 'add_variable', 'scope': 'member', 'name': 'Health', 'value': {'type_id': 'int'}}"),
		HasSubstr("Name is already in use."));
	EXPECT_THAT(EditChild(OnBlueprint, "{'operation': 'add_variable', 'scope': 'member', 'name': 'Mine', 'value': {'type_id': 'int'}}"), "no error");
	EXPECT_THAT(EditError(OnBlueprint, "{'operation': 'add_variable', 'scope': 'member', 'name': 'Mine', 'value': {'type_id': 'int'}}"),
		HasSubstr("Name is already in use in '" + ToStd(Child->GetName()) + "', which derives from the blueprint."));
	// The override follows what is declared above it.
	ASSERT_THAT(EditErrors(OnHeal, "{'operation': 'edit_variable', 'scope': 'in', 'name': 'Amount', 'value': {'prop_id': 'Points'}}"), IsEmpty());
	EXPECT_NE(nullptr, FindNodeOfClass<UK2Node_FunctionEntry>(Override)->FindPin(TEXT("Points")));
}

TEST_F(FObjectEditTest, AVariableHasItsDefaultBeforeTheBlueprintIsCompiled)
{
	ASSERT_THAT(EditErrors(OnBlueprint,
					"{'operation': 'add_variable', 'scope': 'member', 'name': 'Speed', 'value': {'type_id': 'real'}},"
					"{'operation': 'update', 'scope': 'member', 'prop_path': 'Speed', 'value': '12.5'},"
					"{'operation': 'add_variable', 'scope': 'member', 'name': 'Stops', 'value': {'type_id': 'array|int'}},"
					"{'operation': 'insert', 'scope': 'member', 'prop_path': 'Stops', 'index': 0, 'value': '7'},"
					"{'operation': 'insert', 'scope': 'member', 'prop_path': 'Stops', 'index': 0, 'value': '5'},"
					"{'operation': 'remove', 'scope': 'member', 'prop_path': 'Stops', 'index': 1},"
					"{'operation': 'update', 'scope': 'member', 'prop_path': 'Health', 'value': '75'},"
					"{'operation': 'edit_variable', 'scope': 'member', 'name': 'Health', 'value': {'type_id': 'string'}},"
					"{'operation': 'update', 'scope': 'member', 'prop_path': 'Health', 'value': 'plenty'}"),
		IsEmpty());
	EXPECT_EQ(9, NumUndos());
	EXPECT_THAT(EditError(OnBlueprint, "{'operation': 'update', 'scope': 'member', 'prop_path': 'Speed', 'value': 'fast'}"),
		HasSubstr("Failed to set value for property 'Speed'"));
	ASSERT_THAT(EditErrors(OnHeal, "{'operation': 'update', 'scope': 'local', 'prop_path': 'Left', 'value': '3'}"), IsEmpty());
	EXPECT_EQ("3", ToStd(FindNodeOfClass<UK2Node_FunctionEntry>(FindGraph(TEXT("Heal")))->LocalVariables[0].DefaultValue));
	FKismetEditorUtilities::CompileBlueprint(Blueprint);
	const auto GetDefaultText = [this](const TCHAR* Name)
	{
		FString Text;
		Blueprint->GeneratedClass->FindPropertyByName(Name)->ExportTextItem_InContainer(
			Text, Blueprint->GeneratedClass->GetDefaultObject(), nullptr, nullptr, PPF_None);
		return ToStd(Text);
	};
	EXPECT_EQ("12.500000", GetDefaultText(TEXT("Speed")));
	EXPECT_EQ("(5)", GetDefaultText(TEXT("Stops")));
	EXPECT_EQ("plenty", GetDefaultText(TEXT("Health")));
}

TEST_F(FObjectEditTest, AnInterfacesFunctionIsEditedWhereItIsDeclared)
{
	const FString Name = Blueprint->GetName() + TEXT("_Interface");
	UBlueprint* const Interface = FKismetEditorUtilities::CreateBlueprint(
		UInterface::StaticClass(), CreatePackage(*(TEXT("/Game/") + Name)), FName(*Name), BPTYPE_Interface);
	UEdGraph* const Declared =
		FBlueprintEditorUtils::CreateNewGraph(Interface, TEXT("Use"), UEdGraph::StaticClass(), UEdGraphSchema_K2::StaticClass());
	FBlueprintEditorUtils::AddFunctionGraph<UClass>(Interface, Declared, true, nullptr);
	const auto EditInterface = [&](const char* Target, const char* Operation)
	{
		const std::string Input =
			"{'blueprint': '" + ToStd(Interface->GetPathName()) + "', 'requests': [{'target': " + Target + ", 'operations': [" + Operation + "]}]}";
		return TextsOf(*Call(TEXT("object_edit"), Input.c_str()).GetValue(), TEXT("errors"));
	};
	const char* const OnUse = "{'target_type': 'graph', 'graph': 'Use'}";
	ASSERT_THAT(EditInterface(OnUse,
					"{'operation': 'add_variable', 'scope': 'in', 'name': 'Who', 'value': {'type_id': 'object.Actor'}},"
					"{'operation': 'add_variable', 'scope': 'out', 'name': 'bDone', 'value': {'type_id': 'bool'}}"),
		IsEmpty());
	FKismetEditorUtilities::CompileBlueprint(Interface);
	ASSERT_TRUE(FBlueprintEditorUtils::ImplementNewInterface(Blueprint, Interface->GeneratedClass->GetClassPathName()));
	UEdGraph* const Implementation = FindGraph(TEXT("Use"));
	ASSERT_NE(nullptr, Implementation);

	ASSERT_THAT(EditInterface(OnUse, "{'operation': 'edit_variable', 'scope': 'in', 'name': 'Who', 'value': {'prop_id': 'User'}}"), IsEmpty());
	EXPECT_NE(nullptr, FindNodeOfClass<UK2Node_FunctionEntry>(Implementation)->FindPin(TEXT("User"))) << "what implements it follows";
	FLumGraphCompound Compound(*Implementation);
	FLumVarDesc Desc;
	Desc.ScopeId = LumScope::In();
	Desc.PropId = TVexelPropId(TEXT("New"));
	Desc.TypeId = TVexelPropTypeId(TEXT("int"));
	EXPECT_TRUE(Compound.AddVariable(Desc).HasError());
	EXPECT_EQ(nullptr, Compound.FindVariable(LumScope::In(), TVexelPropId(TEXT("User"))).GetValue()->AsEditableVariable());
	EXPECT_THAT(ToStd(FLumHelper::RenameGraph(*Implementation, TEXT("Other")).GetError().ToChainString()), HasSubstr("gives it its name"));
	EXPECT_THAT(EditInterface(OnBlueprint, "{'operation': 'add_variable', 'scope': 'member', 'name': 'A', 'value': {'type_id': 'int'}}"),
		ElementsAre(HasSubstr("Failed to add variable 'A' of type 'int': blueprints of this kind declare no variables")));
	Forget(*Interface);
}

TEST_F(FObjectEditTest, ManyUnknownTypesAreRefusedWithoutMuchAdo)
{
	std::string Operations;
	constexpr int32 NumOperations = 200;
	for (int32 Index = 0; Index < NumOperations; ++Index)
	{
		Operations += std::string(Index ? "," : "") + "{'operation': 'add_variable', 'scope': 'member', 'name': 'New', 'value': {'type_id': 'object.Actr'}}";
	}
	const std::vector<std::string> Errors = EditErrors(OnBlueprint, Operations);
	ASSERT_THAT(Errors, SizeIs(NumOperations));
	EXPECT_THAT(Errors.front(), HasSubstr("Nearest: 'object.Actor'"));
	EXPECT_THAT(Errors.back(), testing::EndsWith("for pin type 'object.Actr'!"));
	const std::string Long(100'000, 'x');
	EXPECT_THAT(EditError(OnBlueprint,
					"{'operation': 'add_variable', 'scope': 'member', 'name': '" + Long + "', 'value': {'type_id': 'object." + Long + "'}}"),
		HasSubstr("Failed to add variable"));
	EXPECT_THAT(EditError(OnHeal, "{'operation': 'add_variable', 'scope': 'in', 'name': '" + Long + "', 'value': {'type_id': 'int'}}"),
		HasSubstr("fewer than"));
}

TEST_F(FObjectEditTest, ABlueprintThatDoesNotCompileIsEditedAllTheSame)
{
	ASSERT_THAT(EditErrors(OnBlueprint, "{'operation': 'edit_variable', 'scope': 'member', 'name': 'Health', 'value': {'type_id': 'object.Actor'}}"), IsEmpty());
	FKismetEditorUtilities::CompileBlueprint(Blueprint);
	ASSERT_EQ(BS_Error, Blueprint->Status);
	const FString Before = TakeText();
	GEditor->ResetTransaction(INVTEXT("Test"));
	EXPECT_THAT(EditErrors(OnBlueprint,
					"{'operation': 'add_variable', 'scope': 'member', 'name': 'New', 'value': {'type_id': 'int'}},"
					"{'operation': 'edit_variable', 'scope': 'member', 'name': 'Health', 'value': {'type_id': 'int', 'prop_id': 'Life'}}"),
		IsEmpty());
	EXPECT_THAT(EditErrors(OnHeal,
					"{'operation': 'add_variable', 'scope': 'local', 'name': 'New2', 'value': {'type_id': 'int'}},"
					"{'operation': 'remove_variable', 'scope': 'in', 'name': 'Amount'}"),
		IsEmpty());
	EXPECT_EQ(4, NumUndos());
	while (GEditor->UndoTransaction())
	{
	}
	EXPECT_EQ("", ToStd(DescribeDifference(Before, TakeText())));
	EXPECT_TRUE(GEditor->RedoTransaction());
	EXPECT_TRUE(GEditor->RedoTransaction());
	FKismetEditorUtilities::CompileBlueprint(Blueprint);
	EXPECT_NE(BS_Error, Blueprint->Status) << "the first two repair it";
}

TEST_F(FObjectEditTest, TwoThousandOperationsAreOneCall)
{
	const FString Before = TakeText();
	std::string Operations;
	constexpr int32 NumVariables = 400;
	const auto Add = [&Operations](const std::string& Operation)
	{ Operations += (Operations.empty() ? "" : ",") + Operation; };
	for (int32 Index = 0; Index < NumVariables; ++Index)
	{
		const std::string Name = "V" + std::to_string(Index);
		Add("{'operation': 'add_variable', 'scope': 'member', 'name': '" + Name + "', 'value': {'type_id': 'int'}}");
		Add("{'operation': 'edit_variable', 'scope': 'member', 'name': '" + Name + "', 'value': {'prop_id': 'W" + std::to_string(Index) + "'}}");
		Add("{'operation': 'edit_variable', 'scope': 'member', 'name': 'W" + std::to_string(Index) + "', 'value': {'category': 'Many'}}");
		Add("{'operation': 'update', 'prop_path': 'Gone', 'value': '1'}");
		Add("{'operation': 'remove_variable', 'scope': 'member', 'name': 'W" + std::to_string(Index) + "'}");
	}
	const FAnswer Answer = Edit(OnBlueprint, Operations);
	EXPECT_THAT(TextsOf(*Answer.GetValue(), TEXT("errors")), SizeIs(NumVariables));
	EXPECT_EQ(4 * NumVariables, NumUndos());
	EXPECT_EQ("", ToStd(DescribeDifference(Before, TakeText())));
}
}
