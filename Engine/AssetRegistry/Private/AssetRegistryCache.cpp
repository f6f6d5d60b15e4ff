#include "AssetRegistryCache.h"

#include "HAL/FileManager.h"
#include "Misc/AtomicFile.h"
#include "Misc/Crc.h"
#include "Misc/FileHelper.h"
#include "Misc/PackageName.h"
#include "Misc/Paths.h"
#include "Serialization/MemoryReader.h"
#include "Serialization/MemoryWriter.h"

namespace
{
/** "VXAR" */
constexpr uint32 CacheTag = 0x52415856;
/** Goes up with every change of the file's form, or of what the reader takes from headers. */
constexpr uint32 CacheVersion = 1;
constexpr int32 MinPackageBytes = 28;
constexpr int32 MinAssetBytes = 24;
constexpr int32 MinTagBytes = 8;
constexpr int32 MinDependencyBytes = 5;
constexpr int32 MinNameBytes = 4;

struct FCacheHeader
{
	uint32 Tag = CacheTag;
	uint32 Version = CacheVersion;
	uint32 CheckSum = 0;
	int32 NumBytes = 0;
};
constexpr int32 HeaderBytes = sizeof(FCacheHeader);

/** Writes values and collects their names, each of which the file has once. */
class FCacheWriter
{
public:
	explicit FCacheWriter(const FAssetRegistryState& State)
	{
		FMemoryWriter Ar(Body);
		int32 NumPackages = 0;
		Ar << NumPackages;
		for (const TPair<FName, FPackageRecord>& Package : State.GetPackages())
		{
			// What is broken is read again, so that every run tells of it.
			if (!Package.Value.bBroken)
			{
				WritePackage(Ar, State, Package.Key, Package.Value);
				++NumPackages;
			}
		}
		Ar.Seek(0);
		Ar << NumPackages;
	}

	TArray<uint8> MakeFile() const
	{
		TArray<uint8> File;
		File.SetNumZeroed(HeaderBytes);
		FMemoryWriter Ar(File, false, true);
		int32 NumNames = Names.Num();
		Ar << NumNames;
		for (FString Name : Names)
		{
			Ar << Name;
		}
		File.Append(Body);
		FCacheHeader Header;
		Header.NumBytes = File.Num() - HeaderBytes;
		Header.CheckSum = FCrc::MemCrc32(File.GetData() + HeaderBytes, Header.NumBytes);
		FMemory::Memcpy(File.GetData(), &Header, sizeof(Header));
		return File;
	}

private:
	void WriteName(FArchive& Ar, FName Name)
	{
		int32 Index = INDEX_NONE;
		const TPair<FNameEntryId, int32> Key(Name.GetDisplayIndex(), Name.GetNumber());
		if (const int32* const Found = Indices.Find(Key))
		{
			Index = *Found;
		}
		else
		{
			Index = Indices.Add(Key, Names.Add(Name.ToString()));
		}
		Ar << Index;
	}

	void WritePackage(FArchive& Ar, const FAssetRegistryState& State, FName PackageName, const FPackageRecord& Record)
	{
		WriteName(Ar, PackageName);
		int64 Ticks = Record.Stamp.Time.GetTicks();
		int64 Size = Record.Stamp.Size;
		int32 NumAssets = Record.AssetIds.Num();
		int32 NumDependencies = Record.Dependencies.Num();
		Ar << Ticks << Size << NumAssets << NumDependencies;
		for (const int32 Id : Record.AssetIds)
		{
			WriteAsset(Ar, State.GetAsset(Id));
		}
		for (const FPackageDependency& Dependency : Record.Dependencies)
		{
			uint8 Properties = static_cast<uint8>(Dependency.Properties);
			WriteName(Ar, Dependency.PackageName);
			Ar << Properties;
		}
	}

	void WriteAsset(FArchive& Ar, const FAssetData& Asset)
	{
		uint32 Flags = Asset.PackageFlags;
		int32 NumTags = Asset.TagsAndValues.Num();
		WriteName(Ar, Asset.AssetName);
		WriteName(Ar, Asset.AssetClassPath.GetPackageName());
		WriteName(Ar, Asset.AssetClassPath.GetAssetName());
		Ar << Flags << NumTags;
		for (const TPair<FName, FString>& Tag : Asset.TagsAndValues)
		{
			WriteName(Ar, Tag.Key);
			FString Value = Tag.Value;
			Ar << Value;
		}
	}

	TArray<uint8> Body;
	TArray<FString> Names;
	TMap<TPair<FNameEntryId, int32>, int32> Indices;
};

class FCacheReader
{
public:
	explicit FCacheReader(TConstArrayView<uint8> Bytes)
		: Ar(Bytes)
	{
	}

