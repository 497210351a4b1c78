// FPlatformProcess: the current process and user.
#pragma once

#include "CoreTypes.h"

struct FPlatformProcess
{
	/** The login name; with bOnlyAlphaNumeric, characters other than letters and digits are removed. */
	CORE_API static const TCHAR* UserName(bool bOnlyAlphaNumeric = true);
	/** The temporary directory (TMPDIR or /tmp), without trailing '/'. */
	CORE_API static const TCHAR* UserTempDir();
	CORE_API static const TCHAR* UserDir();
	CORE_API static const TCHAR* ComputerName();
	/** The directory of the running executable, with a trailing '/'. */
	CORE_API static const TCHAR* BaseDir();
	CORE_API static const TCHAR* ExecutableName(bool bRemoveExtension = true);
	CORE_API static uint32 GetCurrentProcessId();
	CORE_API static uint32 GetCurrentCoreNumber();
	CORE_API static void Sleep(float Seconds);
	CORE_API static void SleepNoStats(float Seconds);
};
