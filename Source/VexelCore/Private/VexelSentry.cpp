#include "VexelSentry.h"

#include "HAL/PlatformTime.h"
#include "Misc/OutputDevice.h"
#include "Misc/OutputDeviceRedirector.h"
#include "Misc/ScopeLock.h"
#include "Sentry/SentryDsn.h"
#include "Sentry/SentryEvent.h"
#include "Sentry/SentryLimiter.h"
#include "Sentry/SentrySpool.h"
#include "VexelHttp.h"
#include "VexelErrorKinds.h"
#include "VexelInternalConfig.h"
#include "VexelLog.h"
#include "VexelPluginGenerated.h"
#include "VexelSecrets.h"

namespace
{
FConfigValueBase DsnSetting(TEXT("SentryDsn"), TEXT(""), EConfigValueFlags::Secret);

constexpr int32 MaxBreadcrumbs = 50;
constexpr float SendTimeoutSeconds = 15.0f;
/** How long nothing is sent after the service asked to be left alone, unless it says how long. */
constexpr double DefaultPauseSeconds = 60.0;
constexpr double LongestPauseSeconds = 3600.0;

/** Behind Lock, all of it. */
struct FReporter
{
	FCriticalSection Lock;
	/** Unset while nothing is reported. */
	TOptional<FSentryDsn> Dsn;
	TUniquePtr<FSentrySpool> Spool;
	TSharedPtr<FVexelHttp> Client;
	FSentryLimiter Limiter;
	FVexelSentryUser User;
	bool bSending = false;
	double PausedUntil = 0.0;
	/** Counts the starts, so that an answer to an earlier one's request changes nothing. */
	int32 Run = 0;
};

/** Never destroyed, since errors are captured until the very end. */
FReporter& GetReporter()
{
	static FReporter* const Reporter = new FReporter;
	return *Reporter;
}

/** The last log lines, behind a lock of their own: a line may come from somebody who holds the reporter's. */
struct FBreadcrumbs
{
	FCriticalSection Lock;
	TArray<FSentryBreadcrumb> Lines;
};

FBreadcrumbs& GetBreadcrumbs()
{
	static FBreadcrumbs* const Breadcrumbs = new FBreadcrumbs;
	return *Breadcrumbs;
}

TArray<FSentryBreadcrumb> CopyBreadcrumbs()
{
	FBreadcrumbs& Breadcrumbs = GetBreadcrumbs();
	FScopeLock Guard(&Breadcrumbs.Lock);
	return Breadcrumbs.Lines;
}

/** Remembers the plug-in's own log lines. Those of the editor and of other plug-ins are nobody's business. */
class FBreadcrumbDevice final : public FOutputDevice
{
public:
	virtual void Serialize(const TCHAR* Text, ELogVerbosity::Type Verbosity, const FName& Category) override
	{
		if (Category == Client.GetCategoryName() && Verbosity <= ELogVerbosity::Log)
		{
			FVexelSentry::Log(Verbosity, FString(Text));
		}
	}
	virtual bool CanBeUsedOnAnyThread() const override { return true; }
	virtual bool CanBeUsedOnMultipleThreads() const override { return true; }
};

/** Never destroyed, since it may be given a line until the very end. */
FBreadcrumbDevice& GetBreadcrumbDevice()
{
	static FBreadcrumbDevice* const Device = new FBreadcrumbDevice;
	return *Device;
}

void SendNext(FReporter& Reporter);

/** Whether an envelope should be tried again later: it got no answer, or one that says nothing about it. */
bool IsWorthKeeping(const FVexelError& Error, int32 Status)
{
	return !Error.IsA<FVexelError_HttpStatusClientError>() || Status == 408 || Status == 429;
}

double GetPauseSeconds(const TSharedPtr<FVexelHttpResponse>& Response)
{
	const FString RetryAfter = Response ? Response->GetHeader(TEXT("Retry-After")) : FString();
	return RetryAfter.IsNumeric() ? FMath::Clamp(FCString::Atod(*RetryAfter), 1.0, LongestPauseSeconds) : DefaultPauseSeconds;
}

void OnSent(const TSharedRef<FVexelHttpRequest>& Request, const FSentrySpool::FWaiting& Waiting, const FVexelError* Error, int32 Run)
{
	FReporter& Reporter = GetReporter();
	FScopeLock Guard(&Reporter.Lock);
	if (Reporter.Run != Run)
	{
		return;
	}
	Reporter.bSending = false;
	const TSharedPtr<FVexelHttpResponse> Response = Request->GetResponse();
	if (Error && IsWorthKeeping(*Error, Response ? Response->GetStatus() : 0))
	{
		Reporter.PausedUntil = FPlatformTime::Seconds() + GetPauseSeconds(Response);
		return;
	}
	Reporter.Spool->Remove(Waiting);
	SendNext(Reporter);
}

/** Sends the oldest envelope that waits, unless one is on its way. The lock is held. */
void SendNext(FReporter& Reporter)
{
	if (!Reporter.Dsn || Reporter.bSending || FPlatformTime::Seconds() < Reporter.PausedUntil)
	{
		return;
	}
	const TOptional<FSentrySpool::FWaiting> Waiting = Reporter.Spool->FindOldest();
	if (!Waiting)
	{
		return;
	}
	Reporter.bSending = true;
	const FString Version = FVexelPluginGenerated::GetVersionString();
	const TSharedRef<FVexelHttpRequest> Request =
		Reporter.Client->Request(EVexelHttpVerb::Post, FString())
			.WithTimeout(SendTimeoutSeconds)
			.WithSecrecy()
			.WithHeader(TEXT("X-Sentry-Auth"),
				FString::Printf(TEXT("Sentry sentry_version=7, sentry_key=%s, sentry_client=vexel/%s"), *Reporter.Dsn->PublicKey, *Version))
			.WithPayload(FVexelHttpTextPayload{TEXT("application/x-sentry-envelope"), Waiting->Envelope})
			.Send();
	Request->Await().OnComplete([Request, Waiting = *Waiting, Run = Reporter.Run](const TVexelExpected<TSharedRef<FVexelHttpResponse>>& Result)
		{ FVexelTaskManager::ScheduleFunc(EVexelTaskThread::BackgroundThread, [Request, Waiting, Run, Result]
			  { OnSent(Request, Waiting, Result.HasError() ? &Result.GetError() : nullptr, Run); }); });
}

void Report(const FVexelError& Error, const FVexelErrorPlace& Place, const TCHAR* Level)
{
	FReporter& Reporter = GetReporter();
	FScopeLock Guard(&Reporter.Lock);
	if (!Reporter.Dsn)
	{
		return;
	}
	const FString Fingerprint = FString::Printf(TEXT("%s|%s:%d|%s:%d"), *Error.GetKind().GetName(), *Error.GetSourceFile(),
		Error.GetSourceLine(), UTF8_TO_TCHAR(Place.File), Place.Line);
	if (Reporter.Limiter.Allow(Fingerprint, FPlatformTime::Seconds()))
	{
		// On disk first, so that a report of what ends the process is not lost with it.
		Reporter.Spool->Add(SentryEvent::MakeEnvelope(SentryEvent::Make(Error, Place, Level, Reporter.User, CopyBreadcrumbs())));
		SendNext(Reporter);
	}
}
}

