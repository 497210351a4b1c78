#include "Misc/PackageName.h"

#include "HAL/FileManager.h"
#include "Misc/Paths.h"
#include "UObject/Package.h"

DEFINE_LOG_CATEGORY_STATIC(LogPackageName, Log, All);

namespace UE::PackageName::Private
{
	// The engine's INVALID_LONGPACKAGE_CHARACTERS.
	const TCHAR* const InvalidLongPackageCharacters = TEXT("\\:*?\"<>|' ,.&!~\n\r\t@#");
	constexpr int32 MinPackageNameLength = 4;

	struct FMountPoint
	{
		FString RootPath;
		FString ContentPath;
		bool bReadOnly = false;
	};

	TArray<FMountPoint>& GetRegisteredMountPoints()
	{
		static TArray<FMountPoint> RegisteredMountPoints;
		return RegisteredMountPoints;
	}

	FString WithTrailingSlash(FString Path)
	{
		FPaths::NormalizeDirectoryName(Path);
		if (!Path.EndsWith(TEXT("/"), ESearchCase::CaseSensitive))
		{
			Path += TEXT("/");
		}
		return Path;
	}

	// Built on every call because the project directory may change while the process runs.
	TArray<FMountPoint> GetMountPoints()
	{
		TArray<FMountPoint> MountPoints = GetRegisteredMountPoints();
		MountPoints.Add({ TEXT("/Game/"), WithTrailingSlash(FPaths::ConvertRelativePathToFull(FPaths::ProjectContentDir())), false });
		// Stand-in choice: engine content lives in a folder under the project's Intermediate directory.
		MountPoints.Add({ TEXT("/Engine/"), WithTrailingSlash(FPaths::ConvertRelativePathToFull(FPaths::ProjectIntermediateDir() / TEXT("StandInEngine/Content"))), false });
		MountPoints.Add({ TEXT("/Script/"), WithTrailingSlash(FPaths::ConvertRelativePathToFull(FPaths::ProjectDir() / TEXT("Script"))), true });
		MountPoints.Add({ TEXT("/Temp/"), WithTrailingSlash(FPaths::ConvertRelativePathToFull(FPaths::ProjectSavedDir())), true });
		MountPoints.Add({ TEXT("/Config/"), WithTrailingSlash(FPaths::ConvertRelativePathToFull(FPaths::ProjectConfigDir())), true });
		return MountPoints;
	}

	// The mount point whose root is "/Root/" for "/Root/..." or exactly "/Root".
	bool FindMountPointForPackageName(FStringView PackageName, FMountPoint& OutMountPoint)
	{
		for (const FMountPoint& MountPoint : GetMountPoints())
		{
			const FStringView Root(MountPoint.RootPath);
			if (PackageName.StartsWith(Root, ESearchCase::IgnoreCase) || PackageName.Equals(Root.LeftChop(1), ESearchCase::IgnoreCase))
			{
				OutMountPoint = MountPoint;
				return true;
			}
		}
		return false;
	}

	bool FindMountPointForFilename(const FString& FullFilename, FMountPoint& OutMountPoint)
	{
		const FString FilenameAsDirectory = WithTrailingSlash(FullFilename);
		for (const FMountPoint& MountPoint : GetMountPoints())
		{
			if (FullFilename.StartsWith(MountPoint.ContentPath, ESearchCase::CaseSensitive) || FilenameAsDirectory == MountPoint.ContentPath)
			{
				OutMountPoint = MountPoint;
				return true;
			}
		}
		return false;
	}

	FString ReplaceArgument(FString Text, const TCHAR* Argument, const FString& Value)
	{
		return Text.Replace(Argument, *Value, ESearchCase::CaseSensitive);
	}

	int32 FindFirstObjectDelimiter(const FString& ObjectPath)
	{
		for (int32 Index = 0; Index < ObjectPath.Len(); ++Index)
		{
			if (ObjectPath[Index] == TEXT('.') || ObjectPath[Index] == TEXT(':'))
			{
				return Index;
			}
		}
		return INDEX_NONE;
	}

