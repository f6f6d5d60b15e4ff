#include "UObject/ObjectRedirector.h"
#include "UObject/Package.h"
#include "UObject/PlaceholderObject.h"
#include "UObject/UObjectGlobals.h"
#include "UObjectHashTables.h"

namespace
{
struct FMatch
{
	const UClass* Class;
	bool bExactClass;
	EObjectFlags ExclusiveFlags = RF_NoFlags;
	EInternalObjectFlags ExclusiveInternalFlags = EInternalObjectFlags::None;

	bool operator()(const UObject* Object) const
	{
		const bool bClassFits = !Class || (bExactClass ? Object->GetClass() == Class : Object->IsA(Class));
		return bClassFits && !Object->HasAnyFlags(ExclusiveFlags) &&
			!Object->HasAnyInternalFlags(ExclusiveInternalFlags | EInternalObjectFlags::Unreachable);
	}
};

/** "Class'/Path'" without the class and quotes. */
FStringView StripExportText(FStringView Text)
{
	int32 Quote = INDEX_NONE;
	if (Text.FindChar('\'', Quote) && Text.EndsWith(TEXT("'")) && Quote + 1 < Text.Len())
	{
		Text = Text.Mid(Quote + 1, Text.Len() - Quote - 2);
	}
	if (Text.Len() >= 2 && Text.StartsWith(TEXT("\"")) && Text.EndsWith(TEXT("\"")))
	{
		Text = Text.Mid(1, Text.Len() - 2);
	}
	return Text;
}

int32 FindSeparator(FStringView Text)
{
	for (int32 Index = 0; Index < Text.Len(); ++Index)
	{
		if (Text[Index] == '.' || Text[Index] == ':')
		{
			return Index;
		}
	}
	return INDEX_NONE;
}

/** Compared as a number: it is no address that an object could have. */
bool IsAnyPackage(const UObject* Outer)
{
	return reinterpret_cast<UPTRINT>(Outer) == reinterpret_cast<UPTRINT>(ANY_PACKAGE_DEPRECATED);
}

FName FindName(FStringView Text)
{
	return FName(*FString(Text), FNAME_Find);
}

/** The default object of a native class is there before anybody asks for it; that of a declared class is made when somebody does. */
UObject* FindDeclaredDefaultObject(UObject* Package, FStringView Name)
{
	const FStringView Prefix(DEFAULT_OBJECT_PREFIX);
	if (!Package || Package->GetClass() != UPackage::StaticClass() || !Name.StartsWith(Prefix))
	{
		return nullptr;
	}
	const UObject* const Class = StaticFindObjectFast(UClass::StaticClass(), Package, FindName(Name.RightChop(Prefix.Len())));
	const bool bIsDeclared = Class && static_cast<const UClass*>(Class)->bLaidOutAtRunTime;
	return bIsDeclared ? static_cast<const UClass*>(Class)->GetDefaultObject() : nullptr;
}

UObject* FindInOuter(UClass* Class, UObject* Outer, FStringView Name, bool bExactClass)
{
	UObject* const Found = StaticFindObjectFast(Class, Outer, FindName(Name), bExactClass);
	UObject* const Defaults = Found ? nullptr : FindDeclaredDefaultObject(Outer, Name);
	return Defaults && FMatch{Class, bExactClass}(Defaults) ? Defaults : Found;
}
}

UObject* StaticFindObjectFastInternal(const UClass* Class, const UObject* InOuter, FName InName, bool bExactClass,
	EObjectFlags ExclusiveFlags, EInternalObjectFlags ExclusiveInternalFlags)
{
	if (InName == NAME_None)
	{
		return nullptr;
	}
	const FMatch Match{Class, bExactClass, ExclusiveFlags, ExclusiveInternalFlags};
	if (IsAnyPackage(InOuter))
	{
		return FUObjectHashTables::Get().FindByName(InName, Match);
	}
	return FUObjectHashTables::Get().FindInOuter(InOuter, InName, Match);
}

UObject* StaticFindObjectFast(UClass* Class, UObject* InOuter, FName InName, bool ExactClass, EObjectFlags ExclusiveFlags,
	EInternalObjectFlags ExclusiveInternalFlags)
{
	return StaticFindObjectFastInternal(Class, InOuter, InName, ExactClass, ExclusiveFlags, ExclusiveInternalFlags);
}

