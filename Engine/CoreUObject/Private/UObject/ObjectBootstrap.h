#pragma once

#include "UObject/Class.h"
#include "UObject/UObjectArray.h"
#include "UObject/UObjectBase.h"

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
		/** Of an object that is in the array and the tables already. */
		int32 KnownIndex = INDEX_NONE;
	};
	/** Taken by the next UObjectBase constructor, which must be that of Memory. */
	static FIdentity Pending;

	static void SetIdentityUnregistered(UObjectBase* Object, UClass* Class, FName Name)
	{
		Object->ClassPrivate = Class;
		Object->NamePrivate = Name;
	}
	static void SetOuterUnregistered(UObjectBase* Object, UObject* Outer) { Object->OuterPrivate = Outer; }
	/** Bytes that an object of a stand-in class takes, so that it can become more than it is known to be. */
	static constexpr int32 StandInCapacity = 4096;
	static bool FitsStandIn(const UClass* Class);
	/** Runs the constructor of its class, which has got another super, over a plain object. Its identity and its place stay. */
	static void ConstructAnew(UObject* Object, UObject* Template);
	/** What stands in for the constructor of the class, its supers left aside; null where nothing does. */
	static FDeclaredDefaults* GetDeclaredDefaults(const UStruct* Struct) { return Struct->DeclaredDefaults; }
	/** Into the object array and the hash tables. */
	static void Register(UObjectBase* Object, EInternalObjectFlags InternalFlags);
};
