#pragma once

#include "CoreMinimal.h"

class UEdGraphNode;
class UObject;

/** Reads members of nodes by name, so that classes of modules that may be absent need not be compiled against. */
namespace VexelNodeProperties
{
bool Has(const UEdGraphNode& Node, const TCHAR* Property);
/** Text of a name, string or number; empty where it is None or the node has no such member. */
FString GetText(const UEdGraphNode& Node, const TCHAR* Property);
bool GetBool(const UEdGraphNode& Node, const TCHAR* Property);
/** Null where the node has no such member, or it holds no object. */
UObject* GetObject(const UEdGraphNode& Node, const TCHAR* Property);
/** Name of the key in a member that is an input key; empty without one. */
FString GetKeyName(const UEdGraphNode& Node, const TCHAR* Property);
/** The name of the object that an input pin has by default or, on a pin of an enumeration, of the enumeration; empty without one. */
FString GetPinObjectName(const UEdGraphNode& Node, const TCHAR* PinName);
}
