#include "CoreGlobals.h"

#include "Misc/FeedbackContext.h"
#include "Misc/OutputDeviceRedirector.h"

#include <pthread.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace
{
	/** GError: whatever it receives is logged as an Error. */
	class FOutputDeviceError final : public FOutputDevice
	{
	public:
		virtual void Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category) override
		{
			FOutputDeviceRedirector::Get()->Serialize(V, ELogVerbosity::Error, Category);
		}
	};

	FOutputDevice* GetErrorDevice()
	{
		static FOutputDeviceError* Device = new FOutputDeviceError();
		return Device;
	}

	FFeedbackContext* GetWarnDevice()
	{
		static FFeedbackContext* Device = new FFeedbackContext();
		return Device;
	}

	uint32 CurrentThreadId()
	{
		return (uint32)syscall(SYS_gettid);
	}
}

FOutputDeviceRedirector* GLog = FOutputDeviceRedirector::Get();
FOutputDevice* GError = GetErrorDevice();
FFeedbackContext* GWarn = GetWarnDevice();
bool GIsEditor = true;
uint64 GFrameCounter = 0;
bool GIsRunning = true;
bool GIsAutomationTesting = false;
// Stand-in choice: the game thread is the thread that loads the engine (the process's main thread).
uint32 GGameThreadId = CurrentThreadId();

bool IsInGameThread()
{
	return CurrentThreadId() == GGameThreadId;
}

DEFINE_LOG_CATEGORY(LogTemp);
DEFINE_LOG_CATEGORY(LogCore);
DEFINE_LOG_CATEGORY(LogOutputDevice);
