// Script execution messages of the Movie Render Pipeline modules, as FFrame::KismetExecutionMessage reports them.
#pragma once

#include "CoreMinimal.h"

namespace UE::MoviePipeline::StandIn
{
	// Stand-in choice: without FFrame in the stand-in CoreUObject, the message goes to LogScript at its verbosity.
	MOVIERENDERPIPELINECORE_API void ReportScriptExecutionMessage(const FString& Message, ELogVerbosity::Type Verbosity);
}
