#include "K2Node_CustomEvent.h"

#include "EdGraph/EdGraph.h"
#include "Engine/Blueprint.h"
#include "K2Node_CallFunction.h"
#include "K2Node_CreateDelegate.h"
#include "UObject/Class.h"
#include "UObject/UObjectHash.h"

#define LOCTEXT_NAMESPACE "K2Node"

namespace
{
/** Names that no custom event of the node's Blueprint may have. */
class FTakenNames
{
public:
	explicit FTakenNames(const UK2Node_CustomEvent& Node)
	{
		const UBlueprint* const Blueprint = Node.GetBlueprint();
		if (!Blueprint)
		{
			return;
		}
		Parent = Blueprint->ParentClass.Get();
		TArray<UEdGraph*> Graphs;
		Blueprint->GetAllGraphs(Graphs);
		for (const UEdGraph* const Graph : Graphs)
		{
			Names.Add(Graph->GetFName());
			TArray<UK2Node_Event*> Events;
			Graph->GetNodesOfClass(Events);
			for (const UK2Node_Event* const Event : Events)
			{
				if (Event != &Node)
				{
					Names.Add(Event->GetFunctionName());
				}
			}
		}
		for (const FBPVariableDescription& Variable : Blueprint->NewVariables)
		{
			Names.Add(Variable.VarName);
		}
	}

	bool Contains(FName Name) const
	{
		return Names.Contains(Name) || (Parent && (Parent->FindFunctionByName(Name) || Parent->FindPropertyByName(Name)));
	}

private:
	TSet<FName> Names;
	const UClass* Parent = nullptr;
};

template <class NodeType>
void ForEachNode(TFunctionRef<void(NodeType&)> Visit)
{
	TArray<UObject*> Nodes;
	GetObjectsOfClass(NodeType::StaticClass(), Nodes, true, RF_ClassDefaultObject, EInternalObjectFlags::Garbage);
	for (UObject* const Node : Nodes)
	{
		Visit(*CastChecked<NodeType>(Node));
	}
}

bool IsClassOf(const UClass* Class, const UBlueprint* Blueprint)
{
	for (; Class; Class = Class->GetSuperClass())
	{
		if (Class->ClassGeneratedBy == Blueprint)
		{
			return true;
		}
	}
	return false;
}

/** Calls and overrides of the event, and delegates made of it, know it by its name, in all loaded Blueprints. */
void RenameUses(const UK2Node_CustomEvent& Event, FName NewName)
{
	const FName OldName = Event.CustomFunctionName;
	const UBlueprint* const Blueprint = Event.GetBlueprint();
	const auto Rename = [&](UK2Node& User, FMemberReference& Reference)
	{
		if (Reference.GetMemberName() == OldName && IsClassOf(Reference.GetScope(User.GetBlueprintClassFromNode()), Blueprint))
		{
			User.Modify();
			Reference.SetDirect(NewName, Reference.GetMemberGuid(), Reference.GetMemberParentClass(), Reference.IsSelfContext());
		}
	};
	ForEachNode<UK2Node_CallFunction>([&](UK2Node_CallFunction& Call)
		{ Rename(Call, Call.FunctionReference); });
	ForEachNode<UK2Node_Event>([&](UK2Node_Event& Override)
		{
			if (Override.bOverrideFunction)
			{
				Rename(Override, Override.EventReference);
			} });
	ForEachNode<UK2Node_CreateDelegate>([&](UK2Node_CreateDelegate& Delegate)
		{
			if (Delegate.GetFunctionName() == OldName && IsClassOf(Delegate.GetScopeClass(), Blueprint))
			{
				Delegate.Modify();
				Delegate.SetFunction(NewName);
			} });
}
}

UK2Node_CustomEvent::UK2Node_CustomEvent(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
	FunctionFlags = FUNC_BlueprintCallable | FUNC_BlueprintEvent | FUNC_Public;
	bIsEditable = true;
	bCanRenameNode = true;
}

