#include "Commands.h"
#include "Console.h"
#include "Dom/JsonObject.h"
#include "Dom/JsonValue.h"
#include "ForeignService.h"
#include "HAL/PlatformMisc.h"
#include "Session.h"
#include "VexelAccount.h"
#include "VexelClient.h"

namespace
{
/** Why "--service" does not say where the account is, or nothing. */
TOptional<FString> CheckService(const TCHAR* Command, const FArguments& Arguments)
{
	if (!Arguments.Has(TEXT("--service")))
	{
		return FString::Printf(
			TEXT("%s: at which service? Give its address with --service URL; the one that is started without it needs no login"), Command);
	}
	return ForeignService::CheckAddress(Arguments.Get(TEXT("--service")));
}

bool HasVariable(const TCHAR* Name)
{
	return !FPlatformMisc::GetEnvironmentVariable(Name).IsEmpty();
}

/** Whether a browser that is opened here is one that the user sees, on the machine where this program listens. */
bool HasOwnBrowser(const FArguments& Arguments)
{
	return !Arguments.Has(TEXT("--no-browser")) && !HasVariable(TEXT("SSH_CONNECTION")) &&
		(HasVariable(TEXT("DISPLAY")) || HasVariable(TEXT("WAYLAND_DISPLAY")));
}

/** Waits while a login is under way; false when the user pressed Ctrl-C. */
bool WaitWhilePending()
{
	return FSession::TickUntil([]
		{ return FVexelClient::GetLoginState() != FVexelClient::ELoginState::Pending; });
}

/** The value of a task that the editor's ticks carry on, or why there is none. */
template <typename T>
TVexelExpected<T> WaitFor(const TVexelTaskResult<T>& Result)
{
	FSession::TickUntil([&]
		{ return Result.IsComplete(); });
	return Result.Value();
}

void WriteUser(const FVexelAccountUser& User, bool bJson)
{
	if (bJson)
	{
		const TSharedRef<FJsonObject> Document = MakeShared<FJsonObject>();
		Document->SetStringField(TEXT("service"), FVexelClient::GetApiUrl());
		Document->SetStringField(TEXT("name"), User.Name);
		Document->SetStringField(TEXT("email"), User.Email);
		Document->SetNumberField(TEXT("credits"), User.Credits);
		Document->SetNumberField(TEXT("max_credits"), User.MaxCredits);
		TArray<TSharedPtr<FJsonValue>> Features;
		for (const FString& Feature : User.Features)
		{
			Features.Add(MakeShared<FJsonValueString>(Feature));
		}
		Document->SetArrayField(TEXT("features"), Features);
		WriteJson(Document);
		return;
	}
	FConsole::WriteLine(FString::Printf(TEXT("%s <%s>"), *User.Name, *User.Email));
	FConsole::WriteLine(FString::Printf(TEXT("credits: %d of %d"), User.Credits, User.MaxCredits));
	FConsole::WriteLine(FString::Printf(TEXT("features: %s"), *FString::Join(User.Features, TEXT(", "))));
}

/** Fetches and shows who is logged in; answers the exit status. */
int32 ShowUser(bool bJson)
{
	const TVexelExpected<FVexelAccountUser> User = WaitFor(FVexelAccount::FetchUser());
	if (User.HasError())
	{
		FConsole::WriteError(User.GetError().ToChainString());
		return ExitStatus::Failed;
	}
	WriteUser(User.GetValue(), bJson);
	return ExitStatus::Done;
}

/**
 * Tells the user where to log in, and whether the browser opens that by itself. With a document on standard output, that goes to
 * standard error.
 */
void ShowAddress(const FString& Url, bool bJson, bool bOpened)
{
	if (bJson)
	{
		FConsole::WriteError(FString::Printf(TEXT("to log in, open %s"), *Url));
		return;
	}
	FConsole::WriteLine(bOpened ? TEXT("Your browser opens the page of the login. If it does not, open this address:")
								: TEXT("To log in, open this address in a browser, on any machine:"));
	FConsole::WriteLine(TEXT("\n  ") + Url + TEXT("\n"));
	FConsole::WriteLine(TEXT("Waiting for your answer there. Ctrl-C cancels."));
}

int32 Fail(const FString& Reason)
{
	FConsole::WriteError(Reason);
	return ExitStatus::Failed;
}

int32 FailUsage(const FString& Reason)
{
	FConsole::WriteError(Reason);
	return ExitStatus::WrongUsage;
}
}

