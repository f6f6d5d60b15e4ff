#pragma once

#include "UObject/Class.h"
#include "UObject/ObjectMacros.h"

#include "UserDefinedStruct.generated.h"

/** What the last compile said of a user's structure. */
UENUM()
enum EUserDefinedStructureStatus : int
{
	UDSS_UpToDate,
	UDSS_Dirty,
	UDSS_Error,
	UDSS_Duplicate,
	UDSS_MAX
};

/** A structure that a user made as an asset. Its members' names carry an id behind them; see GetAuthoredNameForField. */
UCLASS()
class ENGINE_API UUserDefinedStruct : public UScriptStruct
{
	GENERATED_BODY()

public:
	UPROPERTY()
	TEnumAsByte<enum EUserDefinedStructureStatus> Status = UDSS_UpToDate;

	UPROPERTY()
	FGuid Guid;

	/** The editor's own description of the members. */
	UPROPERTY()
	TObjectPtr<UObject> EditorData = nullptr;

	using UScriptStruct::GetAuthoredNameForField;
	virtual FString GetAuthoredNameForField(const FField* Field) const override;
};
