#include "UObject/FieldPathProperty.h"

#include "Serialization/Archive.h"
#include "UObject/Class.h"
#include "UObject/PropertyHelper.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"

IMPLEMENT_FIELD(FFieldPathProperty)

FFieldPath::FFieldPath(const FField* InField)
{
	Generate(InField);
}

void FFieldPath::Generate(const FField* InField)
{
	Path = InField ? InField->GetPathName() : FString();
}

void FFieldPath::Generate(const TCHAR* PathText)
{
	Path = PathText;
	if (Path == TEXT("None"))
	{
		Path.Reset();
	}
}

FField* FFieldPath::GetTyped(const FFieldClass* ExpectedType) const
{
	FField* const Field = Path.IsEmpty() ? nullptr : FindPropertyByPath(*Path);
	return Field && (!ExpectedType || Field->IsA(ExpectedType)) ? Field : nullptr;
}

/** Saved as the names from the field up to its struct, then the struct itself. */
FArchive& operator<<(FArchive& Ar, FFieldPath& Value)
{
	TArray<FName> Names;
	UObject* Owner = nullptr;
	if (!Ar.IsLoading() && !Value.Path.IsEmpty())
	{
		FString OwnerPath;
		FString FieldName;
		Value.Path.Split(TEXT(":"), &OwnerPath, &FieldName, ESearchCase::CaseSensitive, ESearchDir::FromEnd);
		Names.Add(FName(*FieldName));
		Owner = StaticFindObject(UStruct::StaticClass(), nullptr, *OwnerPath);
	}
	Ar << Names;
	Ar << Owner;
	if (Ar.IsLoading())
	{
		Value.Path = Owner && !Names.IsEmpty() ? Owner->GetPathName() + TEXT(":") + Names[0].ToString() : FString();
	}
	return Ar;
}

void FFieldPathProperty::Serialize(FArchive& Ar)
{
	Super::Serialize(Ar);
	FName ClassName = PropertyClass->GetFName();
	Ar << ClassName;
	if (Ar.IsLoading())
	{
		FFieldClass* const* const Found = FFieldClass::GetNameToFieldClassMap().Find(ClassName);
		PropertyClass = Found ? *Found : FProperty::StaticClass();
	}
}

void FFieldPathProperty::PostDuplicate(const FField& InField)
{
	PropertyClass = static_cast<const FFieldPathProperty&>(InField).PropertyClass;
	Super::PostDuplicate(InField);
}

FString FFieldPathProperty::GetCPPType(FString* ExtendedTypeText, uint32 CPPExportFlags) const
{
	const FString Extended = TEXT("<F") + PropertyClass->GetName() + TEXT(">");
	if (!ExtendedTypeText)
	{
		return TEXT("TFieldPath") + Extended;
	}
	*ExtendedTypeText = Extended;
	return TEXT("TFieldPath");
}

bool FFieldPathProperty::SameType(const FProperty* Other) const
{
	return Super::SameType(Other) && PropertyClass == static_cast<const FFieldPathProperty*>(Other)->PropertyClass;
}

void FFieldPathProperty::ExportText_Internal(FString& ValueStr, const void* PropertyValue, const void* DefaultValue, UObject* Parent,
	int32 PortFlags, UObject* ExportRootScope) const
{
	const FFieldPath& Value = GetPropertyValue(PropertyValue);
	const FString Text = Value.IsEmpty() ? FString(TEXT("None")) : Value.ToString();
	ValueStr += PortFlags & PPF_Delimited ? FPropertyHelpers::QuoteAndEscape(Text) : Text;
}

const TCHAR* FFieldPathProperty::ImportText_Internal(
	const TCHAR* Buffer, void* PropertyValue, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText) const
{
	FString Text;
	const TCHAR* const Start = FPropertyHelpers::SkipWhitespace(Buffer);
	const TCHAR* const End = FPropertyHelpers::ReadToken(Start, Text, true);
	if (!End)
	{
		return FPropertyHelpers::RefuseText(ErrorText, this, TEXT("is not the path of a property"), Start);
	}
	GetPropertyValuePtr(PropertyValue)->Generate(*Text);
	return End;
}
