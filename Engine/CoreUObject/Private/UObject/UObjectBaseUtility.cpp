#include "UObject/UObjectBaseUtility.h"

#include "UObject/Class.h"
#include "UObject/Package.h"

namespace
{
const UObject* AsObject(const UObjectBaseUtility* Object)
{
	return static_cast<const UObject*>(Object);
}
FUObjectItem& ItemOf(const UObjectBaseUtility* Object)
{
	return GUObjectArray.IndexToObjectUnsafe(static_cast<int32>(Object->GetUniqueID()));
}

/** A ':' stands before the name of an object whose outer is an asset, that is, directly in a package; '.' before any other. */
TCHAR SeparatorBefore(const UObject* Object)
{
	const UObject* const Outer = Object->GetOuter();
	const bool bOuterIsTopLevel =
		Outer->GetClass() != UPackage::StaticClass() && Outer->GetOuter() && Outer->GetOuter()->GetClass() == UPackage::StaticClass();
	return bOuterIsTopLevel ? TCHAR(':') : TCHAR('.');
}

void AppendPathName(const UObject* Object, const UObject* StopOuter, FString& Result)
{
	const UObject* const Outer = Object->GetOuter();
	if (Outer && Outer != StopOuter)
	{
		AppendPathName(Outer, StopOuter, Result);
		Result.AppendChar(SeparatorBefore(Object));
	}
	Object->GetFName().AppendString(Result);
}
}

EInternalObjectFlags UObjectBaseUtility::GetInternalFlags() const
{
	return ItemOf(this).GetFlags();
}

bool UObjectBaseUtility::HasAnyInternalFlags(EInternalObjectFlags FlagsToCheck) const
{
	return ItemOf(this).HasAnyFlags(FlagsToCheck);
}

void UObjectBaseUtility::SetInternalFlags(EInternalObjectFlags FlagsToSet) const
{
	ItemOf(this).SetFlags(FlagsToSet);
}

void UObjectBaseUtility::ClearInternalFlags(EInternalObjectFlags FlagsToClear) const
{
	ItemOf(this).ClearFlags(FlagsToClear);
}

void UObjectBaseUtility::MarkAsGarbage()
{
	checkf(!IsRooted(), TEXT("A rooted object cannot be given up: %s"), *GetFullName());
	SetFlags(RF_MirroredGarbage);
	SetInternalFlags(EInternalObjectFlags::Garbage);
}

void UObjectBaseUtility::ClearGarbage()
{
	ClearFlags(RF_MirroredGarbage);
	ClearInternalFlags(EInternalObjectFlags::Garbage);
}

void UObjectBaseUtility::AddToRoot()
{
	SetInternalFlags(EInternalObjectFlags::RootSet);
}

void UObjectBaseUtility::RemoveFromRoot()
{
	ClearInternalFlags(EInternalObjectFlags::RootSet);
}

FString UObjectBaseUtility::GetPathName(const UObject* StopOuter) const
{
	FString Result;
	GetPathName(StopOuter, Result);
	return Result;
}

void UObjectBaseUtility::GetPathName(const UObject* StopOuter, FString& ResultString) const
{
	if (AsObject(this) == StopOuter)
	{
		ResultString += TEXT("None");
		return;
	}
	AppendPathName(AsObject(this), StopOuter, ResultString);
}

FString UObjectBaseUtility::GetFullName(const UObject* StopOuter) const
{
	return GetClass()->GetName() + TEXT(" ") + GetPathName(StopOuter);
}

FString UObjectBaseUtility::GetFullGroupName(bool bStartWithOuter) const
{
	const UObject* const Start = bStartWithOuter ? GetOuter() : AsObject(this);
	return Start ? Start->GetPathName(GetOutermost()) : FString();
}

UPackage* UObjectBaseUtility::GetOutermost() const
{
	UObject* Top = const_cast<UObject*>(AsObject(this));
	while (Top->GetOuter())
	{
		Top = Top->GetOuter();
	}
	return Top->GetClass()->HasAnyCastFlag(CASTCLASS_UPackage) ? static_cast<UPackage*>(Top) : nullptr;
}

