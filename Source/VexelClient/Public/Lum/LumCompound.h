#pragma once

#include "CoreMinimal.h"
#include "Dom/JsonObject.h"
#include "VexelExpected.h"
#include "VexelId.h"

class FLumContext;
class FLumJsonPropertyCollector;
class FLumPropertyRoom;
class ILumCollectionCompound;
class ILumProperty;
class ILumPropertyCollector;
class ILumVariable;
class UBlueprint;
struct FLumVarDesc;

/**
 * Something that owns properties, and for some kinds variables: a Blueprint, a graph, a node, an object, a struct, a container.
 * Game thread.
 */
class ILumCompound
{
public:
	/** The compound of a whole Blueprint. */
	static TSharedRef<ILumCompound> Create(UBlueprint& Blueprint);

	virtual ~ILumCompound() = default;

	virtual TVexelExpected<TVexelPropTypeId> GetCompoundType() const = 0;

	/** Hands over every property and variable, in the compound's own order, until the collector fails. */
	TVexelExpected<void> IterateProperties(ILumPropertyCollector& Collector) const;

	/** Null where none has the id. */
	TVexelExpected<TSharedPtr<ILumProperty>> FindProperty(const TVexelPropId& PropId) const;
	/** The same by the text of the id, for one that is not kept. */
	TVexelExpected<void> FindProperty(FStringView PropId, FLumPropertyRoom& OutProperty) const;
	TVexelExpected<TSharedPtr<ILumVariable>> FindVariable(const TVexelVarScopeId& ScopeId, const TVexelPropId& PropId) const;

	/** The scopes of which the compound may hold variables; empty where it holds none. */
	virtual TVexelExpected<TArray<TVexelVarScopeId>> GetVariableScopes() const { return TArray<TVexelVarScopeId>(); }

	/** Each is an undo entry of its own. Compounds without variables refuse. */
	virtual TVexelExpected<void> AddVariable(const FLumVarDesc& Desc);
	virtual TVexelExpected<void> RemoveVariable(const TVexelVarScopeId& ScopeId, const TVexelPropId& PropId);

	/** The compound as the assistant reads it. */
	virtual TVexelExpected<TSharedRef<FJsonObject>> JsonExportObject(const FLumContext& Context) const;

	/**
	 * Gives each property that the object names the value that it has there, in the object's order, and leaves the others as they are.
	 * The first failure ends it; what came before stays.
	 */
	virtual TVexelExpected<void> JsonImportObject(const FLumContext& Context, const TSharedRef<FJsonObject>& Object);

	/** This compound where it is the contents of a container, else null. */
	virtual ILumCollectionCompound* AsCollectionCompound() { return nullptr; }

protected:
	/** What IterateProperties does, without its context line. */
	virtual TVexelExpected<void> Iterate(ILumPropertyCollector& Collector) const = 0;

	/** What FindProperty does, without its context line. Kinds that know a property by its id override it; by itself it iterates. */
	virtual TVexelExpected<TSharedPtr<ILumProperty>> Find(FStringView PropId) const;
	/** The same for one that is not kept: kinds that would make it for the caller alone make it in the room. */
	virtual TVexelExpected<void> FindInPlace(FStringView PropId, FLumPropertyRoom& OutProperty) const;

	/** The part of the properties that an export shows: all of them, where a kind has no reason to leave some out. */
	virtual TVexelExpected<void> IterateForExport(ILumPropertyCollector& Collector) const { return IterateProperties(Collector); }

	/** Adds "properties" and "variables" to the object, each where there are any. */
	TVexelExpected<void> JsonExportPropertiesAndVariables(const FLumContext& Context, const TSharedRef<FJsonObject>& Object) const;
};

/** The contents of an array, a set or a map. Elements have their indices as ids. */
class ILumCollectionCompound : public ILumCompound
{
public:
	virtual TVexelExpected<int32> GetNum() const = 0;

	/** The index is where the element stands afterwards, at most the number of elements. A value that is refused adds nothing. */
	virtual TVexelExpected<void> InsertAt(const FLumContext& Context, int32 Index, const TSharedRef<FJsonValue>& Value) = 0;
	virtual TVexelExpected<void> RemoveAt(int32 Index) = 0;
	/** Cuts elements off at the end, or adds default ones there. */
	virtual TVexelExpected<void> Resize(int32 Count) = 0;

	virtual ILumCollectionCompound* AsCollectionCompound() override { return this; }
};
