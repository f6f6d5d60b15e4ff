#pragma once

#include "CoreMinimal.h"
#include "Dom/JsonObject.h"
#include "EdGraph/EdGraphPin.h"
#include "VexelId.h"

class FVexelBlueprintMapping;

/** One pin of a kind of node, as the assistant sees it. */
class FVexelBlueprintNodeTypePin
{
public:
	FVexelBlueprintNodeTypePin() = default;
	FVexelBlueprintNodeTypePin(const UEdGraphPin& Pin, FVexelBlueprintMapping& Mapping);
	/** For a caller that has the default value in a form of its own. */
	FVexelBlueprintNodeTypePin(const UEdGraphPin& Pin, FVexelBlueprintMapping& Mapping, FString InDefaultValue);
	virtual ~FVexelBlueprintNodeTypePin() = default;

	/** Adds this pin's fields to the object. */
	virtual void ToJson(const TSharedRef<FJsonObject>& Object) const;
	/** False, with this pin as it was, where the object names no pin. */
	virtual bool FromJson(const TSharedRef<FJsonObject>& Object);

	/** Pin name. */
	FString Id;
	EEdGraphPinDirection Direction = EGPD_MAX;
	FGuid Guid;
	/** As shown to a user. */
	FString Name;
	TVexelPropTypeId Type;
	bool bConst = false;
	bool bRef = false;
	FString DefaultValue;
};

/** The far end of a link. */
class FVexelBlueprintNodePinConnection
{
public:
	FVexelBlueprintNodePinConnection() = default;
	/** Of the pin that is linked to. Its node gets an id if it has none. */
	FVexelBlueprintNodePinConnection(const UEdGraphPin& LinkedPin, FVexelBlueprintMapping& Mapping);
	virtual ~FVexelBlueprintNodePinConnection() = default;

	virtual void ToJson(const TSharedRef<FJsonObject>& Object) const;
	/** False, with this connection as it was, where the object names no node or no pin. */
	virtual bool FromJson(const TSharedRef<FJsonObject>& Object);

	FString Node;
	FString Pin;
	FString Guid;
};

/** A pin of a node in a graph: what its kind says, and its links. */
class FVexelBlueprintNodePin : public FVexelBlueprintNodeTypePin
{
public:
	FVexelBlueprintNodePin() = default;
	FVexelBlueprintNodePin(const UEdGraphPin& Pin, FVexelBlueprintMapping& Mapping, FString InDefaultValue);

	virtual void ToJson(const TSharedRef<FJsonObject>& Object) const override;
	/** The same of a record that nobody needs afterwards. */
	void MoveToJson(const TSharedRef<FJsonObject>& Object);
	virtual bool FromJson(const TSharedRef<FJsonObject>& Object) override;

	TArray<FVexelBlueprintNodePinConnection> Connections;
};
