#include "ConstructedPackage.h"

#include <algorithm>

namespace
{
constexpr uint32_t PackageTag = 0x9E2A83C1u;
constexpr uint64_t PayloadHeaderTag = 0xD1C43B2E80A5F697ull;
constexpr uint64_t PayloadFooterTag = 0x29BFCA045138DE76ull;
constexpr size_t HashBytes = 20;
constexpr size_t GuidBytes = 16;
}

int32_t FConstructedPackage::MapName(const std::string& Name)
{
	const auto Found = std::find(Names.begin(), Names.end(), Name);
	if (Found == Names.end())
	{
		Names.push_back(Name);
		return int32_t(Names.size()) - 1;
	}
	return int32_t(Found - Names.begin());
}

void FConstructedPackage::PutText(FBytes& Out, const std::string& Text)
{
	Put<int32_t>(Out, Text.empty() ? 0 : int32_t(Text.size()) + 1);
	Out.insert(Out.end(), Text.begin(), Text.end());
	if (!Text.empty())
	{
		Out.push_back(0);
	}
}

void FConstructedPackage::PutName(FBytes& Out, const std::string& Name)
{
	Put<int32_t>(Out, MapName(Name));
	Put<int32_t>(Out, 0);
}

FConstructedPackage::FBytes FConstructedPackage::MakeEmptyValue()
{
	FBytes Value;
	Put<uint8_t>(Value, 0);
	PutName(Value, "None");
	Put<uint32_t>(Value, 0);
	return Value;
}

int32_t FConstructedPackage::AddClass(const std::string& Package, const std::string& Name)
{
	Imports.push_back({"/Script/CoreUObject", "Package", 0, Package});
	Imports.push_back({"/Script/CoreUObject", "Class", -int32_t(Imports.size()), Name});
	return -int32_t(Imports.size());
}

int32_t FConstructedPackage::AddObject(int32_t Class, const std::string& Name, int32_t Outer)
{
	FExport& Export = Exports.emplace_back();
	Export.Class = Class;
	Export.Outer = Outer;
	Export.Name = Name;
	Export.Value = MakeEmptyValue();
	return int32_t(Exports.size());
}

void FConstructedPackage::PutTable(FBytes& Out, const std::string& Name, size_t Count)
{
	Places[Name + " count"] = Out.size();
	Put<int32_t>(Out, int32_t(Count));
	PutOffset<int32_t>(Out, Name);
}

void FConstructedPackage::PutSummary(FBytes& Out)
{
	Put<uint32_t>(Out, PackageTag);
	for (const int32_t Number : {-9, 864, 522, 1017, 0})
	{
		Put<int32_t>(Out, Number);
	}
	Out.insert(Out.end(), HashBytes, 0);
	PutOffset<int32_t>(Out, "header size");
	Put<int32_t>(Out, int32_t(CustomVersions.size()));
	for (const FCustomVersion& Version : CustomVersions)
	{
		for (const uint32_t Word : Version.Id)
		{
			Put(Out, Word);
		}
		Put(Out, Version.Version);
	}
	PutText(Out, "/Constructed/Package");
	Put<uint32_t>(Out, 0);
	PutTable(Out, "names", Names.size());
	PutTable(Out, "soft paths", 0);
	PutText(Out, "");
	PutTable(Out, "texts", 0);
	PutTable(Out, "exports", Exports.size());
	PutTable(Out, "imports", Imports.size());
	PutTable(Out, "cell exports", 0);
	PutTable(Out, "cell imports", 0);
	PutOffset<int32_t>(Out, "metadata");
	PutOffset<int32_t>(Out, "depends");
	PutTable(Out, "soft references", SoftReferences.size());
	PutOffset<int32_t>(Out, "searchable names");
	PutOffset<int32_t>(Out, "thumbnails");
	Out.insert(Out.end(), GuidBytes, 1);
	Put<int32_t>(Out, 0);
	for (int32_t Version = 0; Version < 2; ++Version)
	{
		for (const uint16_t Part : {5, 6, 0})
		{
			Put<uint16_t>(Out, Part);
		}
		Put<uint32_t>(Out, 0);
		PutText(Out, "constructed");
	}
	// Compression, chunks, source, packages to cook.
	for (int32_t Field = 0; Field < 4; ++Field)
	{
		Put<int32_t>(Out, 0);
	}
	PutOffset<int32_t>(Out, "registry data");
	PutOffset<int64_t>(Out, "bulk data");
	Put<int32_t>(Out, 0);
	Put<int32_t>(Out, 0);
	PutTable(Out, "preload dependencies", PreloadDependencies.size());
	Put<int32_t>(Out, int32_t(Names.size()));
	PutOffset<int64_t>(Out, "payload index");
	if (DataResources.empty())
	{
		Put<int32_t>(Out, -1);
	}
	else
	{
		PutOffset<int32_t>(Out, "data resources");
	}
}

