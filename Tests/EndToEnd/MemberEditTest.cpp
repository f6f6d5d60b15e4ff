#include "Program.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace
{
using testing::HasSubstr;
using testing::Not;

/** More than the edits of any of the sentences here. */
constexpr int MaxUndos = 12;

/** A change of a Blueprint's members that one sentence makes, and what reading the Blueprint then shows. */
struct FMemberChange
{
	const char* Name;
	const char* Blueprint;
	const char* Sentence;
	/** Where the export has the change, by keys and by the ids of items in lists. */
	std::vector<std::string> Place;
	/** The value there; null where there is to be nothing. */
	nlohmann::json Expected;
	/** Whether what uses it does not fit any more. */
	bool bBreaks = false;
};

void PrintTo(const FMemberChange& Change, std::ostream* Stream)
{
	*Stream << Change.Name;
}

nlohmann::json Read(const FSampleProjectCopy& Project, const std::string& Blueprint)
{
	const FProgramResult Result = RunVexel({"tool", "read_blueprint", "--project", Project.GetPath(), "--input",
		nlohmann::json{{"blueprint", "/Game/" + Blueprint}}.dump()});
	EXPECT_EQ(Result.Status, 0) << Result.Errors;
	return nlohmann::json::parse(Result.Output, nullptr, false);
}

/** What stands at a place of an export; null where nothing does. */
nlohmann::json At(nlohmann::json Value, const std::vector<std::string>& Place)
{
	for (const std::string& Step : Place)
	{
		nlohmann::json Next;
		if (Value.is_array())
		{
			for (const nlohmann::json& Item : Value)
			{
				Next = Item.value("id", "") == Step ? Item : Next;
			}
		}
		else if (Value.is_object())
		{
			Next = Value.value(Step, nlohmann::json());
		}
		Value = Next;
	}
	return Value;
}

class MemberEdit : public testing::TestWithParam<FMemberChange>
{
};
}

TEST_P(MemberEdit, OneSentenceMakesItAndUndoTakesItBack)
{
	const FMemberChange& Change = GetParam();
	const FSampleProjectCopy Project;
	const nlohmann::json Before = Read(Project, Change.Blueprint);
	ASSERT_NE(At(Before, Change.Place), Change.Expected) << "there is nothing to change";

	std::string Undone = Change.Sentence + std::string("\n");
	for (int Count = 0; Count < MaxUndos; ++Count)
	{
		Undone += "/undo\n";
	}
	// The class is what the last compile has made of the variables, so that it shows what was undone when it is compiled again.
	Undone += std::string("Compile ") + Change.Blueprint + "\n/save\n";
	const FProgramResult Taken = RunVexel({"chat", "--project", Project.GetPath()}, Undone);
	EXPECT_THAT(Taken.Output + Taken.Errors, HasSubstr("there is nothing to undo"));
	EXPECT_THAT(Taken.Output, testing::AllOf(Not(HasSubstr("  ! Failed")), Not(HasSubstr("[failed")))) << "no call is refused";
	EXPECT_TRUE(Read(Project, Change.Blueprint) == Before) << Taken.Output;

	const FProgramResult Made = RunVexel({"chat", "--project", Project.GetPath(), "--save", "--message", Change.Sentence});
	EXPECT_EQ(Made.Status, 0) << Made.Errors;
	// Another type may well break what uses a variable, which is then told; the change is made all the same.
	EXPECT_THAT(Made.Output, HasSubstr(std::string("**") + Change.Blueprint + (Change.bBreaks ? "** does not compile" : "** compiles")));
	EXPECT_EQ(At(Read(Project, Change.Blueprint), Change.Place), Change.Expected) << Made.Output;
}

