#include "BlueprintEditTest.h"
#include "K2Node_EditablePinBase.h"
#include "K2Node_FunctionResult.h"
#include "K2Node_FunctionTerminator.h"
#include "K2Node_VariableGet.h"
#include "UObject/Interface.h"
#include "UObject/UnrealType.h"

namespace
{
class FBlueprintDependentsTest : public FBlueprintEditTest
{
protected:
	static bool IsUser(const UBlueprint* User, UBlueprint* Of)
	{
		TArray<UBlueprint*> Users;
		FBlueprintEditorUtils::GetDependentBlueprints(Of, Users);
		return Users.Contains(const_cast<UBlueprint*>(User));
	}

	static UK2Node_VariableGet* AddGet(const UBlueprint* To, FName Variable, UClass* Of)
	{
		return AddNode<UK2Node_VariableGet>(FBlueprintEditorUtils::FindEventGraph(To), [&](UK2Node_VariableGet& Node)
			{ Node.VariableReference.SetExternalMember(Variable, Of); });
	}

	static FTopLevelAssetPath PathOf(const UBlueprint* Interface) { return FTopLevelAssetPath(Interface->GeneratedClass.Get()); }

	/** A function with a boolean result: one that needs a graph where it is implemented. */
	static UEdGraph* AddQuestion(UBlueprint* Interface, const TCHAR* Name)
	{
		UEdGraph* const Function = AddFunction(Interface, Name);
		FBlueprintEditorUtils::FindOrCreateFunctionResultNode(FBlueprintEditorUtils::GetEntryNode(Function))
			->CreateUserDefinedPin(TEXT("bAnswer"), MakeType(UEdGraphSchema_K2::PC_Boolean), EGPD_Input);
		FBlueprintEditorUtils::MarkBlueprintAsStructurallyModified(Interface);
		return Function;
	}
};

TEST_F(FBlueprintDependentsTest, UsersAreKnownAfterEachEditAndItsUndo)
{
	UBlueprint* const User = MakeBlueprint(TEXT("BP_User"));
	ASSERT_FALSE(IsUser(User, Blueprint));
	UClass* const Class = Blueprint->GeneratedClass.Get();
	{
		const FScopedTransaction Transaction(Title(TEXT("Node")));
		AddGet(User, TEXT("Health"), Class);
	}
	EXPECT_TRUE(IsUser(User, Blueprint));
	EXPECT_FALSE(IsUser(Blueprint, User));
	Undo();
	EXPECT_FALSE(IsUser(User, Blueprint));
	Redo();
	EXPECT_TRUE(IsUser(User, Blueprint));
	Undo();
	{
		const FScopedTransaction Transaction(Title(TEXT("Variable")));
		FEdGraphPinType Map = MakeType(UEdGraphSchema_K2::PC_Name);
		Map.ContainerType = EPinContainerType::Map;
		Map.PinValueType.TerminalCategory = UEdGraphSchema_K2::PC_Object;
		Map.PinValueType.TerminalSubCategoryObject = Class;
		ASSERT_TRUE(FBlueprintEditorUtils::AddMemberVariable(User, TEXT("Doors"), Map));
	}
	EXPECT_TRUE(IsUser(User, Blueprint));
	FBlueprintEditorUtils::RemoveMemberVariable(User, TEXT("Doors"));
	EXPECT_FALSE(IsUser(User, Blueprint));
	UBlueprint* const Child = MakeBlueprint(TEXT("BP_Child"), Class);
	UBlueprint* const Grandchild = MakeBlueprint(TEXT("BP_Grandchild"), Child->GeneratedClass.Get());
	EXPECT_TRUE(IsUser(Child, Blueprint));
	EXPECT_TRUE(IsUser(Grandchild, Blueprint));
	EXPECT_TRUE(IsUser(Grandchild, Child));
}

TEST_F(FBlueprintDependentsTest, AUserThatIsGoneIsForgotten)
{
	UBlueprint* const User = MakeBlueprint(TEXT("BP_User"));
	AddGet(User, TEXT("Health"), Blueprint->GeneratedClass.Get());
	ASSERT_TRUE(IsUser(User, Blueprint));
	const TWeakObjectPtr<UBlueprint> Weak = User;
	User->ClearFlags(static_cast<EObjectFlags>(RF_Public | RF_Standalone));
	GEditor->ResetTransaction(Title(TEXT("Test")));
	Collect();
	ASSERT_FALSE(Weak.IsValid());
	TArray<UBlueprint*> Users;
	FBlueprintEditorUtils::GetDependentBlueprints(Blueprint, Users);
	EXPECT_EQ(Users.Num(), 0);
}

TEST_F(FBlueprintDependentsTest, AChildSeesWhatItsParentDeclaresBeforeTheParentIsCompiled)
{
	UBlueprint* const Child = MakeBlueprint(TEXT("BP_Child"), Blueprint->GeneratedClass.Get());
	UBlueprint* const Grandchild = MakeBlueprint(TEXT("BP_Grandchild"), Child->GeneratedClass.Get());
	FBlueprintEditorUtils::AddMemberVariable(Blueprint, TEXT("Health"), MakeType(UEdGraphSchema_K2::PC_Int));
	AddFunction(Blueprint, TEXT("Open"));
	for (const UBlueprint* const Derived : {Child, Grandchild})
	{
		EXPECT_NE(Derived->SkeletonGeneratedClass->FindPropertyByName(TEXT("Health")), nullptr);
		EXPECT_NE(Derived->SkeletonGeneratedClass->FindFunctionByName(TEXT("Open")), nullptr);
		EXPECT_EQ(Derived->GeneratedClass->FindPropertyByName(TEXT("Health")), nullptr) << "that is for a compile to do";
	}
	EXPECT_FALSE(FBlueprintEditorUtils::AddMemberVariable(Grandchild, TEXT("Health"), MakeType(UEdGraphSchema_K2::PC_Name)))
		<< "the name is taken above";
	FKismetEditorUtilities::CompileBlueprint(Blueprint);
	EXPECT_NE(Grandchild->GeneratedClass->FindPropertyByName(TEXT("Health")), nullptr);
}

TEST_F(FBlueprintDependentsTest, ACompileGivesTheGraphsThatAnInterfaceHasComeToNeed)
{
	UBlueprint* const Interface = MakeBlueprint(TEXT("BPI_Openable"), UInterface::StaticClass(), BPTYPE_Interface);
	AddQuestion(Interface, TEXT("CanOpen"));
	FKismetEditorUtilities::CompileBlueprint(Interface);
	ASSERT_TRUE(FBlueprintEditorUtils::ImplementNewInterface(Blueprint, PathOf(Interface)));
	UEdGraph* const Implementation = Blueprint->ImplementedInterfaces[0].Graphs[0];
	const int32 NumFunctions = Blueprint->FunctionGraphs.Num();

	AddQuestion(Interface, TEXT("CanClose"));
	FBlueprintEditorUtils::RemoveGraph(Interface, UEdGraphSchema_K2::GetFunctionGraph(Interface, TEXT("CanOpen")));
	Blueprint->GetPackage()->SetDirtyFlag(false);
	FKismetEditorUtilities::CompileBlueprint(Interface);
	EXPECT_TRUE(Blueprint->GetPackage()->IsDirty()) << "the graphs that came and went are to be saved";
	EXPECT_EQ(Blueprint->Status, BS_UpToDate);
	ASSERT_EQ(Blueprint->ImplementedInterfaces[0].Graphs.Num(), 1);
	EXPECT_EQ(Blueprint->ImplementedInterfaces[0].Graphs[0]->GetName(), TEXT("CanClose"));
	EXPECT_NE(Blueprint->GeneratedClass->FindFunctionByName(TEXT("CanClose")), nullptr);
	// What the user drew for the function that is gone is not lost: it is the Blueprint's own function now.
	EXPECT_EQ(Blueprint->FunctionGraphs.Num(), NumFunctions + 1);
	EXPECT_TRUE(Blueprint->FunctionGraphs.Contains(Implementation));
	EXPECT_TRUE(Implementation->bAllowDeletion);
	const UFunction* const Kept = Blueprint->GeneratedClass->FindFunctionByName(TEXT("CanOpen"));
	ASSERT_NE(Kept, nullptr);

	Blueprint->GetPackage()->SetDirtyFlag(false);
	AddFunction(Interface, TEXT("Opened"));
	FKismetEditorUtilities::CompileBlueprint(Interface);
	EXPECT_EQ(CompileForErrors(Blueprint), FString());
	EXPECT_FALSE(Blueprint->GetPackage()->IsDirty()) << "nothing was to be done";
}

TEST_F(FBlueprintDependentsTest, AVariableInTheWayOfAnInterfacesFunctionIsAnError)
{
	UBlueprint* const Interface = MakeBlueprint(TEXT("BPI_Openable"), UInterface::StaticClass(), BPTYPE_Interface);
	AddQuestion(Interface, TEXT("CanOpen"));
	FKismetEditorUtilities::CompileBlueprint(Interface);
	FBlueprintEditorUtils::AddMemberVariable(Blueprint, TEXT("CanOpen"), MakeType(UEdGraphSchema_K2::PC_Boolean));
	ASSERT_TRUE(FBlueprintEditorUtils::ImplementNewInterface(Blueprint, PathOf(Interface)));
	EXPECT_EQ(Blueprint->ImplementedInterfaces[0].Graphs.Num(), 0);
	const FString Errors = CompileForErrors(Blueprint);
	EXPECT_TRUE(Errors.Contains(TEXT("asks for the function CanOpen"))) << TCHAR_TO_UTF8(*Errors);
	{
		const FScopedTransaction Transaction(Title(TEXT("Rename")));
		FBlueprintEditorUtils::RenameMemberVariable(Blueprint, TEXT("CanOpen"), TEXT("bOpen"));
	}
	EXPECT_EQ(Blueprint->ImplementedInterfaces[0].Graphs.Num(), 1) << "the rename that freed the name gave the graph";
	EXPECT_EQ(CompileForErrors(Blueprint), FString());
	Undo();
	EXPECT_EQ(Blueprint->ImplementedInterfaces[0].Graphs.Num(), 0);
	EXPECT_EQ(Blueprint->NewVariables[0].VarName, FName(TEXT("CanOpen")));
}

TEST_F(FBlueprintDependentsTest, AFunctionOfTheSameNameBecomesTheInterfacesGraph)
{
	UBlueprint* const Interface = MakeBlueprint(TEXT("BPI_Openable"), UInterface::StaticClass(), BPTYPE_Interface);
	AddQuestion(Interface, TEXT("CanOpen"));
	AddQuestion(Interface, TEXT("CanClose"));
	FKismetEditorUtilities::CompileBlueprint(Interface);
	UEdGraph* const Same = AddQuestion(Blueprint, TEXT("CanOpen"));
	UEdGraph* const Other = AddFunction(Blueprint, TEXT("CanClose"));
	GEditor->ResetTransaction(Title(TEXT("Test")));
	{
		const FScopedTransaction Transaction(Title(TEXT("Implement")));
		ASSERT_TRUE(FBlueprintEditorUtils::ImplementNewInterface(Blueprint, PathOf(Interface)));
	}
	EXPECT_EQ(Blueprint->ImplementedInterfaces[0].Graphs.Num(), 2);
	EXPECT_FALSE(Blueprint->FunctionGraphs.Contains(Same));
	EXPECT_FALSE(Same->bAllowRenaming);
	const UK2Node_EditablePinBase* const Entry = FBlueprintEditorUtils::GetEntryNode(Same);
	EXPECT_EQ(CastChecked<UK2Node_FunctionTerminator>(Entry)->FunctionReference.GetMemberParentClass(), Interface->GeneratedClass.Get());
	EXPECT_EQ(CompileForErrors(Blueprint).Replace(*Interface->GetName(), TEXT("BPI")),
		TEXT("The function CanClose does not have the parameters of the function of BPI that it implements|"));
	Undo();
	EXPECT_TRUE(Blueprint->FunctionGraphs.Contains(Same));
	EXPECT_TRUE(Blueprint->FunctionGraphs.Contains(Other));
	EXPECT_TRUE(Same->bAllowRenaming);
	EXPECT_EQ(CompileForErrors(Blueprint), FString());
}

TEST_F(FBlueprintDependentsTest, ARingOfTwoParentsIsReportedAndChangesNothing)
{
	UBlueprint* const Child = MakeBlueprint(TEXT("BP_Child"), Blueprint->GeneratedClass.Get());
	UClass* const Class = Blueprint->GeneratedClass.Get();
	const UClass* const Skeleton = Blueprint->SkeletonGeneratedClass.Get();
	Blueprint->ParentClass = Child->GeneratedClass.Get();
	for (UBlueprint* const InRing : {Blueprint, Child})
	{
		// An edit of one, which builds its skeleton, and a compile of it: neither may follow the ring.
		FBlueprintEditorUtils::MarkBlueprintAsStructurallyModified(InRing);
		const FString Errors = CompileForErrors(InRing);
		EXPECT_TRUE(Errors.Contains(TEXT("form a ring"))) << TCHAR_TO_UTF8(*Errors);
	}
	EXPECT_EQ(Class->GetSuperClass(), AActor::StaticClass());
	EXPECT_EQ(Skeleton->GetSuperClass(), AActor::StaticClass());
	EXPECT_EQ(Child->GeneratedClass->GetSuperClass(), Class);
	Blueprint->ParentClass = AActor::StaticClass();
	EXPECT_EQ(CompileForErrors(Blueprint), FString());
	EXPECT_EQ(CompileForErrors(Child), FString());
}
}
