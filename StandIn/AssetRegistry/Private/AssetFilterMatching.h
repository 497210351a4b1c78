// Whether an asset passes a filter.
#pragma once

#include "CoreMinimal.h"

struct FAssetData;
struct FARFilter;

namespace UE::AssetRegistry::Private
{
	// Package names, package paths, object paths, classes and package flags each restrict the result when given.
	bool DoesAssetMatchFilter(const FAssetData& Asset, const FARFilter& Filter);
}
