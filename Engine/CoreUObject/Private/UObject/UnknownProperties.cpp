#include "UObject/UnknownProperties.h"

#include "Serialization/Archive.h"
#include "UObject/LinkerLoad.h"
#include "UObject/Object.h"
#include "UObject/WeakObjectPtr.h"

namespace
{
struct FPathPart
{
	FName Name;
	int32 Index;
};

struct FSerializedObject
{
	const UObject* Object;
	TArray<FPathPart> Path;
};

/** Objects may load one another, so the one at work is the last. */
TArray<FSerializedObject>& GetStack()
{
	static TArray<FSerializedObject> Stack;
	return Stack;
}

TMap<FWeakObjectPtr, TMap<FString, TArray<FUnknownProperty>>>& GetStore()
{
	static TMap<FWeakObjectPtr, TMap<FString, TArray<FUnknownProperty>>> Store;
	return Store;
}

FString GetCurrentPath()
{
	FString Result;
	for (const FPathPart& Part : GetStack().Last().Path)
	{
		if (Part.Name.IsNone())
		{
			Result += FString::Printf(TEXT("[%d]"), Part.Index);
			continue;
		}
		Result += Result.IsEmpty() ? TEXT("") : TEXT(".");
		Result += Part.Index > 0 ? FString::Printf(TEXT("%s[%d]"), *Part.Name.ToString(), Part.Index) : Part.Name.ToString();
	}
	return Result;
}

bool IsPackageArchive(FArchive& Ar)
{
	return Ar.IsPersistent() && Ar.GetLinker() != nullptr && !GetStack().IsEmpty();
}
}

void FUnknownProperties::Add(FArchive& Ar, const FPropertyTag& Tag, TArray<uint8>&& Value)
{
	if (!IsPackageArchive(Ar))
	{
		return;
	}
	TArray<FUnknownProperty>& List = GetStore().FindOrAdd(FWeakObjectPtr(GetStack().Last().Object)).FindOrAdd(GetCurrentPath());
	List.Add({Tag, MoveTemp(Value)});
}

const TArray<FUnknownProperty>* FUnknownProperties::FindForWriting(FArchive& Ar)
{
	if (!IsPackageArchive(Ar))
	{
		return nullptr;
	}
	const TMap<FString, TArray<FUnknownProperty>>* const OfObject = FindAll(GetStack().Last().Object);
	return OfObject ? OfObject->Find(GetCurrentPath()) : nullptr;
}

const TMap<FString, TArray<FUnknownProperty>>* FUnknownProperties::FindAll(const UObject* Object)
{
	return GetStore().Find(FWeakObjectPtr(Object));
}

void FUnknownProperties::Remove(const UObject* Object)
{
	GetStore().Remove(FWeakObjectPtr(Object));
}

FSerializedObjectScope::FSerializedObjectScope(const UObject* Object)
{
	GetStack().Add({Object, {}});
}

FSerializedObjectScope::~FSerializedObjectScope()
{
	GetStack().Pop();
}

FSerializedPathScope::FSerializedPathScope(FName Name, int32 Index)
{
	if (!GetStack().IsEmpty())
	{
		GetStack().Last().Path.Add({Name, Index});
	}
}

FSerializedPathScope::~FSerializedPathScope()
{
	if (!GetStack().IsEmpty() && !GetStack().Last().Path.IsEmpty())
	{
		GetStack().Last().Path.Pop();
	}
}
