#pragma once

#include "CoreMinimal.h"
#include "UObject/ObjectMacros.h"

class UEnum;
class UUserDefinedEnum;

/**
 * Edits of enumerations that users make. Each is one transaction. Enumerators are numbered in their order; values in loaded
 * Blueprints follow their enumerator's name, and nodes that show the enumerators are made again.
 */
class UNREALED_API FEnumEditorUtils
{
public:
	/** An enumeration without enumerators. */
	static UEnum* CreateUserDefinedEnum(UObject* InParent, FName EnumName, EObjectFlags Flags);
	/** Adds "NewEnumeratorN", shown under that name until SetEnumeratorDisplayName. */
	static void AddNewEnumeratorForUserDefinedEnum(UUserDefinedEnum* Enum);
	/** Values of the removed enumerator become the first one's. */
	static void RemoveEnumeratorFromUserDefinedEnum(UUserDefinedEnum* Enum, int32 EnumeratorIndex);
	/** Puts the enumerator at the index that it has when it is taken out first. */
	static void MoveEnumeratorInUserDefinedEnum(UUserDefinedEnum* Enum, int32 InitialEnumeratorIndex, int32 TargetIndex);
	/** False for a name that another enumerator shows, or that is none. */
	static bool SetEnumeratorDisplayName(UUserDefinedEnum* Enum, int32 EnumeratorIndex, FText NewDisplayName);
	static bool IsEnumeratorDisplayNameValid(const UUserDefinedEnum* Enum, int32 EnumeratorIndex, const FText NewDisplayName);
	/** Whether an enumerator may have the name itself. */
	static bool IsProperNameForUserDefinedEnumerator(const UEnum* Enum, FString NewName);
	/** After an undo gave the enumeration back its old enumerators. */
	static void UpdateAfterUndo(UUserDefinedEnum* Enum);
};
