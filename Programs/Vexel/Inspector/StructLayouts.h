#pragma once

#include "CoreMinimal.h"

class FArchive;
class FJsonObject;

/** Structs whose bytes have a fixed layout instead of tags. */
namespace StructLayouts
{
/** Reads one; null when the struct has no such layout. */
TSharedPtr<FJsonObject> Read(FArchive& Ar, FName StructName);
/** Whether the struct is one of them. */
bool Has(FName StructName);
}

/** A number as JSON can hold it: one that it cannot is written as text. */
TSharedPtr<class FJsonValue> MakeJsonNumber(double Number);
TSharedPtr<class FJsonValue> MakeJsonInteger(int64 Number);