	int32 FindLastObjectDelimiter(const FString& ObjectPath)
	{
		for (int32 Index = ObjectPath.Len() - 1; Index >= 0; --Index)
		{
			if (ObjectPath[Index] == TEXT('.') || ObjectPath[Index] == TEXT(':'))
			{
				return Index;
			}
		}
		return INDEX_NONE;
	}

	FString StripExtensionOfLastComponent(const FString& Path)
	{
		int32 SlashIndex = INDEX_NONE;
		Path.FindLastChar(TEXT('/'), SlashIndex);
		int32 DotIndex = INDEX_NONE;
		if (Path.FindLastChar(TEXT('.'), DotIndex) && DotIndex > SlashIndex)
		{
			return Path.Left(DotIndex);
		}
		return Path;
	}
}

using namespace UE::PackageName::Private;

FString FPackageName::GetLongPackageAssetName(const FString& InLongPackageName)
{
	return GetShortName(InLongPackageName);
}

FString FPackageName::GetShortName(const FString& LongName)
{
	int32 IndexOfLastSlash = INDEX_NONE;
	LongName.FindLastChar(TEXT('/'), IndexOfLastSlash);
	return LongName.Mid(IndexOfLastSlash + 1);
}

FString FPackageName::GetShortName(const FName& LongName)
{
	return GetShortName(LongName.ToString());
}

FString FPackageName::GetShortName(const TCHAR* LongName)
{
	return GetShortName(FString(LongName ? LongName : TEXT("")));
}

FString FPackageName::GetShortName(const UPackage* Package)
{
	check(Package != nullptr);
	return GetShortName(Package->GetName());
}

FName FPackageName::GetShortFName(const FString& LongName)
{
	return FName(*GetShortName(LongName));
}

FName FPackageName::GetShortFName(const FName& LongName)
{
	return GetShortFName(LongName.ToString());
}

FName FPackageName::GetShortFName(const TCHAR* LongName)
{
	return LongName ? GetShortFName(FString(LongName)) : FName();
}

FString FPackageName::GetLongPackagePath(const FString& InLongPackageName)
{
	int32 IndexOfLastSlash = INDEX_NONE;
	if (InLongPackageName.FindLastChar(TEXT('/'), IndexOfLastSlash))
	{
		return InLongPackageName.Left(IndexOfLastSlash);
	}
	return InLongPackageName;
}

bool FPackageName::SplitLongPackageName(const FString& InLongPackageName, FString& OutPackageRoot, FString& OutPackagePath, FString& OutPackageName, const bool bStripRootLeadingSlash)
{
	FMountPoint MountPoint;
	if (!FindMountPointForPackageName(InLongPackageName, MountPoint) || InLongPackageName.Len() <= MountPoint.RootPath.Len())
	{
		return false;
	}
	OutPackageRoot = bStripRootLeadingSlash ? MountPoint.RootPath.RightChop(1) : MountPoint.RootPath;
	const FString PathAndName = InLongPackageName.RightChop(MountPoint.RootPath.Len());
	int32 IndexOfLastSlash = INDEX_NONE;
	if (PathAndName.FindLastChar(TEXT('/'), IndexOfLastSlash))
	{
		OutPackagePath = PathAndName.Left(IndexOfLastSlash + 1);
		OutPackageName = PathAndName.RightChop(IndexOfLastSlash + 1);
	}
	else
	{
		OutPackagePath.Reset();
		OutPackageName = PathAndName;
	}
	return true;
}

