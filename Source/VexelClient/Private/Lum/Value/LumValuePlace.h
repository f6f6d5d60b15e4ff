#pragma once

#include "CoreMinimal.h"
#include "Templates/Function.h"
#include "VexelExpected.h"

class FEditPropertyChain;
class FLumValuePlace;
class FProperty;
class ILumValueOwner;

using FLumValuePlaceRef = TSharedRef<const FLumValuePlace>;

/**
 * Where a value lies: the way to it from what owns it, through members, elements, keys and values. Memory is looked up at each use, so
 * a place stays good when containers grow; it names another value when elements before its own come and go.
 */
class FLumValuePlace
{
public:
	enum class EPart : uint8
	{
		/** The one value that the owner has. */
		Whole,
		/** A member of the owner, or of the struct above. */
		Member,
		ArrayElement,
		SetElement,
		MapKey,
		MapValue
	};

	/** Part is Whole or Member. */
	FLumValuePlace(const TSharedRef<ILumValueOwner>& InOwner, EPart InPart, const FProperty& InProperty);
	/** Index is the container's internal one; a member has none. */
	FLumValuePlace(const FLumValuePlaceRef& InAbove, EPart InPart, const FProperty& InProperty, int32 InIndex = INDEX_NONE);

	const FProperty& GetProperty() const { return Property; }
	const TSharedRef<ILumValueOwner>& GetOwner() const { return Owner; }

	/** The value's memory; null when the owner is gone, or has no such element any more. */
	void* Resolve() const;
	/** The memory of the value at the same place of another owner of the same kind. */
	void* ResolveIn(void* OwnerMemory) const;

	/**
	 * Changes the value: Apply is called with its memory, once the owner has agreed. A value that is inherited is not written where it would
	 * stay what it is. Where an element of a set or a key of a map would
	 * become equal to another one, the change is refused; to find out, Apply is called with copies first.
	 */
	TVexelExpected<void> Write(TFunctionRef<void(void* Memory)> Apply) const;
	/** Writes a copy of the value. */
	TVexelExpected<void> Assign(const void* NewValue) const;

	/** The members on the way, the owner's own first. */
	void AppendMembers(TArray<FProperty*>& OutMembers) const;

	/** The innermost place at or above this one that is in no set and no map: elsewhere the same place may hold something else. */
	const FLumValuePlace& GetStablePlace() const;

private:
	bool IsHashed() const { return Part == EPart::SetElement || Part == EPart::MapKey; }
	void* ResolvePart(void* AboveMemory) const;
	/** The memory of this value within that of Ancestor, which is this or a place above. */
	void* ResolveBelow(const FLumValuePlace& Ancestor, void* AncestorMemory) const;
	bool WouldChange(TFunctionRef<void(void* Memory)> Apply) const;
	TVexelExpected<void> CheckStaysUnique(TFunctionRef<void(void* Memory)> Apply) const;
	/** The internal index of an element or key that equals the value. */
	int32 FindEqual(const void* Value) const;
	/** Restores the order of the hashed containers on the way. */
	void Rehash() const;

	const TSharedRef<ILumValueOwner> Owner;
	const TSharedPtr<const FLumValuePlace> Above;
	const FProperty& Property;
	const int32 Index;
	const EPart Part;
	/** Whether this is, or is within, an element of a set or a key of a map. */
	const bool bWithinHashed;
};
