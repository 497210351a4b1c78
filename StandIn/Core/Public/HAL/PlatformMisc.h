// FPlatformMisc: environment and low-level output.
#pragma once

#include "CoreTypes.h"
#include "Containers/UnrealString.h"

struct FPlatformMisc
{
	/** The variable's value, or an empty string. */
	CORE_API static FString GetEnvironmentVariable(const TCHAR* VariableName);
	CORE_API static void SetEnvironmentVar(const TCHAR* VariableName, const TCHAR* Value);
	CORE_API static void LowLevelOutputDebugString(const TCHAR* Message);
	CORE_API static void RequestExit(bool Force, const TCHAR* CallSite = nullptr);
	CORE_API static int32 NumberOfCores();
	static const TCHAR* GetDefaultPathSeparator() { return TEXT("/"); }
	/** The longest path the platform accepts, in characters. Stand-in choice: Linux's PATH_MAX, as the engine's Unix platform. */
	static int32 GetMaxPathLength() { return 4096; }
	static const TCHAR* GetLineTerminator() { return TEXT("\n"); }
};
