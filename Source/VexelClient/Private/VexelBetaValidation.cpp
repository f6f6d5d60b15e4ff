#include "Framework/Notifications/NotificationManager.h"
#include "HAL/PlatformProcess.h"
#include "Misc/CoreMisc.h"
#include "Misc/Parse.h"
#include "Misc/ScopedSlowTask.h"
#include "Modules/ModuleManager.h"
#include "ToolMenus.h"
#include "VexelClient.h"
#include "VexelErrorKinds.h"
#include "VexelHttp.h"
#include "VexelSentry.h"
#include "Widgets/Notifications/SNotificationList.h"

#define LOCTEXT_NAMESPACE "Vexel"

namespace
{
constexpr float TimeoutSeconds = 30.0f;
constexpr float ShownSeconds = 5.0f;
/** How often the window redraws and looks for the answer. */
constexpr float FrameSeconds = 0.02f;

bool RunConsoleCommand(UWorld*, const TCHAR* Command, FOutputDevice&)
{
	FVexelClient* const Module = FModuleManager::GetModulePtr<FVexelClient>(TEXT("VexelClient"));
	if (!Module || !FParse::Command(&Command, TEXT("Vexel.ValidateBetaFeatures")))
	{
		return false;
	}
	// The notification says how it went.
	(void)Module->ValidateBetaFeatures();
	return true;
}

FStaticSelfRegisteringExec ConsoleCommand(&RunConsoleCommand);

/** Shows the window until the request is complete; its cancel button cancels the request. */
void ShowUntilComplete(const TSharedRef<FVexelHttpRequest>& Request)
{
	const FText Message = LOCTEXT("ValidatingBetaFeatures", "Validating Beta Features... Please wait.");
	FScopedSlowTask SlowTask(1.0f, Message);
	SlowTask.MakeDialog(true);
	SlowTask.EnterProgressFrame(1.0f, Message);
	while (!Request->Await().IsComplete())
	{
		SlowTask.TickProgress();
		if (SlowTask.ShouldCancel())
		{
			Request->Cancel();
		}
		FPlatformProcess::Sleep(FrameSeconds);
	}
}

void Notify(const FText& Title, const FText& Text, SNotificationItem::ECompletionState State)
{
	FNotificationInfo Info(Title);
	Info.SubText = Text;
	Info.ExpireDuration = ShownSeconds;
	const TSharedPtr<SNotificationItem> Item = FSlateNotificationManager::Get().AddNotification(Info);
	if (Item)
	{
		Item->SetCompletionState(State);
	}
}
}

void FVexelClient::RegisterMenus()
{
	const FToolMenuOwnerScoped Owner(this);
	UToolMenus::Get()
		->ExtendMenu(TEXT("LevelEditor.MainMenu.Tools"))
		->FindOrAddSection(TEXT("Vexel"), LOCTEXT("MenuSection", "Vexel"))
		.AddMenuEntry(TEXT("ValidateBetaFeatures"), LOCTEXT("ValidateBetaFeatures", "Validate Beta Features"),
			LOCTEXT("ValidateBetaFeaturesTip", "Has the service check the beta features of your account."), FSlateIcon(),
			FUIAction(FExecuteAction::CreateLambda([this]
				{ (void)ValidateBetaFeatures(); })));
}

TVexelExpected<void> FVexelClient::ValidateBetaFeatures()
{
	check(IsInGameThread());
	FVexelErrorContextScope Scope(TEXT("validate_beta_features"));
	// Not held for the features of a login that has just begun: they would come on this thread, which waits here.
	const TSharedRef<FVexelHttpRequest> Request = GetApiClient()
													  ->Request(EVexelHttpVerb::Post, TEXT("/api/validate_beta_features"))
													  .WithTimeout(TimeoutSeconds)
													  .WithAuth()
													  .WithoutHold()
													  .Send();
	ShowUntilComplete(Request);
	TVexelExpected<TSharedRef<FVexelHttpResponse>> Result = Request->Await().Value();
	if (Result.HasError())
	{
		Notify(LOCTEXT("BetaFeaturesFailed", "Beta Features Validation Failed"),
			LOCTEXT("BetaFeaturesFailedText", "Failed to validate beta features"), SNotificationItem::CS_Fail);
		FVexelError Error = MoveTemp(Result).GetError();
		Error.AppendContext(TEXT("while validating beta features"));
		if (!Error.IsA<FVexelError_HttpCancelled>())
		{
			FVexelSentry::CaptureErrorSoft(FVexelError(Error), VEXEL_HERE);
		}
		return Error;
	}
	Notify(LOCTEXT("BetaFeaturesComplete", "Beta Features Validation Complete"),
		LOCTEXT("BetaFeaturesCompleteText", "All beta features have been validated successfully"), SNotificationItem::CS_Success);
	return TVexelExpected<void>();
}

#undef LOCTEXT_NAMESPACE
