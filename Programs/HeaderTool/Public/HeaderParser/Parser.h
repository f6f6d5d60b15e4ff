#pragma once

#include "HeaderParser/Model.h"

namespace HeaderParser
{
struct FParseLimits
{
	size_t MaxBytes = 16u << 20;
	/** Of braces, parentheses and template arguments. */
	int32_t MaxNesting = 200;
};

struct FParseResult
{
	/** The declarations that were understood. */
	FHeader Header;
	/** One for each declaration that was not, in their order, up to a hundred. Empty when the whole text was understood. */
	std::vector<FDiagnostic> Errors;

	[[nodiscard]] bool Succeeded() const { return Errors.empty(); }
};

/**
 * Reads one header. Declarations without a reflection macro are passed over. `Text` is UTF-8 and may be hostile.
 * Thread-safe; keeps nothing.
 */
[[nodiscard]] FParseResult ParseHeader(std::string_view Text, const FParseLimits& Limits = FParseLimits());

/** "path:line:col: error: message", the form that editors understand. */
[[nodiscard]] std::string FormatDiagnostic(std::string_view Path, const FDiagnostic& Diagnostic);
}
