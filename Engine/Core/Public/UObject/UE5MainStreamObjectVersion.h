#pragma once

#include "Misc/Guid.h"

/** Changes of the data of the engine's 5.x main branch, in the order in which they came. Packages name the last one that they know. */
struct CORE_API FUE5MainStreamObjectVersion
{
	enum Type
	{
		BeforeCustomVersionWasAdded = 0,
		EdGraphPinSourceIndex = 50,

		LatestVersion = 121,
		VersionPlusOne = LatestVersion + 1
	};

	static const FGuid GUID;

	FUE5MainStreamObjectVersion() = delete;
};
