// FOutputDeviceRedirector: GLog, which sends every line to the registered output devices.
#pragma once

#include "CoreTypes.h"
#include "Containers/Array.h"
#include "Misc/OutputDevice.h"

#include <atomic>
#include <mutex>

/**
 * Stand-in choice: besides the devices added by AddOutputDevice, GLog writes the lines up to its console verbosity to
 * stderr, as the editor's console does: Display and above until the host sets another with SetConsoleVerbosity.
 */
class FOutputDeviceRedirector final : public FOutputDevice
{
public:
	CORE_API FOutputDeviceRedirector();
	CORE_API static FOutputDeviceRedirector* Get();

	CORE_API void AddOutputDevice(FOutputDevice* OutputDevice);
	CORE_API void RemoveOutputDevice(FOutputDevice* OutputDevice);
	CORE_API bool IsRedirectingTo(FOutputDevice* OutputDevice);

	CORE_API virtual void Serialize(const TCHAR* Data, ELogVerbosity::Type Verbosity, const FName& Category) override;
	CORE_API virtual void Serialize(const TCHAR* Data, ELogVerbosity::Type Verbosity, const FName& Category, const double Time) override;
	CORE_API virtual void Flush() override;
	CORE_API virtual void TearDown() override;
	virtual bool CanBeUsedOnAnyThread() const override { return true; }
	virtual bool CanBeUsedOnMultipleThreads() const override { return true; }

	/** Whether the console (stderr) receives lines of this verbosity. */
	CORE_API bool ShouldPrintToConsole(ELogVerbosity::Type Verbosity) const;
	/** The most verbose level the console (stderr) receives; ELogVerbosity::All for every line. */
	CORE_API void SetConsoleVerbosity(ELogVerbosity::Type InConsoleVerbosity);
	CORE_API ELogVerbosity::Type GetConsoleVerbosity() const;

private:
	std::recursive_mutex Mutex;
	std::atomic<ELogVerbosity::Type> ConsoleVerbosity{ELogVerbosity::Display};
	TArray<FOutputDevice*> OutputDevices;
};
