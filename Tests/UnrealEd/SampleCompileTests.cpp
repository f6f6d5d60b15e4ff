#include "EditorFixture.h"
#include "PackageSamples.h"

#include "EdGraph/EdGraphNode.h"
#include "Engine/Blueprint.h"
#include "Kismet2/BlueprintEditorUtils.h"
#include "Kismet2/CompilerResultsLog.h"
#include "Kismet2/KismetEditorUtilities.h"
#include "Logging/TokenizedMessage.h"
#include "UObject/Package.h"
#include "UObject/UObjectHash.h"
#include "UObject/UnrealType.h"

#include <algorithm>
#include <cstdio>
#include <map>
#include <memory>

namespace
{
/** What the compile of a Blueprint must find; all others compile without a word. */
struct FExpectedErrors
{
	const char* Sample = nullptr;
	/** Errors by what is missing here: classes of the project's own code and Blueprints that are no part of the samples. */
	std::map<std::string, int32> NumByMissing;
};

const FExpectedErrors ExpectedErrors[] = {
	{"AirSim/Blueprints/BP_CameraDirector.uasset", {{"CameraDirector", 1}}},
	{"AirSim/Blueprints/BP_PIPCamera.uasset", {{"PIPCamera", 1}}},
	{"AirSim/HUDAssets/BP_LevelLoadButton.uasset", {{"AirBlueprintLib", 2}, {"WeatherLib", 2}, {"SimModeBase", 7}, {"OptionsMenu_C", 1}}},
	{"CesiumUnreal/WBP_TimeOfDay.uasset", {{"CesiumSunSky", 5}}},
};

class FSampleCompileTest : public FEditorTest
{
protected:
	virtual void SetUp() override
	{
		FEditorTest::SetUp();
		if (PackageSamples::List().empty())
		{
			GTEST_SKIP() << "the folder of sample packages is missing";
		}
	}

	/** All packages of one of the projects, loaded together: they refer to each other. */
	struct FProject
	{
		explicit FProject(const std::string& InName)
			: Name(InName)
		{
			for (const std::string& Sample : PackageSamples::List())
			{
				if (PackageSamples::GetGroup(Sample) == Name)
				{
					Packages.emplace(Sample,
						std::make_unique<PackageSamples::FLoaded>(
							PackageSamples::GetFolder() / Sample, PackageSamples::GetPackageName(Sample)));
				}
			}
		}

		std::string Name;
		std::map<std::string, std::unique_ptr<PackageSamples::FLoaded>> Packages;
	};

	/** The texts of all errors and warnings. */
	static std::vector<std::string> Compile(UBlueprint& Blueprint)
	{
		FCompilerResultsLog Results(false);
		Results.bSilentMode = true;
		FKismetEditorUtilities::CompileBlueprint(&Blueprint, EBlueprintCompileOptions::None, &Results);
		std::vector<std::string> Errors;
		for (const TSharedRef<FTokenizedMessage>& Message : Results.Messages)
		{
			if (Message->GetSeverity() != EMessageSeverity::Info)
			{
				Errors.push_back(TCHAR_TO_UTF8(*Message->ToText().ToString()));
			}
		}
		return Errors;
	}

	/** Counts the error where it names something that is missing; false when it names nothing of the kind. */
	static bool CountMissing(const std::string& Error, const FExpectedErrors& Expected, std::map<std::string, int32>& NumByMissing)
	{
		for (const auto& [Missing, Number] : Expected.NumByMissing)
		{
			if (Error.find(Missing) != std::string::npos)
			{
				++NumByMissing[Missing];
				return true;
			}
		}
		return false;
	}

	/** Visits the Blueprints of all samples, each among the other packages of its project. */
	static void ForEachBlueprint(TFunctionRef<void(const std::string& Sample, UBlueprint& Blueprint)> Visit)
	{
		std::unique_ptr<FProject> Project;
		for (const std::string& Sample : PackageSamples::List())
		{
			SCOPED_TRACE(Sample);
			if (!Project || Project->Name != PackageSamples::GetGroup(Sample))
			{
				Project.reset();
				Project = std::make_unique<FProject>(PackageSamples::GetGroup(Sample));
			}
			for (UBlueprint* const Blueprint : FindBlueprints(Project->Packages.at(Sample)->GetPackage()))
			{
				Visit(Sample, *Blueprint);
			}
		}
	}

	/**
	 * What the class itself declares: variables with their types and flags, functions with their flags and parameters. Without what only
	 * bytecode needs, which this editor does not make, and with numbers as wide as they are since engine 5.
	 */
	static std::vector<std::string> DescribeMembers(const UClass& Class)
	{
		std::vector<std::string> Members;
		const auto Describe = [](const FProperty& Property)
		{
			FString Inner;
			const FString Type = Property.GetCPPType(&Inner, 0);
			return FString::Printf(TEXT("%s%s %s %llx"), Type == TEXT("float") ? TEXT("double") : *Type, *Inner, *Property.GetName(),
				static_cast<uint64>(Property.PropertyFlags));
		};
		const auto IsOfBytecode = [](const FString& Name)
		{ return Name.StartsWith(TEXT("ExecuteUbergraph_")) || Name == TEXT("UberGraphFrame"); };
		for (TFieldIterator<FProperty> Property(&Class, EFieldIterationFlags::None); Property; ++Property)
		{
			if (!IsOfBytecode(Property->GetName()))
			{
				Members.push_back(TCHAR_TO_UTF8(*Describe(**Property)));
			}
		}
		for (TFieldIterator<UFunction> Function(&Class, EFieldIterationFlags::None); Function; ++Function)
		{
			FString Text = FString::Printf(TEXT("%s %x"), *Function->GetName(), static_cast<uint32>(Function->FunctionFlags));
			for (TFieldIterator<FProperty> Parameter(*Function); Parameter && Parameter->HasAnyPropertyFlags(CPF_Parm); ++Parameter)
			{
				Text += TEXT(" (") + Describe(**Parameter) + TEXT(")");
			}
			if (!IsOfBytecode(Function->GetName()))
			{
				Members.push_back(TCHAR_TO_UTF8(*Text));
			}
		}
		std::sort(Members.begin(), Members.end());
		return Members;
	}

