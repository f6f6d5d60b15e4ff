#include "BlueprintEditTest.h"
#include "EdGraph/EdGraphNode.h"
#include "EdGraph/EdGraphPin.h"
#include "K2Node_CallDelegate.h"
#include "K2Node_ComponentBoundEvent.h"
#include "K2Node_CreateDelegate.h"
#include "K2Node_CustomEvent.h"
#include "K2Node_FunctionEntry.h"
#include "K2Node_FunctionResult.h"
#include "K2Node_GetClassDefaults.h"
#include "K2Node_SpawnActorFromClass.h"
#include "K2Node_VariableGet.h"
#include "K2Node_VariableSet.h"
#include "Kismet2/Kismet2NameValidators.h"
#include "UObject/Interface.h"
#include "UObject/UnrealType.h"

namespace
{
class FMemberRenameTest : public FBlueprintEditTest
{
protected:
	UK2Node_VariableGet* Get(UEdGraph* ToGraph, FName Variable, UClass* OfOtherClass = nullptr)
	{
		return AddNode<UK2Node_VariableGet>(ToGraph,
			[&](UK2Node_VariableGet& Node)
			{
				if (OfOtherClass)
				{
					Node.VariableReference.SetExternalMember(Variable, OfOtherClass);
				}
				else
				{
					Node.VariableReference.SetSelfMember(Variable);
				}
			});
	}

	UK2Node_CallFunction* CallOwn(UEdGraph* ToGraph, const UBlueprint* Owner, const TCHAR* Name)
	{
		const UFunction* const Function = Owner->SkeletonGeneratedClass->FindFunctionByName(Name);
		EXPECT_NE(Function, nullptr);
		return AddNode<UK2Node_CallFunction>(ToGraph, [Function](UK2Node_CallFunction& Node)
			{ Node.SetFromFunction(Function); });
	}

