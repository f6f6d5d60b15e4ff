#pragma once

#include "CoreMinimal.h"
#include "UObject/Field.h"

class FArchive;
class FOutputDevice;
class UObject;

/** Words of the text forms that several kinds of property read and write. */
namespace FPropertyHelpers
{
/**
 * Takes a quoted string, or a word, off the front. Null when there is neither or a quote stays open. Dotted names hold '.', ':' and '/'.
 */
COREUOBJECT_API const TCHAR* ReadToken(const TCHAR* Buffer, FString& OutString, bool bDottedNames = false);
/** In quotes, with quotes, backslashes and control characters escaped. */
COREUOBJECT_API FString QuoteAndEscape(const FString& Text);
COREUOBJECT_API const TCHAR* SkipWhitespace(const TCHAR* Buffer);
/** Writes the reason that a text was refused, with the property's path; does nothing when ErrorText is null. Answers null. */
COREUOBJECT_API const TCHAR* RefuseText(FOutputDevice* ErrorText, const FField* Property, const TCHAR* Reason, const TCHAR* Buffer);
/** The count of elements that follows, refused (archive error, 0) where the archive could not hold as many. */
COREUOBJECT_API int32 SerializeCount(FArchive& Ar, int32 Count);
}

/**
 * Counts how deep the value being read lies in other values. Types may hold arrays of themselves, so text and bytes from outside
 * choose the depth; beyond the limit they are refused before the stack ends.
 */
class COREUOBJECT_API FValueNesting
{
public:
	FValueNesting();
	~FValueNesting();
	FValueNesting(const FValueNesting&) = delete;
	FValueNesting& operator=(const FValueNesting&) = delete;

	bool IsTooDeep() const;
};
