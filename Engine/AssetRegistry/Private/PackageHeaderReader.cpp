#include "PackageHeaderReader.h"

#include "Misc/PackageName.h"
#include "PackageHeaderArchive.h"
#include "UObject/ObjectResource.h"
#include "UObject/PackageFileSummary.h"

namespace
{
/** Most summaries are complete in so much, and many whole headers. */
constexpr int64 FirstReadBytes = 16 << 10;
constexpr int64 MaxSummaryBytes = 1 << 20;
constexpr int32 MaxAssetsInPackage = 1 << 16;
constexpr int32 MaxTagsOfAsset = 1 << 16;
/** Two empty strings and a count. */
constexpr int32 MinAssetBytes = 12;
constexpr int32 MinTagBytes = 8;
constexpr int64 MinImportBytes = 28;
constexpr int64 MinReferenceBytes = 4;
const TCHAR* const GeneratedClassSuffix = TEXT("BlueprintGeneratedClass");

using UE::AssetRegistry::EDependencyProperty;

class FHeaderReader
{
public:
	FHeaderReader(const FString& InFilename, FName InPackageName, FPackageHeader& InHeader)
		: Ar(InFilename)
		, PackageName(InPackageName)
		, Header(InHeader)
	{
	}

	bool Read(FString& OutError)
	{
		if (!Ar.IsOpen())
		{
			OutError = TEXT("the file cannot be opened");
			return false;
		}
		return ReadSummary(OutError) && CheckEnd(OutError) && ReadImports(OutError) && ReadSoftReferences(OutError) &&
			ReadRegistryData(OutError);
	}

private:
	bool ReadSummary(FString& OutError)
	{
		const bool bWhole = Ar.Require(FirstReadBytes);
		if (!Summary.Serialize(Ar, OutError))
		{
			const bool bMayGoOn = bWhole && Ar.IsError() && Ar.GetFileSize() > FirstReadBytes;
			if (!bMayGoOn)
			{
				return false;
			}
			static_cast<void>(Ar.Require(MaxSummaryBytes));
			Ar.ClearError();
			Ar.Seek(0);
			Summary = FPackageFileSummary();
			OutError.Reset();
			if (!Summary.Serialize(Ar, OutError))
			{
				return false;
			}
		}
		// Older engines wrote the registry's data behind what they counted as the header.
		const bool bDataBehindHeader = Summary.AssetRegistryDataOffset >= Summary.TotalHeaderSize;
		const int64 Wanted =
			bDataBehindHeader ? FMath::Min(Ar.GetFileSize(), FPackageHeaderArchive::MaxHeaderBytes) : Summary.TotalHeaderSize;
		if (Summary.TotalHeaderSize <= 0 || !Ar.Require(Wanted))
		{
			OutError = FString::Printf(TEXT("the header's %d bytes are more than can be read of the file's %lld"), Summary.TotalHeaderSize,
				static_cast<long long>(Ar.GetFileSize()));
			return false;
		}
		if (!Ar.ReadNameTable(Summary.NameCount, Summary.NameOffset))
		{
			OutError = FString::Printf(
				TEXT("the table of names (%d at offset %d) is damaged"), Summary.NameCount, Summary.NameOffset);
			return false;
		}
		return true;
	}

	/** The last bytes of a file say that it was written to its end. */
	bool CheckEnd(FString& OutError)
	{
		const bool bHasTag = Ar.UEVer() >= EUnrealEngineObjectUE5Version::PAYLOAD_TOC || !Summary.bUnversioned;
		if (bHasTag && !Ar.EndsWithTag())
		{
			OutError = FString::Printf(
				TEXT("the file is cut off: its %lld bytes do not end with the package tag"), static_cast<long long>(Ar.GetFileSize()));
			return false;
		}
		return true;
	}

	bool Begin(int32 Count, int64 Offset, int64 MinEntryBytes, const TCHAR* What, FString& OutError)
	{
		Ar.Seek(Offset);
		if (Count > 0 && (Offset <= 0 || !Ar.CanHold(Count, MinEntryBytes)))
		{
			OutError = FString::Printf(TEXT("the table of %s (%d at offset %lld) does not fit into the header"), What, Count,
				static_cast<long long>(Offset));
			return false;
		}
		return Count >= 0 || Fail(What, Offset, OutError);
	}

	static bool Fail(const TCHAR* What, int64 Offset, FString& OutError)
	{
		OutError = FString::Printf(TEXT("the table of %s at offset %lld is damaged"), What, static_cast<long long>(Offset));
		return false;
	}

	bool ReadImports(FString& OutError)
	{
		const TCHAR* const What = TEXT("imports");
		if (!Begin(Summary.ImportCount, Summary.ImportOffset, MinImportBytes, What, OutError))
		{
			return false;
		}
		Imports.SetNum(Summary.ImportCount);
		for (FObjectImport& Import : Imports)
		{
			Import.Serialize(Ar);
		}
		return !Ar.IsError() || Fail(What, Summary.ImportOffset, OutError);
	}