UPackage* UObjectBaseUtility::GetPackage() const
{
	const UObject* Top = AsObject(this);
	while (true)
	{
		if (UPackage* const External = Top->GetExternalPackage())
		{
			return External;
		}
		if (!Top->GetOuter())
		{
			return const_cast<UPackage*>(static_cast<const UPackage*>(Top));
		}
		Top = Top->GetOuter();
	}
}

UObject* UObjectBaseUtility::GetOutermostObject() const
{
	UObject* Top = const_cast<UObject*>(AsObject(this));
	while (Top->GetOuter() && Top->GetOuter()->GetOuter())
	{
		Top = Top->GetOuter();
	}
	return Top;
}

UObject* UObjectBaseUtility::GetTypedOuter(UClass* Target) const
{
	for (UObject* Outer = GetOuter(); Outer; Outer = Outer->GetOuter())
	{
		if (Outer->IsA(Target))
		{
			return Outer;
		}
	}
	return nullptr;
}

bool UObjectBaseUtility::IsIn(const UObject* SomeOuter) const
{
	for (const UObject* Outer = GetOuter(); Outer; Outer = Outer->GetOuter())
	{
		if (Outer == SomeOuter)
		{
			return true;
		}
	}
	return SomeOuter == nullptr;
}

bool UObjectBaseUtility::IsInOuter(const UObject* SomeOuter) const
{
	return IsIn(SomeOuter);
}

bool UObjectBaseUtility::IsInPackage(const UPackage* SomePackage) const
{
	return SomePackage && GetPackage() == SomePackage && AsObject(this) != SomePackage;
}

bool UObjectBaseUtility::RootPackageHasAnyFlags(uint32 CheckFlagMask) const
{
	const UPackage* const Package = GetOutermost();
	return Package && Package->HasAnyPackageFlags(CheckFlagMask);
}

bool UObjectBaseUtility::MarkPackageDirty() const
{
	if (HasAnyFlags(static_cast<EObjectFlags>(RF_Transient)))
	{
		return false;
	}
	UPackage* const Package = GetPackage();
	if (!Package)
	{
		return false;
	}
	const bool bWasDirty = Package->IsDirty();
	Package->SetDirtyFlag(true);
	UPackage::PackageMarkedDirtyEvent.Broadcast(Package, bWasDirty);
	return true;
}

bool UObjectBaseUtility::IsTemplate(EObjectFlags TemplateTypes) const
{
	for (const UObject* Object = AsObject(this); Object; Object = Object->GetOuter())
	{
		if (Object->HasAnyFlags(TemplateTypes))
		{
			return true;
		}
	}
	return false;
}

bool UObjectBaseUtility::IsDefaultSubobject() const
{
	return !HasAnyFlags(RF_ClassDefaultObject) && GetOuter() &&
		(HasAnyFlags(RF_DefaultSubObject) || GetOuter()->HasAnyFlags(RF_ClassDefaultObject));
}

bool UObjectBaseUtility::IsA(const UClass* SomeBase) const
{
	return GetClass()->IsChildOf(SomeBase);
}

UClass* UObjectBaseUtility::FindNearestCommonBaseClass(const UClass* TestClass) const
{
	return TestClass ? UClass::FindCommonBase(GetClass(), const_cast<UClass*>(TestClass)) : nullptr;
}

void* UObjectBaseUtility::GetInterfaceAddress(UClass* InterfaceClass)
{
	return GetNativeInterfaceAddress(InterfaceClass);
}

void* UObjectBaseUtility::GetNativeInterfaceAddress(UClass* InterfaceClass)
{
	const FImplementedInterface* const Interface = InterfaceClass ? GetClass()->FindImplementedInterface(InterfaceClass) : nullptr;
	return Interface && !Interface->bImplementedByK2 ? reinterpret_cast<uint8*>(this) + Interface->PointerOffset : nullptr;
}

FString GetNameSafe(const UObjectBaseUtility* Object)
{
	return Object ? Object->GetName() : FString(TEXT("None"));
}

FString GetPathNameSafe(const UObjectBaseUtility* Object)
{
	return Object ? Object->GetPathName() : FString(TEXT("None"));
}

FString GetFullNameSafe(const UObjectBaseUtility* Object)
{
	return Object ? Object->GetFullName() : FString(TEXT("None"));
}
