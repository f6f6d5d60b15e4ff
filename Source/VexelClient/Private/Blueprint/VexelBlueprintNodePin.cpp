#include "Blueprint/VexelBlueprintNodePin.h"

#include "Blueprint/VexelBlueprintEnums.h"
#include "Blueprint/VexelBlueprintMapping.h"

#include "EdGraph/EdGraphNode.h"

namespace
{
/** These take what is to be written from a record that is given up, and copy it of any other one. */
template <typename RecordType>
void WriteTypePin(RecordType&& Pin, FJsonObject& Object)
{
	// A graph has tens of thousands of pins: their objects do not grow field by field.
	constexpr int32 NumUsualFields = 8;
	Object.Values.Reserve(NumUsualFields);
	Object.SetStringField(TEXT("id"), Forward<RecordType>(Pin).Id);
	Object.SetStringField(TEXT("dir"), VexelBlueprintWords::GetWord(Pin.Direction));
	Object.SetStringField(TEXT("guid"), Pin.Guid.ToString(EGuidFormats::Digits));
	Object.SetStringField(TEXT("name"), Forward<RecordType>(Pin).Name);
	Object.SetStringField(TEXT("type"), Forward<RecordType>(Pin).Type.ToString());
	if (Pin.bConst)
	{
		Object.SetBoolField(TEXT("const"), true);
	}
	if (Pin.bRef)
	{
		Object.SetBoolField(TEXT("ref"), true);
	}
	if (!Pin.DefaultValue.IsEmpty())
	{
		Object.SetStringField(TEXT("value"), Forward<RecordType>(Pin).DefaultValue);
	}
}

template <typename RecordType>
void WriteConnection(RecordType&& Connection, FJsonObject& Object)
{
	constexpr int32 NumFields = 3;
	Object.Values.Reserve(NumFields);
	Object.SetStringField(TEXT("node"), Forward<RecordType>(Connection).Node);
	Object.SetStringField(TEXT("pin"), Forward<RecordType>(Connection).Pin);
	Object.SetStringField(TEXT("guid"), Forward<RecordType>(Connection).Guid);
}

template <typename RecordType>
void WritePin(RecordType&& Pin, FJsonObject& Object)
{
	WriteTypePin(Forward<RecordType>(Pin), Object);
	if (Pin.Connections.IsEmpty())
	{
		return;
	}
	TArray<TSharedPtr<FJsonValue>> Values;
	Values.Reserve(Pin.Connections.Num());
	for (auto& Connection : Pin.Connections)
	{
		const TSharedRef<FJsonObject> ConnectionObject = MakeShared<FJsonObject>();
		using ConnectionType = std::conditional_t<std::is_lvalue_reference_v<RecordType>, decltype(Connection), FVexelBlueprintNodePinConnection>;
		WriteConnection(Forward<ConnectionType>(Connection), *ConnectionObject);
		Values.Add(MakeShared<FJsonValueObject>(ConnectionObject));
	}
	Object.SetArrayField(TEXT("connections"), MoveTemp(Values));
}
}

FVexelBlueprintNodeTypePin::FVexelBlueprintNodeTypePin(const UEdGraphPin& Pin, FVexelBlueprintMapping& Mapping)
	: FVexelBlueprintNodeTypePin(Pin, Mapping, Pin.GetDefaultAsString())
{
}

FVexelBlueprintNodeTypePin::FVexelBlueprintNodeTypePin(const UEdGraphPin& Pin, FVexelBlueprintMapping& Mapping, FString InDefaultValue)
	: Id(Mapping.MakePinReference(Pin).ToString())
	, Direction(Pin.Direction)
	, Guid(Pin.PinId)
	, Name(Pin.GetDisplayName().ToString())
	, Type(Mapping.MakePropTypeReference(Pin.PinType, nullptr))
	, bConst(Pin.PinType.bIsConst)
	, bRef(Pin.PinType.bIsReference)
	, DefaultValue(MoveTemp(InDefaultValue))
{
}

void FVexelBlueprintNodeTypePin::ToJson(const TSharedRef<FJsonObject>& Object) const
{
	WriteTypePin(*this, *Object);
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
	WriteConnection(*this, *Object);
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

FVexelBlueprintNodePin::FVexelBlueprintNodePin(const UEdGraphPin& Pin, FVexelBlueprintMapping& Mapping, FString InDefaultValue)
	: FVexelBlueprintNodeTypePin(Pin, Mapping, MoveTemp(InDefaultValue))
{
	Connections.Reserve(Pin.LinkedTo.Num());
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
	WritePin(*this, *Object);
}

void FVexelBlueprintNodePin::MoveToJson(const TSharedRef<FJsonObject>& Object)
{
	WritePin(MoveTemp(*this), *Object);
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
