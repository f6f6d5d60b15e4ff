#include "UObject/ScriptHeaderLoader.h"

#include "CompiledInTypes.h"
#include "HAL/FileManager.h"
#include "HeaderParser/Parser.h"
#include "Misc/FileHelper.h"
#include "ScriptHeaderTypes.h"

namespace UE::CoreUObject
{
FScriptHeaderReport LoadScriptHeaders(const FString& Directory)
{
	TArray<FString> Files;
	IFileManager::Get().FindFilesRecursive(Files, *Directory, TEXT("*.h"), true, false);
	Files.Sort();
	TArray<FScriptHeaderSource> Sources;
	FScriptHeaderReport Unreadable;
	for (const FString& File : Files)
	{
		FScriptHeaderSource Source;
		Source.Path = File;
		if (FFileHelper::LoadFileToArray(Source.Text, *File))
		{
			Sources.Add(MoveTemp(Source));
		}
		else
		{
			Unreadable.Errors.Add(File + TEXT(":1:1: error: the file cannot be read"));
		}
	}
	FScriptHeaderReport Report = LoadScriptHeaderSources(Sources);
	Report.Errors.Insert(Unreadable.Errors, 0);
	return Report;
}

FScriptHeaderReport LoadScriptHeaderSources(const TArray<FScriptHeaderSource>& Sources)
{
	ConstructCompiledInTypes();
	FScriptHeaderReport Report;
	std::vector<FScriptHeaderTypes::FSource> Headers;
	Headers.reserve(static_cast<size_t>(Sources.Num()));
	for (const FScriptHeaderSource& Source : Sources)
	{
		const std::string_view Text(reinterpret_cast<const char*>(Source.Text.GetData()), static_cast<size_t>(Source.Text.Num()));
		HeaderParser::FParseResult Result = HeaderParser::ParseHeader(Text);
		const FTCHARToUTF8 Path(*Source.Path);
		for (const HeaderParser::FDiagnostic& Error : Result.Errors)
		{
			const std::string Line = HeaderParser::FormatDiagnostic(reinterpret_cast<const char*>(Path.Get()), Error);
			Report.Errors.Add(FString(UTF8_TO_TCHAR(Line.c_str())));
		}
		if (!Result.Header.Package.starts_with("/Script/"))
		{
			Report.Errors.Add(Source.Path + TEXT(":1:1: error: expected '// Package: /Script/Name' before the first declaration"));
			continue;
		}
		Headers.push_back({Source.Path, std::move(Result.Header)});
	}
	Report.NumHeaders = static_cast<int32>(Headers.size());
	FScriptHeaderTypes(Headers, Report).MakeAll();
	return Report;
}
}
