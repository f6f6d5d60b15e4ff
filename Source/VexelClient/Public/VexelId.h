#pragma once

#include "CoreMinimal.h"

namespace VexelInternal
{
/** A text id that names one kind of thing, T. Ids of different kinds do not convert into each other. In JSON it is a plain string. */
template <typename T>
class TVexelId
{
public:
	TVexelId() = default;
	explicit TVexelId(FString InText)
		: Text(MoveTemp(InText))
	{
	}
	explicit TVexelId(const TCHAR* InText)
		: Text(InText)
	{
	}

	const FString& ToString() const& { return Text; }
	FString ToString() && { return MoveTemp(Text); }
	bool IsEmpty() const { return Text.IsEmpty(); }
	/** For log lines. Valid as long as the id. */
	const TCHAR* operator*() const { return *Text; }

	/** Letter case does not matter. */
	bool operator==(const TVexelId& Other) const
	{
		// Ids are mostly given as they were made, and so compared faster.
		return Text.Equals(Other.Text, ESearchCase::CaseSensitive) || Text.Equals(Other.Text, ESearchCase::IgnoreCase);
	}

	friend uint32 GetTypeHash(const TVexelId& Id) { return GetTypeHash(Id.Text); }

private:
	FString Text;
};
}

class FVexelBlueprintNode;
class FVexelBlueprintNodePin;
class FVexelBlueprintNodeType;
class FVexelBlueprintPropType;
/** What ids of graphs, Blueprints, properties and variable scopes are tagged with. */
class FVexelBlueprintGraph;
class FVexelBlueprintObject;
class FVexelBlueprintProp;
class FVexelBlueprintVarScope;

using TVexelBlueprintId = VexelInternal::TVexelId<FVexelBlueprintObject>;
using TVexelGraphId = VexelInternal::TVexelId<FVexelBlueprintGraph>;
using TVexelNodeId = VexelInternal::TVexelId<FVexelBlueprintNode>;
using TVexelPinId = VexelInternal::TVexelId<FVexelBlueprintNodePin>;
using TVexelNodeTypeId = VexelInternal::TVexelId<FVexelBlueprintNodeType>;
using TVexelPropTypeId = VexelInternal::TVexelId<FVexelBlueprintPropType>;
using TVexelPropId = VexelInternal::TVexelId<FVexelBlueprintProp>;
using TVexelVarScopeId = VexelInternal::TVexelId<FVexelBlueprintVarScope>;
