#pragma once

#include "CoreMinimal.h"

class FArchive;
class FProperty;

/**
 * The whole type of a property as a tree of names: "MapProperty(NameProperty,StructProperty(Vector(/Script/CoreUObject)))".
 * Stored flat, each node followed by its parameters' trees.
 */
class COREUOBJECT_API FPropertyTypeName
{
public:
	struct FNode
	{
		FName Name;
		int32 InnerCount = 0;

		bool operator==(const FNode& Other) const = default;
	};

	FPropertyTypeName() = default;
	explicit FPropertyTypeName(const FProperty* Property);
	explicit FPropertyTypeName(FName TypeName) { Nodes.Add({TypeName, 0}); }

	bool IsEmpty() const { return Nodes.IsEmpty(); }
	/** None when empty. */
	FName GetName() const { return Nodes.IsEmpty() ? FName() : Nodes[0].Name; }
	int32 GetParameterCount() const { return Nodes.IsEmpty() ? 0 : Nodes[0].InnerCount; }
	/** Empty when there is no such parameter. */
	FPropertyTypeName GetParameter(int32 Index) const;
	FName GetParameterName(int32 Index) const { return GetParameter(Index).GetName(); }
	void AddParameter(const FPropertyTypeName& Parameter);
	FString ToString() const;

	bool operator==(const FPropertyTypeName& Other) const { return Nodes == Other.Nodes; }
	friend COREUOBJECT_API FArchive& operator<<(FArchive& Ar, FPropertyTypeName& TypeName);

private:
	int32 SkipTree(int32 NodeIndex) const;

	TArray<FNode> Nodes;
};
