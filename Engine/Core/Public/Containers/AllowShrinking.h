#pragma once

#include "CoreTypes.h"

/** Whether a call that takes elements away may give memory back. */
enum class EAllowShrinking : uint8
{
	No,
	Yes,
	Default = Yes
};
