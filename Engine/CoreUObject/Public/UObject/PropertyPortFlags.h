#pragma once

#include "CoreTypes.h"

/** How text of property values is written, read and compared; combined into the `int32 PortFlags` of the text functions. */
enum EPropertyPortFlags
{
	PPF_None = 0x00000000,
	/** The text is a class's default properties. */
	PPF_ParsingDefaultProperties = 0x00000001,
	/** The text is for a person in a details panel: numbers without trailing zeros, members by friendly name. */
	PPF_PropertyWindow = 0x00000002,
	/** Strings and names stand in quotes, as members of a struct do. */
	PPF_Delimited = 0x00000004,
	/** Transient members are written too. */
	PPF_IncludeTransient = 0x00000008,
	/** Objects are compared by their members instead of by identity. */
	PPF_DeepComparison = 0x00000010,
	PPF_DeepCompareInstances = 0x00000020,
	/** The text goes through the clipboard. */
	PPF_Copy = 0x00000040,
	PPF_Duplicate = 0x00000080,
	PPF_DuplicateVerbatim = 0x00000100,
	PPF_DuplicateForPIE = 0x00000200,
	/** Only properties that hold sub-objects are written. */
	PPF_SubobjectsOnly = 0x00000400,
	/** A comparison that decides whether a value differs from its default. */
	PPF_DeltaComparison = 0x00000800,
	PPF_DebugDump = 0x00001000,
	/** Names without their package where the exported root makes them unique. */
	PPF_ExportsNotFullyQualified = 0x00002000,
	PPF_SeparateDefine = 0x00004000,
	/** An object's path without its class. */
	PPF_SimpleObjectText = 0x00008000,
	PPF_UseDeprecatedProperties = 0x00010000,
	PPF_BlueprintDebugView = 0x00020000,
	/** A struct's members are all written, equal to their default or not. */
	PPF_ExternalEditor = 0x00040000,
	PPF_AttemptNonQualifiedSearch = 0x00080000,
	PPF_NoInternalArcheType = 0x00100000,
	PPF_ForDiff = 0x00200000,
	PPF_CheckReferences = 0x00400000,
	/** The value is written as the text that a property's metadata-free serialization uses. */
	PPF_SerializedAsImportText = 0x00800000,
	PPF_ConsoleVariable = 0x01000000,
	PPF_InstanceSubobjects = 0x02000000
};
