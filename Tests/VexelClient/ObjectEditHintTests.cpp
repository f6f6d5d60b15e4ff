#include "ObjectEditFixture.h"

#include <gmock/gmock.h>

namespace
{
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

const char* const OnBlueprint = "{'target_type': 'blueprint'}";
const char* const OnHeal = "{'target_type': 'graph', 'graph': 'Heal'}";
const char* const OnSet = "{'target_type': 'node', 'graph': 'EventGraph', 'node': 'SetHealth_0'}";

struct FHint
{
	const char* Target;
	const char* Operation;
	/** How the error ends. */
	const char* End;
};

/** What a caller often writes instead of what is there. */
const FHint Hints[] = {
	{OnBlueprint, "{'operation': 'update', 'prop_path': 'Health', 'value': '1'}", ". Nearest: '$ClassDefaultObject.Health', 'Health' of scope 'member'"},
	{OnBlueprint, "{'operation': 'update', 'prop_path': 'InitialLifespan.X', 'value': '1'}", ". Nearest: '$ClassDefaultObject.InitialLifeSpan'"},
	{OnBlueprint, "{'operation': 'update', 'prop_path': '$ClassDefaultObject.Helth', 'value': '1'}",
		". Nearest: '$ClassDefaultObject.Health', 'Health' of scope 'member'"},
	{OnBlueprint, "{'operation': 'update', 'scope': 'local', 'prop_path': 'Health', 'value': '1'}", ". Nearest: 'Health' of scope 'member'"},
	{OnBlueprint, "{'operation': 'update', 'scope': 'member', 'prop_path': 'Health.X', 'value': '1'}", ". Nearest: 'Health' of scope 'member'"},
	{OnBlueprint, "{'operation': 'edit_variable', 'name': 'Health', 'value': {}}", ". Nearest: 'Health' of scope 'member'"},
	{OnBlueprint, "{'operation': 'remove_variable', 'scope': 'member', 'name': 'Heatlh'}", ". Nearest: 'Health' of scope 'member'"},
	{OnHeal, "{'operation': 'update', 'prop_path': 'Amount', 'value': '1'}", ". Nearest: 'Amount' of scope 'in'"},
	{OnHeal, "{'operation': 'remove_variable', 'scope': 'in', 'name': 'Left'}", ". Nearest: 'Left' of scope 'local'"},
	{OnSet, "{'operation': 'update', 'scope': 'in', 'prop_path': 'Health', 'value': '1'}", ". Nearest: 'Health' without a scope"},
	{OnSet, "{'operation': 'remove_pin', 'scope': 'in', 'name': 'Health'}", "Variable 'Health' with scope 'in' not found"},
	{OnSet, "{'operation': 'update', 'prop_path': 'health value', 'value': '1'}", ". Nearest: 'Health'"},
	{"{'target_type': 'graph', 'graph': 'Heel'}", "{'operation': 'update'}", "for edit request. Nearest: 'Heal'"},
	{"{'target_type': 'node', 'graph': 'Heal', 'node': 'Xyzzy_0'}", "{'operation': 'update'}", "for edit request"},
	{"{'target_type': 'function', 'graph': 'Heal'}", "{'operation': 'update'}", ". Target types are 'blueprint', 'graph', 'node'"},
	{OnBlueprint, "{'operation': 'update', 'prop_path': '$ClassDefaultObject.Tags', 'value': ['A']}",
		"Expected JSON object for compound property. Fields and elements are given by their ids, as {\"X\": \"1\"} and {\"0\": \"Coin\"}"},
	{OnBlueprint, "{'operation': 'update', 'prop_path': '$ClassDefaultObject.Tags', 'value': {'type': 'array|name', 'properties': []}}",
		". Fields and elements are given by their ids, as {\"X\": \"1\"} and {\"0\": \"Coin\"}"},
	// Nothing is near, or there is nothing to look for.
	{OnBlueprint, "{'operation': 'update', 'prop_path': 'Xyzzy', 'value': '1'}", "while resolving path 'Xyzzy' in target"},
	{OnBlueprint, "{'operation': 'update', 'prop_path': '$ClassDefaultObject.Health.X', 'value': '1'}",
		"while resolving path '$ClassDefaultObject.Health.X' in target"},
	{OnBlueprint, "{'operation': 'update', 'scope': 'member', 'prop_path': 'Health', 'value': 'x'}", "is not a number or an enumerator: 'x'"},
	{OnBlueprint, "{'operation': 'add_variable', 'scope': 'in', 'name': 'Health', 'value': {'type_id': 'int'}}",
		"Write Error: Scope 'in' is not supported by target"},
	{OnSet, "{'operation': 'add_pin', 'scope': 'in', 'name': 'New', 'value': {'type_id': 'int'}}",
		"Write Error: Target does not support variable management"},
};

class FObjectEditHintTest : public FObjectEditTest
{
protected:
	std::vector<std::string> WarningsOf(const std::string& Input)
	{
		const FAnswer Answer = Call(TEXT("object_edit"), "{'blueprint': 'BP', 'requests': " + Input + "}");
		EXPECT_TRUE(Answer.HasValue());
		EXPECT_FALSE(Answer.GetValue()->HasField(TEXT("errors"))) << TextsOf(*Answer.GetValue(), TEXT("errors"))[0];
		return TextsOf(*Answer.GetValue(), TEXT("warnings"));
	}
	std::vector<std::string> WarningsOfOperations(const std::string& Operations)
	{
		return WarningsOf("[{'target': {'target_type': 'blueprint'}, 'operations': [" + Operations + "]}]");
	}
};

TEST_F(FObjectEditHintTest, WhatIsNotThereIsToldWithWhatIsLikeIt)
{
	for (const FHint& Hint : Hints)
	{
		EXPECT_THAT(EditError(Hint.Target, Hint.Operation), EndsWith(Hint.End)) << Hint.Operation;
	}
	EXPECT_THAT(EditError("{'target_type': 'node', 'graph': 'Heal', 'node': 'SetHealth_0'}", "{'operation': 'update'}"),
		HasSubstr("for edit request. Nearest: 'SetHealth_0' in graph 'EventGraph', "));
}

TEST_F(FObjectEditHintTest, AVariableThatIsNotCompiledYetIsToldByItsScope)
{
	ASSERT_THAT(EditErrors(OnBlueprint, "{'operation': 'add_variable', 'scope': 'member', 'name': 'Stops', 'value': {'type_id': 'array|int'}}"), IsEmpty());
	EXPECT_THAT(EditError(OnBlueprint, "{'operation': 'update', 'prop_path': '$ClassDefaultObject.Stops', 'value': {'0': '1'}}"),
		EndsWith(". Nearest: 'Stops' of scope 'member'"));
}

TEST_F(FObjectEditHintTest, ManyThatAreNotThereAreRefusedWithoutMuchAdo)
{
	std::string Operations;
	for (int32 Index = 0; Index < 40; ++Index)
	{
		Operations += std::string(Index ? "," : "") + "{'operation': 'update', 'prop_path': 'Health', 'value': '1'}";
	}
	const std::vector<std::string> Errors = EditErrors(OnBlueprint, Operations);
	ASSERT_THAT(Errors, SizeIs(40));
	EXPECT_THAT(Errors.front(), HasSubstr("Nearest"));
	EXPECT_THAT(Errors.back(), Not(HasSubstr("Nearest")));
}

TEST_F(FObjectEditHintTest, AnErrorRepeatsNoInputOfAnyLength)
{
	const std::string Long(1'000'000, 'x');
	for (const std::string& Operation : {"{'operation': 'update', 'prop_path': '" + Long + "', 'value': '1'}",
			 "{'operation': 'add_variable', 'scope': '" + Long + "', 'name': 'A', 'value': {'type_id': 'int'}}",
			 "{'operation': 'add_variable', 'scope': 'member', 'name': 'A', 'value': {'type_id': 'object." + Long + "'}}"})
	{
		EXPECT_THAT(EditError(OnBlueprint, Operation), testing::SizeIs(8003));
	}
}

TEST_F(FObjectEditHintTest, WhatIsIgnoredIsTold)
{
	EXPECT_THAT(WarningsOfOperations("{'operation': 'set', 'prop_path': 'Health', 'value': '1'}"),
		ElementsAre("`requests[0].operations[0]` is skipped: there is no operation 'set'; there are 'update', 'insert', 'remove', 'add_variable', "
					"'remove_variable', 'edit_variable', 'add_pin', 'remove_pin', 'edit_pin'"));
	EXPECT_THAT(WarningsOfOperations("{'operation': 'edit_variable', 'scope': 'member', 'name': 'Health', 'value': {'type': 'real'}}"),
		ElementsAre("`type` in `requests[0].operations[0].value` is ignored: the keys there are `scope_id`, `prop_id`, `type_id`, `category`, "
					"`instance_editable`, `read_only`, `private`, `expose_on_spawn`, `save_game`, `transient`, `replicated`"));
	EXPECT_THAT(WarningsOfOperations("{'operation': 'update', 'scope': 'member', 'prop_path': 'Health', 'value': '1', 'type': 'int'}"),
		ElementsAre("`type` in `requests[0].operations[0]` is ignored: the keys there are `operation`, `scope`, `prop_path`, `name`, `index`, `value`"));
	EXPECT_THAT(WarningsOf("[{'target': {'target_type': 'blueprint', 'id': 'BP'}, 'operation': 'update'}, 7, 'x']"),
		ElementsAre(HasSubstr("`operation` in `requests[0]` is ignored"), HasSubstr("`id` in `requests[0].target` is ignored"),
			"`requests[0]` has no array `operations`: nothing is done"));
	EXPECT_THAT(WarningsOf("[{'target': " + std::string(OnHeal) +
					", 'operations': [{'operation': 'edit_variable', 'scope': 'in', 'name': 'Amount', 'value': {'category': 'Care'}}]}]"),
		ElementsAre("`category` in `requests[0].operations[0].value` is ignored: only member and local variables have one"));
	// Without a word for it an operation is passed over without a word.
	EXPECT_THAT(WarningsOfOperations("{}, 7, null, {'op': 'update'}, {'operation': []}"), IsEmpty());
	EXPECT_THAT(WarningsOfOperations("{'operation': 'update', 'prop_path': '$ClassDefaultObject', 'value': {'Health': '3'}}"), IsEmpty());
}

TEST_F(FObjectEditHintTest, OfManyIgnoredPartsTheFirstAreTold)
{
	std::string Operations;
	for (int32 Index = 0; Index < 500; ++Index)
	{
		Operations += std::string(Index ? "," : "") + "{'operation': 'set'}";
	}
	const std::vector<std::string> Warnings = WarningsOfOperations(Operations);
	ASSERT_THAT(Warnings, SizeIs(21));
	EXPECT_EQ("480 more parts of the requests are ignored", Warnings.back());
}

struct FUnknownType
{
	const char* TypeId;
	const char* End;
};

const char* const HowIdsAreWritten = ". A type id is such as 'int', 'struct.Vector', 'object.Actor', 'class.Actor', 'array|name' or 'map|name,int'";

/** Type ids as people guess them. */
const FUnknownType UnknownTypes[] = {
	{"Actor", ". Nearest: 'object.Actor'"},
	{"AActor", ". Nearest: 'object.Actor'"},
	{"class.Actr", ". Nearest: 'class.Actor'"},
	{"softclass.AActor", ". Nearest: 'softclass.Actor'"},
	{"/Script/Engine.Actor", ". Nearest: 'object.Actor'"},
	{"boolean", ". Nearest: 'bool'"},
	{"integer", ". Nearest: 'int64', 'int'"},
	{"str", ". Nearest: 'string'"},
	{"struct.Xyzzyx", HowIdsAreWritten},
	{"array|object.Actr", ". Nearest: 'array|object.Actor'"},
	{"map|nam,int", ". Nearest: 'map|name,int'"},
	{"map|name|object.Actr", ". Nearest: 'map|name,object.Actor'"},
	{"array|array|int", HowIdsAreWritten},
	{"map|int", HowIdsAreWritten},
	{"list|int", HowIdsAreWritten},
	{"array", HowIdsAreWritten},
	{"int[]", HowIdsAreWritten},
	{"TArray<int>", HowIdsAreWritten},
	{"TSubclassOf<AActor>", HowIdsAreWritten},
	{"xyzzy", HowIdsAreWritten},
};

TEST_F(FObjectEditHintTest, AnUnknownTypeIsToldWithTypesThatAreLikeIt)
{
	for (const FUnknownType& Unknown : UnknownTypes)
	{
		const std::string Error = EditError(OnBlueprint,
			std::string("{'operation': 'add_variable', 'scope': 'member', 'name': 'New', 'value': {'type_id': '") + Unknown.TypeId + "'}}");
		const bool bIsFirst = Error.find(std::string(Unknown.End) + ",") != std::string::npos;
		EXPECT_TRUE(bIsFirst || testing::Value(Error, EndsWith(Unknown.End))) << Error;
	}
	for (const char* const TypeId : {"FVector", "struct.FVector", "Vector", "vector", "object.Vector"})
	{
		EXPECT_THAT(EditError(OnBlueprint,
						std::string("{'operation': 'add_variable', 'scope': 'member', 'name': 'New', 'value': {'type_id': '") + TypeId + "'}}"),
			HasSubstr(". Nearest: 'struct.Vector'"));
	}
}
}
