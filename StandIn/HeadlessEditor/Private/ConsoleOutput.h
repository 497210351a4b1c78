// Lines written to the process's standard streams as UTF-8, flushed at once.
#pragma once

#include "CoreMinimal.h"
#include "Misc/OutputDevice.h"

#include <cstdio>

namespace UE::Vlmr
{
	void WriteLine(FILE* Stream, const FString& Line);

	// An output device that writes every line it receives to standard output.
	class FStandardOutputDevice : public FOutputDevice
	{
	public:
		virtual void Serialize(const TCHAR* Text, ELogVerbosity::Type Verbosity, const FName& Category) override;
	};
}
