#include "Misc/OutputDevice.h"

#include "Misc/OutputDeviceRedirector.h"
#include "Misc/StringBuilder.h"

#include <algorithm>
#include <cstdio>

void FOutputDevice::Log(const TCHAR* Text)
{
	Log(FName(), ELogVerbosity::Log, Text);
}

void FOutputDevice::Log(ELogVerbosity::Type Verbosity, const TCHAR* Text)
{
	Log(FName(), Verbosity, Text);
}

void FOutputDevice::Log(const FName& Category, ELogVerbosity::Type Verbosity, const TCHAR* Text)
{
	Serialize(Text, Verbosity, Category);
}

void FOutputDevice::FormatAndLog(const FName& Category, ELogVerbosity::Type Verbosity, const TCHAR* Format,
	std::initializer_list<UE::Core::FFormatArgument> Arguments)
{
	TStringBuilder<512> Line;
	UE::Core::FormatTo(Line, Format, Arguments.begin(), static_cast<int32>(Arguments.size()));
	Serialize(Line.ToString(), Verbosity, Category);
}

void FStringOutputDevice::Serialize(const TCHAR* InData, ELogVerbosity::Type Verbosity, const FName& Category)
{
	FString::operator+=(InData);
	if (bAutoEmitLineTerminator)
	{
		FString::operator+=(LINE_TERMINATOR);
	}
}

FOutputDeviceRedirector* FOutputDeviceRedirector::Get()
{
	// Never destroyed: the last destructors of the process may log.
	static FOutputDeviceRedirector* const Redirector = new FOutputDeviceRedirector();
	return Redirector;
}

void FOutputDeviceRedirector::AddOutputDevice(FOutputDevice* OutputDevice)
{
	const std::lock_guard Lock(Mutex);
	if (OutputDevice != nullptr && std::find(Devices.begin(), Devices.end(), OutputDevice) == Devices.end())
	{
		Devices.push_back(OutputDevice);
	}
}

void FOutputDeviceRedirector::RemoveOutputDevice(FOutputDevice* OutputDevice)
{
	const std::lock_guard Lock(Mutex);
	std::erase(Devices, OutputDevice);
}

bool FOutputDeviceRedirector::IsRedirectingTo(FOutputDevice* OutputDevice)
{
	const std::lock_guard Lock(Mutex);
	return std::find(Devices.begin(), Devices.end(), OutputDevice) != Devices.end();
}

void FOutputDeviceRedirector::Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category)
{
	const std::lock_guard Lock(Mutex);
	for (FOutputDevice* const Device : Devices)
	{
		Device->Serialize(V, Verbosity, Category);
	}
	const uint8 Level = Verbosity & ELogVerbosity::VerbosityMask;
	if (Level > ConsoleVerbosity.load(std::memory_order_relaxed))
	{
		return;
	}
	TStringBuilder<512> Line;
	Line << Category << TEXT(": ");
	if (Level != ELogVerbosity::Log)
	{
		Line << ToString(Verbosity) << TEXT(": ");
	}
	Line << V;
	const FTCHARToUTF8 Utf8(Line);
	std::fprintf(stderr, "%s\n", Utf8.Get());
}

void FOutputDeviceRedirector::Flush()
{
	const std::lock_guard Lock(Mutex);
	for (FOutputDevice* const Device : Devices)
	{
		Device->Flush();
	}
}

void FOutputDeviceRedirector::TearDown()
{
	const std::lock_guard Lock(Mutex);
	for (FOutputDevice* const Device : Devices)
	{
		Device->TearDown();
	}
	Devices.clear();
}
