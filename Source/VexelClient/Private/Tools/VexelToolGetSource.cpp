#include "Tools/VexelProjectFiles.h"
#include "Tools/VexelSourceIndex.h"
#include "Tools/VexelSourceText.h"
#include "Tools/VexelTool.h"
#include "Tools/VexelToolSchema.h"
#include "VexelTask.h"

namespace
{
constexpr int32 MaxLines = 2000;
constexpr int32 MaxCharacters = 100000;
constexpr int32 MaxDeclarations = 20;
constexpr int32 MaxDeclarationLines = 400;
constexpr int32 MaxSymbolLength = 256;
constexpr int32 MaxNamesLike = 5;

struct FGetSourceInput
{
	TOptional<FString> File;
	TOptional<FString> Symbol;
	int32 FirstLine = 1;
	int32 LastLine = MAX_int32;

	static const TVexelToolSchema<FGetSourceInput>& GetSchema()
	{
		static const TVexelToolSchema<FGetSourceInput> Schema =
			TVexelToolSchema<FGetSourceInput>()
				.Optional(TEXT("file"), &FGetSourceInput::File, {.bNotEmpty = true})
				.Optional(TEXT("symbol"), &FGetSourceInput::Symbol, {.Most = MaxSymbolLength, .bNotEmpty = true})
				.Optional(TEXT("first_line"), &FGetSourceInput::FirstLine, {.Least = 1})
				.Optional(TEXT("last_line"), &FGetSourceInput::LastLine, {.Least = 1});
		return Schema;
	}
};

using FAnswer = TVexelExpected<TSharedRef<FJsonObject>>;

/** Lines from the first on, as many as an answer holds. OutLastLine is the last of them. */
FString CutText(const FVexelSourceText& Source, int32 FirstLine, int32 LastLine, int32& OutLastLine)
{
	FString Text;
	OutLastLine = FirstLine - 1;
	for (int32 Line = FirstLine; Line <= LastLine && Line < FirstLine + MaxLines; ++Line)
	{
		const FString& Next = Source.Lines[Line - 1];
		if (Text.Len() + Next.Len() >= MaxCharacters && Line > FirstLine)
		{
			break;
		}
		// A line that alone is too long is cut, or nobody could ever come behind it.
		Text += Next.Left(MaxCharacters - 1) + TEXT("\n");
		OutLastLine = Line;
	}
	return Text;
}

FAnswer ReadFile(const FVexelProjectFiles& Files, const FGetSourceInput& Input)
{
	VEXEL_TRY(const FString File, Files.Resolve(*Input.File));
	VEXEL_TRY(const FVexelSourceText Source, FVexelSourceText::Load(File));
	const int32 NumLines = Source.Lines.Num();
	if (Input.FirstLine > FMath::Max(NumLines, 1))
	{
		return VEXEL_ERROR(FVexelError_ToolInvalidInput, "`first_line` is %d, but '%s' has %d lines", Input.FirstLine, **Input.File, NumLines);
	}
	if (Input.LastLine < Input.FirstLine)
	{
		return VEXEL_ERROR(FVexelError_ToolInvalidInput, "`last_line` must not be before `first_line`, and %d is before %d", Input.LastLine,
			Input.FirstLine);
	}
	int32 LastLine = 0;
	const FString Text = CutText(Source, Input.FirstLine, FMath::Min(Input.LastLine, NumLines), LastLine);
	const TSharedRef<FJsonObject> Answer = MakeShared<FJsonObject>();
	Answer->SetStringField(TEXT("file"), *Input.File);
	Answer->SetStringField(TEXT("encoding"), Source.Encoding);
	Answer->SetNumberField(TEXT("first_line"), Input.FirstLine);
	Answer->SetNumberField(TEXT("last_line"), LastLine);
	Answer->SetNumberField(TEXT("total_lines"), NumLines);
	Answer->SetStringField(TEXT("text"), Text);
	return Answer;
}

FVexelError MakeNotFoundError(const FString& Symbol)
{
	const TArray<FString> Like = FVexelSourceIndex::Get().FindLike(Symbol, MaxNamesLike);
	if (Like.IsEmpty())
	{
		return VEXEL_ERROR(FVexelError_ToolInvalidInput, "The project's sources do not declare '%s'", *Symbol);
	}
	return VEXEL_ERROR(FVexelError_ToolInvalidInput, "The project's sources do not declare '%s'; they do declare %s", *Symbol,
		*FString::Join(Like, TEXT(", ")));
}

FAnswer ReadSymbol(const FVexelProjectFiles& Files, const FString& Symbol)
{
	const TArray<FVexelSourceIndex::FMatch> Matches = FVexelSourceIndex::Get().Find(Files, Symbol);
	if (Matches.IsEmpty())
	{
		return MakeNotFoundError(Symbol);
	}
	TArray<TSharedPtr<FJsonValue>> Rows;
	int32 NumCharacters = 0;
	for (int32 Index = 0; Index < FMath::Min(Matches.Num(), MaxDeclarations) && NumCharacters < MaxCharacters; ++Index)
	{
		const FVexelSourceDeclaration& Declaration = Matches[Index].Declaration;
		VEXEL_TRY(const FString File, Files.Resolve(Matches[Index].File));
		VEXEL_TRY(const FVexelSourceText Source, FVexelSourceText::Load(File));
		const int32 LastLine = FMath::Min(Declaration.LastLine, Declaration.FirstLine + MaxDeclarationLines - 1);
		const FString Text = Source.Join(Declaration.FirstLine, LastLine).Left(MaxCharacters - NumCharacters);
		NumCharacters += Text.Len();
		const TSharedRef<FJsonObject> Row = MakeShared<FJsonObject>();
		Row->SetStringField(TEXT("kind"), Declaration.Kind);
		Row->SetStringField(TEXT("name"), Declaration.Name);
		Row->SetStringField(TEXT("file"), Matches[Index].File);
		Row->SetNumberField(TEXT("first_line"), Declaration.FirstLine);
		Row->SetNumberField(TEXT("last_line"), Declaration.LastLine);
		Row->SetStringField(TEXT("text"), Text);
		Rows.Add(MakeShared<FJsonValueObject>(Row));
	}
	const TSharedRef<FJsonObject> Answer = MakeShared<FJsonObject>();
	Answer->SetStringField(TEXT("symbol"), Symbol);
	if (Rows.Num() < Matches.Num())
	{
		Answer->SetNumberField(TEXT("declarations_total"), Matches.Num());
	}
	Answer->SetArrayField(TEXT("declarations"), MoveTemp(Rows));
	return Answer;
}
}

/** "get_source": text of a file of the project, or of what a C++ name declares there. */
class FVexelToolGetSource : public TVexelTool<FGetSourceInput>
{
public:
	using TVexelTool::TVexelTool;

protected:
	virtual TVexelTaskResult<TSharedRef<FJsonObject>> Run(const FVexelToolContext& Context, const FGetSourceInput& Input) const override
	{
		if (Input.File.IsSet() == Input.Symbol.IsSet())
		{
			return VEXEL_ERROR(FVexelError_ToolInvalidInput, "One of `file` and `symbol` must be given");
		}
		return VexelTask(EVexelTaskThread::BackgroundThread, [Input, Files = FVexelProjectFiles()]
			{ return Input.File ? ReadFile(Files, Input) : ReadSymbol(Files, *Input.Symbol); });
	}
};

VEXEL_DEFINE_TOOL(FVexelToolGetSource)
