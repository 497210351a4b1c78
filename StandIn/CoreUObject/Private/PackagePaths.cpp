#include "PackagePaths.h"

#include "UObject/Object.h"
#include "UObject/Package.h"

namespace UE::CoreUObject::StandIn::Private
{
	FString AppendPathWithinPackage(const FString& OuterPath, FName Name)
	{
		if (OuterPath.IsEmpty())
		{
			return Name.ToString();
		}
		int32 ColonIndex = INDEX_NONE;
		const TCHAR* Delimiter = OuterPath.FindChar(TEXT(':'), ColonIndex) ? TEXT(".") : TEXT(":");
		return OuterPath + Delimiter + Name.ToString();
	}

	FString GetPathWithinPackage(const UObject* Object, const UPackage* Package)
	{
		if (!Object || Object == Package)
		{
			return FString();
		}
		return AppendPathWithinPackage(GetPathWithinPackage(Object->GetOuter(), Package), Object->GetFName());
	}
}
