#include "ProjectFolder.h"

#include <cstdlib>
#include <filesystem>
#include <system_error>

namespace UE::Vlmr
{
	namespace
	{
		std::filesystem::path ToPath(const FString& Dir)
		{
			return std::filesystem::path(TCHAR_TO_UTF8(*Dir));
		}

		FString ToFString(const std::filesystem::path& Path)
		{
			return FString(UTF8_TO_TCHAR(Path.string().c_str()));
		}

		FString MakeTemporaryFolder(FString& OutError)
		{
			std::error_code ErrorCode;
			const std::filesystem::path TempRoot = std::filesystem::temp_directory_path(ErrorCode);
			if (ErrorCode)
			{
				OutError = TEXT("no temporary folder");
				return FString();
			}
			std::string Template = (TempRoot / "vlmr-project-XXXXXX").string();
			if (!mkdtemp(Template.data()))
			{
				OutError = FString::Printf(TEXT("cannot create a folder in %s"), *ToFString(TempRoot));
				return FString();
			}
			return FString(UTF8_TO_TCHAR(Template.c_str()));
		}
	}

	FString GetSampleProjectDir()
	{
		return FString(UTF8_TO_TCHAR(VLMR_SAMPLE_PROJECT_DIR));
	}

	bool CopyProjectFolder(const FString& SourceDir, const FString& DestinationDir, FString& OutError)
	{
		std::error_code ErrorCode;
		std::filesystem::create_directories(ToPath(DestinationDir), ErrorCode);
		if (!ErrorCode)
		{
			std::filesystem::copy(ToPath(SourceDir), ToPath(DestinationDir),
				std::filesystem::copy_options::recursive | std::filesystem::copy_options::overwrite_existing, ErrorCode);
		}
		if (ErrorCode)
		{
			OutError = FString::Printf(TEXT("cannot copy %s to %s: %s"), *SourceDir, *DestinationDir,
				UTF8_TO_TCHAR(ErrorCode.message().c_str()));
			return false;
		}
		return true;
	}

	bool IsProjectFolder(const FString& Dir)
	{
		return !GetProjectName(Dir).IsEmpty();
	}

	FString GetProjectName(const FString& Dir)
	{
		std::error_code ErrorCode;
		for (std::filesystem::directory_iterator It(ToPath(Dir), ErrorCode), End; !ErrorCode && It != End; It.increment(ErrorCode))
		{
			if (It->path().extension() == ".uproject" && It->is_regular_file(ErrorCode))
			{
				return ToFString(It->path().stem());
			}
		}
		return FString();
	}

	bool IsMissingOrEmptyFolder(const FString& Dir)
	{
		std::error_code ErrorCode;
		const std::filesystem::path Path = ToPath(Dir);
		if (!std::filesystem::exists(Path, ErrorCode))
		{
			return true;
		}
		return std::filesystem::is_directory(Path, ErrorCode) && std::filesystem::is_empty(Path, ErrorCode);
	}

	FTemporaryProjectCopy::FTemporaryProjectCopy()
	{
		const FString TemporaryDir = MakeTemporaryFolder(Error);
		if (TemporaryDir.IsEmpty())
		{
			return;
		}
		if (!CopyProjectFolder(GetSampleProjectDir(), TemporaryDir, Error))
		{
			std::error_code ErrorCode;
			std::filesystem::remove_all(ToPath(TemporaryDir), ErrorCode);
			return;
		}
		ProjectDir = TemporaryDir;
	}

	FTemporaryProjectCopy::~FTemporaryProjectCopy()
	{
		if (!ProjectDir.IsEmpty())
		{
			std::error_code ErrorCode;
			std::filesystem::remove_all(ToPath(ProjectDir), ErrorCode);
		}
	}
}
