#include "MoviePipelineStandInScriptMessage.h"

DEFINE_LOG_CATEGORY_STATIC(LogScript, Warning, All);

namespace UE::MoviePipeline::StandIn
{
	void ReportScriptExecutionMessage(const FString& Message, ELogVerbosity::Type Verbosity)
	{
		if (!LogScript.IsSuppressed(Verbosity))
		{
			FMsg::Log(__FILE__, __LINE__, LogScript.GetCategoryName(), Verbosity, *Message);
		}
	}
}
