// FPaths: path string helpers and the project's well-known directories.
#pragma once

#include "CoreTypes.h"
#include "Containers/UnrealString.h"

class FPaths
{
public:
	/** The project directory, with a trailing '/'. */
	CORE_API static FString ProjectDir();
	/** ProjectDir() + "Content/". */
	CORE_API static FString ProjectContentDir();
	/** ProjectDir() + "Saved/". */
	CORE_API static FString ProjectSavedDir();
	CORE_API static FString ProjectConfigDir();
	CORE_API static FString ProjectIntermediateDir();
	CORE_API static FString ProjectPluginsDir();
	CORE_API static FString ProjectLogDir();
	/** Stand-in choice: the stand-in engine has no install folder; EngineDir is "Engine/" under the working directory at startup. */
	CORE_API static FString EngineDir();
	CORE_API static FString EngineContentDir();
	CORE_API static FString EnginePluginsDir();

	/** Stand-in choice: the headless editor sets the project directory here; the engine takes it from the command line. */
	CORE_API static void SetProjectDir(const FString& InProjectDir);

	/** "a/b/c.txt" -> "c.txt". */
	CORE_API static FString GetCleanFilename(const FString& InPath);
	/** "a/b/c.txt" -> "c" (or "a/b/c" when bRemovePath is false). */
	CORE_API static FString GetBaseFilename(const FString& InPath, bool bRemovePath = true);
	/** "a/b/c.txt" -> "txt" (".txt" with bIncludeDot); empty when the file name has no '.'. */
	CORE_API static FString GetExtension(const FString& InPath, bool bIncludeDot = false);
	/** "a/b/c.txt" -> "a/b". */
	CORE_API static FString GetPath(const FString& InPath);
	CORE_API static FString GetPathLeaf(const FString& InPath);
	/** Replaces the extension; a path without extension is returned unchanged. */
	CORE_API static FString ChangeExtension(const FString& InPath, const FString& InNewExtension);
	/** Replaces the extension, or adds it when there is none. */
	CORE_API static FString SetExtension(const FString& InPath, const FString& InNewExtension);

	/** Backslashes become '/'. */
	CORE_API static void NormalizeFilename(FString& InPath);
	/** Backslashes become '/', and a trailing '/' is removed (except from a root). */
	CORE_API static void NormalizeDirectoryName(FString& InPath);
	/** Removes "." components and ".." together with the directory before it; false if ".." climbs above the start. */
	CORE_API static bool CollapseRelativeDirectories(FString& InPath);
	CORE_API static void RemoveDuplicateSlashes(FString& InPath);

	/** The absolute, normalized form of a path; relative paths are relative to the working directory. */
	CORE_API static FString ConvertRelativePathToFull(const FString& InPath);
	CORE_API static FString ConvertRelativePathToFull(const FString& BasePath, const FString& InPath);
	/** Makes InPath relative to InRelativeTo (a directory ends with '/'); false if they share no root. */
	CORE_API static bool MakePathRelativeTo(FString& InPath, const TCHAR* InRelativeTo);

	CORE_API static bool IsRelative(const FString& InPath);
	CORE_API static bool IsSamePath(const FString& PathA, const FString& PathB);
	CORE_API static bool IsUnderDirectory(const FString& InPath, const FString& InDirectory);
	CORE_API static bool FileExists(const FString& InPath);
	CORE_API static bool DirectoryExists(const FString& InPath);
	CORE_API static bool IsDrive(const FString& InPath);

	CORE_API static void Split(const FString& InPath, FString& PathPart, FString& FilenamePart, FString& ExtensionPart);

	/** Joins the parts with '/' (no doubled separators). */
	template <typename... PathTypes>
	static FString Combine(PathTypes&&... InPaths)
	{
		const TCHAR* Paths[] = { GetCharPtr(InPaths)... };
		return CombineInternal(Paths, (int32)sizeof...(InPaths));
	}

private:
	static const TCHAR* GetCharPtr(const TCHAR* Path) { return Path ? Path : TEXT(""); }
	static const TCHAR* GetCharPtr(const FString& Path) { return *Path; }

	CORE_API static FString CombineInternal(const TCHAR** Paths, int32 NumPaths);
};
