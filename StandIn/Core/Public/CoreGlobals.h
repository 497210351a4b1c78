// Engine-wide globals: GLog, GError, GWarn, GIsEditor, GFrameCounter, LogTemp.
#pragma once

#include "CoreTypes.h"
#include "Logging/LogMacros.h"

class FOutputDeviceRedirector;
class FOutputDevice;
class FFeedbackContext;

/** The log: every UE_LOG line goes through it. */
extern CORE_API FOutputDeviceRedirector* GLog;
/** Logs what it receives at Error verbosity. */
extern CORE_API FOutputDevice* GError;
extern CORE_API FFeedbackContext* GWarn;
extern CORE_API bool GIsEditor;
extern CORE_API bool GIsRunning;
extern CORE_API bool GIsAutomationTesting;
extern CORE_API uint32 GGameThreadId;
/** The number of frames the engine has ticked. */
extern CORE_API uint64 GFrameCounter;

/** Whether the caller runs on the thread that loaded the engine (the game thread). */
CORE_API bool IsInGameThread();

CORE_API DECLARE_LOG_CATEGORY_EXTERN(LogTemp, Log, All);
CORE_API DECLARE_LOG_CATEGORY_EXTERN(LogCore, Log, All);
CORE_API DECLARE_LOG_CATEGORY_EXTERN(LogOutputDevice, Log, All);
