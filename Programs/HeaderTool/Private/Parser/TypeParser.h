#pragma once

#include "Parser/TokenCursor.h"

namespace HeaderParser
{
/** Reads a reflected type with its `const`, `*` and `&`; the cursor then stands at the declared name. */
[[nodiscard]] bool ParseType(FTokenCursor& Cursor, FTypeReference& Out);

/** Sets the flags that a type gives to a property of it. */
[[nodiscard]] uint64_t GetTypePropertyFlags(const FTypeReference& Type);
}
