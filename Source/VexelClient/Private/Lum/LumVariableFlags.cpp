#include "Lum/LumVariableFlags.h"

#include "Lum/LumErrors.h"

#include "EdGraphSchema_K2.h"
#include "Engine/Blueprint.h"
#include "Kismet2/BlueprintEditorUtils.h"

namespace
{
const TCHAR* const True = TEXT("true");

/** Where the editor keeps a flag: in metadata, or in the property flags, where bIsInverse says that the flag is set while they are not. */
struct FRow
{
	ELumVarFlag Flag;
	uint64 PropertyFlags;
	bool bIsInverse;
	const FName MetaData;
};

const TArray<FRow>& GetRows()
{
	static const TArray<FRow> Rows = {
		{ELumVarFlag::InstanceEditable, CPF_DisableEditOnInstance, true, NAME_None},
		{ELumVarFlag::ReadOnly, CPF_BlueprintReadOnly, false, NAME_None},
		{ELumVarFlag::Private, 0, false, TEXT("BlueprintPrivate")},
		{ELumVarFlag::ExposeOnSpawn, 0, false, TEXT("ExposeOnSpawn")},
		{ELumVarFlag::SaveGame, CPF_SaveGame, false, NAME_None},
		{ELumVarFlag::Transient, CPF_Transient, false, NAME_None},
		{ELumVarFlag::Replicated, CPF_Net, false, NAME_None},
	};
	return Rows;
}

bool IsSet(const FBPVariableDescription& Variable, const FRow& Row)
{
	if (!Row.MetaData.IsNone())
	{
		return Variable.HasMetaData(Row.MetaData) && Variable.GetMetaData(Row.MetaData) == True;
	}
	const bool bHasFlags = (Variable.PropertyFlags & Row.PropertyFlags) != 0;
	const bool bIsEditable = Row.Flag != ELumVarFlag::InstanceEditable || (Variable.PropertyFlags & CPF_Edit) != 0;
	return bIsEditable && bHasFlags != Row.bIsInverse;
}

void Set(FBPVariableDescription& Variable, const FRow& Row, bool bValue)
{
	if (!Row.MetaData.IsNone())
	{
		if (bValue)
		{
			Variable.SetMetaData(Row.MetaData, True);
		}
		else
		{
			Variable.RemoveMetaData(Row.MetaData);
		}
		return;
	}
	if (bValue != Row.bIsInverse)
	{
		Variable.PropertyFlags |= Row.PropertyFlags;
	}
	else
	{
		Variable.PropertyFlags &= ~Row.PropertyFlags;
	}
	if (Row.Flag == ELumVarFlag::InstanceEditable && bValue)
	{
		Variable.PropertyFlags |= CPF_Edit;
	}
	if (Row.Flag == ELumVarFlag::Replicated && !bValue)
	{
		Variable.PropertyFlags &= ~static_cast<uint64>(CPF_RepNotify);
		Variable.RepNotifyFunc = NAME_None;
	}
}
}

TArray<ELumVarFlag> LumVariableFlags::Read(const FBPVariableDescription& Variable)
{
	TArray<ELumVarFlag> Flags;
	for (const FRow& Row : GetRows())
	{
		if (IsSet(Variable, Row))
		{
			Flags.Add(Row.Flag);
		}
	}
	return Flags;
}

TVexelExpected<void> LumVariableFlags::Check(const FLumVarDesc& Desc, const FEdGraphPinType& Type)
{
	if (Desc.Flags.FindRef(ELumVarFlag::Replicated) && (Type.IsSet() || Type.IsMap()))
	{
		return VEXEL_ERROR(FLumError_Write, "sets and maps cannot be replicated");
	}
	return {};
}

TVexelExpected<void> LumVariableFlags::CheckNone(const FLumVarDesc& Desc)
{
	for (const TPair<ELumVarFlag, bool>& Flag : Desc.Flags)
	{
		return VEXEL_ERROR(FLumError_Write, "only member variables have the key '%s'", FLumVarDesc::GetFlagKey(Flag.Key));
	}
	return {};
}

void LumVariableFlags::Apply(UBlueprint& Blueprint, FName Name, const FLumVarDesc& Desc)
{
	const int32 Index = FBlueprintEditorUtils::FindNewVariableIndex(&Blueprint, Name);
	if (Index == INDEX_NONE || Desc.Flags.IsEmpty())
	{
		return;
	}
	Blueprint.Modify();
	for (const FRow& Row : GetRows())
	{
		if (const bool* const bValue = Desc.Flags.Find(Row.Flag))
		{
			Set(Blueprint.NewVariables[Index], Row, *bValue);
		}
	}
}
