#pragma once

#include "Misc/Guid.h"

/**
 * Changes of the data of the gameplay framework and the graph system, in the order in which they came. Packages name the last one
 * that they know.
 */
struct CORE_API FFrameworkObjectVersion
{
	enum Type
	{
		BeforeCustomVersionWasAdded = 0,
		EdGraphPinContainerType = 26,
		ChangeAssetPinsToString = 27,
		LocalVariablesBlueprintVisible = 28,
		RemoveUField_Next = 29,
		UserDefinedStructsBlueprintVisible = 30,
		PinsStoreFName = 31,
		UserDefinedStructsStoreDefaultInstance = 32,
		FunctionTerminatorNodesUseMemberReference = 33,
		EditableEventsUseConstRefParameters = 34,
		BlueprintGeneratedClassIsAlwaysAuthoritative = 35,
		EnforceBlueprintFunctionVisibility = 36,
		StoringUCSSerializationIndex = 37,

		LatestVersion = 37,
		VersionPlusOne = LatestVersion + 1
	};

	static const FGuid GUID;

	FFrameworkObjectVersion() = delete;
};
