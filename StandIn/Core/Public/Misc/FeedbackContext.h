// FFeedbackContext: GWarn, an output device that also reports progress.
#pragma once

#include "CoreTypes.h"
#include "Internationalization/Text.h"
#include "Misc/OutputDevice.h"

class FFeedbackContext : public FOutputDevice
{
public:
	/** Sends the line to GLog. */
	CORE_API virtual void Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category) override;

	/** Stand-in choice: the headless editor has no one to ask, so questions are answered "no". */
	virtual bool YesNof(const FText& Question) { return false; }
	virtual bool ReceivedUserCancel() { return false; }
	virtual void BeginSlowTask(const FText& Task, bool ShowProgressDialog, bool bShowCancelButton = false) {}
	virtual void UpdateProgress(int32 Numerator, int32 Denominator) {}
	virtual void StatusUpdate(int32 Numerator, int32 Denominator, const FText& StatusText) {}
	virtual void StatusForceUpdate(int32 Numerator, int32 Denominator, const FText& StatusText) {}
	virtual void EndSlowTask() {}

	bool TreatWarningsAsErrors = false;
};
