#include "Logging/LogVerbosity.h"

#include "Containers/UnrealString.h"

const TCHAR* ToString(ELogVerbosity::Type Verbosity)
{
	switch (Verbosity & ELogVerbosity::VerbosityMask)
	{
	case ELogVerbosity::NoLogging: return TEXT("NoLogging");
	case ELogVerbosity::Fatal: return TEXT("Fatal");
	case ELogVerbosity::Error: return TEXT("Error");
	case ELogVerbosity::Warning: return TEXT("Warning");
	case ELogVerbosity::Display: return TEXT("Display");
	case ELogVerbosity::Log: return TEXT("Log");
	case ELogVerbosity::Verbose: return TEXT("Verbose");
	case ELogVerbosity::VeryVerbose: return TEXT("VeryVerbose");
	default: return TEXT("UknownVerbosity");
	}
}

ELogVerbosity::Type ParseLogVerbosityFromString(const FString& VerbosityString)
{
	const ELogVerbosity::Type Candidates[] = { ELogVerbosity::NoLogging, ELogVerbosity::Fatal, ELogVerbosity::Error, ELogVerbosity::Warning,
		ELogVerbosity::Display, ELogVerbosity::Log, ELogVerbosity::Verbose, ELogVerbosity::VeryVerbose };
	for (ELogVerbosity::Type Candidate : Candidates)
	{
		if (VerbosityString == ToString(Candidate))
		{
			return Candidate;
		}
	}
	if (VerbosityString == TEXT("All"))
	{
		return ELogVerbosity::All;
	}
	return ELogVerbosity::NoLogging;
}
