#include "HAL/FileManager.h"

#include "Containers/StringConv.h"
#include "Misc/Paths.h"

#include <filesystem>
#include <string>
#include <system_error>
#include <sys/stat.h>
#include <unistd.h>

namespace
{
	namespace fs = std::filesystem;

	fs::path ToPath(const TCHAR* Path)
	{
		FTCHARToUTF8 Converted(Path ? Path : TEXT(""));
		return fs::path(std::string((const char*)Converted.Get(), (size_t)Converted.Length()));
	}

	FString FromPath(const fs::path& Path)
	{
		const std::string Native = Path.generic_string();
		return FString(FUTF8ToTCHAR(Native.c_str(), (int32)Native.size()).Get());
	}

	bool IsEmptyPath(const TCHAR* Path)
	{
		return !Path || !*Path;
	}

	/** Matches a file name against a wildcard; "*.*" matches every name, as on Windows. */
	bool MatchesFileWildcard(const FString& Name, const FString& Wildcard)
	{
		if (Wildcard == TEXT("*.*") || Wildcard == TEXT("*"))
		{
			return true;
		}
		return Name.MatchesWildcard(Wildcard, ESearchCase::CaseSensitive);
	}

	/** Stand-in choice: the engine's file manager on Linux; listings are sorted so that they are the same on every run. */
	class FFileManagerGeneric final : public IFileManager
	{
	public:
		virtual bool MakeDirectory(const TCHAR* Path, bool Tree) override
		{
			if (IsEmptyPath(Path))
			{
				return false;
			}
			std::error_code Error;
			const fs::path Directory = ToPath(Path);
			if (Tree)
			{
				fs::create_directories(Directory, Error);
			}
			else
			{
				fs::create_directory(Directory, Error);
			}
			return fs::is_directory(Directory, Error);
		}

		virtual bool DeleteDirectory(const TCHAR* Path, bool RequireExists, bool Tree) override
		{
			if (IsEmptyPath(Path))
			{
				return false;
			}
			std::error_code Error;
			const fs::path Directory = ToPath(Path);
			if (!fs::is_directory(Directory, Error))
			{
				return !RequireExists;
			}
			if (Tree)
			{
				fs::remove_all(Directory, Error);
			}
			else
			{
				fs::remove(Directory, Error);
			}
			return !fs::exists(Directory, Error);
		}

		virtual bool Delete(const TCHAR* Filename, bool RequireExists, bool EvenReadOnly, bool Quiet) override
		{
			if (IsEmptyPath(Filename))
			{
				return false;
			}
			std::error_code Error;
			const fs::path File = ToPath(Filename);
			const fs::file_status Status = fs::symlink_status(File, Error);
			if (!fs::exists(Status))
			{
				return !RequireExists;
			}
			if (fs::is_directory(Status))
			{
				return false;
			}
			return fs::remove(File, Error);
		}

		virtual bool Move(const TCHAR* Dest, const TCHAR* Src, bool Replace, bool EvenIfReadOnly, bool Attributes, bool bDoNotRetryOrError) override
		{
			if (IsEmptyPath(Dest) || IsEmptyPath(Src))
			{
				return false;
			}
			std::error_code Error;
			const fs::path Destination = ToPath(Dest);
			const fs::path Source = ToPath(Src);
			if (!fs::exists(Source, Error))
			{
				return false;
			}
			if (!Replace && fs::exists(Destination, Error))
			{
				return false;
			}
			if (Destination.has_parent_path())
			{
				fs::create_directories(Destination.parent_path(), Error);
			}
			fs::rename(Source, Destination, Error);
			return !Error;
		}

		virtual uint32 Copy(const TCHAR* Dest, const TCHAR* Src, bool Replace, bool EvenIfReadOnly, bool Attributes) override
		{
			if (IsEmptyPath(Dest) || IsEmptyPath(Src))
			{
				return COPY_Fail;
			}
			std::error_code Error;
			const fs::path Destination = ToPath(Dest);
			if (Destination.has_parent_path())
			{
				fs::create_directories(Destination.parent_path(), Error);
			}
			const fs::copy_options Options = Replace ? fs::copy_options::overwrite_existing : fs::copy_options::skip_existing;
			const bool bCopied = fs::copy_file(ToPath(Src), Destination, Options, Error);
			return (bCopied && !Error) ? COPY_OK : COPY_Fail;
		}

		virtual bool FileExists(const TCHAR* Filename) override
		{
			std::error_code Error;
			return !IsEmptyPath(Filename) && fs::is_regular_file(ToPath(Filename), Error);
		}

