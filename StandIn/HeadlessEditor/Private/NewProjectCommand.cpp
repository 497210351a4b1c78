#include "ConsoleOutput.h"
#include "ProjectFolder.h"
#include "VlmrCommands.h"

namespace UE::Vlmr
{
	int32 NewProjectCommand(const TArray<FString>& Arguments)
	{
		if (Arguments.Num() != 1 || Arguments[0].StartsWith(TEXT("--")))
		{
			PrintUsage();
			return ExitUsage;
		}
		const FString& ProjectDir = Arguments[0];
		// Stand-in choice: an existing project is never overwritten, so only a missing or empty folder is accepted.
		if (!IsMissingOrEmptyFolder(ProjectDir))
		{
			WriteLine(stderr, FString::Printf(TEXT("error: %s exists and is not an empty folder"), *ProjectDir));
			return ExitFailure;
		}
		FString Error;
		if (!CopyProjectFolder(GetSampleProjectDir(), ProjectDir, Error))
		{
			WriteLine(stderr, TEXT("error: ") + Error);
			return ExitFailure;
		}
		return ExitSuccess;
	}
}
