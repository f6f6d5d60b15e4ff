#pragma once

#include "Templates/Function.h"

struct FLogCategoryBase;

/** Calls the function for every category of every module, under the list's lock. */
void ForEachLogCategory(TFunctionRef<void(FLogCategoryBase&)> Function);
