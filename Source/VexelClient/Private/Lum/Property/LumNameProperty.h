#pragma once

#include "Lum/LumErrors.h"
#include "Lum/LumProperty.h"
#include "Templates/Function.h"

/** The name of a graph or a node, as the property "name". */
class FLumNameProperty : public ILumProperty
{
public:
	using FRead = TFunction<TVexelExpected<FString>()>;
	using FRename = TFunction<TVexelExpected<void>(const FString& NewName)>;

	/** OwnerTypeId is the type id of what has the name; NotString is said of a value that is no string, a literal. */
	FLumNameProperty(const TVexelPropTypeId& InOwnerTypeId, const TCHAR* InNotString, FRead InRead, FRename InRename)
		: OwnerTypeId(InOwnerTypeId)
		, NotString(InNotString)
		, Read(MoveTemp(InRead))
		, Rename(MoveTemp(InRename))
	{
	}

	virtual TVexelExpected<TVexelPropId> GetPropId() const override { return TVexelPropId(TEXT("name")); }
	virtual TVexelExpected<TVexelPropTypeId> GetOwnerTypeId() const override { return OwnerTypeId; }
	virtual TVexelExpected<TVexelPropTypeId> GetValueTypeId() const override { return TVexelPropTypeId(TEXT("string")); }
	virtual TVexelExpected<EPropertyFlags> GetFlags() const override { return CPF_Edit; }
	virtual TVexelExpected<FString> GetCategory() const override { return FString(); }
	virtual TVexelExpected<TSharedRef<FJsonValue>> JsonExportValue(const FLumContext&) const override
	{
		VEXEL_TRY(const FString Name, Read());
		return MakeShared<FJsonValueString>(Name);
	}
	virtual TVexelExpected<void> JsonImportValue(const FLumContext&, const TSharedRef<FJsonValue>& Value) override
	{
		if (Value->Type != EJson::String)
		{
			return FLumError_Import(VEXEL_HERE, FString(NotString));
		}
		return Rename(Value->AsString());
	}

private:
	TVexelPropTypeId OwnerTypeId;
	const TCHAR* NotString;
	FRead Read;
	FRename Rename;
};
