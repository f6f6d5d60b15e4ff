#pragma once

#include "EdGraph/EdGraphPin.h"

/** How one pin refers to another. */
enum class EPinResolveType : uint8
{
	OwningNode,
	LinkedTo,
	SubPins,
	ParentPin,
	ReferencePassThroughConnection
};

/**
 * References to pins that have not been read yet, by the pin they wait for. Nodes of a graph refer to each other's pins in
 * circles, so whichever is read first has to wait for the other.
 */
class FUnresolvedPins
{
public:
	static FUnresolvedPins& Get();

	/** Notes the places of the entries that a pin's list has already, so that those that wait find theirs. */
	void SetPlaces(UEdGraphPin* RequestingPin, EPinResolveType ResolveType, TArray<int32> Places);
	/** Index is the reference's place among its pin's references of that type. */
	void Add(const FEdGraphPinReference& Awaited, UEdGraphPin* RequestingPin, EPinResolveType ResolveType, int32 Index);
	/** Fills in what waits for the pin. */
	void Resolve(UEdGraphPin* Pin);
	void Reset();

private:
	struct FRequest
	{
		FEdGraphPinReference RequestingPin;
		EPinResolveType ResolveType;
		int32 Index;
	};

	using FListKey = TPair<UEdGraphPin*, EPinResolveType>;

	void Insert(UEdGraphPin* RequestingPin, TArray<UEdGraphPin*>& List, UEdGraphPin* Pin, const FRequest& Request);

	TMap<FEdGraphPinReference, TArray<FRequest>> Requests;
	/** The places of the entries that an incomplete list has so far, in the list's order. */
	TMap<FListKey, TArray<int32>> ListPlaces;
};