void FConstructedPackage::PutExports(FBytes& Out)
{
	int64_t Offset = Offsets["values"];
	for (size_t Index = 0; Index < Exports.size(); ++Index)
	{
		const FExport& Export = Exports[Index];
		const std::string Prefix = "export " + std::to_string(Index) + " ";
		const std::pair<const char*, int32_t> References[] = {
			{"class", Export.Class}, {"super", Export.Super}, {"template", Export.Template}, {"outer", Export.Outer}};
		for (const auto& [Field, Value] : References)
		{
			Places[Prefix + Field] = Out.size();
			Put<int32_t>(Out, Value);
		}
		Places[Prefix + "name"] = Out.size();
		PutName(Out, Export.Name);
		Put<uint32_t>(Out, Export.Flags);
		Places[Prefix + "size"] = Out.size();
		Put<int64_t>(Out, int64_t(Export.Value.size()));
		Places[Prefix + "offset"] = Out.size();
		Put<int64_t>(Out, Offset);
		Offset += int64_t(Export.Value.size());
		// Forced, not for client, not for server, inherited, package flags, always loaded, asset, public hash.
		for (const uint32_t Flag : {0u, 0u, 0u, 0u, 0u, 1u, Index == 0 ? 1u : 0u, 0u})
		{
			Put<uint32_t>(Out, Flag);
		}
		for (const int32_t Dependency : Export.Preload)
		{
			Put<int32_t>(Out, Dependency);
		}
		Put<int64_t>(Out, 0);
		Put<int64_t>(Out, 0);
	}
}

void FConstructedPackage::PutRegistryData(FBytes& Out)
{
	Begin(Out, "registry data");
	Put<int64_t>(Out, int64_t(Out.size() + sizeof(int64_t) + sizeof(int32_t)));
	Put<int32_t>(Out, 0);
	for (const size_t NumBits : {Imports.size(), SoftReferences.size()})
	{
		Put<int32_t>(Out, int32_t(NumBits));
		for (size_t Word = 0; Word < (NumBits + 31) / 32; ++Word)
		{
			Put<uint32_t>(Out, ~0u);
		}
	}
	Put<int32_t>(Out, 0);
}

