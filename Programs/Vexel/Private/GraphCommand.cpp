#include "Commands.h"
#include "Console.h"
#include "Dom/JsonObject.h"
#include "Dom/JsonValue.h"
#include "EdGraph/EdGraph.h"
#include "EdGraph/EdGraphNode.h"
#include "EdGraphUtilities.h"
#include "EditorAssetLibrary.h"
#include "Engine/Blueprint.h"
#include "Engine/BlueprintGeneratedClass.h"
#include "GameFramework/Actor.h"
#include "Kismet2/BlueprintEditorUtils.h"
#include "Kismet2/KismetEditorUtilities.h"
#include "Misc/PackageName.h"
#include "Session.h"
#include "UObject/Package.h"

namespace
{
/** "/Game/Dir/BP_Door.BP_Door" as "/Game/Dir/BP_Door". */
FString GetPackagePath(const FString& BlueprintPath)
{
	return FPackageName::ObjectPathToPackageName(BlueprintPath);
}

/** A new Blueprint of an actor, as the content browser makes one. */
UBlueprint* CreateBlueprint(const FString& PackagePath)
{
	UPackage* const Package = CreatePackage(*PackagePath);
	return FKismetEditorUtilities::CreateBlueprint(
		AActor::StaticClass(), Package, FName(FPackageName::GetShortName(PackagePath)), BPTYPE_Normal, UBlueprint::StaticClass(),
		UBlueprintGeneratedClass::StaticClass());
}

UEdGraph* FindGraph(UBlueprint& Blueprint, const FString& Name)
{
	if (Name.IsEmpty())
	{
		return FBlueprintEditorUtils::FindEventGraph(&Blueprint);
	}
	TArray<UEdGraph*> Graphs;
	Blueprint.GetAllGraphs(Graphs);
	for (UEdGraph* const Graph : Graphs)
	{
		if (Graph->GetFName() == FName(*Name))
		{
			return Graph;
		}
	}
	return nullptr;
}

FString JoinGraphNames(const UBlueprint& Blueprint)
{
	TArray<UEdGraph*> Graphs;
	Blueprint.GetAllGraphs(Graphs);
	return FString::JoinBy(Graphs, TEXT(", "), [](const UEdGraph* Graph)
		{ return Graph->GetName(); });
}

/** Opens the Blueprint and the graph that the options name. Answers the exit status of a failure, which it has told the user. */
TOptional<int32> OpenGraph(const FArguments& Arguments, bool bCreate, UBlueprint*& OutBlueprint, UEdGraph*& OutGraph)
{
	const FString Path = Arguments.Get(TEXT("--blueprint"));
	if (!FPackageName::IsValidLongPackageName(GetPackagePath(Path)))
	{
		FConsole::WriteError(FString::Printf(TEXT("'%s' is not an asset path such as /Game/BP_Door"), *Path));
		return ExitStatus::Failed;
	}
	const bool bExists = UEditorAssetLibrary::DoesAssetExist(Path);
	UObject* const Asset = bExists ? UEditorAssetLibrary::LoadAsset(Path) : nullptr;
	OutBlueprint = Cast<UBlueprint>(Asset);
	if (!bExists && bCreate)
	{
		OutBlueprint = CreateBlueprint(GetPackagePath(Path));
	}
	if (!OutBlueprint)
	{
		FConsole::WriteError(bExists ? FString::Printf(TEXT("'%s' is not a Blueprint that can be loaded"), *Path)
									 : FString::Printf(TEXT("there is no Blueprint '%s'"), *Path));
		return ExitStatus::Failed;
	}
	OutGraph = FindGraph(*OutBlueprint, Arguments.Get(TEXT("--graph")));
	if (!OutGraph)
	{
		FConsole::WriteError(FString::Printf(TEXT("'%s' has no graph '%s'; it has: %s"), *OutBlueprint->GetName(),
			*Arguments.Get(TEXT("--graph")), *JoinGraphNames(*OutBlueprint)));
		return ExitStatus::Failed;
	}
	return NullOpt;
}

int32 ExportGraph(const FArguments& Arguments)
{
	UBlueprint* Blueprint = nullptr;
	UEdGraph* Graph = nullptr;
	if (const TOptional<int32> Status = OpenGraph(Arguments, false, Blueprint, Graph))
	{
		return *Status;
	}
	TSet<UObject*> Nodes;
	for (UEdGraphNode* const Node : Graph->Nodes)
	{
		Nodes.Add(Node);
	}
	FString Text;
	FEdGraphUtilities::ExportNodesToText(Nodes, Text);
	if (!Arguments.Has(TEXT("--json")))
	{
		FConsole::WriteData(Text);
		return ExitStatus::Done;
	}
	const TSharedRef<FJsonObject> Document = MakeShared<FJsonObject>();
	Document->SetStringField(TEXT("blueprint"), Blueprint->GetPathName());
	Document->SetStringField(TEXT("graph"), Graph->GetName());
	Document->SetStringField(TEXT("text"), Text);
	WriteJson(Document);
	return ExitStatus::Done;
}

TArray<TSharedPtr<FJsonValue>> ToJson(const TArray<FNodeTextIssue>& Issues)
{
	TArray<TSharedPtr<FJsonValue>> Values;
	for (const FNodeTextIssue& Issue : Issues)
	{
		const TSharedRef<FJsonObject> Object = MakeShared<FJsonObject>();
		Object->SetNumberField(TEXT("line"), Issue.Line);
		Object->SetStringField(TEXT("object"), Issue.ObjectName);
		Object->SetStringField(TEXT("class"), Issue.ClassName);
		Object->SetStringField(TEXT("message"), Issue.Message);
		Values.Add(MakeShared<FJsonValueObject>(Object));
	}
	return Values;
}

void ReportImport(const FArguments& Arguments, const UEdGraph& Graph, const FNodeTextImportResult& Result)
{
	if (Arguments.Has(TEXT("--json")))
	{
		const TSharedRef<FJsonObject> Document = MakeShared<FJsonObject>();
		Document->SetStringField(TEXT("graph"), Graph.GetPathName());
		TArray<TSharedPtr<FJsonValue>> Nodes;
		for (const UEdGraphNode* const Node : Result.Nodes)
		{
			Nodes.Add(MakeShared<FJsonValueString>(Node->GetName()));
		}
		Document->SetArrayField(TEXT("nodes"), Nodes);
		Document->SetArrayField(TEXT("skipped"), ToJson(Result.SkippedNodes));
		Document->SetArrayField(TEXT("warnings"), ToJson(Result.Warnings));
		WriteJson(Document);
		return;
	}
	FConsole::WriteLine(FString::Printf(TEXT("%d node(s) into %s"), Result.Nodes.Num(), *Graph.GetPathName()));
	for (const FNodeTextIssue& Issue : Result.SkippedNodes)
	{
		FConsole::WriteLine(TEXT("skipped ") + Issue.ToString());
	}
	for (const FNodeTextIssue& Issue : Result.Warnings)
	{
		FConsole::WriteLine(TEXT("warning ") + Issue.ToString());
	}
}

int32 ImportGraph(const FArguments& Arguments)
{
	if (Arguments.GetPositional().Num() < 2)
	{
		FConsole::WriteError(TEXT("graph import: which file? '-' is standard input"));
		return ExitStatus::WrongUsage;
	}
	const TOptional<FString> Text = ReadFileOrInput(Arguments.GetPositional()[1]);
	if (!Text)
	{
		return ExitStatus::Failed;
	}
	UBlueprint* Blueprint = nullptr;
	UEdGraph* Graph = nullptr;
	if (const TOptional<int32> Status = OpenGraph(Arguments, true, Blueprint, Graph))
	{
		return *Status;
	}
	const FNodeTextImportResult Result = FEdGraphUtilities::ImportNodesFromTextWithResult(Graph, *Text);
	if (!Result.IsOk())
	{
		FConsole::WriteError(Result.Error);
		return ExitStatus::Failed;
	}
	TSet<UEdGraphNode*> Pasted(Result.Nodes);
	FEdGraphUtilities::PostProcessPastedNodes(Pasted);
	FBlueprintEditorUtils::MarkBlueprintAsStructurallyModified(Blueprint);
	ReportImport(Arguments, *Graph, Result);
	if (Result.Nodes.IsEmpty())
	{
		FConsole::WriteError(TEXT("the text holds no node that a Blueprint graph can take"));
		return ExitStatus::Failed;
	}
	if (Arguments.Has(TEXT("--save")) && !UEditorAssetLibrary::SaveLoadedAsset(Blueprint))
	{
		FConsole::WriteError(FString::Printf(TEXT("'%s' cannot be saved"), *Blueprint->GetPathName()));
		return ExitStatus::Failed;
	}
	return ExitStatus::Done;
}
}

int32 RunGraphCommand(const FArguments& Arguments)
{
	const FString Action = Arguments.GetPositional().IsEmpty() ? FString() : Arguments.GetPositional()[0];
	if ((Action != TEXT("export") && Action != TEXT("import")) || !Arguments.Has(TEXT("--blueprint")))
	{
		FConsole::WriteError(TEXT("graph: say 'export' or 'import', and --blueprint PATH"));
		return ExitStatus::WrongUsage;
	}
	FSession Session;
	if (const TOptional<FString> Failure = Session.Start(Arguments))
	{
		FConsole::WriteError(*Failure);
		return ExitStatus::Failed;
	}
	return Action == TEXT("export") ? ExportGraph(Arguments) : ImportGraph(Arguments);
}
