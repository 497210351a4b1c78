#include "ConsoleOutput.h"
#include "EditorTestDriver.h"
#include "HeadlessEditorScope.h"
#include "ProjectFolder.h"
#include "RenderWait.h"
#include "RunStop.h"
#include "VelmireLuaSession.h"
#include "VlmrCommands.h"

#include <cstdio>
#include <unistd.h>

namespace UE::Vlmr
{
	namespace
	{
		struct FRunOptions
		{
			FString ProjectDir;
			// Skips waiting, after the scripts, for the render they started.
			bool bNoWait = false;
			// Shows every engine log line on stderr too, not only errors.
			bool bVerbose = false;
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
				else if (Argument.Equals(TEXT("--verbose"), ESearchCase::CaseSensitive))
				{
					OutOptions.bVerbose = true;
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

		// Stand-in choice: a render that never ends (a stuck executor) stops holding the run after this many ticks.
		constexpr int32 MaxRenderWaitTicks = 100000;
		constexpr int32 ProgressBarWidth = 40;

		void DrawProgressBar(float Progress)
		{
			const int32 Filled = FMath::Clamp(int32(Progress * ProgressBarWidth), 0, ProgressBarWidth);
			const FString Bar = FString::ChrN(Filled, TEXT('#')) + FString::ChrN(ProgressBarWidth - Filled, TEXT('-'));
			const FTCHARToUTF8 Text(*FString::Printf(TEXT("\rRendering [%s] %3d%%"), *Bar, int32(Progress * 100.0f)));
			std::fwrite(Text.Get(), 1, size_t(Text.Length()), stderr);
			std::fflush(stderr);
		}

		// Ticks the editor until the render the scripts started is over, with a progress bar when stderr is a terminal.
		void WaitForRender()
		{
			if (!IsRenderInProgress())
			{
				return;
			}
			const bool bDrawProgress = isatty(fileno(stderr)) != 0;
			int32 DrawnPercent = -1;
			TickUntilRenderIdle(MaxRenderWaitTicks, [bDrawProgress, &DrawnPercent]()
			{
				const float Progress = GetRenderProgress();
				if (bDrawProgress && int32(Progress * 100.0f) != DrawnPercent)
				{
					DrawnPercent = int32(Progress * 100.0f);
					DrawProgressBar(Progress);
				}
			});
			if (bDrawProgress)
			{
				std::fputc('\n', stderr);
			}
		}

		// One session for all scripts, in order; the first Lua error ends the run, and so do os.exit and a signal.
		int32 RunScripts(const TArray<FString>& Scripts, bool bWaitForRender)
		{
			FVelmireLuaSession Session([](const FString& Line) { WriteLine(stdout, Line); });
			const FScriptStopScope StopScope(Session.GetState().lua_state());
			InstallEditorTestDriver(Session.GetState().lua_state(), Session.GetSessionData());
			for (int32 Index = 0; Index < Scripts.Num() && !IsStopRequested(); ++Index)
			{
				FString Error;
				if (!Session.RunFile(Scripts[Index], Error) && !IsStopRequested())
				{
					WriteLine(stderr, TEXT("error: ") + Error);
					return ExitFailure;
				}
			}
			if (bWaitForRender && !IsStopRequested())
			{
				WaitForRender();
			}
			return GetRequestedExitCode().Get(ExitSuccess);
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
		if (!Options.ProjectDir.IsEmpty() && !IsProjectFolder(Options.ProjectDir))
		{
			WriteLine(stderr, FString::Printf(TEXT("error: --project %s is not a project folder (a folder holding a .uproject file)"), *Options.ProjectDir));
			return ExitUsage;
		}
		FHeadlessEditorScope Editor(Options.ProjectDir, Options.bVerbose ? ELogVerbosity::All : ELogVerbosity::Error);
		if (!Editor.IsRunning())
		{
			WriteLine(stderr, TEXT("error: ") + Editor.GetError());
			return ExitFailure;
		}
		return RunScripts(Options.Scripts, !Options.bNoWait);
	}
}
