#pragma once

#include "CoreMinimal.h"
#include "Engine/Blueprint.h"

#include "LevelScriptBlueprint.generated.h"

class ULevel;

/** A level's Blueprint. */
UCLASS(MinimalAPI)
class ENGINE_API ULevelScriptBlueprint : public UBlueprint
{
	GENERATED_BODY()

public:
	UPROPERTY()
	FString FriendlyName;

	ULevel* GetLevel() const;
	static FString CreateLevelScriptNameFromLevel(const ULevel* Level);
};
