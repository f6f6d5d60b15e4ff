#pragma once

#include "Subsystems/SubsystemCollection.h"
#include "UObject/Object.h"
#include "UObject/ObjectMacros.h"

#include "Subsystem.generated.h"

class FSubsystemCollectionBase;

/** Something that there is one of for as long as its owner lives, made without anybody asking. */
UCLASS(Abstract)
class ENGINE_API USubsystem : public UObject
{
	GENERATED_BODY()

public:
	virtual bool ShouldCreateSubsystem(UObject* Outer) const { return true; }
	virtual void Initialize(FSubsystemCollectionBase& Collection) {}
	virtual void Deinitialize() {}
};
