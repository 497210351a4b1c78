// Script execution messages of the Movie Render Pipeline modules, as FFrame::KismetExecutionMessage reports them.
#pragma once

#include "CoreMinimal.h"

namespace UE::MoviePipeline::StandIn
{
	// Through FFrame::KismetExecutionMessage, from code that has the message as an FString.
	MOVIERENDERPIPELINECORE_API void ReportScriptExecutionMessage(const FString& Message, ELogVerbosity::Type Verbosity);
}
