#pragma once

#include "AssetRegistry/AssetIdentifier.h"
#include "CoreMinimal.h"
#include "Misc/EnumClassFlags.h"

namespace UE::AssetRegistry
{
/** Kinds of relations between assets. Packages' alone are known here. */
enum class EDependencyCategory : uint8
{
	None = 0,
	Package = 0x01,
	Manage = 0x02,
	SearchableName = 0x04,
	All = Package | Manage | SearchableName,
};
ENUM_CLASS_FLAGS(EDependencyCategory);

enum class EDependencyProperty : uint8
{
	None = 0,
	/** The package cannot be loaded without the other; else it only names it. */
	Hard = 0x01,
	/** The game needs it, not the editor alone. */
	Game = 0x02,
	Build = 0x04,
};
ENUM_CLASS_FLAGS(EDependencyProperty);

/** What a dependency must be like. */
enum class EDependencyQuery : uint32
{
	NoRequirements = 0,
	Hard = 0x0001,
	NotHard = 0x0002,
	Soft = NotHard,
	Game = 0x0004,
	NotGame = 0x0008,
	EditorOnly = NotGame,
};
ENUM_CLASS_FLAGS(EDependencyQuery);

struct FDependencyQuery
{
	EDependencyProperty Required = EDependencyProperty::None;
	EDependencyProperty Excluded = EDependencyProperty::None;

	FDependencyQuery() = default;
	FDependencyQuery(EDependencyQuery Flags)
	{
		const auto Put = [Flags](EDependencyQuery Flag, EDependencyProperty& Into, EDependencyProperty Property)
		{
			Into |= EnumHasAnyFlags(Flags, Flag) ? Property : EDependencyProperty::None;
		};
		Put(EDependencyQuery::Hard, Required, EDependencyProperty::Hard);
		Put(EDependencyQuery::NotHard, Excluded, EDependencyProperty::Hard);
		Put(EDependencyQuery::Game, Required, EDependencyProperty::Game);
		Put(EDependencyQuery::NotGame, Excluded, EDependencyProperty::Game);
	}
	bool Matches(EDependencyProperty Properties) const
	{
		return EnumHasAllFlags(Properties, Required) && !EnumHasAnyFlags(Properties, Excluded);
	}
};
}

/** One relation of an asset. */
struct FAssetDependency
{
	FAssetIdentifier AssetId;
	UE::AssetRegistry::EDependencyCategory Category = UE::AssetRegistry::EDependencyCategory::Package;
	UE::AssetRegistry::EDependencyProperty Properties = UE::AssetRegistry::EDependencyProperty::None;

	bool operator==(const FAssetDependency& Other) const = default;
};
