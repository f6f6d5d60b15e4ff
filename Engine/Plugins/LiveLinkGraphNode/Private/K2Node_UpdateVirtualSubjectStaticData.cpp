#include "K2Node_UpdateVirtualSubjectStaticData.h"

#define LOCTEXT_NAMESPACE "K2Node"

FText UK2Node_UpdateVirtualSubjectStaticData::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	return LOCTEXT("UpdateVirtualSubjectStaticData_Title", "Update Virtual Subject Static Data");
}

FText UK2Node_UpdateVirtualSubjectStaticData::GetTooltipText() const
{
	return LOCTEXT("UpdateVirtualSubjectStaticData_Tooltip", "Gives a virtual subject the data that stay the same from frame to frame.");
}

#undef LOCTEXT_NAMESPACE
