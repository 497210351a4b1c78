// FFrame: the script execution frame; the stand-in runs no script bytecode and keeps only the frame's message report.
#pragma once

#include "CoreMinimal.h"
#include "Logging/LogVerbosity.h"

// Stand-in choice: only the static message function exists; no frame is ever executed.
struct FFrame
{
	// Reports a script error or warning on LogScript at the given verbosity, as Blueprint and Python callers see it.
	COREUOBJECT_API static void KismetExecutionMessage(const TCHAR* Message, ELogVerbosity::Type Verbosity, FName WarningId = FName());
};
