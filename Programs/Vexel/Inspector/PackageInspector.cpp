#include "PackageInspector.h"

#include "Dom/JsonObject.h"
#include "Dom/JsonValue.h"
#include "NativeDataReader.h"
#include "PackageValues.h"
#include "TaggedValueReader.h"
#include "TypeDefinitionReader.h"
#include "UObject/PackageSections.h"

namespace
{
using FValues = TArray<TSharedPtr<FJsonValue>>;

TSharedPtr<FJsonValue> MakeText(const FString& Text)
{
	return MakeShared<FJsonValueString>(Text);
}

template <typename Type, typename Function>
FValues Map(const TArray<Type>& Items, Function&& Make)
{
	FValues Values;
	Values.Reserve(Items.Num());
	for (const Type& Item : Items)
	{
		Values.Add(Make(Item));
	}
	return Values;
}

/** A list of objects, each filled in by a function. */
template <typename Type, typename Function>
FValues MapObjects(const TArray<Type>& Items, Function&& Fill)
{
	return Map(Items, [&Fill](const Type& Item)
		{
			const TSharedRef<FJsonObject> Object = MakeShared<FJsonObject>();
			Fill(*Object, Item);
			return TSharedPtr<FJsonValue>(MakeShared<FJsonValueObject>(Object)); });
}

/** Adds a list unless it is empty: most packages have few of them. */
void AddList(FJsonObject& Document, const TCHAR* Name, FValues&& Values)
{
	if (!Values.IsEmpty())
	{
		Document.SetArrayField(Name, MoveTemp(Values));
	}
}

class FInspection
{
public:
	FInspection(FLinkerLoad& InLinker, FJsonObject& InDocument, TArray<FString>& InErrors)
		: Linker(InLinker)
		, Values(InLinker)
		, Document(InDocument)
		, Errors(InErrors)
	{
	}

	void Run()
	{
		Errors.Append(Linker.GetErrors());
		AddSummary();
		AddTables();
		AddExports();
		AddThumbnails();
		AddAssetRegistry();
		AddTexts();
		AddMetaData();
		AddBulkData();
		AddSections();
	}

private:
	void AddSummary()
	{
		const FPackageFileSummary& Summary = Linker.Summary;
		Document.SetNumberField(TEXT("file_size"), double(Linker.GetFileSize()));
		Document.SetStringField(TEXT("package_name"), Summary.PackageName);
		Document.SetStringField(TEXT("engine_version"), Summary.SavedByEngineVersion.ToString());
		Document.SetStringField(TEXT("compatible_engine_version"), Summary.CompatibleWithEngineVersion.ToString());
		Document.SetNumberField(TEXT("file_version_ue4"), Summary.GetFileVersionUE().FileVersionUE4);
		Document.SetNumberField(TEXT("file_version_ue5"), Summary.GetFileVersionUE().FileVersionUE5);
		Document.SetNumberField(TEXT("file_version_licensee"), Summary.FileVersionLicenseeUE);
		Document.SetBoolField(TEXT("unversioned"), Summary.bUnversioned);
		Document.SetStringField(TEXT("package_flags"), FString::Printf(TEXT("0x%08x"), Summary.PackageFlags));
		Document.SetNumberField(TEXT("header_size"), Summary.TotalHeaderSize);
		if (Linker.UEVer() >= EUnrealEngineObjectUE5Version::PACKAGE_SAVED_HASH)
		{
			Document.SetStringField(TEXT("saved_hash"), BytesToHexLower(Summary.SavedHash, sizeof(Summary.SavedHash)));
		}
		else
		{
			Document.SetStringField(TEXT("guid"), Summary.Guid.ToString());
		}
		Document.SetStringField(TEXT("persistent_guid"), Summary.PersistentGuid.ToString());
		Document.SetStringField(TEXT("localization_id"), Summary.LocalizationId);
		Document.SetArrayField(TEXT("custom_versions"), MapObjects(Summary.CustomVersions.GetAllVersions(), [](FJsonObject& Object, const FCustomVersion& Version)
															{
			Object.SetStringField(TEXT("guid"), Version.Key.ToString());
			Object.SetNumberField(TEXT("version"), Version.Version);
			FCustomVersion Known;
			if (FCurrentCustomVersions::Get(Version.Key, Known))
			{
				Object.SetStringField(TEXT("name"), Known.GetFriendlyName().ToString());
			} }));
	}