UObject* StaticFindObject(UClass* Class, UObject* InOuter, const TCHAR* Name, bool ExactClass)
{
	if (!Name || !*Name)
	{
		return nullptr;
	}
	FStringView Rest = StripExportText(FStringView(Name));
	UObject* Outer = IsAnyPackage(InOuter) ? nullptr : InOuter;
	int32 Separator = FindSeparator(Rest);
	if (IsAnyPackage(InOuter) && Separator == INDEX_NONE)
	{
		return StaticFindFirstObject(Class, Name, ExactClass ? EFindFirstObjectOptions::ExactClass : EFindFirstObjectOptions::None);
	}
	for (; Separator != INDEX_NONE; Separator = FindSeparator(Rest))
	{
		UObject* const Next = FindInOuter(nullptr, Outer, Rest.Left(Separator), false);
		if (!Next)
		{
			return nullptr;
		}
		Outer = Next;
		Rest = Rest.RightChop(Separator + 1);
	}
	if (UObject* const Found = FindInOuter(Class, Outer, Rest, ExactClass))
	{
		return Found;
	}
	// A redirector stands for where its object went, unless the caller asks for redirectors.
	const UObject* const Redirector = StaticFindObjectFast(UObjectRedirector::StaticClass(), Outer, FindName(Rest));
	UObject* const Destination = Redirector ? static_cast<const UObjectRedirector*>(Redirector)->DestinationObject.Get() : nullptr;
	return Destination && FMatch{Class, ExactClass}(Destination) ? Destination : nullptr;
}

UObject* StaticFindObject(UClass* Class, FTopLevelAssetPath ObjectPath, bool ExactClass)
{
	UObject* const Package = StaticFindObjectFast(UPackage::StaticClass(), nullptr, ObjectPath.GetPackageName());
	if (!Package || ObjectPath.GetAssetName() == NAME_None)
	{
		return Package && FMatch{Class, ExactClass}(Package) ? Package : nullptr;
	}
	return StaticFindObjectFast(Class, Package, ObjectPath.GetAssetName(), ExactClass);
}

UObject* StaticFindObjectChecked(UClass* Class, UObject* InOuter, const TCHAR* Name, bool ExactClass)
{
	UObject* const Result = StaticFindObject(Class, InOuter, Name, ExactClass);
	checkf(Result, TEXT("Failed to find %s %s in %s"), *GetNameSafe(Class), Name, *GetPathNameSafe(InOuter));
	return Result;
}

UObject* StaticFindObjectSafe(UClass* Class, UObject* InOuter, const TCHAR* Name, bool ExactClass)
{
	return GIsSavingPackage || IsGarbageCollecting() ? nullptr : StaticFindObject(Class, InOuter, Name, ExactClass);
}

UObject* StaticFindFirstObject(UClass* Class, const TCHAR* Name, EFindFirstObjectOptions Options,
	ELogVerbosity::Type AmbiguousMessageVerbosity, const TCHAR* CurrentOperation)
{
	const FStringView Text = StripExportText(FStringView(Name));
	const int32 Separator = FindSeparator(Text);
	const bool bExactClass = EnumHasAnyFlags(Options, EFindFirstObjectOptions::ExactClass);
	if (Separator != INDEX_NONE || Text.StartsWith(TEXT("/")))
	{
		return StaticFindObject(Class, nullptr, *FString(Text), bExactClass);
	}
	const FMatch Match{Class, bExactClass};
	const FName ObjectName = FindName(Text);
	UObject* First = nullptr;
	// The tables give the newest first; of several, the oldest real object is what a user means, a native one if asked.
	FUObjectHashTables::Get().FindByName(ObjectName,
		[&](UObject* Object)
		{
			const bool bBetterKind = !First || UE::CoreUObject::IsPlaceholder(First) || !UE::CoreUObject::IsPlaceholder(Object);
			const bool bKeepNative =
				First && EnumHasAnyFlags(Options, EFindFirstObjectOptions::NativeFirst) && First->IsNative() && !Object->IsNative();
			if (Match(Object) && bBetterKind && !bKeepNative)
			{
				First = Object;
			}
			return false;
		});
	return First;
}

