#include "NativeDataReader.h"

#include "Dom/JsonObject.h"
#include "Dom/JsonValue.h"
#include "GraphPinReader.h"
#include "PackageValues.h"
#include "TaggedValueReader.h"
#include "UObject/EditorObjectVersion.h"

namespace
{
using FValues = TArray<TSharedPtr<FJsonValue>>;

constexpr int64 NameBytes = 8;
constexpr int64 MinTextBytes = 4;
}

bool FNativeDataReader::IsGraphNode(int32 ExportIndex) const
{
	const FLinkerLoad& Linker = Values.GetLinker();
	const FPackageIndex Outer = Linker.ExportMap[ExportIndex].OuterIndex;
	const FString GraphSuffix = TEXT("Graph");
	// Graphs within a graph are those of its composite nodes.
	return Outer.IsExport() && Linker.GetExportClassName(Outer.ToExport()).ToString().EndsWith(GraphSuffix) &&
		!Linker.GetExportClassName(ExportIndex).ToString().EndsWith(GraphSuffix);
}

bool FNativeDataReader::Read(int32 ExportIndex, int64 Start, int64 End, FJsonObject& OutExport, int64& OutEnd)
{
	using FReader = void (FNativeDataReader::*)(FJsonObject&);
	static const TMap<FName, FReader> Readers = {
		{TEXT("Level"), &FNativeDataReader::ReadLevel},
		{TEXT("World"), &FNativeDataReader::ReadWorld},
		{TEXT("MetaData"), &FNativeDataReader::ReadMetaData},
		{TEXT("DataTable"), &FNativeDataReader::ReadDataTable},
		{TEXT("StringTable"), &FNativeDataReader::ReadStringTable}};
	FLinkerLoad& Linker = Values.GetLinker();
	const FName ClassName = Linker.GetExportClassName(ExportIndex);
	const FReadLimit Reads(Linker, Start, End);
	if (const FReader* const Reader = Readers.Find(ClassName))
	{
		(this->**Reader)(OutExport);
	}
	else if (IsGraphNode(ExportIndex))
	{
		ReadGraphNode(OutExport, ClassName.ToString().StartsWith(TEXT("K2Node_")));
	}
	OutEnd = Reads.GetReached();
	return !Linker.IsError();
}

void FNativeDataReader::ReadGraphNode(FJsonObject& Out, bool bMayHaveUserPins)
{
	FLinkerLoad& Linker = Values.GetLinker();
	FGraphPinReader Reader(Values);
	if (!Reader.HasPins())
	{
		return;
	}
	Out.SetArrayField(TEXT("pins"), Reader.ReadPins());
	// Not every class of node has them, and which has none writes nothing more.
	if (bMayHaveUserPins && !Linker.IsError() && Linker.Tell() < Linker.TotalSize())
	{
		FValues UserPins = Reader.ReadUserDefinedPins();
		if (!UserPins.IsEmpty())
		{
			Out.SetArrayField(TEXT("user_defined_pins"), MoveTemp(UserPins));
		}
	}
}

FValues FNativeDataReader::ReadReferences()
{
	FValues References;
	for (int32 Left = Values.ReadCount(sizeof(int32)); Left > 0 && !Values.GetLinker().IsError(); --Left)
	{
		References.Add(Values.ReadReference());
	}
	return References;
}

void FNativeDataReader::ReadLevel(FJsonObject& Out)
{
	const TSharedRef<FJsonObject> Level = MakeShared<FJsonObject>();
	Level->SetArrayField(TEXT("actors"), ReadReferences());
	const TSharedRef<FJsonObject> Url = MakeShared<FJsonObject>();
	for (const TCHAR* const Part : {TEXT("protocol"), TEXT("host"), TEXT("map"), TEXT("portal")})
	{
		Url->SetStringField(Part, Values.Read<FString>());
	}
	FValues Options;
	for (int32 Left = Values.ReadCount(MinTextBytes); Left > 0 && !Values.GetLinker().IsError(); --Left)
	{
		Options.Add(MakeShared<FJsonValueString>(Values.Read<FString>()));
	}
	Url->SetArrayField(TEXT("options"), MoveTemp(Options));
	Url->SetNumberField(TEXT("port"), Values.Read<int32>());
	Url->SetBoolField(TEXT("valid"), Values.Read<int32>() != 0);
	Level->SetObjectField(TEXT("url"), Url);
	Level->SetField(TEXT("model"), Values.ReadReference());
	Level->SetArrayField(TEXT("model_components"), ReadReferences());
	for (const TCHAR* const Part : {TEXT("script_blueprint"), TEXT("script_actor"), TEXT("nav_list_start"), TEXT("nav_list_end")})
	{
		Level->SetField(Part, Values.ReadReference());
	}
	Out.SetObjectField(TEXT("level"), Level);
}

