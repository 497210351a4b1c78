#include "LongPackagePaths.h"

namespace UE::AssetRegistry::Private
{
	FString WithoutTrailingSlash(const FString& Path)
	{
		FString Result = Path;
		while (Result.Len() > 1 && Result.EndsWith(TEXT("/")))
		{
			Result = Result.LeftChop(1);
		}
		return Result;
	}

	bool IsPathUnder(const FString& Path, const FString& BasePath)
	{
		const FString Base = WithoutTrailingSlash(BasePath);
		return Path == Base || Base == TEXT("/") || Path.StartsWith(Base + TEXT("/"));
	}
}