bool FPackageName::TryConvertLongPackageNameToFilename(const FString& InLongPackageName, FString& OutFilename, const FString& InExtension)
{
	// Object paths are accepted and stand for their package, as in the engine.
	const FString PackageName = ObjectPathToPackageName(InLongPackageName);
	FMountPoint MountPoint;
	if (!FindMountPointForPackageName(PackageName, MountPoint))
	{
		return false;
	}
	const FString PackageNameWithoutTrailingSlash = PackageName.EndsWith(TEXT("/"), ESearchCase::CaseSensitive) ? PackageName.LeftChop(1) : PackageName;
	if (PackageNameWithoutTrailingSlash.Contains(TEXT(" "), ESearchCase::CaseSensitive))
	{
		return false;
	}
	if (PackageNameWithoutTrailingSlash.Len() > MountPoint.RootPath.Len() - 1 && !IsValidTextForLongPackageName(PackageNameWithoutTrailingSlash, static_cast<EErrorCode*>(nullptr)))
	{
		return false;
	}
	const FString RelativePath = PackageName.Len() >= MountPoint.RootPath.Len() ? PackageName.RightChop(MountPoint.RootPath.Len()) : FString();
	OutFilename = MountPoint.ContentPath + RelativePath + InExtension;
	return true;
}

FString FPackageName::LongPackageNameToFilename(const FString& InLongPackageName, const FString& InExtension)
{
	FString Result;
	if (!TryConvertLongPackageNameToFilename(InLongPackageName, Result, InExtension))
	{
		UE_LOG(LogPackageName, Fatal, TEXT("LongPackageNameToFilename failed to convert '%s'. Path does not map to any roots."), *InLongPackageName);
	}
	return Result;
}

bool FPackageName::TryConvertFilenameToLongPackageName(const FString& InFilename, FString& OutPackageName, FString* OutFailureReason)
{
	EErrorCode FailureReason = EErrorCode::PackageNameUnknown;
	FString PackageName;
	FMountPoint MountPoint;
	if (InFilename.IsEmpty())
	{
		FailureReason = EErrorCode::PackageNameEmptyPath;
	}
	else if (FindMountPointForPackageName(InFilename, MountPoint))
	{
		PackageName = ObjectPathToPackageName(InFilename);
	}
	else
	{
		FString FullFilename = FPaths::ConvertRelativePathToFull(InFilename);
		FPaths::NormalizeFilename(FullFilename);
		if (FindMountPointForFilename(FullFilename, MountPoint))
		{
			const FString RelativePath = FullFilename.Len() >= MountPoint.ContentPath.Len() ? FullFilename.RightChop(MountPoint.ContentPath.Len()) : FString();
			PackageName = MountPoint.RootPath + StripExtensionOfLastComponent(RelativePath);
		}
		else
		{
			FailureReason = EErrorCode::PackageNamePathNotMounted;
		}
	}

	if (!PackageName.IsEmpty())
	{
		if (PackageName.EndsWith(TEXT("/"), ESearchCase::CaseSensitive) && PackageName.Len() > 1)
		{
			PackageName.LeftChopInline(1);
		}
		if (PackageName.Contains(TEXT(" "), ESearchCase::CaseSensitive))
		{
			FailureReason = EErrorCode::PackageNameSpacesNotAllowed;
			PackageName.Reset();
		}
		else if (PackageName.Len() >= MinPackageNameLength && !IsValidTextForLongPackageName(PackageName, &FailureReason))
		{
			PackageName.Reset();
		}
	}

	if (PackageName.IsEmpty())
	{
		if (OutFailureReason)
		{
			*OutFailureReason = FormatErrorAsString(InFilename, FailureReason);
		}
		return false;
	}
	OutPackageName = PackageName;
	return true;
}

FString FPackageName::FilenameToLongPackageName(const FString& InFilename)
{
	FString Result;
	FString FailureReason;
	if (!TryConvertFilenameToLongPackageName(InFilename, Result, &FailureReason))
	{
		UE_LOG(LogPackageName, Fatal, TEXT("FilenameToLongPackageName failed to convert '%s'. Reason: %s"), *InFilename, *FailureReason);
	}
	return Result;
}

