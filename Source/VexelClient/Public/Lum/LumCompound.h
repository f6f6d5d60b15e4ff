#pragma once

#include "CoreMinimal.h"
#include "Dom/JsonObject.h"
#include "VexelExpected.h"
#include "VexelId.h"

class FLumContext;
class FLumJsonPropertyCollector;
class ILumProperty;
class ILumPropertyCollector;
class ILumVariable;

/**
 * Something that owns properties, and for some kinds variables: a Blueprint, a graph, a node, an object, a struct, a container.
 * Game thread.
 */
class ILumCompound
{
public:
	virtual ~ILumCompound() = default;

	virtual TVexelExpected<TVexelPropTypeId> GetCompoundType() const = 0;

	/** Hands over every property and variable, in the compound's own order, until the collector fails. */
	TVexelExpected<void> IterateProperties(ILumPropertyCollector& Collector) const;

	/** Null where none has the id. */
	TVexelExpected<TSharedPtr<ILumProperty>> FindProperty(const TVexelPropId& PropId) const;
	TVexelExpected<TSharedPtr<ILumVariable>> FindVariable(const TVexelVarScopeId& ScopeId, const TVexelPropId& PropId) const;

	/** The scopes of which the compound may hold variables; empty where it holds none. */
	virtual TArray<TVexelVarScopeId> GetVariableScopes() const { return {}; }

	/** The compound as the assistant reads it. */
	virtual TVexelExpected<TSharedRef<FJsonObject>> JsonExportObject(const FLumContext& Context) const;

protected:
	/** What IterateProperties does, without its context line. */
	virtual TVexelExpected<void> Iterate(ILumPropertyCollector& Collector) const = 0;

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
};
