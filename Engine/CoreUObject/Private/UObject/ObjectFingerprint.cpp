#include "ObjectFingerprint.h"

#include "UObject/Class.h"
#include "UObject/LazyObjectPtr.h"
#include "UObject/LinkerLoad.h"
#include "UObject/MetaData.h"
#include "UObject/ObjectPtr.h"
#include "UObject/Package.h"
#include "UObject/SoftObjectPtr.h"

namespace
{
class FFingerprintArchive final : public FArchive
{
public:
	FFingerprintArchive()
	{
		SetIsSaving(true);
		SetIsPersistent(true);
	}

	void SetVersionsOf(const FLinkerLoad& Linker)
	{
		SetUEVer(Linker.UEVer());
		SetCustomVersions(Linker.Summary.CustomVersions);
		SetFilterEditorOnly(Linker.IsFilterEditorOnly());
	}

	uint64 GetDigest() const { return Digest; }

	void Serialize(void* Data, int64 Length) override
	{
		const uint8* Bytes = static_cast<const uint8*>(Data);
		for (; Length >= 8; Length -= 8, Bytes += 8)
		{
			uint64 Word = 0;
			FMemory::Memcpy(&Word, Bytes, sizeof(Word));
			Mix(Word);
		}
		uint64 Rest = static_cast<uint64>(Length) << 56;
		FMemory::Memcpy(&Rest, Bytes, FMath::Max<int64>(Length, 0));
		Mix(Rest);
	}
	/** The versions are the package's: what it lacks is written as it was before that version. */
	void UsingCustomVersion(const FGuid& Guid) override {}

	using FArchive::operator<<;
	FArchive& operator<<(FName& Value) override
	{
		Mix(Value.GetDisplayIndex().ToUnstableInt());
		Mix(static_cast<uint64>(Value.GetNumber()));
		return *this;
	}
	FArchive& operator<<(UObject*& Value) override
	{
		for (const UObject* Object = Value; Object; Object = Object->GetOuter())
		{
			FName Name = Object->GetFName();
			*this << Name;
		}
		Mix(0);
		return *this;
	}
	FArchive& operator<<(FObjectPtr& Value) override { return *this << Value.GetRaw(); }
	FArchive& operator<<(FWeakObjectPtr& Value) override
	{
		UObject* Object = Value.Get();
		return *this << Object;
	}
	FArchive& operator<<(FLazyObjectPtr& Value) override
	{
		FUniqueObjectGuid Guid = Value.GetUniqueID();
		return static_cast<FArchive&>(*this) << Guid;
	}
	FArchive& operator<<(FSoftObjectPath& Value) override
	{
		Value.SerializePath(*this);
		return *this;
	}
	FArchive& operator<<(FSoftObjectPtr& Value) override
	{
		FSoftObjectPath Path = Value.GetUniqueID();
		return *this << Path;
	}

private:
	void Mix(uint64 Word)
	{
		Digest = (Digest ^ Word) * 0x9E3779B97F4A7C15ull;
		Digest ^= Digest >> 29;
	}

	uint64 Digest = 0xCBF29CE484222325ull;
};
}

uint64 ComputeFingerprint(UObject* Object, const FLinkerLoad& Linker)
{
	FFingerprintArchive Ar;
	Ar.SetVersionsOf(Linker);
	UObject* Class = Object->GetClass();
	uint32 Flags = static_cast<uint32>(Object->GetFlags() & RF_Load);
	static_cast<FArchive&>(Ar) << Flags;
	Ar << Object << Class;
	Object->Serialize(Ar);
	return Ar.GetDigest();
}

uint64 ComputeMetaDataFingerprint(UPackage* Package)
{
	FFingerprintArchive Ar;
	FMetaData& MetaData = Package->GetMetaData();
	const auto AddValues = [&Ar](const TMap<FName, FString>& Values)
	{
		for (const TPair<FName, FString>& Pair : Values)
		{
			FName Key = Pair.Key;
			FString Value = Pair.Value;
			Ar << Key;
			static_cast<FArchive&>(Ar) << Value;
		}
	};
	for (const TPair<FWeakObjectPtr, TMap<FName, FString>>& Pair : MetaData.ObjectMetaDataMap)
	{
		UObject* Object = Pair.Key.Get();
		Ar << Object;
		AddValues(Pair.Value);
	}
	AddValues(MetaData.RootMetaDataMap);
	return Ar.GetDigest();
}
