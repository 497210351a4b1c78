// ELogVerbosity: how important a log line is.
#pragma once

#include "CoreTypes.h"

namespace ELogVerbosity
{
	enum Type : uint8
	{
		NoLogging = 0,
		Fatal,
		Error,
		Warning,
		Display,
		Log,
		Verbose,
		VeryVerbose,
		All = VeryVerbose,
		NumVerbosity,
		VerbosityMask = 0xf,
		SetColor = 0x40,
		BreakOnLog = 0x80
	};
}

/** "Fatal", "Error", "Warning", "Display", "Log", "Verbose", "VeryVerbose" or "NoLogging". */
CORE_API const TCHAR* ToString(ELogVerbosity::Type Verbosity);
/** The verbosity with that name (case-insensitive); NoLogging when unknown. */
CORE_API ELogVerbosity::Type ParseLogVerbosityFromString(const class FString& VerbosityString);
