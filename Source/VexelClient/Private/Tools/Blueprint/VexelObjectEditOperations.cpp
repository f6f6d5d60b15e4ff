#include "Lum/LumCompound.h"
#include "Lum/LumErrors.h"
#include "Lum/LumHelper.h"
#include "Lum/LumVariable.h"
#include "Tools/Blueprint/VexelObjectEditRequest.h"

#include "ScopedTransaction.h"

namespace
{
/** The descriptor that the value is; an empty one where there is none. */
FLumVarDesc ReadDescriptor(const TSharedPtr<FJsonValue>& Value)
{
	const TSharedPtr<FJsonObject>* Object = nullptr;
	return Value && Value->TryGetObject(Object) ? FLumVarDesc::FromJson(Object->ToSharedRef()) : FLumVarDesc();
}

TVexelExpected<TSharedRef<ILumVariable>> FindVariable(ILumCompound& Target, const FString& Scope, const FString& Name)
{
	VEXEL_TRY(const TSharedPtr<ILumVariable> Variable, Target.FindVariable(TVexelVarScopeId(Scope), TVexelPropId(Name)),
		"while finding variable '%s' with scope '%s' in target", *Name, *Scope);
	if (!Variable)
	{
		return VEXEL_ERROR(FLumError_Traverse, "Variable '%s' with scope '%s' not found in target", *Name, *Scope);
	}
	return Variable.ToSharedRef();
}

/** What can be inserted into and removed from. */
TVexelExpected<TSharedRef<ILumCompound>> GetCollection(const ILumCompoundProperty& Property, const FString& Path)
{
	VEXEL_TRY(const TSharedPtr<ILumCompound> Compound, Property.GetCompound(), "while getting compound for property '%s'", *Path);
	if (!Compound)
	{
		return VEXEL_ERROR(FLumError_Traverse, "Property '%s' has no valid compound", *Path);
	}
	if (!Compound->AsCollectionCompound())
	{
		return VEXEL_ERROR(FLumError_Traverse, "Property '%s' is not a collection", *Path);
	}
	return Compound.ToSharedRef();
}
}

TVexelExpected<void> FEditRequestOperationOnProp::Execute(const TSharedRef<ILumCompound>& Target, const FLumContext& Context) const
{
	VEXEL_TRY(const TSharedRef<ILumProperty> Property, FindProperty(Target));
	FScopedTransaction Transaction(INVTEXT("(Vexel) Edit Property"));
	TVexelExpected<void> Result = Dispatch(*Property, Context);
	// Of an object's members, those before the one that is refused have been written.
	const bool bMayBeInPart = Value && Value->Type == EJson::Object;
	if (Result.HasError() && !bMayBeInPart)
	{
		Transaction.Cancel();
	}
	return Result;
}

bool FEditRequestOperationOnProp::RenamesTarget() const
{
	return Scope.IsEmpty() && PropPath == TEXT("name");
}

TVexelExpected<TSharedRef<ILumProperty>> FEditRequestOperationOnProp::FindProperty(const TSharedRef<ILumCompound>& Target) const
{
	if (Scope.IsEmpty())
	{
		VEXEL_TRY(const TSharedRef<ILumProperty> Property, FLumHelper::CompoundPathResolve(Target, PropPath),
			"while resolving path '%s' in target", *PropPath);
		return Property;
	}
	VEXEL_TRY(const TSharedRef<ILumVariable> Variable, FindVariable(*Target, Scope, PropPath));
	return StaticCastSharedRef<ILumProperty>(Variable);
}

TVexelExpected<void> FEditRequestOperationOnProp::Dispatch(ILumProperty& Property, const FLumContext& Context) const
{
	switch (Type)
	{
		case EVexelEditOperation::Update:
			return ExecuteUpdate(Property, Context);
		case EVexelEditOperation::Insert:
			return ExecuteInsert(Property, Context);
		case EVexelEditOperation::Remove:
			return ExecuteRemove(Property);
		default:
			return VEXEL_ERROR(FLumError_Write, "Unsupported operation type '%s' for property operation", VexelEditWords::GetWord(Type));
	}
}

