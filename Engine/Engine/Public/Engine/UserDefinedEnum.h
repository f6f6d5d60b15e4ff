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
	/** The enumerators that the last undo or redo replaced. */
	TArray<TPair<FName, int64>> TakeEnumeratorsBeforeUndo() { return MoveTemp(EnumeratorsBeforeUndo); }
	virtual void PreEditUndo() override;

private:
	UPROPERTY()
	uint32 UniqueNameIndex = 0;

	TArray<TPair<FName, int64>> EnumeratorsBeforeUndo;
};
