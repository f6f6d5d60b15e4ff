#include "K2Node_MakeArray.h"

#define LOCTEXT_NAMESPACE "K2Node"

UK2Node_MakeArray::UK2Node_MakeArray(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
	ContainerType = EPinContainerType::Array;
}

FText UK2Node_MakeArray::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	return LOCTEXT("MakeArray_Title", "Make Array");
}

#undef LOCTEXT_NAMESPACE
