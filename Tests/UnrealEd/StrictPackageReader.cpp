#include "StrictPackageReader.h"

#include <cstring>

namespace
{
constexpr uint32_t PackageTag = 0x9E2A83C1u;
constexpr int32_t LegacyVersion = -9;
constexpr int32_t Version3 = 864;
constexpr int32_t Version4 = 522;
constexpr int32_t Version5 = 1017;
constexpr uint64_t PayloadHeader = 0xD1C43B2E80A5F697ull;
constexpr uint64_t PayloadFooter = 0x29BFCA045138DE76ull;
}

template <typename Type>
Type FStrictPackageReader::Get()
{
	Type Value{};
	if (Position < 0 || Position + int64_t(sizeof(Type)) > int64_t(Bytes.size()))
	{
		Complain("the file ends");
		return Value;
	}
	std::memcpy(&Value, Bytes.data() + Position, sizeof(Type));
	Position += sizeof(Type);
	return Value;
}

void FStrictPackageReader::Complain(const std::string& What)
{
	if (Problem.empty())
	{
		Problem = What + " at " + std::to_string(Position);
	}
}

void FStrictPackageReader::Expect(const char* What, int64_t Offset)
{
	if (Position != Offset)
	{
		Complain(std::string(What) + " should be at " + std::to_string(Offset) + ", the reader is");
	}
}

void FStrictPackageReader::Skip(int64_t NumBytes)
{
	Position += NumBytes;
}

std::string FStrictPackageReader::GetText()
{
	const int32_t Length = Get<int32_t>();
	std::string Text;
	for (int32_t Index = 0; Index < (Length < 0 ? -Length : Length) && Problem.empty(); ++Index)
	{
		Text.push_back(Length < 0 ? char(Get<uint16_t>()) : Get<char>());
	}
	if (Length != 0 && (Text.empty() || Text.back() != 0))
	{
		Complain("a text without its end");
	}
	return Text.substr(0, Text.empty() ? 0 : Text.size() - 1);
}

std::string FStrictPackageReader::GetName()
{
	const int32_t Index = Get<int32_t>();
	const int32_t Number = Get<int32_t>();
	if (Index < 0 || Index >= int32_t(Names.size()) || Number < 0)
	{
		Complain("a name that the table does not have");
		return {};
	}
	return Number == 0 ? Names[size_t(Index)] : Names[size_t(Index)] + "_" + std::to_string(Number - 1);
}

FStrictPackageReader::FTable FStrictPackageReader::GetTable()
{
	FTable Table;
	Table.Count = Get<int32_t>();
	Table.Offset = Get<int32_t>();
	return Table;
}

void FStrictPackageReader::CheckReference(const char* What, int32_t Index)
{
	if (Index > int32_t(ExportTable.Count) || -Index > int32_t(ImportTable.Count))
	{
		Complain(std::string(What) + " is entry " + std::to_string(Index) + ", which no table has,");
	}
}

void FStrictPackageReader::ReadSummary()
{
	const bool bIsNewest = Get<uint32_t>() == PackageTag && Get<int32_t>() == LegacyVersion && Get<int32_t>() == Version3 &&
		Get<int32_t>() == Version4 && Get<int32_t>() == Version5 && Get<int32_t>() == 0;
	if (!bIsNewest)
	{
		Complain("another version");
		return;
	}
	constexpr int64_t HashBytes = 20;
	constexpr int64_t CustomVersionBytes = 20;
	Skip(HashBytes);
	HeaderSize = Get<int32_t>();
	Skip(Get<int32_t>() * CustomVersionBytes);
	PackageName = GetText();
	Get<uint32_t>();
	NameTable = GetTable();
	SoftPathTable = GetTable();
	GetText();
	TextTable = GetTable();
	ExportTable = GetTable();
	ImportTable = GetTable();
	CellExportTable = GetTable();
	CellImportTable = GetTable();
	MetaDataOffset = Get<int32_t>();
	DependsOffset = Get<int32_t>();
	SoftReferenceTable = GetTable();
	SearchableNamesOffset = Get<int32_t>();
	ThumbnailOffset = Get<int32_t>();
	ReadOrigin();
}

