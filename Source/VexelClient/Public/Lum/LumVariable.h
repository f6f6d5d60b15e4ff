#pragma once

#include "Lum/LumProperty.h"

/** What may be said of a member variable beside its name and type. */
enum class ELumVarFlag : uint8
{
	/** Each placed object may have a value of its own. */
	InstanceEditable,
	/** Graphs cannot set it. */
	ReadOnly,
	/** Graphs of other Blueprints do not see it. */
	Private,
	/** Nodes that spawn an object ask for its value. */
	ExposeOnSpawn,
	SaveGame,
	Transient,
	Replicated
};

/** What a variable is, apart from its value. */
struct FLumVarDesc
{
	TVexelVarScopeId ScopeId;
	TVexelPropId PropId;
	TVexelPropTypeId TypeId;
	/** The editor's category; may be empty. */
	FString Category;
	/** Each under a key of its own, "instance_editable". Of a variable that is read those that are set; what is not there stays as it is. */
	TMap<ELumVarFlag, bool> Flags;

	static const TCHAR* GetFlagKey(ELumVarFlag Flag);
	/** The keys of its JSON. */
	static const TArray<FString>& GetKeys();

	/** Empty members have no key. */
	TSharedRef<FJsonObject> ToJson() const;
	static FLumVarDesc FromJson(const TSharedRef<FJsonObject>& Object);
};

/** A property that belongs to a scope of its compound: a member, a local variable, an input or an output. */
class ILumVariable : public ILumProperty
{
public:
	virtual TVexelExpected<TVexelVarScopeId> GetVarScopeId() const = 0;
	TVexelExpected<FLumVarDesc> GetVariableDescriptor() const;
	/** Those that are set. */
	virtual TVexelExpected<TArray<ELumVarFlag>> GetVariableFlags() const { return TArray<ELumVarFlag>(); }

	/** As a property's, with the scope and the flags that are set behind it. */
	virtual TVexelExpected<TSharedRef<FJsonObject>> JsonExportPropertyObject(const FLumContext& Context) const override;
};

/** A variable that takes a new name, type or category. */
class ILumEditableVariable : public ILumVariable
{
public:
	/** Renames, retypes and recategorises to what the descriptor says; what is empty in it stays. One undo entry. */
	virtual TVexelExpected<void> SetVariableDescriptor(const FLumVarDesc& Desc) = 0;

	virtual ILumEditableVariable* AsEditableVariable() override { return this; }
};
