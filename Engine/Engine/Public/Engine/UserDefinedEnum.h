#pragma once

#include "UObject/Class.h"
#include "UObject/ObjectMacros.h"

#include "UserDefinedEnum.generated.h"

/** An enumeration that a user made as an asset. Its enumerators' names are NewEnumeratorN; what the user reads is in DisplayNameMap. */
UCLASS()
class ENGINE_API UUserDefinedEnum : public UEnum
{
	GENERATED_BODY()

public:
	/** By the enumerator's short name. */
	UPROPERTY()
	TMap<FName, FText> DisplayNameMap;

	UPROPERTY()
	FText EnumDescription;

	virtual FText GetDisplayNameTextByIndex(int32 NameIndex) const override;
	FString GenerateNewEnumeratorName();

private:
	UPROPERTY()
	uint32 UniqueNameIndex = 0;
};
