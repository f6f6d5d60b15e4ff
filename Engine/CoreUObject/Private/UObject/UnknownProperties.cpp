#include "UObject/UnknownProperties.h"

#include "Serialization/Archive.h"
#include "UObject/LinkerLoad.h"
#include "UObject/LinkerSave.h"
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

struct FKeptValues
{
	/** The linker whose tables the values refer to. */
	uint64 LinkerId = 0;
	TMap<FString, TArray<FUnknownProperty>> ByPath;
};

TMap<FWeakObjectPtr, FKeptValues>& GetStore()
{
	static TMap<FWeakObjectPtr, FKeptValues> Store;
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
	FLinkerLoad& Linker = *static_cast<FLinkerLoad*>(Ar.GetLinker());
	FKeptValues& Kept = GetStore().FindOrAdd(FWeakObjectPtr(GetStack().Last().Object));
	if (Kept.LinkerId != Linker.GetId())
	{
		// The object is read from another file than before.
		Kept.ByPath.Empty();
		Kept.LinkerId = Linker.GetId();
	}
	Kept.ByPath.FindOrAdd(GetCurrentPath()).Add({Tag, MoveTemp(Value)});
	Linker.MarkKeptBytes();
}

const TArray<FUnknownProperty>* FUnknownProperties::FindForWriting(FArchive& Ar)
{
	const FKeptValues* const Kept = IsPackageArchive(Ar) ? GetStore().Find(FWeakObjectPtr(GetStack().Last().Object)) : nullptr;
	if (!Kept)
	{
		return nullptr;
	}
	const FLinkerLoad* const Origin = static_cast<FLinkerSave*>(Ar.GetLinker())->GetOrigin();
	if (!Origin || Origin->GetId() != Kept->LinkerId)
	{
		UE_LOG(LogClass, Warning, TEXT("%s has values of properties that are not known here; they belong to the package that it came from and are not written into %s"), *GetStack().Last().Object->GetPathName(), *Ar.GetArchiveName());
		return nullptr;
	}
	return Kept->ByPath.Find(GetCurrentPath());
}

const TMap<FString, TArray<FUnknownProperty>>* FUnknownProperties::FindAll(const UObject* Object)
{
	const FKeptValues* const Kept = GetStore().Find(FWeakObjectPtr(Object));
	return Kept ? &Kept->ByPath : nullptr;
}

void FUnknownProperties::Remove(const UObject* Object)
{
	GetStore().Remove(FWeakObjectPtr(Object));
}

void FUnknownProperties::RemoveCurrent(FArchive& Ar)
{
	FKeptValues* const Kept = IsPackageArchive(Ar) ? GetStore().Find(FWeakObjectPtr(GetStack().Last().Object)) : nullptr;
	if (!Kept)
	{
		return;
	}
	const FString Path = GetCurrentPath();
	TArray<FString> Paths;
	Kept->ByPath.GetKeys(Paths);
	for (const FString& Each : Paths)
	{
		const bool bIsBelow = Each.StartsWith(Path, ESearchCase::CaseSensitive) && (Each.Len() == Path.Len() || Each[Path.Len()] == '.' || Each[Path.Len()] == '[');
		if (bIsBelow)
		{
			Kept->ByPath.Remove(Each);
		}
	}
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