int32 RunLoginCommand(const FArguments& Arguments)
{
	if (const TOptional<FString> Reason = CheckService(TEXT("login"), Arguments))
	{
		return FailUsage(*Reason);
	}
	const bool bJson = Arguments.Has(TEXT("--json"));
	FSession Session;
	if (const TOptional<FString> Failure = Session.StartAtService(Arguments))
	{
		return Fail(*Failure);
	}
	const bool bSettled = WaitWhilePending();
	if (bSettled && FVexelClient::GetLoginState() == FVexelClient::ELoginState::LoggedOut)
	{
		const bool bOpen = HasOwnBrowser(Arguments);
		const TVexelExpected<void> Started = FVexelAccount::LogIn(
			{.bListen = bOpen, .Open = [bJson, bOpen](const FString& Url, TFunctionRef<FString()> LaunchBrowser)
				{
					ShowAddress(Url, bJson, bOpen && LaunchBrowser().IsEmpty());
					return FString(); }});
		if (Started.HasError())
		{
			return Fail(Started.GetError().ToChainString());
		}
		if (!WaitWhilePending())
		{
			FVexelAccount::CancelLogin();
			return Fail(TEXT("the login was cancelled"));
		}
	}
	if (FVexelClient::GetLoginState() != FVexelClient::ELoginState::LoggedIn)
	{
		const TOptional<FVexelError> Failure = FVexelClient::GetLoginFailure();
		return Fail(FString::Printf(TEXT("not logged in at %s: %s"), *FVexelClient::GetApiUrl(),
			Failure ? *Failure->ToChainString() : TEXT("the login was interrupted")));
	}
	if (!bJson)
	{
		FConsole::WriteLine(FString::Printf(TEXT("Logged in at %s as"), *FVexelClient::GetApiUrl()));
	}
	return ShowUser(bJson);
}

int32 RunLogoutCommand(const FArguments& Arguments)
{
	if (const TOptional<FString> Reason = CheckService(TEXT("logout"), Arguments))
	{
		return FailUsage(*Reason);
	}
	FSession Session;
	if (const TOptional<FString> Failure = Session.StartAtService(Arguments))
	{
		return Fail(*Failure);
	}
	WaitWhilePending();
	const FString Url = FVexelClient::GetApiUrl();
	const bool bWasStored = FVexelAccount::IsLoginStored();
	const bool bWasOnline = FVexelClient::GetLoginState() == FVexelClient::ELoginState::LoggedIn;
	const TVexelExpected<void> LoggedOut = bWasStored || bWasOnline ? WaitFor(FVexelAccount::LogOut()) : TVexelExpected<void>();
	if (FVexelAccount::IsLoginStored())
	{
		return Fail(FString::Printf(TEXT("the login at %s could not be forgotten: %s"), *Url,
			LoggedOut.HasError() ? *LoggedOut.GetError().ToChainString() : TEXT("it is still stored")));
	}
	if (LoggedOut.HasError() || (bWasStored && !bWasOnline))
	{
		const TOptional<FVexelError> Failure =
			LoggedOut.HasError() ? TOptional<FVexelError>(LoggedOut.GetError()) : FVexelClient::GetLoginFailure();
		return Fail(FString::Printf(TEXT("the login at %s is forgotten here, but the service did not revoke it: %s"), *Url,
			Failure ? *Failure->ToChainString() : TEXT("it was not reached")));
	}
	if (Arguments.Has(TEXT("--json")))
	{
		const TSharedRef<FJsonObject> Document = MakeShared<FJsonObject>();
		Document->SetStringField(TEXT("service"), Url);
		Document->SetBoolField(TEXT("was_logged_in"), bWasOnline);
		WriteJson(Document);
		return ExitStatus::Done;
	}
	FConsole::WriteLine(FString::Printf(TEXT("%s at %s."), bWasOnline ? TEXT("Logged out") : TEXT("Nobody is logged in"), *Url));
	return ExitStatus::Done;
}

int32 RunWhoamiCommand(const FArguments& Arguments)
{
	if (Arguments.Has(TEXT("--service")))
	{
		if (const TOptional<FString> Reason = ForeignService::CheckAddress(Arguments.Get(TEXT("--service"))))
		{
			return FailUsage(*Reason);
		}
	}
	FSession Session;
	if (const TOptional<FString> Failure = Session.StartConnected(Arguments))
	{
		return Fail(*Failure);
	}
	return ShowUser(Arguments.Has(TEXT("--json")));
}
