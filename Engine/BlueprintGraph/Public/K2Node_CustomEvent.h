#pragma once

#include "K2Node_Event.h"

#include "K2Node_CustomEvent.generated.h"

/** An event that the Blueprint declares: others call it by name. */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_CustomEvent : public UK2Node_Event
{
	GENERATED_BODY()

public:
	UPROPERTY()
	bool bCallInEditor = false;

	UPROPERTY()
	bool bIsDeprecated = false;

	UPROPERTY()
	FString DeprecationMessage;

	UK2Node_CustomEvent(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	/** Makes an event of the name, or one close to it, with the function's parameters, and puts it into the graph. */
	static UK2Node_CustomEvent* CreateFromFunction(
		FVector2D GraphPosition, UEdGraph* ParentGraph, const FString& Name, const UFunction* Function, bool bSelectNewNode = true);
	virtual bool IsEditable() const override;
	/** True for an event that overrides one that a parent Blueprint declares. */
	bool IsOverride() const { return bOverrideFunction; }
	virtual bool CanCreateUserDefinedPin(
		const FEdGraphPinType& InPinType, EEdGraphPinDirection InDesiredDirection, FText& OutErrorMessage) override;
	void RenameCustomEventCloseToName(int32 StartIndex = 1);
	virtual void OnRenameNode(const FString& NewName) override;
	virtual void PostPasteNode() override;
	virtual void PostPlacedNewNode() override;
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
	virtual FText GetTooltipText() const override;
};
