#pragma once

#include "CoreMinimal.h"

class UEnum;

namespace UE::CoreUObject::Private
{
/** The text of an enum's value: "(INVALID)" for one that is none of its values or its maximum, which only a copy's text has by name. */
void ExportEnumerator(FString& ValueStr, const UEnum& Enum, int64 Value, int32 PortFlags);

/** Reads an enumerator's name, short or full. Null, with the value untouched, for what is none. */
const TCHAR* ImportEnumerator(const TCHAR* Text, const UEnum& Enum, int64& OutValue);
}
