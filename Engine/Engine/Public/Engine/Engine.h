#pragma once

#include "Containers/IndirectArray.h"
#include "CoreMinimal.h"
#include "Engine/EngineTypes.h"
#include "UObject/Object.h"
#include "UObject/ObjectMacros.h"

#include "Engine.generated.h"

class UWorld;

/** A world and what it is for. */
USTRUCT()
struct FWorldContext
{
	GENERATED_BODY()

	TEnumAsByte<EWorldType::Type> WorldType = EWorldType::None;

	UWorld* World() const { return ThisCurrentWorld; }
	void SetCurrentWorld(UWorld* World) { ThisCurrentWorld = World; }

private:
	UPROPERTY()
	TObjectPtr<UWorld> ThisCurrentWorld = nullptr;
};

/** What is done when an object gives no world. */
enum class EGetWorldErrorMode
{
	ReturnNull,
	LogAndReturnNull,
	Assert
};

/** What there is one of in a running editor or game. */
UCLASS(abstract, config = Engine, defaultconfig, transient)
class ENGINE_API UEngine : public UObject
{
	GENERATED_BODY()

public:
	FWorldContext& CreateNewWorldContext(EWorldType::Type WorldType);
	const TIndirectArray<FWorldContext>& GetWorldContexts() const { return WorldList; }
	FWorldContext* GetWorldContextFromWorld(const UWorld* InWorld);
	UWorld* GetWorldFromContextObject(const UObject* Object, EGetWorldErrorMode ErrorMode) const;
	/** Ticks every world. */
	virtual void Tick(float DeltaSeconds, bool bIdleMode);

	static void AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector);

protected:
	TIndirectArray<FWorldContext> WorldList;
};

/** The engine, from the host's start to its end. */
extern ENGINE_API UEngine* GEngine;
