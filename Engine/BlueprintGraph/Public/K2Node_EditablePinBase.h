#pragma once

#include "K2Node.h"

#include "K2Node_EditablePinBase.generated.h"

/** A pin that a user added. */
USTRUCT()
struct FUserPinInfo
{
	GENERATED_BODY()

	UPROPERTY()
	FName PinName;

	UPROPERTY()
	FEdGraphPinType PinType;

	UPROPERTY()
	TEnumAsByte<EEdGraphPinDirection> DesiredPinDirection = EGPD_Input;

	UPROPERTY()
	FString PinDefaultValue;

	friend FArchive& operator<<(FArchive& Ar, FUserPinInfo& Info);
};

/** A node to which a user adds pins: the ends of functions and macros, and custom events. */
UCLASS(abstract)
class BLUEPRINTGRAPH_API UK2Node_EditablePinBase : public UK2Node
{
	GENERATED_BODY()

public:
	UPROPERTY()
	uint32 bIsEditable : 1;

	TArray<TSharedPtr<FUserPinInfo>> UserDefinedPins;

	UK2Node_EditablePinBase(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	virtual bool IsEditable() const { return bIsEditable; }
	virtual bool CanModifyExecutionWires() { return false; }
	/** False, with the reason, when the node cannot have a pin of the type. */
	virtual bool CanCreateUserDefinedPin(const FEdGraphPinType& InPinType, EEdGraphPinDirection InDesiredDirection, FText& OutErrorMessage);
	/** Adds the pin to the definition and to the node; the name gets a number when it is in use. Null when the node has no such pins. */
	UEdGraphPin* CreateUserDefinedPin(
		const FName InPinName, const FEdGraphPinType& InPinType, EEdGraphPinDirection InDesiredDirection, bool bUseUniqueName = true);
	void RemoveUserDefinedPin(TSharedPtr<FUserPinInfo> PinToRemove);
	void RemoveUserDefinedPinByName(const FName PinName);
	/** Renames the definition with the pin; the callers of a function have pins of their own to rename. */
	virtual ERenamePinResult RenameUserDefinedPin(const FName OldName, const FName NewName, bool bTest = false) override;
	bool UserDefinedPinExists(const FName PinName) const;
	virtual bool ModifyUserDefinedPinDefaultValue(TSharedPtr<FUserPinInfo> PinInfo, const FString& NewDefaultValue);
	/** Gives the node the function's parameters as pins of its own. */
	bool CreateUserDefinedPinsForFunctionEntryExit(const UFunction* Function, bool bForFunctionEntry);

	virtual void AllocateDefaultPins() override;
	virtual void Serialize(FArchive& Ar) override;
	virtual void ExportCustomProperties(FOutputDevice& Out, uint32 Indent) override;
	virtual void ImportCustomProperties(const TCHAR* SourceText, FFeedbackContext* Warn) override;
	static void AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector);

protected:
	/** Makes the pin of one entry of UserDefinedPins. */
	virtual UEdGraphPin* CreatePinFromUserDefinition(const TSharedPtr<FUserPinInfo> NewPinInfo);
};
