#pragma once

#include "CoreMinimal.h"
#include "Containers/StringConv.h"
#include "Misc/OutputDevice.h"
#include "Misc/OutputDeviceRedirector.h"
#include "Misc/ScopeLock.h"

#include <string>
#include <vector>

/** Takes every log line while it lives, from any thread, and keeps the console silent. */
class FLogCapture final : public FOutputDevice
{
public:
	struct FLine
	{
		std::string Category;
		ELogVerbosity::Type Verbosity;
		std::string Text;
	};

	FLogCapture()
		: OldVerbosity(GLog->GetConsoleVerbosity())
	{
		GLog->SetConsoleVerbosity(ELogVerbosity::NoLogging);
		GLog->AddOutputDevice(this);
	}

	virtual ~FLogCapture() override
	{
		GLog->RemoveOutputDevice(this);
		GLog->SetConsoleVerbosity(OldVerbosity);
	}

	UE_NONCOPYABLE(FLogCapture)

	virtual void Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category) override
	{
		FScopeLock Guard(&Lock);
		Lines.push_back({TCHAR_TO_UTF8(*Category.ToString()), Verbosity, TCHAR_TO_UTF8(V)});
	}
	virtual bool CanBeUsedOnAnyThread() const override { return true; }
	virtual bool CanBeUsedOnMultipleThreads() const override { return true; }

	std::vector<FLine> GetLines() const
	{
		FScopeLock Guard(&Lock);
		return Lines;
	}

	/** How many lines have the text in them. */
	int32 Count(const std::string& Text) const
	{
		int32 Found = 0;
		for (const FLine& Line : GetLines())
		{
			Found += Line.Text.find(Text) != std::string::npos ? 1 : 0;
		}
		return Found;
	}
	bool Contains(const std::string& Text) const { return Count(Text) > 0; }

	/** All texts, a line each, for a failure's message. */
	std::string ToText() const
	{
		std::string Text;
		for (const FLine& Line : GetLines())
		{
			Text += Line.Category + ": " + Line.Text + "\n";
		}
		return Text;
	}

	void Clear()
	{
		FScopeLock Guard(&Lock);
		Lines.clear();
	}

private:
	mutable FCriticalSection Lock;
	std::vector<FLine> Lines;
	ELogVerbosity::Type OldVerbosity;
};