	/** False when the bytes are not what a writer wrote. */
	bool Read(TMap<FName, FAssetRegistryCache::FEntry>& OutEntries)
	{
		const int32 NumNames = ReadCount(MinNameBytes);
		Names.Reserve(NumNames);
		for (int32 Index = 0; Index < NumNames && !Ar.IsError(); ++Index)
		{
			FString Name;
			Ar << Name;
			Names.Add(Name.Len() < NAME_SIZE ? FName(*Name) : FName());
		}
		const int32 NumPackages = ReadCount(MinPackageBytes);
		OutEntries.Reserve(NumPackages);
		for (int32 Index = 0; Index < NumPackages && !Ar.IsError(); ++Index)
		{
			const FName PackageName = ReadName();
			ReadPackage(PackageName, OutEntries.Add(PackageName));
		}
		return !Ar.IsError() && Ar.Tell() == Ar.TotalSize();
	}

private:
	int32 ReadCount(int32 MinBytes)
	{
		int32 Count = 0;
		Ar << Count;
		return !Ar.IsError() && Count >= 0 && Ar.CanHold(Count, MinBytes) ? Count : Refuse();
	}

	int32 Refuse()
	{
		Ar.SetError();
		return 0;
	}

	FName ReadName()
	{
		int32 Index = INDEX_NONE;
		Ar << Index;
		if (!Names.IsValidIndex(Index))
		{
			Refuse();
			return FName();
		}
		return Names[Index];
	}

	void ReadPackage(FName PackageName, FAssetRegistryCache::FEntry& Entry)
	{
		int64 Ticks = 0;
		Ar << Ticks << Entry.Stamp.Size;
		Entry.Stamp.Time = FDateTime(Ticks);
		const int32 NumAssets = ReadCount(MinAssetBytes);
		const int32 NumDependencies = ReadCount(MinDependencyBytes);
		const FName PackagePath(*FPackageName::GetLongPackagePath(PackageName.ToString()));
		Entry.Header.Assets.Reserve(NumAssets);
		for (int32 Index = 0; Index < NumAssets && !Ar.IsError(); ++Index)
		{
			ReadAsset(PackageName, PackagePath, Entry.Header.Assets.AddDefaulted_GetRef());
		}
		Entry.Header.Dependencies.Reserve(NumDependencies);
		for (int32 Index = 0; Index < NumDependencies && !Ar.IsError(); ++Index)
		{
			FPackageDependency& Dependency = Entry.Header.Dependencies.AddDefaulted_GetRef();
			uint8 Properties = 0;
			Dependency.PackageName = ReadName();
			Ar << Properties;
			Dependency.Properties = static_cast<UE::AssetRegistry::EDependencyProperty>(Properties);
		}
	}

	void ReadAsset(FName PackageName, FName PackagePath, FAssetData& OutAsset)
	{
		const FName AssetName = ReadName();
		const FName ClassPackage = ReadName();
		const FName ClassName = ReadName();
		uint32 Flags = 0;
		Ar << Flags;
		const int32 NumTags = ReadCount(MinTagBytes);
		FAssetDataTagMap Tags;
		Tags.Reserve(NumTags);
		for (int32 Index = 0; Index < NumTags && !Ar.IsError(); ++Index)
		{
			const FName Key = ReadName();
			FString Value;
			Ar << Value;
			Tags.Add(Key, MoveTemp(Value));
		}
		OutAsset = FAssetData(PackageName, PackagePath, AssetName, FTopLevelAssetPath(ClassPackage, ClassName), MoveTemp(Tags), Flags);
	}

	FMemoryReaderView Ar;
	TArray<FName> Names;
};
}

FString FAssetRegistryCache::GetDefaultFilename()
{
	return FPaths::IsProjectFilePathSet() ? FPaths::ProjectSavedDir() / TEXT("CachedAssetRegistry.bin") : FString();
}

bool FAssetRegistryCache::Load(const FString& Filename, FString& OutError)
{
	Entries.Empty();
	if (!IFileManager::Get().FileExists(*Filename))
	{
		return true;
	}
	TArray<uint8> File;
	FCacheHeader Header;
	if (!FFileHelper::LoadFileToArray(File, *Filename) || File.Num() < HeaderBytes)
	{
		OutError = FString::Printf(TEXT("%s cannot be read"), *Filename);
		return false;
	}
	FMemory::Memcpy(&Header, File.GetData(), sizeof(Header));
	if (Header.Tag != CacheTag || Header.Version != CacheVersion)
	{
		OutError = FString::Printf(TEXT("%s is of another version"), *Filename);
		return false;
	}
	const TConstArrayView<uint8> Body(File.GetData() + HeaderBytes, File.Num() - HeaderBytes);
	const bool bWhole = Header.NumBytes == Body.Num() && Header.CheckSum == FCrc::MemCrc32(Body.GetData(), Body.Num());
	if (!bWhole || !FCacheReader(Body).Read(Entries))
	{
		Entries.Empty();
		OutError = FString::Printf(TEXT("%s is damaged"), *Filename);
		return false;
	}
	return true;
}

bool FAssetRegistryCache::Save(const FString& Filename, const FAssetRegistryState& State, FString& OutError)
{
	IFileManager::Get().MakeDirectory(*FPaths::GetPath(Filename), true);
	const TArray<uint8> File = FCacheWriter(State).MakeFile();
	return UE::SaveFileAtomically(Filename, TArrayView<const uint8>(File), OutError);
}

FAssetRegistryCache::FEntry* FAssetRegistryCache::Find(FName PackageName, const FPackageFileStamp& Stamp)
{
	FEntry* const Entry = Entries.Find(PackageName);
	return Entry && Entry->Stamp == Stamp ? Entry : nullptr;
}
