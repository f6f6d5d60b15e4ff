#include "K2Node_GenericCreateObject.h"

#define LOCTEXT_NAMESPACE "K2Node"

#undef LOCTEXT_NAMESPACE
