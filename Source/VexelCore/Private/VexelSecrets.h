#pragma once

#include "CoreMinimal.h"

/** The secrets that went through this process, so that no text that leaves it holds one. Any thread. */
namespace VexelSecrets
{
/** Remembers a secret. Short texts are not remembered: words of a report would vanish for nothing. */
void Add(const FString& Secret);

/** The text with every remembered secret, and whatever follows "Bearer ", replaced. */
FString Redact(const FString& Text);
}
