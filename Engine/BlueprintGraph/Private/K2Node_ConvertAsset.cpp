#include "K2Node_ConvertAsset.h"

#include "UObject/Class.h"

#define LOCTEXT_NAMESPACE "K2Node"

const UEdGraphPin* UK2Node_ConvertAsset::GetLinkedPin() const
{
	// What is linked to the reference decides; the other end does while nothing is.
	for (const UEdGraphPin* const Pin : {GetInputPin(), GetOutputPin()})
	{
		if (Pin && Pin->LinkedTo.Num() > 0)
		{
			return Pin->LinkedTo[0];
		}
	}
	return nullptr;
}

UClass* UK2Node_ConvertAsset::GetTargetClass() const
{
	const UEdGraphPin* const Linked = GetLinkedPin();
	UClass* const Class = Linked ? Cast<UClass>(Linked->PinType.PinSubCategoryObject.Get()) : nullptr;
	return Class ? Class : UObject::StaticClass();
}

bool UK2Node_ConvertAsset::IsAssetClassType() const
{
	const UEdGraphPin* const Linked = GetLinkedPin();
	return Linked &&
		(Linked->PinType.PinCategory == UEdGraphSchema_K2::PC_SoftClass || Linked->PinType.PinCategory == UEdGraphSchema_K2::PC_Class);
}

void UK2Node_ConvertAsset::AllocateDefaultPins()
{
	CreatePin(EGPD_Input, UEdGraphSchema_K2::PC_Wildcard, TEXT("Asset"));
	CreatePin(EGPD_Output, UEdGraphSchema_K2::PC_Wildcard, TEXT("Object"));
}

void UK2Node_ConvertAsset::RefreshPinTypes()
{
	UEdGraphPin* const Input = GetInputPin();
	UEdGraphPin* const Output = GetOutputPin();
	if (!Input || !Output)
	{
		return;
	}
	const bool bIsLinked = GetLinkedPin() != nullptr;
	const auto Retype = [this, bIsLinked](UEdGraphPin& Pin, const FName OfObject, const FName OfClass)
	{
		Pin.PinType.PinCategory = !bIsLinked ? UEdGraphSchema_K2::PC_Wildcard : IsAssetClassType() ? OfClass
																								   : OfObject;
		Pin.PinType.PinSubCategoryObject = bIsLinked ? GetTargetClass() : nullptr;
	};
	Retype(*Input, UEdGraphSchema_K2::PC_SoftObject, UEdGraphSchema_K2::PC_SoftClass);
	Retype(*Output, UEdGraphSchema_K2::PC_Object, UEdGraphSchema_K2::PC_Class);
}

void UK2Node_ConvertAsset::PostReconstructNode()
{
	Super::PostReconstructNode();
	RefreshPinTypes();
}

void UK2Node_ConvertAsset::NotifyPinConnectionListChanged(UEdGraphPin* Pin)
{
	Super::NotifyPinConnectionListChanged(Pin);
	RefreshPinTypes();
}

bool UK2Node_ConvertAsset::IsConnectionDisallowed(const UEdGraphPin* MyPin, const UEdGraphPin* OtherPin, FString& OutReason) const
{
	using Schema = UEdGraphSchema_K2;
	const FName Category = OtherPin->PinType.PinCategory;
	const bool bSoft = Category == Schema::PC_SoftObject || Category == Schema::PC_SoftClass;
	if (MyPin != GetInputPin() || bSoft || Category == Schema::PC_Wildcard)
	{
		return false;
	}
	OutReason = LOCTEXT("ConvertAsset_NoReference", "Only a soft reference can be resolved.").ToString();
	return true;
}

FText UK2Node_ConvertAsset::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	return LOCTEXT("ConvertAsset_Title", "Resolve Soft Reference");
}

FText UK2Node_ConvertAsset::GetCompactNodeTitle() const
{
	return LOCTEXT("ConvertAsset_Compact", "\u2022");
}

FText UK2Node_ConvertAsset::GetTooltipText() const
{
	return LOCTEXT("ConvertAsset_Tooltip",
		"Resolves a Soft Reference and gets the object it is pointing to. If the object is not in memory this will return none.");
}

FText UK2Node_ConvertAsset::GetMenuCategory() const
{
	return LOCTEXT("ConvertAsset_Category", "Utilities");
}

#undef LOCTEXT_NAMESPACE