bool FPackageName::IsValidLongPackageName(FStringView InLongPackageName, bool bIncludeReadOnlyRoots, FText* OutReason)
{
	EErrorCode Reason = EErrorCode::PackageNameUnknown;
	if (IsValidLongPackageName(InLongPackageName, bIncludeReadOnlyRoots, &Reason))
	{
		return true;
	}
	if (OutReason)
	{
		if (Reason == EErrorCode::PackageNamePathNotMounted)
		{
			FString ValidRoots;
			for (const FMountPoint& MountPoint : GetMountPoints())
			{
				if (bIncludeReadOnlyRoots || !MountPoint.bReadOnly)
				{
					ValidRoots += MountPoint.RootPath + TEXT(", ");
				}
			}
			if (bIncludeReadOnlyRoots)
			{
				ValidRoots += TEXT("/Memory/, ");
			}
			ValidRoots.LeftChopInline(2);
			*OutReason = FText::FromString(FString(TEXT("Path does not start with a valid root. Path must begin with one of: ")) + ValidRoots);
		}
		else
		{
			*OutReason = FormatErrorAsText(InLongPackageName, Reason);
		}
	}
	return false;
}

bool FPackageName::IsValidLongPackageName(FStringView InLongPackageName, bool bIncludeReadOnlyRoots, EErrorCode* OutReason)
{
	if (!IsValidTextForLongPackageName(InLongPackageName, OutReason))
	{
		return false;
	}
	FMountPoint MountPoint;
	const bool bMounted = FindMountPointForPackageName(InLongPackageName, MountPoint)
		&& InLongPackageName.Len() > MountPoint.RootPath.Len() - 1;
	if ((bMounted && (bIncludeReadOnlyRoots || !MountPoint.bReadOnly)) || (bIncludeReadOnlyRoots && IsMemoryPackage(InLongPackageName)))
	{
		if (OutReason)
		{
			*OutReason = EErrorCode::PackageNameUnknown;
		}
		return true;
	}
	if (OutReason)
	{
		*OutReason = EErrorCode::PackageNamePathNotMounted;
	}
	return false;
}

bool FPackageName::IsValidTextForLongPackageName(FStringView InLongPackageName, FText* OutReason)
{
	EErrorCode Reason = EErrorCode::PackageNameUnknown;
	if (IsValidTextForLongPackageName(InLongPackageName, &Reason))
	{
		return true;
	}
	if (OutReason)
	{
		*OutReason = FormatErrorAsText(InLongPackageName, Reason);
	}
	return false;
}

bool FPackageName::IsValidTextForLongPackageName(FStringView InLongPackageName, EErrorCode* OutReason)
{
	EErrorCode Reason = EErrorCode::PackageNameUnknown;
	if (InLongPackageName.Len() < MinPackageNameLength)
	{
		Reason = EErrorCode::LongPackageNames_PathTooShort;
	}
	else if (InLongPackageName[0] != TEXT('/'))
	{
		Reason = EErrorCode::LongPackageNames_PathWithNoStartingSlash;
	}
	else if (InLongPackageName[InLongPackageName.Len() - 1] == TEXT('/'))
	{
		Reason = EErrorCode::LongPackageNames_PathWithTrailingSlash;
	}
	else if (InLongPackageName.Contains(TEXT("//"), ESearchCase::CaseSensitive))
	{
		Reason = EErrorCode::LongPackageNames_PathWithDoubleSlash;
	}
	else if (DoesPackageNameContainInvalidCharacters(InLongPackageName))
	{
		Reason = EErrorCode::PackageNameContainsInvalidCharacters;
	}
	if (OutReason)
	{
		*OutReason = Reason;
	}
	return Reason == EErrorCode::PackageNameUnknown;
}

bool FPackageName::DoesPackageNameContainInvalidCharacters(FStringView InLongPackageName, FText* OutReason)
{
	for (const TCHAR* Invalid = InvalidLongPackageCharacters; *Invalid; ++Invalid)
	{
		int32 FoundIndex = INDEX_NONE;
		if (InLongPackageName.FindChar(*Invalid, FoundIndex))
		{
			if (OutReason)
			{
				*OutReason = FormatErrorAsText(InLongPackageName, EErrorCode::PackageNameContainsInvalidCharacters);
			}
			return true;
		}
	}
	return false;
}

