#include "ChangedAssets.h"
#include "Commands.h"
#include "Console.h"
#include "Dom/JsonObject.h"
#include "Dom/JsonValue.h"
#include "Session.h"
#include "ToolCalls.h"
#include "VexelJson.h"
#include "VexelTools.h"

namespace
{
/** "--input" as an object: JSON itself, or a file or standard input that holds it. */
TOptional<TSharedRef<FJsonObject>> ReadInput(const FString& Word)
{
	FString Text = Word.IsEmpty() ? FString(TEXT("{}")) : Word;
	if (!Text.TrimStart().StartsWith(TEXT("{")))
	{
		const TOptional<FString> FileText = ReadFileOrInput(Text);
		if (!FileText)
		{
			return NullOpt;
		}
		Text = *FileText;
	}
	TSharedPtr<FJsonObject> Object;
	FString Error;
	if (!FVexelJsonConversions::StringToJson(Text, Object, &Error))
	{
		FConsole::WriteError(FString::Printf(TEXT("the input is not a JSON object: %s"), *Error));
		return NullOpt;
	}
	return Object.ToSharedRef();
}

int32 RunOneCall(const FString& Name, const TSharedRef<FJsonObject>& Input)
{
	const TVexelTaskResult<TSharedRef<FJsonObject>> Call = FVexelToolSession().Call(Name, Input);
	if (!FSession::TickUntil([&]
			{ return Call.IsComplete(); }))
	{
		FConsole::WriteError(TEXT("interrupted"));
		return ExitStatus::Failed;
	}
	const TVexelExpected<TSharedRef<FJsonObject>> Result = Call.Value();
	if (Result.HasError())
	{
		FConsole::WriteError(Result.GetError().ToShortString());
		return ExitStatus::Failed;
	}
	WriteJson(Result.GetValue());
	return GetStatusOf(*Result.GetValue());
}
}

int32 RunToolCommand(const FArguments& Arguments)
{
	const bool bManyCalls = Arguments.Has(TEXT("--calls"));
	if (Arguments.GetPositional().IsEmpty() != bManyCalls)
	{
		FConsole::WriteError(bManyCalls ? TEXT("tool: --calls names its tools itself") : TEXT("tool: which tool? (see: vexel tools)"));
		return ExitStatus::WrongUsage;
	}
	const TOptional<FString> Calls = bManyCalls ? ReadFileOrInput(Arguments.Get(TEXT("--calls"))) : FString();
	const TOptional<TSharedRef<FJsonObject>> Input = ReadInput(Arguments.Get(TEXT("--input")));
	if (!Input || !Calls)
	{
		return ExitStatus::Failed;
	}
	FSession Session;
	if (const TOptional<FString> Failure = Session.Start(Arguments))
	{
		FConsole::WriteError(*Failure);
		return ExitStatus::Failed;
	}
	const int32 Status = bManyCalls ? RunToolCalls(*Calls) : RunOneCall(Arguments.GetPositional()[0], *Input);
	// What is saved is what the answer shows, with the ids that it gives to what was made.
	const bool bSaves = Arguments.Has(TEXT("--save")) && (bManyCalls || Status != ExitStatus::Failed);
	return bSaves && !SaveChangedAssetsOrSay() ? ExitStatus::Failed : Status;
}

int32 RunToolsCommand(const FArguments& Arguments)
{
	const TArray<FVexelToolInfo> Tools = FVexelTools::List();
	if (!Arguments.Has(TEXT("--json")))
	{
		for (const FVexelToolInfo& Tool : Tools)
		{
			FConsole::WriteLine(FString::Printf(TEXT("%-22s %-8s %-40s %s"), *Tool.Name, Tool.bProducesResponse ? TEXT("editor") : TEXT("service"),
				*Tool.ProgressText, *Tool.DoneText));
		}
		return ExitStatus::Done;
	}
	TArray<TSharedPtr<FJsonValue>> Values;
	for (const FVexelToolInfo& Tool : Tools)
	{
		const TSharedRef<FJsonObject> Object = MakeShared<FJsonObject>();
		Object->SetStringField(TEXT("name"), Tool.Name);
		Object->SetStringField(TEXT("icon"), Tool.Icon);
		Object->SetStringField(TEXT("progress_text"), Tool.ProgressText);
		Object->SetStringField(TEXT("done_text"), Tool.DoneText);
		Object->SetStringField(TEXT("runs_in"), Tool.bProducesResponse ? TEXT("editor") : TEXT("service"));
		Values.Add(MakeShared<FJsonValueObject>(Object));
	}
	const TSharedRef<FJsonObject> Document = MakeShared<FJsonObject>();
	Document->SetArrayField(TEXT("tools"), Values);
	WriteJson(Document);
	return ExitStatus::Done;
}