void FStrictPackageReader::ReadOrigin()
{
	constexpr int64_t GuidBytes = 16;
	Skip(GuidBytes);
	const int32_t NumGenerations = Get<int32_t>();
	for (int32_t Index = 0; Index < NumGenerations && Problem.empty(); ++Index)
	{
		const int32_t NumExports = Get<int32_t>();
		const int32_t NumNames = Get<int32_t>();
		if (Index + 1 == NumGenerations && (NumExports != ExportTable.Count || NumNames != NameTable.Count))
		{
			Complain("the last generation is not this file's");
		}
	}
	constexpr int64_t NumberBytes = 10;
	for (int32_t Version = 0; Version < 2; ++Version)
	{
		Skip(NumberBytes);
		GetText();
	}
	const uint32_t CompressionFlags = Get<uint32_t>();
	const int32_t NumChunks = Get<int32_t>();
	Get<uint32_t>();
	const int32_t NumPackagesToCook = Get<int32_t>();
	RegistryOffset = Get<int32_t>();
	BulkDataOffset = Get<int64_t>();
	const int32_t TileOffset = Get<int32_t>();
	const int32_t NumChunkIds = Get<int32_t>();
	PreloadTable = GetTable();
	NumNamesOfValues = Get<int32_t>();
	PayloadIndexOffset = Get<int64_t>();
	Get<int32_t>();
	if (CompressionFlags != 0 || NumChunks != 0 || NumPackagesToCook != 0 || TileOffset != 0 || NumChunkIds != 0)
	{
		Complain("the summary has parts that no package here has");
	}
}

void FStrictPackageReader::ReadNames()
{
	Expect("the table of names", NameTable.Offset);
	for (int32_t Index = 0; Index < NameTable.Count && Problem.empty(); ++Index)
	{
		Names.push_back(GetText());
		const uint16_t WithoutCase = Get<uint16_t>();
		NameHashes.emplace_back(WithoutCase, Get<uint16_t>());
	}
	if (NumNamesOfValues < 0 || NumNamesOfValues > NameTable.Count)
	{
		Complain("more names in values than there are");
	}
}

void FStrictPackageReader::ReadSoftPaths()
{
	Expect("the table of soft paths", SoftPathTable.Offset);
	for (int32_t Index = 0; Index < SoftPathTable.Count && Problem.empty(); ++Index)
	{
		GetName();
		GetName();
		// The path within the asset is UTF-8 without an end of its own.
		Skip(Get<int32_t>());
	}
}

void FStrictPackageReader::ReadMetaData()
{
	Expect("the metadata", MetaDataOffset);
	const int32_t NumObjects = Get<int32_t>();
	const int32_t NumOfPackage = Get<int32_t>();
	const auto ReadValues = [this](int32_t Count)
	{
		for (int32_t Index = 0; Index < Count && Problem.empty(); ++Index)
		{
			GetName();
			GetText();
		}
	};
	for (int32_t Index = 0; Index < NumObjects && Problem.empty(); ++Index)
	{
		CheckReference("an owner of metadata", Get<int32_t>());
		ReadValues(Get<int32_t>());
	}
	ReadValues(NumOfPackage);
	if (TextTable.Count != 0)
	{
		Complain("gathered texts");
	}
}

void FStrictPackageReader::ReadImports()
{
	Expect("the table of imports", ImportTable.Offset);
	for (int32_t Index = 0; Index < ImportTable.Count && Problem.empty(); ++Index)
	{
		GetName();
		const std::string Class = GetName();
		CheckReference("an import's outer", Get<int32_t>());
		Imports.push_back(Class + " " + GetName());
		GetName();
		Get<int32_t>();
	}
}

void FStrictPackageReader::ReadExports()
{
	Expect("the table of exports", ExportTable.Offset);
	for (int32_t Index = 0; Index < ExportTable.Count && Problem.empty(); ++Index)
	{
		FExport& Export = Exports.emplace_back();
		Export.Class = Get<int32_t>();
		CheckReference("an export's class", Export.Class);
		CheckReference("an export's super", Get<int32_t>());
		CheckReference("an export's template", Get<int32_t>());
		Export.Outer = Get<int32_t>();
		CheckReference("an export's outer", Export.Outer);
		Export.Name = GetName();
		Get<uint32_t>();
		Export.Size = Get<int64_t>();
		Export.Offset = Get<int64_t>();
		for (const char* const Flag : {"forced", "not for client", "not for server", "inherited"})
		{
			if (Get<uint32_t>() > 1)
			{
				Complain(std::string("the flag '") + Flag + "' is neither set nor clear");
			}
		}
		Get<uint32_t>();
		Get<uint32_t>();
		Export.bIsAsset = Get<uint32_t>() == 1;
		Get<uint32_t>();
		constexpr int32_t NumDependencyFields = 5;
		Skip(NumDependencyFields * int64_t(sizeof(int32_t)));
		const int64_t ScriptStart = Get<int64_t>();
		Export.ScriptEnd = Get<int64_t>();
		if (ScriptStart < 0 || Export.ScriptEnd < ScriptStart || Export.ScriptEnd > Export.Size)
		{
			Complain("the properties of " + Export.Name + " are not within its bytes");
		}
		// Whether it has a GUID; a class's own default object says so too.
		constexpr int64_t GuidFlagBytes = 4;
		if (Export.Size - Export.ScriptEnd < GuidFlagBytes)
		{
			Complain(Export.Name + " ends with its properties");
		}
	}
	Expect("the cells", CellExportTable.Offset);
	Expect("the cells", CellImportTable.Offset);
}

