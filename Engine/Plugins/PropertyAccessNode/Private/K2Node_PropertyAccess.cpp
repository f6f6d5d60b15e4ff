#include "K2Node_PropertyAccess.h"

#include "UObject/Class.h"
#include "UObject/UnrealType.h"

#define LOCTEXT_NAMESPACE "K2Node"

FEdGraphPinType UK2Node_PropertyAccess::ResolveType() const
{
	FEdGraphPinType Type;
	const UStruct* Scope = GetBlueprintClassFromNode();
	for (const FString& Segment : Path)
	{
		const FProperty* const Property = Scope ? FindFProperty<FProperty>(Scope, *Segment) : nullptr;
		if (!Property || !GetK2Schema()->ConvertPropertyToPinType(Property, Type))
		{
			return FEdGraphPinType();
		}
		Scope = Type.IsContainer() ? nullptr : Cast<UStruct>(Type.PinSubCategoryObject.Get());
	}
	return Type;
}

void UK2Node_PropertyAccess::SetPath(const TArray<FString>& InPath)
{
	Modify();
	Path = InPath;
	TextPath = FText::FromString(FString::Join(Path, TEXT(".")));
	ResolvedPinType = ResolveType();
	ReconstructNode();
}

void UK2Node_PropertyAccess::AllocateDefaultPins()
{
	if (ResolvedPinType.PinCategory.IsNone())
	{
		CreatePin(EGPD_Output, UEdGraphSchema_K2::PC_Wildcard, TEXT("Value"));
		return;
	}
	CreatePin(EGPD_Output, ResolvedPinType, TEXT("Value"));
}

TArray<UEdGraphPin*> UK2Node_PropertyAccess::GetPinsOfOneType() const
{
	// A path decides the type for good.
	return ResolvedPinType.PinCategory.IsNone() ? TArray<UEdGraphPin*>({GetOutputPin()}) : TArray<UEdGraphPin*>();
}

FText UK2Node_PropertyAccess::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	return TextPath.IsEmpty() || TitleType == ENodeTitleType::MenuTitle ? LOCTEXT("PropertyAccess_Title", "Property Access") : TextPath;
}

FText UK2Node_PropertyAccess::GetTooltipText() const
{
	return LOCTEXT("PropertyAccess_Tooltip", "Accesses properties according to property path");
}

FText UK2Node_PropertyAccess::GetMenuCategory() const
{
	return LOCTEXT("PropertyAccess_Category", "Variables");
}

#undef LOCTEXT_NAMESPACE
