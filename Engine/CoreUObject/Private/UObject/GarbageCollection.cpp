#include "UObject/GarbageCollection.h"

#include "HAL/PlatformProcess.h"
#include "ReferenceSchemaVisit.h"
#include "UObject/GCObject.h"
#include "UObject/StrongObjectPtr.h"
#include "UObject/UnrealType.h"

#include <algorithm>
#include <mutex>
#include <unordered_map>
#include <vector>

namespace
{
struct FHolders
{
	std::mutex Mutex;
	std::vector<FGCObject*> Objects;
	std::unordered_map<const UObject*, int32> StrongCounts;

	static FHolders& Get()
	{
		static FHolders& Holders = *new FHolders;
		return Holders;
	}
};

/** Takes the mark of unreachability off everything that it is given, and then visits that. */
class FReachabilityMarker final : public FReferenceCollector
{
public:
	void Mark(UObject* Object)
	{
		FUObjectItem& Item = GUObjectArray.IndexToObjectUnsafe(static_cast<int32>(Object->GetUniqueID()));
		if (Item.IsUnreachable())
		{
			Item.ClearFlags(EInternalObjectFlags::Unreachable);
			Pending.push_back(Object);
		}
	}
	void Drain()
	{
		const auto Handle = [this](UObject*& Object, const FProperty*)
		{ Enqueue(Object); };
		while (!Pending.empty() || FlushQueue())
		{
			UObject* const Object = Pending.back();
			Pending.pop_back();
			UClass* const Class = Object->GetClass();
			if (Class != LastClass)
			{
				Mark(Class);
				LastClass = Class;
				LastSchema = &Class->GetReferenceSchema();
			}
			if (UObject* const Outer = Object->GetOuter())
			{
				Mark(Outer);
			}
			VisitReferences(*LastSchema, Object, *this, Object, Handle);
			if (Class->ClassAddReferencedObjects)
			{
				Class->ClassAddReferencedObjects(Object, *this);
			}
		}
	}

protected:
	void HandleObjectReference(UObject*& Object, const UObject* ReferencingObject, const FProperty* ReferencingProperty) override
	{
		MarkOrClear(Object);
	}
	void HandleStableReference(UObject*& Object) override
	{
		if (Object)
		{
			Mark(Object);
		}
	}

private:
	/**
	 * Objects lie all over memory, and reading the index of each at once would wait for it. Instead a reference waits in a ring while
	 * its object, then its item, is fetched. What holds it must not move until then: no AddReferencedObjects may resize a reflected
	 * member.
	 */
	void Enqueue(UObject*& Reference)
	{
		if (!Reference)
		{
			return;
		}
		__builtin_prefetch(Reference);
		const uint32 Slot = NumQueued++ % QueueLength;
		UObject** const Oldest = Queue[Slot];
		Queue[Slot] = &Reference;
		if (Oldest)
		{
			MarkOrClear(*Oldest);
		}
		UObject** const Middle = Queue[(Slot + QueueLength / 2) % QueueLength];
		// An object's own function may have cleared it meanwhile.
		if (Middle && *Middle)
		{
			__builtin_prefetch(&GUObjectArray.IndexToObjectUnsafe(static_cast<int32>((*Middle)->GetUniqueID())));
		}
	}
	/** Whether that found more objects to visit. */
	bool FlushQueue()
	{
		for (UObject**& Reference : Queue)
		{
			if (Reference)
			{
				MarkOrClear(*Reference);
				Reference = nullptr;
			}
		}
		return !Pending.empty();
	}
	/** References to what was given up become null; an item's flags say all that the choice needs. */
	void MarkOrClear(UObject*& Object)
	{
		if (!Object)
		{
			return;
		}
		FUObjectItem& Item = GUObjectArray.IndexToObjectUnsafe(static_cast<int32>(Object->GetUniqueID()));
		if (Item.IsGarbage())
		{
			Object = nullptr;
			return;
		}
		if (Item.IsUnreachable())
		{
			Item.ClearFlags(EInternalObjectFlags::Unreachable);
			Pending.push_back(Object);
		}
	}

