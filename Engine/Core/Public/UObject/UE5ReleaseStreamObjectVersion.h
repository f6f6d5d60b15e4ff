#pragma once

#include "Misc/Guid.h"

/** Changes of the data of the engine's 5.x release branch, in the order in which they came. Packages name the last one that they know. */
struct CORE_API FUE5ReleaseStreamObjectVersion
{
	enum Type
	{
		BeforeCustomVersionWasAdded = 0,
		TextFormatArgumentData64bitSupport = 12,
		BlueprintPinsUseRealNumbers = 29,
		SerializeFloatPinDefaultValuesAsSinglePrecision = 36,

		LatestVersion = 56,
		VersionPlusOne = LatestVersion + 1
	};

	static const FGuid GUID;

	FUE5ReleaseStreamObjectVersion() = delete;
};