void FConstructedPackage::PutTables(FBytes& Out)
{
	Begin(Out, "names");
	for (const std::string& Name : Names)
	{
		PutText(Out, Name);
		Put<uint32_t>(Out, 0);
	}
	Begin(Out, "soft paths");
	Begin(Out, "metadata");
	Put<int64_t>(Out, 0);
	Begin(Out, "texts");
	Begin(Out, "imports");
	for (size_t Index = 0; Index < Imports.size(); ++Index)
	{
		PutName(Out, Imports[Index].ClassPackage);
		PutName(Out, Imports[Index].Class);
		Places["import " + std::to_string(Index) + " outer"] = Out.size();
		Put<int32_t>(Out, Imports[Index].Outer);
		PutName(Out, Imports[Index].Name);
		PutName(Out, "None");
		Put<uint32_t>(Out, 0);
	}
	Begin(Out, "exports");
	PutExports(Out);
	Begin(Out, "cell exports");
	Begin(Out, "cell imports");
	Begin(Out, "depends");
	Places["first depends count"] = Out.size();
	Out.insert(Out.end(), Exports.size() * sizeof(int32_t), 0);
	Begin(Out, "soft references");
	for (const std::string& Reference : SoftReferences)
	{
		PutName(Out, Reference);
	}
	Begin(Out, "searchable names");
	Put<int32_t>(Out, 0);
	Begin(Out, "thumbnails");
	Places["thumbnail count"] = Out.size();
	Put<int32_t>(Out, 0);
	PutRegistryData(Out);
	Begin(Out, "preload dependencies");
	for (const int32_t Dependency : PreloadDependencies)
	{
		Put<int32_t>(Out, Dependency);
	}
	Begin(Out, "data resources");
	if (!DataResources.empty())
	{
		Put<uint32_t>(Out, 1);
		Places["data resource count"] = Out.size();
		Put<int32_t>(Out, int32_t(DataResources.size()));
	}
	for (const FDataResource& Resource : DataResources)
	{
		Put(Out, Resource.Flags);
		Put(Out, Resource.Offset);
		Put(Out, Resource.DuplicateOffset);
		Put(Out, Resource.Size);
		Put(Out, Resource.RawSize);
		Put(Out, Resource.Outer);
		Put(Out, Resource.BulkDataFlags);
	}
}

void FConstructedPackage::PutPayloadIndex(FBytes& Out)
{
	constexpr size_t HeaderBytes = 28;
	constexpr size_t EntryBytes = 49;
	Begin(Out, "payload index");
	Put<uint64_t>(Out, PayloadHeaderTag);
	Put<int32_t>(Out, 1);
	const uint32_t IndexBytes = uint32_t(HeaderBytes + Payloads.size() * EntryBytes);
	Put<uint32_t>(Out, IndexBytes);
	Put<uint64_t>(Out, PayloadData.size());
	Places["payload count"] = Out.size();
	Put<int32_t>(Out, int32_t(Payloads.size()));
	for (const FPayload& Payload : Payloads)
	{
		Out.insert(Out.end(), HashBytes, Payload.IdByte);
		Put(Out, Payload.Offset);
		Put(Out, Payload.CompressedSize);
		Put(Out, Payload.RawSize);
		Put<uint16_t>(Out, 0);
		Put<uint16_t>(Out, 0);
		Put<uint8_t>(Out, 0);
	}
	Out.insert(Out.end(), PayloadData.begin(), PayloadData.end());
	Put<uint64_t>(Out, PayloadFooterTag);
	Put<uint64_t>(Out, IndexBytes + PayloadData.size() + sizeof(uint64_t) * 2 + sizeof(uint32_t));
	Put<uint32_t>(Out, PackageTag);
}

FConstructedPackage::FBytes FConstructedPackage::Build()
{
	FBytes Out;
	// The first time finds the names and the offsets, the second has the offsets, the third those behind a longer table of names.
	for (int32_t Round = 0; Round < 3; ++Round)
	{
		Out.clear();
		PutSummary(Out);
		PutTables(Out);
		Offsets["header size"] = int64_t(Out.size());
		Begin(Out, "values");
		for (const FExport& Export : Exports)
		{
			Out.insert(Out.end(), Export.Value.begin(), Export.Value.end());
		}
		Begin(Out, "bulk data");
		Out.insert(Out.end(), BulkData.begin(), BulkData.end());
		PutPayloadIndex(Out);
	}
	BulkDataOffset = Offsets["bulk data"];
	PayloadIndexOffset = Offsets["payload index"];
	return Out;
}
