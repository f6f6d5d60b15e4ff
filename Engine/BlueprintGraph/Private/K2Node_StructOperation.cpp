#include "K2Node_StructOperation.h"

#include "UObject/Class.h"
#include "UObject/PlaceholderObject.h"

#define LOCTEXT_NAMESPACE "K2Node"

bool UK2Node_StructOperation::HasKnownDefinition() const
{
	// A struct that is only named somewhere, and not loaded, has no members.
	return StructType && !UE::CoreUObject::IsPlaceholder(StructType);
}

FText UK2Node_StructOperation::GetStructName() const
{
	return StructType ? StructType->GetDisplayNameText() : LOCTEXT("UnknownStruct", "<unknown struct>");
}

FText UK2Node_StructOperation::GetMenuCategory() const
{
	return LOCTEXT("StructCategory", "Utilities|Struct");
}

#undef LOCTEXT_NAMESPACE
