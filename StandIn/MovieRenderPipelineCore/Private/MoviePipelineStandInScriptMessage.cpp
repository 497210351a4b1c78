#include "MoviePipelineStandInScriptMessage.h"

#include "UObject/Stack.h"

namespace UE::MoviePipeline::StandIn
{
	void ReportScriptExecutionMessage(const FString& Message, ELogVerbosity::Type Verbosity)
	{
		FFrame::KismetExecutionMessage(*Message, Verbosity);
	}
}
