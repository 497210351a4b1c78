// FOutputDeviceRedirector: GLog, which sends every line to the registered output devices.
#pragma once

#include "CoreTypes.h"
#include "Containers/Array.h"
#include "Misc/OutputDevice.h"

#include <mutex>

/**
 * Stand-in choice: besides the devices added by AddOutputDevice, GLog always writes Display, Warning, Error and
 * Fatal lines to stderr (Log lines too when the environment variable VLMR_VERBOSE_LOG is 1), as the editor's console does.
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
	CORE_API static bool ShouldPrintToConsole(ELogVerbosity::Type Verbosity);

private:
	std::recursive_mutex Mutex;
	TArray<FOutputDevice*> OutputDevices;
};
