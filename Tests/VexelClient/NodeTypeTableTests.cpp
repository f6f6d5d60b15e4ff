#include "AssetRegistry/AssetRegistryModule.h"
#include "Blueprint/Builders/VexelNodeTypeDescription.h"
#include "Blueprint/Builders/VexelNodeTypeRules.h"
#include "BlueprintNodeSpawner.h"
#include "EdGraphSchema_K2.h"
#include "GameFramework/Actor.h"
#include "Kismet2/BlueprintEditorUtils.h"
#include "Kismet2/KismetEditorUtilities.h"
#include "LumTestBlueprint.h"
#include "UObject/Interface.h"
#include "UObject/Package.h"

#include <algorithm>
#include <set>

// Every row of the table of node types: what id a node of the class has, and what the id makes.

namespace
{
/** The id makes a node of itself. */
const char* const Same = nullptr;
/** Nobody places such a node by itself. */
const char* const Nothing = "";

struct FNodeCase
{
	const TCHAR* ClassName;
	const TCHAR* Property;
	const TCHAR* Text;
	const char* Id;
	/** The id of the node that the id makes. */
	const char* Spawned = Same;
};

#define MEMBER_OF(Class, Name) TEXT("(MemberParent=\"/Script/CoreUObject.Class'/Script/Engine." Class "'\",MemberName=\"" Name "\")")

const TCHAR* const AddInts = MEMBER_OF("KismetMathLibrary", "Add_IntInt");
const TCHAR* const AddDoubles = MEMBER_OF("KismetMathLibrary", "Add_DoubleDouble");
const TCHAR* const BeginPlay = MEMBER_OF("Actor", "ReceiveBeginPlay");
const TCHAR* const ActorHit = MEMBER_OF("Actor", "OnActorHit");
const TCHAR* const OwnHealth = TEXT("(MemberName=\"Health\",bSelfContext=True)");
const TCHAR* const LocalAmount = TEXT("(MemberScope=\"Heal\",MemberName=\"Amount\")");
const TCHAR* const ActorClass = TEXT("/Script/CoreUObject.Class'/Script/Engine.Actor'");
const TCHAR* const Subsystem = TEXT("/Script/CoreUObject.Class'/Script/Engine.LocalPlayerSubsystem'");
const TCHAR* const SceneComponent = TEXT("/Script/CoreUObject.Class'/Script/Engine.SceneComponent'");
const TCHAR* const VectorStruct = TEXT("/Script/CoreUObject.ScriptStruct'/Script/CoreUObject.Vector'");
const TCHAR* const ColorStruct = TEXT("/Script/CoreUObject.ScriptStruct'/Script/CoreUObject.LinearColor'");
const TCHAR* const HitStruct = TEXT("/Script/CoreUObject.ScriptStruct'/Script/Engine.TimerHandle'");
const TCHAR* const Channel = TEXT("/Script/CoreUObject.Enum'/Script/Engine.ECollisionChannel'");

const FNodeCase Cases[] = {
	{TEXT("K2Node_CallFunction"), TEXT("FunctionReference"), MEMBER_OF("KismetSystemLibrary", "PrintString"),
		"call.KismetSystemLibrary.PrintString"},
	{TEXT("K2Node_CallFunction"), TEXT("FunctionReference"), AddInts, "call.KismetMathLibrary.Add_IntInt"},
	{TEXT("K2Node_CommutativeAssociativeBinaryOperator"), TEXT("FunctionReference"), AddInts, "call.KismetMathLibrary.Add_IntInt"},
	{TEXT("K2Node_PromotableOperator"), TEXT("FunctionReference"), AddDoubles, "call.op.Add"},
	{TEXT("K2Node_CallParentFunction"), TEXT("FunctionReference"), BeginPlay, "call.super"},
	{TEXT("K2Node_Message"), TEXT("FunctionReference"), AddInts, "call.interface.KismetMathLibrary.Add_IntInt", Nothing},
	{TEXT("K2Node_GetInputAxisKeyValue"), TEXT("InputAxisKey"), TEXT("MouseX"), "call.GetInputAxisKeyValue.MouseX"},
	{TEXT("K2Node_GetInputAxisValue"), TEXT("InputAxisName"), TEXT("NoSuchAxis"), "call.GetInputAxisKeyValue.NoSuchAxis", Nothing},
	{TEXT("K2Node_AddComponent"), TEXT("TemplateType"), SceneComponent, "call.add_component.SceneComponent"},
	{TEXT("K2Node_AddComponentByClass"), nullptr, nullptr, "call.add_component_by_class"},
	{TEXT("K2Node_CreateWidget"), nullptr, nullptr, "call.create_widget"},
	{TEXT("K2Node_CreateDragDropOperation"), nullptr, nullptr, "call.create_drag_drop"},
	{TEXT("K2Node_GenericCreateObject"), nullptr, nullptr, "call.create_object"},
	{TEXT("K2Node_SpawnActorFromClass"), nullptr, nullptr, "call.spawn_actor"},
	{TEXT("K2Node_GetClassDefaults"), nullptr, nullptr, "call.get_class_defaults"},
	{TEXT("K2Node_GetDataTableRow"), nullptr, nullptr, "call.get_data_table_row"},
	{TEXT("K2Node_LoadAsset"), nullptr, nullptr, "call.load_asset"},
	{TEXT("K2Node_LoadAssetClass"), nullptr, nullptr, "call.load_asset_class"},
	{TEXT("K2Node_GetSubsystem"), TEXT("CustomClass"), Subsystem, "call.get_subsystem.LocalPlayerSubsystem", Nothing},
	{TEXT("K2Node_GetSubsystemFromPC"), TEXT("CustomClass"), Subsystem, "call.get_subsystem.pc.LocalPlayerSubsystem", Nothing},
	{TEXT("K2Node_Copy"), nullptr, nullptr, "call.copy"},

	{TEXT("K2Node_Event"), TEXT("EventReference"), BeginPlay, "event.Actor.ReceiveBeginPlay"},
	{TEXT("K2Node_CustomEvent"), nullptr, nullptr, "event.custom"},

	{TEXT("K2Node_BreakStruct"), TEXT("StructType"), ColorStruct, "struct.break.LinearColor"},
	{TEXT("K2Node_BreakStruct"), TEXT("StructType"), VectorStruct, "struct.break.Vector", "call.KismetMathLibrary.BreakVector"},
	{TEXT("K2Node_MakeStruct"), TEXT("StructType"), VectorStruct, "struct.make.Vector", "call.KismetMathLibrary.MakeVector"},
	{TEXT("K2Node_MakeStruct"), TEXT("StructType"), HitStruct, "struct.make.TimerHandle", Nothing},
	{TEXT("K2Node_SetFieldsInStruct"), TEXT("StructType"), VectorStruct, "struct.set_members.Vector"},

	{TEXT("K2Node_VariableGet"), TEXT("VariableReference"), OwnHealth, "var.get.Health"},
	{TEXT("K2Node_VariableGet"), TEXT("VariableReference"), LocalAmount, "var.local.get.Amount"},
	{TEXT("K2Node_VariableGet"), TEXT("VariableReference"), MEMBER_OF("Pawn", "BaseEyeHeight"), "var.get.Pawn.BaseEyeHeight"},
	{TEXT("K2Node_VariableSet"), TEXT("VariableReference"), OwnHealth, "var.set.Health"},
	{TEXT("K2Node_VariableSet"), TEXT("VariableReference"), LocalAmount, "var.local.set.Amount"},
	{TEXT("K2Node_VariableSet"), TEXT("VariableReference"), MEMBER_OF("Pawn", "BaseEyeHeight"), "var.set.Pawn.BaseEyeHeight"},
	{TEXT("K2Node_VariableSetRef"), nullptr, nullptr, "var.set_ref"},
	{TEXT("K2Node_TemporaryVariable"), TEXT("VariableType"), TEXT("(PinCategory=\"int\",ContainerType=Array)"), "var.make_temp.array|int"},
	{TEXT("K2Node_TemporaryVariable"), TEXT("VariableType"), TEXT("(PinCategory=\"name\")"), "var.make_temp.name"},
	{TEXT("K2Node_Self"), nullptr, nullptr, "var.self"},
	{TEXT("K2Node_AssignmentStatement"), nullptr, nullptr, "var.assign"},
	{TEXT("K2Node_PropertyAccess"), nullptr, nullptr, "var.property_access"},

	{TEXT("K2Node_DynamicCast"), TEXT("TargetType"), ActorClass, "cast.Actor"},
	{TEXT("K2Node_ClassDynamicCast"), TEXT("TargetType"), ActorClass, "cast.class.Actor"},
	{TEXT("K2Node_CastByteToEnum"), TEXT("Enum"), Channel, "cast.byte_to_enum.ECollisionChannel"},

	{TEXT("K2Node_AddDelegate"), TEXT("DelegateReference"), ActorHit, "delegate.add.Actor.OnActorHit"},
	{TEXT("K2Node_AssignDelegate"), TEXT("DelegateReference"), ActorHit, "delegate.assign.Actor.OnActorHit"},
	{TEXT("K2Node_RemoveDelegate"), TEXT("DelegateReference"), ActorHit, "delegate.remove.Actor.OnActorHit"},
	{TEXT("K2Node_ClearDelegate"), TEXT("DelegateReference"), ActorHit, "delegate.clear.Actor.OnActorHit"},
	{TEXT("K2Node_CallDelegate"), TEXT("DelegateReference"), ActorHit, "delegate.call.Actor.OnActorHit", Nothing},
	{TEXT("K2Node_CreateDelegate"), TEXT("SelectedFunctionName"), TEXT("Open"), "delegate.create.Open"},

	{TEXT("K2Node_EnumLiteral"), TEXT("Enum"), Channel, "enum.literal.ECollisionChannel"},
	{TEXT("K2Node_ForEachElementInEnum"), TEXT("Enum"), Channel, "enum.foreach.ECollisionChannel"},
	{TEXT("K2Node_GetNumEnumEntries"), TEXT("Enum"), Channel, "enum.get_num.ECollisionChannel"},
	{TEXT("K2Node_SwitchEnum"), TEXT("Enum"), Channel, "enum.switch.ECollisionChannel"},
	{TEXT("K2Node_EnumEquality"), nullptr, nullptr, "enum.equal"},
	{TEXT("K2Node_EnumInequality"), nullptr, nullptr, "enum.not_equal"},
	{TEXT("K2Node_GetEnumeratorName"), nullptr, nullptr, "enum.get_name"},
	{TEXT("K2Node_GetEnumeratorNameAsString"), nullptr, nullptr, "enum.get_name_string"},

	{TEXT("K2Node_Literal"), nullptr, nullptr, "literal.value", Nothing},
	{TEXT("K2Node_Literal"), TEXT("ObjectRef"), ActorClass, "literal.Actor", Nothing},
	{TEXT("K2Node_BitmaskLiteral"), nullptr, nullptr, "literal.bitmask"},
	{TEXT("K2Node_BitmaskLiteral"), TEXT("BitflagsEnum"), Channel, "literal.bitmask.ECollisionChannel"},

	{TEXT("K2Node_InputKey"), TEXT("InputKey"), TEXT("F"), "input.key.F"},
	{TEXT("K2Node_InputDebugKey"), TEXT("InputKey"), TEXT("F"), "input.debug_key.F"},
	{TEXT("K2Node_InputAxisEvent"), TEXT("InputAxisName"), TEXT("NoSuchAxis"), "input.axis.NoSuchAxis", Nothing},
	{TEXT("K2Node_InputAxisKeyEvent"), TEXT("AxisKey"), TEXT("MouseX"), "input.axis.MouseX"},
	{TEXT("K2Node_InputTouch"), nullptr, nullptr, "input.touch"},
	{TEXT("K2Node_EnhancedInputAction"), nullptr, nullptr, "input.enhanced"},
	{TEXT("K2Node_GetInputActionValue"), nullptr, nullptr, "input.get_action_value"},

	{TEXT("K2Node_Knot"), nullptr, nullptr, "graph.knot"},
	{TEXT("EdGraphNode_Comment"), nullptr, nullptr, "graph.comment"},
	{TEXT("EdGraphNode_Documentation"), nullptr, nullptr, "graph.docs"},
	{TEXT("K2Node_FunctionEntry"), nullptr, nullptr, "graph.entry", Nothing},
	{TEXT("K2Node_FunctionResult"), nullptr, nullptr, "graph.return"},
	{TEXT("K2Node_IfThenElse"), nullptr, nullptr, "flow.if"},
	{TEXT("K2Node_Select"), nullptr, nullptr, "flow.select"},
	{TEXT("K2Node_ExecutionSequence"), nullptr, nullptr, "flow.sequence"},
	{TEXT("K2Node_MultiGate"), nullptr, nullptr, "flow.multigate"},
	{TEXT("K2Node_DoOnceMultiInput"), nullptr, nullptr, "flow.do_once_multi"},
	{TEXT("K2Node_MakeArray"), nullptr, nullptr, "make.array"},
	{TEXT("K2Node_MakeMap"), nullptr, nullptr, "make.map"},
	{TEXT("K2Node_MakeSet"), nullptr, nullptr, "make.set"},
	{TEXT("K2Node_GetArrayItem"), TEXT("bReturnByRefDesired"), TEXT("False"), "array.get"},
	{TEXT("K2Node_GetArrayItem"), TEXT("bReturnByRefDesired"), TEXT("True"), "array.get_ref"},
	{TEXT("K2Node_MapForEach"), nullptr, nullptr, "foreach.map"},
	{TEXT("K2Node_SetForEach"), nullptr, nullptr, "foreach.set"},
	{TEXT("K2Node_SwitchInteger"), nullptr, nullptr, "switch.integer"},
	{TEXT("K2Node_SwitchName"), nullptr, nullptr, "switch.name"},
	{TEXT("K2Node_SwitchString"), nullptr, nullptr, "switch.string"},
	{TEXT("K2Node_FormatText"), nullptr, nullptr, "text.format"},
	{TEXT("K2Node_GenericToText"), nullptr, nullptr, "text.to_text"},
	{TEXT("K2Node_EaseFunction"), nullptr, nullptr, "math.ease"},
	{TEXT("K2Node_MathExpression"), nullptr, nullptr, "math.expression"},
	{TEXT("K2Node_Timeline"), nullptr, nullptr, "timeline", "timeline.Timeline"},
	{TEXT("K2Node_Timeline"), TEXT("TimelineName"), TEXT("Slide"), "timeline.Slide"},
	{TEXT("K2Node_ConvertAsset"), nullptr, nullptr, "convert.asset"},

	{TEXT("GameplayTagsK2Node_MultiCompareGameplayTagAssetInterface"), nullptr, nullptr, "gameplay_tags.multi_compare_asset_interface"},
	{TEXT("GameplayTagsK2Node_MultiCompareGameplayTagAssetInterfaceSingleTags"), nullptr, nullptr,
		"gameplay_tags.multi_compare_asset_interface_single"},
	{TEXT("GameplayTagsK2Node_MultiCompareGameplayTagContainer"), nullptr, nullptr, "gameplay_tags.multi_compare_container"},
	{TEXT("GameplayTagsK2Node_MultiCompareGameplayTagContainerSingleTags"), nullptr, nullptr,
		"gameplay_tags.multi_compare_container_single"},
	{TEXT("GameplayTagsK2Node_SwitchGameplayTag"), nullptr, nullptr, "gameplay_tags.switch_tag"},
	{TEXT("GameplayTagsK2Node_SwitchGameplayTagContainer"), nullptr, nullptr, "gameplay_tags.switch_container"},
	{TEXT("K2Node_StateTreeBlueprintPropertyRef"), nullptr, nullptr, "state_tree.property_ref"},
	{TEXT("K2Node_StateTreeNodeGetPropertyDescription"), nullptr, nullptr, "state_tree.get_property_description"},
	{TEXT("K2Node_MakeStateTreeReference"), nullptr, nullptr, "state_tree.make_reference"},
	{TEXT("K2Node_EvaluateLiveLinkFrameWithSpecificRole"), nullptr, nullptr, "livelink.evaluate_frame_with_role"},
	{TEXT("K2Node_EvaluateLiveLinkFrameAtWorldTime"), nullptr, nullptr, "livelink.evaluate_frame_at_world_time"},
	{TEXT("K2Node_EvaluateLiveLinkFrameAtSceneTime"), nullptr, nullptr, "livelink.evaluate_frame_at_scene_time"},
	{TEXT("K2Node_UpdateVirtualSubjectStaticData"), nullptr, nullptr, "livelink.update_virtual_subject_static_data"},
	{TEXT("K2Node_UpdateVirtualSubjectFrameData"), nullptr, nullptr, "livelink.update_virtual_subject_frame_data"},
	{TEXT("K2Node_GetSequenceBinding"), nullptr, nullptr, "sequencer.get_binding"},
	{TEXT("K2Node_SetCameraRigParameters"), nullptr, nullptr, "camera_rig.set_parameters"},
};

/** Rules whose nodes are about what the test has to make first; each has a test of its own. */
const TCHAR* const TestedApart[] = {TEXT("K2Node_ComponentBoundEvent"), TEXT("K2Node_BaseAsyncTask"), TEXT("K2Node_MacroInstance")};

class FNodeTypeTableTest : public FLumTest
{
protected:
	virtual void SetUp() override
	{
		FLumTest::SetUp();
		FEdGraphPinType Int;
		Int.PinCategory = UEdGraphSchema_K2::PC_Int;
		Heal = FBlueprintEditorUtils::CreateNewGraph(Blueprint, TEXT("Heal"), UEdGraph::StaticClass(), UEdGraphSchema_K2::StaticClass());
		FBlueprintEditorUtils::AddFunctionGraph<UClass>(Blueprint, Heal, true, nullptr);
		ASSERT_TRUE(FBlueprintEditorUtils::AddMemberVariable(Blueprint, TEXT("Health"), Int));
		ASSERT_TRUE(FBlueprintEditorUtils::AddLocalVariable(Blueprint, Heal, TEXT("Amount"), Int));
	}

