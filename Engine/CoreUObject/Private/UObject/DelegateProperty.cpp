#include "UObject/DelegateProperty.h"

#include "Serialization/Archive.h"
#include "UObject/Class.h"
#include "UObject/PropertyHelper.h"
#include "UObject/UObjectGlobals.h"

IMPLEMENT_FIELD(FDelegateProperty)
IMPLEMENT_ABSTRACT_FIELD(FMulticastDelegateProperty)
IMPLEMENT_FIELD(FMulticastInlineDelegateProperty)
IMPLEMENT_FIELD(FMulticastSparseDelegateProperty)

namespace
{
void SerializeSignature(FArchive& Ar, UFunction*& SignatureFunction)
{
	Ar << SignatureFunction;
	if (Ar.IsLoading() && SignatureFunction && !SignatureFunction->IsA(UFunction::StaticClass()))
	{
		SignatureFunction = nullptr;
		Ar.SetError();
	}
}

FString GetSignatureCPPType(const UFunction* SignatureFunction)
{
	FString Name = SignatureFunction ? SignatureFunction->GetName() : FString(TEXT("ScriptDelegate"));
	Name.RemoveFromEnd(TEXT("__DelegateSignature"));
	return TEXT("F") + Name;
}

/** "(null).None" for an unbound one, else "/Path.Object.Function". */
FString ExportDelegate(const FScriptDelegate& Delegate)
{
	const UObject* const Object = Delegate.GetUObject();
	return FString::Printf(TEXT("%s.%s"), Object ? *Object->GetPathName() : TEXT("(null)"), *Delegate.GetFunctionName().ToString());
}

const TCHAR* ImportDelegate(const TCHAR* Buffer, UObject* OwnerObject, FScriptDelegate& OutDelegate)
{
	constexpr const TCHAR* NullPrefix = TEXT("(null).");
	constexpr int32 NullPrefixLength = 7;
	const bool bIsNull = FCString::Strncmp(Buffer, NullPrefix, NullPrefixLength) == 0;
	FString Token;
	const TCHAR* const End = FPropertyHelpers::ReadToken(bIsNull ? Buffer + NullPrefixLength : Buffer, Token, true);
	if (!End)
	{
		return nullptr;
	}
	OutDelegate.Unbind();
	FString ObjectPath;
	FString FunctionName;
	if (bIsNull || Token == TEXT("None"))
	{
		return End;
	}
	UObject* Object = OwnerObject;
	if (Token.Split(TEXT("."), &ObjectPath, &FunctionName, ESearchCase::CaseSensitive, ESearchDir::FromEnd))
	{
		Object = StaticFindObject(UObject::StaticClass(), nullptr, *ObjectPath);
		Object = Object ? Object : StaticFindObject(UObject::StaticClass(), OwnerObject, *ObjectPath);
	}
	else
	{
		FunctionName = Token;
	}
	if (!Object || !Object->FindFunction(FName(*FunctionName)))
	{
		return nullptr;
	}
	OutDelegate.BindUFunction(Object, FName(*FunctionName));
	return End;
}
}

void FDelegateProperty::Serialize(FArchive& Ar)
{
	Super::Serialize(Ar);
	SerializeSignature(Ar, SignatureFunction);
}

void FDelegateProperty::PostDuplicate(const FField& InField)
{
	SignatureFunction = static_cast<const FDelegateProperty&>(InField).SignatureFunction;
	Super::PostDuplicate(InField);
}

void FDelegateProperty::AddReferencedObjects(FReferenceCollector& Collector)
{
	Super::AddReferencedObjects(Collector);
	Collector.AddReferencedObject(SignatureFunction);
}

FString FDelegateProperty::GetCPPType(FString* ExtendedTypeText, uint32 CPPExportFlags) const
{
	return GetSignatureCPPType(SignatureFunction);
}

bool FDelegateProperty::SameType(const FProperty* Other) const
{
	return Super::SameType(Other) && SignatureFunction == static_cast<const FDelegateProperty*>(Other)->SignatureFunction;
}

bool FDelegateProperty::Identical(const void* A, const void* B, uint32 PortFlags) const
{
	const FScriptDelegate& Left = GetPropertyValue(A);
	return B ? Left == GetPropertyValue(B) : Left == FScriptDelegate();
}

bool FDelegateProperty::ContainsObjectReference(
	TArray<const FStructProperty*>& EncounteredStructProps, EPropertyObjectReferenceType InReferenceType) const
{
	return EnumHasAnyFlags(InReferenceType, EPropertyObjectReferenceType::Weak);
}

void FDelegateProperty::SerializeItem(FArchive& Ar, void* Value, const void* Defaults) const
{
	Ar << *GetPropertyValuePtr(Value);
}

void FDelegateProperty::ExportText_Internal(FString& ValueStr, const void* PropertyValue, const void* DefaultValue, UObject* Parent,
	int32 PortFlags, UObject* ExportRootScope) const
{
	ValueStr += ExportDelegate(GetPropertyValue(PropertyValue));
}

