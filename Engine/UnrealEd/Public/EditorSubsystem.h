#pragma once

#include "Subsystems/Subsystem.h"

#include "EditorSubsystem.generated.h"

/** A subsystem that lives as long as GEditor. */
UCLASS(Abstract)
class UNREALED_API UEditorSubsystem : public USubsystem
{
	GENERATED_BODY()
};
