#pragma once

#include "Containers/UnrealString.h"
#include "CoreTypes.h"
#include "Logging/LogVerbosity.h"
#include "UObject/NameTypes.h"

/** Something that takes text lines: the log, a file, the messages of an import. */
class CORE_API FOutputDevice
{
public:
	FOutputDevice() = default;
	FOutputDevice(const FOutputDevice&) = default;
	FOutputDevice& operator=(const FOutputDevice&) = default;
	virtual ~FOutputDevice() = default;

	/** One line without its end. May come from any thread where CanBeUsedOnAnyThread() says so. */
	virtual void Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category) = 0;
	virtual void Flush() {}
	/** Called once, when the device is taken away for good. */
	virtual void TearDown() {}
	virtual bool CanBeUsedOnAnyThread() const { return false; }
	virtual bool CanBeUsedOnMultipleThreads() const { return false; }

	void Log(const TCHAR* Text);
	void Log(ELogVerbosity::Type Verbosity, const TCHAR* Text);
	void Log(const FName& Category, ELogVerbosity::Type Verbosity, const TCHAR* Text);
	void Log(const FString& Text) { Log(*Text); }

	template <typename... Types>
	void Logf(UE::Core::TCheckedFormatString<TCHAR, Types...> Format, Types... Args)
	{
		FormatAndLog(FName(), ELogVerbosity::Log, Format.GetFormatString(), {UE::Core::FFormatArgument(Args)...});
	}

	template <typename... Types>
	void Logf(ELogVerbosity::Type Verbosity, UE::Core::TCheckedFormatString<TCHAR, Types...> Format, Types... Args)
	{
		FormatAndLog(FName(), Verbosity, Format.GetFormatString(), {UE::Core::FFormatArgument(Args)...});
	}

	template <typename... Types>
	void CategorizedLogf(
		const FName& Category, ELogVerbosity::Type Verbosity, UE::Core::TCheckedFormatString<TCHAR, Types...> Format, Types... Args)
	{
		FormatAndLog(Category, Verbosity, Format.GetFormatString(), {UE::Core::FFormatArgument(Args)...});
	}

	void SetSuppressEventTag(bool bInSuppressEventTag) { bSuppressEventTag = bInSuppressEventTag; }
	bool GetSuppressEventTag() const { return bSuppressEventTag; }
	void SetAutoEmitLineTerminator(bool bInAutoEmitLineTerminator) { bAutoEmitLineTerminator = bInAutoEmitLineTerminator; }
	bool GetAutoEmitLineTerminator() const { return bAutoEmitLineTerminator; }

protected:
	bool bSuppressEventTag = false;
	bool bAutoEmitLineTerminator = true;

private:
	void FormatAndLog(const FName& Category, ELogVerbosity::Type Verbosity, const TCHAR* Format,
		std::initializer_list<UE::Core::FFormatArgument> Arguments);
};

/** Takes lines and forgets them. */
class FOutputDeviceNull : public FOutputDevice
{
public:
	using FOutputDevice::Serialize;
	virtual void Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category) override {}
};

/** Collects lines in a string, one below the other. */
class CORE_API FStringOutputDevice : public FString, public FOutputDevice
{
public:
	explicit FStringOutputDevice(const TCHAR* OutputDeviceName = TEXT(""))
		: FString(OutputDeviceName)
	{
		bAutoEmitLineTerminator = false;
	}
	using FOutputDevice::Serialize;
	virtual void Serialize(const TCHAR* InData, ELogVerbosity::Type Verbosity, const FName& Category) override;
};