	/** The graph in which a node of the id can stand. */
	UEdGraph* ChooseGraph(const FString& Id)
	{
		if (Id == TEXT("call.super"))
		{
			return FBlueprintEditorUtils::FindUserConstructionScript(Blueprint);
		}
		return Id.StartsWith(TEXT("var.local.")) || Id == TEXT("graph.return") ? Heal : EventGraph;
	}

	UEdGraphNode* Spawn(const FString& Id)
	{
		UEdGraph* const Graph = ChooseGraph(Id);
		UBlueprintNodeSpawner* Spawner = nullptr;
		return Mapping.ResolveNodeTypeForGraph(TVexelNodeTypeId(Id), *Graph, Spawner)
			? Spawner->Invoke(Graph, IBlueprintNodeBinder::FBindingSet(), FVector2D(0, 0))
			: nullptr;
	}

	/** The id of the node that the id makes; empty where it makes none. */
	std::string SpawnedId(const FString& Id)
	{
		const UEdGraphNode* const Node = Spawn(Id);
		return Node ? IdOf(*Node) : std::string();
	}

	std::string IdOf(const UEdGraphNode& Node) { return ToStd(Mapping.MakeNodeTypeReference(Node).ToString()); }

	UEdGraph* Heal = nullptr;
};

TEST_F(FNodeTypeTableTest, EachKindOfNodeHasItsIdAndTheIdMakesOneAgain)
{
	for (const FNodeCase& Case : Cases)
	{
		SCOPED_TRACE(TCHAR_TO_UTF8(Case.ClassName));
		const UEdGraphNode& Node = AddBareNode(Case.ClassName, Case.Property, Case.Text);
		EXPECT_EQ(Case.Id, IdOf(Node));
		EventGraph->RemoveNode(const_cast<UEdGraphNode*>(&Node));
		EXPECT_EQ(Case.Spawned ? Case.Spawned : Case.Id, SpawnedId(FString(UTF8_TO_TCHAR(Case.Id))));
		UBlueprintNodeSpawner* Spawner = nullptr;
		const TVexelNodeTypeId Capitals(FString(UTF8_TO_TCHAR(Case.Id)).ToUpper());
		UEdGraph* const Graph = ChooseGraph(Capitals.ToString());
		EXPECT_EQ(Case.Spawned != Nothing, Mapping.ResolveNodeTypeForGraph(Capitals, *Graph, Spawner)) << "in capitals";
	}
}

TEST_F(FNodeTypeTableTest, EveryRuleIsTested)
{
	std::set<std::string> Tested;
	for (const FNodeCase& Case : Cases)
	{
		Tested.insert(TCHAR_TO_UTF8(Case.ClassName));
	}
	for (const TCHAR* const ClassName : TestedApart)
	{
		Tested.insert(TCHAR_TO_UTF8(ClassName));
	}
	std::set<std::string> Rules;
	TMap<FName, FVexelNodeTypeRule> Collected;
	FVexelNodeTypeRules::Collect(Collected);
	for (const auto& [ClassName, Rule] : Collected)
	{
		Rules.insert(ToStd(ClassName.ToString()));
	}
	EXPECT_TRUE(std::includes(Tested.begin(), Tested.end(), Rules.begin(), Rules.end())) << testing::PrintToString(Rules);
}

TEST_F(FNodeTypeTableTest, EveryKindOfNodeIsDescribed)
{
	for (const FNodeCase& Case : Cases)
	{
		const TVexelNodeTypeId Id(UTF8_TO_TCHAR(Case.Id));
		const std::string Sentence = ToStd(FVexelNodeTypeDescription::MakeSentence(Id, TEXT("Odd")));
		EXPECT_EQ(std::string::npos, Sentence.find("This is a blueprint node")) << Case.Id;
		EXPECT_EQ(std::string::npos, Sentence.find("%s")) << Case.Id;
	}
}

TEST_F(FNodeTypeTableTest, AKindOfNodeThatIsNewAmongItsLikeIsDescribedAsOneOfThem)
{
	for (const TCHAR* const Segment : {TEXT("call."), TEXT("event."), TEXT("struct."), TEXT("var."), TEXT("cast."), TEXT("delegate."),
			 TEXT("async."), TEXT("macro."), TEXT("enum."), TEXT("literal."), TEXT("input."), TEXT("graph."), TEXT("flow."), TEXT("make."),
			 TEXT("array."), TEXT("foreach."), TEXT("switch."), TEXT("text."), TEXT("math."), TEXT("timeline."), TEXT("convert."),
			 TEXT("gameplay_tags."), TEXT("state_tree."), TEXT("livelink."), TEXT("sequencer."), TEXT("camera_rig.")})
	{
		const std::string Sentence =
			ToStd(FVexelNodeTypeDescription::MakeSentence(TVexelNodeTypeId(FString(Segment) + TEXT("new_one")), TEXT("Odd")));
		EXPECT_NE(std::string::npos, Sentence.find("new_one")) << ToStd(Segment) << ": " << Sentence;
	}
	EXPECT_EQ("This is a blueprint node called Odd.",
		ToStd(FVexelNodeTypeDescription::MakeSentence(TVexelNodeTypeId(TEXT("quantum.flip")), TEXT("Odd"))));
}

struct FNamedCase
{
	const TCHAR* Plain;
	const TCHAR* Name;
	const TCHAR* Pin;
};

TEST_F(FNodeTypeTableTest, AnObjectNamedBehindAPlainKindIsSetOnItsPin)
{
	const FNamedCase NamedCases[] = {
		{TEXT("call.spawn_actor"), TEXT("Actor"), TEXT("Class")},
		{TEXT("call.add_component_by_class"), TEXT("SceneComponent"), TEXT("Class")},
		{TEXT("call.create_object"), TEXT("Actor"), TEXT("Class")},
		{TEXT("call.get_class_defaults"), TEXT("Pawn"), TEXT("Class")},
		{TEXT("call.create_widget"), TEXT("UserWidget"), TEXT("Class")},
		{TEXT("call.load_asset_class"), TEXT("Actor"), TEXT("AssetClass")},
	};
	for (const FNamedCase& Case : NamedCases)
	{
		const FString Id = FString::Printf(TEXT("%s.%s"), Case.Plain, Case.Name);
		const UEdGraphNode* const Node = Spawn(Id);
		ASSERT_NE(nullptr, Node) << ToStd(Id);
		EXPECT_EQ(ToStd(Id), IdOf(*Node));
		EXPECT_EQ(1, EventGraph->Nodes.FilterByPredicate([Node](const UEdGraphNode* Other)
										  { return Other == Node; })
						 .Num());
		const UEdGraphPin* const Pin = Node->FindPin(Case.Pin);
		ASSERT_NE(nullptr, Pin) << ToStd(Id);
		EXPECT_TRUE(Pin->GetDefaultAsString().Contains(Case.Name)) << ToStd(Pin->GetDefaultAsString());
		EXPECT_EQ(nullptr, Spawn(FString(Case.Plain) + TEXT(".NoSuchThing")));
		EXPECT_EQ(nullptr, Spawn(FString(Case.Plain) + TEXT(".")));
	}
}

TEST_F(FNodeTypeTableTest, ABlueprintIsNamedWithOrWithoutTheSuffixOfItsClass)
{
	const FString Name = Blueprint->GetName();
	for (const TCHAR* const Plain : {TEXT("call.spawn_actor."), TEXT("cast."), TEXT("cast.class.")})
	{
		EXPECT_EQ(ToStd(Plain + Name + TEXT("_C")), SpawnedId(Plain + Name + TEXT("_C")));
		EXPECT_EQ(ToStd(Plain + Name + TEXT("_C")), SpawnedId(Plain + Name));
	}
}

TEST_F(FNodeTypeTableTest, WhatOnlyLinksCanTellIsLeftToThem)
{
	for (const TCHAR* const Plain :
		{TEXT("enum.equal"), TEXT("enum.not_equal"), TEXT("enum.get_name"), TEXT("enum.get_name_string")})
	{
		EXPECT_EQ(ToStd(Plain), SpawnedId(FString(Plain) + TEXT(".ECollisionChannel")));
		EXPECT_EQ("", SpawnedId(FString(Plain) + TEXT(".ENoSuch")));
	}
	EXPECT_EQ("var.set_ref", SpawnedId(TEXT("var.set_ref.Pawn.BaseEyeHeight")));
}

TEST_F(FNodeTypeTableTest, EnumNodesAreNamedByTheTypeOfTheirPin)
{
	for (const auto& [Plain, PinName] : {std::pair{TEXT("enum.equal"), TEXT("A")}, std::pair{TEXT("enum.get_name"), TEXT("Enumerator")}})
	{
		UEdGraphNode* const Node = Spawn(Plain);
		ASSERT_NE(nullptr, Node);
		UEdGraphPin* const Pin = Node->FindPin(PinName);
		ASSERT_NE(nullptr, Pin);
		Pin->PinType.PinCategory = UEdGraphSchema_K2::PC_Byte;
		Pin->PinType.PinSubCategoryObject = FindFirstObject<UEnum>(TEXT("ECollisionChannel"), EFindFirstObjectOptions::NativeFirst);
		EXPECT_EQ(ToStd(Plain) + ".ECollisionChannel", IdOf(*Node));
	}
}

TEST_F(FNodeTypeTableTest, SetByReferenceIsNamedByTheVariableThatIsLinked)
{
	UEdGraphNode* const Set = Spawn(TEXT("var.set_ref"));
	UEdGraphNode* const Get = Spawn(TEXT("var.get.Pawn.BaseEyeHeight"));
	ASSERT_TRUE(Set && Get);
	UEdGraphPin* const Reference = Set->CreatePin(EGPD_Input, UEdGraphSchema_K2::PC_Wildcard, TEXT("VariableReference"));
	Reference->MakeLinkTo(Get->FindPinChecked(TEXT("BaseEyeHeight")));
	EXPECT_EQ("var.set_ref.Pawn.BaseEyeHeight", IdOf(*Set));
}

TEST_F(FNodeTypeTableTest, AParentCallIsOfTheFunctionThatTheGraphOverrides)
{
	UEdGraph* const Construction = FBlueprintEditorUtils::FindUserConstructionScript(Blueprint);
	UBlueprintNodeSpawner* Spawner = nullptr;
	ASSERT_TRUE(Mapping.ResolveNodeTypeForGraph(TVexelNodeTypeId(TEXT("call.super")), *Construction, Spawner));
	EXPECT_FALSE(Mapping.ResolveNodeTypeForGraph(TVexelNodeTypeId(TEXT("call.super")), *Heal, Spawner));
	EXPECT_FALSE(Mapping.ResolveNodeTypeForBlueprint(TVexelNodeTypeId(TEXT("call.super")), *Blueprint, Spawner));
}

TEST_F(FNodeTypeTableTest, AClassThatIsNotCompiledAgainstIsReadByTheNamesOfItsMembers)
{
	EXPECT_EQ("convert.asset", IdOf(AddBareNode(TEXT("K2Node_ConvertAssetOfClass"))));
	EXPECT_EQ("convert.asset.Actor", IdOf(AddBareNode(TEXT("K2Node_ConvertAssetOfClass"), TEXT("TargetClass"), ActorClass)));
}

TEST_F(FNodeTypeTableTest, AsynchronousTasksAreNamedByWhatStartsThem)
{
	EXPECT_EQ("async.AsyncActionHandleSaveGame.AsyncSaveGameToSlot", SpawnedId(TEXT("async.AsyncActionHandleSaveGame.AsyncSaveGameToSlot")));
	const TCHAR* const SaveGame = TEXT("/Script/CoreUObject.Class'/Script/Engine.AsyncActionHandleSaveGame'");
	const UEdGraphNode& Half = AddBareNode(TEXT("K2Node_AsyncAction"), TEXT("ProxyFactoryClass"), SaveGame);
	EXPECT_EQ("", IdOf(Half)) << "without the function it is no task";
}

TEST_F(FNodeTypeTableTest, MacrosOfTheEngineAndOfTheBlueprintAreFoundByTheirNames)
{
	EXPECT_EQ("macro.ForEachLoop", SpawnedId(TEXT("macro.foreachloop")));
	UEdGraph* const Twice =
		FBlueprintEditorUtils::CreateNewGraph(Blueprint, TEXT("Twice"), UEdGraph::StaticClass(), UEdGraphSchema_K2::StaticClass());
	FBlueprintEditorUtils::AddMacroGraph(Blueprint, Twice, true, nullptr);
	EXPECT_EQ("macro.Twice", SpawnedId(TEXT("macro.Twice")));
}

TEST_F(FNodeTypeTableTest, MessagesOfAnInterfaceAreFoundByItsName)
{
	UPackage* const Package = CreatePackage(TEXT("/Game/BPI_Usable"));
	UBlueprint* const Interface =
		FKismetEditorUtilities::CreateBlueprint(UInterface::StaticClass(), Package, TEXT("BPI_Usable"), BPTYPE_Interface);
	ASSERT_NE(nullptr, Interface);
	UEdGraph* const Use =
		FBlueprintEditorUtils::CreateNewGraph(Interface, TEXT("Use"), UEdGraph::StaticClass(), UEdGraphSchema_K2::StaticClass());
	FBlueprintEditorUtils::AddFunctionGraph<UClass>(Interface, Use, true, nullptr);
	FKismetEditorUtilities::CompileBlueprint(Interface);
	EXPECT_EQ("call.interface.BPI_Usable.Use", SpawnedId(TEXT("call.interface.BPI_Usable.Use")));
	FAssetRegistryModule::AssetDeleted(Interface);
	Interface->ClearFlags(RF_Public | RF_Standalone);
}

TEST_F(FNodeTypeTableTest, TimelinesOfOneNameGetNamesOfTheirOwn)
{
	EXPECT_EQ("timeline.Slide", SpawnedId(TEXT("timeline.Slide")));
	EXPECT_EQ("timeline.Slide_0", SpawnedId(TEXT("timeline.Slide")));
}

struct FIncompleteCase
{
	const TCHAR* ClassName;
	const char* Complaint;
};

TEST_F(FNodeTypeTableTest, NodeThatLacksWhatItsIdNamesHasNoIdAndIsLogged)
{
	const FIncompleteCase Incomplete[] = {
		{TEXT("K2Node_AddComponent"), "UK2Node_AddComponent '%s' has no template type!"},
		{TEXT("K2Node_GetSubsystem"), "UK2Node_GetSubsystem '%s' has no custom class!"},
		{TEXT("K2Node_GetSubsystemFromPC"), "UK2Node_GetSubsystem '%s' has no custom class!"},
		{TEXT("K2Node_ComponentBoundEvent"), "UK2Node_Event '%s' has no event class!"},
		{TEXT("K2Node_BreakStruct"), "UK2Node_BreakStruct '%s' has no struct type!"},
		{TEXT("K2Node_MakeStruct"), "UK2Node_MakeStruct '%s' has no struct type!"},
		{TEXT("K2Node_SetFieldsInStruct"), "UK2Node_SetFieldsInStruct '%s' has no struct type!"},
		{TEXT("K2Node_VariableGet"), "UK2Node_VariableGet '%s' has no variable source class!"},
		{TEXT("K2Node_VariableSet"), "UK2Node_VariableSet '%s' has no variable source class!"},
		{TEXT("K2Node_DynamicCast"), "UK2Node_DynamicCast '%s' has no target type!"},
		{TEXT("K2Node_ClassDynamicCast"), "UK2Node_ClassDynamicCast '%s' has no target type!"},
		{TEXT("K2Node_CastByteToEnum"), "UK2Node_CastByteToEnum '%s' has no enum type!"},
		{TEXT("K2Node_AsyncAction"), "UK2Node_BaseAsyncTask '%s' has no proxy factory class or function!"},
		{TEXT("K2Node_MacroInstance"), "UK2Node_MacroInstance '%s' has no macro graph!"},
		{TEXT("K2Node_EnumLiteral"), "UK2Node_EnumLiteral '%s' has no enum type!"},
		{TEXT("K2Node_ForEachElementInEnum"), "K2Node_ForEachElementInEnum '%s' has no enum type!"},
		{TEXT("K2Node_GetNumEnumEntries"), "K2Node_GetNumEnumEntries '%s' has no enum type!"},
		{TEXT("K2Node_SwitchEnum"), "K2Node_SwitchEnum '%s' has no enum type!"},
		{TEXT("K2Node_InputDebugKey"), "K2Node_InputDebugKey '%s' has no input key!"},
	};
	for (const FIncompleteCase& Case : Incomplete)
	{
		const UEdGraphNode& Node = AddBareNode(Case.ClassName);
		Log.Clear();
		EXPECT_EQ("", IdOf(Node)) << TCHAR_TO_UTF8(Case.ClassName);
		const FString Complaint = FString(UTF8_TO_TCHAR(Case.Complaint)).Replace(TEXT("%s"), *Node.GetName());
		EXPECT_EQ(1, Log.Count("MakeNodeTypeReference: " + ToStd(Complaint))) << Log.ToText();
	}
}

TEST_F(FNodeTypeTableTest, AnEventWithoutAClassIsLogged)
{
	// Outside every Blueprint, so that there is no class of its own to fall back on.
	UEdGraph* const Loose = NewObject<UEdGraph>(GetTransientPackageAsObject());
	UClass* const EventClass = FindFirstObject<UClass>(TEXT("K2Node_Event"), EFindFirstObjectOptions::NativeFirst);
	const UEdGraphNode* const Event = NewObject<UEdGraphNode>(Loose, EventClass);
	EXPECT_EQ("", IdOf(*Event));
	EXPECT_EQ(1, Log.Count("MakeNodeTypeReference: UK2Node_Event '" + ToStd(Event->GetName()) + "' has no event class!")) << Log.ToText();
}

TEST_F(FNodeTypeTableTest, ADebugKeyOfAnotherEngineMayHaveNoKeyAtAll)
{
	TMap<FName, FVexelNodeTypeRule> Rules;
	FVexelNodeTypeRules::Collect(Rules);
	const UEdGraphNode& Node = AddBareNode(TEXT("K2Node_IfThenElse"));
	EXPECT_EQ("", ToStd(Rules.FindChecked(TEXT("K2Node_InputDebugKey"))(Node, Mapping)));
	EXPECT_EQ(1, Log.Count("MakeNodeTypeReference: K2Node_InputDebugKey '" + ToStd(Node.GetName()) + "' has no InputKey property!"));
}
}
