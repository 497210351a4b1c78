// IFileManager: files and directories on disk.
#pragma once

#include "CoreTypes.h"
#include "Containers/Array.h"
#include "Containers/UnrealString.h"

enum ECopyResult
{
	COPY_OK = 0,
	COPY_Fail = 1,
	COPY_Canceled = 2,
};

class IFileManager
{
public:
	virtual ~IFileManager() = default;

	CORE_API static IFileManager& Get();

	/** Creates the directory (and its parents with Tree); true if it exists afterwards. */
	virtual bool MakeDirectory(const TCHAR* Path, bool Tree = false) = 0;
	/** Deletes the directory (with its contents when Tree); true if it is gone afterwards (or RequireExists and it never was). */
	virtual bool DeleteDirectory(const TCHAR* Path, bool RequireExists = false, bool Tree = false) = 0;
	virtual bool Delete(const TCHAR* Filename, bool RequireExists = false, bool EvenReadOnly = false, bool Quiet = false) = 0;
	/** Renames Src to Dest (atomically on the same file system), creating Dest's directory. */
	virtual bool Move(const TCHAR* Dest, const TCHAR* Src, bool Replace = true, bool EvenIfReadOnly = false, bool Attributes = false, bool bDoNotRetryOrError = false) = 0;
	virtual uint32 Copy(const TCHAR* Dest, const TCHAR* Src, bool Replace = true, bool EvenIfReadOnly = false, bool Attributes = false) = 0;
	virtual bool FileExists(const TCHAR* Filename) = 0;
	virtual bool DirectoryExists(const TCHAR* InDirectory) = 0;
	/** Size in bytes, or -1 when the file does not exist. */
	virtual int64 FileSize(const TCHAR* Filename) = 0;
	virtual bool IsReadOnly(const TCHAR* Filename) = 0;

	/** Names (without path) of the entries matching a wildcard path (directory, then a file pattern with * and ?). */
	virtual void FindFiles(TArray<FString>& FileNames, const TCHAR* Filename, bool Files, bool Directories) = 0;
	/** Full paths of the matching entries in StartDirectory and below. */
	virtual void FindFilesRecursive(TArray<FString>& FileNames, const TCHAR* StartDirectory, const TCHAR* Filename, bool Files, bool Directories, bool bClearFileNames = true) = 0;

	/** Names of the files in Directory with the extension ("txt", ".txt" or a wildcard such as "*.txt" written as a pattern); all files when null or empty. */
	CORE_API void FindFiles(TArray<FString>& FoundFiles, const TCHAR* Directory, const TCHAR* FileExtension = nullptr);

	virtual FString GetCurrentDirectory() = 0;
	virtual FString ConvertToAbsolutePathForExternalAppForRead(const TCHAR* Filename) = 0;
	virtual FString ConvertToAbsolutePathForExternalAppForWrite(const TCHAR* Filename) = 0;
};