TVexelExpected<void> FEditRequestOperationOnProp::ExecuteUpdate(ILumProperty& Property, const FLumContext& Context) const
{
	if (!Value)
	{
		return VEXEL_ERROR(FLumError_Write, "Update operation requires a value for property '%s'", *PropPath);
	}
	const TVexelExpected<void> Imported = Property.JsonImportValue(Context, Value.ToSharedRef());
	if (Imported.HasError())
	{
		return VEXEL_ERROR_CAUSED(FLumError_Write, Imported.GetError(), "Failed to set value for property '%s'", *PropPath);
	}
	return {};
}

TVexelExpected<void> FEditRequestOperationOnProp::ExecuteInsert(ILumProperty& Property, const FLumContext& Context) const
{
	if (Index == INDEX_NONE)
	{
		return VEXEL_ERROR(FLumError_Write, "Insert operation requires a valid index for property '%s'", *PropPath);
	}
	if (!Value)
	{
		return VEXEL_ERROR(FLumError_Write, "Insert operation requires a value for property '%s'", *PropPath);
	}
	const ILumCompoundProperty* const CompoundProperty = Property.AsCompoundProperty();
	if (!CompoundProperty)
	{
		return VEXEL_ERROR(FLumError_Write, "Property '%s' is not a compound/collection and cannot be inserted into", *PropPath);
	}
	VEXEL_TRY(const TSharedRef<ILumCompound> Collection, GetCollection(*CompoundProperty, PropPath));
	const TVexelExpected<void> Inserted = Collection->AsCollectionCompound()->InsertAt(Context, Index, Value.ToSharedRef());
	if (Inserted.HasError())
	{
		return VEXEL_ERROR_CAUSED(
			FLumError_Write, Inserted.GetError(), "Failed to insert into property '%s' at index %d", *PropPath, Index);
	}
	return Property.OnImport();
}

TVexelExpected<void> FEditRequestOperationOnProp::ExecuteRemove(ILumProperty& Property) const
{
	if (Index == INDEX_NONE)
	{
		return VEXEL_ERROR(FLumError_Write, "Remove operation requires a valid index for property '%s'", *PropPath);
	}
	const ILumCompoundProperty* const CompoundProperty = Property.AsCompoundProperty();
	TSharedPtr<ILumCompound> Collection;
	if (CompoundProperty)
	{
		VEXEL_TRY(Collection, CompoundProperty->GetCompound(), "while getting compound for property '%s'", *PropPath);
	}
	if (!Collection || !Collection->AsCollectionCompound())
	{
		return VEXEL_ERROR(FLumError_Write, "Property '%s' is not a compound/collection and cannot remove by index", *PropPath);
	}
	const TVexelExpected<void> Removed = Collection->AsCollectionCompound()->RemoveAt(Index);
	if (Removed.HasError())
	{
		return VEXEL_ERROR_CAUSED(FLumError_Write, Removed.GetError(), "Failed to remove from property '%s' at index %d", *PropPath, Index);
	}
	return Property.OnImport();
}

TVexelExpected<void> FEditRequestOperationOnVar::Execute(const TSharedRef<ILumCompound>& Target) const
{
	switch (Type)
	{
		case EVexelEditOperation::AddVariable:
		case EVexelEditOperation::AddPin:
			return ExecuteAddVariable(*Target);
		case EVexelEditOperation::RemoveVariable:
		case EVexelEditOperation::RemovePin:
			return ExecuteRemoveVariable(*Target);
		case EVexelEditOperation::EditVariable:
		case EVexelEditOperation::EditPin:
			return ExecuteEditVariable(*Target);
		default:
			return VEXEL_ERROR(FLumError_Write, "Unsupported operation type '%s' for variable operation", VexelEditWords::GetWord(Type));
	}
}

bool FEditRequestOperationOnVar::ReachesUsers() const
{
	const FLumVarDesc Desc = ReadDescriptor(Value);
	const bool bRemoves = Type == EVexelEditOperation::RemoveVariable || Type == EVexelEditOperation::RemovePin;
	const bool bIsLocal = LumScope::Local() == TVexelVarScopeId(Scope.IsEmpty() ? Desc.ScopeId.ToString() : Scope);
	return !bIsLocal && (bRemoves || !Desc.PropId.IsEmpty() || !Desc.TypeId.IsEmpty());
}

