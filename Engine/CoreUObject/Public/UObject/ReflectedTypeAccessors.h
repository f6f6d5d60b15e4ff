#pragma once

#include "UObject/ObjectMacros.h"

class UClass;
class UEnum;
class UScriptStruct;

/** The emitted code specialises these for each reflected enum and struct. */
template <typename EnumType>
UEnum* StaticEnum();

template <typename ClassType>
UClass* StaticClass()
{
	return ClassType::StaticClass();
}

template <typename StructType>
UScriptStruct* StaticStruct()
{
	return StructType::StaticStruct();
}