bool ResolveName(UObject*& Outer, FStringView& ObjectsReferenceString, bool Create, bool Throw, uint32 LoadFlags,
	const FLinkerInstancingContext* InstancingContext)
{
	FString Reference(ObjectsReferenceString);
	const bool bResolved = ResolveName(Outer, Reference, Create, Throw, LoadFlags, InstancingContext);
	ObjectsReferenceString = ObjectsReferenceString.RightChop(ObjectsReferenceString.Len() - Reference.Len());
	return bResolved;
}

bool ResolveName(UObject*& Outer, FString& ObjectsReferenceString, bool Create, bool Throw, uint32 LoadFlags,
	const FLinkerInstancingContext* InstancingContext)
{
	FStringView Rest = StripExportText(FStringView(ObjectsReferenceString));
	for (int32 Separator = FindSeparator(Rest); Separator != INDEX_NONE; Separator = FindSeparator(Rest))
	{
		const FString Part(Rest.Left(Separator));
		UObject* Next = StaticFindObjectFast(nullptr, Outer, FName(*Part, FNAME_Find));
		if (!Next && !Outer && Create)
		{
			Next = LoadPackage(nullptr, *Part, LoadFlags);
			Next = Next ? Next : CreatePackage(*Part);
		}
		if (!Next)
		{
			return false;
		}
		Outer = Next;
		Rest = Rest.RightChop(Separator + 1);
	}
	ObjectsReferenceString = FString(Rest);
	return true;
}

UObject* StaticLoadObject(UClass* Class, UObject* InOuter, const TCHAR* Name, const TCHAR* Filename, uint32 LoadFlags,
	UPackageMap* Sandbox, bool bAllowObjectReconciliation, const FLinkerInstancingContext* InstancingContext)
{
	if (!Name || !*Name)
	{
		return nullptr;
	}
	const FString Path(StripExportText(FStringView(Name)));
	UObject* Found = StaticFindObject(Class, InOuter, *Path);
	if (!InOuter && (!Found || UE::CoreUObject::IsPlaceholder(Found)) && Path.StartsWith(TEXT("/")))
	{
		FString ObjectPath = Path;
		const int32 Separator = FindSeparator(Path);
		const FString PackageName = Separator == INDEX_NONE ? Path : Path.Left(Separator);
		if (Separator == INDEX_NONE && Class != UPackage::StaticClass())
		{
			ObjectPath +=
				TEXT(".") + PackageName.RightChop(PackageName.Find(TEXT("/"), ESearchCase::CaseSensitive, ESearchDir::FromEnd) + 1);
			Found = StaticFindObject(Class, nullptr, *ObjectPath);
		}
		if (!Found || UE::CoreUObject::IsPlaceholder(Found))
		{
			LoadPackage(nullptr, Filename ? Filename : *PackageName, LoadFlags | LOAD_NoWarn);
			Found = StaticFindObject(Class, nullptr, *ObjectPath);
		}
	}
	if (Found && UE::CoreUObject::IsPlaceholder(Found))
	{
		Found = nullptr;
	}
	if (!Found && !(LoadFlags & (LOAD_NoWarn | LOAD_Quiet)))
	{
		UE_LOG(LogUObjectGlobals, Warning, TEXT("Failed to find object '%s %s'"), *GetNameSafe(Class), *Path);
	}
	return Found;
}

UClass* StaticLoadClass(
	UClass* BaseClass, UObject* InOuter, const TCHAR* Name, const TCHAR* Filename, uint32 LoadFlags, UPackageMap* Sandbox)
{
	UClass* const Class = static_cast<UClass*>(StaticLoadObject(UClass::StaticClass(), InOuter, Name, Filename, LoadFlags, Sandbox));
	if (Class && BaseClass && !Class->IsChildOf(BaseClass))
	{
		UE_LOG(LogUObjectGlobals, Warning, TEXT("%s is not a child class of %s"), *Class->GetFullName(), *BaseClass->GetFullName());
		return nullptr;
	}
	return Class;
}
