#include "BlueprintEditTest.h"
#include "EditorAssetLibrary.h"
#include "K2Node_AddDelegate.h"
#include "K2Node_CreateDelegate.h"
#include "K2Node_VariableGet.h"
#include "K2Node_VariableSet.h"
#include "UObject/NoExportTypes.h"
#include "UObject/UnrealType.h"
#include "Unload.h"

namespace
{
/**
 * A Blueprint with a child and a user, all saved; then the child and the user are no longer loaded, and come back from their files after
 * the Blueprint's members were renamed.
 */
class FUnloadedUsesTest : public FBlueprintEditTest
{
protected:
	virtual void SetUp() override
	{
		FBlueprintEditTest::SetUp();
		FBlueprintEditorUtils::AddMemberVariable(Blueprint, TEXT("Health"), MakeType(UEdGraphSchema_K2::PC_Int));
		FBlueprintEditorUtils::AddMemberVariable(Blueprint, TEXT("OnHurt"), MakeType(UEdGraphSchema_K2::PC_MCDelegate));
		Signature = FBlueprintEditorUtils::CreateNewGraph(Blueprint, TEXT("OnHurt"), UEdGraph::StaticClass(), UEdGraphSchema_K2::StaticClass());
		GetDefault<UEdGraphSchema_K2>()->CreateFunctionGraphTerminators(*Signature, static_cast<UClass*>(nullptr));
		Blueprint->DelegateSignatureGraphs.Add(Signature);
		Heal = AddFunction(Blueprint, TEXT("Heal"));
		ASSERT_EQ(CompileForErrors(Blueprint), TEXT(""));
		Child = MakeBlueprint(TEXT("BP_Child"), Blueprint->GeneratedClass.Get());
		User = MakeBlueprint(TEXT("BP_User"));
		ASSERT_EQ(CompileForErrors(Child), TEXT(""));
	}

	template <class NodeType>
	NodeType* AddUse(UBlueprint* Where, FName Variable)
	{
		FProperty* const Property = FindFProperty<FProperty>(Blueprint->GeneratedClass.Get(), Variable);
		const bool bIsSelf = Where != User;
		return AddNode<NodeType>(FBlueprintEditorUtils::FindEventGraph(Where), [&](NodeType& Node)
			{ Node.SetFromProperty(Property, bIsSelf, Property->GetOwnerClass()); });
	}

	UK2Node_CallFunction* AddUseOfFunction(UBlueprint* Where)
	{
		const UFunction* const Function = Blueprint->GeneratedClass->FindFunctionByName(TEXT("Heal"));
		return AddNode<UK2Node_CallFunction>(FBlueprintEditorUtils::FindEventGraph(Where), [Function](UK2Node_CallFunction& Node)
			{ Node.SetFromFunction(Function); });
	}

	/** Saves all three and gives up the child and the user. */
	void SaveAndUnload()
	{
		for (UBlueprint* const Saved : {Blueprint, Child, User})
		{
			FKismetEditorUtilities::CompileBlueprint(Saved);
			ASSERT_TRUE(UEditorAssetLibrary::SaveLoadedAsset(Saved, false));
		}
		const FString Paths[] = {Child->GetPathName(), User->GetPathName()};
		UnloadBlueprints({Child, User});
		Child = nullptr;
		User = nullptr;
		for (const FString& Path : Paths)
		{
			ASSERT_EQ(FindObject<UBlueprint>(nullptr, *Path), nullptr) << TCHAR_TO_UTF8(*Path);
		}
	}

	UBlueprint* Load(const FString& Path) const
	{
		UBlueprint* const Loaded = Cast<UBlueprint>(UEditorAssetLibrary::LoadAsset(Path));
		EXPECT_NE(Loaded, nullptr);
		return Loaded;
	}

	template <class NodeType>
	static NodeType* Find(const UBlueprint* Where)
	{
		TArray<NodeType*> Nodes;
		FBlueprintEditorUtils::FindEventGraph(Where)->GetNodesOfClass(Nodes);
		return Nodes.IsEmpty() ? nullptr : Nodes[0];
	}