	bool ReadSoftReferences(FString& OutError)
	{
		const TCHAR* const What = TEXT("soft references");
		if (!Begin(Summary.SoftPackageReferencesCount, Summary.SoftPackageReferencesOffset, MinReferenceBytes, What, OutError))
		{
			return false;
		}
		for (int32 Index = 0; Index < Summary.SoftPackageReferencesCount && !Ar.IsError(); ++Index)
		{
			FName& Name = SoftReferences.AddDefaulted_GetRef();
			if (Ar.UEVer() >= VER_UE4_ADDED_SOFT_OBJECT_PATH)
			{
				Ar << Name;
				continue;
			}
			FString Text;
			static_cast<FArchive&>(Ar) << Text;
			// Before packages had soft paths the list held the paths of objects.
			Name = Text.Len() < NAME_SIZE ? FName(*FPackageName::ObjectPathToPackageName(Text)) : FName();
		}
		return !Ar.IsError() || Fail(What, Summary.SoftPackageReferencesOffset, OutError);
	}

	bool ReadRegistryData(FString& OutError)
	{
		int64 FlagsOffset = 0;
		if (Summary.AssetRegistryDataOffset > 0)
		{
			Ar.Seek(Summary.AssetRegistryDataOffset);
			const bool bHasFlags =
				Ar.UEVer() >= VER_UE4_ASSETREGISTRY_DEPENDENCYFLAGS && (Summary.PackageFlags & PKG_FilterEditorOnly) == 0;
			if (bHasFlags)
			{
				static_cast<FArchive&>(Ar) << FlagsOffset;
			}
			if (!ReadAssets())
			{
				OutError = FString::Printf(TEXT("the registry data at %d is damaged"), Summary.AssetRegistryDataOffset);
				return false;
			}
		}
		TBitArray<> ImportsInGame;
		TBitArray<> SoftReferencesInGame;
		if (FlagsOffset > 0)
		{
			Ar.Seek(FlagsOffset);
			if (!ReadBits(Imports.Num(), ImportsInGame) || !ReadBits(SoftReferences.Num(), SoftReferencesInGame))
			{
				OutError = FString::Printf(TEXT("the flags of dependencies at %lld are damaged"), static_cast<long long>(FlagsOffset));
				return false;
			}
		}
		AddImportedPackages(ImportsInGame);
		for (int32 Index = 0; Index < SoftReferences.Num(); ++Index)
		{
			AddDependency(SoftReferences[Index], MakeProperties(EDependencyProperty::None, SoftReferencesInGame, Index));
		}
		return true;
	}

	bool ReadAssets()
	{
		int32 NumAssets = 0;
		static_cast<FArchive&>(Ar) << NumAssets;
		if (!IsGoodCount(NumAssets, MaxAssetsInPackage, MinAssetBytes))
		{
			return false;
		}
		const FName PackagePath(*FPackageName::GetLongPackagePath(PackageName.ToString()));
		for (int32 Index = 0; Index < NumAssets; ++Index)
		{
			FString ObjectPath;
			FString ClassName;
			FAssetDataTagMap Tags;
			static_cast<FArchive&>(Ar) << ObjectPath << ClassName;
			if (!ReadTags(Tags))
			{
				return false;
			}
			int32 Ignored = INDEX_NONE;
			// An object path with an outer is that of an asset's part, which is saved in a file of its own.
			const bool bIsAsset = !ObjectPath.IsEmpty() && ObjectPath.Len() < NAME_SIZE && !ObjectPath.FindChar(TEXT('.'), Ignored);
			// A Blueprint's class is not an asset beside it where the Blueprint itself is still there.
			const bool bIsGenerated = ClassName.EndsWith(GeneratedClassSuffix) && (Summary.PackageFlags & PKG_FilterEditorOnly) == 0;
			if (bIsAsset && !bIsGenerated && ClassName.Len() < NAME_SIZE)
			{
				Header.Assets.Add(
					FAssetData(PackageName, PackagePath, FName(*ObjectPath), ToClassPath(ClassName), MoveTemp(Tags), Summary.PackageFlags));
			}
		}
		return true;
	}

