#pragma once

#include "EdGraph/EdGraph.h"
#include "EdGraphSchema_K2.h"
#include "EditorFixture.h"
#include "Engine/Blueprint.h"
#include "GameFramework/Actor.h"
#include "K2Node_CallFunction.h"
#include "Kismet2/KismetEditorUtilities.h"
#include "StandardMacros.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"

/** A test with an actor Blueprint and its event graph. */
class FGraphTest : public FEditorTest
{
protected:
	virtual void SetUp() override
	{
		FEditorTest::SetUp();
		FStandardMacros::Create();
		UPackage* const Package = CreatePackage(*FString::Printf(TEXT("/Game/BP_Test%d"), ++Number));
		Blueprint = FKismetEditorUtilities::CreateBlueprint(AActor::StaticClass(), Package, TEXT("BP_Test"), BPTYPE_Normal);
		ASSERT_TRUE(Blueprint && Blueprint->UbergraphPages.Num() > 0);
		Graph = Blueprint->UbergraphPages[0];
	}

	template <class NodeType>
	NodeType* Add(TFunctionRef<void(NodeType&)> Prepare = [](NodeType&) {})
	{
		FGraphNodeCreator<NodeType> Creator(*Graph);
		NodeType* const Node = Creator.CreateNode(false);
		Prepare(*Node);
		Creator.Finalize();
		return Node;
	}

	UK2Node_CallFunction* Call(const TCHAR* ClassPath, const TCHAR* FunctionName)
	{
		UClass* const Class = FindObject<UClass>(nullptr, ClassPath);
		const UFunction* const Function = Class ? Class->FindFunctionByName(FunctionName) : nullptr;
		EXPECT_NE(Function, nullptr);
		return Add<UK2Node_CallFunction>([Function](UK2Node_CallFunction& Node)
			{ Node.SetFromFunction(Function); });
	}

	const UEdGraphSchema_K2& Schema() const { return *GetDefault<UEdGraphSchema_K2>(); }

	UBlueprint* Blueprint = nullptr;
	UEdGraph* Graph = nullptr;

private:
	static inline int32 Number = 0;
};
