#include "K2Node_GetEnumeratorNameAsString.h"

#define LOCTEXT_NAMESPACE "K2Node"

FText UK2Node_GetEnumeratorNameAsString::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	return LOCTEXT("GetEnumeratorNameAsString_Title", "Enum to String");
}

#undef LOCTEXT_NAMESPACE