	bool ReadTags(FAssetDataTagMap& OutTags)
	{
		int32 NumTags = 0;
		static_cast<FArchive&>(Ar) << NumTags;
		if (!IsGoodCount(NumTags, MaxTagsOfAsset, MinTagBytes))
		{
			return false;
		}
		TMap<FName, FString> Read;
		for (int32 Index = 0; Index < NumTags && !Ar.IsError(); ++Index)
		{
			FString Key;
			FString Value;
			static_cast<FArchive&>(Ar) << Key << Value;
			if (!Key.IsEmpty() && Key.Len() < NAME_SIZE)
			{
				Read.Add(FName(*Key), MoveTemp(Value));
			}
		}
		// Sorted at once: adding hostile numbers of tags to a sorted map one by one takes the square of their number.
		Read.KeySort(FNameLexicalLess());
		OutTags.Reserve(Read.Num());
		for (TPair<FName, FString>& Tag : Read)
		{
			OutTags.Add(Tag.Key, MoveTemp(Tag.Value));
		}
		return !Ar.IsError();
	}

	/** Packages before 5.1 name the class without its package; the table of imports knows it. */
	FTopLevelAssetPath ToClassPath(const FString& ClassName) const
	{
		if (ClassName.StartsWith(TEXT("/"), ESearchCase::CaseSensitive))
		{
			return FTopLevelAssetPath(ClassName);
		}
		const FName Name(*ClassName);
		for (const FObjectImport& Import : Imports)
		{
			const FObjectImport* const Outer = FindImport(Import.OuterIndex);
			if (Import.ObjectName == Name && Outer && Outer->OuterIndex.IsNull())
			{
				return FTopLevelAssetPath(Outer->ObjectName, Name);
			}
		}
		return FTopLevelAssetPath(FName(TEXT("/Script/Engine")), Name);
	}

	const FObjectImport* FindImport(FPackageIndex Index) const
	{
		return Index.IsImport() && Imports.IsValidIndex(Index.ToImport()) ? &Imports[Index.ToImport()] : nullptr;
	}

	bool ReadBits(int32 Expected, TBitArray<>& OutBits)
	{
		int32 NumBits = 0;
		static_cast<FArchive&>(Ar) << NumBits;
		if (Ar.IsError() || NumBits != Expected)
		{
			return false;
		}
		OutBits.Init(false, NumBits);
		for (int32 First = 0; First < NumBits; First += 32)
		{
			uint32 Word = 0;
			static_cast<FArchive&>(Ar) << Word;
			for (int32 Bit = 0; Bit < 32 && First + Bit < NumBits; ++Bit)
			{
				OutBits[First + Bit] = ((Word >> Bit) & 1) != 0;
			}
		}
		return !Ar.IsError();
	}

	/** Packages that do not say what the game needs are taken to need all. */
	static EDependencyProperty MakeProperties(EDependencyProperty Kind, const TBitArray<>& InGame, int32 Index)
	{
		return !InGame.IsValidIndex(Index) || InGame[Index] ? Kind | EDependencyProperty::Game : Kind;
	}

	void AddImportedPackages(const TBitArray<>& InGame)
	{
		static const FName PackageClass(TEXT("Package"));
		for (int32 Index = 0; Index < Imports.Num(); ++Index)
		{
			const EDependencyProperty Properties = MakeProperties(EDependencyProperty::Hard, InGame, Index);
			const FObjectImport& Import = Imports[Index];
			if (Import.OuterIndex.IsNull() && Import.ClassName == PackageClass)
			{
				AddDependency(Import.ObjectName, Properties);
			}
			AddDependency(Import.PackageName, Properties);
		}
	}

	void AddDependency(FName Name, EDependencyProperty Properties)
	{
		if (Name.IsNone() || Name == PackageName)
		{
			return;
		}
		const bool bHard = EnumHasAnyFlags(Properties, EDependencyProperty::Hard);
		int32& Index = (bHard ? HardIndices : SoftIndices).FindOrAdd(Name, INDEX_NONE);
		if (Index == INDEX_NONE)
		{
			Index = Header.Dependencies.Add({Name, Properties});
			return;
		}
		Header.Dependencies[Index].Properties |= Properties;
	}

	bool IsGoodCount(int32 Count, int32 MaxCount, int32 MinBytes)
	{
		return !Ar.IsError() && Count >= 0 && Count <= MaxCount && Ar.CanHold(Count, MinBytes);
	}

	FPackageHeaderArchive Ar;
	FName PackageName;
	FPackageHeader& Header;
	FPackageFileSummary Summary;
	TArray<FObjectImport> Imports;
	TArray<FName> SoftReferences;
	/** Places of packages among the dependencies. */
	TMap<FName, int32> HardIndices;
	TMap<FName, int32> SoftIndices;
};
}

bool ReadPackageHeader(const FString& Filename, FName PackageName, FPackageHeader& OutHeader, FString& OutError)
{
	FHeaderReader Reader(Filename, PackageName, OutHeader);
	FString Reason;
	if (Reader.Read(Reason))
	{
		return true;
	}
	OutHeader = FPackageHeader();
	OutError = FString::Printf(TEXT("%s: %s"), *Filename, *Reason);
	return false;
}
