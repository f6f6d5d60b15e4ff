#pragma once

#include "K2Node.h"

#include "K2Node_PropertyAccess.generated.h"

/** Reads a property by its path, from another thread where that is needed. */
UCLASS()
class PROPERTYACCESSNODE_API UK2Node_PropertyAccess : public UK2Node
{
	GENERATED_BODY()

public:
	/** The members from the Blueprint's own to the one that is read. */
	UPROPERTY()
	TArray<FString> Path;

	UPROPERTY()
	FText TextPath;

	UPROPERTY()
	FEdGraphPinType ResolvedPinType;

	UPROPERTY()
	FName ContextId;

	/** Reads another property; Path names members of the Blueprint's class, each of the one before it. */
	void SetPath(const TArray<FString>& InPath);
	void ClearPath() { SetPath(TArray<FString>()); }
	UEdGraphPin* GetOutputPin() const { return FindPin(TEXT("Value"), EGPD_Output); }
	virtual void AllocateDefaultPins() override;
	virtual bool IsNodePure() const override { return true; }
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
	virtual FText GetTooltipText() const override;
	virtual FText GetMenuCategory() const override;

protected:
	virtual TArray<UEdGraphPin*> GetPinsOfOneType() const override;

private:
	/** The type of what the path leads to; none when it leads nowhere. */
	FEdGraphPinType ResolveType() const;
};
