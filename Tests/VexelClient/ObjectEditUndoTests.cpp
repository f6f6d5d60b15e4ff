#include "BlueprintText.h"
#include "Editor.h"
#include "ObjectEditFixture.h"

#include <gmock/gmock.h>

namespace
{
using testing::IsEmpty;

struct FUndoCase
{
	const char* Name;
	/** The entry's title. */
	const char* Title;
	const char* Target;
	const char* Operation;
};

/** Titles and operations of each structure edit, on the Blueprint of the fixture. */
const FUndoCase UndoCases[] = {
	{"AddMember", "(Vexel) Add Variable", "{'target_type': 'blueprint'}",
		"{'operation': 'add_variable', 'scope': 'member', 'name': 'Fresh', 'value': {'type_id': 'map|string,object.Actor', 'category': 'New'}}"},
	{"AddDispatcher", "(Vexel) Add Variable", "{'target_type': 'blueprint'}",
		"{'operation': 'add_variable', 'scope': 'member', 'name': 'OnFresh', 'value': {'type_id': 'mcdelegate'}}"},
	{"RemoveMember", "(Vexel) Remove Variable", "{'target_type': 'blueprint'}",
		"{'operation': 'remove_variable', 'scope': 'member', 'name': 'Health'}"},
	{"RemoveDispatcher", "(Vexel) Remove Variable", "{'target_type': 'blueprint'}",
		"{'operation': 'remove_variable', 'scope': 'member', 'name': 'OnHurt'}"},
	{"RenameMember", "(Vexel) Edit Variable", "{'target_type': 'blueprint'}",
		"{'operation': 'edit_variable', 'scope': 'member', 'name': 'Health', 'value': {'prop_id': 'Life'}}"},
	{"RenameDispatcher", "(Vexel) Edit Variable", "{'target_type': 'blueprint'}",
		"{'operation': 'edit_variable', 'scope': 'member', 'name': 'OnHurt', 'value': {'prop_id': 'OnDamaged'}}"},
	{"RetypeMember", "(Vexel) Edit Variable", "{'target_type': 'blueprint'}",
		"{'operation': 'edit_variable', 'scope': 'member', 'name': 'Health', 'value': {'type_id': 'object.Actor'}}"},
	{"RenameRetypeAndFlagMember", "(Vexel) Edit Variable", "{'target_type': 'blueprint'}",
		"{'operation': 'edit_variable', 'scope': 'member', 'name': 'Health', 'value': "
		"{'prop_id': 'Life', 'type_id': 'real', 'category': 'Vital', 'instance_editable': true, 'private': true}}"},
	{"RecategoriseMember", "(Vexel) Edit Variable", "{'target_type': 'blueprint'}",
		"{'operation': 'edit_variable', 'scope': 'member', 'name': 'Health', 'value': {'category': 'Vital'}}"},
	{"AddLocal", "(Vexel) Add Variable", "{'target_type': 'graph', 'graph': 'Heal'}",
		"{'operation': 'add_variable', 'scope': 'local', 'name': 'Fresh', 'value': {'type_id': 'struct.Vector', 'category': 'New'}}"},
	{"RemoveLocal", "(Vexel) Remove Variable", "{'target_type': 'graph', 'graph': 'Heal'}",
		"{'operation': 'remove_variable', 'scope': 'local', 'name': 'Left'}"},
	{"RenameLocal", "(Vexel) Edit Variable", "{'target_type': 'graph', 'graph': 'Heal'}",
		"{'operation': 'edit_variable', 'scope': 'local', 'name': 'Left', 'value': {'prop_id': 'Rest', 'category': 'New'}}"},
	{"RetypeLocal", "(Vexel) Edit Variable", "{'target_type': 'graph', 'graph': 'Heal'}",
		"{'operation': 'edit_variable', 'scope': 'local', 'name': 'Left', 'value': {'type_id': 'string'}}"},
	{"AddInput", "(Vexel) Add Function Input", "{'target_type': 'graph', 'graph': 'Heal'}",
		"{'operation': 'add_variable', 'scope': 'in', 'name': 'Fresh', 'value': {'type_id': 'bool'}}"},
	{"AddOutput", "(Vexel) Add Function Output", "{'target_type': 'graph', 'graph': 'Heal'}",
		"{'operation': 'add_variable', 'scope': 'out', 'name': 'Fresh', 'value': {'type_id': 'array|int'}}"},
	{"AddFirstOutput", "(Vexel) Add Function Output", "{'target_type': 'graph', 'graph': 'Plain'}",
		"{'operation': 'add_variable', 'scope': 'out', 'name': 'Fresh', 'value': {'type_id': 'int'}}"},
	{"RenameInput", "(Vexel) Edit Function Input", "{'target_type': 'graph', 'graph': 'Heal'}",
		"{'operation': 'edit_variable', 'scope': 'in', 'name': 'Amount', 'value': {'prop_id': 'Points'}}"},
	{"RetypeInput", "(Vexel) Edit Function Input", "{'target_type': 'graph', 'graph': 'Heal'}",
		"{'operation': 'edit_variable', 'scope': 'in', 'name': 'Amount', 'value': {'type_id': 'object.Actor'}}"},
	{"RenameOutput", "(Vexel) Edit Function Output", "{'target_type': 'graph', 'graph': 'Heal'}",
		"{'operation': 'edit_variable', 'scope': 'out', 'name': 'Total', 'value': {'prop_id': 'Sum'}}"},
	{"RemoveInput", "(Vexel) Remove Function Input", "{'target_type': 'graph', 'graph': 'Heal'}",
		"{'operation': 'remove_variable', 'scope': 'in', 'name': 'Amount'}"},
	{"RemoveOutput", "(Vexel) Remove Function Output", "{'target_type': 'graph', 'graph': 'Heal'}",
		"{'operation': 'remove_variable', 'scope': 'out', 'name': 'Total'}"},
	{"AddMacroInput", "(Vexel) Add Function Input", "{'target_type': 'graph', 'graph': 'Twice'}",
		"{'operation': 'add_variable', 'scope': 'in', 'name': 'Again', 'value': {'type_id': 'exec'}}"},
	{"RenameMacroInput", "(Vexel) Edit Function Input", "{'target_type': 'graph', 'graph': 'Twice'}",
		"{'operation': 'edit_variable', 'scope': 'in', 'name': 'Number', 'value': {'prop_id': 'Count', 'type_id': 'real'}}"},
	{"RemoveMacroInput", "(Vexel) Remove Function Input", "{'target_type': 'graph', 'graph': 'Twice'}",
		"{'operation': 'remove_variable', 'scope': 'in', 'name': 'Number'}"},
	{"AddDispatcherInput", "(Vexel) Add Function Input", "{'target_type': 'graph', 'graph': 'OnHurt'}",
		"{'operation': 'add_variable', 'scope': 'in', 'name': 'Where', 'value': {'type_id': 'struct.Vector'}}"},
	{"RenameDispatcherInput", "(Vexel) Edit Function Input", "{'target_type': 'graph', 'graph': 'OnHurt'}",
		"{'operation': 'edit_variable', 'scope': 'in', 'name': 'Damage', 'value': {'prop_id': 'Points'}}"},
	{"AddEventPin", "(Vexel) Add Pin", "{'target_type': 'node', 'graph': 'EventGraph', 'node': 'Hurt_0'}",
		"{'operation': 'add_pin', 'scope': 'out', 'name': 'Fresh', 'value': {'type_id': 'bool'}}"},
	{"RenameEventPin", "(Vexel) Edit Pin", "{'target_type': 'node', 'graph': 'EventGraph', 'node': 'Hurt_0'}",
		"{'operation': 'edit_pin', 'scope': 'out', 'name': 'Damage', 'value': {'prop_id': 'Points'}}"},
	{"RetypeEventPin", "(Vexel) Edit Pin", "{'target_type': 'node', 'graph': 'EventGraph', 'node': 'Hurt_0'}",
		"{'operation': 'edit_pin', 'scope': 'out', 'name': 'Damage', 'value': {'type_id': 'object.Actor'}}"},
	{"RemoveEventPin", "(Vexel) Remove Pin", "{'target_type': 'node', 'graph': 'EventGraph', 'node': 'Hurt_0'}",
		"{'operation': 'remove_pin', 'scope': 'out', 'name': 'Damage'}"},
	{"RenameFunction", "(Vexel) Edit Property", "{'target_type': 'graph', 'graph': 'Heal'}",
		"{'operation': 'update', 'prop_path': 'name', 'value': 'Cure'}"},
	{"RenameMacro", "(Vexel) Edit Property", "{'target_type': 'graph', 'graph': 'Twice'}",
		"{'operation': 'update', 'prop_path': 'name', 'value': 'Thrice'}"},
	{"RenameEvent", "(Vexel) Edit Property", "{'target_type': 'node', 'graph': 'EventGraph', 'node': 'Hurt_0'}",
		"{'operation': 'update', 'prop_path': 'name', 'value': 'Ouch'}"},
	{"SetMemberDefault", "(Vexel) Edit Property", "{'target_type': 'blueprint'}",
		"{'operation': 'update', 'scope': 'member', 'prop_path': 'Health', 'value': '75'}"},
	{"SetLocalDefault", "(Vexel) Edit Property", "{'target_type': 'graph', 'graph': 'Heal'}",
		"{'operation': 'update', 'scope': 'local', 'prop_path': 'Left', 'value': '3'}"},
	{"SetInputDefault", "(Vexel) Edit Property", "{'target_type': 'graph', 'graph': 'Heal'}",
		"{'operation': 'update', 'scope': 'in', 'prop_path': 'Amount', 'value': '3'}"},
};

class FObjectEditUndoTest : public FObjectEditTest, public testing::WithParamInterface<FUndoCase>
{
};

TEST_P(FObjectEditUndoTest, OneEntryRestoresAndRepeatsIt)
{
	const FUndoCase& Case = GetParam();
	const FString Before = TakeText();
	ASSERT_THAT(EditErrors(Case.Target, Case.Operation), IsEmpty());
	const FString After = TakeText();
	EXPECT_NE(ToStd(Before), ToStd(After));
	ASSERT_EQ(1, NumUndos());
	EXPECT_EQ(Case.Title, TopTitle());
	for (int32 Round = 0; Round < 2; ++Round)
	{
		ASSERT_TRUE(GEditor->UndoTransaction());
		ASSERT_EQ("", ToStd(DescribeDifference(Before, TakeText())));
		ASSERT_TRUE(GEditor->RedoTransaction());
		ASSERT_EQ("", ToStd(DescribeDifference(After, TakeText())));
	}
}

INSTANTIATE_TEST_SUITE_P(Edits, FObjectEditUndoTest, testing::ValuesIn(UndoCases), [](const testing::TestParamInfo<FUndoCase>& Info)
	{ return std::string(Info.param.Name); });
}
