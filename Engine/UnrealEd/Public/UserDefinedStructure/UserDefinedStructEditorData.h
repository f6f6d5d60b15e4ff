#pragma once

#include "EdGraph/EdGraphPin.h"
#include "UObject/Object.h"
#include "UObject/SoftObjectPtr.h"

#include "UserDefinedStructEditorData.generated.h"

class UUserDefinedStruct;

/** A member of a user's structure as the user declared it. */
USTRUCT()
struct FStructVariableDescription
{
	GENERATED_BODY()

	/** Name of the property: what the user typed, a number and the id. */
	UPROPERTY()
	FName VarName;

	UPROPERTY()
	FGuid VarGuid;

	UPROPERTY()
	FString FriendlyName;

	/** In the property's text form; empty for the type's own default. */
	UPROPERTY()
	FString DefaultValue;

	UPROPERTY()
	FName Category;

	UPROPERTY()
	FName SubCategory;

	UPROPERTY()
	TSoftObjectPtr<UObject> SubCategoryObject;

	UPROPERTY()
	FEdGraphTerminalType PinValueType;

	UPROPERTY()
	EPinContainerType ContainerType = EPinContainerType::None;

	/** The type is not known, or cannot be a member. */
	UPROPERTY(Transient)
	bool bInvalidMember = false;

	UPROPERTY()
	bool bDontEditOnInstance = false;

	UPROPERTY()
	bool bEnableSaveGame = false;

	UPROPERTY()
	bool bEnableMultiLineText = false;

	UPROPERTY()
	bool bEnable3dWidget = false;

	UPROPERTY()
	FString ToolTip;

	UPROPERTY()
	TMap<FName, FString> MetaData;

	UNREALED_API bool SetPinType(const FEdGraphPinType& VarType);
	UNREALED_API FEdGraphPinType ToPinType() const;
};

/** The members of a user's structure in their order. The structure itself is made of it and follows an undo of it. */
UCLASS()
class UNREALED_API UUserDefinedStructEditorData : public UObject
{
	GENERATED_BODY()

public:
	UPROPERTY()
	TArray<FStructVariableDescription> VariablesDescriptions;

	UPROPERTY()
	FString ToolTip;

	UUserDefinedStruct* GetOwnerStruct() const;
	/** A number that no member of the structure has had. */
	uint32 GenerateUniqueNameIdForMemberVariable();
	virtual void PostEditUndo() override;

private:
	UPROPERTY()
	uint32 UniqueNameId = 0;
};
