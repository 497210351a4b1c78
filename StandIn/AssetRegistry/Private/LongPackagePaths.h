// Comparisons of long package paths ("/Game/Dir") and names ("/Game/Dir/Asset").
#pragma once

#include "CoreMinimal.h"

namespace UE::AssetRegistry::Private
{
	// "/Game/Dir/" -> "/Game/Dir"; "/" stays "/".
	FString WithoutTrailingSlash(const FString& Path);

	// Whether Path is BasePath itself or below it: "/Game/Dir/Asset" is under "/Game/Dir", "/Game/Dir/" and "/".
	bool IsPathUnder(const FString& Path, const FString& BasePath);
}
