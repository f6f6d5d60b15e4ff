#pragma once

#include "CoreMinimal.h"
#include "EdGraph/EdGraphPin.h"
#include "VexelExpected.h"
#include "VexelId.h"

struct FAssetData;

/** Turns pin types into ids such as "array|object.Actor" and back. Game thread, because reading an id may load an asset. */
class FVexelBlueprintPropTypeBuilder
{
public:
	/**
	 * The id of a pin type; empty, with a log line, for one that has none. SubCategoryAsset names the type's class, struct or
	 * enumeration where that is an asset that is not loaded; it may be null.
	 */
	static TVexelPropTypeId MakeId(const FEdGraphPinType& PinType, const FAssetData* SubCategoryAsset = nullptr);

	/** The id of references to a class, or of values of a struct. */
	static TVexelPropTypeId MakeStructId(const UStruct& Struct);

	/** "BP_Door" of "BP_Door_C". */
	static FString GetTypeName(const UObject& Type);

	/** Who reads an id; it decides how a failure is worded. */
	enum class ECaller : uint8
	{
		Reference,
		Mapping
	};
	/** The pin type that an id names. A failure is logged, and is an FVexelError whose message is the line logged. */
	static TVexelExpected<FEdGraphPinType> ParseId(const TVexelPropTypeId& Id, ECaller Caller = ECaller::Reference);

	/** The record of a pin type. Its description comes from the type's own tooltip. */
	static TSharedRef<FVexelBlueprintPropType> MakePropType(const FEdGraphPinType& PinType, const FAssetData* SubCategoryAsset = nullptr);
};