bool FPackageName::IsValidObjectPath(const FString& InObjectPath, FText* OutReason)
{
	int32 DotIndex = INDEX_NONE;
	FString PackageName = InObjectPath;
	FString RemainingObjectPath;
	if (InObjectPath.FindChar(TEXT('.'), DotIndex))
	{
		if (DotIndex == InObjectPath.Len() - 1)
		{
			if (OutReason)
			{
				*OutReason = FText::FromString(TEXT("Object Path may not end with ."));
			}
			return false;
		}
		PackageName = InObjectPath.Left(DotIndex);
		RemainingObjectPath = InObjectPath.RightChop(DotIndex + 1);
	}
	if (!IsValidLongPackageName(PackageName, true, OutReason))
	{
		return false;
	}
	if (!RemainingObjectPath.IsEmpty())
	{
		for (const TCHAR* Invalid = TEXT("\"' ,|&!~\n\r\t@#(){}[]=;^%$`"); *Invalid; ++Invalid)
		{
			int32 FoundIndex = INDEX_NONE;
			if (RemainingObjectPath.FindChar(*Invalid, FoundIndex))
			{
				if (OutReason)
				{
					*OutReason = FText::FromString(FString::Printf(TEXT("Object Path may not contain the following characters: %s"), TEXT("\"' ,|&!~\\n\\r\\t@#(){}[]=;^%$`")));
				}
				return false;
			}
		}
		const TCHAR LastChar = RemainingObjectPath[RemainingObjectPath.Len() - 1];
		if (LastChar == TEXT('.') || LastChar == TEXT(':'))
		{
			if (OutReason)
			{
				*OutReason = FText::FromString(TEXT("Object Path may not end with : or ."));
			}
			return false;
		}
		int32 SlashIndex = INDEX_NONE;
		if (RemainingObjectPath.FindChar(TEXT('/'), SlashIndex))
		{
			if (OutReason)
			{
				*OutReason = FText::FromString(TEXT("Object Path may not have / after first ."));
			}
			return false;
		}
	}
	return true;
}

bool FPackageName::IsValidPath(const FString& InPath)
{
	FMountPoint MountPoint;
	return FindMountPointForPackageName(InPath, MountPoint);
}

bool FPackageName::IsShortPackageName(const FString& PossiblyLongName)
{
	return IsShortPackageName(FStringView(PossiblyLongName));
}

bool FPackageName::IsShortPackageName(FStringView PossiblyLongName)
{
	int32 SlashIndex = INDEX_NONE;
	return !PossiblyLongName.FindChar(TEXT('/'), SlashIndex);
}

bool FPackageName::IsShortPackageName(const FName PossiblyLongName)
{
	return IsShortPackageName(PossiblyLongName.ToString());
}

bool FPackageName::IsScriptPackage(FStringView InPackageName)
{
	return InPackageName.StartsWith(TEXT("/Script/"), ESearchCase::IgnoreCase);
}

bool FPackageName::IsMemoryPackage(FStringView InPackageName)
{
	return InPackageName.StartsWith(TEXT("/Memory/"), ESearchCase::IgnoreCase);
}

bool FPackageName::IsTempPackage(FStringView InPackageName)
{
	return InPackageName.StartsWith(TEXT("/Temp/"), ESearchCase::IgnoreCase);
}

FText FPackageName::FormatErrorAsText(FStringView InPath, EErrorCode ErrorCode)
{
	return FText::FromString(FormatErrorAsString(InPath, ErrorCode));
}

