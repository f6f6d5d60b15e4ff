#pragma once

#include "Parser/TokenCursor.h"

namespace HeaderParser
{
/** Reads from UENUM to the end of the enum, or of the namespace around it. */
[[nodiscard]] bool ParseEnum(FTokenCursor& Cursor, FEnumDeclaration& Out);
}
