#pragma once

#include "Misc/Guid.h"

/** Changes of the data of the Blueprint system, in the order in which they came. Packages name the last one that they know. */
struct CORE_API FBlueprintsObjectVersion
{
	enum Type
	{
		BeforeCustomVersionWasAdded = 0,
		OverridenEventReferenceFixup = 1,
		CleanBlueprintFunctionFlags = 2,
		ArrayGetByRefUpgrade = 3,
		EdGraphPinOptimized = 4,
		AllowDeletionConformed = 5,
		AdvancedContainerSupport = 6,
		SCSHasComponentTemplateClass = 7,
		ComponentTemplateClassSupport = 8,
		ArrayGetFuncsReplacedByCustomNode = 9,
		DisallowObjectConfigVars = 10,

		LatestVersion = 10,
		VersionPlusOne = LatestVersion + 1
	};

	static const FGuid GUID;

	FBlueprintsObjectVersion() = delete;
};
