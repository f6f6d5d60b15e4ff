#pragma once

#include "CoreMinimal.h"
#include "VexelExpected.h"

class FProperty;
class UObject;

namespace LumValueText
{
/** Where a text comes from. */
enum class ESource : uint8
{
	/** Somebody gives it: it must mean all that it says. */
	Given,
	/** It was kept in a Blueprint, whose structs may have lost members since; what the text says of those is skipped. */
	Kept
};

/**
 * Reads the engine's text form of a value, all of it. What the text leaves out stays. Beyond what the engine refuses: text behind the
 * value, numbers that are none or do not fit, values that an enumeration does not have, references that Referrer, which may be null,
 * cannot have, and in a given text members that there are not. A refused text may have been read by half: give it a copy of the value.
 */
TVexelExpected<void> Read(const FProperty& Property, void* Value, const FString& Text, UObject* Referrer, ESource Source);
}