	/** A dispatcher as the editor adds it: a variable and a graph of its signature. */
	static UEdGraph* AddDispatcher(UBlueprint* ToBlueprint, const TCHAR* Name)
	{
		FBlueprintEditorUtils::AddMemberVariable(ToBlueprint, Name, MakeType(UEdGraphSchema_K2::PC_MCDelegate));
		UEdGraph* const Signature =
			FBlueprintEditorUtils::CreateNewGraph(ToBlueprint, Name, UEdGraph::StaticClass(), UEdGraphSchema_K2::StaticClass());
		GetDefault<UEdGraphSchema_K2>()->CreateFunctionGraphTerminators(*Signature, static_cast<UClass*>(nullptr));
		GetDefault<UEdGraphSchema_K2>()->MarkFunctionEntryAsEditable(Signature, true);
		ToBlueprint->DelegateSignatureGraphs.Add(Signature);
		FBlueprintEditorUtils::MarkBlueprintAsStructurallyModified(ToBlueprint);
		return Signature;
	}
};

TEST_F(FMemberRenameTest, UsesOfAVariableFollowInEveryLoadedBlueprint)
{
	FBlueprintEditorUtils::AddMemberVariable(Blueprint, TEXT("Health"), MakeType(UEdGraphSchema_K2::PC_Int));
	FKismetEditorUtilities::CompileBlueprint(Blueprint);
	UBlueprint* const Child = MakeBlueprint(TEXT("BP_Child"), Blueprint->GeneratedClass.Get());
	UBlueprint* const Stranger = MakeBlueprint(TEXT("BP_Stranger"));
	UBlueprint* const SameName = MakeBlueprint(TEXT("BP_SameName"));
	FBlueprintEditorUtils::AddMemberVariable(SameName, TEXT("Health"), MakeType(UEdGraphSchema_K2::PC_Int));
	UK2Node_VariableGet* const Own = Get(Graph, TEXT("Health"));
	UK2Node_VariableGet* const OfChild = Get(FBlueprintEditorUtils::FindEventGraph(Child), TEXT("Health"));
	UK2Node_VariableGet* const OfStranger =
		Get(FBlueprintEditorUtils::FindEventGraph(Stranger), TEXT("Health"), Blueprint->GeneratedClass.Get());
	UK2Node_VariableGet* const OfSameName = Get(FBlueprintEditorUtils::FindEventGraph(SameName), TEXT("Health"));
	UK2Node_CallFunction* const Add = AddCall(Graph, TEXT("/Script/Engine.KismetMathLibrary"), TEXT("Add_IntInt"));
	Own->GetValuePin()->MakeLinkTo(Add->FindPin(TEXT("A")));
	Stranger->GetPackage()->SetDirtyFlag(false);
	{
		const FScopedTransaction Transaction(Title(TEXT("Rename")));
		FBlueprintEditorUtils::RenameMemberVariable(Blueprint, TEXT("Health"), TEXT("Life"));
	}
	for (const UK2Node_VariableGet* const Node : {Own, OfChild, OfStranger})
	{
		EXPECT_EQ(Node->GetVarName(), FName(TEXT("Life")));
		ASSERT_NE(Node->GetValuePin(), nullptr);
		EXPECT_NE(Node->GetPropertyForVariable(), nullptr);
	}
	EXPECT_EQ(OfSameName->GetVarName(), FName(TEXT("Health"))) << "another Blueprint's variable of the same name";
	EXPECT_EQ(Own->GetValuePin()->LinkedTo.Num(), 1);
	EXPECT_TRUE(Stranger->GetPackage()->IsDirty());
	Undo();
	for (const UK2Node_VariableGet* const Node : {Own, OfChild, OfStranger})
	{
		EXPECT_EQ(Node->GetVarName(), FName(TEXT("Health")));
		EXPECT_NE(Node->FindPin(TEXT("Health")), nullptr);
	}
}

TEST_F(FMemberRenameTest, PinsAndEventsThatBearAVariablesNameFollow)
{
	FBlueprintEditorUtils::AddMemberVariable(Blueprint, TEXT("Health"), MakeType(UEdGraphSchema_K2::PC_Int));
	FBlueprintEditorUtils::SetBlueprintOnlyEditableFlag(Blueprint, TEXT("Health"), false);
	FBlueprintEditorUtils::SetBlueprintVariableMetaData(
		Blueprint, TEXT("Health"), nullptr, FBlueprintMetadata::MD_ExposeOnSpawn, TEXT("true"));
	AddDispatcher(Blueprint, TEXT("OnHurt"));
	FKismetEditorUtilities::CompileBlueprint(Blueprint);
	UBlueprint* const Stranger = MakeBlueprint(TEXT("BP_Stranger"));
	UEdGraph* const Page = FBlueprintEditorUtils::FindEventGraph(Stranger);
	const auto NameClass = [this](UEdGraphNode& Node)
	{ Node.GetSchema()->TrySetDefaultObject(*Node.FindPin(TEXT("Class")), Blueprint->GeneratedClass.Get()); };
	UK2Node_SpawnActorFromClass* const Spawn = AddNode<UK2Node_SpawnActorFromClass>(Page);
	NameClass(*Spawn);
	ASSERT_NE(Spawn->FindPin(TEXT("Health")), nullptr);
	Spawn->FindPin(TEXT("Health"))->DefaultValue = TEXT("12");
	UK2Node_GetClassDefaults* const Defaults = AddNode<UK2Node_GetClassDefaults>(Page);
	NameClass(*Defaults);
	ASSERT_NE(Defaults->FindPin(TEXT("Health")), nullptr);
	Defaults->FindPin(TEXT("Health"))->MakeLinkTo(Spawn->FindPin(TEXT("Health")));
	UK2Node_ComponentBoundEvent* const Bound = AddNode<UK2Node_ComponentBoundEvent>(Page,
		[this](UK2Node_ComponentBoundEvent& Node)
		{
			Node.DelegatePropertyName = TEXT("OnHurt");
			Node.DelegateOwnerClass = Blueprint->GeneratedClass.Get(); });
	{
		const FScopedTransaction Transaction(Title(TEXT("Rename")));
		FBlueprintEditorUtils::RenameMemberVariable(Blueprint, TEXT("Health"), TEXT("Life"));
		FBlueprintEditorUtils::RenameMemberVariable(Blueprint, TEXT("OnHurt"), TEXT("OnWounded"));
	}
	// Before the Blueprint is compiled and after it.
	for (const bool bCompiled : {false, true})
	{
		if (bCompiled)
		{
			FKismetEditorUtilities::CompileBlueprint(Blueprint);
		}
		Spawn->ReconstructNode();
		Defaults->ReconstructNode();
		ASSERT_NE(Spawn->FindPin(TEXT("Life")), nullptr) << bCompiled;
		EXPECT_EQ(Spawn->FindPin(TEXT("Life"))->DefaultValue, TEXT("12"));
		EXPECT_EQ(Spawn->FindPin(TEXT("Life"))->LinkedTo.Num(), 1);
		EXPECT_EQ(Spawn->FindPin(TEXT("Health")), nullptr);
		EXPECT_EQ(Defaults->FindPin(TEXT("Health")), nullptr);
		EXPECT_EQ(Bound->DelegatePropertyName, FName(TEXT("OnWounded")));
	}
	Undo();
	EXPECT_NE(Spawn->FindPin(TEXT("Health")), nullptr);
	EXPECT_EQ(Defaults->FindPin(TEXT("Health"))->LinkedTo.Num(), 1);
	EXPECT_EQ(Bound->DelegatePropertyName, FName(TEXT("OnHurt")));
}

TEST_F(FMemberRenameTest, ATakenNameChangesNothing)
{
	FBlueprintEditorUtils::AddMemberVariable(Blueprint, TEXT("Health"), MakeType(UEdGraphSchema_K2::PC_Int));
	AddFunction(Blueprint, TEXT("Open"));
	for (const TCHAR* const Taken : {TEXT("Open"), TEXT("bHidden"), TEXT("EventGraph"), TEXT("ReceiveTick")})
	{
		FBlueprintEditorUtils::RenameMemberVariable(Blueprint, TEXT("Health"), Taken);
		EXPECT_EQ(Blueprint->NewVariables[0].VarName, FName(TEXT("Health"))) << TCHAR_TO_UTF8(Taken);
	}
}

TEST_F(FMemberRenameTest, ARemovedVariableTakesItsNodesAndUndoBringsBothBack)
{
	FBlueprintEditorUtils::AddMemberVariable(Blueprint, TEXT("Health"), MakeType(UEdGraphSchema_K2::PC_Int));
	UK2Node_VariableGet* const Node = Get(Graph, TEXT("Health"));
	UK2Node_CallFunction* const Add = AddCall(Graph, TEXT("/Script/Engine.KismetMathLibrary"), TEXT("Add_IntInt"));
	Node->GetValuePin()->MakeLinkTo(Add->FindPin(TEXT("B")));
	EXPECT_TRUE(FBlueprintEditorUtils::IsVariableUsed(Blueprint, TEXT("Health")));
	{
		const FScopedTransaction Transaction(Title(TEXT("Remove")));
		FBlueprintEditorUtils::RemoveMemberVariable(Blueprint, TEXT("Health"));
	}
	EXPECT_FALSE(Graph->Nodes.Contains(Node));
	EXPECT_EQ(Add->FindPin(TEXT("B"))->LinkedTo.Num(), 0);
	EXPECT_FALSE(FBlueprintEditorUtils::IsVariableUsed(Blueprint, TEXT("Health")));
	Undo();
	EXPECT_TRUE(Graph->Nodes.Contains(Node));
	ASSERT_EQ(Add->FindPin(TEXT("B"))->LinkedTo.Num(), 1);
	EXPECT_EQ(Add->FindPin(TEXT("B"))->LinkedTo[0]->GetOwningNode(), Node);
}

TEST_F(FMemberRenameTest, ARetypedVariableHasItsNodesFollow)
{
	FBlueprintEditorUtils::AddMemberVariable(Blueprint, TEXT("Health"), MakeType(UEdGraphSchema_K2::PC_Int));
	UK2Node_VariableGet* const Node = Get(Graph, TEXT("Health"));
	FEdGraphPinType Map = MakeType(UEdGraphSchema_K2::PC_String);
	Map.ContainerType = EPinContainerType::Map;
	Map.PinValueType.TerminalCategory = UEdGraphSchema_K2::PC_Int;
	FBlueprintEditorUtils::SetBlueprintVariableRepNotifyFunc(Blueprint, TEXT("Health"), TEXT("OnRep_Health"));
	EXPECT_TRUE(Blueprint->NewVariables[0].PropertyFlags & CPF_RepNotify);
	{
		const FScopedTransaction Transaction(Title(TEXT("Retype")));
		FBlueprintEditorUtils::ChangeMemberVariableType(Blueprint, TEXT("Health"), Map);
	}
	EXPECT_TRUE(Node->GetValuePin()->PinType.IsMap());
	EXPECT_FALSE(Blueprint->NewVariables[0].PropertyFlags & (CPF_Net | CPF_RepNotify)) << "maps are not replicated";
	Undo();
	EXPECT_EQ(Node->GetValuePin()->PinType.PinCategory, UEdGraphSchema_K2::PC_Int);
	EXPECT_EQ(FBlueprintEditorUtils::GetBlueprintVariableRepNotifyFunc(Blueprint, TEXT("Health")), FName(TEXT("OnRep_Health")));
}

TEST_F(FMemberRenameTest, UsesOfAFunctionFollow)
{
	UEdGraph* const Function = AddFunction(Blueprint, TEXT("Open"));
	FBlueprintEditorUtils::AddLocalVariable(Blueprint, Function, TEXT("Count"), MakeType(UEdGraphSchema_K2::PC_Int));
	UK2Node_VariableSet* const Local = AddNode<UK2Node_VariableSet>(
		Function, [](UK2Node_VariableSet& Node)
		{ Node.VariableReference.SetLocalMember(TEXT("Count"), TEXT("Open"), FGuid()); });
	FKismetEditorUtilities::CompileBlueprint(Blueprint);
	UBlueprint* const Child = MakeBlueprint(TEXT("BP_Child"), Blueprint->GeneratedClass.Get());
	UBlueprint* const Stranger = MakeBlueprint(TEXT("BP_Stranger"));
	UEdGraph* const Override =
		FBlueprintEditorUtils::CreateNewGraph(Child, TEXT("Open"), UEdGraph::StaticClass(), UEdGraphSchema_K2::StaticClass());
	FBlueprintEditorUtils::AddFunctionGraph(Child, Override, false, Blueprint->GeneratedClass.Get());
	UK2Node_CallFunction* const Own = CallOwn(Graph, Blueprint, TEXT("Open"));
	UK2Node_CallFunction* const OfStranger = CallOwn(FBlueprintEditorUtils::FindEventGraph(Stranger), Blueprint, TEXT("Open"));
	UK2Node_CreateDelegate* const Delegate =
		AddNode<UK2Node_CreateDelegate>(Graph, [](UK2Node_CreateDelegate& Node)
			{ Node.SetFunction(TEXT("Open")); });
	{
		const FScopedTransaction Transaction(Title(TEXT("Rename")));
		ASSERT_TRUE(FBlueprintEditorUtils::RenameGraph(Function, TEXT("Close")));
	}
	EXPECT_EQ(Own->GetFunctionName(), FName(TEXT("Close")));
	EXPECT_EQ(OfStranger->GetFunctionName(), FName(TEXT("Close")));
	EXPECT_NE(OfStranger->GetTargetFunction(), nullptr);
	EXPECT_EQ(Delegate->GetFunctionName(), FName(TEXT("Close")));
	EXPECT_EQ(Override->GetName(), TEXT("Close"));
	EXPECT_EQ(Local->VariableReference.GetMemberScopeName(), TEXT("Close"));
	EXPECT_TRUE(Local->HasKnownDefinition());
	Undo();
	EXPECT_EQ(Own->GetFunctionName(), FName(TEXT("Open")));
	EXPECT_EQ(Override->GetName(), TEXT("Open"));
	EXPECT_EQ(Delegate->GetFunctionName(), FName(TEXT("Open")));
	EXPECT_NE(Own->GetTargetFunction(), nullptr);
}

TEST_F(FMemberRenameTest, ImplementationsOfAnInterfacesFunctionFollow)
{
	UBlueprint* const Interface = MakeBlueprint(TEXT("BPI_Openable"), UInterface::StaticClass(), BPTYPE_Interface);
	UEdGraph* const Declared = AddFunction(Interface, TEXT("Open"));
	// With a result it is no event.
	FBlueprintEditorUtils::FindOrCreateFunctionResultNode(FBlueprintEditorUtils::GetEntryNode(Declared))
		->CreateUserDefinedPin(TEXT("bOpened"), MakeType(UEdGraphSchema_K2::PC_Boolean), EGPD_Input);
	FKismetEditorUtilities::CompileBlueprint(Interface);
	ASSERT_TRUE(FBlueprintEditorUtils::ImplementNewInterface(Blueprint, Interface->GeneratedClass->GetClassPathName()));
	const auto Graphs = [this]() -> const TArray<TObjectPtr<UEdGraph>>&
	{ return Blueprint->ImplementedInterfaces[0].Graphs; };
	ASSERT_EQ(Graphs().Num(), 1);
	const UEdGraph* const Implementation = Graphs()[0];
	const int32 NumFunctions = Blueprint->FunctionGraphs.Num();
	{
		const FScopedTransaction Transaction(Title(TEXT("Rename")));
		ASSERT_TRUE(FBlueprintEditorUtils::RenameGraph(Declared, TEXT("Unlock")));
	}
	// Whichever of the two is compiled first.
	for (UBlueprint* const Compiled : {Blueprint, Interface, Blueprint})
	{
		FKismetEditorUtilities::CompileBlueprint(Compiled);
		ASSERT_EQ(Graphs().Num(), 1);
		EXPECT_EQ(Graphs()[0], Implementation) << "with what stands in it";
		EXPECT_EQ(Implementation->GetName(), TEXT("Unlock"));
		EXPECT_EQ(Blueprint->FunctionGraphs.Num(), NumFunctions) << "none is left behind under the old name";
	}
	Undo();
	EXPECT_EQ(Implementation->GetName(), TEXT("Open"));
	EXPECT_EQ(Graphs()[0], Implementation);
}

TEST_F(FMemberRenameTest, CallsOfACustomEventFollow)
{
	UK2Node_CustomEvent* const Event =
		AddNode<UK2Node_CustomEvent>(Graph, [](UK2Node_CustomEvent& Node)
			{ Node.CustomFunctionName = TEXT("Knock"); });
	FBlueprintEditorUtils::MarkBlueprintAsStructurallyModified(Blueprint);
	UK2Node_CallFunction* const Call = CallOwn(Graph, Blueprint, TEXT("Knock"));
	{
		const FScopedTransaction Transaction(Title(TEXT("Rename")));
		Event->OnRenameNode(TEXT("Ring"));
		FBlueprintEditorUtils::MarkBlueprintAsStructurallyModified(Blueprint);
	}
	EXPECT_EQ(Call->GetFunctionName(), FName(TEXT("Ring")));
	EXPECT_NE(Call->GetTargetFunction(), nullptr);
	Undo();
	EXPECT_EQ(Event->CustomFunctionName, FName(TEXT("Knock")));
	EXPECT_NE(Call->GetTargetFunction(), nullptr);
}

TEST_F(FMemberRenameTest, ADispatcherIsItsVariableAndItsSignature)
{
	UEdGraph* const Signature = AddDispatcher(Blueprint, TEXT("OnOpened"));
	const FProperty* const Property = FindFProperty<FMulticastDelegateProperty>(Blueprint->SkeletonGeneratedClass.Get(), TEXT("OnOpened"));
	ASSERT_NE(Property, nullptr);
	UK2Node_CallDelegate* const Call = AddNode<UK2Node_CallDelegate>(
		Graph, [&](UK2Node_CallDelegate& Node)
		{ Node.SetFromProperty(Property, true, Property->GetOwnerClass()); });
	{
		const FScopedTransaction Transaction(Title(TEXT("Rename")));
		EXPECT_TRUE(FBlueprintEditorUtils::RenameGraph(Signature, TEXT("OnClosed")));
	}
	EXPECT_EQ(Blueprint->NewVariables[0].VarName, FName(TEXT("OnClosed")));
	EXPECT_EQ(Signature->GetName(), TEXT("OnClosed"));
	EXPECT_EQ(Call->GetPropertyName(), FName(TEXT("OnClosed")));
	EXPECT_NE(Call->GetDelegateSignature(), nullptr);
	{
		const FScopedTransaction Transaction(Title(TEXT("Remove")));
		FBlueprintEditorUtils::RemoveMemberVariable(Blueprint, TEXT("OnClosed"));
	}
	EXPECT_EQ(Blueprint->DelegateSignatureGraphs.Num(), 0);
	EXPECT_FALSE(Graph->Nodes.Contains(Call));
	Undo();
	ASSERT_EQ(Blueprint->DelegateSignatureGraphs.Num(), 1);
	EXPECT_NE(Call->GetDelegateSignature(), nullptr);
	Undo();
	EXPECT_EQ(Call->GetPropertyName(), FName(TEXT("OnOpened")));
	EXPECT_EQ(Signature->GetName(), TEXT("OnOpened"));
}

TEST_F(FMemberRenameTest, LocalVariablesLiveInTheirFunction)
{
	UEdGraph* const Function = AddFunction(Blueprint, TEXT("Open"));
	UEdGraph* const Other = AddFunction(Blueprint, TEXT("Close"));
	EXPECT_TRUE(FBlueprintEditorUtils::DoesSupportLocalVariables(Function));
	EXPECT_FALSE(FBlueprintEditorUtils::DoesSupportLocalVariables(Graph));
	const FEdGraphPinType Int = MakeType(UEdGraphSchema_K2::PC_Int);
	EXPECT_FALSE(FBlueprintEditorUtils::AddLocalVariable(Blueprint, Graph, TEXT("Count"), Int));
	ASSERT_TRUE(FBlueprintEditorUtils::AddLocalVariable(Blueprint, Function, TEXT("Count"), Int, TEXT("3")));
	EXPECT_FALSE(FBlueprintEditorUtils::AddLocalVariable(Blueprint, Function, TEXT("count"), Int));
	EXPECT_TRUE(FBlueprintEditorUtils::AddLocalVariable(Blueprint, Other, TEXT("Count"), Int));
	const auto AddGet = [](UEdGraph* ToGraph)
	{
		return AddNode<UK2Node_VariableGet>(ToGraph,
			[ToGraph](UK2Node_VariableGet& Node)
			{ Node.VariableReference.SetLocalMember(TEXT("Count"), ToGraph->GetName(), FGuid()); });
	};
	UK2Node_VariableGet* const Node = AddGet(Function);
	UK2Node_VariableGet* const OtherNode = AddGet(Other);
	const auto Scope = [this]
	{ return Blueprint->SkeletonGeneratedClass->FindFunctionByName(TEXT("Open")); };
	{
		const FScopedTransaction Transaction(Title(TEXT("Rename")));
		FBlueprintEditorUtils::RenameLocalVariable(Blueprint, Scope(), TEXT("Count"), TEXT("Number"));
		FBlueprintEditorUtils::ChangeLocalVariableType(Blueprint, Scope(), TEXT("Number"), MakeType(UEdGraphSchema_K2::PC_String));
	}
	EXPECT_EQ(Node->GetVarName(), FName(TEXT("Number")));
	ASSERT_NE(Node->GetValuePin(), nullptr);
	EXPECT_EQ(Node->GetValuePin()->PinType.PinCategory, UEdGraphSchema_K2::PC_String);
	EXPECT_EQ(OtherNode->GetVarName(), FName(TEXT("Count")));
	Undo();
	EXPECT_EQ(Node->GetVarName(), FName(TEXT("Count")));
	EXPECT_EQ(Node->GetValuePin()->PinType.PinCategory, UEdGraphSchema_K2::PC_Int);
	{
		const FScopedTransaction Transaction(Title(TEXT("Remove")));
		FBlueprintEditorUtils::RemoveLocalVariable(Blueprint, Scope(), TEXT("Count"));
	}
	EXPECT_FALSE(Function->Nodes.Contains(Node));
	EXPECT_TRUE(Other->Nodes.Contains(OtherNode));
	EXPECT_EQ(FBlueprintEditorUtils::FindLocalVariable(Blueprint, Function, TEXT("Count")), nullptr);
	Undo();
	EXPECT_TRUE(Function->Nodes.Contains(Node));
	EXPECT_NE(FBlueprintEditorUtils::FindLocalVariable(Blueprint, Scope(), TEXT("Count")), nullptr);
}

TEST_F(FMemberRenameTest, NamesAreRefusedForAReason)
{
	FBlueprintEditorUtils::AddMemberVariable(Blueprint, TEXT("Health"), MakeType(UEdGraphSchema_K2::PC_Int));
	UEdGraph* const Function = AddFunction(Blueprint, TEXT("Open"));
	FBlueprintEditorUtils::AddLocalVariable(Blueprint, Function, TEXT("Count"), MakeType(UEdGraphSchema_K2::PC_Int));
	FKismetNameValidator Validator(Blueprint, TEXT("Mine"), Blueprint->SkeletonGeneratedClass->FindFunctionByName(TEXT("Open")));
	const struct
	{
		FString Name;
		EValidatorResult Result;
	} Cases[] = {
		{TEXT("Free"), EValidatorResult::Ok},
		{TEXT(""), EValidatorResult::EmptyName},
		{TEXT("health"), EValidatorResult::AlreadyInUse},
		{TEXT("Open"), EValidatorResult::AlreadyInUse},
		{TEXT("bHidden"), EValidatorResult::AlreadyInUse},
		{TEXT("EventGraph"), EValidatorResult::AlreadyInUse},
		{TEXT("Count"), EValidatorResult::LocallyInUse},
		{TEXT("Mine"), EValidatorResult::ExistingName},
		{TEXT("a.b"), EValidatorResult::ContainsInvalidCharacters},
		{FString::ChrN(100, TEXT('x')), EValidatorResult::TooLong},
	};
	for (const auto& Case : Cases)
	{
		EXPECT_EQ(Validator.IsValid(Case.Name), Case.Result) << TCHAR_TO_UTF8(*Case.Name);
		const bool bHasText = !INameValidatorInterface::GetErrorString(Case.Name, Case.Result).IsEmpty();
		EXPECT_EQ(bHasText, Case.Result != EValidatorResult::Ok && Case.Result != EValidatorResult::ExistingName);
	}
	FString Wanted = TEXT("Health");
	EXPECT_EQ(Validator.FindValidString(Wanted), EValidatorResult::AlreadyInUse);
	EXPECT_EQ(Wanted, TEXT("Health1"));
	EXPECT_EQ(FBlueprintEditorUtils::FindUniqueKismetName(Blueprint, TEXT("Health")), FName(TEXT("Health_0")));
	const FName Long = FBlueprintEditorUtils::FindUniqueKismetName(Blueprint, FString::ChrN(150, TEXT('y')));
	EXPECT_LT(Long.ToString().Len(), FKismetNameValidator::GetMaximumNameLength());
}
}
