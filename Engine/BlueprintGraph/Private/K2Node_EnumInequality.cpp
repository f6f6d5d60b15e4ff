#include "K2Node_EnumInequality.h"

#define LOCTEXT_NAMESPACE "K2Node"

FText UK2Node_EnumInequality::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	return LOCTEXT("EnumInequality_Title", "Not Equal (Enum)");
}

#undef LOCTEXT_NAMESPACE
