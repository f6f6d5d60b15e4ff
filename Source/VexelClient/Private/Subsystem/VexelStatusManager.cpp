#include "Subsystem/VexelStatusManager.h"

#include "Dom/JsonObject.h"
#include "Editor.h"
#include "Misc/ScopeLock.h"
#include "TimerManager.h"
#include "VexelClient.h"
#include "VexelErrorKinds.h"
#include "VexelHttp.h"
#include "VexelInternalConfig.h"
#include "VexelSentry.h"
#include "VexelTry.h"

namespace
{
FConfigValueBase StatusUrlSetting(TEXT("StatusUrl"), TEXT("https://status.vexel.dev"));

constexpr float PeriodSeconds = 300.0f;
constexpr float TimeoutSeconds = 30.0f;
constexpr int32 MaxAnswerBytes = 1 << 20;

TVexelExpected<FVexelStatusInfo> ReadStatus(const TSharedRef<FVexelHttpResponse>& Response)
{
	const TSharedPtr<FJsonObject> Body = Response->GetContentJson();
	const TSharedPtr<FJsonObject>* Status = nullptr;
	FVexelStatusInfo Info;
	if (!Body || !Body->TryGetObjectField(TEXT("status"), Status) || !Info.FromJson(Status->ToSharedRef()))
	{
		return VEXEL_ERROR(FVexelError_StatusCheckInvalidResponse, "");
	}
	return Info;
}

}

FVexelStatusManager& FVexelStatusManager::Get()
{
	static FVexelStatusManager Manager;
	return Manager;
}

void FVexelStatusManager::InternalStartStatusCheck()
{
	if (!GEditor || GEditor->GetTimerManager()->IsTimerActive(Timer))
	{
		return;
	}
	GEditor->GetTimerManager()->SetTimer(
		Timer, FTimerDelegate::CreateLambda([this]
				   { InternalRunStatusCheck().OnComplete([](const TVexelExpected<void>&) {}); }),
		PeriodSeconds, true, -1.0f);
	InternalRunStatusCheck().OnComplete([](const TVexelExpected<void>&) {});
}

TVexelTaskResult<void> FVexelStatusManager::InternalRunStatusCheck()
{
	const FString Url = StatusUrlSetting.Get() + TEXT("/api/v2/status.json");
	return Try(FVexelClient::Get()
				   .GetAuxiliaryHttpClient()
				   ->Request(EVexelHttpVerb::Get, Url)
				   .WithTimeout(TimeoutSeconds)
				   .WithAnswerLimit(MaxAnswerBytes)
				   .SendAndAwait())
		.Then([](const TSharedRef<FVexelHttpResponse>& Response)
			{ return ReadStatus(Response); })
		.ThenOn(EVexelTaskThread::GameThread, [this, NumStopsThen = NumStops](const FVexelStatusInfo& Info)
			{ Take(Info, NumStopsThen); })
		.Catch<FVexelError>([this, NumStopsThen = NumStops](const FVexelError& Error) -> TVexelExpected<void>
			{
				ReportFailure(Error, NumStopsThen);
				return Error; });
}

void FVexelStatusManager::Take(const FVexelStatusInfo& Info, int32 NumStopsThen)
{
	if (NumStopsThen == NumStops)
	{
		Current = Info;
		OnStatusChanged.Broadcast(Info);
	}
}

void FVexelStatusManager::ReportFailure(const FVexelError& Cause, int32 NumStopsThen)
{
	// Requests are cancelled when the module ends, which is no failure.
	if (Cause.IsCausedBy<FVexelError_HttpCancelled>() || Cause.IsCausedBy<FVexelError_TaskNotFinished>())
	{
		return;
	}
	const FScopeLock Guard(&Lock);
	if (NumStopsThen == NumStops)
	{
		FVexelError Error = VEXEL_ERROR_CAUSED(FVexelError_StatusCheck, Cause, "");
		Error.AppendContext(TEXT("while checking system status"));
		FVexelSentry::CaptureErrorSoft(MoveTemp(Error), VEXEL_HERE);
	}
}

void FVexelStatusManager::InternalStopStatusCheck()
{
	if (GEditor)
	{
		GEditor->GetTimerManager()->ClearTimer(Timer);
	}
	const FScopeLock Guard(&Lock);
	++NumStops;
}