void FNativeDataReader::ReadWorld(FJsonObject& Out)
{
	const TSharedRef<FJsonObject> World = MakeShared<FJsonObject>();
	World->SetField(TEXT("persistent_level"), Values.ReadReference());
	World->SetArrayField(TEXT("extra_referenced_objects"), ReadReferences());
	World->SetArrayField(TEXT("streaming_levels"), ReadReferences());
	Out.SetObjectField(TEXT("world"), World);
}

TSharedRef<FJsonObject> FNativeDataReader::ReadNamedTexts()
{
	const TSharedRef<FJsonObject> Texts = MakeShared<FJsonObject>();
	for (int32 Left = Values.ReadCount(NameBytes + MinTextBytes); Left > 0 && !Values.GetLinker().IsError(); --Left)
	{
		const FString Name = Values.ReadName();
		Texts->SetStringField(Name, Values.Read<FString>());
	}
	return Texts;
}

void FNativeDataReader::ReadMetaData(FJsonObject& Out)
{
	FLinkerLoad& Linker = Values.GetLinker();
	FValues Objects;
	for (int32 Left = Values.ReadCount(NameBytes); Left > 0 && !Linker.IsError(); --Left)
	{
		const TSharedRef<FJsonObject> Entry = MakeShared<FJsonObject>();
		Entry->SetField(TEXT("object"), Values.ReadReference());
		Entry->SetObjectField(TEXT("values"), ReadNamedTexts());
		Objects.Add(MakeShared<FJsonValueObject>(Entry));
	}
	Out.SetArrayField(TEXT("metadata"), MoveTemp(Objects));
	if (Linker.CustomVer(FEditorObjectVersion::GUID) >= FEditorObjectVersion::RootMetaDataSupport)
	{
		Out.SetObjectField(TEXT("metadata_of_package"), ReadNamedTexts());
	}
}

void FNativeDataReader::ReadDataTable(FJsonObject& Out)
{
	FLinkerLoad& Linker = Values.GetLinker();
	FValues Rows;
	for (int32 Left = Values.ReadCount(2 * NameBytes); Left > 0 && !Linker.IsError(); --Left)
	{
		const TSharedRef<FJsonObject> Row = MakeShared<FJsonObject>();
		Row->SetStringField(TEXT("name"), Values.ReadName());
		FValues Properties;
		int64 Reached = 0;
		const bool bRead = !Linker.IsError() && Tagged.ReadProperties(Linker.Tell(), Linker.TotalSize(), Properties, Reached);
		if (!bRead)
		{
			Linker.Seek(Reached);
			Linker.SetError();
		}
		Row->SetArrayField(TEXT("properties"), MoveTemp(Properties));
		Rows.Add(MakeShared<FJsonValueObject>(Row));
	}
	Out.SetArrayField(TEXT("rows"), MoveTemp(Rows));
}

void FNativeDataReader::ReadStringTable(FJsonObject& Out)
{
	FLinkerLoad& Linker = Values.GetLinker();
	const TSharedRef<FJsonObject> Table = MakeShared<FJsonObject>();
	Table->SetStringField(TEXT("namespace"), Values.Read<FString>());
	FValues Entries;
	for (int32 Left = Values.ReadCount(2 * MinTextBytes); Left > 0 && !Linker.IsError(); --Left)
	{
		const TSharedRef<FJsonObject> Entry = MakeShared<FJsonObject>();
		Entry->SetStringField(TEXT("key"), Values.Read<FString>());
		Entry->SetStringField(TEXT("source"), Values.Read<FString>());
		Entries.Add(MakeShared<FJsonValueObject>(Entry));
	}
	Table->SetArrayField(TEXT("entries"), MoveTemp(Entries));
	Out.SetObjectField(TEXT("string_table"), Table);
}
