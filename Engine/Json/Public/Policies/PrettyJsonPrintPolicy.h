#pragma once

/** Indents with tabs: a field or element a line, but numbers and literals of an array on one, and an object of a field below its name. */
template <class CharType>
struct TPrettyJsonPrintPolicy
{
	static constexpr bool bPretty = true;
};
