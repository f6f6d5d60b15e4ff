#include "K2Node_LoadAssetClass.h"

#define LOCTEXT_NAMESPACE "K2Node"

FText UK2Node_LoadAssetClass::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	return LOCTEXT("LoadAssetClass_Title", "Async Load Class Asset");
}

#undef LOCTEXT_NAMESPACE
