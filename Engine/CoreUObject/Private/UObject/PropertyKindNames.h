#pragma once

#include "UObject/NameTypes.h"

/** The names of property classes that tags are asked for. Made once: a name from text takes a look into the table of names. */
struct FPropertyKindNames
{
	const FName Array{TEXT("ArrayProperty")};
	const FName Bool{TEXT("BoolProperty")};
	const FName Byte{TEXT("ByteProperty")};
	const FName Enum{TEXT("EnumProperty")};
	const FName Map{TEXT("MapProperty")};
	const FName Optional{TEXT("OptionalProperty")};
	const FName Set{TEXT("SetProperty")};
	const FName Struct{TEXT("StructProperty")};

	static const FPropertyKindNames& Get()
	{
		static const FPropertyKindNames Names;
		return Names;
	}
};
