#pragma once

#include "UObject/ObjectMacros.h"

/** Flags of objects that a collection in the editor keeps. */
#define GARBAGE_COLLECTION_KEEPFLAGS RF_Standalone
