#pragma once

#include "Math/Box.h"
#include "Math/Color.h"
#include "Math/IntPoint.h"
#include "Math/IntVector.h"
#include "Math/Matrix.h"
#include "Math/Plane.h"
#include "Math/Quat.h"
#include "Math/Rotator.h"
#include "Math/Vector.h"
#include "Math/Vector2D.h"
#include "Math/Vector4.h"
#include "Misc/DateTime.h"
#include "Misc/Guid.h"
#include "Misc/Timespan.h"
#include "UObject/CppStructOps.h"
#include "UObject/PrimaryAssetId.h"
#include "UObject/SoftObjectPath.h"
#include "UObject/TopLevelAssetPath.h"

// What Core's structs and the path structs do themselves: as in the engine, for packages and texts depend on it.

namespace UE::CoreUObject::Private
{
template <typename T>
concept CSerializesItself = requires(T& Value, FArchive& Ar)
{
	Value.Serialize(Ar);
};
}

#define DEFINE_NUMBERS_TRAITS(Type) \
	template <> \
	struct TStructOpsTypeTraits<Type> : public TStructOpsTypeTraitsBase2<Type> \
	{ \
		enum \
		{ \
			WithIdenticalViaEquality = true, \
			WithZeroConstructor = true, \
			WithCopy = false, \
			WithSerializer = UE::CoreUObject::Private::CSerializesItself<Type>, \
		}; \
	};
DEFINE_NUMBERS_TRAITS(FVector)
DEFINE_NUMBERS_TRAITS(FVector3f)
DEFINE_NUMBERS_TRAITS(FVector2D)
DEFINE_NUMBERS_TRAITS(FVector4)
DEFINE_NUMBERS_TRAITS(FPlane)
DEFINE_NUMBERS_TRAITS(FRotator)
DEFINE_NUMBERS_TRAITS(FQuat)
DEFINE_NUMBERS_TRAITS(FMatrix)
DEFINE_NUMBERS_TRAITS(FBox)
DEFINE_NUMBERS_TRAITS(FIntPoint)
DEFINE_NUMBERS_TRAITS(FIntVector)
DEFINE_NUMBERS_TRAITS(FColor)
DEFINE_NUMBERS_TRAITS(FLinearColor)
#undef DEFINE_NUMBERS_TRAITS

#define DEFINE_TEXT_TRAITS(Type, bSerializer, bMismatched) \
	template <> \
	struct TStructOpsTypeTraits<Type> : public TStructOpsTypeTraitsBase2<Type> \
	{ \
		enum \
		{ \
			WithIdenticalViaEquality = true, \
			WithExportTextItem = true, \
			WithImportTextItem = true, \
			WithSerializer = bSerializer, \
			WithSerializeFromMismatchedTag = bMismatched, \
		}; \
	};
DEFINE_TEXT_TRAITS(FGuid, true, false)
DEFINE_TEXT_TRAITS(FDateTime, true, false)
DEFINE_TEXT_TRAITS(FTimespan, true, false)
DEFINE_TEXT_TRAITS(FTopLevelAssetPath, false, false)
DEFINE_TEXT_TRAITS(FSoftObjectPath, true, true)
DEFINE_TEXT_TRAITS(FSoftClassPath, true, true)
DEFINE_TEXT_TRAITS(FPrimaryAssetId, false, false)
#undef DEFINE_TEXT_TRAITS
