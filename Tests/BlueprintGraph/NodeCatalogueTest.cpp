#include "GraphFixture.h"

#include "Containers/StringConv.h"
#include "EdGraphUtilities.h"
#include "K2Node.h"
#include "Misc/OutputDeviceNull.h"
#include "UObject/PropertyPortFlags.h"
#include "UObject/UnrealType.h"

#include <algorithm>

namespace
{
/** A class of the catalogue, and what a node of it is about. */
struct FCatalogueRow
{
	const TCHAR* Module;
	const TCHAR* Class;
	/** A reflected member and its value as text; null for a node that needs none. */
	const TCHAR* Property = nullptr;
	const TCHAR* Value = nullptr;
	/** Names of pins that it has then. */
	std::vector<const TCHAR*> Pins = {};
};

const TCHAR* const Graph = TEXT("BlueprintGraph");
const TCHAR* const Tags = TEXT("GameplayTagsEditor");
const TCHAR* const LiveLink = TEXT("LiveLinkGraphNode");
const TCHAR* const StateTree = TEXT("StateTreeEditorModule");
const TCHAR* const Input = TEXT("InputBlueprintNodes");
const TCHAR* const AnyEnum = TEXT("\"/Script/CoreUObject.Enum'/Script/Engine.ECollisionEnabled'\"");
const TCHAR* const VectorStruct = TEXT("\"/Script/CoreUObject.ScriptStruct'/Script/CoreUObject.Vector'\"");
const TCHAR* const HitStruct = TEXT("\"/Script/CoreUObject.ScriptStruct'/Script/Engine.HitResult'\"");
const TCHAR* const ActorClass = TEXT("\"/Script/CoreUObject.Class'/Script/Engine.Actor'\"");

#define FUNCTION_OF(Class, Name) TEXT("(MemberParent=\"/Script/CoreUObject.Class'/Script/Engine." Class "'\",MemberName=\"" Name "\")")

const FCatalogueRow Catalogue[] = {
	{Graph, TEXT("K2Node_CallFunction"), TEXT("FunctionReference"), FUNCTION_OF("KismetSystemLibrary", "PrintString"),
		{TEXT("execute"), TEXT("then"), TEXT("InString")}},
	{Graph, TEXT("K2Node_CallArrayFunction"), TEXT("FunctionReference"), FUNCTION_OF("KismetArrayLibrary", "Array_Add"),
		{TEXT("TargetArray"), TEXT("NewItem")}},
	{Graph, TEXT("K2Node_CallDataTableFunction"), TEXT("FunctionReference"), FUNCTION_OF("KismetSystemLibrary", "PrintString"),
		{TEXT("InString")}},
	{Graph, TEXT("K2Node_CallMaterialParameterCollectionFunction"), TEXT("FunctionReference"),
		FUNCTION_OF("KismetSystemLibrary", "PrintString"), {TEXT("InString")}},
	{Graph, TEXT("K2Node_CallParentFunction"), TEXT("FunctionReference"), FUNCTION_OF("Actor", "ReceiveTick"),
		{TEXT("execute"), TEXT("DeltaSeconds")}},
	{Graph, TEXT("K2Node_CommutativeAssociativeBinaryOperator"), TEXT("FunctionReference"), FUNCTION_OF("KismetMathLibrary", "BooleanAND"),
		{TEXT("A"), TEXT("B"), TEXT("ReturnValue")}},
	{Graph, TEXT("K2Node_PromotableOperator"), TEXT("FunctionReference"), FUNCTION_OF("KismetMathLibrary", "Add_DoubleDouble"),
		{TEXT("A"), TEXT("B"), TEXT("ReturnValue")}},
	{Graph, TEXT("K2Node_GetInputAxisKeyValue"), TEXT("FunctionReference"), FUNCTION_OF("Actor", "GetInputAxisKeyValue"),
		{TEXT("InputAxisKey"), TEXT("ReturnValue")}},
	{Graph, TEXT("K2Node_GetInputAxisValue"), TEXT("FunctionReference"), FUNCTION_OF("Actor", "GetInputAxisValue"),
		{TEXT("InputAxisName")}},
	{Graph, TEXT("K2Node_GetInputVectorAxisValue"), TEXT("FunctionReference"), FUNCTION_OF("Actor", "GetInputVectorAxisValue"),
		{TEXT("ReturnValue")}},
	{Graph, TEXT("K2Node_AddComponent"), TEXT("TemplateType"), TEXT("\"/Script/CoreUObject.Class'/Script/Engine.SceneComponent'\"")},
	{Graph, TEXT("K2Node_AddComponentByClass"), nullptr, nullptr,
		{TEXT("Class"), TEXT("RelativeTransform"), TEXT("bManualAttachment"), TEXT("self")}},
	{Graph, TEXT("K2Node_GenericCreateObject"), nullptr, nullptr, {TEXT("Class"), TEXT("Outer"), TEXT("ReturnValue")}},
	{Graph, TEXT("K2Node_SpawnActorFromClass"), nullptr, nullptr,
		{TEXT("Class"), TEXT("SpawnTransform"), TEXT("CollisionHandlingOverride"), TEXT("Owner")}},
	{Graph, TEXT("K2Node_GetClassDefaults"), nullptr, nullptr, {TEXT("Class")}},
	{Graph, TEXT("K2Node_GetDataTableRow"), nullptr, nullptr,
		{TEXT("DataTable"), TEXT("RowName"), TEXT("RowNotFound"), TEXT("ReturnValue")}},
	{Graph, TEXT("K2Node_LoadAsset"), nullptr, nullptr, {TEXT("Asset"), TEXT("Completed"), TEXT("Object")}},
	{Graph, TEXT("K2Node_LoadAssetClass"), nullptr, nullptr, {TEXT("AssetClass"), TEXT("Class")}},
	{Graph, TEXT("K2Node_ConvertAsset"), nullptr, nullptr, {TEXT("Asset"), TEXT("Object")}},
	{Graph, TEXT("K2Node_GetSubsystem"), TEXT("CustomClass"), TEXT("\"/Script/CoreUObject.Class'/Script/Engine.EngineSubsystem'\""),
		{TEXT("ReturnValue")}},
	{Graph, TEXT("K2Node_GetSubsystemFromPC"), nullptr, nullptr, {TEXT("PlayerController"), TEXT("ReturnValue")}},
	{Graph, TEXT("K2Node_Copy"), nullptr, nullptr, {TEXT("Input"), TEXT("ReturnValue")}},
	{Graph, TEXT("K2Node_Event"), TEXT("EventReference"), FUNCTION_OF("Actor", "ReceiveTick"),
		{TEXT("OutputDelegate"), TEXT("then"), TEXT("DeltaSeconds")}},
	{Graph, TEXT("K2Node_ActorBoundEvent"), TEXT("EventReference"), FUNCTION_OF("Actor", "ReceiveTick"), {TEXT("OutputDelegate")}},
	{Graph, TEXT("K2Node_ComponentBoundEvent"), TEXT("EventReference"), FUNCTION_OF("Actor", "ReceiveTick"), {TEXT("OutputDelegate")}},
	{Graph, TEXT("K2Node_CustomEvent"), TEXT("CustomFunctionName"), TEXT("Ring"), {TEXT("OutputDelegate"), TEXT("then")}},
	{Graph, TEXT("K2Node_BreakStruct"), TEXT("StructType"), HitStruct, {TEXT("HitResult"), TEXT("Distance")}},
	{Graph, TEXT("K2Node_MakeStruct"), TEXT("StructType"), VectorStruct, {TEXT("Vector"), TEXT("X"), TEXT("Y"), TEXT("Z")}},
	{Graph, TEXT("K2Node_SetFieldsInStruct"), TEXT("StructType"), VectorStruct, {TEXT("StructRef"), TEXT("StructOut")}},
	{Graph, TEXT("K2Node_VariableGet"), TEXT("VariableReference"), FUNCTION_OF("Actor", "InitialLifeSpan"),
		{TEXT("InitialLifeSpan"), TEXT("self")}},
	{Graph, TEXT("K2Node_VariableSet"), TEXT("VariableReference"), FUNCTION_OF("Actor", "InitialLifeSpan"),
		{TEXT("InitialLifeSpan"), TEXT("Output_Get")}},
	{Graph, TEXT("K2Node_VariableSetRef"), nullptr, nullptr, {TEXT("Target"), TEXT("Value")}},
	{Graph, TEXT("K2Node_SetVariableOnPersistentFrame"), nullptr, nullptr, {TEXT("execute"), TEXT("then")}},
	{Graph, TEXT("K2Node_TemporaryVariable"), TEXT("VariableType"), TEXT("(PinCategory=\"int\")"), {TEXT("Variable")}},
	{Graph, TEXT("K2Node_Self"), nullptr, nullptr, {TEXT("self")}},
	{Graph, TEXT("K2Node_AssignmentStatement"), nullptr, nullptr, {TEXT("Variable"), TEXT("Value")}},
	{Graph, TEXT("K2Node_DynamicCast"), TEXT("TargetType"), ActorClass, {TEXT("Object"), TEXT("CastFailed"), TEXT("AsActor")}},
	{Graph, TEXT("K2Node_ClassDynamicCast"), TEXT("TargetType"), ActorClass, {TEXT("Class"), TEXT("AsActor")}},
	{Graph, TEXT("K2Node_CastByteToEnum"), TEXT("Enum"), AnyEnum, {TEXT("Byte"), TEXT("ReturnValue")}},
	{Graph, TEXT("K2Node_CreateDelegate"), nullptr, nullptr, {TEXT("OutputDelegate"), TEXT("self")}},
	{Graph, TEXT("K2Node_EnumLiteral"), TEXT("Enum"), AnyEnum, {TEXT("Enum"), TEXT("ReturnValue")}},
	{Graph, TEXT("K2Node_ForEachElementInEnum"), TEXT("Enum"), AnyEnum, {TEXT("LoopBody"), TEXT("EnumValue"), TEXT("SkipHidden")}},
	{Graph, TEXT("K2Node_GetNumEnumEntries"), TEXT("Enum"), AnyEnum, {TEXT("ReturnValue")}},
	{Graph, TEXT("K2Node_SwitchEnum"), TEXT("Enum"), AnyEnum, {TEXT("Selection"), TEXT("QueryOnly")}},
	{Graph, TEXT("K2Node_EnumEquality"), nullptr, nullptr, {TEXT("A"), TEXT("B"), TEXT("ReturnValue")}},
	{Graph, TEXT("K2Node_EnumInequality"), nullptr, nullptr, {TEXT("A"), TEXT("B")}},
	{Graph, TEXT("K2Node_GetEnumeratorName"), nullptr, nullptr, {TEXT("Enumerator")}},
	{Graph, TEXT("K2Node_GetEnumeratorNameAsString"), nullptr, nullptr, {TEXT("Enumerator")}},
	{Graph, TEXT("K2Node_Literal"), nullptr, nullptr, {TEXT("Value")}},
	{Graph, TEXT("K2Node_BitmaskLiteral"), nullptr, nullptr, {TEXT("Bitmask"), TEXT("ReturnValue")}},
	{Graph, TEXT("K2Node_InputKey"), TEXT("InputKey"), TEXT("F"), {TEXT("Pressed"), TEXT("Released"), TEXT("Key")}},
	{Graph, TEXT("K2Node_InputAction"), TEXT("InputActionName"), TEXT("Jump"), {TEXT("Pressed"), TEXT("Key")}},
	{Graph, TEXT("K2Node_InputAxisEvent"), TEXT("InputAxisName"), TEXT("Turn"), {TEXT("AxisValue")}},
	{Graph, TEXT("K2Node_InputAxisKeyEvent"), TEXT("AxisKey"), TEXT("MouseX"), {TEXT("AxisValue")}},
	{Graph, TEXT("K2Node_InputVectorAxisEvent"), TEXT("AxisKey"), TEXT("Tilt"), {TEXT("AxisValue")}},
	{Graph, TEXT("K2Node_InputTouch"), nullptr, nullptr, {TEXT("Moved"), TEXT("Location"), TEXT("FingerIndex")}},
	{Graph, TEXT("K2Node_Knot"), nullptr, nullptr, {TEXT("InputPin"), TEXT("OutputPin")}},
	{Graph, TEXT("K2Node_IfThenElse"), nullptr, nullptr, {TEXT("Condition"), TEXT("else")}},
	{Graph, TEXT("K2Node_Select"), nullptr, nullptr, {TEXT("Option 0"), TEXT("Option 1"), TEXT("Index"), TEXT("ReturnValue")}},
	{Graph, TEXT("K2Node_ExecutionSequence"), nullptr, nullptr, {TEXT("then_0"), TEXT("then_1")}},
	{Graph, TEXT("K2Node_MultiGate"), nullptr, nullptr, {TEXT("Out 0"), TEXT("IsRandom"), TEXT("Loop"), TEXT("StartIndex")}},
	{Graph, TEXT("K2Node_DoOnceMultiInput"), nullptr, nullptr, {TEXT("Reset"), TEXT("StartClosed"), TEXT("A In"), TEXT("A Out")}},
	{Graph, TEXT("K2Node_MakeArray"), nullptr, nullptr, {TEXT("Array"), TEXT("[0]")}},
	{Graph, TEXT("K2Node_MakeMap"), nullptr, nullptr, {TEXT("Map"), TEXT("Key 0"), TEXT("Value 0")}},
	{Graph, TEXT("K2Node_MakeSet"), nullptr, nullptr, {TEXT("Set"), TEXT("[0]")}},
	{Graph, TEXT("K2Node_GetArrayItem"), nullptr, nullptr, {TEXT("Array"), TEXT("Dimension 1"), TEXT("Output")}},
	{Graph, TEXT("K2Node_MapForEach"), nullptr, nullptr,
		{TEXT("MapPin"), TEXT("BreakPin"), TEXT("KeyPin"), TEXT("ValuePin"), TEXT("CompletedPin")}},
	{Graph, TEXT("K2Node_SetForEach"), nullptr, nullptr, {TEXT("SetPin"), TEXT("ValuePin")}},
	{Graph, TEXT("K2Node_SwitchInteger"), nullptr, nullptr, {TEXT("Default"), TEXT("Selection")}},
	{Graph, TEXT("K2Node_SwitchName"), TEXT("PinNames"), TEXT("(\"One\",\"Two\")"), {TEXT("One"), TEXT("Two")}},
	{Graph, TEXT("K2Node_SwitchString"), TEXT("PinNames"), TEXT("(\"One\",\"Two\")"), {TEXT("One"), TEXT("Two")}},
	{Graph, TEXT("K2Node_FormatText"), TEXT("PinNames"), TEXT("(\"Name\")"), {TEXT("Format"), TEXT("Result"), TEXT("Name")}},
	{Graph, TEXT("K2Node_GenericToText"), nullptr, nullptr, {TEXT("Value"), TEXT("Result")}},
	{Graph, TEXT("K2Node_EaseFunction"), nullptr, nullptr, {TEXT("Function"), TEXT("Alpha"), TEXT("A"), TEXT("B"), TEXT("Result")}},
	{Graph, TEXT("K2Node_Timeline"), nullptr, nullptr, {TEXT("Play"), TEXT("Update"), TEXT("Direction")}},
	{Input, TEXT("K2Node_InputDebugKey"), TEXT("InputKey"), TEXT("F"), {TEXT("Pressed"), TEXT("ActionValue")}},
	{Input, TEXT("K2Node_EnhancedInputAction"), nullptr, nullptr,
		{TEXT("Triggered"), TEXT("Completed"), TEXT("ActionValue"), TEXT("ElapsedSeconds")}},
	{Input, TEXT("K2Node_GetInputActionValue"), nullptr, nullptr, {TEXT("ReturnValue")}},
	{TEXT("UMGEditor"), TEXT("K2Node_CreateWidget"), nullptr, nullptr, {TEXT("Class"), TEXT("OwningPlayer"), TEXT("ReturnValue")}},
	{TEXT("UMGEditor"), TEXT("K2Node_CreateDragDropOperation"), nullptr, nullptr, {TEXT("Class"), TEXT("ReturnValue")}},
	{Tags, TEXT("GameplayTagsK2Node_MultiCompareGameplayTagAssetInterface"), nullptr, nullptr, {TEXT("Case_0"), TEXT("Case_0 True")}},
	{Tags, TEXT("GameplayTagsK2Node_MultiCompareGameplayTagAssetInterfaceSingleTags"), nullptr, nullptr, {TEXT("Case_0")}},
	{Tags, TEXT("GameplayTagsK2Node_MultiCompareGameplayTagContainer"), nullptr, nullptr, {TEXT("Gameplay Tag Container"), TEXT("Case_0")}},
	{Tags, TEXT("GameplayTagsK2Node_MultiCompareGameplayTagContainerSingleTags"), nullptr, nullptr,
		{TEXT("Gameplay Tag Container"), TEXT("Case_0")}},
	{Tags, TEXT("GameplayTagsK2Node_SwitchGameplayTag"), TEXT("PinNames"), TEXT("(\"Case_0\")"), {TEXT("Selection"), TEXT("Case_0")}},
	{Tags, TEXT("GameplayTagsK2Node_SwitchGameplayTagContainer"), TEXT("PinNames"), TEXT("(\"Case_0\")"),
		{TEXT("Selection"), TEXT("Case_0")}},
	{StateTree, TEXT("K2Node_MakeStateTreeReference"), nullptr, nullptr, {TEXT("StateTree")}},
	{StateTree, TEXT("K2Node_StateTreeBlueprintPropertyRef"), nullptr, nullptr, {TEXT("PropertyRef"), TEXT("ReturnValue")}},
	{StateTree, TEXT("K2Node_StateTreeNodeGetPropertyDescription"), nullptr, nullptr, {TEXT("Description")}},
	{LiveLink, TEXT("K2Node_EvaluateLiveLinkFrameWithSpecificRole"), nullptr, nullptr, {TEXT("LiveLinkRole"), TEXT("FrameNotAvailable")}},
	{LiveLink, TEXT("K2Node_EvaluateLiveLinkFrameAtWorldTime"), nullptr, nullptr, {TEXT("WorldTime")}},
	{LiveLink, TEXT("K2Node_EvaluateLiveLinkFrameAtSceneTime"), nullptr, nullptr, {TEXT("SceneTime")}},
	{LiveLink, TEXT("K2Node_UpdateVirtualSubjectStaticData"), nullptr, nullptr, {TEXT("Struct")}},
	{LiveLink, TEXT("K2Node_UpdateVirtualSubjectFrameData"), nullptr, nullptr, {TEXT("Struct"), TEXT("bInShouldStampCurrentTime")}},
	{TEXT("MovieSceneTools"), TEXT("K2Node_GetSequenceBinding"), nullptr, nullptr, {TEXT("Output")}},
	{TEXT("GameplayCamerasUncookedOnly"), TEXT("K2Node_SetCameraRigParameters"), nullptr, nullptr, {TEXT("execute")}},
	{TEXT("PropertyAccessNode"), TEXT("K2Node_PropertyAccess"), nullptr, nullptr, {TEXT("Value")}},
	{Graph, TEXT("K2Node_MathExpression"), nullptr, nullptr, {}},
	{Graph, TEXT("K2Node_Composite"), nullptr, nullptr, {}},
};

class FNodeCatalogueTest : public FGraphTest
{
protected:
	static UClass* FindClass(const FCatalogueRow& Row)
	{
		return FindObject<UClass>(nullptr, *FString::Printf(TEXT("/Script/%s.%s"), Row.Module, Row.Class));
	}

