#include "BlueprintLookup.h"
#include "BlueprintSnapshot.h"
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
#include "GraphPicture.h"
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

/** Opens the Blueprint and the graph that the options name. Answers the exit status of a failure, which it has told the user. */
TOptional<int32> OpenGraph(const FArguments& Arguments, bool bCreate, UBlueprint*& OutBlueprint, UEdGraph*& OutGraph)
{
	const FString Path = Arguments.Get(TEXT("--blueprint"));
	const FString Package = GetPackagePath(Path);
	FString Reason;
	if (bCreate && FPackageName::IsValidLongPackageName(Package) && !UEditorAssetLibrary::DoesAssetExist(Package))
	{
		OutBlueprint = CreateBlueprint(Package);
	}
	else
	{
		OutBlueprint = BlueprintLookup::Load(Path, Reason);
	}
	OutGraph = OutBlueprint ? BlueprintLookup::FindGraph(*OutBlueprint, Arguments.Get(TEXT("--graph")), Reason) : nullptr;
	if (!OutGraph)
	{
		FConsole::WriteError(Reason);
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

int32 ShowGraph(const FArguments& Arguments)
{
	UBlueprint* Blueprint = nullptr;
	UEdGraph* Graph = nullptr;
	if (const TOptional<int32> Status = OpenGraph(Arguments, false, Blueprint, Graph))
	{
		return *Status;
	}
	// One column is left free, as a terminal breaks a line that fills it.
	const TArray<FStyledLine> Lines = DrawGraph(FGraphSnapshot::Take(*Graph), FConsole::GetSize().X - 1);
	if (Arguments.Has(TEXT("--json")))
	{
		WriteJson(MakeGraphDocument(*Blueprint, *Graph, Lines));
		return ExitStatus::Done;
	}
	FConsole::WriteLines(Lines);
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

struct FGraphAction
{
	const TCHAR* Name;
	int32 (*Run)(const FArguments& Arguments);
};

const FGraphAction* FindAction(const FString& Name)
{
	static constexpr FGraphAction Actions[] = {
		{TEXT("show"), ShowGraph},
		{TEXT("export"), ExportGraph},
		{TEXT("import"), ImportGraph},
	};
	for (const FGraphAction& Action : Actions)
	{
		if (Name == Action.Name)
		{
			return &Action;
		}
	}
	return nullptr;
}
}

int32 RunGraphCommand(const FArguments& Arguments)
{
	const FGraphAction* const Action = Arguments.GetPositional().IsEmpty() ? nullptr : FindAction(Arguments.GetPositional()[0]);
	if (!Action || !Arguments.Has(TEXT("--blueprint")))
	{
		FConsole::WriteError(TEXT("graph: say 'show', 'export' or 'import', and --blueprint PATH"));
		return ExitStatus::WrongUsage;
	}
	FSession Session;
	if (const TOptional<FString> Failure = Session.Start(Arguments))
	{
		FConsole::WriteError(*Failure);
		return ExitStatus::Failed;
	}
	return Action->Run(Arguments);
}

TSharedRef<FJsonObject> MakeGraphDocument(const UBlueprint& Blueprint, const UEdGraph& Graph, const TArray<FStyledLine>& Lines)
{
	const TSharedRef<FJsonObject> Document = MakeShared<FJsonObject>();
	Document->SetStringField(TEXT("blueprint"), Blueprint.GetPathName());
	Document->SetStringField(TEXT("graph"), Graph.GetName());
	Document->SetNumberField(TEXT("nodes"), Graph.Nodes.Num());
	Document->SetStringField(TEXT("text"), FString::JoinBy(Lines, TEXT("\n"), [](const FStyledLine& Line)
											   { return Line.ToPlainText().TrimEnd(); }));
	return Document;
}
