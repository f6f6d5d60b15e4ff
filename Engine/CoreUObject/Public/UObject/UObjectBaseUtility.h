#pragma once

#include "UObject/UObjectArray.h"
#include "UObject/UObjectBase.h"

/** Flags, names and places of an object. */
class COREUOBJECT_API UObjectBaseUtility : public UObjectBase
{
public:
	// Flags
	FORCEINLINE void SetFlags(EObjectFlags NewFlags) { SetFlagsTo(static_cast<EObjectFlags>(GetFlags() | NewFlags)); }
	FORCEINLINE void ClearFlags(EObjectFlags FlagsToClear) { SetFlagsTo(static_cast<EObjectFlags>(GetFlags() & ~FlagsToClear)); }
	FORCEINLINE bool HasAnyFlags(EObjectFlags FlagsToCheck) const { return (GetFlags() & FlagsToCheck) != 0; }
	FORCEINLINE bool HasAllFlags(EObjectFlags FlagsToCheck) const { return (GetFlags() & FlagsToCheck) == FlagsToCheck; }
	FORCEINLINE EObjectFlags GetMaskedFlags(EObjectFlags Mask = RF_AllFlags) const { return static_cast<EObjectFlags>(GetFlags() & Mask); }

	EInternalObjectFlags GetInternalFlags() const;
	bool HasAnyInternalFlags(EInternalObjectFlags FlagsToCheck) const;
	void SetInternalFlags(EInternalObjectFlags FlagsToSet) const;
	void ClearInternalFlags(EInternalObjectFlags FlagsToClear) const;

	/** Gives the object up: IsValid() turns false and the next collection takes it, clearing reflected references to it. */
	void MarkAsGarbage();
	void ClearGarbage();
	bool IsUnreachable() const { return HasAnyInternalFlags(EInternalObjectFlags::Unreachable); }
	/** Keeps the object, and what it refers to, from collection. */
	void AddToRoot();
	void RemoveFromRoot();
	bool IsRooted() const { return HasAnyInternalFlags(EInternalObjectFlags::RootSet); }
	bool IsNative() const { return HasAnyInternalFlags(EInternalObjectFlags::Native); }

	// Names
	FString GetName() const { return GetFName().ToString(); }
	void GetName(FString& ResultString) const { ResultString = GetFName().ToString(); }
	/** "/Game/Dir/Asset.Asset:Inner.More". Relative to StopOuter when that is one of the outers. */
	FString GetPathName(const UObject* StopOuter = nullptr) const;
	void GetPathName(const UObject* StopOuter, FString& ResultString) const;
	/** "Class /Path.Name:Sub". */
	FString GetFullName(const UObject* StopOuter = nullptr) const;
	/** The parts of the path from the outermost on. */
	FString GetFullGroupName(bool bStartWithOuter) const;

	// Places
	/** The topmost outer, which is a package for every object that is in one. */
	UPackage* GetOutermost() const;
	/** The package that the object is saved in: its external package, or its outermost. */
	UPackage* GetPackage() const;
	/** The topmost outer below the package: the asset that the object is a part of. */
	UObject* GetOutermostObject() const;
	bool IsPackageExternal() const { return HasAnyFlags(RF_HasExternalPackage); }
	/** The nearest outer that is a Target. */
	UObject* GetTypedOuter(UClass* Target) const;
	template <typename T>
	T* GetTypedOuter() const
	{
		return static_cast<T*>(GetTypedOuter(T::StaticClass()));
	}
	/** Whether SomeOuter is above the object. */
	bool IsIn(const UObject* SomeOuter) const;
	bool IsInOuter(const UObject* SomeOuter) const;
	bool IsInPackage(const UPackage* SomePackage) const;
	bool RootPackageHasAnyFlags(uint32 CheckFlagMask) const;

	bool MarkPackageDirty() const;
	/** Whether this object, or one that it is in, is a class default object or an archetype. */
	bool IsTemplate(EObjectFlags TemplateTypes = static_cast<EObjectFlags>(RF_ArchetypeObject | RF_ClassDefaultObject)) const;
	/** Whether the object was made by its outer's constructor. */
	bool IsDefaultSubobject() const;

	// Types
	bool IsA(const UClass* SomeBase) const;
	template <typename T>
	bool IsA() const
	{
		return IsA(T::StaticClass());
	}
	/** The most derived class that both objects are. */
	UClass* FindNearestCommonBaseClass(const UClass* TestClass) const;
	/** Where the object's C++ interface base is; null when the class does not implement it in C++. */
	void* GetInterfaceAddress(UClass* InterfaceClass);
	void* GetNativeInterfaceAddress(UClass* InterfaceClass);
	const void* GetNativeInterfaceAddress(UClass* InterfaceClass) const
	{
		return const_cast<UObjectBaseUtility*>(this)->GetNativeInterfaceAddress(InterfaceClass);
	}
};

/** Nearest name of an object that may be null: "None" then. */
COREUOBJECT_API FString GetNameSafe(const UObjectBaseUtility* Object);
COREUOBJECT_API FString GetPathNameSafe(const UObjectBaseUtility* Object);
COREUOBJECT_API FString GetFullNameSafe(const UObjectBaseUtility* Object);
