#include "Blueprint/Builders/VexelBlueprintNodeTypeIdBuilder.h"
#include "K2Node_CallFunction.h"
#include "K2Node_ComponentBoundEvent.h"
#include "K2Node_MacroInstance.h"
#include "K2Node_SpawnActorFromClass.h"
#include "K2Node_TemporaryVariable.h"
#include "EdGraphSchema_K2.h"
#include "GameFramework/Actor.h"
#include "Kismet2/BlueprintEditorUtils.h"
#include "LumTestBlueprint.h"

namespace
{
class FNodeTypeRuleTest : public FLumTest
{
protected:
	std::string IdOf(const UEdGraphNode& Node) { return ToStd(Mapping.MakeNodeTypeReference(Node).ToString()); }
};

TEST_F(FNodeTypeRuleTest, SubclassHasTheRuleOfItsNearestAncestor)
{
	const TCHAR* const Function =
		TEXT("(MemberParent=\"/Script/CoreUObject.Class'/Script/Engine.KismetArrayLibrary'\",MemberName=\"Array_Add\")");
	const UEdGraphNode& Array = AddBareNode(TEXT("K2Node_CallArrayFunction"), TEXT("FunctionReference"), Function);
	EXPECT_EQ("call.KismetArrayLibrary.Array_Add", IdOf(Array));
	EXPECT_EQ("call.KismetArrayLibrary.Array_Add", IdOf(Array));
	EXPECT_EQ("event.Actor.ReceiveTick",
		IdOf(AddBareNode(TEXT("K2Node_ActorBoundEvent"), TEXT("EventReference"),
			TEXT("(MemberParent=\"/Script/CoreUObject.Class'/Script/Engine.Actor'\",MemberName=\"ReceiveTick\")"))));
}

TEST_F(FNodeTypeRuleTest, ClassWhoseChainHasNoRuleIsLoggedAtEachLookup)
{
	for (int32 Times = 1; Times <= 2; ++Times)
	{
		EXPECT_EQ("", IdOf(AddBareNode(TEXT("K2Node_Composite"))));
		EXPECT_EQ(Times,
			Log.Count(
				"No handler found for node class 'K2Node_Composite' (K2Node_Composite -> K2Node_Tunnel -> K2Node_EditablePinBase -> K2Node -> EdGraphNode -> Object)"));
	}
	EXPECT_TRUE(FVexelBlueprintNodeTypeIdBuilder::Create(nullptr, Mapping).IsEmpty());
}

TEST_F(FNodeTypeRuleTest, AxisKeyCallOfAnotherClassIsRefused)
{
	const TCHAR* const Function =
		TEXT("(MemberParent=\"/Script/CoreUObject.Class'/Script/Engine.Actor'\",MemberName=\"GetInputAxisKeyValue\")");
	const UEdGraphNode& Plain = AddBareNode(TEXT("K2Node_CallFunction"), TEXT("FunctionReference"), Function);
	EXPECT_EQ("", IdOf(Plain));
	EXPECT_TRUE(Log.Contains("MakeNodeTypeReference: UK2Node_CallFunction '" + ToStd(Plain.GetName()) +
		"' is a GetInputAxisKeyValue call, which should be handled by UK2Node_GetInputAxisValue!"));
	const UEdGraphNode& WithoutAxis = AddBareNode(TEXT("K2Node_GetInputAxisKeyValue"), TEXT("FunctionReference"), Function);
	EXPECT_EQ("", IdOf(WithoutAxis));
	EXPECT_TRUE(Log.Contains("is not of the expected class! Expected: K2Node_GetInputAxisKeyValue, Actual: K2Node_GetInputAxisKeyValue"))
		<< Log.ToText();
}

TEST_F(FNodeTypeRuleTest, CallOnOneselfIsNamedByTheClassThatHasTheFunction)
{
	EXPECT_EQ("call.Actor.K2_GetActorLocation",
		IdOf(AddBareNode(
			TEXT("K2Node_CallFunction"), TEXT("FunctionReference"), TEXT("(MemberName=\"K2_GetActorLocation\",bSelfContext=True)"))));
}

TEST_F(FNodeTypeRuleTest, TemporaryIsNamedByItsType)
{
	UK2Node_TemporaryVariable& Node = *CastChecked<UK2Node_TemporaryVariable>(&AddBareNode(TEXT("K2Node_TemporaryVariable")));
	Node.VariableType.PinCategory = UEdGraphSchema_K2::PC_Int;
	Node.VariableType.ContainerType = EPinContainerType::Array;
	EXPECT_EQ("var.make_temp.array|int", IdOf(Node));
	Node.bIsPersistent = true;
	EXPECT_EQ("var.make_temp_persistent.array|int", IdOf(Node));
}

TEST_F(FNodeTypeRuleTest, ComponentEventNeedsItsOwnersClass)
{
	UK2Node_ComponentBoundEvent& Event = *CastChecked<UK2Node_ComponentBoundEvent>(&AddBareNode(TEXT("K2Node_ComponentBoundEvent")));
	Event.DelegatePropertyName = TEXT("OnActorHit");
	Event.ComponentPropertyName = TEXT("Box");
	EXPECT_EQ("", IdOf(Event));
	EXPECT_TRUE(Log.Contains("MakeNodeTypeReference: UK2Node_Event '" + ToStd(Event.GetName()) + "' has no event class!"));
	Event.DelegateOwnerClass = AActor::StaticClass();
	EXPECT_EQ("event.Actor.OnActorHit.Box", IdOf(Event));
}

TEST_F(FNodeTypeRuleTest, SpawnIsNamedByTheClassThatItsPinHolds)
{
	UK2Node_SpawnActorFromClass& Spawn = Place<UK2Node_SpawnActorFromClass>();
	EXPECT_EQ("call.spawn_actor", IdOf(Spawn));
	UEdGraphPin* const Class = Spawn.FindPin(TEXT("Class"));
	ASSERT_NE(nullptr, Class);
	Class->DefaultObject = AActor::StaticClass();
	EXPECT_EQ("call.spawn_actor.Actor", IdOf(Spawn));
}

TEST_F(FNodeTypeRuleTest, MacroIsNamedByItsGraph)
{
	UEdGraph* const Graph =
		FBlueprintEditorUtils::CreateNewGraph(Blueprint, TEXT("Twice"), UEdGraph::StaticClass(), UEdGraphSchema_K2::StaticClass());
	FBlueprintEditorUtils::AddMacroGraph(Blueprint, Graph, true, nullptr);
	UK2Node_MacroInstance& Macro = *CastChecked<UK2Node_MacroInstance>(&AddBareNode(TEXT("K2Node_MacroInstance")));
	Macro.SetMacroGraph(Graph);
	EXPECT_EQ("macro.Twice", IdOf(Macro));
	UEdGraph* Found = nullptr;
	EXPECT_TRUE(Mapping.ResolveGraphInBlueprint(TVexelGraphId(TEXT("TWICE")), *Blueprint, Found));
	EXPECT_EQ(Graph, Found);
}

TEST_F(FNodeTypeRuleTest, BlueprintPathsThatNameNoneAreRefused)
{
	for (const TCHAR* const Path : {TEXT(""), TEXT("None"), TEXT("/"), TEXT("//"), TEXT("."), TEXT("/Game"), TEXT("/Game/"),
			 TEXT("/Game/.."), TEXT("../../../etc/passwd"), TEXT("/Game/../../x.x"), TEXT("C:\\x"), TEXT("/Script/Engine.Actor"),
			 TEXT("/Script/Engine"), TEXT("/Game/A.B.C.D"), TEXT("/Game/A:B:C"), TEXT("ref|/Game/A.A"), TEXT("/Game/%s%n.%s"),
			 TEXT("/Game/a b\"c'.d"), TEXT("/Game/\u4e2d.\u4e2d")})
	{
		UBlueprint* Found = Blueprint;
		Log.Clear();
		EXPECT_FALSE(Mapping.ResolveBlueprint(TVexelBlueprintId(Path), Found)) << TCHAR_TO_UTF8(Path);
		EXPECT_EQ(Blueprint, Found);
		EXPECT_EQ(1, Log.Count("Failed to resolve blueprint at path: " + ToStd(Path))) << TCHAR_TO_UTF8(Path);
	}
	UBlueprint* Found = nullptr;
	EXPECT_FALSE(Mapping.ResolveBlueprint(TVexelBlueprintId(TEXT("/Game/") + FString::ChrN(100000, TEXT('x'))), Found));
	EXPECT_FALSE(Mapping.ResolveBlueprint(TVexelBlueprintId(FString::ChrN(100000, TEXT('/'))), Found));
}

TEST_F(FNodeTypeRuleTest, SavedNamesThatAreNoPairsAreLeftOut)
{
	const UEdGraphNode& Node = AddBareNode(TEXT("K2Node_IfThenElse"));
	const FString Guid = Node.NodeGuid.ToString(EGuidFormats::Digits);
	const TSharedRef<FJsonObject> Names = MakeShared<FJsonObject>();
	Names->SetStringField(TEXT("no guid"), TEXT("A_0"));
	Names->SetStringField(TEXT("00000000000000000000000000000001"), TEXT("Taken_0"));
	Names->SetStringField(TEXT("00000000000000000000000000000002"), TEXT("TAKEN_0"));
	Names->SetStringField(TEXT("00000000000000000000000000000003"), TEXT(""));
	Names->SetField(TEXT("00000000000000000000000000000004"), MakeShared<FJsonValueNull>());
	Names->SetStringField(Guid, TEXT("Mine_7"));
	const TSharedRef<FJsonObject> Saved = MakeShared<FJsonObject>();
	Saved->SetObjectField(TEXT("node_agent_names"), Names);
	Mapping.FromJson(Saved);
	EXPECT_EQ("Mine_7", ToStd(Mapping.MakeNodeReference(Node, false).ToString()));
	EXPECT_EQ(2, Mapping.ToJson()->GetObjectField(TEXT("node_agent_names"))->Values.Num());
	Saved->SetStringField(TEXT("node_agent_names"), TEXT("no object"));
	Mapping.FromJson(Saved);
	EXPECT_EQ("Mine_7", ToStd(Mapping.MakeNodeReference(Node, false).ToString()));
}
}
