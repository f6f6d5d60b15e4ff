#pragma once

#include "Parser/TokenCursor.h"

namespace HeaderParser
{
/** Each turns the specifiers of a declaration into its flags and metadata; a specifier that none knows is an error where it stands. */
[[nodiscard]] bool ApplyPropertySpecifiers(FTokenCursor& Cursor, FPropertyDeclaration& Property);
[[nodiscard]] bool ApplyFunctionSpecifiers(FTokenCursor& Cursor, FFunctionDeclaration& Function);
[[nodiscard]] bool ApplyClassSpecifiers(FTokenCursor& Cursor, FClassDeclaration& Class);
[[nodiscard]] bool ApplyStructSpecifiers(FTokenCursor& Cursor, FStructDeclaration& Struct);
[[nodiscard]] bool ApplyEnumSpecifiers(FTokenCursor& Cursor, FEnumDeclaration& Enum);
}