	UK2Node* Spawn(const FCatalogueRow& Row, UEdGraph* InGraph)
	{
		UClass* const Class = FindClass(Row);
		UK2Node* const Node = Class ? Cast<UK2Node>(InGraph->CreateNode(Class, false)) : nullptr;
		if (!Node)
		{
			return nullptr;
		}
		if (Row.Property)
		{
			const FProperty* const Property = FindFProperty<FProperty>(Class, Row.Property);
			FOutputDeviceNull Errors;
			EXPECT_TRUE(Property && Property->ImportText_InContainer(Row.Value, Node, Node, PPF_None, &Errors)) << TCHAR_TO_UTF8(Row.Class);
		}
		// As SetFromFunction does, which the reflected reference alone does not.
		UK2Node_CallFunction* const Call = Cast<UK2Node_CallFunction>(Node);
		if (Call && Call->GetTargetFunction())
		{
			Call->bIsPureFunc = Call->GetTargetFunction()->HasAnyFunctionFlags(FUNC_BlueprintPure);
		}
		Node->CreateNewGuid();
		Node->PostPlacedNewNode();
		Node->AllocateDefaultPins();
		return Node;
	}

	static std::vector<std::string> Describe(const UEdGraphNode& Node)
	{
		std::vector<std::string> Pins;
		for (const UEdGraphPin* const Pin : Node.Pins)
		{
			const FEdGraphPinType& Type = Pin->PinType;
			Pins.push_back(TCHAR_TO_UTF8(*FString::Printf(TEXT("%d %s %s/%s/%s %d%d%d hidden %d advanced %d '%s' '%s' '%s'"),
				static_cast<int32>(Pin->Direction.GetValue()), *Pin->PinName.ToString(), *Type.PinCategory.ToString(),
				*Type.PinSubCategory.ToString(), *GetPathNameSafe(Type.PinSubCategoryObject.Get()), static_cast<int32>(Type.ContainerType),
				static_cast<int32>(Type.bIsReference), static_cast<int32>(Type.bIsConst), static_cast<int32>(Pin->bHidden),
				static_cast<int32>(Pin->bAdvancedView), *Pin->PinFriendlyName.ToString(), *Pin->GetDefaultAsString(),
				*Pin->AutogeneratedDefaultValue)));
		}
		return Pins;
	}
};

TEST_F(FNodeCatalogueTest, EveryClassStandsInItsModuleAndHasItsPins)
{
	for (const FCatalogueRow& Row : Catalogue)
	{
		SCOPED_TRACE(TCHAR_TO_UTF8(Row.Class));
		UK2Node* const Node = Spawn(Row, Graph);
		ASSERT_NE(Node, nullptr);
		for (const TCHAR* const Name : Row.Pins)
		{
			EXPECT_NE(Node->FindPin(Name), nullptr) << TCHAR_TO_UTF8(Name);
		}
		for (const UEdGraphPin* const Pin : Node->Pins)
		{
			EXPECT_FALSE(Pin->PinType.PinCategory.IsNone()) << TCHAR_TO_UTF8(*Pin->PinName.ToString());
			EXPECT_EQ(Node->FindPin(Pin->PinName, Pin->Direction), Pin) << "two pins of one name";
		}
	}
}

TEST_F(FNodeCatalogueTest, EveryNodeSaysWhatItIs)
{
	for (const FCatalogueRow& Row : Catalogue)
	{
		SCOPED_TRACE(TCHAR_TO_UTF8(Row.Class));
		UK2Node* const Node = Spawn(Row, Graph);
		ASSERT_NE(Node, nullptr);
		for (const ENodeTitleType::Type Type : {ENodeTitleType::FullTitle, ENodeTitleType::ListView, ENodeTitleType::MenuTitle})
		{
			EXPECT_FALSE(Node->GetNodeTitle(Type).IsEmpty()) << static_cast<int32>(Type);
		}
		EXPECT_FALSE(Node->GetTooltipText().IsEmpty());
		// A title in the programmer's words means that the class has none of its own.
		EXPECT_FALSE(Node->GetNodeTitle(ENodeTitleType::FullTitle).ToString().Contains(TEXT("K2Node")))
			<< TCHAR_TO_UTF8(*Node->GetNodeTitle(ENodeTitleType::FullTitle).ToString());
	}
}

TEST_F(FNodeCatalogueTest, MenuFindsNodesByCategoryAndKeywords)
{
	struct FMenuRow
	{
		const TCHAR* Class;
		const TCHAR* Category;
		const TCHAR* Keywords;
	};
	const FMenuRow Rows[] = {
		{TEXT("K2Node_IfThenElse"), TEXT("Utilities|FlowControl"), TEXT("if bool")},
		{TEXT("K2Node_ExecutionSequence"), TEXT("Utilities|FlowControl"), TEXT("sequence")},
		{TEXT("K2Node_Select"), TEXT("Utilities"), TEXT("Ternary If")},
		{TEXT("K2Node_Self"), TEXT("Variables"), TEXT("This")},
		{TEXT("K2Node_GetInputAxisValue"), TEXT("Input|Axis Values"), TEXT("GetInputAxisValue")},
		{TEXT("K2Node_CallFunction"), TEXT("Development"), TEXT("PrintString log print")},
	};
	for (const FMenuRow& Menu : Rows)
	{
		SCOPED_TRACE(TCHAR_TO_UTF8(Menu.Class));
		const FCatalogueRow* const Row = std::find_if(std::begin(Catalogue), std::end(Catalogue), [&Menu](const FCatalogueRow& Item)
			{ return FString(Item.Class) == Menu.Class; });
		ASSERT_NE(Row, std::end(Catalogue));
		const UK2Node* const Node = Spawn(*Row, Graph);
		EXPECT_EQ(Node->GetMenuCategory().ToString(), FString(Menu.Category));
		EXPECT_EQ(Node->GetKeywords().ToString(), FString(Menu.Keywords));
	}
}

TEST_F(FNodeCatalogueTest, TextOfEveryNodeBringsItsPinsBack)
{
	UPackage* const Package = CreatePackage(TEXT("/Game/BP_CatalogueCopy"));
	UBlueprint* const Other = FKismetEditorUtilities::CreateBlueprint(
		AActor::StaticClass(), Package, TEXT("BP_CatalogueCopy"), BPTYPE_Normal);
	UEdGraph* const OtherGraph = Other->UbergraphPages[0];
	for (const FCatalogueRow& Row : Catalogue)
	{
		SCOPED_TRACE(TCHAR_TO_UTF8(Row.Class));
		UK2Node* const Node = Spawn(Row, Graph);
		ASSERT_NE(Node, nullptr);
		// An event of a component is bound to it: the other Blueprint has none.
		if (!Node->CanDuplicateNode())
		{
			continue;
		}
		FString Text;
		FEdGraphUtilities::ExportNodesToText({Node}, Text);
		const FNodeTextImportResult Result = FEdGraphUtilities::ImportNodesFromTextWithResult(OtherGraph, Text);
		ASSERT_EQ(Result.Nodes.Num(), 1) << TCHAR_TO_UTF8(*Text);
		EXPECT_EQ(Result.Warnings.Num(), 0) << (Result.Warnings.Num() > 0 ? TCHAR_TO_UTF8(*Result.Warnings[0].Message) : "");
		EXPECT_EQ(Describe(*Result.Nodes[0]), Describe(*Node));
		Result.Nodes[0]->ReconstructNode();
		EXPECT_EQ(Describe(*Result.Nodes[0]), Describe(*Node)) << "after reconstruction";
	}
}

TEST_F(FNodeCatalogueTest, ReconstructionKeepsThePinsOfEveryNode)
{
	for (const FCatalogueRow& Row : Catalogue)
	{
		SCOPED_TRACE(TCHAR_TO_UTF8(Row.Class));
		UK2Node* const Node = Spawn(Row, Graph);
		ASSERT_NE(Node, nullptr);
		const std::vector<std::string> Before = Describe(*Node);
		TArray<FGuid> Ids;
		for (const UEdGraphPin* const Pin : Node->Pins)
		{
			Ids.Add(Pin->PinId);
		}
		Node->ReconstructNode();
		EXPECT_EQ(Describe(*Node), Before);
		ASSERT_EQ(Node->Pins.Num(), Ids.Num());
		for (int32 Index = 0; Index < Ids.Num(); ++Index)
		{
			EXPECT_EQ(Node->Pins[Index]->PinId, Ids[Index]);
		}
	}
}
}