	void AddTables()
	{
		Document.SetArrayField(TEXT("names"), Map(Linker.NameMap, [](const FName& Name)
												  { return MakeText(Name.ToString()); }));
		int32 Index = 0;
		Document.SetArrayField(TEXT("imports"), MapObjects(Linker.ImportMap, [this, &Index](FJsonObject& Object, const FObjectImport& Import)
													{
			Object.SetStringField(TEXT("path"), Values.GetPath(FPackageIndex::FromImport(Index)));
			Object.SetStringField(TEXT("class"), Linker.GetImportClassPath(Index).ToString());
			if (!Import.PackageName.IsNone())
			{
				Object.SetStringField(TEXT("package"), Import.PackageName.ToString());
			}
			if (Import.bImportOptional)
			{
				Object.SetBoolField(TEXT("optional"), true);
			}
			++Index; }));
		AddList(Document, TEXT("soft_object_paths"), Map(Linker.SoftObjectPathList, [](const FSoftObjectPath& Path)
														 { return MakeText(Path.ToString()); }));
		AddList(Document, TEXT("soft_references"), Map(Linker.SoftPackageReferenceList, [](const FName& Name)
													   { return MakeText(Name.ToString()); }));
		AddList(Document, TEXT("preload_dependencies"), MakePaths(Linker.PreloadDependencies));
	}

	FValues MakePaths(const TArray<FPackageIndex>& Indices)
	{
		return Map(Indices, [this](FPackageIndex Index)
			{ return MakeText(Values.GetPath(Index)); });
	}

	void AddExports()
	{
		FValues Exports;
		FTaggedValueReader Reader(Values);
		for (int32 Index = 0; Index < Linker.ExportMap.Num(); ++Index)
		{
			Exports.Add(MakeShared<FJsonValueObject>(MakeExport(Index, Reader)));
		}
		Document.SetArrayField(TEXT("exports"), MoveTemp(Exports));
	}

	TSharedRef<FJsonObject> MakeExport(int32 Index, FTaggedValueReader& Reader)
	{
		const FObjectExport& Entry = Linker.ExportMap[Index];
		const TSharedRef<FJsonObject> Export = MakeShared<FJsonObject>();
		Export->SetStringField(TEXT("path"), Values.GetPath(FPackageIndex::FromExport(Index)));
		Export->SetStringField(TEXT("class"), Linker.GetExportClassPath(Index).ToString());
		if (!Entry.SuperIndex.IsNull())
		{
			Export->SetStringField(TEXT("super"), Values.GetPath(Entry.SuperIndex));
		}
		if (!Entry.TemplateIndex.IsNull())
		{
			Export->SetStringField(TEXT("template"), Values.GetPath(Entry.TemplateIndex));
		}
		Export->SetNumberField(TEXT("offset"), double(Entry.SerialOffset));
		Export->SetNumberField(TEXT("size"), double(Entry.SerialSize));
		Export->SetStringField(TEXT("flags"), FString::Printf(TEXT("0x%08x"), static_cast<uint32>(Entry.ObjectFlags)));
		Export->SetBoolField(TEXT("is_asset"), Entry.bIsAsset);
		if (Linker.DependsMap.IsValidIndex(Index))
		{
			AddList(*Export, TEXT("depends"), MakePaths(Linker.DependsMap[Index]));
		}
		AddProperties(Index, *Export, Reader);
		return Export;
	}

	void AddProperties(int32 Index, FJsonObject& Export, FTaggedValueReader& Reader)
	{
		constexpr uint32 UnversionedProperties = 0x00002000;
		const FObjectExport& Entry = Linker.ExportMap[Index];
		if ((Linker.Summary.PackageFlags & UnversionedProperties) != 0 || Entry.SerialSize == 0)
		{
			// Values without names cannot be told from their bytes.
			Export.SetNumberField(TEXT("native_size"), double(Entry.SerialSize));
			return;
		}
		int64 Start = Entry.SerialOffset;
		const int64 End = Entry.SerialOffset + Entry.SerialSize;
		FValues Properties;
		int64 Reached = Start;
		SkipImportInfo(Index, Start, End);
		// Plain classes have no properties of their own.
		const bool bIsPlainClass = Entry.ClassIndex.IsNull();
		const bool bRead = bIsPlainClass || (SkipClassControl(Start, End) && Reader.ReadProperties(Start, End, Properties, Reached));
		if (!bRead)
		{
			AddDamage(TEXT("properties"), Index, Reached);
		}
		Export.SetArrayField(TEXT("properties"), MoveTemp(Properties));
		if (bRead)
		{
			AddNativeData(Index, Export, Reader, End, Reached);
		}
		Export.SetNumberField(TEXT("native_size"), double(End - Reached));
	}

