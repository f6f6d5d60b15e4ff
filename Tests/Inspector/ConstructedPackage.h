#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

/**
 * Writes packages of the form of engine 5.6 byte by byte, sharing no code with the linker: with tables that no sample has, and with
 * whatever a hostile hand might put into them.
 */
class FConstructedPackage
{
public:
	using FBytes = std::vector<uint8_t>;

	struct FImport
	{
		std::string ClassPackage;
		std::string Class;
		int32_t Outer = 0;
		std::string Name;
	};
	struct FExport
	{
		int32_t Class = 0;
		int32_t Super = 0;
		int32_t Template = 0;
		int32_t Outer = 0;
		std::string Name;
		uint32_t Flags = 1;
		FBytes Value;
		/** First of its preload dependencies and how many of each of the four kinds. */
		int32_t Preload[5] = {-1, 0, 0, 0, 0};
	};
	struct FDataResource
	{
		uint32_t Flags = 0;
		int64_t Offset = 0;
		int64_t DuplicateOffset = -1;
		int64_t Size = 0;
		int64_t RawSize = 0;
		int32_t Outer = 0;
		uint32_t BulkDataFlags = 0;
	};
	struct FPayload
	{
		uint8_t IdByte = 0;
		int64_t Offset = 0;
		int64_t CompressedSize = 0;
		int64_t RawSize = 0;
	};

	/** Four words of an id and a number. */
	struct FCustomVersion
	{
		uint32_t Id[4];
		int32_t Version;
	};

	std::vector<FCustomVersion> CustomVersions;
	std::vector<FImport> Imports;
	std::vector<FExport> Exports;
	std::vector<std::string> SoftReferences;
	std::vector<int32_t> PreloadDependencies;
	std::vector<FDataResource> DataResources;
	std::vector<FPayload> Payloads;
	/** Behind the values: where data resources lie. */
	FBytes BulkData;
	/** Behind the index of payloads. */
	FBytes PayloadData;

	/** An import of a class, with its package; answers its index in references. */
	int32_t AddClass(const std::string& Package, const std::string& Name);
	/** An object without properties; answers its index in references. */
	int32_t AddObject(int32_t Class, const std::string& Name, int32_t Outer = 0);
	/** The name's place in the table, which grows when it is new. */
	int32_t MapName(const std::string& Name);

	/** The file. Places then tells where fields stand in it that tests overwrite. */
	FBytes Build();
	/** "name count", "export 0 outer", "export 0 offset", "import 0 outer", "preload count" and the like. */
	std::map<std::string, size_t> Places;
	/** Where the bulk data begins. */
	int64_t BulkDataOffset = 0;
	int64_t PayloadIndexOffset = 0;

	/** Overwrites a number in a file that was built. */
	template <typename Type>
	void Patch(FBytes& File, const std::string& Place, Type Value) const
	{
		const uint8_t* const Begin = reinterpret_cast<const uint8_t*>(&Value);
		std::copy(Begin, Begin + sizeof(Type), File.begin() + ptrdiff_t(Places.at(Place)));
	}

	// Parts of values.
	template <typename Type>
	static void Put(FBytes& Out, Type Value)
	{
		const uint8_t* const Begin = reinterpret_cast<const uint8_t*>(&Value);
		Out.insert(Out.end(), Begin, Begin + sizeof(Type));
	}
	static void PutText(FBytes& Out, const std::string& Text);
	void PutName(FBytes& Out, const std::string& Name);
	/** No properties, and no GUID. */
	FBytes MakeEmptyValue();

private:
	void PutSummary(FBytes& Out);
	void PutTable(FBytes& Out, const std::string& Name, size_t Count);
	void PutTables(FBytes& Out);
	void PutExports(FBytes& Out);
	void PutRegistryData(FBytes& Out);
	void PutPayloadIndex(FBytes& Out);
	/** A field whose value is known when the file is laid out: the offsets found the first time. */
	template <typename Type>
	void PutOffset(FBytes& Out, const std::string& Place)
	{
		Places[Place] = Out.size();
		Put<Type>(Out, Type(Offsets[Place]));
	}
	/** Notes where something begins. */
	void Begin(const FBytes& Out, const std::string& Place) { Offsets[Place] = int64_t(Out.size()); }

	std::vector<std::string> Names;
	std::map<std::string, int64_t> Offsets;
};
