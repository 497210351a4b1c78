#include "ConsoleOutput.h"
#include "RunStop.h"
#include "VlmrCommands.h"

namespace UE::Vlmr
{
	namespace
	{
		using FCommandFunction = int32 (*)(const TArray<FString>&);

		struct FCommand
		{
			const TCHAR* Name;
			FCommandFunction Function;
		};

		// make-sample-project is the maintainers' generator of StandIn/SampleProject and is left out of the usage text.
		const FCommand Commands[] = {
			{ TEXT("run"), &RunCommand },
			{ TEXT("test"), &TestCommand },
			{ TEXT("docs"), &DocsCommand },
			{ TEXT("new-project"), &NewProjectCommand },
			{ TEXT("make-sample-project"), &MakeSampleProjectCommand },
		};
	}

	void PrintUsage()
	{
		WriteLine(stderr, TEXT("usage: vlmr <command> [arguments]"));
		WriteLine(stderr, TEXT("  run [--project DIR] [--no-wait] [--verbose] SCRIPT.lua...  run Lua scripts in one session of the editor;"));
		WriteLine(stderr, TEXT("                                                            the engine log goes to the project's Saved/Logs/<Name>.log,"));
		WriteLine(stderr, TEXT("                                                            its errors (with --verbose every line) to stderr too"));
		WriteLine(stderr, TEXT("  test [FILTER]                                             run the automation tests whose names start with FILTER"));
		WriteLine(stderr, TEXT("  docs [--luals]                                            print the Lua bindings' documentation (Markdown or LuaLS)"));
		WriteLine(stderr, TEXT("  new-project DIR                                           write the sample project to DIR"));
	}

	int32 RunMain(int ArgumentCount, char** Arguments)
	{
		if (ArgumentCount < 2)
		{
			PrintUsage();
			return ExitUsage;
		}
		const FString CommandName(UTF8_TO_TCHAR(Arguments[1]));
		TArray<FString> CommandArguments;
		for (int Index = 2; Index < ArgumentCount; ++Index)
		{
			CommandArguments.Add(FString(UTF8_TO_TCHAR(Arguments[Index])));
		}
		for (const FCommand& Command : Commands)
		{
			if (CommandName.Equals(Command.Name, ESearchCase::CaseSensitive))
			{
				return Command.Function(CommandArguments);
			}
		}
		WriteLine(stderr, FString::Printf(TEXT("vlmr: unknown command '%s'"), *CommandName));
		PrintUsage();
		return ExitUsage;
	}
}

int main(int ArgumentCount, char** Arguments)
{
	UE::Vlmr::InstallStopSignalHandlers();
	const int32 ExitCode = UE::Vlmr::RunMain(ArgumentCount, Arguments);
	UE::Vlmr::RaiseStopSignal();
	return ExitCode;
}
