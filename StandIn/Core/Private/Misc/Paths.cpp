#include "Misc/Paths.h"

#include "Containers/StringConv.h"
#include "HAL/FileManager.h"

#include <mutex>
#include <unistd.h>

namespace
{
	bool IsSlashOrBackslash(TCHAR Character)
	{
		return Character == '/' || Character == '\\';
	}

	FString WithTrailingSlash(FString Path)
	{
		if (!Path.IsEmpty() && !Path.EndsWith(TEXT("/")))
		{
			Path += TEXT("/");
		}
		return Path;
	}

	FString GetWorkingDirectory()
	{
		char Buffer[4096];
		if (!getcwd(Buffer, sizeof(Buffer)))
		{
			return FString(TEXT("/"));
		}
		FString Directory = UTF8_TO_TCHAR(Buffer);
		return Directory;
	}

	struct FProjectDirectories
	{
		std::mutex Mutex;
		FString ProjectDir;
		FString StartupDirectory = WithTrailingSlash(GetWorkingDirectory());
	};

	FProjectDirectories& GetProjectDirectories()
	{
		static FProjectDirectories* Directories = new FProjectDirectories();
		return *Directories;
	}

	/** Index of the '.' starting the extension of the file name, or INDEX_NONE. */
	int32 FindExtensionDot(const FString& InPath)
	{
		int32 DotIndex = INDEX_NONE;
		if (!InPath.FindLastChar(TEXT('.'), DotIndex))
		{
			return INDEX_NONE;
		}
		const int32 SeparatorIndex = InPath.FindLastCharByPredicate(IsSlashOrBackslash);
		return SeparatorIndex != INDEX_NONE && SeparatorIndex > DotIndex ? INDEX_NONE : DotIndex;
	}
}

FString FPaths::ProjectDir()
{
	FProjectDirectories& Directories = GetProjectDirectories();
	std::lock_guard<std::mutex> Lock(Directories.Mutex);
	return Directories.ProjectDir.IsEmpty() ? Directories.StartupDirectory : Directories.ProjectDir;
}

FString FPaths::ProjectContentDir()
{
	return ProjectDir() + TEXT("Content/");
}

FString FPaths::ProjectSavedDir()
{
	return ProjectDir() + TEXT("Saved/");
}

FString FPaths::ProjectConfigDir()
{
	return ProjectDir() + TEXT("Config/");
}

FString FPaths::ProjectIntermediateDir()
{
	return ProjectDir() + TEXT("Intermediate/");
}

FString FPaths::ProjectPluginsDir()
{
	return ProjectDir() + TEXT("Plugins/");
}

FString FPaths::ProjectLogDir()
{
	return ProjectSavedDir() + TEXT("Logs/");
}

FString FPaths::EngineDir()
{
	FProjectDirectories& Directories = GetProjectDirectories();
	std::lock_guard<std::mutex> Lock(Directories.Mutex);
	return Directories.StartupDirectory + TEXT("Engine/");
}

FString FPaths::EngineContentDir()
{
	return EngineDir() + TEXT("Content/");
}

FString FPaths::EnginePluginsDir()
{
	return EngineDir() + TEXT("Plugins/");
}

void FPaths::SetProjectDir(const FString& InProjectDir)
{
	FString Directory = InProjectDir.IsEmpty() ? FString() : ConvertRelativePathToFull(InProjectDir);
	FProjectDirectories& Directories = GetProjectDirectories();
	std::lock_guard<std::mutex> Lock(Directories.Mutex);
	Directories.ProjectDir = WithTrailingSlash(MoveTemp(Directory));
}

FString FPaths::GetCleanFilename(const FString& InPath)
{
	const int32 SeparatorIndex = InPath.FindLastCharByPredicate(IsSlashOrBackslash);
	return SeparatorIndex == INDEX_NONE ? InPath : InPath.RightChop(SeparatorIndex + 1);
}

FString FPaths::GetBaseFilename(const FString& InPath, bool bRemovePath)
{
	FString Path = bRemovePath ? GetCleanFilename(InPath) : InPath;
	const int32 DotIndex = FindExtensionDot(Path);
	if (DotIndex != INDEX_NONE)
	{
		Path.LeftInline(DotIndex);
	}
	return Path;
}

