// Project folders on disk: the embedded sample project, copies of it, and the temporary copy a run works in.
#pragma once

#include "CoreMinimal.h"

namespace UE::Vlmr
{
	// The sample project compiled into vlmr (StandIn/SampleProject of the source tree).
	FString GetSampleProjectDir();

	// Copies every file and folder under SourceDir into DestinationDir (created when missing).
	bool CopyProjectFolder(const FString& SourceDir, const FString& DestinationDir, FString& OutError);

	// A project folder is a folder that holds a project descriptor, a file named *.uproject, directly.
	bool IsProjectFolder(const FString& Dir);

	// The name of the project in Dir: its descriptor's file name without ".uproject"; empty when Dir holds none.
	FString GetProjectName(const FString& Dir);

	// True when the folder does not exist or holds nothing.
	bool IsMissingOrEmptyFolder(const FString& Dir);

	// A fresh copy of the sample project in a new temporary folder, removed again when this object goes away.
	class FTemporaryProjectCopy
	{
	public:
		FTemporaryProjectCopy();
		~FTemporaryProjectCopy();

		FTemporaryProjectCopy(const FTemporaryProjectCopy&) = delete;
		FTemporaryProjectCopy& operator=(const FTemporaryProjectCopy&) = delete;

		bool IsValid() const { return !ProjectDir.IsEmpty(); }
		const FString& GetProjectDir() const { return ProjectDir; }
		const FString& GetError() const { return Error; }

	private:
		FString ProjectDir;
		FString Error;
	};
}