	static std::vector<UBlueprint*> FindBlueprints(const UPackage* Package)
	{
		TArray<UObject*> Objects;
		GetObjectsWithOuter(Package, Objects, true);
		std::vector<UBlueprint*> Blueprints;
		for (UObject* const Object : Objects)
		{
			if (UBlueprint* const Blueprint = Cast<UBlueprint>(Object))
			{
				Blueprints.push_back(Blueprint);
			}
		}
		return Blueprints;
	}
};

TEST_F(FSampleCompileTest, EveryErrorOfARealBlueprintIsOfSomethingThatIsMissing)
{
	int32 NumCompiled = 0;
	ForEachBlueprint([&NumCompiled](const std::string& Sample, UBlueprint& Blueprint)
		{
			const FExpectedErrors* const Row =
				std::find_if(std::begin(ExpectedErrors), std::end(ExpectedErrors), [&Sample](const FExpectedErrors& Candidate)
					{ return Sample == Candidate.Sample; });
			const FExpectedErrors Expected = Row == std::end(ExpectedErrors) ? FExpectedErrors() : *Row;
			std::map<std::string, int32> NumByMissing;
			const std::vector<std::string> Errors = Compile(Blueprint);
			for (const std::string& Error : Errors)
			{
				EXPECT_TRUE(CountMissing(Error, Expected, NumByMissing)) << Error;
			}
			EXPECT_EQ(NumByMissing, Expected.NumByMissing);
			EXPECT_EQ(Blueprint.Status, Errors.empty() ? BS_UpToDate : BS_Error);
			printf("%-48s %2zu errors\n", Sample.c_str(), Errors.size());
			++NumCompiled; });
	EXPECT_EQ(NumCompiled, 59);
}

TEST_F(FSampleCompileTest, ABlueprintOfAMissingParentKeepsItsClass)
{
	const FProject Project("AirSim");
	UBlueprint* const Blueprint = FindBlueprints(Project.Packages.at("AirSim/Blueprints/BP_PIPCamera.uasset")->GetPackage()).at(0);
	UClass* const Class = Blueprint->GeneratedClass.Get();
	const UClass* const Parent = Blueprint->ParentClass.Get();
	const UObject* const Defaults = Class->GetDefaultObject();
	TArray<UEdGraphNode*> Before;
	FBlueprintEditorUtils::GetAllNodesOfClass(Blueprint, Before);
	EXPECT_EQ(Compile(*Blueprint),
		std::vector<std::string>{"The class PIPCamera, of which BP_PIPCamera is a child, does not exist. Reparent it to another class."});
	TArray<UEdGraphNode*> After;
	FBlueprintEditorUtils::GetAllNodesOfClass(Blueprint, After);
	EXPECT_GT(Before.Num(), 0);
	EXPECT_TRUE(Before == After);
	EXPECT_EQ(Blueprint->GeneratedClass.Get(), Class);
	EXPECT_EQ(Class->GetSuperClass(), Parent);
	EXPECT_EQ(Class->GetDefaultObject(), Defaults);
}

TEST_F(FSampleCompileTest, AClassHasTheMembersThatTheRealCompilerGaveIt)
{
	int32 NumMembers = 0;
	ForEachBlueprint([&NumMembers](const std::string& Sample, UBlueprint& Blueprint)
		{
			// Engines before 4.25 kept members as objects of their own, which the class does not list when it is loaded.
			const bool bListsMembers = !Sample.starts_with("AirSim") && !Sample.starts_with("UE420");
			const UClass* const Class = Blueprint.GeneratedClass.Get();
			const std::vector<std::string> Real = bListsMembers ? DescribeMembers(*Class) : std::vector<std::string>();
			Compile(Blueprint);
			if (bListsMembers)
			{
				EXPECT_EQ(DescribeMembers(*Class), Real);
			}
			NumMembers += static_cast<int32>(Real.size()); });
	EXPECT_GT(NumMembers, 20);
}

TEST_F(FSampleCompileTest, WidgetsOfAWidgetBlueprintAreVariables)
{
	const FProject Project("CesiumUnreal");
	UBlueprint* const Blueprint = FindBlueprints(Project.Packages.at("CesiumUnreal/WBP_TimeOfDay.uasset")->GetPackage()).at(0);
	Compile(*Blueprint);
	for (const UClass* const Class : {Blueprint->GeneratedClass.Get(), Blueprint->SkeletonGeneratedClass.Get()})
	{
		const FObjectProperty* const Button = FindFProperty<FObjectProperty>(Class, TEXT("CloseButton"));
		const FObjectProperty* const Slider = FindFProperty<FObjectProperty>(Class, TEXT("Slider_TOD"));
		ASSERT_TRUE(Button && Slider);
		EXPECT_EQ(Button->PropertyClass->GetPathName(), TEXT("/Script/UMG.Button"));
		EXPECT_EQ(Slider->PropertyClass->GetPathName(), TEXT("/Script/UMG.Slider"));
	}
}
}
