#pragma once

/** Writes a document on one line, without blanks. */
template <class CharType>
struct TCondensedJsonPrintPolicy
{
	static constexpr bool bPretty = false;
};
