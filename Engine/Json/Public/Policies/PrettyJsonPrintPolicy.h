#pragma once

/** Writes a field or element a line, indented with tabs. */
template <class CharType>
struct TPrettyJsonPrintPolicy
{
	static constexpr bool bPretty = true;
};
