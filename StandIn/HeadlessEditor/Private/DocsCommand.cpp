#include "BindingDocs.h"
#include "ConsoleOutput.h"
#include "HandleDiscovery.h"
#include "HeadlessEditorScope.h"
#include "VelmireExtensionRegistrar.h"
#include "VlmrCommands.h"

namespace UE::Vlmr
{
	int32 DocsCommand(const TArray<FString>& Arguments)
	{
		const bool bLuaLS = Arguments.Num() == 1 && Arguments[0].Equals(TEXT("--luals"), ESearchCase::CaseSensitive);
		if (Arguments.Num() > 1 || (Arguments.Num() == 1 && !bLuaLS))
		{
			PrintUsage();
			return ExitUsage;
		}
		// The bindings register when their modules start, so the editor runs while the records are read; the handles
		// are read from real ones, built in the temporary copy of the sample project the editor opens.
		FHeadlessEditorScope Editor;
		if (!Editor.IsRunning())
		{
			WriteLine(stderr, TEXT("error: ") + Editor.GetError());
			return ExitFailure;
		}
		const TArray<FVelmireLuaBinding>& Bindings = FVelmireExtensionRegistrar::Get().GetBindings();
		for (const FString& Line : bLuaLS ? MakeLuaLSDefinitions(Bindings, DiscoverHandleTypes()) : MakeMarkdownDocs(Bindings))
		{
			WriteLine(stdout, Line);
		}
		return ExitSuccess;
	}
}