FString FPackageName::FormatErrorAsString(FStringView InPath, EErrorCode ErrorCode)
{
	FString Format;
	switch (ErrorCode)
	{
	case EErrorCode::PackageNameEmptyPath:
		Format = TEXT("Input '{InPath}' was empty.");
		break;
	case EErrorCode::PackageNamePathNotMounted:
		Format = TEXT("Input '{InPath}' is not a child of an existing mount point.");
		break;
	case EErrorCode::PackageNamePathIsMemoryOnly:
		Format = TEXT("Input '{InPath}' is in a memory-only mount point.");
		break;
	case EErrorCode::PackageNameSpacesNotAllowed:
		Format = TEXT("Input '{InPath}' includes a space. A space is not valid in ObjectPaths unless it is delimiting a ClassName in a full ObjectPath, and full ObjectPaths are not supported in this function.");
		break;
	case EErrorCode::PackageNameContainsInvalidCharacters:
		Format = ReplaceArgument(TEXT("Input '{InPath}' contains one of the invalid characters for LongPackageNames: '{IllegalNameCharacters}'."), TEXT("{IllegalNameCharacters}"), InvalidLongPackageCharacters);
		break;
	case EErrorCode::LongPackageNames_PathTooShort:
		Format = ReplaceArgument(TEXT("Input '{InPath}' contains fewer than the minimum number of characters {Min} for LongPackageNames."), TEXT("{Min}"), FString::FromInt(MinPackageNameLength));
		break;
	case EErrorCode::LongPackageNames_PathWithNoStartingSlash:
		Format = TEXT("Input '{InPath}' does not start with a '/', which is required for LongPackageNames.");
		break;
	case EErrorCode::LongPackageNames_PathWithTrailingSlash:
		Format = TEXT("Input '{InPath}' ends with a '/', which is invalid for LongPackageNames.");
		break;
	case EErrorCode::LongPackageNames_PathWithDoubleSlash:
		Format = TEXT("Input '{InPath}' contains '//', which is invalid for LongPackageNames.");
		break;
	default:
		Format = TEXT("Input '{InPath}' caused undocumented internal error.");
		break;
	}
	return ReplaceArgument(Format, TEXT("{InPath}"), FString(InPath));
}

FString FPackageName::ObjectPathToPackageName(const FString& InObjectPath)
{
	const int32 DelimiterIndex = FindFirstObjectDelimiter(InObjectPath);
	return DelimiterIndex == INDEX_NONE ? InObjectPath : InObjectPath.Left(DelimiterIndex);
}

FString FPackageName::ObjectPathToObjectName(const FString& InObjectPath)
{
	const int32 DelimiterIndex = FindLastObjectDelimiter(InObjectPath);
	return DelimiterIndex == INDEX_NONE ? InObjectPath : InObjectPath.RightChop(DelimiterIndex + 1);
}

FString FPackageName::ObjectPathToPathWithinPackage(const FString& InObjectPath)
{
	const int32 DelimiterIndex = FindFirstObjectDelimiter(InObjectPath);
	return DelimiterIndex == INDEX_NONE ? FString() : InObjectPath.RightChop(DelimiterIndex + 1);
}

FString FPackageName::ObjectPathToOuterPath(const FString& InObjectPath)
{
	const int32 DelimiterIndex = FindLastObjectDelimiter(InObjectPath);
	return DelimiterIndex == INDEX_NONE ? FString() : InObjectPath.Left(DelimiterIndex);
}

FString FPackageName::ObjectPathToSubObjectPath(const FString& InObjectPath)
{
	int32 ColonIndex = INDEX_NONE;
	if (InObjectPath.FindChar(TEXT(':'), ColonIndex))
	{
		return InObjectPath.RightChop(ColonIndex + 1);
	}
	int32 DotIndex = INDEX_NONE;
	if (InObjectPath.FindChar(TEXT('.'), DotIndex))
	{
		return InObjectPath.RightChop(DotIndex + 1);
	}
	return InObjectPath;
}

FString FPackageName::ExportTextPathToObjectPath(const FString& InExportTextPath)
{
	int32 FirstQuote = INDEX_NONE;
	if (InExportTextPath.EndsWith(TEXT("'"), ESearchCase::CaseSensitive) && InExportTextPath.FindChar(TEXT('\''), FirstQuote)
		&& FirstQuote < InExportTextPath.Len() - 1)
	{
		return InExportTextPath.Mid(FirstQuote + 1, InExportTextPath.Len() - FirstQuote - 2);
	}
	return InExportTextPath;
}

