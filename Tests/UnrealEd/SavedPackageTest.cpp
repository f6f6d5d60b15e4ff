#include "BlueprintEditTest.h"
#include "BlueprintText.h"
#include "PackageSamples.h"

#include "AssetRegistry/IAssetRegistry.h"
#include "BlueprintEditorLibrary.h"
#include "EditorAssetLibrary.h"
#include "Engine/BlueprintGeneratedClass.h"
#include "K2Node_VariableSet.h"
#include "Misc/FileHelper.h"
#include "UObject/LinkerLoad.h"
#include "UObject/PackageSections.h"
#include "UObject/SavePackage.h"
#include "UObject/UnrealType.h"

#include <filesystem>
#include <map>
#include <spawn.h>
#include <sys/wait.h>

namespace
{
namespace fs = std::filesystem;

/** Where the reading process finds what the saving one has left. */
constexpr const char* SavedContentVariable = "VEXEL_TEST_SAVED_CONTENT";

FString ToFString(const fs::path& Path)
{
	return UTF8_TO_TCHAR(Path.c_str());
}

/** All of a Blueprint: its parts and the values of its default object. */
FString Describe(const UBlueprint& Blueprint)
{
	FString Text = FBlueprintText::Take(Blueprint);
	const UObject* const Defaults = Blueprint.GeneratedClass->GetDefaultObject();
	for (TFieldIterator<FProperty> It(Blueprint.GeneratedClass); It; ++It)
	{
		if (!Cast<UBlueprintGeneratedClass>(It->GetOwnerClass()))
		{
			continue;
		}
		FString Value;
		It->ExportTextItem_InContainer(Value, Defaults, nullptr, nullptr, PPF_None);
		Text += FString::Printf(TEXT("Default %s %s=%s\n"), *It->GetCPPType(), *It->GetName(), *Value);
	}
	return Text + TEXT("Parent ") + GetPathNameSafe(Blueprint.ParentClass) + TEXT("\n");
}

std::map<std::string, std::string> GetTagsOf(const UObject& Asset)
{
	TArray<UObject::FAssetRegistryTag> Tags;
	Asset.GetAssetRegistryTags(Tags);
	std::map<std::string, std::string> Result;
	for (const UObject::FAssetRegistryTag& Tag : Tags)
	{
		Result[TCHAR_TO_UTF8(*Tag.Name.ToString())] = TCHAR_TO_UTF8(*Tag.Value);
	}
	return Result;
}

/** The tags that a file's header tells of one of its objects. */
std::map<std::string, std::string> ReadTags(const FString& File, const FString& Object)
{
	FString Error;
	const TUniquePtr<FLinkerLoad> Linker = FLinkerLoad::Create(File, nullptr, Error);
	FPackageAssetRegistryData Data;
	EXPECT_TRUE(Linker && FPackageSections::ReadAssetRegistry(*Linker, Data, Error)) << TCHAR_TO_UTF8(*Error);
	std::map<std::string, std::string> Result;
	for (const FPackageAssetEntry& Asset : Data.Assets)
	{
		for (int32 Index = 0; Asset.ObjectPath == Object && Index < Asset.Tags.Num(); ++Index)
		{
			Result[TCHAR_TO_UTF8(*Asset.Tags[Index].Key)] = TCHAR_TO_UTF8(*Asset.Tags[Index].Value);
		}
	}
	return Result;
}

class FSavedPackageTest : public FBlueprintEditTest
{
protected:
	static FString GetFile(const UObject& Asset)
	{
		return GetProjectDir() / TEXT("Content") / Asset.GetOutermost()->GetName().RightChop(FString(TEXT("/Game/")).Len()) + TEXT(".uasset");
	}

	/** Compiles and saves, and compares what the header then tells with what is true of the Blueprint. */
	void SaveAndCheckTags(const char* Edit)
	{
		SCOPED_TRACE(Edit);
		FKismetEditorUtilities::CompileBlueprint(Blueprint);
		ASSERT_TRUE(UEditorAssetLibrary::SaveLoadedAsset(Blueprint, false));
		const std::map<std::string, std::string> Tags = ReadTags(GetFile(*Blueprint), Blueprint->GetName());
		EXPECT_EQ(Tags, GetTagsOf(*Blueprint));
		EXPECT_EQ(Tags.at("ParentClass"), Reference(Blueprint->ParentClass));
		EXPECT_EQ(Tags.at("GeneratedClass"), Reference(Blueprint->GeneratedClass));
		const std::map<std::string, std::string> OfClass = ReadTags(GetFile(*Blueprint), Blueprint->GeneratedClass->GetName());
		for (const char* const Shared : {"ParentClass", "NativeParentClass", "BlueprintType", "ClassFlags", "NumReplicatedProperties"})
		{
			ASSERT_TRUE(OfClass.contains(Shared)) << Shared;
			EXPECT_EQ(OfClass.at(Shared), Tags.at(Shared)) << Shared;
		}
	}

