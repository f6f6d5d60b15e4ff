#include "UObject/LazyObjectPtr.h"
#include "UObject/PrimaryAssetId.h"
#include "UObject/PropertyHelper.h"
#include "UObject/PropertyPortFlags.h"
#include "UObject/SoftObjectPtr.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/WeakObjectPtr.h"

#include <unordered_map>

void FWeakObjectPtr::operator=(const UObject* Object)
{
	if (!Object)
	{
		Reset();
		return;
	}
	ObjectIndex = static_cast<int32>(Object->GetUniqueID());
	ObjectSerialNumber = GUObjectArray.AllocateSerialNumber(ObjectIndex);
}

UObject* FWeakObjectPtr::Get(bool bEvenIfGarbage) const
{
	const FUObjectItem* const Item = ObjectSerialNumber ? GUObjectArray.IndexToObject(ObjectIndex) : nullptr;
	if (!Item || Item->SerialNumber != ObjectSerialNumber || Item->IsUnreachable() || (!bEvenIfGarbage && Item->IsGarbage()))
	{
		return nullptr;
	}
	return static_cast<UObject*>(Item->Object);
}

UObject* FWeakObjectPtr::GetEvenIfUnreachable() const
{
	const FUObjectItem* const Item = ObjectSerialNumber ? GUObjectArray.IndexToObject(ObjectIndex) : nullptr;
	return Item && Item->SerialNumber == ObjectSerialNumber ? static_cast<UObject*>(Item->Object) : nullptr;
}

bool FWeakObjectPtr::IsStale(bool bIncludingGarbage, bool bThreadsafeTest) const
{
	return ObjectSerialNumber != 0 && Get(!bIncludingGarbage) == nullptr;
}

void FWeakObjectPtr::Serialize(FArchive& Ar)
{
	Ar << *this;
}

UObject* FSoftObjectPtr::Get() const
{
	UObject* Object = WeakPtr.Get();
	if (!Object && ObjectID.IsValid())
	{
		Object = ObjectID.ResolveObject();
		WeakPtr = Object;
	}
	return Object;
}

UObject* FSoftObjectPtr::LoadSynchronous() const
{
	UObject* Object = Get();
	if (!Object && IsPending())
	{
		Object = ObjectID.TryLoad();
		WeakPtr = Object;
	}
	return Object;
}

namespace
{
/** GUIDs that objects were given in this run. */
struct FObjectGuids
{
	TMap<FGuid, FWeakObjectPtr> ByGuid;
	TMap<FWeakObjectPtr, FGuid> ByObject;

	static FObjectGuids& Get()
	{
		static FObjectGuids& Guids = *new FObjectGuids;
		return Guids;
	}
};
}

FUniqueObjectGuid::FUniqueObjectGuid(const UObject* InObject)
{
	if (const FGuid* const Found = InObject ? FObjectGuids::Get().ByObject.Find(FWeakObjectPtr(InObject)) : nullptr)
	{
		Guid = *Found;
	}
}

FUniqueObjectGuid FUniqueObjectGuid::GetOrCreateIDForObject(const UObject* Object)
{
	FUniqueObjectGuid Result(Object);
	if (Object && !Result.IsValid())
	{
		Result.Guid = FGuid::NewGuid();
		FObjectGuids::Get().ByGuid.Add(Result.Guid, FWeakObjectPtr(Object));
		FObjectGuids::Get().ByObject.Add(FWeakObjectPtr(Object), Result.Guid);
	}
	return Result;
}

void FUniqueObjectGuid::FromString(const FString& From)
{
	if (!FGuid::Parse(From, Guid))
	{
		Guid.Invalidate();
	}
}

UObject* FUniqueObjectGuid::ResolveObject() const
{
	const FWeakObjectPtr* const Found = FObjectGuids::Get().ByGuid.Find(Guid);
	return Found ? Found->Get() : nullptr;
}

FLazyObjectPtr& FLazyObjectPtr::operator=(const UObject* Object)
{
	WeakPtr = Object;
	ObjectID = FUniqueObjectGuid::GetOrCreateIDForObject(Object);
	return *this;
}

FLazyObjectPtr& FLazyObjectPtr::operator=(const FUniqueObjectGuid& InID)
{
	WeakPtr.Reset();
	ObjectID = InID;
	return *this;
}

UObject* FLazyObjectPtr::Get() const
{
	UObject* Object = WeakPtr.Get();
	if (!Object && ObjectID.IsValid())
	{
		Object = ObjectID.ResolveObject();
		WeakPtr = Object;
	}
	return Object;
}

FPrimaryAssetId::FPrimaryAssetId(const FString& TypeAndName)
{
	int32 Separator = INDEX_NONE;
	if (TypeAndName.FindChar(':', Separator))
	{
		PrimaryAssetType = FPrimaryAssetType(FName(*TypeAndName.Left(Separator)));
		PrimaryAssetName = FName(*TypeAndName.Mid(Separator + 1));
	}
}

FString FPrimaryAssetId::ToString() const
{
	return IsValid() ? PrimaryAssetType.ToString() + TEXT(":") + PrimaryAssetName.ToString() : FString();
}

bool FPrimaryAssetId::ExportTextItem(
	FString& ValueStr, const FPrimaryAssetId& DefaultValue, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) const
{
	const FString Text = ToString();
	ValueStr += (PortFlags & PPF_Delimited) ? TEXT("\"") + Text + TEXT("\"") : Text;
	return true;
}

bool FPrimaryAssetId::ImportTextItem(const TCHAR*& Buffer, int32 PortFlags, UObject* Parent, FOutputDevice* ErrorText)
{
	FString Token;
	const TCHAR* const End = FPropertyHelpers::ReadToken(Buffer, Token, true);
	if (!End)
	{
		return false;
	}
	Buffer = End;
	*this = Token == TEXT("None") ? FPrimaryAssetId() : FPrimaryAssetId(Token);
	return true;
}
