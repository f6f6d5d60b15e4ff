#pragma once

#include "CoreMinimal.h"
#include "Dom/JsonObject.h"
#include "EdGraph/EdGraphPin.h"
#include "EdGraph/EdGraphSchema.h"
#include "Lum/LumErrors.h"
#include "UObject/WeakObjectPtr.h"
#include "VexelExpected.h"
#include "VexelId.h"

class FProperty;
class ILumCompound;
class ILumProperty;
class ILumPropertyCollector;
class UBlueprint;
class UClass;
class UEdGraph;
class UEdGraphNode;
class UEnum;
class UK2Node_EditablePinBase;
class UObject;
class UStruct;
struct FLumVarDesc;

/** Scopes of variables. */
namespace LumScope
{
const TVexelVarScopeId& Member();
const TVexelVarScopeId& Local();
const TVexelVarScopeId& In();
const TVexelVarScopeId& Out();
}

/** Functions that the kinds of properties, compounds and variables share. */
class FLumHelper
{
public:
	/** Most segments that a path may have. */
	static constexpr int32 MaxPathSegments = 256;

	/** The property at a path of ids joined by points, such as "Items.3.Name". */
	static TVexelExpected<TSharedRef<ILumProperty>> CompoundPathResolve(const TSharedRef<ILumCompound>& Compound, const FString& Path);
	/** Takes the first segment off Rest, and answers the compound's property of that id. */
	static TVexelExpected<TSharedRef<ILumProperty>> CompoundPathResolveSegment(
		const TSharedRef<ILumCompound>& Compound, FString& Rest, FString& Segment);

	/** The object, or a read error with that message when it is gone. */
	template <typename ObjectType>
	static TVexelExpected<ObjectType*> GetValid(const TWeakObjectPtr<ObjectType>& WeakObject, const TCHAR* Message)
	{
		if (ObjectType* const Object = WeakObject.Get())
		{
			return Object;
		}
		return FLumError_Read(VEXEL_HERE, FString(Message));
	}

	/** "ref|/Game/Path.Object", or "ref|None". */
	static FString MakeReferenceString(const UObject* Object);
	static FString MakeReferenceString(const FString& ObjectPath);
	/** The path of a reference string; empty for a null reference. */
	static TVexelExpected<FString> ParseReferenceString(const FString& Reference);

	/**
	 * The object at the path, loaded if it must be; null for an empty path. Refused where there is none, where it is not of the class, or
	 * where Referrer may not refer to it since it is private to another package. Class and Referrer may be null.
	 */
	static TVexelExpected<UObject*> ResolveReference(const FString& Path, const UClass* Class, const UObject* Referrer);

	/**
	 * Sets the value from the engine's text form, as Blueprints keep it: what it says of members that a struct does not have any more is
	 * skipped. Data is the value's memory, which a text that is refused leaves as it was.
	 */
	static TVexelExpected<void> ImportStringToProperty(const FProperty& Property, void* Data, const FString& Text);

	/** "Valid names: A, B, C", of the names that a value of the enumeration may have. */
	static FString ListEnumerators(const UEnum& Enum);

	/** Whether the text is an index as elements have it for an id: decimal digits, without sign or leading zeros. */
	static bool ParseIndex(FStringView Text, int32& OutIndex);

	/** The object's keys as indices, ascending. */
	static TVexelExpected<TArray<int32>> GetSortedNumericKeys(const TSharedRef<FJsonObject>& Object);

	/** The same with what stands there, which may be null. */
	static TVexelExpected<TArray<TPair<int32, TSharedPtr<FJsonValue>>>> GetSortedElements(const FJsonObject& Object);

	/** Hands the properties to the collector in their order. */
	static TVexelExpected<void> CollectIndexedItems(ILumPropertyCollector& Collector, const TArray<TSharedRef<ILumProperty>>& Items);

	/** The type id of a container. ValueTypeId counts for maps alone; without a container the element's id is the answer. */
	static TVexelExpected<TVexelPropTypeId> CreateContainerType(
		EPinContainerType Container, const TVexelPropTypeId& ElementOrKeyTypeId, const TVexelPropTypeId& ValueTypeId);
	static TVexelExpected<EEdGraphPinDirection> CreatePinDirectionFromScopeId(const TVexelVarScopeId& ScopeId);

	/** Whether GetPropertyTypeId answers. */
	static bool HasPropertyTypeId(const FProperty& Property);
	/** The type id of a property's values. */
	static TVexelExpected<TVexelPropTypeId> GetPropertyTypeId(const FProperty& Property);

	/** Adds a function to the Blueprint, which can be undone. The name must be nobody's in it. */
	static TVexelExpected<UEdGraph*> AddGraphToBlueprint(UBlueprint& Blueprint, const FString& Name, EGraphType Type);
	static TVexelExpected<void> RemoveGraphFromBlueprint(UEdGraph& Graph);
	/** Renames a function, a macro or a dispatcher with its uses. One entry of undo; refused names change nothing. */
	static TVexelExpected<void> RenameGraph(UEdGraph& Graph, const FString& NewName);
	/** The same for a custom event. */
	static TVexelExpected<void> RenameNode(UEdGraphNode& Node, const FString& NewName);

	/**
	 * Inputs and outputs of a function, a macro or a dispatcher, in the descriptor's scope: "in" or "out". The nodes of all loaded Blueprints that
	 * use the graph follow. These and the edits of pins below are each one entry of undo; one that fails changes nothing.
	 */
	static TVexelExpected<void> AddFunctionInputOutput(const UEdGraph& Graph, const FName Name, const FLumVarDesc& Desc);
	/** What the descriptor leaves empty stays as it is. */
	static TVexelExpected<void> ChangeFunctionInputOutput(
		const UEdGraph& Graph, EEdGraphPinDirection Direction, FName Name, const FLumVarDesc& Desc);
	static TVexelExpected<void> RemoveFunctionInputOutput(const UEdGraph& Graph, EEdGraphPinDirection Direction, FName Name);

	/** Pins of nodes that have them together, see GetAllNodesForUserPinEdit. The scope is the pins' direction on the nodes. */
	static TVexelExpected<void> AddUserDefinedPin(const TArray<UK2Node_EditablePinBase*>& Nodes, const FName& Name, const FLumVarDesc& Desc);
	static TVexelExpected<void> ChangeUserDefinedPin(const TArray<UK2Node_EditablePinBase*>& Nodes, const FName& Name, const FLumVarDesc& Desc);
	static TVexelExpected<void> RemoveUserDefinedPin(const TArray<UK2Node_EditablePinBase*>& Nodes, const FName& Name);
	/** The node, and all that must have the same pins: the other results of a function. */
	static TVexelExpected<void> GetAllNodesForUserPinEdit(UK2Node_EditablePinBase& Node, TArray<UK2Node_EditablePinBase*>& OutNodes);

	/** A pin's default: of object pins a reference string, of the common math structs their components. */
	static TVexelExpected<FString> GetPinDefaultValue(const UEdGraphPin& Pin);
	/** The same as a JSON string. */
	static TVexelExpected<TSharedRef<FJsonValue>> GetPinDefaultValueAsJsonValue(const UEdGraphPin& Pin);
	/** Takes what GetPinDefaultValueAsJsonValue answers. Undo restores the old default when the caller has a transaction open. */
	static TVexelExpected<void> SetPinDefaultValueFromJsonValue(UEdGraphPin& Pin, const TSharedRef<FJsonValue>& Value);
};