	UEdGraph* Signature = nullptr;
	UEdGraph* Heal = nullptr;
	UBlueprint* Child = nullptr;
	UBlueprint* User = nullptr;
};

TEST_F(FUnloadedUsesTest, GettersAndSettersFindARenamedVariableByItsId)
{
	for (UBlueprint* const Where : {Child, User})
	{
		UK2Node_VariableGet* const Get = AddUse<UK2Node_VariableGet>(Where, TEXT("Health"));
		UK2Node_VariableSet* const Set = AddUse<UK2Node_VariableSet>(Where, TEXT("Health"));
		UEdGraph* const Page = FBlueprintEditorUtils::FindEventGraph(Where);
		UK2Node_CallFunction* const Add = AddCall(Page, TEXT("/Script/Engine.KismetMathLibrary"), TEXT("Add_IntInt"));
		Get->GetValuePin()->MakeLinkTo(Add->FindPin(TEXT("A")));
		Add->FindPin(TEXT("ReturnValue"))->MakeLinkTo(Set->FindPin(TEXT("Health")));
	}
	const FString Paths[] = {Child->GetPathName(), User->GetPathName()};
	SaveAndUnload();
	FBlueprintEditorUtils::RenameMemberVariable(Blueprint, TEXT("Health"), TEXT("Life"));
	FBlueprintEditorUtils::AddMemberVariable(Blueprint, TEXT("Health"), MakeType(UEdGraphSchema_K2::PC_String));
	FKismetEditorUtilities::CompileBlueprint(Blueprint);
	for (const FString& Path : Paths)
	{
		UBlueprint* const Again = Load(Path);
		EXPECT_FALSE(Again->GetPackage()->IsDirty()) << "nobody has edited it";
		for (const UK2Node_Variable* const Node : {static_cast<UK2Node_Variable*>(Find<UK2Node_VariableGet>(Again)),
				 static_cast<UK2Node_Variable*>(Find<UK2Node_VariableSet>(Again))})
		{
			EXPECT_EQ(Node->GetVarName(), FName(TEXT("Life")));
			ASSERT_NE(Node->GetValuePin(), nullptr) << TCHAR_TO_UTF8(*Path);
			EXPECT_EQ(Node->GetValuePin()->PinType.PinCategory, UEdGraphSchema_K2::PC_Int);
			EXPECT_EQ(Node->GetValuePin()->LinkedTo.Num(), 1);
			EXPECT_EQ(Node->FindPin(TEXT("Health")), nullptr);
		}
	}
}

TEST_F(FUnloadedUsesTest, CallsAndCreatedEventsFindARenamedFunctionByItsId)
{
	AddUseOfFunction(User);
	AddUseOfFunction(Child);
	AddNode<UK2Node_CreateDelegate>(FBlueprintEditorUtils::FindEventGraph(Child))->SetFunction(TEXT("Heal"));
	const FString Paths[] = {Child->GetPathName(), User->GetPathName()};
	SaveAndUnload();
	ASSERT_TRUE(FBlueprintEditorUtils::RenameGraph(Heal, TEXT("Mend")));
	FKismetEditorUtilities::CompileBlueprint(Blueprint);
	for (const FString& Path : Paths)
	{
		UBlueprint* const Again = Load(Path);
		EXPECT_EQ(Find<UK2Node_CallFunction>(Again)->FunctionReference.GetMemberName(), FName(TEXT("Mend")));
		EXPECT_NE(Find<UK2Node_CallFunction>(Again)->GetTargetFunction(), nullptr);
		const UK2Node_CreateDelegate* const Delegate = Find<UK2Node_CreateDelegate>(Again);
		EXPECT_EQ(Delegate ? Delegate->GetFunctionName() : FName(TEXT("Mend")), FName(TEXT("Mend")));
	}
}

TEST_F(FUnloadedUsesTest, BindingsFindARenamedDispatcherByItsId)
{
	AddUse<UK2Node_AddDelegate>(User, TEXT("OnHurt"));
	AddUse<UK2Node_AddDelegate>(Child, TEXT("OnHurt"));
	const FString Paths[] = {Child->GetPathName(), User->GetPathName()};
	SaveAndUnload();
	FBlueprintEditorUtils::RenameMemberVariable(Blueprint, TEXT("OnHurt"), TEXT("OnWounded"));
	FKismetEditorUtilities::CompileBlueprint(Blueprint);
	for (const FString& Path : Paths)
	{
		UBlueprint* const Again = Load(Path);
		const UK2Node_AddDelegate* const Bind = Find<UK2Node_AddDelegate>(Again);
		EXPECT_EQ(Bind->GetPropertyName(), FName(TEXT("OnWounded")));
		EXPECT_NE(Bind->GetDelegateSignature(), nullptr);
		const UEdGraphPin* const Event = Bind->FindPin(UEdGraphSchema_K2::PN_Delegate);
		ASSERT_NE(Event, nullptr);
		EXPECT_EQ(Event->PinType.PinSubCategoryMemberReference.MemberName.ToString(), TEXT("OnWounded__DelegateSignature"));
	}
}

TEST_F(FUnloadedUsesTest, PartsOfASplitValueGoWithARename)
{
	FBlueprintEditorUtils::AddMemberVariable(
		Blueprint, TEXT("Home"), MakeType(UEdGraphSchema_K2::PC_Struct, NAME_None, TBaseStructure<FVector>::Get()));
	FKismetEditorUtilities::CompileBlueprint(Blueprint);
	const auto Split = [this](UBlueprint* Where)
	{
		UK2Node_VariableSet* const Set = AddUse<UK2Node_VariableSet>(Where, TEXT("Home"));
		GetDefault<UEdGraphSchema_K2>()->SplitPin(Set->FindPin(TEXT("Home")), false);
		Set->FindPin(TEXT("Home_Y"))->DefaultValue = TEXT("7.5");
		return Set;
	};
	const auto Expect = [](const UK2Node_VariableSet& Set)
	{
		ASSERT_NE(Set.FindPin(TEXT("Base_Y")), nullptr);
		EXPECT_EQ(Set.FindPin(TEXT("Base_Y"))->DefaultValue, TEXT("7.5"));
		EXPECT_EQ(Set.FindPin(TEXT("Home_Y")), nullptr);
	};
	UK2Node_VariableSet* const Own = Split(Blueprint);
	Split(User);
	const FString Path = User->GetPathName();
	SaveAndUnload();
	FBlueprintEditorUtils::RenameMemberVariable(Blueprint, TEXT("Home"), TEXT("Base"));
	Own->ReconstructNode();
	Expect(*Own);
	FKismetEditorUtilities::CompileBlueprint(Blueprint);
	UBlueprint* const Again = Load(Path);
	FBlueprintEditorUtils::RefreshAllNodes(Again);
	Expect(*Find<UK2Node_VariableSet>(Again));
}
}
