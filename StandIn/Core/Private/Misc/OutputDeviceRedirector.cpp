#include "Misc/OutputDeviceRedirector.h"

#include "Containers/StringConv.h"

#include <cstdio>

namespace
{
	void WriteLineToStdErr(const TCHAR* Data, ELogVerbosity::Type Verbosity, const FName& Category)
	{
		const FString Line = FOutputDeviceHelper::FormatLogLine(Verbosity, Category, Data);
		FTCHARToUTF8 Converted(*Line);
		std::fwrite(Converted.Get(), 1, (size_t)Converted.Length(), stderr);
		std::fputc('\n', stderr);
	}
}

FOutputDeviceRedirector::FOutputDeviceRedirector() = default;

FOutputDeviceRedirector* FOutputDeviceRedirector::Get()
{
	// Stand-in choice: the log lives for the whole process, so that logging during shutdown stays safe.
	static FOutputDeviceRedirector* Singleton = new FOutputDeviceRedirector();
	return Singleton;
}

void FOutputDeviceRedirector::AddOutputDevice(FOutputDevice* OutputDevice)
{
	if (!OutputDevice)
	{
		return;
	}
	std::lock_guard<std::recursive_mutex> Lock(Mutex);
	OutputDevices.AddUnique(OutputDevice);
}

void FOutputDeviceRedirector::RemoveOutputDevice(FOutputDevice* OutputDevice)
{
	std::lock_guard<std::recursive_mutex> Lock(Mutex);
	OutputDevices.Remove(OutputDevice);
}

bool FOutputDeviceRedirector::IsRedirectingTo(FOutputDevice* OutputDevice)
{
	std::lock_guard<std::recursive_mutex> Lock(Mutex);
	return OutputDevices.Contains(OutputDevice);
}

bool FOutputDeviceRedirector::ShouldPrintToConsole(ELogVerbosity::Type Verbosity) const
{
	const ELogVerbosity::Type Level = (ELogVerbosity::Type)(Verbosity & ELogVerbosity::VerbosityMask);
	return Level != ELogVerbosity::NoLogging && Level <= ConsoleVerbosity.load();
}

void FOutputDeviceRedirector::SetConsoleVerbosity(ELogVerbosity::Type InConsoleVerbosity)
{
	ConsoleVerbosity.store(InConsoleVerbosity);
}

ELogVerbosity::Type FOutputDeviceRedirector::GetConsoleVerbosity() const
{
	return ConsoleVerbosity.load();
}

void FOutputDeviceRedirector::Serialize(const TCHAR* Data, ELogVerbosity::Type Verbosity, const FName& Category)
{
	Serialize(Data, Verbosity, Category, -1.0);
}

void FOutputDeviceRedirector::Serialize(const TCHAR* Data, ELogVerbosity::Type Verbosity, const FName& Category, const double Time)
{
	if (!Data)
	{
		Data = TEXT("");
	}
	std::lock_guard<std::recursive_mutex> Lock(Mutex);
	if (ShouldPrintToConsole(Verbosity))
	{
		WriteLineToStdErr(Data, Verbosity, Category);
	}
	// A device may add or remove devices while it is being written to.
	const TArray<FOutputDevice*> DevicesToWrite = OutputDevices;
	for (FOutputDevice* Device : DevicesToWrite)
	{
		if (OutputDevices.Contains(Device))
		{
			Device->Serialize(Data, Verbosity, Category, Time);
		}
	}
}

void FOutputDeviceRedirector::Flush()
{
	std::lock_guard<std::recursive_mutex> Lock(Mutex);
	std::fflush(stderr);
	const TArray<FOutputDevice*> DevicesToFlush = OutputDevices;
	for (FOutputDevice* Device : DevicesToFlush)
	{
		Device->Flush();
	}
}

void FOutputDeviceRedirector::TearDown()
{
	std::lock_guard<std::recursive_mutex> Lock(Mutex);
	const TArray<FOutputDevice*> DevicesToTearDown = OutputDevices;
	OutputDevices.Empty();
	for (FOutputDevice* Device : DevicesToTearDown)
	{
		Device->TearDown();
	}
}
