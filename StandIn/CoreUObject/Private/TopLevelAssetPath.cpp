#include "UObject/TopLevelAssetPath.h"

#include "Containers/StringConv.h"
#include "Misc/PackageName.h"
#include "ObjectPathText.h"
#include "UObject/Class.h"
#include "UObject/Package.h"
#include "UObject/UnrealType.h"

STANDIN_IMPLEMENT_STRUCT(FTopLevelAssetPath, "CoreUObject")
{
}

bool FTopLevelAssetPath::TrySetPath(FName InPackageName, FName InAssetName)
{
	PackageName = InPackageName;
	AssetName = InAssetName;
	return !PackageName.IsNone();
}

bool FTopLevelAssetPath::TrySetPath(const UObject* InObject)
{
	if (InObject == nullptr)
	{
		Reset();
		return false;
	}
	if (InObject->GetOuter() == nullptr)
	{
		PackageName = InObject->GetFName();
		AssetName = FName();
		return true;
	}
	if (InObject->GetOuter()->GetOuter() != nullptr)
	{
		Reset();
		return false;
	}
	PackageName = InObject->GetOuter()->GetFName();
	AssetName = InObject->GetFName();
	return true;
}

bool FTopLevelAssetPath::TrySetPath(FStringView Path)
{
	if (Path.IsEmpty() || Path.Equals(TEXT("None"), ESearchCase::CaseSensitive))
	{
		Reset();
		return false;
	}

	FString PathString(Path);
	if (PathString[0] != TEXT('/') || PathString.EndsWith(TEXT("'"), ESearchCase::CaseSensitive))
	{
		PathString = FPackageName::ExportTextPathToObjectPath(PathString);
		if (PathString.IsEmpty() || PathString[0] != TEXT('/'))
		{
			ensureAlwaysMsgf(false, TEXT("Short asset name used to create FTopLevelAssetPath: \"%s\""), *PathString);
			Reset();
			return false;
		}
	}

	int32 DotIndex = INDEX_NONE;
	if (!PathString.FindChar(TEXT('.'), DotIndex))
	{
		PackageName = FName(*PathString);
		AssetName = FName();
		return true;
	}
	if (DotIndex == 0)
	{
		Reset();
		return false;
	}

	const FString AssetNameString = PathString.RightChop(DotIndex + 1);
	if (AssetNameString.IsEmpty())
	{
		PackageName = FName(*PathString.Left(DotIndex));
		AssetName = FName();
		return true;
	}
	int32 InvalidIndex = INDEX_NONE;
	if (AssetNameString.FindChar(TEXT('.'), InvalidIndex) || AssetNameString.FindChar(TEXT(':'), InvalidIndex))
	{
		Reset();
		return false;
	}
	PackageName = FName(*PathString.Left(DotIndex));
	AssetName = FName(*AssetNameString);
	return true;
}

bool FTopLevelAssetPath::TrySetPath(const ANSICHAR* Path)
{
	return TrySetPath(FString(Path ? Path : ""));
}

void FTopLevelAssetPath::AppendString(FString& OutString) const
{
	if (IsNull())
	{
		return;
	}
	PackageName.AppendString(OutString);
	if (!AssetName.IsNone())
	{
		OutString += TEXT(".");
		AssetName.AppendString(OutString);
	}
}

FString FTopLevelAssetPath::ToString() const
{
	FString Result;
	AppendString(Result);
	return Result;
}

void FTopLevelAssetPath::ToString(FString& OutString) const
{
	OutString.Reset();
	AppendString(OutString);
}

FName FTopLevelAssetPath::ToFName() const
{
	return IsNull() ? FName() : FName(*ToString());
}

int32 FTopLevelAssetPath::Compare(const FTopLevelAssetPath& Other) const
{
	const int32 PackageComparison = PackageName.Compare(Other.PackageName);
	return PackageComparison != 0 ? PackageComparison : AssetName.Compare(Other.AssetName);
}

bool FTopLevelAssetPath::CompareFast(const FTopLevelAssetPath& Other) const
{
	return PackageName != Other.PackageName ? PackageName.FastLess(Other.PackageName) : AssetName.FastLess(Other.AssetName);
}

bool FTopLevelAssetPath::ExportTextItem(FString& ValueStr, FTopLevelAssetPath const& DefaultValue, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) const
{
	if (IsNull())
	{
		ValueStr += TEXT("None");
	}
	else
	{
		UE::CoreUObject::Private::AppendPathText(ValueStr, ToString(), (PortFlags & PPF_Delimited) != 0);
	}
	return true;
}

bool FTopLevelAssetPath::ImportTextItem(const TCHAR*& Buffer, int32 PortFlags, UObject* Parent, FOutputDevice* ErrorText, FArchive* InSerializingArchive)
{
	FString ImportedPath;
	const TCHAR* NewBuffer = UE::CoreUObject::Private::ReadObjectPathText(Buffer, ImportedPath);
	if (!NewBuffer)
	{
		return false;
	}
	Buffer = NewBuffer;
	if (ImportedPath.IsEmpty())
	{
		Reset();
	}
	else
	{
		TrySetPath(ImportedPath);
	}
	return true;
}
