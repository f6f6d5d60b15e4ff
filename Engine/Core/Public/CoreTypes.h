#pragma once

#include "HAL/Platform.h"
#include "Misc/CoreMiscDefines.h"
