#pragma once

#include "CoreMinimal.h"

class FProperty;
class UBlueprintGeneratedClass;
class UObject;
class USCS_Node;

/** What components that Blueprints add are made from. The variables of the components are empty in default objects. */
namespace LumComponentTemplate
{
/**
 * The node of the component that the property of a Blueprint's default object is for: of the Blueprint's own, or of a parent Blueprint's.
 * Null for any other property or object, and for a component whose name a Blueprint nearer to the object has given to something else.
 */
const USCS_Node* FindNode(const FProperty& Property, const UObject* Object);
/** What the object's class has the component of the property made from; null where FindNode is. */
UObject* Find(const FProperty& Property, const UObject* Object);
bool IsInherited(const USCS_Node& Node, const UObject& Object);

/** The class's own template of an inherited component, as a copy of the parent's where it has none yet. Null where it cannot have one. */
UObject* Override(const USCS_Node& Node, UBlueprintGeneratedClass& Class);
/** Gives up those of the class's own templates of inherited components in which nothing differs from the parent's. */
void DropNeedless(UBlueprintGeneratedClass& Class);

/** What the object's values count as changed against: its archetype, but for parts of a Blueprint's components none of a Blueprint. */
const UObject* GetDefaults(const UObject& Object);
}
