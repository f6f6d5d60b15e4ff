#include "Chat/TerminalChatDisplay.h"

#include "Chat/ChangeLines.h"
#include "Chat/ToolSummary.h"
#include "Console.h"
#include "HAL/PlatformTime.h"
#include "VexelError.h"

namespace
{
/** What comes in quicker than this is shown together. */
constexpr double RefreshSeconds = 1.0 / 30.0;
constexpr double SpinnerSeconds = 0.1;
/** A turn that is over sooner shows no times: they would only flash up. */
constexpr double ShownTimeSeconds = 0.3;

constexpr const TCHAR* SpinnerFrames[] = {
	TEXT("⠋"), TEXT("⠙"), TEXT("⠹"), TEXT("⠸"), TEXT("⠼"), TEXT("⠴"), TEXT("⠦"), TEXT("⠧"), TEXT("⠇"), TEXT("⠏")};

struct FIcon
{
	const TCHAR* Style;
	const TCHAR* Sign;
};

constexpr FIcon Icons[] = {
	{TEXT("Edit"), TEXT("✎")},
	{TEXT("Compile"), TEXT("⚙")},
	{TEXT("Read"), TEXT("≡")},
	{TEXT("Search"), TEXT("⌕")},
	{TEXT("Object"), TEXT("◆")},
	{TEXT("Screenshot"), TEXT("▣")},
};

const TCHAR* FindSign(const FString& StyleName)
{
	for (const FIcon& Icon : Icons)
	{
		if (StyleName.EndsWith(FString(TEXT(".")) + Icon.Style))
		{
			return Icon.Sign;
		}
	}
	return TEXT("•");
}

FString FormatSeconds(double Seconds)
{
	return Seconds < 60.0 ? FString::Printf(TEXT("%.1f s"), Seconds)
						  : FString::Printf(TEXT("%d:%02d min"), int32(Seconds) / 60, int32(Seconds) % 60);
}

/** "  ≡ Loading blueprint  BP_Door  1.2 s", with the sign that the tool has at the time. */
FStyledLine MakeToolLine(const FStyledLine& Sign, const FString& Text, const FChatToolCall& Call, double Seconds)
{
	FStyledLine Line(TEXT("  "));
	Line.Append(Sign).Add(TEXT(" ") + Text);
	const FString Subject = DescribeSubject(Call);
	if (!Subject.IsEmpty())
	{
		Line.Add(TEXT("  ") + Subject, TextStyle::Code);
	}
	if (Seconds >= ShownTimeSeconds)
	{
		Line.Add(TEXT("  ") + FormatSeconds(Seconds), TextStyle::Faint);
	}
	return Line;
}
}

FTerminalChatDisplay::FTerminalChatDisplay()
	: Live([](FStringView Codes)
		  { FConsole::WriteTerminalCodes(Codes); })
{
	Live.SetStyled(FConsole::UsesStyles());
	FitTerminal();
}

void FTerminalChatDisplay::BeginTurn(const FString&)
{
	FitTerminal();
	RunningTools.Reset();
	Section = ESection::Nothing;
	TurnStart = FPlatformTime::Seconds();
	FinalLines = {FStyledLine()};
	Refresh();
}

void FTerminalChatDisplay::AddText(FStringView Text)
{
	if (Section != ESection::Text && FStringView(Text).TrimStartAndEnd().IsEmpty())
	{
		return;
	}
	EnterSection(ESection::Text);
	Markdown.Append(Text, GetWidth(), FinalLines);
	bChanged = true;
}

void FTerminalChatDisplay::AddError(const FString& Text)
{
	FinishText();
	EnterSection(ESection::Tools);
	AddBadNews(Text.TrimEnd());
	bChanged = true;
}

void FTerminalChatDisplay::AddImage(const FString& Path)
{
	FinishText();
	EnterSection(ESection::Tools);
	FinalLines.Append(WrapText(FStyledLine(Path, TextStyle::Code), GetWidth(), FStyledLine(TEXT("  ▣ "), TextStyle::Good), TEXT("    ")));
	bChanged = true;
}

void FTerminalChatDisplay::BeginTool(const FChatToolCall& Call)
{
	FinishText();
	EnterSection(ESection::Tools);
	RunningTools.Add({Call, FPlatformTime::Seconds()});
	Refresh();
}

