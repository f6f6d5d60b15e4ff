#include "Misc/PackageName.h"
#include "UObject/Casts.h"
#include "UObject/Class.h"
#include "UObject/ObjectProperty.h"
#include "UObject/Package.h"
#include "UObject/PlaceholderObject.h"
#include "UObject/PropertyHelper.h"
#include "UObject/UObjectGlobals.h"

namespace
{
/** "Class'Path'" taken apart; ClassName is empty for a plain path. */
struct FReferenceText
{
	FString ClassName;
	FString Path;
};

bool EndsPlainReference(TCHAR Char)
{
	return Char == TEXT('\0') || Char == TEXT(',') || Char == TEXT('(') || Char == TEXT(')') || Char == TEXT('=') || Char == TEXT('"') ||
		FChar::IsLinebreak(Char);
}

FString Unquote(const FString& Text)
{
	return Text.Len() >= 2 && Text.StartsWith(TEXT("\"")) && Text.EndsWith(TEXT("\"")) ? Text.Mid(1, Text.Len() - 2) : Text;
}

FReferenceText SplitReference(const FString& Text)
{
	const FString Trimmed = Text.TrimStartAndEnd();
	int32 Apostrophe = INDEX_NONE;
	if (!Trimmed.FindChar(TEXT('\''), Apostrophe) || !Trimmed.EndsWith(TEXT("'")) || Apostrophe + 1 >= Trimmed.Len())
	{
		return {FString(), Unquote(Trimmed)};
	}
	return {Trimmed.Left(Apostrophe), Unquote(Trimmed.Mid(Apostrophe + 1, Trimmed.Len() - Apostrophe - 2))};
}

/** Takes one reference off the front, in any of its spellings. Null when a quote stays open or there is nothing. */
const TCHAR* ReadReference(const TCHAR* Buffer, FReferenceText& OutReference)
{
	const TCHAR* const Start = FPropertyHelpers::SkipWhitespace(Buffer);
	if (*Start == TEXT('"'))
	{
		FString Quoted;
		const TCHAR* const End = FPropertyHelpers::ReadToken(Start, Quoted);
		OutReference = SplitReference(Quoted);
		return End;
	}
	const TCHAR* End = Start;
	while (!EndsPlainReference(*End) && *End != TEXT('\''))
	{
		++End;
	}
	if (*End == TEXT('\''))
	{
		const bool bInnerQuotes = End[1] == TEXT('"');
		End += bInnerQuotes ? 2 : 1;
		while (*End && !(bInnerQuotes ? End[0] == TEXT('"') && End[1] == TEXT('\'') : *End == TEXT('\'')))
		{
			++End;
		}
		if (!*End)
		{
			return nullptr;
		}
		End += bInnerQuotes ? 2 : 1;
	}
	OutReference = SplitReference(FString(static_cast<int32>(End - Start), Start));
	return OutReference.Path.IsEmpty() ? nullptr : End;
}

/** The class before the apostrophe. One that is named by its whole path and unknown is stood in for, below what the property wants. */
UClass* FindReferenceClass(const FString& ClassName, UClass* PropertyClass)
{
	if (ClassName.IsEmpty())
	{
		return nullptr;
	}
	if (!ClassName.Contains(TEXT("/")))
	{
		return FindFirstObject<UClass>(*ClassName);
	}
	UClass* const Found = FindObject<UClass>(nullptr, *ClassName);
	return Found ? Found : UE::CoreUObject::FindOrCreatePlaceholderClass(FTopLevelAssetPath(ClassName), PropertyClass);
}

UObject* FindNearOwner(UClass* Class, UObject* OwnerObject, const TCHAR* Path)
{
	for (UObject* Scope = OwnerObject; Scope; Scope = Scope->GetOuter())
	{
		if (UObject* const Found = StaticFindObject(Class, Scope, Path))
		{
			return Found;
		}
	}
	return nullptr;
}
}

FString FObjectPropertyBase::GetExportPath(const UObject* Object, const UObject* Parent, const UObject* ExportRootScope, uint32 PortFlags)
{
	if (!Object)
	{
		return TEXT("None");
	}
	const UObject* StopOuter = nullptr;
	bool bFullyQualified = true;
	if (PortFlags & PPF_ExportsNotFullyQualified)
	{
		// What is copied may be pasted elsewhere: it and its siblings are named relative to what holds them.
		const UObject* Scope = ExportRootScope || !Parent ? ExportRootScope : Parent->GetOutermost();
		bFullyQualified = Scope && !Object->IsIn(Scope);
		if (bFullyQualified)
		{
			Scope = Scope->GetOuter();
			bFullyQualified = !Scope || !Object->IsIn(Scope);
		}
		StopOuter = bFullyQualified ? nullptr : Parent && Object->IsIn(Parent) ? Parent
																			   : Scope;
	}
	if (bFullyQualified && (PortFlags & PPF_SimpleObjectText) && Parent)
	{
		StopOuter = Parent->GetOutermost();
	}
	const FString Path = Object->GetPathName(StopOuter);
	if (PortFlags & PPF_SimpleObjectText)
	{
		return Path;
	}
	return FString::Printf(TEXT("\"%s'%s'\""), *Object->GetClass()->GetPathName(), *Path);
}

