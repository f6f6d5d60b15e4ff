#pragma once

#include "Misc/Guid.h"

/** Changes of the data of the engine's release branches, in the order in which they came. Packages name the last one that they know. */
struct CORE_API FReleaseObjectVersion
{
	enum Type
	{
		BeforeCustomVersionWasAdded = 0,
		PinDefaultValuesVerified = 15,
		PropertiesSerializeRepCondition = 21,
		FFieldPathOwnerSerialization = 30,
		PinTypeIncludesUObjectWrapperFlag = 32,

		LatestVersion = 44,
		VersionPlusOne = LatestVersion + 1
	};

	static const FGuid GUID;

	FReleaseObjectVersion() = delete;
};
