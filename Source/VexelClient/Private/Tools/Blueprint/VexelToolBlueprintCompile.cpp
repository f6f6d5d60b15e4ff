#include "Blueprint/VexelBlueprintManipulator.h"
#include "Tools/Blueprint/VexelBlueprintRequestHelper.h"
#include "Tools/VexelTool.h"
#include "Tools/VexelToolSchema.h"

#include "Internationalization/Text.h"
#include "Kismet2/CompilerResultsLog.h"
#include "Logging/TokenizedMessage.h"

namespace
{
/** What the engine's critical errors were numbered before they went. Logs of old modules may hold it. */
constexpr int32 RetiredCriticalError = 0;

bool IsError(int32 Severity)
{
	return Severity == RetiredCriticalError || Severity == EMessageSeverity::Error;
}

const TCHAR* GetSeverityWord(int32 Severity)
{
	switch (Severity)
	{
		case RetiredCriticalError:
		case EMessageSeverity::Error:
			return TEXT("error");
		case EMessageSeverity::PerformanceWarning:
			return TEXT("performance_warning");
		case EMessageSeverity::Warning:
			return TEXT("warning");
		case EMessageSeverity::Info:
			return TEXT("info");
		default:
			return TEXT("unknown");
	}
}

/** In the language of the source where the text has one, so that the assistant reads the same words in every editor. */
FString GetMessageText(const FTokenizedMessage& Message)
{
	const FText Text = Message.ToText();
	const FString* const Source = FTextInspector::GetSourceString(Text);
	return Source && !Source->IsEmpty() ? *Source : Text.ToString();
}

TSharedRef<FJsonObject> MakeAnswer(const FCompilerResultsLog& Log)
{
	bool bSuccess = true;
	TArray<TSharedPtr<FJsonValue>> Messages;
	for (const TSharedRef<FTokenizedMessage>& Message : Log.Messages)
	{
		const int32 Severity = Message->GetSeverity();
		bSuccess &= !IsError(Severity);
		const TSharedRef<FJsonObject> Object = MakeShared<FJsonObject>();
		Object->SetStringField(TEXT("severity"), GetSeverityWord(Severity));
		Object->SetStringField(TEXT("message"), GetMessageText(*Message));
		Messages.Add(MakeShared<FJsonValueObject>(Object));
	}
	const TSharedRef<FJsonObject> Answer = MakeShared<FJsonObject>();
	Answer->SetBoolField(TEXT("success"), bSuccess);
	Answer->SetArrayField(TEXT("compiler_messages"), MoveTemp(Messages));
	return Answer;
}

struct FCompileInput
{
	FString Blueprint;

	static const TVexelToolSchema<FCompileInput>& GetSchema()
	{
		static const TVexelToolSchema<FCompileInput> Schema = TVexelToolSchema<FCompileInput>().Required(
			TEXT("blueprint"), &FCompileInput::Blueprint, {.Complaint = TEXT("Blueprint path not provided in tool input!")});
		return Schema;
	}
};

/** Unlike for the other tools, a Blueprint that is not there is a failure of the work. */
TVexelExpected<FVexelBlueprintRequestHelper> FindTarget(const FVexelToolContext& Context, const FString& BlueprintId)
{
	VEXEL_TRY(const TSharedRef<FVexelBlueprintMapping> Mapping,
		FVexelBlueprintRequestHelper::FindMapping(Context, TEXT("Failed to find the conversation.")));
	TVexelExpected<FVexelBlueprintRequestHelper> Target = FVexelBlueprintRequestHelper::Find(Mapping, BlueprintId);
	if (Target.HasError())
	{
		return VEXEL_ERROR(FVexelError_ToolCallFailed, "Blueprint not found: %s", *BlueprintId);
	}
	return Target;
}
}

/** "compile": compiles a Blueprint and answers what the compiler says of it. */
class FVexelToolBlueprintCompile : public TVexelTool<FCompileInput>
{
public:
	using TVexelTool::TVexelTool;

protected:
	virtual TVexelTaskResult<TSharedRef<FJsonObject>> Run(const FVexelToolContext& Context, const FCompileInput& Input) const override
	{
		const TVexelExpected<FVexelBlueprintRequestHelper> Target = FindTarget(Context, Input.Blueprint);
		if (Target.HasError())
		{
			return Target.GetError();
		}
		// The target keeps the Blueprint until the compile is through.
		return FVexelBlueprintManipulator(Target.GetValue().GetBlueprint(), Target.GetValue().GetMapping())
			.CompileBlueprint()
			.Then([Kept = Target.GetValue()](const TSharedRef<FCompilerResultsLog>& Log)
				{ return MakeAnswer(*Log); });
	}
};

VEXEL_DEFINE_TOOL(FVexelToolBlueprintCompile)
