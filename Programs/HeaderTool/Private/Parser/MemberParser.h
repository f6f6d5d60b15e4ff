#pragma once

#include "Parser/TokenCursor.h"

namespace HeaderParser
{
/** Reads from UPROPERTY to the semicolon. */
[[nodiscard]] bool ParseProperty(FTokenCursor& Cursor, EAccess Access, FPropertyDeclaration& Out);

/** Reads from UFUNCTION to the semicolon or the end of the body. */
[[nodiscard]] bool ParseFunction(FTokenCursor& Cursor, EAccess Access, FFunctionDeclaration& Out);

/** Whether a DECLARE_DYNAMIC_*DELEGATE* macro stands at the cursor, perhaps behind UDELEGATE(). */
[[nodiscard]] bool IsDelegate(const FTokenCursor& Cursor);
/** Reads the macro; OuterClass is empty outside classes. */
[[nodiscard]] bool ParseDelegate(FTokenCursor& Cursor, const std::string& OuterClass, FDelegateDeclaration& Out);
}