namespace
{
TVexelExpected<void> CheckScope(const ILumCompound& Target, const TVexelVarScopeId& ScopeId)
{
	VEXEL_TRY(const TArray<TVexelVarScopeId> Scopes, Target.GetVariableScopes(), "while retrieving supported variable scopes");
	if (Scopes.IsEmpty())
	{
		return VEXEL_ERROR(FLumError_Write, "Target does not support variable management");
	}
	if (!Scopes.Contains(ScopeId))
	{
		return VEXEL_ERROR(FLumError_Write, "Scope '%s' is not supported by target", *ScopeId);
	}
	return {};
}
}

TVexelExpected<void> FEditRequestOperationOnVar::ExecuteAddVariable(ILumCompound& Target) const
{
	FLumVarDesc Desc = ReadDescriptor(Value);
	Desc.PropId = Name.IsEmpty() ? Desc.PropId : TVexelPropId(Name);
	Desc.ScopeId = Scope.IsEmpty() ? Desc.ScopeId : TVexelVarScopeId(Scope);
	if (Desc.ScopeId.IsEmpty())
	{
		return VEXEL_ERROR(FLumError_Write, "AddVariable requires 'scope' or 'value.scope_id'");
	}
	if (Desc.PropId.IsEmpty())
	{
		return VEXEL_ERROR(FLumError_Write, "AddVariable requires 'name' or 'value.prop_id'");
	}
	if (Desc.TypeId.IsEmpty())
	{
		return VEXEL_ERROR(FLumError_Write, "AddVariable requires 'value.type_id'");
	}
	VEXEL_TRY_VOID(CheckScope(Target, Desc.ScopeId));
	VEXEL_TRY(const TSharedPtr<ILumVariable> Existing, Target.FindVariable(Desc.ScopeId, Desc.PropId), "while checking for existing variable");
	if (Existing)
	{
		return VEXEL_ERROR(FLumError_Write, "Variable '%s' in scope '%s' already exists", *Desc.PropId, *Desc.ScopeId);
	}
	return Target.AddVariable(Desc);
}

TVexelExpected<void> FEditRequestOperationOnVar::ExecuteRemoveVariable(ILumCompound& Target) const
{
	const FLumVarDesc Desc = ReadDescriptor(Value);
	const TVexelVarScopeId ScopeId = Scope.IsEmpty() ? Desc.ScopeId : TVexelVarScopeId(Scope);
	const TVexelPropId PropId = Name.IsEmpty() ? Desc.PropId : TVexelPropId(Name);
	if (ScopeId.IsEmpty())
	{
		return VEXEL_ERROR(FLumError_Write, "RemoveVariable requires 'scope' or 'value.scope_id'");
	}
	if (PropId.IsEmpty())
	{
		return VEXEL_ERROR(FLumError_Write, "RemoveVariable requires 'name' or 'value.prop_id'");
	}
	VEXEL_TRY(const TSharedPtr<ILumVariable> Existing, Target.FindVariable(ScopeId, PropId), "while locating variable to remove");
	if (!Existing)
	{
		return VEXEL_ERROR(FLumError_Write, "Variable '%s' with scope '%s' not found", *PropId, *ScopeId);
	}
	return Target.RemoveVariable(ScopeId, PropId);
}

TVexelExpected<void> FEditRequestOperationOnVar::ExecuteEditVariable(ILumCompound& Target) const
{
	VEXEL_TRY(const TSharedRef<ILumVariable> Variable, FindVariable(Target, Scope, Name));
	ILumEditableVariable* const Editable = Variable->AsEditableVariable();
	if (!Editable)
	{
		return VEXEL_ERROR(FLumError_Write, "Variable '%s' with scope '%s' is not editable", *Name, *Scope);
	}
	if (!Value || Value->Type != EJson::Object)
	{
		return VEXEL_ERROR(FLumError_Write, "EditVariable requires an object as 'value', with what is to change");
	}
	return Editable->SetVariableDescriptor(ReadDescriptor(Value));
}
