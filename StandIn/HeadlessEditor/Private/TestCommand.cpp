#include "ConsoleOutput.h"
#include "HeadlessEditorScope.h"
#include "Misc/AutomationTest.h"
#include "VlmrCommands.h"

namespace UE::Vlmr
{
	int32 TestCommand(const TArray<FString>& Arguments)
	{
		if (Arguments.Num() > 1)
		{
			PrintUsage();
			return ExitUsage;
		}
		const FString Filter = Arguments.Num() == 1 ? Arguments[0] : FString();
		FHeadlessEditorScope Editor;
		if (!Editor.IsRunning())
		{
			WriteLine(stderr, TEXT("error: ") + Editor.GetError());
			return ExitFailure;
		}
		FStandardOutputDevice Output;
		const int32 FailureCount = FAutomationTestFramework::Get().RunTests(Filter, Output);
		return FailureCount > 0 ? ExitFailure : ExitSuccess;
	}
}