	static std::string Reference(const UClass* Class)
	{
		return TCHAR_TO_UTF8(*(Class->GetClass()->GetPathName() + TEXT("'") + Class->GetPathName() + TEXT("'")));
	}

	std::string GetSavedTag(const char* Name) const { return ReadTags(GetFile(*Blueprint), Blueprint->GetName())[Name]; }

	UBlueprint* MakeInterface()
	{
		UBlueprint* const Interface = MakeBlueprint(TEXT("BPI_Edit"), UInterface::StaticClass(), BPTYPE_Interface);
		FKismetEditorUtilities::CompileBlueprint(Interface);
		EXPECT_TRUE(UEditorAssetLibrary::SaveLoadedAsset(Interface, false));
		return Interface;
	}
};

TEST_F(FSavedPackageTest, TagsAreRightAfterEditsOfEveryKind)
{
	SaveAndCheckTags("new");
	EXPECT_EQ(GetSavedTag("NativeParentClass"), "/Script/CoreUObject.Class'/Script/Engine.Actor'");
	EXPECT_EQ(GetSavedTag("BlueprintType"), "BPTYPE_Normal");
	EXPECT_EQ(GetSavedTag("IsDataOnly"), "True");
	EXPECT_EQ(GetSavedTag("NumReplicatedProperties"), "0");

	FBlueprintEditorUtils::AddMemberVariable(Blueprint, TEXT("Speed"), MakeType(UEdGraphSchema_K2::PC_Int));
	*FBlueprintEditorUtils::GetBlueprintVariablePropertyFlags(Blueprint, TEXT("Speed")) |= CPF_Net;
	SaveAndCheckTags("a replicated variable");
	EXPECT_EQ(GetSavedTag("NumReplicatedProperties"), "1");
	EXPECT_EQ(GetSavedTag("IsDataOnly"), "False");

	FBlueprintEditorUtils::RenameMemberVariable(Blueprint, TEXT("Speed"), TEXT("Pace"));
	SaveAndCheckTags("a renamed variable");

	UEdGraph* const Function = FBlueprintEditorUtils::CreateNewGraph(Blueprint, TEXT("Walk"), UEdGraph::StaticClass(), UEdGraphSchema_K2::StaticClass());
	FBlueprintEditorUtils::AddFunctionGraph<UClass>(Blueprint, Function, true, nullptr);
	SaveAndCheckTags("a function");

	const std::string NumBefore = GetSavedTag("BlueprintComponents");
	USCS_Node* const Part = Blueprint->SimpleConstructionScript->CreateNode(UActorComponent::StaticClass(), TEXT("Part"));
	Blueprint->SimpleConstructionScript->AddNode(Part);
	SaveAndCheckTags("a component");
	EXPECT_EQ(std::stoi(GetSavedTag("BlueprintComponents")), std::stoi(NumBefore) + 1);

	EXPECT_EQ(GetSavedTag("ImplementedInterfaces"), "");
	const UBlueprint* const Interface = MakeInterface();
	ASSERT_TRUE(FBlueprintEditorUtils::ImplementNewInterface(Blueprint, Interface->GeneratedClass->GetClassPathName()));
	SaveAndCheckTags("an interface");
	EXPECT_NE(GetSavedTag("ImplementedInterfaces").find(TCHAR_TO_UTF8(*Interface->GeneratedClass->GetPathName())), std::string::npos);

	Blueprint->BlueprintDescription = TEXT("walks");
	Blueprint->BlueprintDisplayName = TEXT("Walker");
	SaveAndCheckTags("a description");
	EXPECT_EQ(GetSavedTag("BlueprintDescription"), "walks");

	UClass* const Pawn = FindObject<UClass>(nullptr, TEXT("/Script/Engine.Pawn"));
	ASSERT_TRUE(Pawn);
	UBlueprintEditorLibrary::ReparentBlueprint(Blueprint, Pawn);
	SaveAndCheckTags("another parent");
	EXPECT_EQ(GetSavedTag("NativeParentClass"), "/Script/CoreUObject.Class'/Script/Engine.Pawn'");
}

TEST_F(FSavedPackageTest, AnEditOfARealPackageChangesNoTagButItsOwn)
{
	int32 NumBlueprints = 0;
	for (const std::string& Sample : PackageSamples::List())
	{
		SCOPED_TRACE(Sample);
		const PackageSamples::FLoaded Loaded(PackageSamples::GetFolder() / Sample, PackageSamples::GetPackageName(Sample));
		ASSERT_TRUE(Loaded.GetLinker());
		const FString Name = ToFString(fs::path(Sample).stem());
		UBlueprint* const Edited = FindObject<UBlueprint>(Loaded.GetPackage(), *Name);
		if (!Edited)
		{
			continue;
		}
		++NumBlueprints;
		Edited->BlueprintDescription = TEXT("edited");
		const FString Written = GetProjectDir() / TEXT("Saved/Tags.uasset");
		ASSERT_TRUE(UPackage::SavePackage(Loaded.GetPackage(), nullptr, *Written, FSavePackageArgs()));
		for (const FString& Asset : {Name, Name + TEXT("_C")})
		{
			std::map<std::string, std::string> Before = ReadTags(ToFString(PackageSamples::GetFolder() / Sample), Asset);
			std::map<std::string, std::string> After = ReadTags(Written, Asset);
			if (Before.contains("BlueprintDescription"))
			{
				EXPECT_EQ(After["BlueprintDescription"], "edited");
				Before["BlueprintDescription"] = "edited";
			}
			ASSERT_EQ(After.size(), Before.size());
			for (const auto& [Tag, Value] : Before)
			{
				EXPECT_EQ(After[Tag], Value) << Tag;
			}
		}
	}
	if (NumBlueprints == 0)
	{
		GTEST_SKIP() << "the folder of sample packages is missing";
	}
}

TEST_F(FSavedPackageTest, AFreshProcessReadsWhatWasSavedFromHeadersAndInFull)
{
	// Written by this process: packages of every kind of edit, and beside each a text that tells what it should hold.
	const fs::path Content = fs::path(TCHAR_TO_UTF8(*GetProjectDir())) / "Saved" / "Fresh";
	fs::create_directories(Content);
	const auto Leave = [&Content](UBlueprint* Saved)
	{
		FKismetEditorUtilities::CompileBlueprint(Saved);
		ASSERT_TRUE(UEditorAssetLibrary::SaveLoadedAsset(Saved, false));
		const fs::path File = TCHAR_TO_UTF8(*GetFile(*Saved));
		fs::copy_file(File, Content / File.filename(), fs::copy_options::overwrite_existing);
		const FString Told = ToFString(Content / File.stem()) + TEXT(".txt");
		ASSERT_TRUE(FFileHelper::SaveStringToFile(Describe(*Saved), *Told));
		FString Tags;
		for (const auto& [Name, Value] : GetTagsOf(*Saved))
		{
			Tags += FString(UTF8_TO_TCHAR(Name.c_str())) + TEXT("=") + UTF8_TO_TCHAR(Value.c_str()) + TEXT("\n");
		}
		ASSERT_TRUE(FFileHelper::SaveStringToFile(Tags, *(ToFString(Content / File.stem()) + TEXT(".tags"))));
	};
	const UBlueprint* const Interface = MakeInterface();
	Leave(const_cast<UBlueprint*>(Interface));
	FBlueprintEditorUtils::ImplementNewInterface(Blueprint, Interface->GeneratedClass->GetClassPathName());
	FBlueprintEditorUtils::AddMemberVariable(Blueprint, TEXT("Speed"), MakeType(UEdGraphSchema_K2::PC_Int));
	FEdGraphPinType Names = MakeType(UEdGraphSchema_K2::PC_Name);
	Names.ContainerType = EPinContainerType::Set;
	FBlueprintEditorUtils::AddMemberVariable(Blueprint, TEXT("Names"), Names);
	Blueprint->SimpleConstructionScript->AddNode(Blueprint->SimpleConstructionScript->CreateNode(UActorComponent::StaticClass(), TEXT("Part")));
	FKismetEditorUtilities::CompileBlueprint(Blueprint);
	UK2Node_VariableSet* const Set = AddNode<UK2Node_VariableSet>(Graph, [](UK2Node_VariableSet& Node)
		{ Node.VariableReference.SetSelfMember(TEXT("Speed")); });
	const TObjectPtr<UEdGraphNode>* const Event = Graph->Nodes.FindByPredicate([](const UEdGraphNode* Node)
		{ return Node->FindPin(UEdGraphSchema_K2::PN_Then) != nullptr; });
	ASSERT_TRUE(Event && Event->Get() != Set);
	ASSERT_TRUE(GetDefault<UEdGraphSchema_K2>()->TryCreateConnection((*Event)->FindPin(UEdGraphSchema_K2::PN_Then), Set->GetExecPin()));
	Set->FindPinChecked(TEXT("Speed"))->DefaultValue = TEXT("42");
	Leave(Blueprint);
	UBlueprint* const Child = MakeBlueprint(TEXT("BP_Child"), Blueprint->GeneratedClass);
	FKismetEditorUtilities::CompileBlueprint(Child);
	const FIntProperty* const Speed = FindFProperty<FIntProperty>(Child->GeneratedClass, TEXT("Speed"));
	ASSERT_TRUE(Speed);
	Speed->SetPropertyValue_InContainer(Child->GeneratedClass->GetDefaultObject(), 99);
	Leave(Child);

	std::vector<std::string> Words = {fs::read_symlink("/proc/self/exe").string(), "--gtest_also_run_disabled_tests",
		"--gtest_filter=FSavedContentTest.DISABLED_IsWhatTheSavingProcessSaid"};
	std::vector<char*> RawWords = {Words[0].data(), Words[1].data(), Words[2].data(), nullptr};
	std::string Variable = std::string(SavedContentVariable) + "=" + Content.string();
	std::vector<char*> Surroundings;
	for (char** Each = environ; *Each; ++Each)
	{
		Surroundings.push_back(*Each);
	}
	Surroundings.push_back(Variable.data());
	Surroundings.push_back(nullptr);
	pid_t Process = 0;
	ASSERT_EQ(posix_spawn(&Process, Words[0].c_str(), nullptr, nullptr, RawWords.data(), Surroundings.data()), 0);
	int Status = 0;
	ASSERT_EQ(waitpid(Process, &Status, 0), Process);
	EXPECT_TRUE(WIFEXITED(Status) && WEXITSTATUS(Status) == 0) << Status;
}

/** Runs in a process of its own, started by the test above. */
class FSavedContentTest : public FEditorTest
{
};

TEST_F(FSavedContentTest, DISABLED_IsWhatTheSavingProcessSaid)
{
	ASSERT_NE(getenv(SavedContentVariable), nullptr);
	const fs::path Saved = getenv(SavedContentVariable);
	const fs::path Content = fs::path(TCHAR_TO_UTF8(*GetProjectDir())) / "Content";
	std::vector<std::string> Names;
	for (const fs::directory_entry& Entry : fs::directory_iterator(Saved))
	{
		if (Entry.path().extension() == ".uasset")
		{
			fs::copy_file(Entry.path(), Content / Entry.path().filename());
			Names.push_back(Entry.path().stem().string());
		}
	}
	ASSERT_EQ(Names.size(), 3u);
	IAssetRegistry& Registry = *IAssetRegistry::Get();
	Registry.ScanPathsSynchronous({TEXT("/Game")}, true);
	for (const std::string& Name : Names)
	{
		SCOPED_TRACE(Name);
		const FString Path = FString(TEXT("/Game/")) + UTF8_TO_TCHAR(Name.c_str());
		const FAssetData Asset = Registry.GetAssetByObjectPath(FSoftObjectPath(Path + TEXT(".") + UTF8_TO_TCHAR(Name.c_str())), true);
		ASSERT_TRUE(Asset.IsValid());
		EXPECT_EQ(Asset.AssetClassPath.ToString(), TEXT("/Script/Engine.Blueprint"));
		FString Tags;
		ASSERT_TRUE(FFileHelper::LoadFileToString(Tags, *(ToFString(Saved / Name) + TEXT(".tags"))));
		TArray<FString> Lines;
		Tags.ParseIntoArrayLines(Lines);
		EXPECT_GT(Lines.Num(), 10);
		for (const FString& Line : Lines)
		{
			FString Tag;
			FString Value;
			ASSERT_TRUE(Line.Split(TEXT("="), &Tag, &Value)) << TCHAR_TO_UTF8(*Line);
			EXPECT_EQ(Asset.FindTag(FName(*Tag)).AsString(), Value) << TCHAR_TO_UTF8(*Tag);
		}
		FARFilter Filter;
		Filter.ClassPaths.Add(Asset.AssetClassPath);
		Filter.PackagePaths.Add(TEXT("/Game"));
		Filter.TagsAndValues.Add(TEXT("GeneratedClass"), TOptional<FString>(Asset.FindTag(TEXT("GeneratedClass")).AsString()));
		TArray<FAssetData> Found;
		Registry.GetAssets(Filter, Found);
		ASSERT_EQ(Found.Num(), 1);
		EXPECT_EQ(Found[0].PackageName, Asset.PackageName);
		EXPECT_EQ(FindPackage(nullptr, *Path), nullptr) << "the registry loads nothing";
	}
	for (const std::string& Name : Names)
	{
		SCOPED_TRACE(Name);
		const UBlueprint* const Blueprint = Cast<UBlueprint>(UEditorAssetLibrary::LoadAsset(FString(TEXT("/Game/")) + UTF8_TO_TCHAR(Name.c_str())));
		ASSERT_TRUE(Blueprint);
		EXPECT_TRUE(Blueprint->GetOutermost()->GetLinker()->GetErrors().IsEmpty());
		FString Told;
		ASSERT_TRUE(FFileHelper::LoadFileToString(Told, *(ToFString(Saved / Name) + TEXT(".txt"))));
		EXPECT_EQ(TCHAR_TO_UTF8(*Describe(*Blueprint)), std::string(TCHAR_TO_UTF8(*Told)));
	}
}
}