FString FPaths::GetExtension(const FString& InPath, bool bIncludeDot)
{
	const FString Filename = GetCleanFilename(InPath);
	int32 DotIndex = INDEX_NONE;
	if (!Filename.FindLastChar(TEXT('.'), DotIndex))
	{
		return FString();
	}
	return Filename.RightChop(bIncludeDot ? DotIndex : DotIndex + 1);
}

FString FPaths::GetPath(const FString& InPath)
{
	const int32 SeparatorIndex = InPath.FindLastCharByPredicate(IsSlashOrBackslash);
	return SeparatorIndex == INDEX_NONE ? FString() : InPath.Left(SeparatorIndex);
}

FString FPaths::GetPathLeaf(const FString& InPath)
{
	FString Path = InPath;
	while (Path.Len() > 1 && IsSlashOrBackslash(Path[Path.Len() - 1]))
	{
		Path.LeftChopInline(1);
	}
	return GetCleanFilename(Path);
}

FString FPaths::ChangeExtension(const FString& InPath, const FString& InNewExtension)
{
	const int32 DotIndex = FindExtensionDot(InPath);
	if (DotIndex == INDEX_NONE)
	{
		return InPath;
	}
	FString Result = InPath.Left(DotIndex);
	if (!InNewExtension.IsEmpty() && InNewExtension[0] != '.')
	{
		Result += TEXT(".");
	}
	Result += InNewExtension;
	return Result;
}

FString FPaths::SetExtension(const FString& InPath, const FString& InNewExtension)
{
	const int32 DotIndex = FindExtensionDot(InPath);
	FString Result = DotIndex == INDEX_NONE ? InPath : InPath.Left(DotIndex);
	if (!InNewExtension.IsEmpty() && InNewExtension[0] != '.')
	{
		Result += TEXT(".");
	}
	Result += InNewExtension;
	return Result;
}

void FPaths::NormalizeFilename(FString& InPath)
{
	InPath.ReplaceCharInline(TEXT('\\'), TEXT('/'), ESearchCase::CaseSensitive);
}

void FPaths::NormalizeDirectoryName(FString& InPath)
{
	NormalizeFilename(InPath);
	if (InPath.Len() > 1 && InPath.EndsWith(TEXT("/")) && !InPath.EndsWith(TEXT("//")) && !InPath.EndsWith(TEXT(":/")))
	{
		InPath.LeftChopInline(1);
	}
}

void FPaths::RemoveDuplicateSlashes(FString& InPath)
{
	while (InPath.Contains(TEXT("//"), ESearchCase::CaseSensitive))
	{
		InPath.ReplaceInline(TEXT("//"), TEXT("/"), ESearchCase::CaseSensitive);
	}
}

bool FPaths::CollapseRelativeDirectories(FString& InPath)
{
	NormalizeFilename(InPath);
	const bool bAbsolute = InPath.StartsWith(TEXT("/"));
	const bool bTrailingSlash = InPath.Len() > 1 && InPath.EndsWith(TEXT("/"));
	TArray<FString> Parts;
	InPath.ParseIntoArray(Parts, TEXT("/"), true);
	TArray<FString> Collapsed;
	for (const FString& Part : Parts)
	{
		if (Part.Equals(TEXT(".")))
		{
			continue;
		}
		if (Part.Equals(TEXT("..")))
		{
			if (Collapsed.Num() == 0 || Collapsed.Last().Equals(TEXT("..")))
			{
				return false;
			}
			Collapsed.Pop();
			continue;
		}
		Collapsed.Add(Part);
	}
	FString Result = bAbsolute ? FString(TEXT("/")) : FString();
	Result += FString::Join(Collapsed, TEXT("/"));
	if (bTrailingSlash && !Collapsed.IsEmpty())
	{
		Result += TEXT("/");
	}
	InPath = MoveTemp(Result);
	return true;
}

FString FPaths::ConvertRelativePathToFull(const FString& InPath)
{
	return ConvertRelativePathToFull(GetWorkingDirectory(), InPath);
}

