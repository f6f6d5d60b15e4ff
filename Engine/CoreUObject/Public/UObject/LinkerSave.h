#pragma once

#include "Serialization/Archive.h"
#include "UObject/Linker.h"

class FLinkerLoad;
enum class EPackageSection : uint8;
struct FPackageSectionRange;

/**
 * Writes one package. Names, imports, exports and soft paths get their table entries as the objects' values are written, so
 * an object that is referred to and belongs to the package is written too. A new package has the newest form. One that was
 * loaded can be written in its own: its tables grow at their ends, objects that have not changed keep their bytes, and every
 * section of the file is carried over. Game thread.
 */
class COREUOBJECT_API FLinkerSave : public FLinker, public FArchive
{
public:
	FLinkerSave(UPackage* Package, const FString& InFilename);

	/** Takes over form and tables of the file that the package came from, so that bytes kept of it stay right. */
	void StartFromTablesOf(FLinkerLoad& Loaded);
	/** In the newest form: carries over the sections of that file which do not depend on its tables. */
	void CarrySectionsOf(FLinkerLoad& Loaded) { Carried = &Loaded; }
	/** In its own form: writes objects by their values even when they have not changed. */
	void WriteUnchangedObjectsAnew() { bWritesUnchanged = true; }
	/** The linker whose tables this continues; null for a package in the newest form. */
	const FLinkerLoad* GetOrigin() const { return Origin; }
	/** A property that the origin's bytes of an object have. */
	struct FTagOfOrigin
	{
		FName Name;
		/** Element of a static array. */
		int32 ArrayIndex = 0;
		/** By which the engine finds a Blueprint's variable that has been renamed; not valid for others. */
		FGuid PropertyGuid;
	};
	/** Those of the object that is being written, in their order there; none for an object that is new. */
	TArrayView<const FTagOfOrigin> GetTagsOfOrigin(const void* Object) const;
	/** Ends the writing: a value is not one that can be written, and the file must not be without it. The first reason stays. */
	void Refuse(FString&& Reason);
	/** Adds the object, its outers within the package, and (as they are written) what it refers to. */
	FPackageIndex AddExport(UObject* Object);
	/** Writes every export's value. False with the reason when a value cannot be written. */
	[[nodiscard]] bool WriteExports(FString& OutError);
	/** The whole file. Call after WriteExports. Empty with the reason when it would be too large or the old file cannot be read. */
	TArray<uint8> MakeFile(FString& OutError);

	// FArchive
	FString GetArchiveName() const override { return Filename; }
	FLinker* GetLinker() override { return this; }
	int64 Tell() override { return Position; }
	int64 TotalSize() override { return Payload.Num(); }
	void Seek(int64 InPos) override;
	void Serialize(void* Data, int64 Length) override;
	void UsingCustomVersion(const FGuid& Guid) override;
	void MarkScriptSerializationStart(const UObject* Object) override;
	void MarkScriptSerializationEnd(const UObject* Object) override;
	using FArchive::operator<<;
	FArchive& operator<<(FName& Value) override;
	FArchive& operator<<(UObject*& Value) override;
	FArchive& operator<<(FObjectPtr& Value) override;
	FArchive& operator<<(FLazyObjectPtr& Value) override;
	FArchive& operator<<(FSoftObjectPath& Value) override;
	FArchive& operator<<(FSoftObjectPtr& Value) override;
	FArchive& operator<<(FWeakObjectPtr& Value) override;

private:
	int32 MapName(const FName& Name);
	FPackageIndex MapObject(UObject* Object);
	FPackageIndex AddImport(UObject* Object);
	void WriteExport(int32 ExportIndex);
	void WriteValues(int32 ExportIndex, UObject* Object);
	TArray<FTagOfOrigin> ReadTagsOfOrigin(int32 ExportIndex) const;
	bool KeepsBytes(int32 ExportIndex, UObject* Object) const;
	bool IsDeleted(int32 ExportIndex, const UObject* Object) const;
	FObjectExport DescribeExport(int32 ExportIndex, UObject* Object);
	void MapNamesOfTables();
	void WriteDeletedExport(int32 ExportIndex);
	void WriteMetaData();
	void WriteNames();
	void WriteNameEntry(const FName& Name);
	void AddSoftPackageReferences();
	void WriteTables();
	void WriteSoftPackageReferences();
	void WriteAssetRegistryData();
	void WriteDependencyFlags();
	void WritePayloadTrailer();
	bool IsSaved(const UObject* Object) const;
	TArray<uint8> MakeNewFile(FString& OutError);
	TArray<uint8> MakeFileOfOrigin(FString& OutError);
	bool WriteSectionsOfOrigin(const TArray<FPackageSectionRange>& Ranges, const TArray<uint8>& Values, FString& OutError);
	void WriteSectionOfOrigin(const FPackageSectionRange& Range);
	void WriteValuesOfOrigin(const FPackageSectionRange& Range, const TArray<uint8>& Values);
	void MarkChanged(const TArray<uint8>& Values);
	void CopyBytes(const FLinkerLoad& From, int64 Start, int64 End);
	void CopyThumbnails(FLinkerLoad& From, int64 Start, int64 End);
	void CopyAssetRegistryData(int64 Start, int64 End);
	void WriteAssetTags(const UObject* Asset, TArray<TPair<FString, FString>>&& InFile);
	void CopyCarried(EPackageSection Section);
	void ClearUnusedImports();
	void MarkImportsIn(TArrayView<const uint8> Bytes);

	/** Where Serialize writes: the exports' values while those are written, then the header. */
	TArray<uint8> Payload;
	int64 Position = 0;
	FLinkerLoad* Origin = nullptr;
	FLinkerLoad* Carried = nullptr;
	bool bWritesUnchanged = false;
	/** Whether anything differs from the origin. */
	bool bIsChanged = false;
	/** Whether values refer to an import. Kept bytes are taken to refer to whatever they might. */
	TArray<bool> UsedImports;
	/** Where each export's value stands among the values, before it has its place in the file. */
	TArray<int64> ValueOffsets;
	/** Places of the plain names, by their text in its own case: the name table keeps what a name looks like. */
	TMap<FNameEntryId, int32> NameIndices;
	TMap<UObject*, FPackageIndex> ObjectIndices;
	TMap<FSoftObjectPath, int32> SoftPathIndices;
	int32 ExportInWork = INDEX_NONE;
	TArray<FTagOfOrigin> TagsOfOrigin;
	/** Why a value cannot be written. */
	FString Refusal;
};
