#include "Blueprint/VexelNamedNodeType.h"

#include "Blueprint/Builders/VexelBlueprintPropTypeBuilder.h"
#include "Blueprint/Builders/VexelNodeTypeRules.h"
#include "Blueprint/VexelNamedObjects.h"
#include "Blueprint/VexelNodeTypeIndex.h"

#include "BlueprintFunctionNodeSpawner.h"
#include "BlueprintNodeSpawner.h"
#include "EdGraph/EdGraph.h"
#include "EdGraphNode_Comment.h"
#include "EdGraphNode_Documentation.h"
#include "EdGraphSchema_K2.h"
#include "Engine/Blueprint.h"
#include "Engine/Level.h"
#include "Engine/LevelScriptBlueprint.h"
#include "GameFramework/Actor.h"
#include "K2Node_CallFunction.h"
#include "K2Node_CallParentFunction.h"
#include "K2Node_CommutativeAssociativeBinaryOperator.h"
#include "K2Node_CreateDelegate.h"
#include "K2Node_Literal.h"
#include "K2Node_TemporaryVariable.h"
#include "K2Node_Timeline.h"
#include "Kismet2/BlueprintEditorUtils.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"

namespace
{
/** Where an id is looked up, and what stands in it behind the kind of node. */
struct FPlace
{
	const UBlueprint& Blueprint;
	const UEdGraph* Graph;
	FString Name;
};

using FMake = UBlueprintNodeSpawner* (*)(const FPlace&);

UBlueprintNodeSpawner* FindPlain(const TCHAR* Id)
{
	return FVexelNodeTypeIndex::Get().Find(TVexelNodeTypeId(Id));
}

/** What makes nodes of the class, each made ready by the function before it has pins. */
template <typename NodeType, typename FunctionType>
UBlueprintNodeSpawner* MakeCustom(FunctionType Function)
{
	return UBlueprintNodeSpawner::Create<NodeType>(nullptr,
		UBlueprintNodeSpawner::FCustomizeNodeDelegate::CreateLambda([Function](UEdGraphNode* Node, bool)
			{ Function(*CastChecked<NodeType>(Node)); }));
}

// Plain nodes with an object

/** Null for a pin of a kind that no object is a default of. */
UObject* FindForPin(const UEdGraphPin& Pin, const FString& Name)
{
	const FName& Category = Pin.PinType.PinCategory;
	if (Category == UEdGraphSchema_K2::PC_Class || Category == UEdGraphSchema_K2::PC_SoftClass)
	{
		return VexelNamedObjects::Find(*UClass::StaticClass(), Name);
	}
	const bool bTakesObject = Category == UEdGraphSchema_K2::PC_Object || Category == UEdGraphSchema_K2::PC_SoftObject;
	const UClass* const Class = Cast<UClass>(Pin.PinType.PinSubCategoryObject.Get());
	return bTakesObject ? VexelNamedObjects::Find(Class ? *Class : *UObject::StaticClass(), Name) : nullptr;
}

const UEdGraphPin* FindObjectPin(const UEdGraphNode& Node, const FVexelOptionalObjectRule& Rule)
{
	for (const TCHAR* const Name : Rule.Pins)
	{
		if (const UEdGraphPin* const Pin = Node.FindPin(Name, EGPD_Input))
		{
			return Pin;
		}
	}
	return nullptr;
}

UBlueprintNodeSpawner* MakeWithPin(TSubclassOf<UEdGraphNode> NodeClass, FName PinName, const UObject& Object)
{
	const auto Set = [PinName, Path = Object.GetPathName()](UEdGraphNode* Node, bool)
	{
		Node->AllocateDefaultPins();
		if (UEdGraphPin* const Pin = Node->FindPin(PinName, EGPD_Input))
		{
			Node->GetSchema()->TrySetDefaultValue(*Pin, Path);
		}
	};
	return UBlueprintNodeSpawner::Create(NodeClass, nullptr, UBlueprintNodeSpawner::FCustomizeNodeDelegate::CreateLambda(Set));
}

UBlueprintNodeSpawner* MakeWithMember(TSubclassOf<UEdGraphNode> NodeClass, const FObjectPropertyBase& Member, UObject& Object)
{
	const auto Set = [&Member, Weak = TWeakObjectPtr<UObject>(&Object)](UEdGraphNode* Node, bool)
	{ Member.SetObjectPropertyValue_InContainer(Node, Weak.Get()); };
	return UBlueprintNodeSpawner::Create(NodeClass, nullptr, UBlueprintNodeSpawner::FCustomizeNodeDelegate::CreateLambda(Set));
}

UBlueprintNodeSpawner* MakeOfRule(const FVexelOptionalObjectRule& Rule, const FString& Name)
{
	UBlueprintNodeSpawner* const Plain = FindPlain(Rule.Id);
	const UEdGraphNode* const Template = Plain ? Plain->GetTemplateNode() : nullptr;
	if (!Template)
	{
		return nullptr;
	}
	if (const UEdGraphPin* const Pin = FindObjectPin(*Template, Rule))
	{
		const FName& Category = Pin->PinType.PinCategory;
		if (Category == UEdGraphSchema_K2::PC_Wildcard || Category == UEdGraphSchema_K2::PC_Byte)
		{
			return VexelNamedObjects::Find(*UEnum::StaticClass(), Name) ? Plain : nullptr;
		}
		const UObject* const Object = FindForPin(*Pin, Name);
		return Object ? MakeWithPin(Plain->NodeClass, Pin->PinName, *Object) : nullptr;
	}
	const FProperty* const Property = Rule.Property ? Template->GetClass()->FindPropertyByName(Rule.Property) : nullptr;
	const auto* const Member = CastField<FObjectPropertyBase>(Property);
	UObject* const Object = Member ? VexelNamedObjects::Find(*Member->PropertyClass, Name) : nullptr;
	return Object ? MakeWithMember(Plain->NodeClass, *Member, *Object) : nullptr;
}

// Nodes of other kinds

/** A name of a variable or function; None for a text that is no name. */
FName ToName(const FString& Text)
{
	return Text.Len() < NAME_SIZE ? FName(*Text) : FName();
}

UBlueprintNodeSpawner* MakeTimeline(const FPlace& Place)
{
	const FName Name = ToName(Place.Name);
	if (Name.IsNone())
	{
		return nullptr;
	}
	// A node takes the timeline of its name where there is one, and two nodes must not share it.
	const auto SetName = [Name](UK2Node_Timeline& Node)
	{
		const UBlueprint* const Blueprint = Node.HasValidBlueprint() ? Node.GetBlueprint() : nullptr;
		Node.TimelineName = Name;
		for (int32 Number = 0; Blueprint && Blueprint->FindTimelineIndex(Node.TimelineName) != INDEX_NONE; ++Number)
		{
			Node.TimelineName = FName(*FString::Printf(TEXT("%s_%d"), *Name.ToString(), Number));
		}
	};
	return MakeCustom<UK2Node_Timeline>(SetName);
}

UBlueprintNodeSpawner* MakeDelegate(const FPlace& Place)
{
	const FName Name = ToName(Place.Name);
	return Name.IsNone() ? nullptr : MakeCustom<UK2Node_CreateDelegate>([Name](UK2Node_CreateDelegate& Node)
										 { Node.SetFunction(Name); });
}

template <bool bIsPersistent>
UBlueprintNodeSpawner* MakeTemporary(const FPlace& Place)
{
	const TVexelExpected<FEdGraphPinType> Type = FVexelBlueprintPropTypeBuilder::ParseId(TVexelPropTypeId(Place.Name));
	if (Type.HasError())
	{
		return nullptr;
	}
	return MakeCustom<UK2Node_TemporaryVariable>([Type = Type.GetValue()](UK2Node_TemporaryVariable& Node)
		{
			Node.VariableType = Type;
			Node.bIsPersistent = bIsPersistent; });
}

/** The library function that a structure has in place of the node of all structures. */
UBlueprintNodeSpawner* MakeNativeOfStruct(const FString& StructName, const FName MetaDataKey)
{
	const UScriptStruct* const Struct = Cast<UScriptStruct>(VexelNamedObjects::Find(*UScriptStruct::StaticClass(), StructName));
	const FString* const Path = Struct ? Struct->FindMetaData(MetaDataKey) : nullptr;
	FString LibraryPath;
	FString FunctionName;
	if (!Path || !Path->Split(TEXT("."), &LibraryPath, &FunctionName, ESearchCase::CaseSensitive, ESearchDir::FromEnd))
	{
		return nullptr;
	}
	const UClass* const Library = FindObject<UClass>(nullptr, *LibraryPath);
	const UFunction* const Function = Library ? Library->FindFunctionByName(*FunctionName) : nullptr;
	return Function ? UBlueprintFunctionNodeSpawner::Create(Function) : nullptr;
}

UBlueprintNodeSpawner* MakeStruct(const FPlace& Place)
{
	return MakeNativeOfStruct(Place.Name, FBlueprintMetadata::MD_NativeMakeFunction);
}

UBlueprintNodeSpawner* BreakStruct(const FPlace& Place)
{
	return MakeNativeOfStruct(Place.Name, FBlueprintMetadata::MD_NativeBreakFunction);
}

/** The variable that it writes is told by a link. */
UBlueprintNodeSpawner* MakeSetByReference(const FPlace&)
{
	return FindPlain(TEXT("var.set_ref"));
}

/** An actor of the level whose script the Blueprint is. */
UBlueprintNodeSpawner* MakeLiteral(const FPlace& Place)
{
	const ULevelScriptBlueprint* const Script = Cast<ULevelScriptBlueprint>(&Place.Blueprint);
	ULevel* const Level = Script ? Script->GetLevel() : nullptr;
	AActor* const Actor = Level && Place.Name.Len() < NAME_SIZE ? FindObjectFast<AActor>(Level, FName(*Place.Name)) : nullptr;
	if (!Actor)
	{
		return nullptr;
	}
	return MakeCustom<UK2Node_Literal>([Weak = TWeakObjectPtr<AActor>(Actor)](UK2Node_Literal& Node)
		{ Node.SetObjectRef(Weak.Get()); });
}

/** The parent's version of the function that the graph overrides. */
UBlueprintNodeSpawner* MakeParentCall(const FPlace& Place)
{
	const UEdGraph* const Function = Place.Graph ? FBlueprintEditorUtils::GetTopLevelGraph(Place.Graph) : nullptr;
	const UClass* const Parent = Place.Blueprint.ParentClass;
	const UFunction* const Overridden = Function && Parent ? Parent->FindFunctionByName(Function->GetFName()) : nullptr;
	return Overridden ? UBlueprintFunctionNodeSpawner::Create(UK2Node_CallParentFunction::StaticClass(), Overridden) : nullptr;
}

template <typename NodeType>
UBlueprintNodeSpawner* MakeOfClass(const FPlace&)
{
	return UBlueprintNodeSpawner::Create<NodeType>();
}

/** A function of an operator, "KismetMathLibrary.Add_IntInt": the database has the operator alone, which stands for all of them. */
UBlueprintNodeSpawner* MakeOperatorFunction(const FPlace& Place)
{
	FString ClassName;
	FString FunctionName;
	if (!Place.Name.Split(TEXT("."), &ClassName, &FunctionName) || FunctionName.Len() >= NAME_SIZE)
	{
		return nullptr;
	}
	const UClass* const Class = Cast<UClass>(VexelNamedObjects::Find(*UClass::StaticClass(), ClassName));
	const UFunction* const Function = Class ? Class->FindFunctionByName(FName(*FunctionName), EIncludeSuperFlag::ExcludeSuper) : nullptr;
	if (!Function || !UEdGraphSchema_K2::CanUserKismetCallFunction(Function) || !Function->HasAnyFunctionFlags(FUNC_Static))
	{
		return nullptr;
	}
	const bool bTakesMore = Function->HasMetaData(FBlueprintMetadata::MD_CommutativeAssociativeBinaryOperator);
	UClass* const NodeClass = bTakesMore ? UK2Node_CommutativeAssociativeBinaryOperator::StaticClass() : UK2Node_CallFunction::StaticClass();
	return UBlueprintFunctionNodeSpawner::Create(NodeClass, Function);
}

struct FKind
{
	/** Of the id. One that ends in a point has a name behind it. */
	const TCHAR* Prefix;
	FMake Make;
};

constexpr FKind Kinds[] = {
	{TEXT("timeline."), &MakeTimeline},
	{TEXT("delegate.create."), &MakeDelegate},
	{TEXT("var.make_temp."), &MakeTemporary<false>},
	{TEXT("var.make_temp_persistent."), &MakeTemporary<true>},
	{TEXT("var.set_ref."), &MakeSetByReference},
	{TEXT("struct.make."), &MakeStruct},
	{TEXT("struct.break."), &BreakStruct},
	{TEXT("literal."), &MakeLiteral},
	{TEXT("call.super"), &MakeParentCall},
	{TEXT("graph.comment"), &MakeOfClass<UEdGraphNode_Comment>},
	{TEXT("graph.docs"), &MakeOfClass<UEdGraphNode_Documentation>},
	{TEXT("call."), &MakeOperatorFunction},
};

UBlueprintNodeSpawner* MakeOfKind(const FString& Id, FPlace& Place)
{
	for (const FKind& Kind : Kinds)
	{
		Place.Name = Id;
		const bool bTakesName = FStringView(Kind.Prefix).EndsWith(TEXT('.'));
		if (Place.Name.RemoveFromStart(Kind.Prefix, ESearchCase::IgnoreCase) && Place.Name.IsEmpty() != bTakesName)
		{
			if (UBlueprintNodeSpawner* const Spawner = Kind.Make(Place))
			{
				return Spawner;
			}
		}
	}
	return nullptr;
}

UBlueprintNodeSpawner* MakeWithObject(const FString& Id)
{
	for (const FVexelOptionalObjectRule& Rule : FVexelNodeTypeRules::GetOptionalObjectRules())
	{
		FString Name = Id;
		if (Name.RemoveFromStart(Rule.Id, ESearchCase::IgnoreCase) && Name.RemoveFromStart(TEXT(".")))
		{
			return MakeOfRule(Rule, Name);
		}
	}
	return nullptr;
}

/** The action of an asset that was not loaded, or that the id names without what the engine adds to the names of its classes. */
UBlueprintNodeSpawner* FindActionOfAsset(const TVexelNodeTypeId& Id)
{
	TArray<FString> Segments;
	Id.ToString().ParseIntoArray(Segments, TEXT("."), true);
	constexpr int32 MaxSegments = 5;
	for (int32 Segment = 1; Segment < FMath::Min(Segments.Num(), MaxSegments); ++Segment)
	{
		VexelNamedObjects::LoadTypes(Segments[Segment]);
	}
	// Whatever has been loaded on the way here has brought its actions along.
	FVexelNodeTypeIndex& Index = FVexelNodeTypeIndex::Get();
	UBlueprintNodeSpawner* const Found = Index.Find(Id);
	return Found ? Found : Index.Find(TVexelNodeTypeId(Id.ToString() + TEXT("_C")));
}
}

UBlueprintNodeSpawner* VexelNamedNodeType::MakeSpawner(const TVexelNodeTypeId& Id, const UBlueprint& Blueprint, const UEdGraph* Graph)
{
	if (UBlueprintNodeSpawner* const WithObject = MakeWithObject(Id.ToString()))
	{
		return WithObject;
	}
	FPlace Place{Blueprint, Graph, FString()};
	if (UBlueprintNodeSpawner* const OfKind = MakeOfKind(Id.ToString(), Place))
	{
		return OfKind;
	}
	return FindActionOfAsset(Id);
}