	/** What the object's class has behind the properties. Reached goes on to where that ends. */
	void AddNativeData(int32 Index, FJsonObject& Export, FTaggedValueReader& Reader, int64 End, int64& Reached)
	{
		AddObjectGuid(Index, Export, End, Reached);
		if (!Linker.GetExportClassPath(Index).GetPackageName().ToString().StartsWith(TEXT("/Script/")))
		{
			return;
		}
		if (FTypeDefinitionReader::IsDefinition(Linker.GetExportClassName(Index)))
		{
			AddDefinition(Index, Export, End, Reached);
		}
		else if (!FNativeDataReader(Values, Reader).Read(Index, Reached, End, Export, Reached))
		{
			AddDamage(TEXT("native data"), Index, Reached);
		}
	}

	/** Every object says whether it has a GUID; but default objects in packages of the 4.x line say nothing. */
	void AddObjectGuid(int32 Index, FJsonObject& Export, int64 End, int64& Reached)
	{
		const bool bIsDefaultObject = (Linker.ExportMap[Index].ObjectFlags & RF_ClassDefaultObject) != 0;
		if (bIsDefaultObject && Linker.UEVer() < EUnrealEngineObjectUE5Version::INITIAL_VERSION)
		{
			return;
		}
		const FReadLimit Reads(Linker, Reached, End);
		if (Values.Read<bool>())
		{
			Export.SetStringField(TEXT("guid"), Values.Read<FGuid>().ToString());
		}
		Reached = Linker.IsError() ? Reached : Linker.Tell();
	}

	void AddDefinition(int32 Index, FJsonObject& Export, int64 End, int64& Reached)
	{
		const TSharedRef<FJsonObject> Definition = MakeShared<FJsonObject>();
		if (!FTypeDefinitionReader(Values).Read(Linker.GetExportClassName(Index), Reached, End, *Definition, Reached))
		{
			AddDamage(TEXT("members"), Index, Reached);
		}
		Export.SetObjectField(TEXT("definition"), Definition);
	}

	void AddDamage(const TCHAR* What, int32 Index, int64 Offset)
	{
		Errors.Add(FString::Printf(TEXT("the %s of export %d (%s) are damaged at offset %lld"), What, Index, *Linker.GetExportPathName(Index), static_cast<long long>(Offset)));
	}

	/** Data about an asset's source file, which its class writes before the properties. */
	void SkipImportInfo(int32 Index, int64& Start, int64 End)
	{
		if (!Linker.GetExportClassName(Index).ToString().EndsWith(TEXT("ImportData")))
		{
			return;
		}
		const FReadLimit Reads(Linker, Start, End);
		Values.Read<FString>();
		Start = Linker.IsError() ? Start : Linker.Tell();
	}

	/** The flags before an object's properties. */
	bool SkipClassControl(int64& Start, int64 End)
	{
		constexpr uint8 OverridableInformation = 0x02;
		if (Linker.UEVer() < EUnrealEngineObjectUE5Version::PROPERTY_TAG_EXTENSION_AND_OVERRIDABLE_SERIALIZATION)
		{
			return true;
		}
		const TArray<uint8> Control = Linker.ReadBytes(Start, 1);
		Start += Control.Num() == 1 && (Control[0] & OverridableInformation) ? 2 : 1;
		return Start <= End;
	}

	void AddThumbnails()
	{
		TArray<FPackageThumbnail> Thumbnails;
		Note(FPackageSections::ReadThumbnails(Linker, Thumbnails, Error));
		AddList(Document, TEXT("thumbnails"), MapObjects(Thumbnails, [](FJsonObject& Object, const FPackageThumbnail& Thumbnail)
												  {
			Object.SetStringField(TEXT("object"), Thumbnail.ObjectPath);
			Object.SetStringField(TEXT("class"), Thumbnail.ObjectClass);
			Object.SetNumberField(TEXT("width"), Thumbnail.Width);
			Object.SetNumberField(TEXT("height"), FMath::Abs(Thumbnail.Height));
			Object.SetStringField(TEXT("format"), Thumbnail.Height < 0 ? TEXT("jpeg") : TEXT("png"));
			Object.SetNumberField(TEXT("offset"), double(Thumbnail.Offset));
			Object.SetNumberField(TEXT("bytes"), Thumbnail.ImageBytes); }));
	}

	void AddAssetRegistry()
	{
		FPackageAssetRegistryData Data;
		Note(FPackageSections::ReadAssetRegistry(Linker, Data, Error));
		AddList(Document, TEXT("asset_registry"), MapObjects(Data.Assets, [](FJsonObject& Object, const FPackageAssetEntry& Asset)
													  {
			Object.SetStringField(TEXT("object"), Asset.ObjectPath);
			Object.SetStringField(TEXT("class"), Asset.ObjectClass);
			const TSharedRef<FJsonObject> Tags = MakeShared<FJsonObject>();
			for (const TPair<FString, FString>& Tag : Asset.Tags)
			{
				Tags->SetStringField(Tag.Key, Tag.Value);
			}
			Object.SetObjectField(TEXT("tags"), Tags); }));
	}

