#include "Lum/LumProperty.h"

#include "Lum/LumCompound.h"
#include "Lum/LumContext.h"
#include "Lum/LumErrors.h"

TVexelExpected<TSharedRef<FJsonObject>> ILumProperty::JsonExportPropertyObject(const FLumContext& Context) const
{
	VEXEL_TRY(TSharedRef<FJsonObject> Object, MakePropertyObject(Context), "while exporting property to JSON");
	return Object;
}

TVexelExpected<void> ILumProperty::JsonImportValue(const FLumContext&, const TSharedRef<FJsonValue>&)
{
	VEXEL_TRY(const TVexelPropId Id, GetPropId());
	return VEXEL_ERROR(FLumError_Import, "Property '%s' cannot be changed", *Id);
}

TVexelExpected<void> ILumProperty::OnImport() { return {}; }

TVexelExpected<TSharedRef<FJsonObject>> ILumProperty::MakePropertyObject(const FLumContext& Context) const
{
	VEXEL_TRY(const TVexelPropId Id, GetPropId());
	VEXEL_TRY(const TVexelPropTypeId OwnerType, GetOwnerTypeId(), "while getting owner type for property '%s'", *Id);
	VEXEL_TRY(const TVexelPropTypeId ValueType, GetValueTypeId(), "while getting type for property '%s'", *Id);
	VEXEL_TRY(const TSharedRef<FJsonValue> Value, JsonExportValue(Context), "while exporting value for property '%s'", *Id);
	VEXEL_TRY(const FString Category, GetCategory(), "while getting category for property '%s'", *Id);
	VEXEL_TRY(const EPropertyFlags Flags, GetFlags(), "while getting flags for property '%s'", *Id);

	const TSharedRef<FJsonObject> Object = MakeShared<FJsonObject>();
	Object->SetStringField(TEXT("id"), Id.ToString());
	Object->SetStringField(TEXT("declared_in"), OwnerType.ToString());
	Object->SetStringField(TEXT("type"), ValueType.ToString());
	Object->SetField(TEXT("value"), Value);
	Object->SetStringField(TEXT("category"), Category);

	struct FFlagKey
	{
		const TCHAR* Key;
		EPropertyFlags Mask;
	};
	static const FFlagKey FlagKeys[] = {
		{TEXT("ref"), CPF_OutParm | CPF_ReferenceParm},
		{TEXT("const"), CPF_ConstParm},
		{TEXT("instanced"), CPF_InstancedReference},
		{TEXT("edit"), CPF_Edit},
	};
	for (const FFlagKey& FlagKey : FlagKeys)
	{
		if ((Flags & FlagKey.Mask) != 0)
		{
			Object->SetBoolField(FlagKey.Key, true);
		}
	}
	if ((Flags & CPF_BlueprintVisible) != 0)
	{
		Object->SetStringField(TEXT("access"), (Flags & CPF_BlueprintReadOnly) != 0 ? TEXT("read_only") : TEXT("read_write"));
	}
	return Object;
}

TVexelExpected<TSharedRef<FJsonValue>> ILumCompoundProperty::JsonExportValue(const FLumContext& Context) const
{
	VEXEL_TRY(const TSharedPtr<ILumCompound> Compound, GetCompound());
	if (!Compound)
	{
		return VEXEL_ERROR(FLumError_Export, "Compound property is null");
	}
	VEXEL_TRY(const TSharedRef<FJsonObject> Object, Compound->JsonExportObject(Context));
	return MakeShared<FJsonValueObject>(Object);
}

TVexelExpected<void> ILumCompoundProperty::JsonImportValue(const FLumContext& Context, const TSharedRef<FJsonValue>& Value)
{
	const TSharedPtr<FJsonObject>* Object = nullptr;
	if (!Value->TryGetObject(Object))
	{
		return VEXEL_ERROR(FLumError_Import, "Expected JSON object for compound property");
	}
	VEXEL_TRY(const TSharedPtr<ILumCompound> Compound, GetCompound());
	if (!Compound)
	{
		return VEXEL_ERROR(FLumError_Import, "Compound property is null");
	}
	if (!Context.CanImport())
	{
		return VEXEL_ERROR(FLumError_Import, "Exceeded maximum depth (%d)", FLumContext::MaxImportDepth);
	}
	const FLumContext::FImportScope Scope(Context);
	return Compound->JsonImportObject(Context, Object->ToSharedRef());
}

TVexelExpected<TSharedPtr<ILumCompound>> ILumCollectionProperty::GetCompound() const
{
	VEXEL_TRY(const TSharedPtr<ILumCollectionCompound> Collection, GetCollectionCompound());
	return Collection;
}