	static constexpr uint32 QueueLength = 32;
	UObject** Queue[QueueLength] = {};
	uint32 NumQueued = 0;
	std::vector<UObject*> Pending;
	/** Objects that are made together are mostly of one class, and are found together. */
	const UClass* LastClass = nullptr;
	const FReferenceSchema* LastSchema = nullptr;
};

bool IsRoot(const FUObjectItem& Item, EObjectFlags KeepFlags)
{
	if (Item.HasAnyFlags(EInternalObjectFlags::RootSet | EInternalObjectFlags::Native | EInternalObjectFlags::Async |
			EInternalObjectFlags::AsyncLoading | EInternalObjectFlags::LoaderImport))
	{
		return true;
	}
	return !Item.IsGarbage() && (Item.Object->GetFlags() & KeepFlags) != 0;
}

std::vector<UObject*> MarkReachable(EObjectFlags KeepFlags)
{
	FReachabilityMarker Marker;
	std::vector<UObject*> Roots;
	const int32 Num = GUObjectArray.GetObjectArrayNum();
	for (int32 Index = 0; Index < Num; ++Index)
	{
		FUObjectItem& Item = GUObjectArray.IndexToObjectUnsafe(Index);
		if (Item.Object)
		{
			Item.SetFlags(EInternalObjectFlags::Unreachable);
			if (IsRoot(Item, KeepFlags))
			{
				Roots.push_back(static_cast<UObject*>(Item.Object));
			}
		}
	}
	for (UObject* const Root : Roots)
	{
		Marker.Mark(Root);
	}
	Marker.Drain();
	FHolders& Holders = FHolders::Get();
	for (const auto& [Object, Count] : Holders.StrongCounts)
	{
		Marker.Mark(const_cast<UObject*>(Object));
	}
	for (FGCObject* const Holder : std::vector<FGCObject*>(Holders.Objects))
	{
		Holder->AddReferencedObjects(Marker);
	}
	Marker.Drain();

	std::vector<UObject*> Unreachable;
	for (int32 Index = 0; Index < Num; ++Index)
	{
		const FUObjectItem& Item = GUObjectArray.IndexToObjectUnsafe(Index);
		if (Item.Object && Item.IsUnreachable())
		{
			Unreachable.push_back(static_cast<UObject*>(Item.Object));
		}
	}
	return Unreachable;
}

/** An object that is being destroyed cannot be held: a strong pointer made of it meanwhile would outlive it. */
void DropStrongReferences()
{
	FHolders& Holders = FHolders::Get();
	const std::scoped_lock Lock(Holders.Mutex);
	std::erase_if(Holders.StrongCounts, [](const auto& Pair)
		{ return Pair.first->IsUnreachable(); });
}

void Purge(std::vector<UObject*>& Objects)
{
	// Types go last: instances need them to know what they are made of.
	std::stable_partition(Objects.begin(), Objects.end(), [](const UObject* Object)
		{ return !Object->GetClass()->HasAnyCastFlag(CASTCLASS_UField); });
	for (UObject* const Object : Objects)
	{
		Object->ConditionalBeginDestroy();
	}
	DropStrongReferences();
	for (UObject* const Object : Objects)
	{
		while (!Object->IsReadyForFinishDestroy())
		{
			FPlatformProcess::Sleep(0.0f);
		}
		Object->ConditionalFinishDestroy();
	}
	for (UObject* const Object : Objects)
	{
		Object->~UObject();
		FMemory::Free(Object);
	}
}
}

void CollectGarbage(EObjectFlags KeepFlags, bool bPerformFullPurge)
{
	if (GIsGarbageCollecting)
	{
		return;
	}
	FCoreUObjectDelegates::GetPreGarbageCollectDelegate().Broadcast();
	GIsGarbageCollecting = true;
	std::vector<UObject*> Unreachable = MarkReachable(KeepFlags);
	FCoreUObjectDelegates::PreGarbageCollectConditionalBeginDestroy.Broadcast();
	Purge(Unreachable);
	GIsGarbageCollecting = false;
	FCoreUObjectDelegates::PostPurgeGarbageDelegate.Broadcast();
	FCoreUObjectDelegates::GetPostGarbageCollect().Broadcast();
	UE_LOG(LogGarbage, Verbose, TEXT("Collected %d objects, %d are left"), static_cast<int32>(Unreachable.size()),
		GUObjectArray.GetObjectArrayNumMinusAvailable());
}

bool TryCollectGarbage(EObjectFlags KeepFlags, bool bPerformFullPurge)
{
	CollectGarbage(KeepFlags, bPerformFullPurge);
	return true;
}

bool IsGarbageCollecting()
{
	return GIsGarbageCollecting;
}

bool IsIncrementalPurgePending()
{
	return false;
}

void IncrementalPurgeGarbage(bool bUseTimeLimit, double TimeLimit)
{
	// A collection purges at once; nothing is ever left over.
}

bool IsReferenced(UObject*& Res, EObjectFlags KeepFlags, EInternalObjectFlags InternalKeepFlags, bool bCheckSubObjects)
{
	// Reachability with the object itself given up as a root: what is still marked then is kept by something else.
	const EObjectFlags Flags = Res->GetFlags();
	const EInternalObjectFlags InternalFlags = Res->GetInternalFlags();
	Res->ClearFlags(KeepFlags);
	Res->ClearInternalFlags(EInternalObjectFlags::RootSet);
	MarkReachable(KeepFlags);
	const bool bReferenced = !Res->IsUnreachable();
	Res->SetFlags(Flags);
	Res->SetInternalFlags(InternalFlags);
	for (int32 Index = 0; Index < GUObjectArray.GetObjectArrayNum(); ++Index)
	{
		GUObjectArray.IndexToObjectUnsafe(Index).ClearFlags(EInternalObjectFlags::Unreachable);
	}
	return bReferenced;
}

bool UObject::IsReferenced(UObject*& Res, EObjectFlags KeepFlags, EInternalObjectFlags InternalKeepFlags, bool bCheckSubObjects)
{
	return ::IsReferenced(Res, KeepFlags, InternalKeepFlags, bCheckSubObjects);
}

FGCObject::FGCObject()
{
	FHolders& Holders = FHolders::Get();
	const std::scoped_lock Lock(Holders.Mutex);
	Holders.Objects.push_back(this);
}

FGCObject::FGCObject(const FGCObject& Other)
	: FGCObject()
{
}

FGCObject::~FGCObject()
{
	FHolders& Holders = FHolders::Get();
	const std::scoped_lock Lock(Holders.Mutex);
	std::erase(Holders.Objects, this);
}

void UE::CoreUObject::Private::AddStrongReference(const UObject* Object)
{
	FHolders& Holders = FHolders::Get();
	const std::scoped_lock Lock(Holders.Mutex);
	++Holders.StrongCounts[Object];
}

void UE::CoreUObject::Private::ReleaseStrongReference(const UObject* Object)
{
	FHolders& Holders = FHolders::Get();
	const std::scoped_lock Lock(Holders.Mutex);
	const auto Found = Holders.StrongCounts.find(Object);
	if (Found != Holders.StrongCounts.end() && --Found->second == 0)
	{
		Holders.StrongCounts.erase(Found);
	}
}
