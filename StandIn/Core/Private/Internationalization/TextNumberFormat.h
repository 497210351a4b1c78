// Number formatting of FText (the invariant "en" culture).
#pragma once

#include "Internationalization/Text.h"

namespace UE::Core::Private
{
	FString FormatSignedNumber(int64 Value, const FNumberFormattingOptions& Options);
	FString FormatUnsignedNumber(uint64 Value, const FNumberFormattingOptions& Options);
	FString FormatFloatingNumber(double Value, const FNumberFormattingOptions& Options);
}
