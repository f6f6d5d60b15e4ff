#pragma once

#include "CoreMinimal.h"
#include "UObject/PropertyTag.h"

class FJsonObject;
class FJsonValue;
class FLinkerLoad;
class FPackageValues;

/**
 * Reads saved values as JSON from their tags alone, whether or not their classes are known here. A value that cannot be read is
 * told by its bytes. Nesting and the number of values are bounded.
 */
class FTaggedValueReader
{
public:
	explicit FTaggedValueReader(FPackageValues& InValues);

	/** The properties from here to the end of the list. False when a tag is damaged or ends beyond End; OutEnd is where it ended. */
	bool ReadProperties(int64 Start, int64 End, TArray<TSharedPtr<FJsonValue>>& OutProperties, int64& OutEnd);

private:
	using FValue = TSharedPtr<FJsonValue>;

	using FKindReader = FValue (*)(FTaggedValueReader& Self, const FPropertyTypeName& Type, int64 Size);

	/** The kinds whose values hold others or refer to the package's tables. */
	static const TMap<FName, FKindReader>& GetKindReaders();
	FValue ReadTagged(const FPropertyTag& Tag, int64 End);
	/** Null when the value cannot be read. Size is that of all elements' bytes, -1 where it is not known. */
	FValue Read(const FPropertyTypeName& Type, int64 Size);
	FValue ReadStruct(FName StructName, int64 Size);
	FValue ReadTaggedStruct();
	FValue ReadArray(const FPropertyTypeName& Type, int64 Size);
	FValue ReadSet(const FPropertyTypeName& Type);
	FValue ReadMap(const FPropertyTypeName& Type, int64 Size);
	FValue ReadPairs(const FPropertyTypeName& Key, const FPropertyTypeName& Value);
	FValue ReadElements(const FPropertyTypeName& Element, int32 Count, int64 Size);
	FValue ReadByte(const FPropertyTypeName& Type, int64 Size);
	FValue ReadDelegate();
	FValue ReadMulticastDelegate();
	FValue ReadFieldPath();
	FValue ReadOptional(const FPropertyTypeName& Type);
	FValue MakeBytes(int64 Start, int64 Size) const;

	FPackageValues& Values;
	FLinkerLoad& Linker;
	int32 Depth = 0;
	int64 NumValues = 0;
	int64 MaxValues;
};