bool FObjectPropertyBase::ParseObjectPropertyValue(const FProperty* Property, UObject* OwnerObject, UClass* RequiredMetaClass,
	uint32 PortFlags, const TCHAR*& Buffer, TObjectPtr<UObject>& OutResolvedValue)
{
	FReferenceText Reference;
	const TCHAR* const End = ReadReference(Buffer, Reference);
	if (!End)
	{
		return false;
	}
	OutResolvedValue = nullptr;
	if (!Reference.Path.IsEmpty() && Reference.Path != TEXT("None") && Reference.Path != TEXT("null"))
	{
		const FObjectPropertyBase* const ObjectProperty = CastField<FObjectPropertyBase>(Property);
		UClass* const PropertyClass = ObjectProperty ? ObjectProperty->PropertyClass : UObject::StaticClass();
		UClass* ObjectClass = FindReferenceClass(Reference.ClassName, PropertyClass);
		if (!ObjectClass || (PropertyClass && PropertyClass->IsChildOf(ObjectClass)))
		{
			ObjectClass = PropertyClass;
		}
		OutResolvedValue = FindImportedObject(Property, OwnerObject, ObjectClass, RequiredMetaClass, *Reference.Path, PortFlags);
		if (!OutResolvedValue || (PropertyClass && !OutResolvedValue->IsA(PropertyClass)))
		{
			OutResolvedValue = nullptr;
			return false;
		}
	}
	Buffer = End;
	return true;
}

UObject* FObjectPropertyBase::FindImportedObject(
	const FProperty* Property, UObject* OwnerObject, UClass* ObjectClass, UClass* RequiredMetaClass, const TCHAR* Text, uint32 PortFlags)
{
	const bool bIsFullPath = *Text == TEXT('/');
	UObject* Result = nullptr;
	if (bIsFullPath)
	{
		Result = StaticFindObject(ObjectClass, nullptr, Text);
		const FString PackageName = FPackageName::ObjectPathToPackageName(FString(Text));
		if (!Result && FPackageName::DoesPackageExist(PackageName))
		{
			Result = StaticLoadObject(ObjectClass, nullptr, Text, nullptr, LOAD_NoWarn | LOAD_Quiet);
		}
		if (!Result)
		{
			Result = UE::CoreUObject::FindOrCreatePlaceholder(ObjectClass, FString(Text));
		}
	}
	else
	{
		Result = FindNearOwner(ObjectClass, OwnerObject, Text);
		if (!Result)
		{
			Result = StaticFindFirstObject(ObjectClass, Text, EFindFirstObjectOptions::NativeFirst);
		}
	}
	const UClass* const ResultClass = Cast<UClass>(Result);
	const bool bIsOutsideMetaClass =
		RequiredMetaClass && ResultClass && !ResultClass->IsChildOf(RequiredMetaClass) && !UE::CoreUObject::IsPlaceholder(ResultClass);
	const bool bIsNoClass = RequiredMetaClass && Result && !ResultClass && !UE::CoreUObject::IsPlaceholder(Result);
	return bIsOutsideMetaClass || bIsNoClass ? nullptr : Result;
}

void FObjectPropertyBase::ExportText_Internal(FString& ValueStr, const void* PropertyValue, const void* DefaultValue, UObject* Parent,
	int32 PortFlags, UObject* ExportRootScope) const
{
	ValueStr += GetExportPath(GetObjectPropertyValue(PropertyValue), Parent, ExportRootScope, PortFlags);
}

const TCHAR* FObjectPropertyBase::ImportText_Internal(
	const TCHAR* Buffer, void* PropertyValue, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText) const
{
	TObjectPtr<UObject> Object;
	const TCHAR* const Start = Buffer;
	if (!ParseObjectPropertyValue(this, OwnerObject, GetRequiredMetaClass(), PortFlags, Buffer, Object))
	{
		return FPropertyHelpers::RefuseText(ErrorText, this,
			*FString::Printf(TEXT("does not name a %s"), PropertyClass ? *PropertyClass->GetName() : TEXT("object")), Start);
	}
	SetObjectPropertyValue(PropertyValue, Object);
	return Buffer;
}
