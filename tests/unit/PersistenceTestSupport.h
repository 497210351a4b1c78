// Test helpers: a throw-away project directory and a capture of the lines sent to GLog.
#pragma once

#include "CoreMinimal.h"
#include "HAL/FileManager.h"
#include "HAL/PlatformProcess.h"
#include "Misc/Guid.h"
#include "Misc/OutputDeviceRedirector.h"
#include "Misc/PackageName.h"
#include "Misc/Paths.h"
#include "UObject/Package.h"
#include "UObject/SavePackage.h"

#include <string>
#include <vector>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

extern char** environ;

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

inline FString GetTestExecutablePath()
{
	char Buffer[4096] = {};
	const ssize_t Length = readlink("/proc/self/exe", Buffer, sizeof(Buffer) - 1);
	return Length > 0 ? FString(Buffer) : FString();
}

/** Runs one test of this executable in a new process, with ProjectVariable naming ProjectDir; returns its exit status. */
inline int RunTestInSecondProcess(const char* TestFilter, const char* ProjectVariable, const FString& ProjectDir)
{
	const std::string Executable = TCHAR_TO_UTF8(*GetTestExecutablePath());
	std::string FilterArgument = std::string("--gtest_filter=") + TestFilter;
	char* Arguments[] = { const_cast<char*>(Executable.c_str()), FilterArgument.data(), nullptr };

	std::string ProjectAssignment = std::string(ProjectVariable) + "=" + TCHAR_TO_UTF8(*ProjectDir);
	std::vector<char*> Environment;
	for (char** Entry = environ; *Entry; ++Entry)
	{
		Environment.push_back(*Entry);
	}
	Environment.push_back(ProjectAssignment.data());
	Environment.push_back(nullptr);

	pid_t Child = 0;
	if (posix_spawn(&Child, Executable.c_str(), nullptr, nullptr, Arguments, Environment.data()) != 0)
	{
		return -1;
	}
	int Status = 0;
	waitpid(Child, &Status, 0);
	return WIFEXITED(Status) ? WEXITSTATUS(Status) : -1;
}

inline FString PackageFilename(const TCHAR* PackageName)
{
	return FPackageName::LongPackageNameToFilename(PackageName, FPackageName::GetAssetPackageExtension());
}

/** Saves the package to its file in the project's content, with Asset as its asset. */
inline FSavePackageResultStruct SavePackageToItsFile(UPackage* Package, UObject* Asset)
{
	FSavePackageArgs SaveArgs;
	SaveArgs.TopLevelFlags = RF_Public | RF_Standalone;
	return UPackage::Save(Package, Asset, *PackageFilename(*Package->GetName()), SaveArgs);
}
