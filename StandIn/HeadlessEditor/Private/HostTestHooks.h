// The host's hooks for test drivers: exported by VelmireAI but declared in none of its public headers, so that only
// vlmr, which declares them here as the host defines them, reaches them; an extension cannot.
#pragma once

#include "CoreMinimal.h"

namespace UE::VelmireAI::Private
{
	// Makes every package under the prefix read-only for this process's sessions (or editable again).
	VELMIREAI_API void SetPackagePrefixReadOnly(const FString& Prefix, bool bReadOnly);
}
