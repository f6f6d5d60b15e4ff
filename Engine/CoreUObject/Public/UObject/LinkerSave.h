#pragma once

#include "Serialization/Archive.h"
#include "UObject/Linker.h"

class FLinkerLoad;

/**
 * Writes one package. Names, imports, exports and soft paths get their table entries as the objects' values are written, so
 * an object that is referred to and belongs to the package is written too. Game thread.
 */
class COREUOBJECT_API FLinkerSave : public FLinker, public FArchive
{
public:
	FLinkerSave(UPackage* Package, const FString& InFilename);

	/** Takes over the tables of the file that the package came from, so that bytes kept of it stay right. */
	void StartFromTablesOf(const FLinkerLoad& Loaded);
	/** Adds the object, its outers within the package, and (as they are written) what it refers to. */
	FPackageIndex AddExport(UObject* Object);
	/** Writes every export's value. False with the reason when a value cannot be written. */
	[[nodiscard]] bool WriteExports(FString& OutError);
	/** The whole file. Call after WriteExports. */
	TArray<uint8> MakeFile();

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
	void WriteDeletedExport(int32 ExportIndex);
	void WriteMetaData();
	void WriteNames();
	void WriteTables();
	void WriteSoftPackageReferences();
	void WriteAssetRegistryData();
	void WriteDependencyFlags();
	void WritePayloadTrailer();
	bool IsSaved(const UObject* Object) const;

	/** Where Serialize writes: the exports' values while those are written, then the header. */
	TArray<uint8> Payload;
	int64 Position = 0;
	const FLinkerLoad* Origin = nullptr;
	/** Places of the plain names, by their text in its own case: the name table keeps what a name looks like. */
	TMap<FNameEntryId, int32> NameIndices;
	TMap<UObject*, FPackageIndex> ObjectIndices;
	TMap<FSoftObjectPath, int32> SoftPathIndices;
	int32 ExportInWork = INDEX_NONE;
};
