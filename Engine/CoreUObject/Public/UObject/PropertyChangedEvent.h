#pragma once

#include "Containers/Array.h"
#include "Containers/Map.h"
#include "UObject/ObjectMacros.h"

class FProperty;
class UObject;

/** What an edit changed. Included through UObject/UnrealType.h, as in the engine. */
struct FPropertyChangedEvent
{
	explicit FPropertyChangedEvent(FProperty* InProperty, EPropertyChangeType::Type InChangeType = EPropertyChangeType::Unspecified,
		TArrayView<const UObject* const> InTopLevelObjects = {})
		: Property(InProperty)
		, MemberProperty(InProperty)
		, ChangeType(InChangeType)
	{
		for (const UObject* const Object : InTopLevelObjects)
		{
			TopLevelObjects.Add(Object);
		}
	}

	void SetActiveMemberProperty(FProperty* InActiveMemberProperty) { MemberProperty = InActiveMemberProperty; }
	/** The name of the innermost property, or None. */
	COREUOBJECT_API FName GetPropertyName() const;
	COREUOBJECT_API FName GetMemberPropertyName() const;
	int32 GetNumObjectsBeingEdited() const { return TopLevelObjects.Num(); }
	const UObject* GetObjectBeingEdited(int32 Index) const { return TopLevelObjects[Index]; }

	/** Innermost property that changed; null when anything may have. */
	FProperty* Property;
	/** Property of the object itself that contains it. */
	FProperty* MemberProperty;
	EPropertyChangeType::Type ChangeType;
	int32 ObjectIteratorIndex = INDEX_NONE;

private:
	TArray<const UObject*> TopLevelObjects;
};

/** The properties from an object down to the value that is edited. */
class FEditPropertyChain
{
public:
	class TDoubleLinkedListNode
	{
	public:
		explicit TDoubleLinkedListNode(FProperty* InValue)
			: Value(InValue)
		{
		}
		FProperty* GetValue() const { return Value; }

	private:
		FProperty* Value;
	};

	void AddTail(FProperty* Property) { Nodes.Add(TDoubleLinkedListNode(Property)); }
	TDoubleLinkedListNode* GetHead() { return Nodes.IsEmpty() ? nullptr : &Nodes[0]; }
	TDoubleLinkedListNode* GetTail() { return Nodes.IsEmpty() ? nullptr : &Nodes.Last(); }
	TDoubleLinkedListNode* GetActiveNode() { return GetTail(); }
	TDoubleLinkedListNode* GetActiveMemberNode() { return GetHead(); }
	int32 Num() const { return Nodes.Num(); }

private:
	TArray<TDoubleLinkedListNode> Nodes;
};

struct FPropertyChangedChainEvent : public FPropertyChangedEvent
{
	FPropertyChangedChainEvent(FEditPropertyChain& InPropertyChain, const FPropertyChangedEvent& SrcChangeEvent)
		: FPropertyChangedEvent(SrcChangeEvent)
		, PropertyChain(InPropertyChain)
	{
	}
	FEditPropertyChain& PropertyChain;
};
