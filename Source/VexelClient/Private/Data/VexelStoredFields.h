#pragma once

#include "CoreMinimal.h"
#include "Dom/JsonObject.h"

/**
 * Reads the fields of a stored record that this version knows and keeps the others, so that what a later version wrote goes back
 * into the file as it came.
 */
class FVexelStoredFields
{
public:
	explicit FVexelStoredFields(const TSharedRef<FJsonObject>& Object);

	/** Each answers false, and counts the field as not read, where it is missing or of another type. */
	bool TryGetString(const TCHAR* Name, FString& OutText);
	bool TryGetBool(const TCHAR* Name, bool& bOutValue);
	bool TryGetArray(const TCHAR* Name, const TArray<TSharedPtr<FJsonValue>>*& OutArray);
	bool TryGetObject(const TCHAR* Name, const TSharedPtr<FJsonObject>*& OutObject);

	/** Counts a field as not read after all. */
	void PutBack(const TCHAR* Name) { NamesRead.Remove(Name); }

	/** The fields that were not read; null when all were. */
	TSharedPtr<FJsonObject> GetRest() const;

	/** Adds the kept fields that the record has not written itself. A null rest adds nothing. */
	static void WriteRest(const TSharedPtr<FJsonObject>& Rest, const TSharedRef<FJsonObject>& Record);

private:
	bool MarkRead(const TCHAR* Name, bool bRead);

	TSharedRef<FJsonObject> Object;
	/** Literals, or names that outlive this. */
	TArray<FStringView, TInlineAllocator<8>> NamesRead;
};
