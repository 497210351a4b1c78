#include "UObject/Stack.h"

#include "Logging/LogMacros.h"

DEFINE_LOG_CATEGORY_STATIC(LogScript, Warning, All);

void FFrame::KismetExecutionMessage(const TCHAR* Message, ELogVerbosity::Type Verbosity, FName WarningId)
{
	if (!LogScript.IsSuppressed(Verbosity))
	{
		FMsg::Log(__FILE__, __LINE__, LogScript.GetCategoryName(), Verbosity, Message);
	}
}
