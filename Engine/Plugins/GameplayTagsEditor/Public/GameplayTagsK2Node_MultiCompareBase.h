#pragma once

#include "K2Node.h"
#include "K2Node_AddPinInterface.h"

#include "GameplayTagsK2Node_MultiCompareBase.generated.h"

/** Asks an owner of tags several questions at once: each has an input and an answer. */
UCLASS(abstract)
class GAMEPLAYTAGSEDITOR_API UGameplayTagsK2Node_MultiCompareBase : public UK2Node, public IK2Node_AddPinInterface
{
	GENERATED_BODY()

public:
	UPROPERTY()
	int32 NumberOfPins = 1;

	UPROPERTY()
	TArray<FName> PinNames;

	virtual void AllocateDefaultPins() override;
	virtual bool IsNodePure() const override { return true; }
	virtual FText GetMenuCategory() const override;

	// IK2Node_AddPinInterface
	virtual void AddInputPin() override;
	virtual void RemoveInputPin(UEdGraphPin* Pin) override;
	virtual bool CanRemovePin(const UEdGraphPin* Pin) const override;

protected:
	/** The input that has the tags. */
	virtual void CreateOwnerPin() {}
	/** The struct of what is asked for: one tag, or a container of them. */
	virtual UScriptStruct* GetCaseStruct() const { return nullptr; }

private:
	void CreateCase(FName CaseName);
	FName MakeCaseName() const;
	static FName GetAnswerName(FName CaseName);
};
