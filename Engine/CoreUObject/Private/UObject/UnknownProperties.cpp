#include "UObject/UnknownProperties.h"

#include "Serialization/Archive.h"
#include "UObject/CoreUObjectDelegates.h"
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

void ForgetDeletedObjects()
{
	for (auto It = GetStore().CreateIterator(); It; ++It)
	{
		if (!It.Key().IsValid(true))
		{
			It.RemoveCurrent();
		}
	}
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

/** Those of the object at work; null outside packages. */
FKeptValues* FindKept(FArchive& Ar)
{
	return IsPackageArchive(Ar) ? GetStore().Find(FWeakObjectPtr(GetStack().Last().Object)) : nullptr;
}

/** Whether the values refer to the tables of the package that is being written. */
bool BelongsTo(const FKeptValues& Kept, FArchive& Ar)
{
	const FLinkerLoad* const Origin = static_cast<FLinkerSave*>(Ar.GetLinker())->GetOrigin();
	return Origin && Origin->GetId() == Kept.LinkerId;
}

bool IsAtOrBelow(const FString& Path, const FString& Base)
{
	return Path.StartsWith(Base, ESearchCase::CaseSensitive) &&
		(Path.Len() == Base.Len() || Path[Base.Len()] == '.' || Path[Base.Len()] == '[');
}
}

void FUnknownProperties::Add(FArchive& Ar, FUnknownProperty&& Property)
{
	if (!IsPackageArchive(Ar))
	{
		return;
	}
	[[maybe_unused]] static const FDelegateHandle ForgetsDeletedObjects =
		FCoreUObjectDelegates::GetPostGarbageCollect().AddStatic(&ForgetDeletedObjects);
	FLinkerLoad& Linker = *static_cast<FLinkerLoad*>(Ar.GetLinker());
	FKeptValues& Kept = GetStore().FindOrAdd(FWeakObjectPtr(GetStack().Last().Object));
	if (Kept.LinkerId != Linker.GetId())
	{
		// The object is read from another file than before.
		Kept.ByPath.Empty();
		Kept.LinkerId = Linker.GetId();
	}
	Kept.ByPath.FindOrAdd(GetCurrentPath()).Add(MoveTemp(Property));
	Linker.MarkKeptBytes();
}

const TArray<FUnknownProperty>* FUnknownProperties::FindForWriting(FArchive& Ar)
{
	const FKeptValues* const Kept = FindKept(Ar);
	if (!Kept)
	{
		return nullptr;
	}
	if (!BelongsTo(*Kept, Ar))
	{
		UE_LOG(LogClass, Warning,
			TEXT("%s has values of properties that are not known here; they belong to the package that it came from and are not written "
				 "into %s"),
			*GetStack().Last().Object->GetPathName(), *Ar.GetArchiveName());
		return nullptr;
	}
	return Kept->ByPath.Find(GetCurrentPath());
}

bool FUnknownProperties::HasAnyWithin(FArchive& Ar, FName Member, int32 Index)
{
	const FKeptValues* const Kept = FindKept(Ar);
	if (!Kept || !BelongsTo(*Kept, Ar))
	{
		return false;
	}
	const FSerializedPathScope Scope(Member, Index);
	const FString Path = GetCurrentPath();
	for (const TPair<FString, TArray<FUnknownProperty>>& Pair : Kept->ByPath)
	{
		if (IsAtOrBelow(Pair.Key, Path))
		{
			return true;
		}
	}
	return false;
}

const TMap<FString, TArray<FUnknownProperty>>* FUnknownProperties::FindAll(const UObject* Object)
{
	const FKeptValues* const Kept = GetStore().Find(FWeakObjectPtr(Object));
	return Kept ? &Kept->ByPath : nullptr;
}

int32 FUnknownProperties::NumObjects()
{
	return GetStore().Num();
}

bool FUnknownProperties::HasNativeForm(const UObject* Object, FName Member)
{
	const TMap<FString, TArray<FUnknownProperty>>* const Kept = FindAll(Object);
	if (!Kept)
	{
		return false;
	}
	const FString MemberPath = Member.ToString();
	for (const TPair<FString, TArray<FUnknownProperty>>& Pair : *Kept)
	{
		const bool bIsWithin = IsAtOrBelow(Pair.Key, MemberPath);
		const bool bHas = Pair.Value.ContainsByPredicate([&](const FUnknownProperty& Each)
			{ return Each.bHasNativeForm && (bIsWithin || (Pair.Key.IsEmpty() && Each.Tag.Name == Member)); });
		if (bHas)
		{
			return true;
		}
	}
	return false;
}

FString FUnknownProperties::DescribeCurrent()
{
	if (GetStack().IsEmpty())
	{
		return FString();
	}
	const FString Path = GetCurrentPath();
	const FString Object = GetStack().Last().Object->GetPathName();
	return Path.IsEmpty() ? Object : Object + TEXT(".") + Path;
}

void FUnknownProperties::RemoveCurrent(FArchive& Ar)
{
	FKeptValues* const Kept = FindKept(Ar);
	if (!Kept)
	{
		return;
	}
	const FString Path = GetCurrentPath();
	TArray<FString> Paths;
	Kept->ByPath.GetKeys(Paths);
	for (const FString& Each : Paths)
	{
		if (IsAtOrBelow(Each, Path))
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
