#pragma once

#include "Parser/TokenCursor.h"

namespace HeaderParser
{
/** Reads `(A, B = C, meta = (K = "V"))`; the cursor stands at the parenthesis. */
[[nodiscard]] bool ParseSpecifiers(FTokenCursor& Cursor, FSpecifierList& Out);

/** Puts the comment before `Token` into MetaData as "ToolTip", as the engine cleans it. */
void AddToolTip(const FTokenCursor& Cursor, const FToken& Token, FMetaData& MetaData);

/** The text of a comment without its slashes, stars, rulers and common indentation. */
[[nodiscard]] std::string CleanComment(std::string_view Comment);

/** Value of the `// Key: Value` or `// Key` directive among the comments before the token; empty for the latter, null for none. */
[[nodiscard]] std::optional<std::string> FindDirective(const FTokenCursor& Cursor, const FToken& Token, std::string_view Key);
}
