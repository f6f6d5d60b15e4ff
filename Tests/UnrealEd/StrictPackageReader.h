#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

/**
 * A second reader of the package form of engine 5.6, which shares no code with the loader: it goes through a file once, from its
 * first byte to its last, and wants every table to end where the next begins.
 */
class FStrictPackageReader
{
public:
	explicit FStrictPackageReader(const std::vector<uint8_t>& InBytes)
		: Bytes(InBytes)
	{
	}

	/** What is wrong and where; empty when the whole file is as it should be. */
	std::string Read();

	struct FExport
	{
		std::string Name;
		int32_t Class = 0;
		int32_t Outer = 0;
		int64_t Size = 0;
		int64_t Offset = 0;
		int64_t ScriptEnd = 0;
		bool bIsAsset = false;
	};
	struct FAsset
	{
		std::string Path;
		std::string Class;
		std::vector<std::string> Tags;
	};
	std::string PackageName;
	std::vector<std::string> Names;
	/** Of each name, without regard to case and with it. */
	std::vector<std::pair<uint16_t, uint16_t>> NameHashes;
	std::vector<std::string> Imports;
	std::vector<FExport> Exports;
	std::vector<FAsset> Assets;

private:
	/** An offset of 0 or a count of 0 for tables that are not there. */
	struct FTable
	{
		int32_t Count = 0;
		int32_t Offset = 0;
	};

	template <typename Type>
	Type Get();
	std::string GetText();
	std::string GetName();
	FTable GetTable();
	void Skip(int64_t NumBytes);
	/** Complains unless the reader stands there. */
	void Expect(const char* What, int64_t Offset);
	void Complain(const std::string& What);
	void ReadSummary();
	void ReadOrigin();
	void ReadNames();
	void ReadSoftPaths();
	void ReadMetaData();
	void ReadImports();
	void ReadExports();
	void ReadDepends();
	void ReadRegistryData();
	void ReadDependencyFlags();
	void ReadValues();
	void ReadPayloadIndex();
	void CheckReference(const char* What, int32_t Index);

	const std::vector<uint8_t>& Bytes;
	int64_t Position = 0;
	std::string Problem;

	int32_t HeaderSize = 0;
	FTable NameTable, SoftPathTable, TextTable, ExportTable, ImportTable, CellExportTable, CellImportTable, SoftReferenceTable,
		PreloadTable;
	int32_t MetaDataOffset = 0;
	int32_t DependsOffset = 0;
	int32_t SearchableNamesOffset = 0;
	int32_t ThumbnailOffset = 0;
	int32_t RegistryOffset = 0;
	int64_t BulkDataOffset = 0;
	int64_t PayloadIndexOffset = 0;
	int32_t NumNamesOfValues = 0;
};
