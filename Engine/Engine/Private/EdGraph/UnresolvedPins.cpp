#include "UnresolvedPins.h"

FUnresolvedPins& FUnresolvedPins::Get()
{
	static FUnresolvedPins Instance;
	return Instance;
}

void FUnresolvedPins::SetPlaces(UEdGraphPin* RequestingPin, EPinResolveType ResolveType, TArray<int32> Places)
{
	ListPlaces.Add(FListKey(RequestingPin, ResolveType), MoveTemp(Places));
}

void FUnresolvedPins::Add(const FEdGraphPinReference& Awaited, UEdGraphPin* RequestingPin, EPinResolveType ResolveType, int32 Index)
{
	Requests.FindOrAdd(Awaited).Add({FEdGraphPinReference(RequestingPin), ResolveType, Index});
}

void FUnresolvedPins::Resolve(UEdGraphPin* Pin)
{
	TArray<FRequest> Waiting;
	if (Requests.Num() == 0 || !Requests.RemoveAndCopyValue(FEdGraphPinReference(Pin), Waiting))
	{
		return;
	}
	for (const FRequest& Request : Waiting)
	{
		UEdGraphPin* const RequestingPin = Request.RequestingPin.Get();
		if (!RequestingPin)
		{
			continue;
		}
		switch (Request.ResolveType)
		{
			case EPinResolveType::LinkedTo:
				Insert(RequestingPin, RequestingPin->LinkedTo, Pin, Request);
				break;
			case EPinResolveType::SubPins:
				Insert(RequestingPin, RequestingPin->SubPins, Pin, Request);
				break;
			case EPinResolveType::ParentPin:
				RequestingPin->ParentPin = Pin;
				break;
			case EPinResolveType::ReferencePassThroughConnection:
				RequestingPin->ReferencePassThroughConnection = Pin;
				break;
			case EPinResolveType::OwningNode:
				break;
		}
	}
}

void FUnresolvedPins::Insert(UEdGraphPin* RequestingPin, TArray<UEdGraphPin*>& List, UEdGraphPin* Pin, const FRequest& Request)
{
	TArray<int32>& Taken = ListPlaces.FindOrAdd(FListKey(RequestingPin, Request.ResolveType));
	// An entry whose place nobody noted was added after the list was read: it goes to the end.
	while (Taken.Num() < List.Num())
	{
		Taken.Add(MAX_int32);
	}
	// From the end, where the next entry mostly belongs.
	int32 Position = List.Num();
	while (Position > 0 && Taken[Position - 1] > Request.Index)
	{
		--Position;
	}
	List.Insert(Pin, Position);
	Taken.Insert(Request.Index, Position);
}

void FUnresolvedPins::Reset()
{
	Requests.Empty();
	ListPlaces.Empty();
}

void UEdGraphPin::ResolveReferencesToPin(UEdGraphPin* Pin)
{
	FUnresolvedPins::Get().Resolve(Pin);
}

void UEdGraphPin::ResolveAllPinReferences()
{
	FUnresolvedPins::Get().Reset();
}
