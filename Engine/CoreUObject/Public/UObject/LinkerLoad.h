#pragma once

#include "Serialization/Archive.h"
#include "UObject/Linker.h"
#include "UObject/WeakObjectPtr.h"

class FPackageBytes;
enum class EPackageSection : uint8;

/**
 * Reads one package file. Tables first; then objects, each when it is first asked for. Bytes are from outside: every offset
 * and count is checked, a bad one ends in an error text with its offset. A large file is read where it is asked for, and stays
 * open. Game thread.
 */
class COREUOBJECT_API FLinkerLoad : public FLinker, public FArchive
{
	using FLink = TPair<FWeakObjectPtr, FName>;

public:
	/** Reads the tables. Null with the reason when they cannot be read. Package may be null to inspect a file only. */
	static TUniquePtr<FLinkerLoad> Create(const FString& Filename, UPackage* Package, FString& OutError);
	static TUniquePtr<FLinkerLoad> Create(TArray<uint8>&& Bytes, const FString& Filename, UPackage* Package, FString& OutError);
	~FLinkerLoad() override;

	/** Creates and reads every export. Errors in single objects are in GetErrors(); their bytes are kept. */
	void LoadAllObjects();
	/** The object of an entry, created and read as far as circles allow. Null for null and for what cannot be made. */
	UObject* IndexToObject(FPackageIndex Index);
	UObject* CreateExport(int32 ExportIndex);
	UObject* CreateImport(int32 ImportIndex);
	/** INDEX_NONE when the file has no such object. */
	int32 FindExportIndex(const FString& PathName) const;
	/** Reads an object that has been created. */
	void Preload(UObject* Object) override;
	/** Whether the object's bytes are being read at present, so that it is not yet what it will be. */
	static bool IsBeingRead(const UObject* Object);

	/** Each says what and at which offset. */
	const TArray<FString>& GetErrors() const { return Errors; }
	/** A copy of the export's bytes; shorter than the export when the file can no longer be read. */
	TArray<uint8> GetExportBytes(int32 ExportIndex) const;
	/** A copy of any bytes of the file, empty when there are not as many. */
	TArray<uint8> ReadBytes(int64 Offset, int64 Length) const;
	int64 GetFileSize() const;
	/** Makes reads from End on fail. Answers where they failed before. */
	int64 LimitReads(int64 End);
	/** Where the archive's error was noticed; -1 while there is none. */
	int64 GetErrorPosition() const { return IsError() ? ErrorPosition : -1; }
	/** Where the table's entries end in the file; -1 for what is not read at once. */
	int64 GetTableEnd(EPackageSection Section) const;
	/** Differs between any two linkers of this process. */
	uint64 GetId() const { return Id; }

	/** What an object's class left unread at the end of its bytes; null when it read all. */
	const TArray<uint8>* FindUnreadTail(const UObject* Object) const { return UnreadTails.Find(FWeakObjectPtr(Object)); }
	/** Whether an object's bytes must be written back as they are: its class is unknown, or reading them failed. */
	bool MustKeepBytes(const UObject* Object) const { return OpaqueObjects.Contains(FWeakObjectPtr(Object)); }
	/** A link of a list of fields to an object that is no field here, by the object that has it and the link's name. */
	void KeepLink(const UObject* Owner, FName Member, UObject* Linked) { KeptLinks.Add(FLink(FWeakObjectPtr(Owner), Member), FWeakObjectPtr(Linked)); }
	/** Null when there is none. */
	UObject* FindKeptLink(const UObject* Owner, FName Member) const;
	int32 FindExportOf(const UObject* Object) const;
	/** The object that the file names as an export's outer; null when it is gone. */
	UObject* FindOuterOf(int32 ExportIndex) const;
	/** Whether the export was made once and its object has been deleted since. */
	bool IsDeleted(int32 ExportIndex) const { return ReadExports.Contains(ExportIndex) && !ExportMap[ExportIndex].Object.Get(); }
	/** Whether something of the file is kept as bytes that refer to its tables by index. */
	bool HasKeptBytes() const { return bHasKeptBytes; }
	void MarkKeptBytes() { bHasKeptBytes = true; }
	/** Notes what the objects look like, to tell later which of them have changed. Once they are ready for use. */
	void TakeFingerprints();
	/** Whether the object would be written as its bytes in the file tell. False before TakeFingerprints. */
	bool IsUnchanged(int32 ExportIndex) const;
	bool IsMetaDataUnchanged() const;
	/** What the asset registry would have been told of the asset when the fingerprints were taken; empty for none. */
	TMap<FName, FString> GetTagsAsLoaded(const UObject* Asset) const;

