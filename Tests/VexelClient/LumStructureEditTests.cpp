#include "EdGraphSchema_K2.h"
#include "K2Node_CustomEvent.h"
#include "K2Node_FunctionEntry.h"
#include "Lum/Compound/LumGraphCompound.h"
#include "Lum/Compound/LumNodeCompound.h"
#include "Lum/LumContext.h"
#include "Lum/LumErrors.h"
#include "Lum/LumHelper.h"
#include "Lum/LumVariable.h"
#include "ObjectEditFixture.h"
#include "Tools/Blueprint/VexelObjectEditRequest.h"
#include "UObject/Package.h"

#include <gmock/gmock.h>

namespace
{
using testing::HasSubstr;

template <typename T>
std::string ErrorTextOf(const TVexelExpected<T>& Result)
{
	return Result.HasError() ? ToStd(Result.GetError().ToChainString()) : "no error";
}

FLumVarDesc MakeDesc(const TCHAR* Scope, const TCHAR* Name, const TCHAR* Type)
{
	FLumVarDesc Desc;
	Desc.ScopeId = TVexelVarScopeId(Scope);
	Desc.PropId = TVexelPropId(Name);
	Desc.TypeId = TVexelPropTypeId(Type);
	return Desc;
}

/** The property model's own edits, below the tool, which asks for less. */
class FLumStructureEditTest : public FObjectEditTest
{
};

TEST_F(FLumStructureEditTest, ABlueprintTakesMembersAlone)
{
	const TSharedRef<ILumCompound> Compound = ILumCompound::Create(*Blueprint);
	EXPECT_EQ("Write Error: Only 'member' scope is supported by blueprint compound",
		ErrorTextOf(Compound->AddVariable(MakeDesc(TEXT("local"), TEXT("A"), TEXT("int")))));
	EXPECT_EQ("Write Error: Variable name (prop_id) is required", ErrorTextOf(Compound->AddVariable(MakeDesc(TEXT("member"), TEXT(""), TEXT("int")))));
	EXPECT_EQ("Write Error: Variable type_id is required", ErrorTextOf(Compound->AddVariable(MakeDesc(TEXT("member"), TEXT("A"), TEXT("")))));
	EXPECT_EQ("Write Error: Variable 'Health' already exists",
		ErrorTextOf(Compound->AddVariable(MakeDesc(TEXT("member"), TEXT("Health"), TEXT("int")))));
	EXPECT_EQ("Write Error: Variable 'Gone' not found", ErrorTextOf(Compound->RemoveVariable(LumScope::Member(), TVexelPropId(TEXT("Gone")))));
	EXPECT_THAT(ErrorTextOf(Compound->RemoveVariable(LumScope::Member(), TVexelPropId(FString::ChrN(2000, TEXT('a'))))), HasSubstr("fewer than"));
	EXPECT_EQ(0, NumUndos());
}

TEST_F(FLumStructureEditTest, AGraphTakesParametersAndLocalVariables)
{
	FLumGraphCompound Heal(*FindGraph(TEXT("Heal")));
	EXPECT_EQ("Write Error: Variable scope is invalid. Valid scopes are: in, out, local",
		ErrorTextOf(Heal.AddVariable(MakeDesc(TEXT("member"), TEXT("A"), TEXT("int")))));
	EXPECT_EQ("Write Error: Variable scope is invalid. Valid scopes are: in, out, local",
		ErrorTextOf(Heal.RemoveVariable(TVexelVarScopeId(TEXT("")), TVexelPropId(TEXT("A")))));
	EXPECT_EQ("Write Error: Variable 'Left' already exists", ErrorTextOf(Heal.AddVariable(MakeDesc(TEXT("local"), TEXT("Left"), TEXT("int")))));
	EXPECT_EQ("Write Error: Variable 'Gone' not found", ErrorTextOf(Heal.RemoveVariable(LumScope::Local(), TVexelPropId(TEXT("Gone")))));
	FLumGraphCompound Plain(*FindGraph(TEXT("Plain")));
	EXPECT_EQ("Write Error: Graph does not have local variables",
		ErrorTextOf(Plain.RemoveVariable(LumScope::Local(), TVexelPropId(TEXT("Left")))));
	EXPECT_EQ("Write Error: No function entry/result node found in graph",
		ErrorTextOf(Plain.RemoveVariable(LumScope::Out(), TVexelPropId(TEXT("Left")))));

	UEdGraph* const Stray = NewObject<UEdGraph>(GetTransientPackage());
	Stray->Schema = UEdGraphSchema_K2::StaticClass();
	EXPECT_EQ("Write Error: Graph is not part of a blueprint",
		ErrorTextOf(FLumGraphCompound(*Stray).AddVariable(MakeDesc(TEXT("local"), TEXT("A"), TEXT("int")))));

	UEdGraph* const Unknown =
		FBlueprintEditorUtils::CreateNewGraph(Blueprint, TEXT("Unknown"), UEdGraph::StaticClass(), UEdGraphSchema_K2::StaticClass());
	Blueprint->FunctionGraphs.Add(Unknown);
	GetDefault<UEdGraphSchema_K2>()->CreateFunctionGraphTerminators(*Unknown, static_cast<UClass*>(nullptr));
	EXPECT_EQ("Write Error: Graph does not have a valid function scope",
		ErrorTextOf(FLumGraphCompound(*Unknown).AddVariable(MakeDesc(TEXT("local"), TEXT("A"), TEXT("int")))));
	EXPECT_EQ(0, NumUndos());
}

TEST_F(FLumStructureEditTest, PinsAreCheckedOnAllOfTheNodes)
{
	UK2Node_CustomEvent* const Event = FindNodeOfClass<UK2Node_CustomEvent>(EventGraph);
	const TArray<UK2Node_EditablePinBase*> Nodes = {Event};
	EXPECT_EQ("Write Error: Pin 'Gone' not found in blueprint node.",
		ErrorTextOf(FLumHelper::ChangeUserDefinedPin(Nodes, TEXT("Gone"), MakeDesc(TEXT(""), TEXT("A"), TEXT("")))));
	EXPECT_EQ("Write Error: User defined pin 'then' not found in blueprint node.",
		ErrorTextOf(FLumHelper::ChangeUserDefinedPin(Nodes, TEXT("then"), MakeDesc(TEXT(""), TEXT("A"), TEXT("")))));
	EXPECT_EQ("Write Error: User defined pin 'then' not found in blueprint node.", ErrorTextOf(FLumHelper::RemoveUserDefinedPin(Nodes, TEXT("then"))));
	EXPECT_EQ("Write Error: Pin direction invalid",
		ErrorTextOf(FLumHelper::AddUserDefinedPin(Nodes, TEXT("A"), MakeDesc(TEXT("sideways"), TEXT("A"), TEXT("int")))));
	EXPECT_EQ("Write Error: Blueprint graph is not valid!",
		ErrorTextOf(FLumHelper::AddUserDefinedPin({}, TEXT("A"), MakeDesc(TEXT("out"), TEXT("A"), TEXT("int")))));
	TArray<UK2Node_EditablePinBase*> Together;
	UK2Node_CustomEvent* const Stray = NewObject<UK2Node_CustomEvent>(GetTransientPackage());
	EXPECT_EQ("Write Error: Blueprint graph is not valid!", ErrorTextOf(FLumHelper::GetAllNodesForUserPinEdit(*Stray, Together)));
	EXPECT_EQ(0, NumUndos());
}

TEST_F(FLumStructureEditTest, OnlyWhatHasANameOfItsOwnIsRenamed)
{
	EXPECT_EQ("Write Error: Editable name is only supported for function/macro graphs", ErrorTextOf(FLumHelper::RenameGraph(*EventGraph, TEXT("A"))));
	UEdGraphNode* const Entry = FindNodeOfClass<UK2Node_FunctionEntry>(FindGraph(TEXT("Heal")));
	EXPECT_EQ("Write Error: Editable name is only supported for Custom Event nodes", ErrorTextOf(FLumHelper::RenameNode(*Entry, TEXT("A"))));
	const TSharedRef<FLumNodeCompound> EntryCompound = FLumNodeCompound::Create(*Entry);
	EXPECT_FALSE(EntryCompound->FindProperty(TVexelPropId(TEXT("name"))).GetValue());
	EXPECT_FALSE(FLumGraphCompound(*EventGraph).FindProperty(TVexelPropId(TEXT("name"))).GetValue());
}

TEST_F(FLumStructureEditTest, AnOperationOfTheOtherKindIsRefused)
{
	const TSharedRef<ILumCompound> Compound = ILumCompound::Create(*Blueprint);
	const FLumContext Context(Conversation->GetMapping());
	FEditRequestOperationOnProp OnProp;
	OnProp.Type = EVexelEditOperation::AddVariable;
	OnProp.PropPath = TEXT("$ClassDefaultObject");
	EXPECT_EQ("Write Error: Unsupported operation type 'add_variable' for property operation", ErrorTextOf(OnProp.Execute(Compound, Context)));
	FEditRequestOperationOnVar OnVar;
	OnVar.Type = EVexelEditOperation::Update;
	EXPECT_EQ("Write Error: Unsupported operation type 'update' for variable operation", ErrorTextOf(OnVar.Execute(Compound)));
}

TEST_F(FLumStructureEditTest, ABlueprintThatWasLoadedWithoutItsSkeletonClassIsEditedAllTheSame)
{
	ASSERT_THAT(EditErrors("{'target_type': 'blueprint'}",
					"{'operation': 'add_variable', 'scope': 'member', 'name': 'Fresh', 'value': {'type_id': 'int'}}"),
		testing::IsEmpty());
	const auto Forget = [this]
	{
		Blueprint->SkeletonGeneratedClass->Rename(nullptr, GetTransientPackage(), REN_DontCreateRedirectors);
		Blueprint->SkeletonGeneratedClass = nullptr;
		Blueprint->GetPackage()->SetDirtyFlag(false);
	};
	Forget();
	const FLumContext Context(Conversation->GetMapping());
	const TSharedPtr<ILumVariable> Fresh =
		ILumCompound::Create(*Blueprint)->FindVariable(LumScope::Member(), TVexelPropId(TEXT("Fresh"))).GetValue();
	ASSERT_TRUE(Fresh.IsValid());
	EXPECT_EQ("0", ToStd(Fresh->JsonExportValue(Context).GetValue()->AsString()));
	EXPECT_FALSE(Blueprint->GetPackage()->IsDirty()) << "reading changes nothing";
	EXPECT_EQ("no error", ErrorTextOf(Fresh->JsonImportValue(Context, MakeShared<FJsonValueString>(TEXT("4")))));
	EXPECT_EQ("4", ToStd(Blueprint->NewVariables.Last().DefaultValue));
	Forget();
	EXPECT_EQ("no error", ErrorTextOf(FLumGraphCompound(*FindGraph(TEXT("Heal"))).AddVariable(MakeDesc(TEXT("local"), TEXT("A"), TEXT("int")))));
}

TEST_F(FLumStructureEditTest, ANameEndsAtNoNullCharacter)
{
	const FString Name(FString(TEXT("A")) + TCHAR(0) + TEXT("B"));
	FLumVarDesc Desc = MakeDesc(TEXT("member"), *Name, TEXT("int"));
	Desc.PropId = TVexelPropId(Name);
	EXPECT_THAT(ErrorTextOf(ILumCompound::Create(*Blueprint)->AddVariable(Desc)), HasSubstr("Name A cannot contain a character of the code 0."));
	Desc.ScopeId = LumScope::In();
	EXPECT_THAT(ErrorTextOf(FLumGraphCompound(*FindGraph(TEXT("Heal"))).AddVariable(Desc)), HasSubstr("Name A cannot contain a character of the code 0."));
	Desc.ScopeId = LumScope::Local();
	EXPECT_THAT(ErrorTextOf(FLumGraphCompound(*FindGraph(TEXT("Heal"))).AddVariable(Desc)), HasSubstr("Name A cannot contain a character of the code 0."));
	EXPECT_THAT(ErrorTextOf(FLumHelper::RenameGraph(*FindGraph(TEXT("Heal")), Name)), HasSubstr("Name A cannot contain a character of the code 0."));
	EXPECT_EQ(0, NumUndos());
}

TEST_F(FLumStructureEditTest, ANodeThatIsGoneHasNoScopes)
{
	UK2Node_CustomEvent* const Event = NewObject<UK2Node_CustomEvent>(EventGraph);
	const TSharedRef<FLumNodeCompound> Compound = FLumNodeCompound::Create(*Event);
	EXPECT_EQ(2, Compound->GetVariableScopes().GetValue().Num());
	Event->MarkAsGarbage();
	EXPECT_EQ("Read Error: Node object is not valid", ErrorTextOf(Compound->GetVariableScopes()));
}

TEST_F(FLumStructureEditTest, ADescriptorIsWrittenAndReadBackWithItsFlags)
{
	FLumVarDesc Desc = MakeDesc(TEXT("member"), TEXT("A"), TEXT("int"));
	Desc.Flags.Add(ELumVarFlag::Private, false);
	Desc.Flags.Add(ELumVarFlag::InstanceEditable, true);
	const FLumVarDesc Read = FLumVarDesc::FromJson(Desc.ToJson());
	EXPECT_EQ(2, Read.Flags.Num());
	EXPECT_TRUE(Read.Flags.FindChecked(ELumVarFlag::InstanceEditable));
	EXPECT_FALSE(Read.Flags.FindChecked(ELumVarFlag::Private));
	EXPECT_EQ(3, MakeDesc(TEXT("member"), TEXT("A"), TEXT("int")).ToJson()->Values.Num());
}

TEST_F(FLumStructureEditTest, AFailedEditLeavesThePackageAsItWas)
{
	UPackage* const Package = Blueprint->GetPackage();
	Package->SetDirtyFlag(false);
	const FString Before = TakeText();
	const TSharedRef<ILumCompound> Compound = ILumCompound::Create(*Blueprint);
	EXPECT_TRUE(Compound->AddVariable(MakeDesc(TEXT("member"), TEXT("Heal"), TEXT("int"))).HasError());
	EXPECT_TRUE(FLumGraphCompound(*FindGraph(TEXT("Heal"))).AddVariable(MakeDesc(TEXT("out"), TEXT("Amount"), TEXT("int"))).HasError());
	EXPECT_TRUE(FLumGraphCompound(*FindGraph(TEXT("Plain"))).AddVariable(MakeDesc(TEXT("out"), TEXT("A"), TEXT("exec"))).HasError());
	EXPECT_TRUE(FLumHelper::RenameGraph(*FindGraph(TEXT("Heal")), TEXT("Plain")).HasError());
	EXPECT_TRUE(FLumHelper::AddGraphToBlueprint(*Blueprint, TEXT("Heal"), GT_Function).HasError());
	EXPECT_FALSE(Package->IsDirty());
	EXPECT_EQ("", ToStd(DescribeDifference(Before, TakeText())));
	EXPECT_EQ(0, NumUndos());
}

TEST_F(FLumStructureEditTest, UsesOfTheModelOutsideACallAreMarkedAtOnce)
{
	const TSharedRef<ILumCompound> Compound = ILumCompound::Create(*Blueprint);
	ASSERT_EQ("no error", ErrorTextOf(Compound->AddVariable(MakeDesc(TEXT("member"), TEXT("Fresh"), TEXT("int")))));
	EXPECT_NE(nullptr, Blueprint->SkeletonGeneratedClass->FindPropertyByName(TEXT("Fresh")));
	EXPECT_FALSE(Blueprint->bBeingCompiled);
	EXPECT_EQ(1, NumUndos());
}
}