void FVexelSentry::Start(const FString& SpoolDirectory)
{
	const FString DsnText = DsnSetting.Get();
	const TOptional<FSentryDsn> Dsn = FSentryDsn::Parse(DsnText);
	if (!Dsn)
	{
		if (!DsnText.IsEmpty())
		{
			VEXEL_LOG(Warning, "The setting SentryDsn is no address of an error-reporting service; nothing is reported");
		}
		return;
	}
	GLog->AddOutputDevice(&GetBreadcrumbDevice());
	FReporter& Reporter = GetReporter();
	FScopeLock Guard(&Reporter.Lock);
	++Reporter.Run;
	Reporter.Dsn = Dsn;
	Reporter.Spool = MakeUnique<FSentrySpool>(SpoolDirectory);
	Reporter.Client = MakeShared<FVexelHttp>(FVexelHttpClientConfig(Dsn->EnvelopeUrl));
	Reporter.Limiter = FSentryLimiter();
	Reporter.bSending = false;
	Reporter.PausedUntil = 0.0;
	SendNext(Reporter);
}

void FVexelSentry::Stop()
{
	GLog->RemoveOutputDevice(&GetBreadcrumbDevice());
	FReporter& Reporter = GetReporter();
	FScopeLock Guard(&Reporter.Lock);
	++Reporter.Run;
	Reporter.Dsn.Reset();
	Reporter.Client.Reset();
	Reporter.Spool.Reset();
	Reporter.User = FVexelSentryUser();
	FBreadcrumbs& Breadcrumbs = GetBreadcrumbs();
	FScopeLock BreadcrumbGuard(&Breadcrumbs.Lock);
	Breadcrumbs.Lines.Reset();
}

void FVexelSentry::CaptureError(FVexelError&& Error, const FVexelErrorPlace& Place)
{
	VEXEL_LOG_AT(Error, Place.File, Place.Line, Error.ToString());
	Report(Error, Place, TEXT("error"));
}

void FVexelSentry::CaptureErrorSoft(FVexelError&& Error, const FVexelErrorPlace& Place)
{
	VEXEL_LOG_AT(Warning, Place.File, Place.Line, Error.ToString());
	Report(Error, Place, TEXT("warning"));
}

void FVexelSentry::User(const FVexelSentryUser& User)
{
	FReporter& Reporter = GetReporter();
	FScopeLock Guard(&Reporter.Lock);
	Reporter.User = User;
}

void FVexelSentry::Log(ELogVerbosity::Type Verbosity, const FString& Line)
{
	FBreadcrumbs& Breadcrumbs = GetBreadcrumbs();
	FScopeLock Guard(&Breadcrumbs.Lock);
	if (Breadcrumbs.Lines.Num() == MaxBreadcrumbs)
	{
		Breadcrumbs.Lines.RemoveAt(0);
	}
	Breadcrumbs.Lines.Add(FSentryBreadcrumb{SentryEvent::GetTime(), Verbosity, Line});
}

void FVexelSentry::PerfLog(const FString& Name, double Seconds)
{
	const FString Line = FString::Printf(TEXT("%s took %.3f s"), *Name, Seconds);
	VEXEL_LOG(Verbose, "%s", *Line);
	Log(ELogVerbosity::Verbose, Line);
}