	/**
	 * Takes from the memory that objects and elements of this file may have in all: a few bytes of a file can ask for an element
	 * of any size. False when it is spent.
	 */
	[[nodiscard]] bool SpendMemory(int64 Bytes);

	// FArchive
	FString GetArchiveName() const override { return Filename; }
	FLinker* GetLinker() override { return this; }
	int64 Tell() override { return Position; }
	int64 TotalSize() override { return Limit; }
	void Seek(int64 InPos) override;
	void Serialize(void* Data, int64 Length) override;
	void SetError() override;
	using FArchive::operator<<;
	FArchive& operator<<(FName& Value) override;
	FArchive& operator<<(UObject*& Value) override;
	FArchive& operator<<(FObjectPtr& Value) override;
	FArchive& operator<<(FLazyObjectPtr& Value) override;
	FArchive& operator<<(FSoftObjectPath& Value) override;
	FArchive& operator<<(FSoftObjectPtr& Value) override;
	FArchive& operator<<(FWeakObjectPtr& Value) override;

private:
	FLinkerLoad(TUniquePtr<FPackageBytes>&& InFile, const FString& InFilename, UPackage* Package);

	static TUniquePtr<FLinkerLoad> CreateFromFile(TUniquePtr<FPackageBytes>&& File, const FString& Filename, UPackage* Package, FString& OutError);
	bool LoadTables(FString& OutError);
	bool LoadNames(FString& OutError);
	bool LoadSoftObjectPaths(FString& OutError);
	bool LoadImportsAndExports(FString& OutError);
	bool CheckExports(FString& OutError) const;
	bool CheckValues(FString& OutError) const;
	bool CheckEndOfFile(FString& OutError) const;
	void LoadDependencies();
	void LoadSoftPackageReferences();
	void LoadMetaData();
	void EndTable(EPackageSection Section);
	void WarnOfMissingImport(int32 ImportIndex, const FString& Path);
	bool BeginTable(int32 Count, int32 Offset, int64 MinEntryBytes, const TCHAR* What, FString& OutError);
	UClass* FindExportClass(int32 ExportIndex);
	UObject* FindOuterOfExport(int32 ExportIndex);
	UObject* MakeExportObject(int32 ExportIndex, UClass* Class, UObject* Outer);
	UObject* FindImportInPackage(int32 ImportIndex, const FString& Path);
	void ReadExport(int32 ExportIndex);
	void NoteUnreadExport(int32 ExportIndex);

	TUniquePtr<FPackageBytes> File;
	/** The file's bytes where they are all in memory: most reads are of a few bytes, and need no more than this. */
	const uint8* WholeFile = nullptr;
	uint64 Id;
	int64 Position = 0;
	/** Reads end here: the file's end, or that of the export being read. */
	int64 Limit = 0;
	int64 ErrorPosition = -1;
	TArray<FString> Errors;
	/** Exports being created at present, to end circles. */
	TSet<int32> ExportsInCreation;
	TSet<int32> ReadExports;
	TSet<int32> ImportsInCreation;
	TMap<FWeakObjectPtr, TArray<uint8>> UnreadTails;
	TSet<FWeakObjectPtr> OpaqueObjects;
	TMap<FLink, FWeakObjectPtr> KeptLinks;
	TMap<uint8, int64> TableEnds;
	/** Places of objects and paths in the export table, so that neither is looked for one by one. */
	TMap<const UObject*, int32> ExportsByObject;
	mutable TMap<FString, int32> ExportsByPath;
	/** By export; an object that is gone has none. */
	TMap<int32, uint64> Fingerprints;
	uint64 MetaDataFingerprint = 0;
	TMap<FWeakObjectPtr, TMap<FName, FString>> TagsAsLoaded;
	int64 MemoryLeft = 0;
	bool bHasKeptBytes = false;
};
