#pragma once

#include "K2Node_EditablePinBase.h"
#include "K2Node_FunctionEntry.h"

#include "K2Node_Tunnel.generated.h"

/** An end of a macro or of a collapsed graph; on the outside, the node that stands for the graph. */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_Tunnel : public UK2Node_EditablePinBase
{
	GENERATED_BODY()

public:
	/** The tunnel at the other side that its outputs come from, and its inputs go to. */
	UPROPERTY()
	TObjectPtr<UK2Node_Tunnel> OutputSourceNode = nullptr;

	UPROPERTY()
	TObjectPtr<UK2Node_Tunnel> InputSinkNode = nullptr;

	UPROPERTY()
	uint32 bCanHaveInputs : 1;

	UPROPERTY()
	uint32 bCanHaveOutputs : 1;

	UPROPERTY()
	FKismetUserDeclaredFunctionMetadata MetaData;

	UK2Node_Tunnel(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	UK2Node_Tunnel* GetInputSink() const { return InputSinkNode; }
	UK2Node_Tunnel* GetOutputSource() const { return OutputSourceNode; }
	virtual bool CanModifyExecutionWires() override { return IsEditable(); }
	virtual bool CanCreateUserDefinedPin(
		const FEdGraphPinType& InPinType, EEdGraphPinDirection InDesiredDirection, FText& OutErrorMessage) override;
	virtual bool DrawNodeAsEntry() const override { return bCanHaveOutputs && !bCanHaveInputs; }
	virtual bool DrawNodeAsExit() const override { return bCanHaveInputs && !bCanHaveOutputs; }
	virtual bool IsNodeSafeToIgnore() const override { return true; }
	virtual bool CanUserDeleteNode() const override;
	virtual bool CanDuplicateNode() const override { return false; }
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
	virtual FText GetTooltipText() const override;
	/** The graph that the node stands for in another graph; null for an end of a graph. */
	virtual UEdGraph* GetExpansion() const { return nullptr; }
	/** Whether a node that stands for a graph has the pins that the graph's ends ask for now. */
	bool HasPinsOfExpansion() const;

protected:
	virtual UEdGraphPin* CreatePinFromUserDefinition(const TSharedPtr<FUserPinInfo> NewPinInfo) override;
	/** Makes an input of each output of the graph's entry, and an output of each input of its exit. */
	void CreatePinsOfExpansion();
	/** Visits the pins of the graph's ends, the entry's first, each with its direction on this node. */
	void ForEachPinOfExpansion(TFunctionRef<void(const UEdGraphPin& Inner, EEdGraphPinDirection Direction)> Visit) const;
	/** The type that a pin of the graph's end has on this node. */
	virtual FEdGraphPinType GetOuterType(const UEdGraphPin& Inner) const { return Inner.PinType; }
};
