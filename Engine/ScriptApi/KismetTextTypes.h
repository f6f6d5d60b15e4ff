// Package: /Script/Engine
#pragma once

#include "CoreMinimal.h"
#include "KismetTextTypes.generated.h"

/** Where a search begins. */
UENUM(BlueprintType)
namespace ESearchDir
{
enum Type : int
{
	FromStart,
	FromEnd
};
}

/** Whether a kibibyte or a kilobyte is counted in. */
UENUM(BlueprintType)
enum class EMemoryUnitStandard : uint8
{
	IEC UMETA(DisplayName = "IEC"),
	SI UMETA(DisplayName = "SI")
};