bool FPackageName::DoesPackageExist(const FString& LongPackageName, FString* OutFilename, bool InAllowTextFormats)
{
	const FString PackageName = ObjectPathToPackageName(LongPackageName);
	if (IsScriptPackage(PackageName) || IsMemoryPackage(PackageName) || !IsValidLongPackageName(PackageName, true, static_cast<EErrorCode*>(nullptr)))
	{
		return false;
	}
	FString FilenameWithoutExtension;
	if (!TryConvertLongPackageNameToFilename(PackageName, FilenameWithoutExtension))
	{
		return false;
	}
	FString Found;
	if (!FindPackageFileWithoutExtension(FilenameWithoutExtension, Found))
	{
		return false;
	}
	if (OutFilename)
	{
		*OutFilename = Found;
	}
	return true;
}

bool FPackageName::FindPackageFileWithoutExtension(const FString& InPackageFilename, FString& OutFilename)
{
	for (const FString* Extension : { &GetAssetPackageExtension(), &GetMapPackageExtension() })
	{
		const FString Candidate = InPackageFilename + *Extension;
		if (IFileManager::Get().FileExists(*Candidate))
		{
			OutFilename = Candidate;
			return true;
		}
	}
	return false;
}

const FString& FPackageName::GetAssetPackageExtension()
{
	static const FString AssetPackageExtension(TEXT(".uasset"));
	return AssetPackageExtension;
}

const FString& FPackageName::GetMapPackageExtension()
{
	static const FString MapPackageExtension(TEXT(".umap"));
	return MapPackageExtension;
}

bool FPackageName::IsPackageExtension(const TCHAR* Ext)
{
	if (!Ext)
	{
		return false;
	}
	const FString Extension = (*Ext == TEXT('.')) ? FString(Ext) : FString(TEXT(".")) + Ext;
	return Extension == GetAssetPackageExtension() || Extension == GetMapPackageExtension();
}

void FPackageName::RegisterMountPoint(const FString& RootPath, const FString& ContentPath)
{
	GetRegisteredMountPoints().Insert({ RootPath, WithTrailingSlash(FPaths::ConvertRelativePathToFull(ContentPath)), false }, 0);
}

void FPackageName::UnRegisterMountPoint(const FString& RootPath, const FString& ContentPath)
{
	const FString FullContentPath = WithTrailingSlash(FPaths::ConvertRelativePathToFull(ContentPath));
	GetRegisteredMountPoints().RemoveAll([&RootPath, &FullContentPath](const FMountPoint& MountPoint)
	{
		return MountPoint.RootPath == RootPath && MountPoint.ContentPath == FullContentPath;
	});
}

bool FPackageName::MountPointExists(const FString& RootPath)
{
	for (const FMountPoint& MountPoint : GetMountPoints())
	{
		if (MountPoint.RootPath == RootPath)
		{
			return true;
		}
	}
	return RootPath == TEXT("/Memory/");
}

FName FPackageName::GetPackageMountPoint(const FString& InPackagePath, bool InWithoutSlashes)
{
	FMountPoint MountPoint;
	if (!FindMountPointForPackageName(InPackagePath, MountPoint))
	{
		return FName();
	}
	return FName(*(InWithoutSlashes ? MountPoint.RootPath.Mid(1, MountPoint.RootPath.Len() - 2) : MountPoint.RootPath));
}

FString FPackageName::GetContentPathForPackageRoot(FStringView InMountPoint)
{
	FMountPoint MountPoint;
	return FindMountPointForPackageName(InMountPoint, MountPoint) ? MountPoint.ContentPath : FString();
}

FString FPackageName::ConvertToLongScriptPackageName(const TCHAR* InShortName)
{
	if (InShortName && IsShortPackageName(FStringView(InShortName)))
	{
		return FString(TEXT("/Script/")) + InShortName;
	}
	return FString(InShortName ? InShortName : TEXT(""));
}
