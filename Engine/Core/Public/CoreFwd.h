#pragma once

#include "Containers/ContainersFwd.h"
#include "Containers/StringFwd.h"
#include "CoreTypes.h"

class FArchive;
class FName;
class FOutputDevice;
class FString;
class FText;
class UObject;
class UClass;
class UEnum;
class UFunction;
class UPackage;
class UScriptStruct;
class UStruct;
struct FDateTime;
struct FGuid;
struct FTimespan;
