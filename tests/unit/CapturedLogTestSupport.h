// A log device for tests that check what was logged, line by line, as the engine formats it.
#pragma once

#include "CoreMinimal.h"
#include "Misc/OutputDeviceRedirector.h"

// Records every line GLog sends it while it is registered.
class FCapturedLog final : public FOutputDevice
{
public:
	FCapturedLog() { GLog->AddOutputDevice(this); }
	virtual ~FCapturedLog() override { GLog->RemoveOutputDevice(this); }

	virtual void Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category) override
	{
		Lines.Add(FOutputDeviceHelper::FormatLogLine(Verbosity, Category, V));
	}

	TArray<FString> Lines;
};
