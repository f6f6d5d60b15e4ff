#include "EdGraphNode_Documentation.h"

#define LOCTEXT_NAMESPACE "EdGraph"

FText UEdGraphNode_Documentation::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	return TitleType == ENodeTitleType::MenuTitle || Excerpt.IsEmpty() ? LOCTEXT("Documentation_Block_Title", "UDN Documentation Excerpt")
																	   : FText::FromString(Excerpt);
}

FText UEdGraphNode_Documentation::GetTooltipText() const
{
	return Link.IsEmpty() ? GetNodeTitle(ENodeTitleType::ListView) : FText::FromString(Link);
}

#undef LOCTEXT_NAMESPACE
