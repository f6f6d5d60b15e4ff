#pragma once

#include "CoreMinimal.h"
#include "UObject/ObjectMacros.h"

#include "TimerHandle.generated.h"

/** Names one timer of one manager; a timer that has ended never gets its handle's number again. */
USTRUCT(BlueprintType)
struct FTimerHandle
{
	GENERATED_BODY()

	friend class FTimerManager;

	bool IsValid() const { return Handle != 0; }
	void Invalidate() { Handle = 0; }
	bool operator==(const FTimerHandle& Other) const { return Handle == Other.Handle; }
	friend uint32 GetTypeHash(const FTimerHandle& InHandle) { return GetTypeHash(InHandle.Handle); }
	FString ToString() const { return FString::Printf(TEXT("%llu"), Handle); }

private:
	UPROPERTY(Transient)
	uint64 Handle = 0;
};
