#pragma once

#include "BlueprintNodeSpawner.h"
#include "UObject/Class.h"
#include "UObject/UnrealType.h"

#include "BlueprintFieldNodeSpawner.generated.h"

class UK2Node;

/** An action about one member of a class, a function or a property, or about an enumeration. */
UCLASS(Transient)
class BLUEPRINTGRAPH_API UBlueprintFieldNodeSpawner : public UBlueprintNodeSpawner
{
	GENERATED_BODY()

public:
	DECLARE_DELEGATE_TwoParams(FSetNodeFieldDelegate, UEdGraphNode*, FFieldVariant);

	/** Tells the node which member it is about. */
	FSetNodeFieldDelegate SetNodeFieldDelegate;

	static UBlueprintFieldNodeSpawner* Create(
		TSubclassOf<UK2Node> NodeClass, FFieldVariant InField, UObject* Outer = nullptr, UClass const* OwnerClass = nullptr);

	virtual FBlueprintNodeSignature GetSpawnerSignature() const override;
	virtual UEdGraphNode* Invoke(UEdGraph* ParentGraph, FBindingSet const& Bindings, FVector2D const Location) const override;

	/** Null when what the action is about is gone. */
	FFieldVariant GetField() const;
	/** Null unless the action is about a function. */
	UFunction const* GetFunction() const { return Cast<UFunction>(FieldObject.Get()); }
	/** Null unless the action is about a property. */
	FProperty const* GetProperty() const;
	/** The class that the member is shown as one of. */
	UClass const* GetOwnerClass() const { return OwnerClass.Get(); }

protected:
	void SetField(FFieldVariant InField, UClass const* InOwnerClass);
	/** Whether the member is one of the class that a Blueprint makes, as nodes in the graph see it. */
	static bool IsMemberOfSelf(const UClass* MemberOwner, const UEdGraph* Graph);

private:
	TWeakObjectPtr<UField> FieldObject;
	/** A property is found by its name: it goes when its class is built again, and the class stays. */
	TWeakObjectPtr<UStruct> PropertyOwner;
	FName PropertyName;
	TWeakObjectPtr<UClass> OwnerClass;
};
