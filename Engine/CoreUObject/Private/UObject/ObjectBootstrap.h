#pragma once

#include "UObject/UObjectBase.h"
#include "UObject/UObjectArray.h"

/** The identity of an object whose constructor is about to run, and the doors that only the object system may open. */
struct FObjectBootstrap
{
	struct FIdentity
	{
		void* Memory = nullptr;
		UClass* Class = nullptr;
		FName Name;
		UObject* Outer = nullptr;
		EObjectFlags Flags = RF_NoFlags;
		EInternalObjectFlags InternalFlags = EInternalObjectFlags::None;
		/** Off for the first classes, which have no class of their own yet. */
		bool bRegister = true;
	};
	/** Taken by the next UObjectBase constructor, which must be that of Memory. */
	static FIdentity Pending;

	static void SetIdentityUnregistered(UObjectBase* Object, UClass* Class, FName Name)
	{
		Object->ClassPrivate = Class;
		Object->NamePrivate = Name;
	}
	static void SetOuterUnregistered(UObjectBase* Object, UObject* Outer) { Object->OuterPrivate = Outer; }
	/** Into the object array and the hash tables. */
	static void Register(UObjectBase* Object, EInternalObjectFlags InternalFlags);
};
