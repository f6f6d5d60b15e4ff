#pragma once

#include "CoreMinimal.h"

class FJsonObject;
class FPackageValues;
class FTaggedValueReader;

/**
 * Reads what classes write behind an object's properties, as far as it is of use to those who make Blueprints: the pins of graph
 * nodes, the actors of levels, metadata, the rows of tables. What other classes write only they can read.
 */
class FNativeDataReader
{
public:
	FNativeDataReader(FPackageValues& InValues, FTaggedValueReader& InTagged)
		: Values(InValues)
		, Tagged(InTagged)
	{
	}

	/** Adds what the export has from Start on. False when that is damaged; OutEnd is where reading ended. */
	bool Read(int32 ExportIndex, int64 Start, int64 End, FJsonObject& OutExport, int64& OutEnd);

private:
	void ReadGraphNode(FJsonObject& Out, bool bMayHaveUserPins);
	void ReadLevel(FJsonObject& Out);
	void ReadWorld(FJsonObject& Out);
	void ReadMetaData(FJsonObject& Out);
	void ReadDataTable(FJsonObject& Out);
	void ReadStringTable(FJsonObject& Out);
	TArray<TSharedPtr<class FJsonValue>> ReadReferences();
	TSharedRef<FJsonObject> ReadNamedTexts();
	bool IsGraphNode(int32 ExportIndex) const;

	FPackageValues& Values;
	FTaggedValueReader& Tagged;
};
