// The commands of the headless editor `vlmr`; each returns the process exit code.
#pragma once

#include "CoreMinimal.h"

namespace UE::Vlmr
{
	// Exit codes: 0 success, 1 a failure of the work itself, 2 a command line that cannot be understood.
	constexpr int32 ExitSuccess = 0;
	constexpr int32 ExitFailure = 1;
	constexpr int32 ExitUsage = 2;

	int32 RunCommand(const TArray<FString>& Arguments);
	int32 TestCommand(const TArray<FString>& Arguments);
	int32 DocsCommand(const TArray<FString>& Arguments);
	int32 NewProjectCommand(const TArray<FString>& Arguments);
	int32 MakeSampleProjectCommand(const TArray<FString>& Arguments);

	void PrintUsage();
}
