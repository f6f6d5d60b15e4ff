#pragma once

#include "Subsystems/Subsystem.h"

#include "EngineSubsystem.generated.h"

/** A subsystem that lives as long as GEngine. */
UCLASS(Abstract)
class ENGINE_API UEngineSubsystem : public USubsystem
{
	GENERATED_BODY()
};
