#include "Logging/LogSuppressionInterface.h"

#include "Logging/LogCategory.h"
#include "Logging/LogCategoryList.h"
#include "Misc/CommandLine.h"
#include "Misc/ConfigCacheIni.h"
#include "Misc/CoreMisc.h"
#include "Misc/OutputDevice.h"
#include "Misc/OutputDeviceRedirector.h"
#include "Misc/Parse.h"

#include <optional>

namespace
{
/** What a word makes of a category's verbosity. */
std::optional<ELogVerbosity::Type> GetVerbosity(const FLogCategoryBase& Category, const FString& Word)
{
	if (Word == TEXT("off") || Word == TEXT("none"))
	{
		return ELogVerbosity::NoLogging;
	}
	if (Word == TEXT("on") || Word == TEXT("reset") || Word == TEXT("default"))
	{
		return Category.GetDefaultVerbosity();
	}
	if (Word == TEXT("toggle"))
	{
		return Category.GetVerbosity() == ELogVerbosity::NoLogging ? Category.GetDefaultVerbosity() : ELogVerbosity::NoLogging;
	}
	const ELogVerbosity::Type Parsed = ParseLogVerbosityFromString(Word);
	const bool bIsName = Word == ToString(Parsed) || Word == TEXT("All");
	return bIsName ? std::optional(Parsed) : std::nullopt;
}

/** Whether there was such a category and such a word. */
bool SetVerbosities(const FString& Name, const FString& Word)
{
	const bool bIsGlobal = Name == TEXT("global");
	bool bSet = false;
	ForEachLogCategory([&](FLogCategoryBase& Category)
		{
			if (bIsGlobal || Category.GetCategoryName() == *Name)
			{
				const std::optional<ELogVerbosity::Type> Verbosity = GetVerbosity(Category, Word);
				bSet = bSet || Verbosity.has_value();
				Category.SetVerbosity(Verbosity.value_or(Category.GetVerbosity()));
			} });
	return bSet;
}

void List(const FString& Part, FOutputDevice& Ar)
{
	TArray<FString> Lines;
	ForEachLogCategory([&](FLogCategoryBase& Category)
		{
			const FString Name = Category.GetCategoryName().ToString();
			if (Part.IsEmpty() || Name.Contains(Part))
			{
				Lines.AddUnique(FString::Printf(TEXT("%s %s"), *Name, ToString(Category.GetVerbosity())));
			} });
	Lines.Sort();
	for (const FString& Line : Lines)
	{
		Ar.Log(Line);
	}
}

class FLogSuppression final : public FLogSuppressionInterface
{
public:
	virtual void ProcessConfigAndCommandLine() override
	{
		TArray<FString> Settings;
		if (GConfig != nullptr && GConfig->GetSection(TEXT("Core.Log"), Settings, GEngineIni))
		{
			for (const FString& Setting : Settings)
			{
				ProcessCommands(*Setting.Replace(TEXT("="), TEXT(" ")), *GLog);
			}
		}
		FString Commands;
		if (FParse::Value(FCommandLine::Get(), TEXT("LogCmds="), Commands, false))
		{
			ProcessCommands(*Commands, *GLog);
		}
	}

	virtual void ProcessCommands(const TCHAR* Commands, FOutputDevice& Ar) override
	{
		TArray<FString> Parts;
		FString(Commands).ParseIntoArray(Parts, TEXT(","));
		for (const FString& Part : Parts)
		{
			TArray<FString> Words;
			Part.ParseIntoArrayWS(Words);
			if (!Words.IsEmpty() && Words[0] == TEXT("Log"))
			{
				Words.RemoveAt(0);
			}
			ProcessCommand(Words, Part, Ar);
		}
	}

private:
	static void ProcessCommand(const TArray<FString>& Words, const FString& Command, FOutputDevice& Ar)
	{
		const bool bHasWord = Words.Num() == 2;
		if ((Words.Num() == 1 || bHasWord) && Words[0] == TEXT("list"))
		{
			List(bHasWord ? Words[1] : FString(), Ar);
			return;
		}
		const bool bIsReset = Words.Num() == 1 && Words[0] == TEXT("reset");
		const bool bSet = bIsReset ? SetVerbosities(TEXT("global"), TEXT("reset"))
								   : !Words.IsEmpty() && SetVerbosities(Words[0], bHasWord ? Words[1] : FString(TEXT("toggle")));
		if (!bSet || Words.Num() > 2)
		{
			Ar.Logf(ELogVerbosity::Warning, TEXT("Log command \"%s\" was not understood"), *Command.TrimStartAndEnd());
		}
	}
};

/** "Log ..." as a console command. */
bool ExecLog(UWorld*, const TCHAR* Command, FOutputDevice& Ar)
{
	if (!FParse::Command(&Command, TEXT("LOG")))
	{
		return false;
	}
	FLogSuppressionInterface::Get().ProcessCommands(Command, Ar);
	return true;
}

const FStaticSelfRegisteringExec LogExec(&ExecLog);
}

FLogSuppressionInterface& FLogSuppressionInterface::Get()
{
	static FLogSuppression Suppression;
	return Suppression;
}
