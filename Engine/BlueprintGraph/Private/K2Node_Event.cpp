#include "K2Node_Event.h"

#include "EdGraph/EdGraph.h"
#include "Engine/Blueprint.h"
#include "UObject/Class.h"
#include "UObject/PlaceholderObject.h"
#include "UObject/UnrealType.h"

#define LOCTEXT_NAMESPACE "K2Node"

const FName UK2Node_Event::DelegateOutputName(TEXT("OutputDelegate"));

UK2Node_Event::UK2Node_Event(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
	, bOverrideFunction(false)
	, bInternalEvent(false)
{
}

UFunction* UK2Node_Event::FindEventSignatureFunction() const
{
	return EventReference.GetMemberName().IsNone() ? nullptr : EventReference.ResolveMember<UFunction>(GetBlueprintClassFromNode());
}

FName UK2Node_Event::GetFunctionName() const
{
	return bOverrideFunction ? EventReference.GetMemberName() : CustomFunctionName;
}

bool UK2Node_Event::HasKnownDefinition() const
{
	return EventReference.GetMemberName().IsNone() || FindEventSignatureFunction() != nullptr;
}

bool UK2Node_Event::IsInterfaceEventNode() const
{
	const UClass* const Class = EventReference.GetMemberParentClass(GetBlueprintClassFromNode());
	return Class && Class->HasAnyClassFlags(CLASS_Interface);
}

bool UK2Node_Event::IsCompatibleWithGraph(const UEdGraph* TargetGraph) const
{
	const UEdGraphSchema* const Schema = TargetGraph->GetSchema();
	return Super::IsCompatibleWithGraph(TargetGraph) && Schema && Schema->GetGraphType(TargetGraph) == GT_Ubergraph;
}

namespace
{
/** The Blueprint's event that overrides the same function, or null. */
UK2Node_Event* FindSameOverride(const UK2Node_Event& Event, const UBlueprint& Blueprint)
{
	for (const UEdGraph* const Page : Blueprint.UbergraphPages)
	{
		TArray<UK2Node_Event*> Events;
		Page->GetNodesOfClass(Events);
		UK2Node_Event* const* const Found = Events.FindByPredicate([&Event](const UK2Node_Event* Other)
			{ return Other != &Event && Other->bOverrideFunction && Other->GetFunctionName() == Event.GetFunctionName(); });
		if (Found)
		{
			return *Found;
		}
	}
	return nullptr;
}
}

bool UK2Node_Event::CanPasteHere(const UEdGraph* TargetGraph) const
{
	const UBlueprint* const Blueprint = TargetGraph->GetTypedOuter<UBlueprint>();
	if (!Super::CanPasteHere(TargetGraph) || !IsCompatibleWithGraph(TargetGraph))
	{
		return false;
	}
	if (!bOverrideFunction || !Blueprint)
	{
		return true;
	}
	const UClass* const Self = Blueprint->SkeletonGeneratedClass.Get();
	const UClass* const Owner = EventReference.GetMemberParentClass(Blueprint->SkeletonGeneratedClass.Get());
	const bool bIsKnown = Owner && !UE::CoreUObject::IsPlaceholder(Owner);
	const bool bInherits = Self && bIsKnown &&
		(Self->GetAuthoritativeClass()->IsChildOf(const_cast<UClass*>(Owner)->GetAuthoritativeClass()) || Self->ImplementsInterface(Owner));
	const UK2Node_Event* const Existing = FindSameOverride(*this, *Blueprint);
	return (bInherits || !bIsKnown) && (!Existing || Existing->IsAutomaticallyPlacedGhostNode());
}

void UK2Node_Event::PostPasteNode()
{
	Super::PostPasteNode();
	const UBlueprint* const Blueprint = bOverrideFunction ? GetBlueprint() : nullptr;
	UK2Node_Event* const Ghost = Blueprint ? FindSameOverride(*this, *Blueprint) : nullptr;
	if (Ghost && Ghost->IsAutomaticallyPlacedGhostNode())
	{
		Ghost->GetGraph()->Modify();
		Ghost->Modify();
		Ghost->DestroyNode();
	}
}

void UK2Node_Event::FollowRenames()
{
	if (EventReference.GetMemberGuid().IsValid())
	{
		(void)FindEventSignatureFunction();
	}
}

void UK2Node_Event::AllocateDefaultPins()
{
	CreatePin(EGPD_Output, UEdGraphSchema_K2::PC_Delegate, DelegateOutputName);
	CreateThenPin();
	const UFunction* const Function = FindEventSignatureFunction();
	ForEachParameter(Function, [this](FProperty& Parameter, const FEdGraphPinType& Type)
		{
			if (IsFunctionInput(Parameter))
			{
				GeneratePinTooltip(*CreatePinWithDefault(EGPD_Output, Type, Parameter.GetFName()), FText::GetEmpty());
			} });
	Super::AllocateDefaultPins();
	UpdateDelegatePin();
}

FMulticastDelegateProperty* UK2Node_Event::FindDispatcher(const UClass* OwnerClass, FName PropertyName)
{
	return OwnerClass ? FindFProperty<FMulticastDelegateProperty>(OwnerClass, PropertyName) : nullptr;
}

FText UK2Node_Event::GetDispatcherName(const UClass* OwnerClass, FName PropertyName)
{
	const FMulticastDelegateProperty* const Property = FindDispatcher(OwnerClass, PropertyName);
	return Property ? Property->GetDisplayNameText() : FText::FromString(FName::NameToDisplayString(PropertyName.ToString(), false));
}

FText UK2Node_Event::GetDispatcherToolTip(const UClass* OwnerClass, FName PropertyName)
{
	const FMulticastDelegateProperty* const Property = FindDispatcher(OwnerClass, PropertyName);
	return Property ? Property->GetToolTipText() : FText::FromName(PropertyName);
}

UFunction* UK2Node_Event::FindDispatcherSignature(const UClass* OwnerClass, FName PropertyName)
{
	const FMulticastDelegateProperty* const Property = FindDispatcher(OwnerClass, PropertyName);
	return Property ? Property->SignatureFunction : nullptr;
}

void UK2Node_Event::BindToDispatcher(const FMulticastDelegateProperty& Dispatcher, FName OwnerName)
{
	const UBlueprint* const Blueprint = GetBlueprint();
	EventReference.SetFromField<UFunction>(Dispatcher.SignatureFunction, false);
	CustomFunctionName = FName(*FString::Printf(TEXT("BndEvt__%s_%s_%s_%s"), Blueprint ? *Blueprint->GetName() : TEXT(""),
		*OwnerName.ToString(), *GetName(), *Dispatcher.SignatureFunction->GetName()));
	bOverrideFunction = false;
	bInternalEvent = true;
}

void UK2Node_Event::SetDelegateSignature(const TCHAR* SignatureName)
{
	EventReference.SetExternalDelegateMember(FName(SignatureName));
	bInternalEvent = true;
}

FName UK2Node_Event::MakeInternalName(const TCHAR* Prefix, const FString& Subject) const
{
	return FName(*FString::Printf(TEXT("%s_%s_%s"), Prefix, *Subject, *GetName()));
}

void UK2Node_Event::CreateValuePin(FName PinName, FName Category, FName SubCategory, UObject* SubCategoryObject)
{
	if (!FindPin(PinName))
	{
		CreatePinWithDefault(EGPD_Output, Category, PinName, SubCategory, SubCategoryObject);
	}
}

void UK2Node_Event::UpdateDelegatePin()
{
	UEdGraphPin* const Pin = FindPin(DelegateOutputName);
	const UBlueprint* const Blueprint = GetBlueprint();
	if (!Pin)
	{
		return;
	}
	// The function stands in the class that the Blueprint makes, even while it has not been compiled.
	Pin->PinType.PinSubCategoryMemberReference.MemberParent = Blueprint ? Blueprint->GeneratedClass.Get() : nullptr;
	Pin->PinType.PinSubCategoryMemberReference.MemberName = GetFunctionName();
}

FText UK2Node_Event::GetLocalizedNetString(uint32 FunctionFlags, bool Calling)
{
	if (!(FunctionFlags & FUNC_Net))
	{
		return FText::GetEmpty();
	}
	if (FunctionFlags & FUNC_NetMulticast)
	{
		return LOCTEXT("CustomEvent_ReplicatedMulticast", "Executes On All");
	}
	if (FunctionFlags & FUNC_NetServer)
	{
		return LOCTEXT("CustomEvent_ReplicatedServer", "Executes On Server");
	}
	return FunctionFlags & FUNC_NetClient ? LOCTEXT("CustomEvent_ReplicatedClient", "Executes On Owning Client") : FText::GetEmpty();
}

FText UK2Node_Event::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	if (!bOverrideFunction && !(CustomFunctionName.IsNone()))
	{
		return FText::FromName(CustomFunctionName);
	}
	const UFunction* const Function = FindEventSignatureFunction();
	const FText Name = Function ? UEdGraphSchema_K2::GetFriendlySignatureName(Function)
								: FText::FromString(FName::NameToDisplayString(EventReference.GetMemberName().ToString(), false));
	const FText Title = FText::Format(LOCTEXT("EventName", "Event {0}"), Name);
	if (TitleType == ENodeTitleType::FullTitle && IsInterfaceEventNode())
	{
		return FText::Format(
			LOCTEXT("EventFromInterface", "{0}\nFrom {1}"), Title, FText::FromString(EventReference.GetMemberParentClass()->GetName()));
	}
	return Title;
}

FText UK2Node_Event::GetTooltipText() const
{
	const UFunction* const Function = FindEventSignatureFunction();
	return Function ? Function->GetToolTipText() : GetNodeTitle(ENodeTitleType::ListView);
}

FText UK2Node_Event::GetKeywords() const
{
	const UFunction* const Function = FindEventSignatureFunction();
	return Function ? Function->GetMetaDataText(FBlueprintMetadata::MD_FunctionKeywords) : FText::GetEmpty();
}

FText UK2Node_Event::GetMenuCategory() const
{
	const UFunction* const Function = FindEventSignatureFunction();
	const FText Category = Function ? Function->GetMetaDataText(FBlueprintMetadata::MD_FunctionCategory) : FText::GetEmpty();
	return Category.IsEmpty() ? LOCTEXT("AddEventCategory", "Add Event")
							  : FText::Format(LOCTEXT("AddEventSubCategory", "Add Event|{0}"), Category);
}

FName UK2Node_Event::GetCornerIcon() const
{
	return IsInterfaceEventNode() ? FName(TEXT("Graph.Event.InterfaceEventIcon")) : FName();
}

#undef LOCTEXT_NAMESPACE
