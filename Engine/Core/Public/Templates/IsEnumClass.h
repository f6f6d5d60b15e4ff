#pragma once

#include "Templates/UnrealTypeTraits.h"