		virtual bool DirectoryExists(const TCHAR* InDirectory) override
		{
			std::error_code Error;
			return !IsEmptyPath(InDirectory) && fs::is_directory(ToPath(InDirectory), Error);
		}

		virtual int64 FileSize(const TCHAR* Filename) override
		{
			std::error_code Error;
			if (IsEmptyPath(Filename) || !fs::is_regular_file(ToPath(Filename), Error))
			{
				return -1;
			}
			const uintmax_t Size = fs::file_size(ToPath(Filename), Error);
			return Error ? -1 : (int64)Size;
		}

		virtual bool IsReadOnly(const TCHAR* Filename) override
		{
			FTCHARToUTF8 Converted(Filename ? Filename : TEXT(""));
			return FileExists(Filename) && access((const char*)Converted.Get(), W_OK) != 0;
		}

		virtual void FindFiles(TArray<FString>& FileNames, const TCHAR* Filename, bool Files, bool Directories) override
		{
			if (IsEmptyPath(Filename))
			{
				return;
			}
			FString Pattern(Filename);
			FPaths::NormalizeFilename(Pattern);
			const FString Directory = FPaths::GetPath(Pattern);
			const FString Wildcard = FPaths::GetCleanFilename(Pattern);
			TArray<FString> Found;
			std::error_code Error;
			for (fs::directory_iterator It(ToPath(Directory.IsEmpty() ? TEXT(".") : *Directory), Error), End; !Error && It != End; It.increment(Error))
			{
				const bool bIsDirectory = It->is_directory(Error);
				if ((bIsDirectory && !Directories) || (!bIsDirectory && !Files))
				{
					continue;
				}
				FString Name = FromPath(It->path().filename());
				if (MatchesFileWildcard(Name, Wildcard))
				{
					Found.Add(MoveTemp(Name));
				}
			}
			Found.Sort([](const FString& A, const FString& B) { return A.Compare(B, ESearchCase::CaseSensitive) < 0; });
			FileNames.Append(MoveTemp(Found));
		}

		virtual void FindFilesRecursive(TArray<FString>& FileNames, const TCHAR* StartDirectory, const TCHAR* Filename, bool Files, bool Directories, bool bClearFileNames) override
		{
			if (bClearFileNames)
			{
				FileNames.Empty();
			}
			if (IsEmptyPath(StartDirectory))
			{
				return;
			}
			const FString Wildcard = IsEmptyPath(Filename) ? FString(TEXT("*")) : FString(Filename);
			FString Root(StartDirectory);
			FPaths::NormalizeDirectoryName(Root);
			TArray<FString> Found;
			std::error_code Error;
			for (fs::recursive_directory_iterator It(ToPath(*Root), Error), End; !Error && It != End; It.increment(Error))
			{
				const bool bIsDirectory = It->is_directory(Error);
				if ((bIsDirectory && !Directories) || (!bIsDirectory && !Files))
				{
					continue;
				}
				if (MatchesFileWildcard(FromPath(It->path().filename()), Wildcard))
				{
					Found.Add(FromPath(It->path()));
				}
			}
			Found.Sort([](const FString& A, const FString& B) { return A.Compare(B, ESearchCase::CaseSensitive) < 0; });
			FileNames.Append(MoveTemp(Found));
		}

		virtual FString GetCurrentDirectory() override
		{
			std::error_code Error;
			return FromPath(fs::current_path(Error));
		}

		virtual FString ConvertToAbsolutePathForExternalAppForRead(const TCHAR* Filename) override
		{
			return FPaths::ConvertRelativePathToFull(FString(Filename));
		}

		virtual FString ConvertToAbsolutePathForExternalAppForWrite(const TCHAR* Filename) override
		{
			return FPaths::ConvertRelativePathToFull(FString(Filename));
		}
	};
}

IFileManager& IFileManager::Get()
{
	static FFileManagerGeneric* Singleton = new FFileManagerGeneric();
	return *Singleton;
}

void IFileManager::FindFiles(TArray<FString>& FoundFiles, const TCHAR* Directory, const TCHAR* FileExtension)
{
	if (IsEmptyPath(Directory))
	{
		return;
	}
	FString RootDirectory(Directory);
	FPaths::NormalizeDirectoryName(RootDirectory);
	FString Extension = FileExtension ? FString(FileExtension) : FString();
	if (!Extension.Contains(TEXT("*")))
	{
		if (Extension.IsEmpty())
		{
			Extension = TEXT("*.*");
		}
		else
		{
			Extension = Extension.StartsWith(TEXT(".")) ? TEXT("*") + Extension : TEXT("*.") + Extension;
		}
	}
	FindFiles(FoundFiles, *(RootDirectory / Extension), true, false);
}
