#include "ObjectRecord.h"

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

int32 FTransactionObjectTable::Add(UObject* Object)
{
	if (!Object)
	{
		return INDEX_NONE;
	}
	int32& Index = Indices.FindOrAdd(Object, INDEX_NONE);
	// The object of an entry may have been replaced since, and its address taken by another one.
	if (Index == INDEX_NONE || Objects[Index] != Object)
	{
		Index = Objects.Add(Object);
	}
	return Index;
}

int32 FTransactionObjectTable::Find(const UObject* Object) const
{
	const int32* const Index = Indices.Find(const_cast<UObject*>(Object));
	return Index && *Index != INDEX_NONE && Objects[*Index] == Object ? *Index : INDEX_NONE;
}

void FTransactionObjectTable::AddReferencedObjects(FReferenceCollector& Collector)
{
	for (TObjectPtr<UObject>& Object : Objects)
	{
		Collector.AddStableReference(&Object);
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
		State.Data = WriteToScratch(Object, Table, State.bIsTagged);
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
	return Flags == Object.GetMaskedFlags(RestoredFlags) && Data == WriteToScratch(Object, Table, bIsTagged);
}

FTransactionObjectDeltaChange FObjectState::Compare(const FObjectState& Other) const
{
	FTransactionObjectDeltaChange Delta;
	Delta.bHasNameChange = !Name.IsEqual(Other.Name, ENameCase::CaseSensitive);
	Delta.bHasOuterChange = OuterIndex != Other.OuterIndex;
	Delta.bHasPendingKillChange = bIsGarbage != Other.bIsGarbage;
	Delta.bHasNonPropertyChanges = Flags != Other.Flags || Data != Other.Data;
	return Delta;
}

void FObjectState::Restore(UObject& Object, FTransactionObjectTable& Table) const
{
	if (bIsGarbage)
	{
		Object.MarkAsGarbage();
		return;
	}
	FStateReader Reader(Data, Table, bIsTagged);
	Object.Serialize(Reader);
	checkf(!Reader.IsError(), TEXT("%s reads another state than it wrote"), *Object.GetFullName());
	Object.ClearFlags(RestoredFlags);
	Object.SetFlags(Flags);
}

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
