#pragma once

#include "K2Node.h"

#include "K2Node_ConstructObjectFromClass.generated.h"

/** Makes an object of a class that a pin names. */
UCLASS(abstract)
class BLUEPRINTGRAPH_API UK2Node_ConstructObjectFromClass : public UK2Node
{
	GENERATED_BODY()

public:
	UEdGraphPin* GetClassPin() const { return FindPin(TEXT("Class"), EGPD_Input); }
	UEdGraphPin* GetWorldContextPin() const { return FindPin(TEXT("WorldContextObject")); }
	UEdGraphPin* GetResultPin() const { return FindPin(UEdGraphSchema_K2::PN_ReturnValue, EGPD_Output); }
	UEdGraphPin* GetOuterPin() const { return FindPin(TEXT("Outer"), EGPD_Input); }
	/** The class that the pin names or that the linked class is below of; null when neither is known. */
	UClass* GetClassToSpawn() const;
	/** Whether the pin sets a property of what is spawned. */
	bool IsSpawnVarPin(UEdGraphPin* Pin) const;
	virtual bool HasKnownDefinition() const override { return IsKnownClassOrNone(GetClassToSpawn()); }
	virtual void AllocateDefaultPins() override;
	virtual void ReallocatePinsDuringReconstruction(TArray<UEdGraphPin*>& OldPins) override;
	virtual void NotifyPinConnectionListChanged(UEdGraphPin* Pin) override;
	virtual void PinDefaultValueChanged(UEdGraphPin* Pin) override;
	virtual void ValidateNodeDuringCompilation(class FCompilerResultsLog& MessageLog) const override;
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
	virtual FText GetMenuCategory() const override;

protected:
	virtual UClass* GetClassPinBaseClass() const { return UObject::StaticClass(); }
	virtual bool UseOuter() const { return false; }
	/** True where "self" has no world of its own to make the object in. */
	virtual bool UseWorldContext() const;
	/** Pins beside the class and the result. */
	virtual void CreateOwnPins() {}
	virtual FText GetBaseNodeTitle() const;
	virtual FText GetNodeTitleFormat() const;
	virtual FText GetNothingSelectedTitle() const;
	/** One input for each property of the class that is set when an object is spawned. */
	virtual void CreatePinsForClass(const UClass* InClass);
	void UpdateClassPins();
};