const TCHAR* FDelegateProperty::ImportText_Internal(
	const TCHAR* Buffer, void* PropertyValue, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText) const
{
	const TCHAR* const End = ImportDelegate(FPropertyHelpers::SkipWhitespace(Buffer), OwnerObject, *GetPropertyValuePtr(PropertyValue));
	return End ? End : FPropertyHelpers::RefuseText(ErrorText, this, TEXT("does not name a function of an object"), Buffer);
}

FMulticastScriptDelegate& FMulticastDelegateProperty::ResolveDelegate(UObject* Parent, void* PropertyValue) const
{
	return *GetPropertyValuePtr(PropertyValue ? PropertyValue : ContainerPtrToValuePtr<void>(Parent));
}

void FMulticastDelegateProperty::AddDelegate(FScriptDelegate ScriptDelegate, UObject* Parent, void* PropertyValue) const
{
	ResolveDelegate(Parent, PropertyValue).AddUnique(ScriptDelegate);
}

void FMulticastDelegateProperty::RemoveDelegate(const FScriptDelegate& ScriptDelegate, UObject* Parent, void* PropertyValue) const
{
	ResolveDelegate(Parent, PropertyValue).Remove(ScriptDelegate);
}

void FMulticastDelegateProperty::ClearDelegate(UObject* Parent, void* PropertyValue) const
{
	ResolveDelegate(Parent, PropertyValue).Clear();
}

void FMulticastDelegateProperty::Serialize(FArchive& Ar)
{
	Super::Serialize(Ar);
	SerializeSignature(Ar, SignatureFunction);
}

void FMulticastDelegateProperty::PostDuplicate(const FField& InField)
{
	SignatureFunction = static_cast<const FMulticastDelegateProperty&>(InField).SignatureFunction;
	Super::PostDuplicate(InField);
}

void FMulticastDelegateProperty::AddReferencedObjects(FReferenceCollector& Collector)
{
	Super::AddReferencedObjects(Collector);
	Collector.AddReferencedObject(SignatureFunction);
}

FString FMulticastDelegateProperty::GetCPPType(FString* ExtendedTypeText, uint32 CPPExportFlags) const
{
	return GetSignatureCPPType(SignatureFunction);
}

bool FMulticastDelegateProperty::SameType(const FProperty* Other) const
{
	return Super::SameType(Other) && SignatureFunction == static_cast<const FMulticastDelegateProperty*>(Other)->SignatureFunction;
}

bool FMulticastDelegateProperty::Identical(const void* A, const void* B, uint32 PortFlags) const
{
	const FMulticastScriptDelegate& Left = GetPropertyValue(A);
	return B ? Left == GetPropertyValue(B) : Left.InvocationList.IsEmpty();
}

bool FMulticastDelegateProperty::ContainsObjectReference(
	TArray<const FStructProperty*>& EncounteredStructProps, EPropertyObjectReferenceType InReferenceType) const
{
	return EnumHasAnyFlags(InReferenceType, EPropertyObjectReferenceType::Weak);
}

void FMulticastDelegateProperty::SerializeItem(FArchive& Ar, void* Value, const void* Defaults) const
{
	Ar << *GetPropertyValuePtr(Value);
}

void FMulticastDelegateProperty::ExportText_Internal(FString& ValueStr, const void* PropertyValue, const void* DefaultValue,
	UObject* Parent, int32 PortFlags, UObject* ExportRootScope) const
{
	ValueStr += TEXT("(");
	bool bIsFirst = true;
	for (const FScriptDelegate& Delegate : GetPropertyValue(PropertyValue).InvocationList)
	{
		ValueStr += (bIsFirst ? TEXT("") : TEXT(",")) + ExportDelegate(Delegate);
		bIsFirst = false;
	}
	ValueStr += TEXT(")");
}

const TCHAR* FMulticastDelegateProperty::ImportText_Internal(
	const TCHAR* Buffer, void* PropertyValue, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText) const
{
	const TCHAR* Text = FPropertyHelpers::SkipWhitespace(Buffer);
	if (*Text != TEXT('('))
	{
		return FPropertyHelpers::RefuseText(ErrorText, this, TEXT("is not a list of delegates"), Text);
	}
	FMulticastScriptDelegate Value;
	Text = FPropertyHelpers::SkipWhitespace(Text + 1);
	while (*Text != TEXT(')'))
	{
		FScriptDelegate Delegate;
		const TCHAR* const End = ImportDelegate(Text, OwnerObject, Delegate);
		if (!End)
		{
			return FPropertyHelpers::RefuseText(ErrorText, this, TEXT("does not name a function of an object"), Text);
		}
		Value.AddUnique(Delegate);
		Text = FPropertyHelpers::SkipWhitespace(End);
		Text = *Text == TEXT(',') ? FPropertyHelpers::SkipWhitespace(Text + 1) : Text;
	}
	SetMulticastDelegate(PropertyValue, Value);
	return Text + 1;
}
