// Test helpers: a throw-away project directory and a capture of the lines sent to GLog.
#pragma once

#include "CoreMinimal.h"
#include "HAL/FileManager.h"
#include "HAL/PlatformProcess.h"
#include "Misc/Guid.h"
#include "Misc/OutputDeviceRedirector.h"
#include "Misc/Paths.h"

/** Points the project directory at a new empty folder for the life of the scope, then deletes the folder. */
class FScopedTestProject
{
public:
	FScopedTestProject()
		: PreviousProjectDir(FPaths::ProjectDir())
		, ProjectDir(FPaths::Combine(FPaths::ConvertRelativePathToFull(FPlatformProcess::UserTempDir()), FString(TEXT("VlmrPersistence_")) + FGuid::NewGuid().ToString()) + TEXT("/"))
	{
		IFileManager::Get().MakeDirectory(*ProjectDir, true);
		FPaths::SetProjectDir(ProjectDir);
	}

	explicit FScopedTestProject(const FString& ExistingProjectDir)
		: PreviousProjectDir(FPaths::ProjectDir())
		, ProjectDir(ExistingProjectDir)
		, bOwnsDirectory(false)
	{
		FPaths::SetProjectDir(ProjectDir);
	}

	~FScopedTestProject()
	{
		FPaths::SetProjectDir(PreviousProjectDir);
		if (bOwnsDirectory)
		{
			IFileManager::Get().DeleteDirectory(*ProjectDir, false, true);
		}
	}

	const FString& GetProjectDir() const { return ProjectDir; }

private:
	FString PreviousProjectDir;
	FString ProjectDir;
	bool bOwnsDirectory = true;
};

/** Records every line logged through GLog while it exists. */
class FLogCapture final : public FOutputDevice
{
public:
	FLogCapture() { GLog->AddOutputDevice(this); }
	~FLogCapture() { GLog->RemoveOutputDevice(this); }

	virtual void Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category) override
	{
		Lines.Add({ FString(V), Verbosity });
	}

	/** Whether a line of exactly this verbosity contains the text. */
	bool Contains(const FString& Text, ELogVerbosity::Type Verbosity) const
	{
		for (const FLine& Line : Lines)
		{
			if ((Line.Verbosity & ELogVerbosity::VerbosityMask) == Verbosity && Line.Text.Contains(Text, ESearchCase::CaseSensitive))
			{
				return true;
			}
		}
		return false;
	}

	int32 CountAtOrAbove(ELogVerbosity::Type Verbosity) const
	{
		int32 Count = 0;
		for (const FLine& Line : Lines)
		{
			Count += (Line.Verbosity & ELogVerbosity::VerbosityMask) <= Verbosity ? 1 : 0;
		}
		return Count;
	}

private:
	struct FLine
	{
		FString Text;
		ELogVerbosity::Type Verbosity;
	};
	TArray<FLine> Lines;
};
