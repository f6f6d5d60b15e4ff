#include "ToolCalls.h"

#include "Commands.h"
#include "Console.h"
#include "Dom/JsonObject.h"
#include "Dom/JsonValue.h"
#include "Session.h"
#include "UndoStep.h"
#include "VexelJson.h"
#include "VexelTools.h"

namespace
{
/** The line's answer, and the exit status of the line alone. */
struct FLineAnswer
{
	TSharedRef<FJsonObject> Object = MakeShared<FJsonObject>();
	int32 Status = ExitStatus::Done;

	void Fail(const FString& Error)
	{
		Object->SetStringField(TEXT("error"), Error);
		Status = ExitStatus::Failed;
	}
};

/** A line that failed weighs more than one that did a part. */
int32 GetWorse(int32 Status, int32 Other)
{
	const bool bFailed = Status == ExitStatus::Failed || Other == ExitStatus::Failed;
	return bFailed ? ExitStatus::Failed : FMath::Max(Status, Other);
}

FLineAnswer CallTool(FVexelToolSession& Tools, const FString& Name, const FJsonObject& Line)
{
	FLineAnswer Answer;
	Answer.Object->SetStringField(TEXT("tool"), Name);
	const TSharedPtr<FJsonObject>* Input = nullptr;
	Line.TryGetObjectField(TEXT("input"), Input);
	const TVexelTaskResult<TSharedRef<FJsonObject>> Call = Tools.Call(Name, Input ? Input->ToSharedRef() : MakeShared<FJsonObject>());
	if (!FSession::TickUntil([&Call]
			{ return Call.IsComplete(); }))
	{
		Answer.Fail(TEXT("interrupted"));
		return Answer;
	}
	const TVexelExpected<TSharedRef<FJsonObject>> Result = Call.Value();
	if (Result.HasError())
	{
		Answer.Fail(Result.GetError().ToShortString());
		return Answer;
	}
	Answer.Object->SetObjectField(TEXT("answer"), Result.GetValue());
	Answer.Status = GetStatusOf(*Result.GetValue());
	return Answer;
}

/** The answer of a travel is what it undid or redid, in the order of doing. */
FLineAnswer Travel(const TCHAR* Direction, bool bBack, double NumSteps)
{
	FLineAnswer Answer;
	Answer.Object->SetNumberField(Direction, NumSteps);
	TArray<TSharedPtr<FJsonValue>> Edits;
	for (double Step = 0; Step < NumSteps && Answer.Status == ExitStatus::Done; ++Step)
	{
		FString What;
		if (const TOptional<FString> Failure = TakeUndoStep(bBack, What))
		{
			Answer.Fail(*Failure);
		}
		else
		{
			Edits.Add(MakeShared<FJsonValueString>(What));
		}
	}
	Answer.Object->SetArrayField(TEXT("answer"), Edits);
	return Answer;
}

FLineAnswer RunLine(FVexelToolSession& Tools, const FString& Line)
{
	FLineAnswer Answer;
	TSharedPtr<FJsonObject> Object;
	FString Text;
	double NumSteps = 0;
	if (!FVexelJsonConversions::StringToJson(Line, Object, &Text))
	{
		Answer.Fail(FString::Printf(TEXT("the line is not a JSON object: %s"), *Text));
		return Answer;
	}
	if (Object->TryGetStringField(TEXT("tool"), Text))
	{
		return CallTool(Tools, Text, *Object);
	}
	for (const TCHAR* const Direction : {TEXT("undo"), TEXT("redo")})
	{
		if (Object->TryGetNumberField(Direction, NumSteps))
		{
			return Travel(Direction, FStringView(Direction) == TEXT("undo"), NumSteps);
		}
	}
	Answer.Fail(TEXT("the line has none of \"tool\", \"undo\" and \"redo\""));
	return Answer;
}
}

int32 GetStatusOf(const FJsonObject& Answer)
{
	const TArray<TSharedPtr<FJsonValue>>* Errors = nullptr;
	return Answer.TryGetArrayField(TEXT("errors"), Errors) && !Errors->IsEmpty() ? ExitStatus::DoneInPart : ExitStatus::Done;
}

int32 RunToolCalls(const FString& Text)
{
	FVexelToolSession Tools;
	TArray<FString> Lines;
	Text.ParseIntoArrayLines(Lines);
	int32 Status = ExitStatus::Done;
	for (const FString& Line : Lines)
	{
		if (Line.TrimStart().IsEmpty())
		{
			continue;
		}
		const FLineAnswer Answer = RunLine(Tools, Line);
		WriteJsonLine(Answer.Object);
		Status = GetWorse(Status, Answer.Status);
	}
	return Status;
}
