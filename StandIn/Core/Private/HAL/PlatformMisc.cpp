#include "HAL/PlatformMisc.h"

#include "Containers/StringConv.h"

#include <cstdio>
#include <cstdlib>
#include <unistd.h>

FString FPlatformMisc::GetEnvironmentVariable(const TCHAR* VariableName)
{
	if (!VariableName || !*VariableName)
	{
		return FString();
	}
	const char* Value = std::getenv(TCHAR_TO_UTF8(VariableName));
	return Value ? FString(UTF8_TO_TCHAR(Value)) : FString();
}

void FPlatformMisc::SetEnvironmentVar(const TCHAR* VariableName, const TCHAR* Value)
{
	if (!VariableName || !*VariableName)
	{
		return;
	}
	if (!Value || !*Value)
	{
		unsetenv(TCHAR_TO_UTF8(VariableName));
		return;
	}
	setenv(TCHAR_TO_UTF8(VariableName), TCHAR_TO_UTF8(Value), 1);
}

void FPlatformMisc::LowLevelOutputDebugString(const TCHAR* Message)
{
	std::fputs(TCHAR_TO_UTF8(Message ? Message : TEXT("")), stderr);
}

void FPlatformMisc::RequestExit(bool Force, const TCHAR* CallSite)
{
	std::fflush(stderr);
	std::fflush(stdout);
	if (Force)
	{
		std::_Exit(0);
	}
	std::exit(0);
}

int32 FPlatformMisc::NumberOfCores()
{
	const long Count = sysconf(_SC_NPROCESSORS_ONLN);
	return Count > 0 ? (int32)Count : 1;
}
