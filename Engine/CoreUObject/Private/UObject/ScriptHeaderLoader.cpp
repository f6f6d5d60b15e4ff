#include "UObject/ScriptHeaderLoader.h"

#include "CompiledInTypes.h"
#include "HAL/FileManager.h"
#include "HAL/PlatformMisc.h"
#include "HAL/Runnable.h"
#include "HAL/RunnableThread.h"
#include "HeaderParser/Parser.h"
#include "Misc/FileHelper.h"
#include "ScriptHeaderTypes.h"
#include "ScriptSubobjectTable.h"

#include <atomic>
#include <string_view>
#include <vector>

namespace
{
/** Parses sources until none is left; several threads may share one list. */
class FHeaderParsing final : public FRunnable
{
public:
	explicit FHeaderParsing(const TArray<UE::CoreUObject::FScriptHeaderSource>& InSources)
		: Sources(InSources)
		, Results(static_cast<size_t>(InSources.Num()))
	{
		for (int32 Index = 0; Index < Sources.Num(); ++Index)
		{
			Order.Add(Index);
		}
		// The longest first, so that no thread is left with it at the end.
		Order.StableSort([this](int32 Left, int32 Right)
			{ return Sources[Left].Text.Num() > Sources[Right].Text.Num(); });
	}

	uint32 Run() override
	{
		for (int32 Next = NumTaken++; Next < Order.Num(); Next = NumTaken++)
		{
			const TArray<uint8>& Text = Sources[Order[Next]].Text;
			Results[static_cast<size_t>(Order[Next])] =
				HeaderParser::ParseHeader(std::string_view(reinterpret_cast<const char*>(Text.GetData()), static_cast<size_t>(Text.Num())));
		}
		return 0;
	}

	/** Answers when all are parsed. The calling thread does its share, and all of it where no other thread can be made. */
	void RunOnAllCores()
	{
		constexpr int32 MinBytesForThreads = 64 << 10;
		constexpr int32 MaxHelpers = 7;
		int64 NumBytes = 0;
		for (const UE::CoreUObject::FScriptHeaderSource& Source : Sources)
		{
			NumBytes += Source.Text.Num();
		}
		const int32 NumCores = FPlatformMisc::NumberOfCoresIncludingHyperthreads();
		const int32 NumHelpers = NumBytes < MinBytesForThreads ? 0 : FMath::Min3(NumCores - 1, Sources.Num() - 1, MaxHelpers);
		TArray<TUniquePtr<FRunnableThread>> Helpers;
		for (int32 Index = 0; Index < NumHelpers; ++Index)
		{
			Helpers.Emplace(FRunnableThread::Create(this, TEXT("HeaderParsing")));
		}
		Run();
		for (const TUniquePtr<FRunnableThread>& Helper : Helpers)
		{
			if (Helper)
			{
				Helper->WaitForCompletion();
			}
		}
	}

	HeaderParser::FParseResult& GetResult(int32 Index) { return Results[static_cast<size_t>(Index)]; }

private:
	const TArray<UE::CoreUObject::FScriptHeaderSource>& Sources;
	std::vector<HeaderParser::FParseResult> Results;
	TArray<int32> Order;
	std::atomic<int32> NumTaken = 0;
};
}

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
	FScriptHeaderSource Table;
	Table.Path = Directory / TEXT("DefaultSubobjects.txt");
	if (FFileHelper::LoadFileToArray(Table.Text, *Table.Path))
	{
		Report.Errors.Append(LoadScriptSubobjects(Table).Errors);
	}
	return Report;
}

FScriptHeaderReport LoadScriptSubobjects(const FScriptHeaderSource& Table)
{
	FScriptHeaderReport Report;
	FScriptSubobjectTable(Table, Report).Read();
	return Report;
}

FScriptHeaderReport LoadScriptHeaderSources(const TArray<FScriptHeaderSource>& Sources)
{
	ConstructCompiledInTypes();
	FScriptHeaderReport Report;
	std::vector<FScriptHeaderTypes::FSource> Headers;
	Headers.reserve(static_cast<size_t>(Sources.Num()));
	FHeaderParsing Parsing(Sources);
	Parsing.RunOnAllCores();
	for (int32 Index = 0; Index < Sources.Num(); ++Index)
	{
		const FScriptHeaderSource& Source = Sources[Index];
		HeaderParser::FParseResult& Result = Parsing.GetResult(Index);
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