void FTerminalChatDisplay::EndTool(const FChatToolCall& Call, const FChatToolOutcome& Outcome)
{
	const int32 Index = RunningTools.IndexOfByPredicate([&](const FRunningTool& Tool)
		{ return Tool.Call.ReplyId.Equals(Call.ReplyId); });
	const double Seconds = Index == INDEX_NONE ? 0.0 : FPlatformTime::Seconds() - RunningTools[Index].StartTime;
	if (Index != INDEX_NONE)
	{
		RunningTools.RemoveAt(Index);
	}
	EnterSection(ESection::Tools);
	if (Outcome.Error)
	{
		FinalLines.Add(MakeToolLine(FStyledLine(TEXT("✗"), TextStyle::Bad), Call.ProgressText, Call, Seconds));
		const FStyledLine Indent(TEXT("    "));
		FinalLines.Append(WrapText(FStyledLine(Outcome.Error->ToShortString(), TextStyle::Bad), GetWidth(), Indent, Indent));
	}
	else
	{
		FinalLines.Add(MakeToolLine(FStyledLine(FindSign(Call.Icon), TextStyle::Good), Outcome.DoneText, Call, Seconds));
	}
	for (const FString& Problem : Outcome.Problems)
	{
		FinalLines.Append(
			WrapText(FStyledLine(Problem, TextStyle::Bad), GetWidth(), FStyledLine(TEXT("    ✗ "), TextStyle::Bad), TEXT("      ")));
	}
	FinalLines.Append(DrawChanges(Outcome.Changes, GetWidth(), TEXT("    ")));
	Refresh();
}

void FTerminalChatDisplay::Tick()
{
	const double Passed = FPlatformTime::Seconds() - LastRefresh;
	if (FConsole::TakeResize())
	{
		FitTerminal();
		bChanged = true;
	}
	if (Passed >= (bChanged ? RefreshSeconds : SpinnerSeconds))
	{
		Refresh();
	}
}

void FTerminalChatDisplay::EndTurn(EVexelChatRequestState State, const FString& Failure)
{
	FinishText();
	RunningTools.Reset();
	if (State == EVexelChatRequestState::Cancelled)
	{
		EnterSection(ESection::Tools);
		FinalLines.Add(FStyledLine(TEXT("  ■ Stopped"), TextStyle::Accent));
	}
	else if (!Failure.IsEmpty())
	{
		EnterSection(ESection::Tools);
		AddBadNews(Failure);
	}
	FinalLines.AddDefaulted();
	Live.Update(FinalLines, {});
	FinalLines.Reset();
}

void FTerminalChatDisplay::ShowResult(const FString&, const TArray<FStyledLine>& Lines, const TSharedRef<FJsonObject>&)
{
	FitTerminal();
	TArray<FStyledLine> WithGaps = {FStyledLine()};
	WithGaps.Append(Lines);
	WithGaps.AddDefaulted();
	Live.Update(WithGaps, {});
}

void FTerminalChatDisplay::ShowFailure(const FString& Reason)
{
	FitTerminal();
	Live.Update(WrapText(FStyledLine(Reason, TextStyle::Bad), GetWidth(), FStyledLine(TEXT("✗ "), TextStyle::Bad), TEXT("  ")), {});
}

void FTerminalChatDisplay::AddBadNews(const FString& Text)
{
	const FStyledLine Sign(TEXT("  ✗ "), TextStyle::Bad);
	FinalLines.Append(WrapText(FStyledLine(Text, TextStyle::Bad), GetWidth(), Sign, TEXT("    ")));
}

void FTerminalChatDisplay::EnterSection(ESection Next)
{
	if (Section != Next && Section != ESection::Nothing)
	{
		FinalLines.AddDefaulted();
	}
	Section = Next;
}

void FTerminalChatDisplay::FinishText()
{
	Markdown.Finish(GetWidth(), FinalLines);
}

void FTerminalChatDisplay::Refresh()
{
	Live.Update(FinalLines, MakeChangingLines());
	FinalLines.Reset();
	bChanged = false;
	LastRefresh = FPlatformTime::Seconds();
}

void FTerminalChatDisplay::FitTerminal()
{
	const FIntPoint Size = FConsole::GetSize();
	Live.SetSize(Size.X, Size.Y);
}

TArray<FStyledLine> FTerminalChatDisplay::MakeChangingLines() const
{
	TArray<FStyledLine> Lines = Markdown.GetUnfinishedLines(GetWidth());
	const double Now = FPlatformTime::Seconds();
	for (const FRunningTool& Tool : RunningTools)
	{
		Lines.Add(MakeToolLine(MakeSpinner(), Tool.Call.ProgressText, Tool.Call, Now - Tool.StartTime));
	}
	if (RunningTools.IsEmpty())
	{
		if (Section != ESection::Nothing)
		{
			Lines.AddDefaulted();
		}
		Lines.Add(FStyledLine(TEXT("  "))
					  .Append(MakeSpinner())
					  .Add(TEXT(" ") + FormatSeconds(Now - TurnStart) + TEXT("  Ctrl-C stops the answer"), TextStyle::Faint));
	}
	return Lines;
}

FStyledLine FTerminalChatDisplay::MakeSpinner() const
{
	const int32 Frame = int32((FPlatformTime::Seconds() - TurnStart) / SpinnerSeconds) % int32(UE_ARRAY_COUNT(SpinnerFrames));
	return FStyledLine(SpinnerFrames[Frame], TextStyle::Accent);
}
