#include "Misc/OutputDevice.h"

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

FString FOutputDeviceHelper::FormatLogLine(ELogVerbosity::Type Verbosity, const FName& Category, const TCHAR* Message)
{
	FString Line;
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
