#pragma once

#include "GraphFixture.h"
#include "K2Node_CustomEvent.h"
#include "Kismet2/BlueprintEditorUtils.h"
#include "Kismet2/CompilerResultsLog.h"

/** A test with a Blueprint, whose event graph has one custom event, that is compiled and says what it found. */
class FCompilerTest : public FGraphTest
{
protected:
	virtual void SetUp() override
	{
		FGraphTest::SetUp();
		Event = Add<UK2Node_CustomEvent>([](UK2Node_CustomEvent& Node)
			{ Node.CustomFunctionName = TEXT("Start"); });
	}

	void Compile()
	{
		Results = MakeShared<FCompilerResultsLog>(false);
		Results->bSilentMode = true;
		FKismetEditorUtilities::CompileBlueprint(Blueprint, EBlueprintCompileOptions::None, Results.Get());
	}

	/** The texts of the messages of one severity, a line each. */
	FString Said(EMessageSeverity::Type Severity) const
	{
		FString Lines;
		for (const TSharedRef<FTokenizedMessage>& Message : Results->Messages)
		{
			Lines += Message->GetSeverity() == Severity ? Message->ToText().ToString() + TEXT("|") : FString();
		}
		return Lines;
	}

	UK2Node_CallFunction* Print() { return Call(TEXT("/Script/Engine.KismetSystemLibrary"), TEXT("PrintString")); }

	void Chain(UEdGraphPin* From, UEdGraphPin* To)
	{
		ASSERT_TRUE(From && To);
		ASSERT_TRUE(Schema().TryCreateConnection(From, To));
	}

	/** A variable node of the Blueprint's own variable. */
	template <class NodeType>
	NodeType* Variable(const TCHAR* Name)
	{
		return Add<NodeType>([Name](NodeType& Node)
			{ Node.VariableReference.SetSelfMember(Name); });
	}

	void AddInteger(const TCHAR* Name)
	{
		FEdGraphPinType Type;
		Type.PinCategory = UEdGraphSchema_K2::PC_Int;
		ASSERT_TRUE(FBlueprintEditorUtils::AddMemberVariable(Blueprint, Name, Type));
	}

	UK2Node_CustomEvent* Event = nullptr;
	TSharedPtr<FCompilerResultsLog> Results;
};
