#include "Lum/LumVariable.h"

namespace
{
const TCHAR* const ScopeKey = TEXT("scope_id");
const TCHAR* const PropKey = TEXT("prop_id");
const TCHAR* const TypeKey = TEXT("type_id");
const TCHAR* const CategoryKey = TEXT("category");

struct FFlagKey
{
	ELumVarFlag Flag;
	const TCHAR* Key;
};

const FFlagKey FlagKeys[] = {
	{ELumVarFlag::InstanceEditable, TEXT("instance_editable")},
	{ELumVarFlag::ReadOnly, TEXT("read_only")},
	{ELumVarFlag::Private, TEXT("private")},
	{ELumVarFlag::ExposeOnSpawn, TEXT("expose_on_spawn")},
	{ELumVarFlag::SaveGame, TEXT("save_game")},
	{ELumVarFlag::Transient, TEXT("transient")},
	{ELumVarFlag::Replicated, TEXT("replicated")},
};

void SetUnlessEmpty(FJsonObject& Object, const TCHAR* Key, const FString& Text)
{
	if (!Text.IsEmpty())
	{
		Object.SetStringField(Key, Text);
	}
}

FString GetOrEmpty(const FJsonObject& Object, const TCHAR* Key)
{
	FString Text;
	Object.TryGetStringField(Key, Text);
	return Text;
}
}

const TCHAR* FLumVarDesc::GetFlagKey(ELumVarFlag Flag)
{
	for (const FFlagKey& FlagKey : FlagKeys)
	{
		if (FlagKey.Flag == Flag)
		{
			return FlagKey.Key;
		}
	}
	checkNoEntry();
	return TEXT("");
}

const TArray<FString>& FLumVarDesc::GetKeys()
{
	static const TArray<FString> Keys = []
	{
		TArray<FString> All = {ScopeKey, PropKey, TypeKey, CategoryKey};
		for (const FFlagKey& FlagKey : FlagKeys)
		{
			All.Add(FlagKey.Key);
		}
		return All;
	}();
	return Keys;
}

TSharedRef<FJsonObject> FLumVarDesc::ToJson() const
{
	const TSharedRef<FJsonObject> Object = MakeShared<FJsonObject>();
	SetUnlessEmpty(*Object, ScopeKey, ScopeId.ToString());
	SetUnlessEmpty(*Object, PropKey, PropId.ToString());
	SetUnlessEmpty(*Object, TypeKey, TypeId.ToString());
	SetUnlessEmpty(*Object, CategoryKey, Category);
	for (const TPair<ELumVarFlag, bool>& Flag : Flags)
	{
		Object->SetBoolField(GetFlagKey(Flag.Key), Flag.Value);
	}
	return Object;
}

FLumVarDesc FLumVarDesc::FromJson(const TSharedRef<FJsonObject>& Object)
{
	FLumVarDesc Desc;
	Desc.ScopeId = TVexelVarScopeId(GetOrEmpty(*Object, ScopeKey));
	Desc.PropId = TVexelPropId(GetOrEmpty(*Object, PropKey));
	Desc.TypeId = TVexelPropTypeId(GetOrEmpty(*Object, TypeKey));
	Desc.Category = GetOrEmpty(*Object, CategoryKey);
	for (const FFlagKey& FlagKey : FlagKeys)
	{
		bool bValue = false;
		if (Object->TryGetBoolField(FlagKey.Key, bValue))
		{
			Desc.Flags.Add(FlagKey.Flag, bValue);
		}
	}
	return Desc;
}

TVexelExpected<FLumVarDesc> ILumVariable::GetVariableDescriptor() const
{
	FLumVarDesc Desc;
	VEXEL_TRY(Desc.PropId, GetPropId(), "while getting variable ID");
	VEXEL_TRY(Desc.ScopeId, GetVarScopeId(), "while getting variable scope ID");
	VEXEL_TRY(Desc.TypeId, GetValueTypeId(), "while getting variable type ID");
	VEXEL_TRY(Desc.Category, GetCategory(), "while getting variable category");
	VEXEL_TRY(const TArray<ELumVarFlag> Flags, GetVariableFlags());
	for (const ELumVarFlag Flag : Flags)
	{
		Desc.Flags.Add(Flag, true);
	}
	return Desc;
}

TVexelExpected<TSharedRef<FJsonObject>> ILumVariable::JsonExportPropertyObject(const FLumContext& Context) const
{
	VEXEL_TRY(TSharedRef<FJsonObject> Object, ILumProperty::JsonExportPropertyObject(Context));
	VEXEL_TRY(const TVexelVarScopeId ScopeId, GetVarScopeId(), "while getting variable scope ID");
	Object->SetStringField(TEXT("scope"), ScopeId.ToString());
	VEXEL_TRY(const TArray<ELumVarFlag> Flags, GetVariableFlags());
	for (const ELumVarFlag Flag : Flags)
	{
		Object->SetBoolField(FLumVarDesc::GetFlagKey(Flag), true);
	}
	return Object;
}
