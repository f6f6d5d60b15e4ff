#pragma once

#include "EdGraph/EdGraph.h"
#include "EdGraphSchema_K2.h"
#include "Editor.h"
#include "Editor/Transactor.h"
#include "EditorFixture.h"
#include "Engine/Blueprint.h"
#include "GameFramework/Actor.h"
#include "K2Node_CallFunction.h"
#include "Kismet2/BlueprintEditorUtils.h"
#include "Kismet2/CompilerResultsLog.h"
#include "Kismet2/KismetEditorUtilities.h"
#include "Logging/TokenizedMessage.h"
#include "Misc/Guid.h"
#include "ScopedTransaction.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"

/** A test with an actor Blueprint of its own and an empty undo buffer. */
class FBlueprintEditTest : public FEditorTest
{
protected:
	virtual void SetUp() override
	{
		FEditorTest::SetUp();
		Blueprint = MakeBlueprint(TEXT("BP_Edit"));
		Graph = FBlueprintEditorUtils::FindEventGraph(Blueprint);
		ASSERT_NE(Graph, nullptr);
		GEditor->ResetTransaction(FText::FromString(TEXT("Test")));
	}

	/** A Blueprint in a package of its own, whose path starts with the name. */
	static UBlueprint* MakeBlueprint(const TCHAR* Name, UClass* Parent = AActor::StaticClass(), EBlueprintType Type = BPTYPE_Normal)
	{
		const FString Unique = FString::Printf(TEXT("%s_%s"), Name, *FGuid::NewGuid().ToString());
		return FKismetEditorUtilities::CreateBlueprint(Parent, CreatePackage(*(TEXT("/Game/") + Unique)), FName(*Unique), Type);
	}

	static FEdGraphPinType MakeType(FName Category, FName SubCategory = NAME_None, UObject* SubCategoryObject = nullptr)
	{
		FEdGraphPinType Type;
		Type.PinCategory = Category;
		Type.PinSubCategory = SubCategory;
		Type.PinSubCategoryObject = SubCategoryObject;
		return Type;
	}

	template <class NodeType>
	static NodeType* AddNode(
		UEdGraph* ToGraph, TFunctionRef<void(NodeType&)> Prepare = [](NodeType&) {})
	{
		FGraphNodeCreator<NodeType> Creator(*ToGraph);
		NodeType* const Node = Creator.CreateNode(false);
		Prepare(*Node);
		Creator.Finalize();
		return Node;
	}

	static UK2Node_CallFunction* AddCall(UEdGraph* ToGraph, const TCHAR* ClassPath, const TCHAR* FunctionName)
	{
		const UClass* const Class = FindObject<UClass>(nullptr, ClassPath);
		const UFunction* const Function = Class ? Class->FindFunctionByName(FunctionName) : nullptr;
		EXPECT_NE(Function, nullptr);
		return Function ? AddNode<UK2Node_CallFunction>(ToGraph, [Function](UK2Node_CallFunction& Node)
							  { Node.SetFromFunction(Function); })
						: nullptr;
	}

	static UEdGraph* AddFunction(UBlueprint* ToBlueprint, const TCHAR* Name)
	{
		UEdGraph* const NewGraph =
			FBlueprintEditorUtils::CreateNewGraph(ToBlueprint, FName(Name), UEdGraph::StaticClass(), UEdGraphSchema_K2::StaticClass());
		FBlueprintEditorUtils::AddFunctionGraph<UClass>(ToBlueprint, NewGraph, true, nullptr);
		return NewGraph;
	}

	/** The texts of what a compile says with at least the severity, a line each. */
	static TArray<FString> Compile(UBlueprint* ToCompile, EMessageSeverity::Type Least = EMessageSeverity::Info)
	{
		FCompilerResultsLog Results(false);
		Results.bSilentMode = true;
		FKismetEditorUtilities::CompileBlueprint(ToCompile, EBlueprintCompileOptions::None, &Results);
		TArray<FString> Lines;
		for (const TSharedRef<FTokenizedMessage>& Message : Results.Messages)
		{
			if (Message->GetSeverity() <= Least)
			{
				Lines.Add(Message->ToText().ToString());
			}
		}
		return Lines;
	}

	/** The errors of a compile, each with a bar behind it. */
	static FString CompileForErrors(UBlueprint* ToCompile)
	{
		FString Lines;
		for (const FString& Line : Compile(ToCompile, EMessageSeverity::Error))
		{
			Lines += Line + TEXT("|");
		}
		return Lines;
	}

	static bool Undo() { return GEditor->UndoTransaction(); }
	static bool Redo() { return GEditor->RedoTransaction(); }
	static int32 NumEntries() { return GEditor->Trans->GetQueueLength(); }
	static FText Title(const TCHAR* Text) { return FText::FromString(Text); }
	static void Collect() { CollectGarbage(RF_Standalone); }

	UBlueprint* Blueprint = nullptr;
	UEdGraph* Graph = nullptr;
};
