#pragma once

#include "CoreMinimal.h"
#include "Misc/Optional.h"

/** Takes back the last edit of the editor, or makes it again. Answers why it cannot, or nothing and, in OutWhat, what edit it was. */
TOptional<FString> TakeUndoStep(bool bBack, FString& OutWhat);
