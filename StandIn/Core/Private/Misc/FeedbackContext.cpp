#include "Misc/FeedbackContext.h"

#include "Misc/OutputDeviceRedirector.h"

void FFeedbackContext::Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category)
{
	FOutputDeviceRedirector::Get()->Serialize(V, Verbosity, Category);
}
