#pragma once

#include "VexelError.h"

/** Kinds of errors of the property model: kind, parent, title. */
#define LUM_ERROR_KINDS(Kind) \
	Kind(FLumError, FVexelError, "") \
		Kind(FLumError_Traverse, FLumError, "Traverse failed") \
			Kind(FLumError_Export, FLumError, "Export failed") \
				Kind(FLumError_Import, FLumError, "Import failed") \
					Kind(FLumError_Read, FLumError, "Read Error") \
						Kind(FLumError_Write, FLumError, "Write Error")

LUM_ERROR_KINDS(VEXEL_DECLARE_ERROR_KIND)
