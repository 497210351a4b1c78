#include "Misc/OutputDevice.h"

#include "CoreGlobals.h"
#include "Misc/DateTime.h"

namespace
{
	/** "[YYYY.MM.DD-HH.MM.SS:mmm][frame]", the frame being GFrameCounter modulo 1000, right-aligned in three columns. */
	FString FormatTimePrefix(ELogTimes::Type LogTime)
	{
		const FDateTime Time = LogTime == ELogTimes::Local ? FDateTime::Now() : FDateTime::UtcNow();
		return FString::Printf(TEXT("[%s][%3llu]"), *Time.ToString(TEXT("%Y.%m.%d-%H.%M.%S:%s")), (unsigned long long)(GFrameCounter % 1000));
	}
}

void FOutputDevice::Log(ELogVerbosity::Type Verbosity, const TCHAR* S)
{
	Serialize(S, Verbosity, NAME_None);
}

void FOutputDevice::Log(const FName& Category, ELogVerbosity::Type Verbosity, const TCHAR* Str)
{
	Serialize(Str, Verbosity, Category);
}

void FOutputDevice::Log(const TCHAR* S)
{
	Serialize(S, ELogVerbosity::Log, NAME_None);
}

void FOutputDevice::Log(const FString& S)
{
	Serialize(*S, ELogVerbosity::Log, NAME_None);
}

void FOutputDevice::Log(const FName& Category, ELogVerbosity::Type Verbosity, const FString& S)
{
	Serialize(*S, Verbosity, Category);
}

FString FOutputDeviceHelper::FormatLogLine(ELogVerbosity::Type Verbosity, const FName& Category, const TCHAR* Message, ELogTimes::Type LogTime)
{
	FString Line;
	if (LogTime != ELogTimes::None)
	{
		Line += FormatTimePrefix(LogTime);
	}
	if (!Category.IsNone())
	{
		Line += Category.ToString();
		Line += TEXT(": ");
	}
	const ELogVerbosity::Type Level = (ELogVerbosity::Type)(Verbosity & ELogVerbosity::VerbosityMask);
	if (Level != ELogVerbosity::Log)
	{
		Line += ToString(Level);
		Line += TEXT(": ");
	}
	if (Message)
	{
		Line += Message;
	}
	return Line;
}
