#pragma once

#include "Misc/Guid.h"

/** Changes of the object system's own data, in the order in which they came. Packages name the last one that they know. */
struct CORE_API FCoreObjectVersion
{
	enum Type
	{
		BeforeCustomVersionWasAdded = 0,
		/** Enumerators have 64-bit values. */
		EnumProperties = 2,
		/** Properties are fields of their own instead of objects. */
		FProperties = 4,

		LatestVersion = 4,
		VersionPlusOne = LatestVersion + 1
	};

	static const FGuid GUID;

	FCoreObjectVersion() = delete;
};
