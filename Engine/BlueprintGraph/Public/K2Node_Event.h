#pragma once

#include "Engine/MemberReference.h"
#include "K2Node_EditablePinBase.h"

#include "K2Node_Event.generated.h"

class FMulticastDelegateProperty;

/** Where execution starts when an event happens. */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_Event : public UK2Node_EditablePinBase
{
	GENERATED_BODY()

public:
	static const FName DelegateOutputName;

	/** The function that this event overrides, or the signature that it has. */
	UPROPERTY()
	FMemberReference EventReference;

	UPROPERTY()
	uint32 bOverrideFunction : 1;

	UPROPERTY()
	uint32 bInternalEvent : 1;

	/** Name of an event that overrides no function. */
	UPROPERTY()
	FName CustomFunctionName;

	/** EFunctionFlags beside those of an event: replication. */
	UPROPERTY()
	uint32 FunctionFlags = 0;

	UK2Node_Event(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	/** The function that gives the parameters; null when it is not known. */
	virtual UFunction* FindEventSignatureFunction() const;
	/** Name of the function that the compiler makes of the event. */
	virtual FName GetFunctionName() const;
	bool IsInterfaceEventNode() const;
	static FText GetLocalizedNetString(uint32 FunctionFlags, bool Calling);
	virtual bool DrawNodeAsEntry() const override { return true; }
	virtual bool IsNodeRootSet() const override { return true; }
	virtual bool NodeCausesStructuralBlueprintChange() const override { return true; }
	virtual bool IsCompatibleWithGraph(const UEdGraph* TargetGraph) const override;
	/** Each event of a parent or an interface once in a Blueprint; one that the editor placed as a suggestion gives way. */
	virtual bool CanPasteHere(const UEdGraph* TargetGraph) const override;
	virtual void PostPasteNode() override;
	virtual FName GetCornerIcon() const override;
	virtual void AllocateDefaultPins() override;
	virtual bool HasKnownDefinition() const override;
	virtual void ValidateNodeDuringCompilation(class FCompilerResultsLog& MessageLog) const override;
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
	virtual FText GetTooltipText() const override;
	virtual FText GetKeywords() const override;
	virtual FText GetMenuCategory() const override;

protected:
	virtual void FollowRenames() override;
	/** The dispatcher of the class; null while either is not known. */
	static FMulticastDelegateProperty* FindDispatcher(const UClass* OwnerClass, FName PropertyName);
	/** The dispatcher's name as a user reads it. */
	static FText GetDispatcherName(const UClass* OwnerClass, FName PropertyName);
	static FText GetDispatcherToolTip(const UClass* OwnerClass, FName PropertyName);
	/** A value that the event gives even while its signature is not known. */
	void CreateValuePin(FName PinName, FName Category, FName SubCategory, UObject* SubCategoryObject = nullptr);
	/** Makes the event one that the Blueprint binds by itself, with the parameters of a delegate type. */
	void SetDelegateSignature(const TCHAR* SignatureName);
	/** A name of the function for an event of its own: "InpAxisEvt_Turn_K2Node_InputAxisEvent_0". */
	FName MakeInternalName(const TCHAR* Prefix, const FString& Subject) const;
	/** The dispatcher's parameters; null while it is not known. */
	static UFunction* FindDispatcherSignature(const UClass* OwnerClass, FName PropertyName);
	/** Makes the event that of a dispatcher of OwnerName, a component or an actor. */
	void BindToDispatcher(const FMulticastDelegateProperty& Dispatcher, FName OwnerName);
	/** Tells the "OutputDelegate" pin which function it stands for. */
	void UpdateDelegatePin();
};