UK2Node_CustomEvent* UK2Node_CustomEvent::CreateFromFunction(
	FVector2D GraphPosition, UEdGraph* ParentGraph, const FString& Name, const UFunction* Function, bool bSelectNewNode)
{
	UK2Node_CustomEvent* const Event = Cast<UK2Node_CustomEvent>(ParentGraph->CreateNode(StaticClass(), bSelectNewNode));
	Event->CreateNewGuid();
	Event->CustomFunctionName = FName(*Name);
	Event->PostPlacedNewNode();
	Event->AllocateDefaultPins();
	ForEachParameter(Function, [Event](FProperty& Parameter, const FEdGraphPinType& Type)
		{
			if (IsFunctionInput(Parameter))
			{
				Event->CreateUserDefinedPin(Parameter.GetFName(), Type, EGPD_Output);
			} });
	Event->NodePosX = static_cast<int32>(GraphPosition.X);
	Event->NodePosY = static_cast<int32>(GraphPosition.Y);
	Event->SetFlags(RF_Transactional);
	return Event;
}

bool UK2Node_CustomEvent::IsEditable() const
{
	// The parameters of an override are the overridden event's.
	return Super::IsEditable() && !bOverrideFunction;
}

bool UK2Node_CustomEvent::CanCreateUserDefinedPin(
	const FEdGraphPinType& InPinType, EEdGraphPinDirection InDesiredDirection, FText& OutErrorMessage)
{
	if (InDesiredDirection == EGPD_Input)
	{
		OutErrorMessage = LOCTEXT("AddInputPinErrorCustomEvent", "Cannot add input pins to custom event node!");
		return false;
	}
	return Super::CanCreateUserDefinedPin(InPinType, InDesiredDirection, OutErrorMessage);
}

void UK2Node_CustomEvent::RenameCustomEventCloseToName(int32 StartIndex)
{
	const FString BaseName = CustomFunctionName.IsNone() ? TEXT("CustomEvent") : CustomFunctionName.ToString();
	const FTakenNames Taken(*this);
	FName Name(*BaseName);
	for (int32 Index = StartIndex; Taken.Contains(Name); ++Index)
	{
		Name = FName(*FString::Printf(TEXT("%s_%d"), *BaseName, Index));
	}
	CustomFunctionName = Name;
}

void UK2Node_CustomEvent::OnRenameNode(const FString& NewName)
{
	const FName Name(*NewName);
	if (!NewName.IsEmpty() && !FTakenNames(*this).Contains(Name))
	{
		RenameUses(*this, Name);
		Modify();
		CustomFunctionName = Name;
		UpdateDelegatePin();
	}
}

void UK2Node_CustomEvent::PostPlacedNewNode()
{
	if (!bOverrideFunction)
	{
		RenameCustomEventCloseToName(0);
	}
}

void UK2Node_CustomEvent::PostPasteNode()
{
	Super::PostPasteNode();
	RenameCustomEventCloseToName();
}

FText UK2Node_CustomEvent::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	if (TitleType != ENodeTitleType::FullTitle)
	{
		return CustomFunctionName.IsNone() ? LOCTEXT("AddCustomEvent", "Add Custom Event...") : FText::FromName(CustomFunctionName);
	}
	const FText Net = GetLocalizedNetString(FunctionFlags, false);
	return Net.IsEmpty()
		? FText::Format(LOCTEXT("CustomEvent_Title", "{0}\nCustom Event"), FText::FromName(CustomFunctionName))
		: FText::Format(LOCTEXT("CustomEvent_NetTitle", "{0}\n{1}\nCustom Event"), FText::FromName(CustomFunctionName), Net);
}

FText UK2Node_CustomEvent::GetTooltipText() const
{
	return LOCTEXT("AddCustomEvent_Tooltip", "An event with customizable name and parameters.");
}

#undef LOCTEXT_NAMESPACE