FString FPaths::ConvertRelativePathToFull(const FString& BasePath, const FString& InPath)
{
	FString FullPath = IsRelative(InPath) ? BasePath / InPath : InPath;
	NormalizeFilename(FullPath);
	RemoveDuplicateSlashes(FullPath);
	FString Collapsed = FullPath;
	if (CollapseRelativeDirectories(Collapsed))
	{
		FullPath = MoveTemp(Collapsed);
	}
	return FullPath;
}

bool FPaths::MakePathRelativeTo(FString& InPath, const TCHAR* InRelativeTo)
{
	FString Target = ConvertRelativePathToFull(InPath);
	FString Source = GetPath(ConvertRelativePathToFull(FString(InRelativeTo)));
	TArray<FString> TargetParts;
	TArray<FString> SourceParts;
	Target.ParseIntoArray(TargetParts, TEXT("/"), true);
	Source.ParseIntoArray(SourceParts, TEXT("/"), true);
	int32 Common = 0;
	while (Common < TargetParts.Num() && Common < SourceParts.Num() && TargetParts[Common].Equals(SourceParts[Common]))
	{
		++Common;
	}
	FString Result;
	for (int32 Index = Common; Index < SourceParts.Num(); ++Index)
	{
		Result += TEXT("../");
	}
	for (int32 Index = Common; Index < TargetParts.Num(); ++Index)
	{
		Result += TargetParts[Index];
		if (Index + 1 < TargetParts.Num())
		{
			Result += TEXT("/");
		}
	}
	if (InPath.EndsWith(TEXT("/")) && !Result.IsEmpty())
	{
		Result += TEXT("/");
	}
	InPath = MoveTemp(Result);
	return true;
}

bool FPaths::IsRelative(const FString& InPath)
{
	const int32 Length = InPath.Len();
	const bool bRooted = Length > 0 && IsSlashOrBackslash(InPath[0]);
	const bool bDriveLetter = Length >= 2 && FChar::IsAlpha(InPath[0]) && InPath[1] == ':';
	return !bRooted && !bDriveLetter;
}

bool FPaths::IsSamePath(const FString& PathA, const FString& PathB)
{
	FString FullA = ConvertRelativePathToFull(PathA);
	FString FullB = ConvertRelativePathToFull(PathB);
	NormalizeDirectoryName(FullA);
	NormalizeDirectoryName(FullB);
	return FullA.Equals(FullB, ESearchCase::CaseSensitive);
}

bool FPaths::IsUnderDirectory(const FString& InPath, const FString& InDirectory)
{
	FString Path = ConvertRelativePathToFull(InPath);
	FString Directory = ConvertRelativePathToFull(InDirectory);
	NormalizeDirectoryName(Directory);
	if (!Path.StartsWith(Directory, ESearchCase::CaseSensitive))
	{
		return false;
	}
	return Path.Len() == Directory.Len() || Path[Directory.Len()] == '/' || Directory.EndsWith(TEXT("/"));
}

bool FPaths::FileExists(const FString& InPath)
{
	return IFileManager::Get().FileExists(*InPath);
}

bool FPaths::DirectoryExists(const FString& InPath)
{
	return IFileManager::Get().DirectoryExists(*InPath);
}

bool FPaths::IsDrive(const FString& InPath)
{
	return InPath == TEXT("/") || (InPath.Len() <= 3 && InPath.Len() >= 2 && InPath[1] == ':');
}

void FPaths::Split(const FString& InPath, FString& PathPart, FString& FilenamePart, FString& ExtensionPart)
{
	PathPart = GetPath(InPath);
	FilenamePart = GetBaseFilename(InPath);
	ExtensionPart = GetExtension(InPath);
}

FString FPaths::CombineInternal(const TCHAR** Paths, int32 NumPaths)
{
	if (NumPaths <= 0)
	{
		return FString();
	}
	FString Result(Paths[0]);
	for (int32 Index = 1; Index < NumPaths; ++Index)
	{
		Result /= Paths[Index];
	}
	return Result;
}
