#include "Blueprint/VexelBlueprintNodePin.h"

#include "Blueprint/VexelBlueprintEnums.h"
#include "Blueprint/VexelBlueprintMapping.h"

#include "EdGraph/EdGraphNode.h"

FVexelBlueprintNodeTypePin::FVexelBlueprintNodeTypePin(const UEdGraphPin& Pin, FVexelBlueprintMapping& Mapping)
	: Id(Mapping.MakePinReference(Pin).ToString())
	, Direction(Pin.Direction)
	, Guid(Pin.PinId)
	, Name(Pin.GetDisplayName().ToString())
	, Type(Mapping.MakePropTypeReference(Pin.PinType, nullptr))
	, bConst(Pin.PinType.bIsConst)
	, bRef(Pin.PinType.bIsReference)
	, DefaultValue(Pin.GetDefaultAsString())
{
}

void FVexelBlueprintNodeTypePin::ToJson(const TSharedRef<FJsonObject>& Object) const
{
	// A graph has tens of thousands of pins: their objects do not grow field by field.
	constexpr int32 NumUsualFields = 8;
	Object->Values.Reserve(NumUsualFields);
	Object->SetStringField(TEXT("id"), Id);
	Object->SetStringField(TEXT("dir"), VexelBlueprintWords::GetWord(Direction));
	Object->SetStringField(TEXT("guid"), Guid.ToString(EGuidFormats::Digits));
	Object->SetStringField(TEXT("name"), Name);
	Object->SetStringField(TEXT("type"), Type.ToString());
	if (bConst)
	{
		Object->SetBoolField(TEXT("const"), true);
	}
	if (bRef)
	{
		Object->SetBoolField(TEXT("ref"), true);
	}
	if (!DefaultValue.IsEmpty())
	{
		Object->SetStringField(TEXT("value"), DefaultValue);
	}
}

bool FVexelBlueprintNodeTypePin::FromJson(const TSharedRef<FJsonObject>& Object)
{
	FVexelBlueprintNodeTypePin Read;
	if (!Object->TryGetStringField(TEXT("id"), Read.Id))
	{
		return false;
	}
	FString Text;
	if (Object->TryGetStringField(TEXT("dir"), Text))
	{
		VexelBlueprintWords::FindByWord(Text, Read.Direction);
	}
	if (Object->TryGetStringField(TEXT("guid"), Text))
	{
		FGuid::Parse(Text, Read.Guid);
	}
	if (Object->TryGetStringField(TEXT("type"), Text))
	{
		Read.Type = TVexelPropTypeId(Text);
	}
	Object->TryGetStringField(TEXT("name"), Read.Name);
	Object->TryGetBoolField(TEXT("const"), Read.bConst);
	Object->TryGetBoolField(TEXT("ref"), Read.bRef);
	Object->TryGetStringField(TEXT("value"), Read.DefaultValue);
	*this = MoveTemp(Read);
	return true;
}

FVexelBlueprintNodePinConnection::FVexelBlueprintNodePinConnection(const UEdGraphPin& LinkedPin, FVexelBlueprintMapping& Mapping)
	: Node(Mapping.MakeNodeReference(*LinkedPin.GetOwningNode(), true).ToString())
	, Pin(Mapping.MakePinReference(LinkedPin).ToString())
	, Guid(LinkedPin.PinId.ToString(EGuidFormats::Digits))
{
}

void FVexelBlueprintNodePinConnection::ToJson(const TSharedRef<FJsonObject>& Object) const
{
	constexpr int32 NumFields = 3;
	Object->Values.Reserve(NumFields);
	Object->SetStringField(TEXT("node"), Node);
	Object->SetStringField(TEXT("pin"), Pin);
	Object->SetStringField(TEXT("guid"), Guid);
}

bool FVexelBlueprintNodePinConnection::FromJson(const TSharedRef<FJsonObject>& Object)
{
	FVexelBlueprintNodePinConnection Read;
	if (!Object->TryGetStringField(TEXT("node"), Read.Node) || !Object->TryGetStringField(TEXT("pin"), Read.Pin))
	{
		return false;
	}
	Object->TryGetStringField(TEXT("guid"), Read.Guid);
	*this = MoveTemp(Read);
	return true;
}

FVexelBlueprintNodePin::FVexelBlueprintNodePin(const UEdGraphPin& Pin, FVexelBlueprintMapping& Mapping)
	: FVexelBlueprintNodeTypePin(Pin, Mapping)
{
	for (const UEdGraphPin* const LinkedPin : Pin.LinkedTo)
	{
		if (LinkedPin && LinkedPin->GetOwningNodeUnchecked())
		{
			Connections.Emplace(*LinkedPin, Mapping);
		}
	}
}

void FVexelBlueprintNodePin::ToJson(const TSharedRef<FJsonObject>& Object) const
{
	FVexelBlueprintNodeTypePin::ToJson(Object);
	if (Connections.IsEmpty())
	{
		return;
	}
	TArray<TSharedPtr<FJsonValue>> Values;
	for (const FVexelBlueprintNodePinConnection& Connection : Connections)
	{
		const TSharedRef<FJsonObject> ConnectionObject = MakeShared<FJsonObject>();
		Connection.ToJson(ConnectionObject);
		Values.Add(MakeShared<FJsonValueObject>(ConnectionObject));
	}
	Object->SetArrayField(TEXT("connections"), MoveTemp(Values));
}

bool FVexelBlueprintNodePin::FromJson(const TSharedRef<FJsonObject>& Object)
{
	TArray<FVexelBlueprintNodePinConnection> ReadConnections;
	const TArray<TSharedPtr<FJsonValue>>* Values = nullptr;
	Object->TryGetArrayField(TEXT("connections"), Values);
	for (int32 Index = 0; Values && Index < Values->Num(); ++Index)
	{
		const TSharedPtr<FJsonObject>* ConnectionObject = nullptr;
		FVexelBlueprintNodePinConnection Connection;
		if (!(*Values)[Index]->TryGetObject(ConnectionObject) || !Connection.FromJson(ConnectionObject->ToSharedRef()))
		{
			return false;
		}
		ReadConnections.Add(MoveTemp(Connection));
	}
	if (!FVexelBlueprintNodeTypePin::FromJson(Object))
	{
		return false;
	}
	Connections = MoveTemp(ReadConnections);
	return true;
}
