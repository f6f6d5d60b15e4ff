#include "ObjectRecord.h"

#include "StateBytes.h"

#include "Engine/BlueprintGeneratedClass.h"
#include "Serialization/ArchiveUObject.h"
#include "Serialization/CustomVersion.h"
#include "UObject/Package.h"
#include "UObject/ReferenceCollector.h"

namespace
{
constexpr EObjectFlags RestoredFlags = static_cast<EObjectFlags>(
	RF_Public | RF_Standalone | RF_Transactional | RF_Transient | RF_ArchetypeObject | RF_TextExportTransient | RF_DuplicateTransient);

/** What the writer and the reader of a state have in common. Names are as they are in memory, with their case. */
class FStateArchive : public FArchiveUObject
{
public:
	explicit FStateArchive(FTransactionObjectTable& InTable, bool bTagged)
		: Table(InTable)
	{
		SetIsTransacting(true);
		SetIsPersistent(false);
		SetWantBinaryPropertySerialization(!bTagged);
		ArNoDelta = true;
		ArAllowLazyLoading = false;
	}

	using FArchiveUObject::operator<<;
	FArchive& operator<<(FName& Value) override
	{
		Serialize(&Value, sizeof(FName));
		return *this;
	}
	void Seek(int64 Position) override { Offset = Position; }
	int64 Tell() override { return Offset; }
	FString GetArchiveName() const override { return TEXT("Transaction"); }
	/** A state is read by the program that wrote it. */
	void UsingCustomVersion(const FGuid& Guid) override {}
	const FCustomVersionContainer& GetCustomVersions() const override
	{
		static const FCustomVersionContainer Versions = FCurrentCustomVersions::GetAll();
		return Versions;
	}

protected:
	FTransactionObjectTable& Table;
	int64 Offset = 0;
};

class FStateWriter final : public FStateArchive
{
public:
	FStateWriter(TArray<uint8>& InData, FTransactionObjectTable& InTable, bool bTagged)
		: FStateArchive(InTable, bTagged)
		, Data(InData)
	{
		SetIsSaving(true);
	}

	using FStateArchive::operator<<;
	FArchive& operator<<(UObject*& Object) override
	{
		int32 Index = Table.Add(Object);
		Serialize(&Index, sizeof(Index));
		return *this;
	}
	void Serialize(void* Source, int64 Num) override
	{
		const int64 End = Offset + Num;
		if (End > Data.Num())
		{
			Data.AddUninitialized(static_cast<int32>(End - Data.Num()));
		}
		FMemory::Memcpy(Data.GetData() + Offset, Source, static_cast<SIZE_T>(Num));
		Offset = End;
	}
	int64 TotalSize() override { return Data.Num(); }

private:
	TArray<uint8>& Data;
};

class FStateReader final : public FStateArchive
{
public:
	FStateReader(const TArray<uint8>& InData, FTransactionObjectTable& InTable, bool bTagged)
		: FStateArchive(InTable, bTagged)
		, Data(InData)
	{
		SetIsLoading(true);
	}

	using FStateArchive::operator<<;
	FArchive& operator<<(UObject*& Object) override
	{
		int32 Index = INDEX_NONE;
		Serialize(&Index, sizeof(Index));
		Object = Table.Get(Index);
		return *this;
	}
	void Serialize(void* Target, int64 Num) override
	{
		if (Num < 0 || Offset + Num > Data.Num())
		{
			SetError();
			FMemory::Memzero(Target, static_cast<SIZE_T>(FMath::Max<int64>(Num, 0)));
			return;
		}
		FMemory::Memcpy(Target, Data.GetData() + Offset, static_cast<SIZE_T>(Num));
		Offset += Num;
	}
	int64 TotalSize() override { return Data.Num(); }

private:
	const TArray<uint8>& Data;
};

/** States are written here first and copied at their size: an edit of many objects allocates once for each. */
TArray<uint8>& WriteToScratch(UObject& Object, FTransactionObjectTable& Table, bool bTagged)
{
	static TArray<uint8> Scratch;
	Scratch.Reset();
	FStateWriter Writer(Scratch, Table, bTagged);
	Object.Serialize(Writer);
	return Scratch;
}
}

int32 FObjectStateStore::Find(const UObject* Object) const
{
	const int32* const Index = Indices.Find(const_cast<UObject*>(Object));
	return Index && Entries[*Index].Object == Object ? *Index : INDEX_NONE;
}

int32 FObjectStateStore::FindOrAdd(UObject* Object)
{
	int32& Index = Indices.FindOrAdd(Object, INDEX_NONE);
	// The object of an entry may have been replaced since, and its address taken by another one.
	if (Index == INDEX_NONE || Entries[Index].Object != Object)
	{
		Index = FreeEntries.IsEmpty() ? Entries.AddDefaulted() : FreeEntries.Pop();
		Entries[Index].Object = Object;
		Entries[Index].Key = Object;
	}
	return Index;
}

void FObjectStateStore::RemoveUser(int32 Index)
{
	FEntry& Entry = Entries[Index];
	if (--Entry.NumUsers > 0)
	{
		return;
	}
	const int32* const Named = Indices.Find(Entry.Key);
	if (Named && *Named == Index)
	{
		Indices.Remove(Entry.Key);
	}
	Entry = FEntry();
	FreeEntries.Add(Index);
}

