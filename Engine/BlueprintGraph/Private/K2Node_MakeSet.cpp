#include "K2Node_MakeSet.h"

#define LOCTEXT_NAMESPACE "K2Node"

UK2Node_MakeSet::UK2Node_MakeSet(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
	ContainerType = EPinContainerType::Set;
}

FText UK2Node_MakeSet::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	return LOCTEXT("MakeSet_Title", "Make Set");
}

#undef LOCTEXT_NAMESPACE
