#include "K2Node_CreateDragDropOperation.h"

#include "UObject/Class.h"
#include "UObject/UObjectGlobals.h"

#define LOCTEXT_NAMESPACE "K2Node"

UClass* UK2Node_CreateDragDropOperation::GetClassPinBaseClass() const
{
	UClass* const Class = FindObject<UClass>(nullptr, TEXT("/Script/UMG.DragDropOperation"));
	return Class ? Class : UObject::StaticClass();
}

FText UK2Node_CreateDragDropOperation::GetBaseNodeTitle() const
{
	return LOCTEXT("CreateDragDropOperation_BaseTitle", "Create Drag & Drop Operation");
}

FText UK2Node_CreateDragDropOperation::GetNodeTitleFormat() const
{
	return LOCTEXT("CreateDragDropOperation", "Create {0}");
}

FText UK2Node_CreateDragDropOperation::GetNothingSelectedTitle() const
{
	return LOCTEXT("CreateDragDropOperation_Title_NONE", "Construct NONE");
}

FText UK2Node_CreateDragDropOperation::GetMenuCategory() const
{
	return LOCTEXT("CreateDragDropOperation_Category", "Drag and Drop");
}

#undef LOCTEXT_NAMESPACE