void FObjectStateStore::AddReference(int32 Index, FReferenceCollector& Collector) { Collector.AddStableReference(&Entries[Index].Object); }

TSharedRef<FStateBytes> FObjectStateStore::Hold(int32 Index, const TArray<uint8>& Bytes)
{
	const TSharedPtr<FStateBytes> Latest = Entries[Index].Latest.Pin();
	return Latest && Latest->GetWhole() == Bytes ? Latest.ToSharedRef() : MakeShared<FStateBytes>(Bytes, NumBytes);
}

void FObjectStateStore::SetLatest(int32 Index, const TSharedRef<FStateBytes>& Bytes)
{
	Bytes->GetWhole();
	const TSharedPtr<FStateBytes> Former = Entries[Index].Latest.Pin();
	if (Former && Former != Bytes)
	{
		Former->RestOn(Bytes);
	}
	Entries[Index].Latest = Bytes;
}

FTransactionObjectTable::~FTransactionObjectTable()
{
	for (const int32 Index : Used)
	{
		Store->RemoveUser(Index);
	}
}

int32 FTransactionObjectTable::Add(UObject* Object)
{
	if (!Object)
	{
		return INDEX_NONE;
	}
	const int32 Index = Store->FindOrAdd(Object);
	bool bIsUsed = false;
	Used.Add(Index, &bIsUsed);
	if (!bIsUsed)
	{
		Store->AddUser(Index);
	}
	return Index;
}

void FTransactionObjectTable::AddReferencedObjects(FReferenceCollector& Collector)
{
	for (const int32 Index : Used)
	{
		Store->AddReference(Index, Collector);
	}
}

FObjectState FObjectState::Capture(UObject& Object, FTransactionObjectTable& Table)
{
	FObjectState State;
	State.Name = Object.GetFName();
	State.OuterIndex = Table.Add(Object.GetOuter());
	State.Flags = Object.GetMaskedFlags(RestoredFlags);
	State.bIsGarbage = Object.HasAnyInternalFlags(EInternalObjectFlags::Garbage);
	if (!State.bIsGarbage)
	{
		State.bIsTagged = Object.GetClass()->IsA<UBlueprintGeneratedClass>();
		State.Bytes = Table.GetStore().Hold(Table.Add(&Object), WriteToScratch(Object, Table, State.bIsTagged));
	}
	return State;
}

bool FObjectState::IsCurrent(UObject& Object, FTransactionObjectTable& Table) const
{
	const bool bIsGarbageNow = Object.HasAnyInternalFlags(EInternalObjectFlags::Garbage);
	if (bIsGarbage || bIsGarbageNow)
	{
		return bIsGarbage == bIsGarbageNow;
	}
	return Flags == Object.GetMaskedFlags(RestoredFlags) && Bytes->GetWhole() == WriteToScratch(Object, Table, bIsTagged);
}

FTransactionObjectDeltaChange FObjectState::Compare(const FObjectState& Other) const
{
	FTransactionObjectDeltaChange Delta;
	Delta.bHasNameChange = !Name.IsEqual(Other.Name, ENameCase::CaseSensitive);
	Delta.bHasOuterChange = OuterIndex != Other.OuterIndex;
	Delta.bHasPendingKillChange = bIsGarbage != Other.bIsGarbage;
	const bool bHasOtherBytes = Bytes != Other.Bytes && (!Bytes || !Other.Bytes || Bytes->GetWhole() != Other.Bytes->GetWhole());
	Delta.bHasNonPropertyChanges = Flags != Other.Flags || bHasOtherBytes;
	return Delta;
}

void FObjectState::Restore(UObject& Object, FTransactionObjectTable& Table) const
{
	if (bIsGarbage)
	{
		Object.MarkAsGarbage();
		return;
	}
	FStateReader Reader(Bytes->GetWhole(), Table, bIsTagged);
	Object.Serialize(Reader);
	checkf(!Reader.IsError(), TEXT("%s reads another state than it wrote"), *Object.GetFullName());
	Object.ClearFlags(RestoredFlags);
	Object.SetFlags(Flags);
}

void FObjectRecord::MakeLatest(FTransactionObjectTable& Table)
{
	if (State.Bytes)
	{
		Table.GetStore().SetLatest(Table.Add(Object), State.Bytes.ToSharedRef());
	}
}

SIZE_T FObjectRecord::GetStateSize() const { return State.Bytes ? State.Bytes->GetAllocatedSize() : 0; }

void MoveGarbageAway(UObject& Object)
{
	const UObject* const Outer = Object.GetOuter();
	const bool bIsInTheWay = Outer != GetTransientPackageAsObject() && !Outer->HasAnyInternalFlags(EInternalObjectFlags::Garbage);
	if (bIsInTheWay)
	{
		Object.Rename(nullptr, GetTransientPackageAsObject(),
			REN_ForceGlobalUnique | REN_DontCreateRedirectors | REN_NonTransactional | REN_DoNotDirty);
	}
}
