#include "ConsoleOutput.h"
#include "EditorTestDriver.h"
#include "HeadlessEditorScope.h"
#include "VelmireLuaSession.h"
#include "VlmrCommands.h"

namespace UE::Vlmr
{
	namespace
	{
		struct FRunOptions
		{
			FString ProjectDir;
			// Stand-in choice: accepted now; renders, which a run would otherwise wait for, come with the render work.
			bool bNoWait = false;
			TArray<FString> Scripts;
		};

		bool ParseRunOptions(const TArray<FString>& Arguments, FRunOptions& OutOptions)
		{
			for (int32 Index = 0; Index < Arguments.Num(); ++Index)
			{
				const FString& Argument = Arguments[Index];
				if (Argument.Equals(TEXT("--project"), ESearchCase::CaseSensitive) && Index + 1 < Arguments.Num())
				{
					OutOptions.ProjectDir = Arguments[++Index];
				}
				else if (Argument.Equals(TEXT("--no-wait"), ESearchCase::CaseSensitive))
				{
					OutOptions.bNoWait = true;
				}
				else if (Argument.StartsWith(TEXT("--")))
				{
					return false;
				}
				else
				{
					OutOptions.Scripts.Add(Argument);
				}
			}
			return OutOptions.Scripts.Num() > 0;
		}

		// One session for all scripts, in order; the first Lua error ends the run.
		int32 RunScripts(const TArray<FString>& Scripts)
		{
			FVelmireLuaSession Session([](const FString& Line) { WriteLine(stdout, Line); });
			InstallEditorTestDriver(Session.GetState().lua_state(), Session.GetSessionData());
			for (const FString& Script : Scripts)
			{
				FString Error;
				if (!Session.RunFile(Script, Error))
				{
					WriteLine(stderr, TEXT("error: ") + Error);
					return ExitFailure;
				}
			}
			return ExitSuccess;
		}
	}

	int32 RunCommand(const TArray<FString>& Arguments)
	{
		FRunOptions Options;
		if (!ParseRunOptions(Arguments, Options))
		{
			PrintUsage();
			return ExitUsage;
		}
		FHeadlessEditorScope Editor(Options.ProjectDir);
		if (!Editor.IsRunning())
		{
			WriteLine(stderr, TEXT("error: ") + Editor.GetError());
			return ExitFailure;
		}
		return RunScripts(Options.Scripts);
	}
}
