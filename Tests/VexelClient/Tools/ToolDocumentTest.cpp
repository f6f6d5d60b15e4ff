#include "Tools/ToolFixture.h"

#include "Containers/StringConv.h"
#include "Editor.h"
#include "Tools/VexelToolManager.h"
#include "Tools/VexelToolSchema.h"

#include <fstream>
#include <sstream>

namespace
{
/** A tool's part of the page. */
struct FDocumentedTool
{
	std::string Name;
	/** "`limit` | integer, optional" */
	std::vector<std::string> Arguments;
	std::string Input;
	std::string Answer;
};

std::vector<std::string> ReadLines(const std::filesystem::path& File)
{
	std::ifstream Stream(File);
	std::vector<std::string> Lines;
	for (std::string Line; std::getline(Stream, Line);)
	{
		Lines.push_back(Line);
	}
	return Lines;
}

/** The parts that describe tools: those with an input and an answer. */
std::vector<FDocumentedTool> ReadDocument()
{
	std::vector<FDocumentedTool> Tools;
	FDocumentedTool Tool;
	std::string* Block = nullptr;
	bool bInTable = false;
	for (const std::string& Line : ReadLines(VEXEL_SOURCE_DIR "/Docs/Tools.md"))
	{
		if (Line.starts_with("## "))
		{
			Tool = FDocumentedTool();
			Tool.Name = Line.substr(3);
		}
		if (Line.starts_with("```"))
		{
			const bool bEnds = Block != nullptr;
			Block = Line == "```json input" ? &Tool.Input : Line == "```json answer" ? &Tool.Answer
																					 : nullptr;
			if (bEnds && !Tool.Answer.empty())
			{
				Tools.push_back(Tool);
				Tool.Answer.clear();
			}
			continue;
		}
		if (Block)
		{
			*Block += Line + "\n";
		}
		bInTable = Line.starts_with("| argument |") || (bInTable && Line.starts_with("|"));
		if (bInTable && Line.starts_with("| `"))
		{
			Tool.Arguments.push_back(Line.substr(2, Line.find(" | ", Line.find(" | ") + 3) - 2));
		}
	}
	return Tools;
}

/** What the page says wrong of a value, by where it stands; nothing when it says it right. */
void Compare(const FJsonValue& Documented, const FJsonValue& Real, const std::string& Place, std::vector<std::string>& Wrong)
{
	const TSharedPtr<FJsonObject>* Object = nullptr;
	const TArray<TSharedPtr<FJsonValue>>* Values = nullptr;
	FString Text;
	double Number = 0.0;
	if (Documented.Type != Real.Type)
	{
		Wrong.push_back(Place + " is of another type");
	}
	else if (Documented.TryGetObject(Object))
	{
		const TSharedPtr<FJsonObject> RealObject = Real.AsObject();
		const bool bIsCut = (*Object)->HasField(TEXT("..."));
		for (const TPair<FString, TSharedPtr<FJsonValue>>& Pair : (*Object)->Values)
		{
			if (Pair.Key == TEXT("..."))
			{
				continue;
			}
			const std::string Inner = Place + "." + std::string(TCHAR_TO_UTF8(*Pair.Key));
			const TSharedPtr<FJsonValue> RealValue = RealObject->TryGetField(Pair.Key);
			RealValue ? Compare(*Pair.Value, *RealValue, Inner, Wrong) : Wrong.push_back(Inner + " is not in the answer");
		}
		for (const TPair<FString, TSharedPtr<FJsonValue>>& Pair : RealObject->Values)
		{
			if (!bIsCut && !(*Object)->HasField(Pair.Key))
			{
				Wrong.push_back(Place + "." + std::string(TCHAR_TO_UTF8(*Pair.Key)) + " is not on the page");
			}
		}
	}
	else if (Documented.TryGetArray(Values))
	{
		const TArray<TSharedPtr<FJsonValue>>& RealValues = Real.AsArray();
		if (Values->Num() != RealValues.Num())
		{
			Wrong.push_back(Place + " has " + std::to_string(RealValues.Num()) + " elements");
		}
		for (int32 Index = 0; Index < FMath::Min(Values->Num(), RealValues.Num()); ++Index)
		{
			Compare(*(*Values)[Index], *RealValues[Index], Place + "[" + std::to_string(Index) + "]", Wrong);
		}
	}
	else if (Documented.Type == EJson::String && Documented.TryGetString(Text) && Text.EndsWith(TEXT("...")))
	{
		if (!Real.AsString().StartsWith(Text.LeftChop(3), ESearchCase::CaseSensitive))
		{
			Wrong.push_back(Place + " begins otherwise");
		}
	}
	else if (!(Documented.Type == EJson::Number && Documented.TryGetNumber(Number) && Number == 0.0) && !(Documented == Real))
	{
		Wrong.push_back(Place + " is another value");
	}
}

class ToolDocument : public FToolTest
{
};
}

TEST_F(ToolDocument, DescribesTheArgumentsThatTheToolsTake)
{
	std::vector<std::string> Names;
	for (const FDocumentedTool& Documented : ReadDocument())
	{
		Names.push_back(Documented.Name);
		const TVexelExpected<TSharedRef<FVexelTool>> Tool = FVexelToolManager::Get().FindTool(FName(UTF8_TO_TCHAR(Documented.Name.c_str())));
		ASSERT_TRUE(Tool.HasValue()) << Documented.Name;
		ASSERT_NE(Tool.GetValue()->GetSchema(), nullptr);
		std::vector<std::string> Arguments;
		for (const FVexelToolSchema::FField& Field : Tool.GetValue()->GetSchema()->GetFields())
		{
			Arguments.push_back(TCHAR_TO_UTF8(
				*FString::Printf(TEXT("`%s` | %s%s"), Field.Name, *Field.TypeName, Field.bRequired ? TEXT("") : TEXT(", optional"))));
		}
		EXPECT_EQ(Documented.Arguments, Arguments) << Documented.Name;
	}
	EXPECT_EQ(Names, (std::vector<std::string>{"get_project", "search_assets", "get_asset_info", "get_source", "get_scene_screenshot", "object_edit"}));
}

TEST_F(ToolDocument, ShowsWhatTheToolsAnswer)
{
	for (const FDocumentedTool& Documented : ReadDocument())
	{
		std::vector<std::string> Wrong;
		Compare(FJsonValueObject(ParseJson(Documented.Answer)), FJsonValueObject(Answer(Documented.Name.c_str(), Documented.Input)),
			Documented.Name, Wrong);
		EXPECT_EQ(Wrong, std::vector<std::string>());
	}
	// The sample is other tests' too.
	while (GEditor->UndoTransaction())
	{
	}
}
