#pragma once

#include "Misc/Guid.h"

/** Changes of the editor's data, in the order in which they came. Packages name the last one that they know. */
struct CORE_API FEditorObjectVersion
{
	enum Type
	{
		BeforeCustomVersionWasAdded = 0,
		/** Packages have metadata of their own beside that of their objects. */
		RootMetaDataSupport = 3,
		TextFormatArgumentDataIsVariant = 5,
		AddedAlwaysSignNumberFormattingOption = 21,
		/** A text without identity keeps its string. */
		CultureInvariantTextSerializationKeyStability = 32,

		LatestVersion = 40,
		VersionPlusOne = LatestVersion + 1
	};

	static const FGuid GUID;

	FEditorObjectVersion() = delete;
};
