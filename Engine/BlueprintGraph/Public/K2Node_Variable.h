#pragma once

#include "Engine/MemberReference.h"
#include "K2Node.h"

#include "K2Node_Variable.generated.h"

/** Whether a variable node's target is "self", as old packages say. */
UENUM()
namespace ESelfContextInfo
{
enum Type : int
{
	Unspecified,
	NotSelfContext
};
}

/** A use of a variable. */
UCLASS(abstract)
class BLUEPRINTGRAPH_API UK2Node_Variable : public UK2Node
{
	GENERATED_BODY()

public:
	UPROPERTY()
	FMemberReference VariableReference;

	UPROPERTY()
	TEnumAsByte<ESelfContextInfo::Type> SelfContextInfo = ESelfContextInfo::Unspecified;

	/** Refers to the property as the Blueprint sees it. */
	void SetFromProperty(const FProperty* Property, bool bSelfContext, UClass* OwnerClass);
	/** Null when the variable is not known. */
	FProperty* GetPropertyForVariable() const;
	/** The class that declares the variable: the Blueprint's own for its own variables. */
	UClass* GetVariableSourceClass() const;
	FName GetVarName() const { return VariableReference.GetMemberName(); }
	FString GetVarNameString() const { return GetVarName().ToString(); }
	FText GetVarNameText() const { return FText::FromName(GetVarName()); }
	/** The pin of the variable's value that goes in or comes out; null on a node without one. */
	UEdGraphPin* GetValuePin() const { return FindPin(GetVarName()); }
	/** False when the variable is not known. */
	bool GetVariableType(FEdGraphPinType& OutType) const;
	virtual bool DrawNodeAsVariable() const override { return true; }
	virtual bool ReferencesVariable(const FName& InVarName, const UStruct* InScope) const override;
	virtual FName GetCornerIcon() const override { return FName(); }
	virtual void ValidateNodeDuringCompilation(class FCompilerResultsLog& MessageLog) const override;
	virtual bool HasKnownDefinition() const override;
	virtual FText GetTooltipText() const override;
	/** The value's pin has the variable's name, and goes on when the variable was found under another by its id. */
	virtual ERedirectType DoPinsMatchForReconstruction(
		const UEdGraphPin* NewPin, int32 NewPinIndex, const UEdGraphPin* OldPin, int32 OldPinIndex) const override;

protected:
	virtual void FollowRenames() override;
	UEdGraphPin* CreatePinForVariable(EEdGraphPinDirection Direction, FName InPinName = NAME_None);
	void CreatePinForSelf();
	/** "Get {0}" of the variable as a user reads it. */
	FText FormatTitle(const FText& Format) const;
};