void FStrictPackageReader::ReadDepends()
{
	Expect("the table of dependencies", DependsOffset);
	for (int32_t Index = 0; Index < ExportTable.Count && Problem.empty(); ++Index)
	{
		for (int32_t Left = Get<int32_t>(); Left > 0 && Problem.empty(); --Left)
		{
			CheckReference("a dependency", Get<int32_t>());
		}
	}
	Expect("the table of soft references", SoftReferenceTable.Offset);
	for (int32_t Index = 0; Index < SoftReferenceTable.Count && Problem.empty(); ++Index)
	{
		GetName();
	}
	Expect("the searchable names", SearchableNamesOffset);
	if (Get<int32_t>() != 0)
	{
		Complain("searchable names");
	}
}

void FStrictPackageReader::ReadRegistryData()
{
	// Images stand before their table, which names their offsets.
	Position = ThumbnailOffset;
	for (int32_t Left = Get<int32_t>(); Left > 0 && Problem.empty(); --Left)
	{
		GetText();
		GetText();
		Get<int32_t>();
	}
	Expect("the registry's data", RegistryOffset);
	const int64_t FlagsOffset = Get<int64_t>();
	const int32_t NumAssets = Get<int32_t>();
	for (int32_t Index = 0; Index < NumAssets && Problem.empty(); ++Index)
	{
		FAsset& Asset = Assets.emplace_back();
		Asset.Path = GetText();
		Asset.Class = GetText();
		for (int32_t Left = Get<int32_t>(); Left > 0 && Problem.empty(); --Left)
		{
			Asset.Tags.push_back(GetText());
			GetText();
		}
	}
	Expect("the flags of dependencies", FlagsOffset);
	ReadDependencyFlags();
}

void FStrictPackageReader::ReadDependencyFlags()
{
	constexpr int32_t BitsOfWord = 32;
	for (const int32_t Expected : {ImportTable.Count, SoftReferenceTable.Count})
	{
		const int32_t NumBits = Get<int32_t>();
		if (NumBits != Expected)
		{
			Complain("flags for another number of dependencies");
			return;
		}
		Skip((NumBits + BitsOfWord - 1) / BitsOfWord * int64_t(sizeof(uint32_t)));
	}
	for (int32_t Left = Get<int32_t>(); Left > 0 && Problem.empty(); --Left)
	{
		GetName();
		Get<uint32_t>();
	}
	Expect("the preload dependencies", PreloadTable.Offset);
}

void FStrictPackageReader::ReadValues()
{
	Expect("the end of the header", HeaderSize);
	for (const FExport& Export : Exports)
	{
		Expect(Export.Name.c_str(), Export.Offset);
		Skip(Export.Size);
	}
	Expect("the bulk data", BulkDataOffset);
	if (Get<uint32_t>() != PackageTag)
	{
		Complain("no tag behind the values");
	}
}

void FStrictPackageReader::ReadPayloadIndex()
{
	Expect("the index of payloads", PayloadIndexOffset);
	const int64_t Start = Position;
	const uint64_t Header = Get<uint64_t>();
	const int32_t Version = Get<int32_t>();
	const uint32_t HeaderBytes = Get<uint32_t>();
	const uint64_t PayloadBytes = Get<uint64_t>();
	const int32_t NumPayloads = Get<int32_t>();
	if (Header != PayloadHeader || Version != 2 || NumPayloads != 0 || PayloadBytes != 0)
	{
		Complain("the index of payloads is damaged");
	}
	Expect("the end of its header", Start + HeaderBytes);
	const uint64_t Footer = Get<uint64_t>();
	const uint64_t IndexBytes = Get<uint64_t>();
	const uint32_t Tag = Get<uint32_t>();
	if (Footer != PayloadFooter || Position - Start != int64_t(IndexBytes) || Tag != PackageTag)
	{
		Complain("the file's closing words are wrong");
	}
	Expect("the end of the file", int64_t(Bytes.size()));
}

std::string FStrictPackageReader::Read()
{
	for (void (FStrictPackageReader::*const Step)() :
		{&FStrictPackageReader::ReadSummary, &FStrictPackageReader::ReadNames, &FStrictPackageReader::ReadSoftPaths,
			&FStrictPackageReader::ReadMetaData, &FStrictPackageReader::ReadImports, &FStrictPackageReader::ReadExports,
			&FStrictPackageReader::ReadDepends, &FStrictPackageReader::ReadRegistryData, &FStrictPackageReader::ReadValues,
			&FStrictPackageReader::ReadPayloadIndex})
	{
		if (Problem.empty())
		{
			(this->*Step)();
		}
	}
	return Problem;
}