INSTANTIATE_TEST_SUITE_P(Families, MemberEdit,
	testing::Values(
		FMemberChange{"AddVariable", "BP_Door", "Give BP_Door a boolean bJammed", {"variables", "bJammed", "type"}, "bool"},
		FMemberChange{"AddList", "BP_Door", "Add an array of strings called Notes to BP_Door", {"variables", "Notes", "type"},
			"array|string"},
		FMemberChange{"AddReference", "BP_Door", "Add a reference to BP_Enemy called Guard to BP_Door", {"variables", "Guard", "type"},
			"object.BP_Enemy"},
		FMemberChange{"AddLocal", "BP_Enemy", "Add a local integer Steps to the function Die of BP_Enemy",
			{"graphs", "Die", "variables", "Steps", "scope"}, "local"},
		FMemberChange{"Rename", "BP_Enemy", "Rename MaxHealth of BP_Enemy to FullHealth", {"variables", "FullHealth", "category"},
			"Health"},
		FMemberChange{"RenameFunction", "BP_Enemy", "Rename the function Die of BP_Enemy to Perish", {"graphs", "Perish", "graph_type"},
			"function"},
		FMemberChange{"Retype", "BP_Player", "Make Keys of BP_Player a float", {"variables", "Keys", "type"}, "real", true},
		FMemberChange{"Remove", "BP_Player", "Remove Keys from BP_Player", {"variables", "Keys"}, nullptr},
		FMemberChange{"Category", "BP_Door", "Put bLocked of BP_Door in the category Lock", {"variables", "bLocked", "category"}, "Lock"},
		FMemberChange{"Private", "BP_Door", "Make bIsOpen private in BP_Door", {"variables", "bIsOpen", "private"}, true},
		FMemberChange{"AddFunction", "BP_Enemy",
			"Add a function Heal to BP_Enemy with an input Amount of type float and an output NewHealth",
			{"graphs", "Heal", "variables", "NewHealth", "type"}, "real"},
		FMemberChange{"AddOutput", "BP_Enemy", "Make Die return a float Rest in BP_Enemy",
			{"graphs", "Die", "variables", "Rest", "scope"}, "out"}),
	[](const testing::TestParamInfo<FMemberChange>& Info)
	{ return std::string(Info.param.Name); });

INSTANTIATE_TEST_SUITE_P(Values, MemberEdit,
	testing::Values(
		FMemberChange{"AddWithDefault", "BP_Enemy", "Add a float variable Armor with default 100 to BP_Enemy",
			{"variables", "Armor", "value"}, "100.000000"},
		FMemberChange{"SetDefault", "BP_Door", "Set OpenAngle of BP_Door to 120", {"variables", "OpenAngle", "value"}, "120.000000"},
		FMemberChange{"SetElement", "BP_Enemy", "Set the second element of Loot to Gem in BP_Enemy",
			{"variables", "Loot", "value", "properties", "1", "value"}, "Gem"},
		FMemberChange{"AddElement", "BP_Enemy", "Add Gem to the array Loot of BP_Enemy",
			{"variables", "Loot", "value", "properties", "2", "value"}, "Gem"},
		FMemberChange{"RemoveElement", "BP_Enemy", "Remove the first element of Loot in BP_Enemy",
			{"variables", "Loot", "value", "properties", "0", "value"}, "Key"},
		FMemberChange{"SetProperty", "BP_Door", "Set the initial life span of BP_Door to 5 seconds",
			{"properties", "$ClassDefaultObject", "value", "properties", "InitialLifeSpan", "value"}, "5.000000"},
		FMemberChange{"SetOfComponent", "BP_Door", "Make the mesh invisible in BP_Door",
			{"properties", "$ClassDefaultObject", "value", "properties", "Panel", "value", "properties", "bVisible", "value"}, "False"}),
	[](const testing::TestParamInfo<FMemberChange>& Info)
	{ return std::string(Info.param.Name); });

TEST(MemberEditEvent, AnEventGetsAnInputAndAnotherName)
{
	const FSampleProjectCopy Project;
	const auto Tell = [&Project](const char* Message)
	{
		const FProgramResult Result = RunVexel({"chat", "--project", Project.GetPath(), "--save", "--message", Message});
		EXPECT_THAT(Result.Output, HasSubstr("**BP_Door** compiles without errors")) << Result.Output << Result.Errors;
	};
	Tell("Add a custom event OnKnock that prints \"Hello\" to BP_Door");
	Tell("Add an integer input Count to the custom event OnKnock of BP_Door");
	Tell("Rename the custom event OnKnock of BP_Door to OnHammer");
	const std::string Export = Read(Project, "BP_Door").dump();
	EXPECT_THAT(Export, HasSubstr("\"OnHammer\""));
	EXPECT_THAT(Export, Not(HasSubstr("\"OnKnock\"")));
	EXPECT_THAT(Export, HasSubstr("\"editable_pins\":[{\"category\":\"\",\"declared_in\":\"object.K2Node_CustomEvent\",\"id\":\"Count\""));
}

TEST(MemberEditRefusal, WhatTheEditorRefusesLeavesNothing)
{
	const FSampleProjectCopy Project;
	const nlohmann::json Before = Read(Project, "BP_Enemy");
	const FProgramResult Result = RunVexel({"chat", "--project", Project.GetPath()},
		"Add a variable Pet of type Dragon to BP_Enemy\nAdd a function Feed to BP_Enemy with an input Food of type Dragon\n/save\n");
	EXPECT_THAT(Result.Output, HasSubstr("could not add the variable **Pet**"));
	EXPECT_THAT(Result.Output, HasSubstr("so I took the function back"));
	EXPECT_TRUE(Read(Project, "BP_Enemy") == Before) << Result.Output;
}
