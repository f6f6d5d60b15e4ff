#include "AssetRegistry/AssetRegistryModule.h"
#include "Blueprint/VexelBlueprintMapping.h"
#include "Containers/StringConv.h"
#include "Dom/JsonValue.h"
#include "Engine/Blueprint.h"
#include "GameFramework/Actor.h"
#include "Kismet2/BlueprintEditorUtils.h"
#include "Kismet2/KismetEditorUtilities.h"
#include "Lum/Compound/LumUnrealObjectCompound.h"
#include "Lum/LumContext.h"
#include "LumTestTypes.h"
#include "Tools/ToolFixture.h"
#include "UObject/Package.h"
#include "VexelJson.h"

#include <fstream>
#include <set>

// Docs/BlueprintJson.md against what the tool says of the sample project.

namespace
{
const char* const Blueprints[] = {"/Game/BP_Door", "/Game/BP_Enemy", "/Game/BP_Player"};

/** The page's tables of keys, with what their rows give for an example, and its examples of whole objects. */
struct FPage
{
	std::set<std::string> Keys;
	/** Of a row's first key, as JSON. */
	std::vector<std::pair<std::string, std::string>> Values;
	std::vector<std::string> Examples;

	void AddRow(const std::string& Line)
	{
		const std::string Cell = Line.substr(0, Line.find(" | "));
		std::string FirstKey;
		for (size_t Begin = Cell.find('`'); Begin != std::string::npos; Begin = Cell.find('`', Begin + 1))
		{
			const size_t End = Cell.find('`', Begin + 1);
			const std::string Key = Cell.substr(Begin + 1, End - Begin - 1);
			FirstKey = FirstKey.empty() ? Key : FirstKey;
			Keys.insert(Key);
			Begin = End;
		}
		const size_t End = Line.rfind('`');
		const size_t Begin = Line.rfind('`', End - 1);
		Values.emplace_back(FirstKey, Line.substr(Begin + 1, End - Begin - 1));
	}
};

FPage ReadPage()
{
	FPage Page;
	std::ifstream Stream(VEXEL_SOURCE_DIR "/Docs/BlueprintJson.md");
	bool bInTable = false;
	bool bInExample = false;
	for (std::string Line; std::getline(Stream, Line);)
	{
		if (Line.starts_with("```"))
		{
			bInExample = Line == "```json";
			Page.Examples.resize(Page.Examples.size() + bInExample);
			continue;
		}
		if (bInExample)
		{
			Page.Examples.back() += Line + "\n";
		}
		bInTable = Line.starts_with("| key |") || (bInTable && Line.starts_with("|"));
		if (bInTable && Line.starts_with("| `"))
		{
			Page.AddRow(Line);
		}
	}
	return Page;
}

/** Calls the function with every object in the value, itself included. */
template <typename FunctionType>
void ForEachObject(const TSharedPtr<FJsonValue>& Value, const FunctionType& Function)
{
	if (Value->Type == EJson::Array)
	{
		for (const TSharedPtr<FJsonValue>& Element : Value->AsArray())
		{
			ForEachObject(Element, Function);
		}
	}
	else if (Value->Type == EJson::Object)
	{
		Function(Value->AsObject().ToSharedRef());
		for (const auto& [Key, Member] : Value->AsObject()->Values)
		{
			ForEachObject(Member, Function);
		}
	}
}

class FBlueprintDocumentTest : public FToolTest
{
protected:
	template <typename FunctionType>
	void ForEachExported(const FunctionType& Function)
	{
		for (const char* const Blueprint : Blueprints)
		{
			const TSharedRef<FJsonObject> Export = Answer("read_blueprint", std::string("{\"blueprint\": \"") + Blueprint + "\"}");
			ForEachObject(MakeShared<FJsonValueObject>(Export), Function);
		}
	}
};

/** One with a variable that has every flag. */
UBlueprint* MakeBlueprintWithFlags()
{
	UBlueprint* const Blueprint = FKismetEditorUtilities::CreateBlueprint(
		AActor::StaticClass(), CreatePackage(TEXT("/Game/BP_Flags")), TEXT("BP_Flags"), BPTYPE_Normal);
	FEdGraphPinType Type;
	Type.PinCategory = TEXT("int");
	FBlueprintEditorUtils::AddMemberVariable(Blueprint, TEXT("Everything"), Type);
	FBPVariableDescription& Variable = Blueprint->NewVariables[0];
	Variable.PropertyFlags |= CPF_BlueprintReadOnly | CPF_SaveGame | CPF_Transient | CPF_Net;
	Variable.PropertyFlags &= ~CPF_DisableEditOnInstance;
	Variable.SetMetaData(TEXT("BlueprintPrivate"), TEXT("true"));
	Variable.SetMetaData(TEXT("ExposeOnSpawn"), TEXT("true"));
	return Blueprint;
}

std::string Print(const TSharedRef<FJsonObject>& Object)
{
	FString Text;
	FVexelJsonConversions::JsonToString(Object, Text);
	return TCHAR_TO_UTF8(*Text);
}

TEST_F(FBlueprintDocumentTest, EveryKeyIsDescribedAndEveryDescribedKeyOccurs)
{
	std::set<std::string> Exported;
	const auto Collect = [&Exported](const TSharedRef<FJsonObject>& Object)
	{
		for (const auto& [Key, Value] : Object->Values)
		{
			Exported.insert(TCHAR_TO_UTF8(*FString(Key)));
		}
	};
	ForEachExported(Collect);
	// No object of the sample project has a part of its own, and none of its variables every flag.
	ULumThing* const Thing = NewObject<ULumThing>(GetTransientPackage());
	Thing->Part = NewObject<ULumPart>(Thing);
	const auto Whole = MakeShared<FLumUnrealObjectCompound>(*Thing)->JsonExportObject(FLumContext(MakeShared<FVexelBlueprintMapping>()));
	ASSERT_TRUE(Whole.HasValue());
	ForEachObject(MakeShared<FJsonValueObject>(Whole.GetValue()), Collect);
	UBlueprint* const Blueprint = MakeBlueprintWithFlags();
	const TSharedRef<FJsonObject> Export = Answer("read_blueprint", R"({"blueprint": "/Game/BP_Flags.BP_Flags"})");
	ForEachObject(MakeShared<FJsonValueObject>(Export), Collect);
	Blueprint->ClearFlags(RF_Public | RF_Standalone);
	FAssetRegistryModule::AssetDeleted(Blueprint);
	EXPECT_EQ(Exported, ReadPage().Keys);
}

TEST_F(FBlueprintDocumentTest, EveryRowHasAnExampleOfTheSampleProject)
{
	std::set<std::string> Exported;
	const auto PrintMember = [](const FString& Key, const TSharedPtr<FJsonValue>& Value)
	{
		const TSharedRef<FJsonObject> Object = MakeShared<FJsonObject>();
		Object->SetField(Key, Value->Type == EJson::Array && Key != TEXT("parent_chain") ? MakeShared<FJsonValueString>(TEXT("[...]")) : Value);
		return Print(Object);
	};
	ForEachExported([&](const TSharedRef<FJsonObject>& Object)
		{
			for (const auto& [Key, Value] : Object->Values)
			{
				Exported.insert(PrintMember(Key, Value));
			} });
	const FPage Page = ReadPage();
	EXPECT_GT(Page.Values.size(), 30u);
	for (const auto& [Key, Value] : Page.Values)
	{
		const std::string Json = "{\"" + Key + "\": " + (Value == "[...]" ? "\"[...]\"" : Value) + "}";
		EXPECT_TRUE(Exported.contains(Print(ParseJson(Json)))) << Json;
	}
}

TEST_F(FBlueprintDocumentTest, TheExamplesAreWhatTheToolAnswers)
{
	const FPage Page = ReadPage();
	ASSERT_EQ(2u, Page.Examples.size());
	for (const std::string& Text : Page.Examples)
	{
		const TSharedRef<FJsonObject> Example = ParseJson(Text);
		std::set<std::string> Alike;
		ForEachExported([&](const TSharedRef<FJsonObject>& Object)
			{
				// Nodes have an id and a GUID, variables an id and a class that declares them.
				const bool bIsNamed = Object->HasField(TEXT("id")) && Object->GetStringField(TEXT("id")) == Example->GetStringField(TEXT("id"));
				if (bIsNamed && Object->Values.Num() == Example->Values.Num())
				{
					Alike.insert(Print(Object));
				} });
		EXPECT_TRUE(Alike.contains(Print(Example))) << Print(Example) << "\nis none of\n"
													<< testing::PrintToString(Alike);
	}
}
}
