#include "BlueprintEditTest.h"
#include "K2Node_CustomEvent.h"
#include "K2Node_FunctionEntry.h"
#include "UObject/UnrealType.h"

namespace
{
class FBlueprintReplicationTest : public FBlueprintEditTest
{
protected:
	const FProperty* FindHealth() const { return Blueprint->GeneratedClass->FindPropertyByName(TEXT("Health")); }

	const UFunction* FindFunction(const TCHAR* Name) const { return Blueprint->GeneratedClass->FindFunctionByName(Name); }
};

TEST_F(FBlueprintReplicationTest, AVariablesReplicationReachesItsClass)
{
	ASSERT_TRUE(FBlueprintEditorUtils::AddMemberVariable(Blueprint, TEXT("Health"), MakeType(UEdGraphSchema_K2::PC_Int)));
	UEdGraph* const Notified = AddFunction(Blueprint, TEXT("OnRep_Health"));
	FBlueprintEditorUtils::SetBlueprintVariableRepNotifyFunc(Blueprint, TEXT("Health"), TEXT("OnRep_Health"));
	FKismetEditorUtilities::CompileBlueprint(Blueprint);
	EXPECT_EQ(Blueprint->Status, BS_UpToDate);
	EXPECT_TRUE(FindHealth()->HasAllPropertyFlags(CPF_Net | CPF_RepNotify));
	EXPECT_EQ(FindHealth()->RepNotifyFunc, FName(TEXT("OnRep_Health")));

	GEditor->ResetTransaction(Title(TEXT("Test")));
	{
		const FScopedTransaction Transaction(Title(TEXT("Rename")));
		ASSERT_TRUE(FBlueprintEditorUtils::RenameGraph(Notified, TEXT("OnHealthCame")));
	}
	FKismetEditorUtilities::CompileBlueprint(Blueprint);
	EXPECT_EQ(Blueprint->Status, BS_UpToDate) << "the variable calls the function under its new name";
	EXPECT_EQ(FindHealth()->RepNotifyFunc, FName(TEXT("OnHealthCame")));
	Undo();
	EXPECT_EQ(FBlueprintEditorUtils::GetBlueprintVariableRepNotifyFunc(Blueprint, TEXT("Health")), FName(TEXT("OnRep_Health")));

	FBlueprintEditorUtils::RemoveGraph(Blueprint, Notified);
	FKismetEditorUtilities::CompileBlueprint(Blueprint);
	EXPECT_EQ(Blueprint->Status, BS_UpToDateWithWarnings) << "there is nobody to call any more";
	FBlueprintEditorUtils::SetBlueprintVariableRepNotifyFunc(Blueprint, TEXT("Health"), NAME_None);
	FKismetEditorUtilities::CompileBlueprint(Blueprint);
	EXPECT_EQ(Blueprint->Status, BS_UpToDate);
	EXPECT_TRUE(FindHealth()->HasAnyPropertyFlags(CPF_Net));
	EXPECT_FALSE(FindHealth()->HasAnyPropertyFlags(CPF_RepNotify));
}

TEST_F(FBlueprintReplicationTest, AnEventThatRunsOnTheServerSaysSoUntilItDoesNot)
{
	UK2Node_CustomEvent* const Event = AddNode<UK2Node_CustomEvent>(Graph, [](UK2Node_CustomEvent& Node)
		{ Node.CustomFunctionName = TEXT("Fire"); });
	const auto TitleOf = [Event]
	{ return Event->GetNodeTitle(ENodeTitleType::FullTitle).ToString(); };
	const FString Plain = TitleOf();
	{
		const FScopedTransaction Transaction(Title(TEXT("Replicate")));
		Event->Modify();
		Event->FunctionFlags |= FUNC_Net | FUNC_NetServer;
		FBlueprintEditorUtils::MarkBlueprintAsStructurallyModified(Blueprint);
	}
	FKismetEditorUtilities::CompileBlueprint(Blueprint);
	EXPECT_TRUE(FindFunction(TEXT("Fire"))->HasAllFunctionFlags(FUNC_Net | FUNC_NetServer));
	EXPECT_TRUE(TitleOf().Contains(TEXT("Server"))) << TCHAR_TO_UTF8(*TitleOf());
	Undo();
	FKismetEditorUtilities::CompileBlueprint(Blueprint);
	EXPECT_FALSE(FindFunction(TEXT("Fire"))->HasAnyFunctionFlags(FUNC_Net | FUNC_NetServer));
	EXPECT_EQ(TitleOf(), Plain);
}

TEST_F(FBlueprintReplicationTest, FunctionFlagsOfAnEntryAreItsFunctionsAndOverridesKeepTheirParents)
{
	const UEdGraph* const Function = AddFunction(Blueprint, TEXT("Measure"));
	CastChecked<UK2Node_FunctionEntry>(FBlueprintEditorUtils::GetEntryNode(Function))->AddExtraFlags(FUNC_Const | FUNC_Protected);
	FBlueprintEditorUtils::MarkBlueprintAsStructurallyModified(Blueprint);
	FKismetEditorUtilities::CompileBlueprint(Blueprint);
	EXPECT_TRUE(FindFunction(TEXT("Measure"))->HasAllFunctionFlags(FUNC_Const | FUNC_Protected | FUNC_BlueprintCallable));

	UBlueprint* const Child = MakeBlueprint(TEXT("BP_Child"), Blueprint->GeneratedClass.Get());
	UEdGraph* const Override =
		FBlueprintEditorUtils::CreateNewGraph(Child, TEXT("Measure"), UEdGraph::StaticClass(), UEdGraphSchema_K2::StaticClass());
	FBlueprintEditorUtils::AddFunctionGraph(Child, Override, false, Blueprint->GeneratedClass.Get());
	FKismetEditorUtilities::CompileBlueprint(Child);
	EXPECT_EQ(Child->Status, BS_UpToDate);
	const UFunction* const Overriding = Child->GeneratedClass->FindFunctionByName(TEXT("Measure"), EIncludeSuperFlag::ExcludeSuper);
	ASSERT_NE(Overriding, nullptr);
	EXPECT_TRUE(Overriding->HasAllFunctionFlags(FUNC_Const | FUNC_Protected));
	EXPECT_EQ(Overriding->GetSuperFunction(), FindFunction(TEXT("Measure")));
}
}
