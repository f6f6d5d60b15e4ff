#include "Blueprint/Builders/VexelBlueprintNodeTypeIdBuilder.h"
#include "Blueprint/Builders/VexelBlueprintPropTypeBuilder.h"
#include "Blueprint/Builders/VexelNodeTypeDescription.h"
#include "EdGraphSchema_K2.h"
#include "GameFramework/Actor.h"
#include "LumTestBlueprint.h"

namespace
{
class FBlueprintIdsTest : public FLumTest
{
};

struct FNodeCase
{
	const TCHAR* ClassName;
	const TCHAR* Property;
	const TCHAR* Text;
	const char* ExpectedId;
};

const TCHAR* const AddInts =
	TEXT("(MemberParent=\"/Script/CoreUObject.Class'/Script/Engine.KismetMathLibrary'\",MemberName=\"Add_IntInt\")");
const TCHAR* const AddDoubles =
	TEXT("(MemberParent=\"/Script/CoreUObject.Class'/Script/Engine.KismetMathLibrary'\",MemberName=\"Add_DoubleDouble\")");
const TCHAR* const BeginPlay = TEXT("(MemberParent=\"/Script/CoreUObject.Class'/Script/Engine.Actor'\",MemberName=\"ReceiveBeginPlay\")");
const TCHAR* const OwnHealth = TEXT("(MemberName=\"Health\",bSelfContext=True)");
const TCHAR* const LocalHealth = TEXT("(MemberScope=\"Heal\",MemberName=\"Health\")");
const TCHAR* const ActorInstigator = TEXT("(MemberParent=\"/Script/CoreUObject.Class'/Script/Engine.Actor'\",MemberName=\"Instigator\")");
const TCHAR* const ActorHit = TEXT("(MemberParent=\"/Script/CoreUObject.Class'/Script/Engine.Actor'\",MemberName=\"OnActorHit\")");
const TCHAR* const ActorClass = TEXT("/Script/CoreUObject.Class'/Script/Engine.Actor'");
const TCHAR* const VectorStruct = TEXT("/Script/CoreUObject.ScriptStruct'/Script/CoreUObject.Vector'");
const TCHAR* const SomeEnum = TEXT("/Script/CoreUObject.Enum'/Script/Engine.ECollisionChannel'");

const FNodeCase NodeCases[] = {
	{TEXT("K2Node_CallFunction"), TEXT("FunctionReference"), AddInts, "call.KismetMathLibrary.Add_IntInt"},
	{TEXT("K2Node_CommutativeAssociativeBinaryOperator"), TEXT("FunctionReference"), AddInts, "call.KismetMathLibrary.Add_IntInt"},
	{TEXT("K2Node_PromotableOperator"), TEXT("FunctionReference"), AddDoubles, "call.op.Add"},
	{TEXT("K2Node_CallParentFunction"), TEXT("FunctionReference"), BeginPlay, "call.super"},
	{TEXT("K2Node_Message"), TEXT("FunctionReference"), AddInts, "call.interface.KismetMathLibrary.Add_IntInt"},
	{TEXT("K2Node_GetInputAxisKeyValue"), TEXT("InputAxisKey"), TEXT("MouseX"), "call.GetInputAxisKeyValue.MouseX"},
	{TEXT("K2Node_Event"), TEXT("EventReference"), BeginPlay, "event.Actor.ReceiveBeginPlay"},
	{TEXT("K2Node_CustomEvent"), nullptr, nullptr, "event.custom"},
	{TEXT("K2Node_BreakStruct"), TEXT("StructType"), VectorStruct, "struct.break.Vector"},
	{TEXT("K2Node_MakeStruct"), TEXT("StructType"), VectorStruct, "struct.make.Vector"},
	{TEXT("K2Node_SetFieldsInStruct"), TEXT("StructType"), VectorStruct, "struct.set_members.Vector"},
	{TEXT("K2Node_VariableGet"), TEXT("VariableReference"), OwnHealth, "var.get.Health"},
	{TEXT("K2Node_VariableGet"), TEXT("VariableReference"), LocalHealth, "var.local.get.Health"},
	{TEXT("K2Node_VariableGet"), TEXT("VariableReference"), ActorInstigator, "var.get.Actor.Instigator"},
	{TEXT("K2Node_VariableSet"), TEXT("VariableReference"), OwnHealth, "var.set.Health"},
	{TEXT("K2Node_VariableSet"), TEXT("VariableReference"), LocalHealth, "var.local.set.Health"},
	{TEXT("K2Node_Self"), nullptr, nullptr, "var.self"},
	{TEXT("K2Node_DynamicCast"), TEXT("TargetType"), ActorClass, "cast.Actor"},
	{TEXT("K2Node_ClassDynamicCast"), TEXT("TargetType"), ActorClass, "cast.class.Actor"},
	{TEXT("K2Node_CastByteToEnum"), TEXT("Enum"), SomeEnum, "cast.byte_to_enum.ECollisionChannel"},
	{TEXT("K2Node_AddDelegate"), TEXT("DelegateReference"), ActorHit, "delegate.add.Actor.OnActorHit"},
	{TEXT("K2Node_AssignDelegate"), TEXT("DelegateReference"), ActorHit, "delegate.assign.Actor.OnActorHit"},
	{TEXT("K2Node_RemoveDelegate"), TEXT("DelegateReference"), ActorHit, "delegate.remove.Actor.OnActorHit"},
	{TEXT("K2Node_ClearDelegate"), TEXT("DelegateReference"), ActorHit, "delegate.clear.Actor.OnActorHit"},
	{TEXT("K2Node_CallDelegate"), TEXT("DelegateReference"), ActorHit, "delegate.call.Actor.OnActorHit"},
	{TEXT("K2Node_CreateDelegate"), TEXT("SelectedFunctionName"), TEXT("Open"), "delegate.create.Open"},
	{TEXT("K2Node_EnumLiteral"), TEXT("Enum"), SomeEnum, "enum.literal.ECollisionChannel"},
	{TEXT("K2Node_ForEachElementInEnum"), TEXT("Enum"), SomeEnum, "enum.foreach.ECollisionChannel"},
	{TEXT("K2Node_SwitchEnum"), TEXT("Enum"), SomeEnum, "enum.switch.ECollisionChannel"},
	{TEXT("K2Node_EnumEquality"), nullptr, nullptr, "enum.equal"},
	{TEXT("K2Node_Literal"), nullptr, nullptr, "literal.value"},
	{TEXT("K2Node_InputKey"), TEXT("InputKey"), TEXT("F"), "input.key.F"},
	{TEXT("K2Node_InputDebugKey"), TEXT("InputKey"), TEXT("F"), "input.debug_key.F"},
	{TEXT("K2Node_InputAxisEvent"), TEXT("InputAxisName"), TEXT("MoveForward"), "input.axis.MoveForward"},
	{TEXT("K2Node_InputAxisKeyEvent"), TEXT("AxisKey"), TEXT("MouseX"), "input.axis.MouseX"},
	{TEXT("K2Node_InputTouch"), nullptr, nullptr, "input.touch"},
	{TEXT("K2Node_Knot"), nullptr, nullptr, "graph.knot"},
	{TEXT("EdGraphNode_Comment"), nullptr, nullptr, "graph.comment"},
	{TEXT("K2Node_FunctionEntry"), nullptr, nullptr, "graph.entry"},
	{TEXT("K2Node_FunctionResult"), nullptr, nullptr, "graph.return"},
	{TEXT("K2Node_IfThenElse"), nullptr, nullptr, "flow.if"},
	{TEXT("K2Node_Select"), nullptr, nullptr, "flow.select"},
	{TEXT("K2Node_ExecutionSequence"), nullptr, nullptr, "flow.sequence"},
	{TEXT("K2Node_MultiGate"), nullptr, nullptr, "flow.multigate"},
	{TEXT("K2Node_MakeArray"), nullptr, nullptr, "make.array"},
	{TEXT("K2Node_GetArrayItem"), TEXT("bReturnByRefDesired"), TEXT("False"), "array.get"},
	{TEXT("K2Node_GetArrayItem"), TEXT("bReturnByRefDesired"), TEXT("True"), "array.get_ref"},
	{TEXT("K2Node_SwitchInteger"), nullptr, nullptr, "switch.integer"},
	{TEXT("K2Node_SwitchName"), nullptr, nullptr, "switch.name"},
	{TEXT("K2Node_SwitchString"), nullptr, nullptr, "switch.string"},
	{TEXT("K2Node_FormatText"), nullptr, nullptr, "text.format"},
	{TEXT("K2Node_Timeline"), TEXT("TimelineName"), TEXT("Slide"), "timeline.Slide"},
	{TEXT("K2Node_SpawnActorFromClass"), nullptr, nullptr, "call.spawn_actor"},
};

TEST_F(FBlueprintIdsTest, EachKindOfNodeHasItsId)
{
	for (const FNodeCase& Case : NodeCases)
	{
		const UEdGraphNode& Node = AddBareNode(Case.ClassName, Case.Property, Case.Text);
		EXPECT_EQ(Case.ExpectedId, ToStd(Mapping.MakeNodeTypeReference(Node).ToString())) << TCHAR_TO_UTF8(Case.ClassName);
	}
}

struct FIncompleteCase
{
	const TCHAR* ClassName;
	const char* Complaint;
};

TEST_F(FBlueprintIdsTest, NodeThatLacksWhatItsIdNamesHasNoIdAndIsLogged)
{
	const FIncompleteCase Cases[] = {
		{TEXT("K2Node_AddComponent"), "UK2Node_AddComponent '%s' has no template type!"},
		{TEXT("K2Node_GetSubsystem"), "UK2Node_GetSubsystem '%s' has no custom class!"},
		{TEXT("K2Node_MakeStruct"), "UK2Node_MakeStruct '%s' has no struct type!"},
		{TEXT("K2Node_VariableSet"), "UK2Node_VariableSet '%s' has no variable source class!"},
		{TEXT("K2Node_DynamicCast"), "UK2Node_DynamicCast '%s' has no target type!"},
		{TEXT("K2Node_MacroInstance"), "UK2Node_MacroInstance '%s' has no macro graph!"},
		{TEXT("K2Node_SwitchEnum"), "K2Node_SwitchEnum '%s' has no enum type!"},
		{TEXT("K2Node_InputDebugKey"), "K2Node_InputDebugKey '%s' has no input key!"},
		{TEXT("K2Node_AsyncAction"), "UK2Node_BaseAsyncTask '%s' has no proxy factory class or function!"},
	};
	for (const FIncompleteCase& Case : Cases)
	{
		const UEdGraphNode& Node = AddBareNode(Case.ClassName);
		EXPECT_TRUE(Mapping.MakeNodeTypeReference(Node).IsEmpty()) << TCHAR_TO_UTF8(Case.ClassName);
		const FString Complaint = FString(UTF8_TO_TCHAR(Case.Complaint)).Replace(TEXT("%s"), *Node.GetName());
		EXPECT_TRUE(Log.Contains("MakeNodeTypeReference: " + ToStd(Complaint))) << Log.ToText();
	}
}

TEST_F(FBlueprintIdsTest, NodeClassWithoutARuleIsLoggedWithItsChain)
{
	const UEdGraphNode& Node = AddBareNode(TEXT("K2Node_Tunnel"));
	EXPECT_TRUE(Mapping.MakeNodeTypeReference(Node).IsEmpty());
	EXPECT_EQ(1,
		Log.Count(
			"No handler found for node class 'K2Node_Tunnel' (K2Node_Tunnel -> K2Node_EditablePinBase -> K2Node -> EdGraphNode -> Object)"));
}

TEST_F(FBlueprintIdsTest, OwnerPrefixLeavesOutWhatTheCompilerAdds)
{
	EXPECT_EQ("", ToStd(FVexelBlueprintNodeTypeIdBuilder::MakeOwnerPrefix(nullptr)));
	EXPECT_EQ("Actor.", ToStd(FVexelBlueprintNodeTypeIdBuilder::MakeOwnerPrefix(AActor::StaticClass())));
	EXPECT_EQ(ToStd(Blueprint->GetName()) + ".", ToStd(FVexelBlueprintNodeTypeIdBuilder::MakeOwnerPrefix(Blueprint->GeneratedClass)));
	EXPECT_EQ(ToStd(Blueprint->GetName()) + ".", ToStd(FVexelBlueprintNodeTypeIdBuilder::MakeOwnerPrefix(Blueprint->SkeletonGeneratedClass)));
}

TEST_F(FBlueprintIdsTest, TypeIdsReadBackAsTheSameType)
{
	for (const TCHAR* const Id : {TEXT("bool"), TEXT("int"), TEXT("real"), TEXT("string"), TEXT("text"), TEXT("exec"), TEXT("byte"),
			 TEXT("object.Actor"), TEXT("class.Actor"), TEXT("softobject.Actor"), TEXT("struct.Vector"), TEXT("enum.ECollisionChannel"),
			 TEXT("array|object.Actor"), TEXT("set|name"), TEXT("map|string,object.Actor")})
	{
		FEdGraphPinType Type;
		ASSERT_TRUE(Mapping.ResolvePropType(TVexelPropTypeId(Id), Type)) << TCHAR_TO_UTF8(Id);
		EXPECT_EQ(TCHAR_TO_UTF8(Id), ToStd(Mapping.MakePropTypeReference(Type, nullptr).ToString()));
	}
}

TEST_F(FBlueprintIdsTest, MapIdNamesKeyAndValue)
{
	for (const TCHAR* const Id : {TEXT("map|string,object.Actor"), TEXT("map|string|object.Actor")})
	{
		FEdGraphPinType Type;
		ASSERT_TRUE(Mapping.ResolvePropType(TVexelPropTypeId(Id), Type));
		EXPECT_TRUE(Type.IsMap());
		EXPECT_EQ(UEdGraphSchema_K2::PC_String, Type.PinCategory);
		EXPECT_EQ(UEdGraphSchema_K2::PC_Object, Type.PinValueType.TerminalCategory);
		EXPECT_EQ(AActor::StaticClass(), Type.PinValueType.TerminalSubCategoryObject.Get());
	}
}

TEST_F(FBlueprintIdsTest, TypeOfAnotherBlueprintIsFoundByItsAssetName)
{
	FEdGraphPinType Type;
	ASSERT_TRUE(Mapping.ResolvePropType(TVexelPropTypeId(TEXT("object.") + Blueprint->GetName()), Type));
	EXPECT_EQ(Blueprint->GeneratedClass.Get(), Type.PinSubCategoryObject.Get());
}

struct FBadTypeCase
{
	const TCHAR* Id;
	const char* Reference;
	const char* OfMapping;
};

TEST_F(FBlueprintIdsTest, BadTypeIdsAreRefusedWithTheReason)
{
	const FBadTypeCase Cases[] = {
		{TEXT("list|int"), "Unknown collection type 'list' in pin type reference 'list|int'",
			"Unknown collection type 'list' in pin type 'list|int'"},
		{TEXT("ref|int"), "Unknown collection type 'ref' in pin type reference 'ref|int'",
			"Unknown collection type 'ref' in pin type 'ref|int'"},
		{TEXT("map|int"), "Map pin type 'map|int' is missing value type!", "Map pin type 'map|int' is missing value type!"},
		{TEXT("map|int,"), "Map pin type 'map|int,' is missing value type!", "Map pin type 'map|int,' is missing value type!"},
		{TEXT("map|nothing,int"), "Failed to resolve pin key type 'nothing' from `map|nothing,int`",
			"Failed to resolve pin key type 'nothing' from `map|nothing,int`"},
		{TEXT("map|int,nothing"), "Failed to resolve pin value type 'nothing' from `map|int,nothing`",
			"Failed to resolve map value type 'nothing' in pin type 'map|int,nothing'"},
		{TEXT("object.NoSuchClass"), "Failed to load subcategory object 'NoSuchClass' for pin type 'object.NoSuchClass'!",
			"Failed to load subcategory object 'NoSuchClass' for pin type 'object.NoSuchClass'!"},
	};
	for (const FBadTypeCase& Case : Cases)
	{
		const TVexelExpected<FEdGraphPinType> Parsed = FVexelBlueprintPropTypeBuilder::ParseId(TVexelPropTypeId(Case.Id));
		ASSERT_TRUE(Parsed.HasError()) << TCHAR_TO_UTF8(Case.Id);
		EXPECT_EQ(Case.Reference, ToStd(Parsed.GetError().GetMessage()));
		FEdGraphPinType Type;
		Log.Clear();
		EXPECT_FALSE(Mapping.ResolvePropType(TVexelPropTypeId(Case.Id), Type));
		EXPECT_TRUE(Log.Contains(Case.OfMapping)) << Log.ToText();
	}
}

TEST_F(FBlueprintIdsTest, InterfaceWithoutItsClassAndMapWithoutAValueHaveNoId)
{
	FEdGraphPinType Type;
	Type.PinCategory = UEdGraphSchema_K2::PC_Interface;
	EXPECT_TRUE(Mapping.MakePropTypeReference(Type, nullptr).IsEmpty());
	EXPECT_TRUE(Log.Contains("Pin type 'interface' is missing subcategory object!"));
	Type.PinCategory = UEdGraphSchema_K2::PC_String;
	Type.ContainerType = EPinContainerType::Map;
	EXPECT_TRUE(Mapping.MakePropTypeReference(Type, nullptr).IsEmpty());
	EXPECT_TRUE(Log.Contains("Map type 'string' is missing value type!"));
}

TEST_F(FBlueprintIdsTest, DescriptionIsTheSentenceOfTheMostSpecificSegments)
{
	const auto Describe = [](const TCHAR* Id)
	{ return ToStd(FVexelNodeTypeDescription::MakeSentence(TVexelNodeTypeId(Id), TEXT("Odd"))); };
	EXPECT_EQ("It calls KismetSystemLibrary.PrintString.", Describe(TEXT("call.KismetSystemLibrary.PrintString")));
	EXPECT_EQ("It spawns an actor of type BP_Door in the world.", Describe(TEXT("call.spawn_actor.BP_Door")));
	EXPECT_EQ("It gets the graph/function local variable Health.", Describe(TEXT("var.local.get.Health")));
	EXPECT_EQ(
		"It performs addition operation on numbers, integers, floats, vectors. This is the preferred way of adding numbers and vectors.",
		Describe(TEXT("call.op.Add")));
	EXPECT_EQ("This is a blueprint node called Odd.", Describe(TEXT("quantum.flip")));
}
}
