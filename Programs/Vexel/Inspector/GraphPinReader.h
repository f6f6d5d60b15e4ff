#pragma once

#include "CoreMinimal.h"

class FJsonObject;
class FJsonValue;
class FPackageValues;

/** Reads the pins that graph nodes have behind their properties, and the types of pins, in the form of the package's version. */
class FGraphPinReader
{
public:
	using FValue = TSharedPtr<FJsonValue>;

	explicit FGraphPinReader(FPackageValues& InValues)
		: Values(InValues)
	{
	}

	FValue ReadPinType();
	/** A node's pins. Empty, and the archive's error, where they are damaged. */
	TArray<FValue> ReadPins();
	/** The pins that a user gave to a node with pins of its own: an event, a function's entry or result. */
	TArray<FValue> ReadUserDefinedPins();
	/** Whether nodes of the package have their pins with them; in older packages each pin is an object. */
	bool HasPins() const;

private:
	FValue ReadTerminalType();
	FValue ReadPin();
	void ReadDefaults(FJsonObject& Pin);
	void ReadLinks(FJsonObject& Pin);
	void ReadFlags(FJsonObject& Pin);
	/** Null for a reference to nothing. */
	FValue ReadPinReference();
	TArray<FValue> ReadPinReferences();
	/** Of a type or a pin: text in packages that were saved before names had their place. */
	FString ReadNameOrText();

	FPackageValues& Values;
};
