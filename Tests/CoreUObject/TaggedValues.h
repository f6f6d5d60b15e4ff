#pragma once

#include "PropertyTestTypes.h"
#include "UObject/ObjectVersion.h"

/** A version with a type's name alone in each tag. */
inline const FPackageFileVersion OldTagVersion(VER_UE4_AUTOMATIC_VERSION, EUnrealEngineObjectUE5Version::DATA_RESOURCES);

/** The bytes of a value as a package has them, with names as text and objects by path. Values that equal Defaults' are left out. */
TArray<uint8> SaveValue(FTestValue& Value, const FPackageFileVersion& Version, const void* Defaults = nullptr);
/** False when the archive had an error. */
bool LoadValue(FTestValue& Value, const TArray<uint8>& Bytes, const FPackageFileVersion& Version, const void* Defaults = nullptr);

/** A struct with a member of every kind that has a text, and a text that sets each. */
UScriptStruct* GetEveryKindStruct();
TArray<FPropertyDescription> GetMembersOfEveryKind();
inline constexpr const TCHAR* EveryKindText = TEXT(
	"(bFlag=True,Byte=200,ByteEnum=Closed,Int8=-8,Int16=-16,Int=-32,Int64=-64,UInt16=16,UInt32=32,UInt64=64,Float=1.500000,"
	"Double=2.500000,Enum=Locked,Name=\"n\",Str=\"s\",Text=NSLOCTEXT(\"a\", \"b\", \"c\"),"
	"Object=\"/Script/CoreUObject.Class'/Script/CoreUObject.Object'\","
	"Item=(Name=\"i\",Count=1),Slots[1]=5,Items=((Count=2),(Name=\"z\")),Names=(\"x\",\"y\"),Map=((\"k\", (Count=3))),Optional=(\"o\"))");
