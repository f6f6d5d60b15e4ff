#pragma once

#include "CoreMinimal.h"
#include "Dom/JsonObject.h"
#include "VexelExpected.h"

class FLumContext;
class ILumCompound;
class ILumProperty;
class UBlueprint;

/**
 * A value of a Blueprint by one line of text, for programs and people:
 *
 *     $ClassDefaultObject.OpenAngle         a path from the Blueprint
 *     OpenDoor/.name                        a path from a graph
 *     EventGraph/PrintString_0.InString     a path from a node, by its id or its object's name
 *     member@Health, OpenDoor/.in@Speed     a variable of a scope, and no further
 *
 * Without a path ("", "OpenDoor/", "EventGraph/PrintString_0") it is the whole Blueprint, graph or node, which can be read alone.
 * Nodes have the ids that the Blueprint's own export gives them. Game thread.
 */
class VEXELCLIENT_API FLumAddress
{
public:
	/** Finds what the text names in the Blueprint, which must outlive this. */
	static TVexelExpected<FLumAddress> Find(UBlueprint& Blueprint, const FString& Text);

	/** The value, or the export of the whole. */
	TVexelExpected<TSharedRef<FJsonValue>> Read() const;
	/** The property as its compound's export shows it; for the whole, its export. */
	TVexelExpected<TSharedRef<FJsonObject>> Describe() const;
	/** One entry of undo. */
	TVexelExpected<void> Write(const TSharedRef<FJsonValue>& Value) const;

private:
	explicit FLumAddress(const TSharedRef<FLumContext>& InContext);

	TSharedRef<FLumContext> Context;
	TSharedPtr<ILumCompound> Compound;
	/** Null for the whole compound. */
	TSharedPtr<ILumProperty> Property;
};
