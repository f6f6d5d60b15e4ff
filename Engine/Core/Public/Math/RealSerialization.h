#pragma once

#include "Containers/UnrealString.h"
#include "Misc/Parse.h"
#include "Serialization/Archive.h"

namespace UE::Math::Private
{
/** Reads or writes real numbers; doubles were kept as floats in archives older than large world coordinates. */
template <typename T, typename... Types>
FArchive& SerializeReals(FArchive& Ar, T& First, Types&... Rest)
{
	if constexpr (std::is_same_v<T, double>)
	{
		if (Ar.UEVer() < EUnrealEngineObjectUE5Version::LARGE_WORLD_COORDINATES)
		{
			const auto SerializeFloat = [&Ar](double& Value)
			{
				float Narrow = static_cast<float>(Value);
				Ar << Narrow;
				Value = Ar.IsLoading() ? Narrow : Value;
			};
			SerializeFloat(First);
			(SerializeFloat(Rest), ...);
			return Ar;
		}
	}
	Ar << First;
	((Ar << Rest), ...);
	return Ar;
}
}
