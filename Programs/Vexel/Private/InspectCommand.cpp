#include "Commands.h"
#include "Console.h"
#include "Dom/JsonObject.h"
#include "Dom/JsonValue.h"
#include "Misc/Paths.h"
#include "UObject/LinkerLoad.h"

namespace
{
TArray<TSharedPtr<FJsonValue>> MakeNames(const FLinkerLoad& Linker)
{
	TArray<TSharedPtr<FJsonValue>> Names;
	for (const FName Name : Linker.NameMap)
	{
		Names.Add(MakeShared<FJsonValueString>(Name.ToString()));
	}
	return Names;
}

TArray<TSharedPtr<FJsonValue>> MakeImports(const FLinkerLoad& Linker)
{
	TArray<TSharedPtr<FJsonValue>> Imports;
	for (int32 Index = 0; Index < Linker.ImportMap.Num(); ++Index)
	{
		const TSharedRef<FJsonObject> Import = MakeShared<FJsonObject>();
		Import->SetStringField(TEXT("path"), Linker.GetImportPathName(Index));
		Import->SetStringField(TEXT("class"), Linker.GetImportClassPath(Index).ToString());
		Imports.Add(MakeShared<FJsonValueObject>(Import));
	}
	return Imports;
}

TArray<TSharedPtr<FJsonValue>> MakeExports(const FLinkerLoad& Linker)
{
	TArray<TSharedPtr<FJsonValue>> Exports;
	for (int32 Index = 0; Index < Linker.ExportMap.Num(); ++Index)
	{
		const FObjectExport& Entry = Linker.ExportMap[Index];
		const TSharedRef<FJsonObject> Export = MakeShared<FJsonObject>();
		Export->SetStringField(TEXT("path"), Linker.GetExportPathName(Index));
		Export->SetStringField(TEXT("class"), Linker.GetExportClassPath(Index).ToString());
		Export->SetNumberField(TEXT("offset"), double(Entry.SerialOffset));
		Export->SetNumberField(TEXT("size"), double(Entry.SerialSize));
		Exports.Add(MakeShared<FJsonValueObject>(Export));
	}
	return Exports;
}
}

int32 RunInspectCommand(const FArguments& Arguments)
{
	if (Arguments.GetPositional().IsEmpty())
	{
		FConsole::WriteError(TEXT("inspect: which file?"));
		return ExitStatus::WrongUsage;
	}
	const FString& File = Arguments.GetPositional()[0];
	if (!FPaths::FileExists(File))
	{
		FConsole::WriteError(FString::Printf(TEXT("the file '%s' cannot be read"), *File));
		return ExitStatus::Failed;
	}
	FString Failure;
	const TUniquePtr<FLinkerLoad> Linker = FLinkerLoad::Create(File, nullptr, Failure);
	if (!Linker)
	{
		FConsole::WriteError(Failure);
		return ExitStatus::Failed;
	}
	const TSharedRef<FJsonObject> Document = MakeShared<FJsonObject>();
	Document->SetStringField(TEXT("file"), File);
	Document->SetStringField(TEXT("engine_version"), Linker->Summary.SavedByEngineVersion.ToString());
	Document->SetNumberField(TEXT("file_version_ue4"), Linker->Summary.GetFileVersionUE().FileVersionUE4);
	Document->SetNumberField(TEXT("file_version_ue5"), Linker->Summary.GetFileVersionUE().FileVersionUE5);
	Document->SetArrayField(TEXT("names"), MakeNames(*Linker));
	Document->SetArrayField(TEXT("imports"), MakeImports(*Linker));
	Document->SetArrayField(TEXT("exports"), MakeExports(*Linker));
	WriteJson(Document);
	return ExitStatus::Done;
}
