#pragma once

#include "Engine/MemberReference.h"
#include "K2Node.h"

#include "K2Node_BaseMCDelegate.generated.h"

/** A use of an event dispatcher. */
UCLASS(abstract)
class BLUEPRINTGRAPH_API UK2Node_BaseMCDelegate : public UK2Node
{
	GENERATED_BODY()

public:
	UPROPERTY()
	FMemberReference DelegateReference;

	void SetFromProperty(const FProperty* Property, bool bSelfContext, UClass* OwnerClass);
	FProperty* GetProperty() const;
	FName GetPropertyName() const { return DelegateReference.GetMemberName(); }
	FText GetPropertyDisplayName() const;
	UFunction* GetDelegateSignature() const;
	UEdGraphPin* GetDelegatePin() const { return FindPin(UEdGraphSchema_K2::PN_Delegate); }
	virtual void AllocateDefaultPins() override;
	virtual void ValidateNodeDuringCompilation(class FCompilerResultsLog& MessageLog) const override;
	virtual bool HasKnownDefinition() const override;
	virtual FText GetMenuCategory() const override;

protected:
	/** The pin for the event, and the event that is linked to it, name the dispatcher's signature. */
	virtual void FollowRenames() override;
	/** The input that takes the event to bind. */
	void CreateDelegatePin();
};
