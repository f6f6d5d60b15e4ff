#include "Session.h"

#include "Arguments.h"
#include "Console.h"
#include "ForeignService.h"
#include "HAL/FileManager.h"
#include "HAL/PlatformMisc.h"
#include "HAL/PlatformProcess.h"
#include "HeadlessEditor.h"
#include "Misc/Guid.h"
#include "Misc/Paths.h"
#include "VexelClient.h"
#include "VexelInternalConfig.h"
#include "VexelSecureStorage.h"

#include <csignal>

namespace
{
constexpr float TickSeconds = 1.0f / 60.0f;
const FName PluginModule = TEXT("VexelClient");

volatile sig_atomic_t GInterrupted = 0;

void OnInterrupt(int)
{
	GInterrupted = 1;
}

void CatchInterrupts()
{
	struct sigaction Action = {};
	Action.sa_handler = OnInterrupt;
	sigaction(SIGINT, &Action, nullptr);
}

/** The tree that this program stands in: the nearest directory above it that has the engine's headers of declarations. */
FString FindRootDirectory()
{
	FString Directory = FPaths::GetPath(FPaths::ConvertRelativePathToFull(FString(FPlatformProcess::ExecutablePath())));
	while (!Directory.IsEmpty() && !FPaths::DirectoryExists(Directory / TEXT("Engine/ScriptApi")))
	{
		const FString Parent = FPaths::GetPath(Directory);
		Directory = Parent == Directory ? FString() : Parent;
	}
	return Directory;
}
}

FSession::~FSession()
{
	if (bStarted)
	{
		FHeadlessEditor::Stop();
	}
	if (!SecretsDirectory.IsEmpty())
	{
		IFileManager::Get().DeleteDirectory(*SecretsDirectory, false, true);
	}
}

TOptional<FString> FSession::Start(const FArguments& Arguments)
{
	return Boot(Arguments, {});
}

TOptional<FString> FSession::StartConnected(const FArguments& Arguments)
{
	const TOptional<FString> Failure = StartAtService(Arguments);
	return Failure ? Failure : WaitForLogin();
}

TOptional<FString> FSession::StartAtService(const FArguments& Arguments)
{
	FString Url = Arguments.Get(TEXT("--service"));
	if (const TOptional<FString> Failure =
			Url.IsEmpty() ? StartLocalService() : ForeignService::Prepare(Url, Arguments.Get(TEXT("--token-fd"))))
	{
		return Failure;
	}
	if (Url.IsEmpty())
	{
		Url = LocalService.GetUrl();
	}
	while (Url.RemoveFromEnd(TEXT("/")))
	{
	}
	for (const TCHAR* const Key : {TEXT("ApiUrl"), TEXT("AppUrl"), TEXT("InsightsApiUrl"), TEXT("StatusUrl")})
	{
		if (FConfigValueBase* const Setting = FVexelInternalConfig::Find(Key))
		{
			Setting->SetOverride(Url);
		}
	}
	return Boot(Arguments, {PluginModule});
}

TOptional<FString> FSession::Boot(const FArguments& Arguments, const TArray<FName>& Modules)
{
	const FString Root = FindRootDirectory();
	if (Root.IsEmpty())
	{
		return FString(TEXT("the program does not stand in its tree: there is no Engine/ScriptApi above it"));
	}
	FHeadlessEditorOptions Options;
	Options.EngineDir = Root / TEXT("Engine");
	Options.Project = Arguments.Has(TEXT("--project")) ? Arguments.Get(TEXT("--project")) : Root / TEXT("Samples/Lighthouse");
	Options.Modules = Modules;
	CatchInterrupts();
	const FString Failure = FHeadlessEditor::Start(Options);
	if (!Failure.IsEmpty())
	{
		return Failure;
	}
	bStarted = true;
	return NullOpt;
}

TOptional<FString> FSession::StartLocalService()
{
	const FString Program = FPaths::GetPath(FString(FPlatformProcess::ExecutablePath())) / TEXT("vexel-service");
	if (const TOptional<FString> Failure = LocalService.Start(Program))
	{
		return Failure;
	}
	// A store of this process alone: the local service's token is of no use to another, nor after it.
	SecretsDirectory = FPaths::Combine(FString(FPlatformProcess::UserTempDir()), TEXT("vexel-") + FGuid::NewGuid().ToString());
	FVexelSecureStorage::SetDirectory(SecretsDirectory);
	const TVexelExpected<void> Stored = FVexelSecureStorage::StoreValueString(TEXT("rt"), LocalService.GetRefreshToken());
	return Stored.HasError() ? TOptional<FString>(Stored.GetError().ToShortString()) : NullOpt;
}

TOptional<FString> FSession::WaitForLogin()
{
	const bool bFinished = TickUntil([]
		{ return FVexelClient::GetLoginState() != FVexelClient::ELoginState::Pending; });
	if (!bFinished)
	{
		return FString(TEXT("the login was interrupted"));
	}
	if (FVexelClient::GetLoginState() != FVexelClient::ELoginState::LoggedOut)
	{
		return NullOpt;
	}
	const TOptional<FVexelError> Failure = FVexelClient::GetLoginFailure();
	const FString Url = FVexelClient::GetApiUrl();
	const FString Reason = Failure
		? Failure->ToChainString()
		: FString::Printf(TEXT("there is no stored login for it; log in with: vexel login --service %s"), *Url);
	return FString::Printf(TEXT("not logged in at %s: %s"), *Url, *Reason);
}

bool FSession::TickUntil(TFunctionRef<bool()> Condition)
{
	while (!Condition())
	{
		if (GInterrupted)
		{
			return false;
		}
		FHeadlessEditor::WaitAndTick(TickSeconds);
	}
	return true;
}

bool FSession::TakeInterrupt()
{
	const bool bInterrupted = GInterrupted != 0;
	GInterrupted = 0;
	return bInterrupted;
}