	void AddTexts()
	{
		TArray<FPackageGatherableText> Texts;
		Note(FPackageSections::ReadGatherableText(Linker, Texts, Error));
		AddList(Document, TEXT("gatherable_texts"), MapObjects(Texts, [](FJsonObject& Object, const FPackageGatherableText& Text)
														{
			Object.SetStringField(TEXT("namespace"), Text.Namespace);
			Object.SetStringField(TEXT("source"), Text.Source);
			Object.SetArrayField(TEXT("uses"), MapObjects(Text.KeysAndSites, [](FJsonObject& Use, const TPair<FString, FString>& KeyAndSite)
				{
					Use.SetStringField(TEXT("key"), KeyAndSite.Key);
					Use.SetStringField(TEXT("site"), KeyAndSite.Value); })); }));
		TArray<TPair<FPackageIndex, TArray<FName>>> Names;
		Note(FPackageSections::ReadSearchableNames(Linker, Names, Error));
		AddList(Document, TEXT("searchable_names"), MapObjects(Names, [this](FJsonObject& Object, const TPair<FPackageIndex, TArray<FName>>& Entry)
														{
			Object.SetStringField(TEXT("object"), Values.GetPath(Entry.Key));
			Object.SetArrayField(TEXT("names"), Map(Entry.Value, [](const FName& Name)
				{ return MakeText(Name.ToString()); })); }));
	}

	void AddMetaData()
	{
		TArray<TPair<FPackageIndex, TMap<FName, FString>>> MetaData;
		Note(FPackageSections::ReadMetaData(Linker, MetaData, Error));
		AddList(Document, TEXT("metadata"), MapObjects(MetaData, [this](FJsonObject& Object, const TPair<FPackageIndex, TMap<FName, FString>>& Entry)
												{
			Object.SetStringField(TEXT("object"), Entry.Key.IsNull() ? FString() : Values.GetPath(Entry.Key));
			const TSharedRef<FJsonObject> OfObject = MakeShared<FJsonObject>();
			for (const TPair<FName, FString>& Value : Entry.Value)
			{
				OfObject->SetStringField(Value.Key.ToString(), Value.Value);
			}
			Object.SetObjectField(TEXT("values"), OfObject); }));
	}

	void AddBulkData()
	{
		TArray<FPackageDataResource> Resources;
		Note(FPackageSections::ReadDataResources(Linker, Resources, Error));
		AddList(Document, TEXT("data_resources"), MapObjects(Resources, [this](FJsonObject& Object, const FPackageDataResource& Resource)
													  {
			Object.SetStringField(TEXT("owner"), Values.GetPath(Resource.Outer));
			Object.SetNumberField(TEXT("offset"), double(Resource.SerialOffset));
			Object.SetNumberField(TEXT("size"), double(Resource.SerialSize));
			Object.SetNumberField(TEXT("raw_size"), double(Resource.RawSize));
			Object.SetStringField(TEXT("bulk_data_flags"), FString::Printf(TEXT("0x%08x"), Resource.LegacyBulkDataFlags)); }));
		TArray<FPackagePayload> Payloads;
		Note(FPackageSections::ReadPayloads(Linker, Payloads, Error));
		AddList(Document, TEXT("payloads"), MapObjects(Payloads, [](FJsonObject& Object, const FPackagePayload& Payload)
												{
			Object.SetStringField(TEXT("id"), Payload.Identifier);
			Object.SetNumberField(TEXT("offset"), double(Payload.Offset));
			Object.SetNumberField(TEXT("compressed_size"), double(Payload.CompressedSize));
			Object.SetNumberField(TEXT("raw_size"), double(Payload.RawSize)); }));
	}

	void AddSections()
	{
		TArray<FPackageSectionRange> Ranges;
		Note(FPackageSections::Find(Linker, Ranges, Error));
		AddList(Document, TEXT("sections"), MapObjects(Ranges, [](FJsonObject& Object, const FPackageSectionRange& Range)
												{
			Object.SetStringField(TEXT("name"), FPackageSections::GetName(Range.Section));
			Object.SetNumberField(TEXT("offset"), double(Range.Start));
			Object.SetNumberField(TEXT("size"), double(Range.End - Range.Start)); }));
	}

	void Note(bool bRead)
	{
		if (!bRead)
		{
			Errors.Add(Error);
		}
	}

	FLinkerLoad& Linker;
	FPackageValues Values;
	FJsonObject& Document;
	TArray<FString>& Errors;
	FString Error;
};
}

TSharedRef<FJsonObject> InspectPackage(FLinkerLoad& Linker, TArray<FString>& OutErrors)
{
	const TSharedRef<FJsonObject> Document = MakeShared<FJsonObject>();
	FInspection(Linker, *Document, OutErrors).Run();
	return Document;
}
