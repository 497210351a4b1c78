#include "ConfigAssets.h"
#include "ConsoleOutput.h"
#include "Editor.h"
#include "EditorAssetOperations.h"
#include "Engine/World.h"
#include "HAL/FileManager.h"
#include "HeadlessEditorScope.h"
#include "LevelSequenceAssets.h"
#include "Misc/FileHelper.h"
#include "Misc/Paths.h"
#include "ProjectFolder.h"
#include "Runtime/Launch/Resources/Version.h"
#include "UObject/Package.h"
#include "VlmrCommands.h"

// Generates StandIn/SampleProject with the stand-in's own package saving; its output is kept in the source tree.
namespace UE::Vlmr
{
	namespace
	{
		struct FSampleLevelSequence
		{
			const TCHAR* Path;
			// Shot sections over the default playback range (150 frames at 30 fps).
			TArray<FLevelSequenceShotOptions> Shots;
		};

		TArray<FSampleLevelSequence> GetSampleLevelSequences()
		{
			return {
				{ TEXT("/Game/Cinematics/Intro"), {
					{ TEXT("sh010"), TEXT("CineCameraActor_Wide"), 0, 60 },
					{ TEXT("sh020"), TEXT("CineCameraActor_Close"), 60, 120 },
					{ TEXT("sh030"), TEXT("CineCameraActor_Wide"), 120, 150 } } },
				{ TEXT("/Game/Seq/Shot010"), {
					{ TEXT("Shot010"), TEXT("CineCameraActor"), 0, 150 } } },
			};
		}

		bool WriteProjectDescriptor(const FString& ProjectDir)
		{
			const FString Descriptor = FString::Printf(TEXT(
				"{\n"
				"\t\"FileVersion\": 3,\n"
				"\t\"EngineAssociation\": \"%d.%d\",\n"
				"\t\"Category\": \"\",\n"
				"\t\"Description\": \"Sample project of the VLMR Movie Render Pipeline integration\",\n"
				"\t\"Plugins\": [\n"
				"\t\t{ \"Name\": \"MovieRenderPipeline\", \"Enabled\": true },\n"
				"\t\t{ \"Name\": \"VelmireAI\", \"Enabled\": true },\n"
				"\t\t{ \"Name\": \"VLMR_MovieRenderPipeline_Integration\", \"Enabled\": true }\n"
				"\t]\n"
				"}\n"), ENGINE_MAJOR_VERSION, ENGINE_MINOR_VERSION);
			return IFileManager::Get().MakeDirectory(*ProjectDir, true)
				&& FFileHelper::SaveStringToFile(Descriptor, *FPaths::Combine(ProjectDir, TEXT("VLMRSample.uproject")));
		}

		bool SaveEditorMap(FString& OutError)
		{
			UWorld* World = GEditor->GetEditorWorldContext().World();
			if (!World || World->GetPackage()->GetName() != GetEditorMapPackageName())
			{
				OutError = FString::Printf(TEXT("the editor did not open the map %s"), GetEditorMapPackageName());
				return false;
			}
			return SaveAssetPackage(World, OutError);
		}

		bool MakeSampleContent(FString& OutError)
		{
			if (!SaveEditorMap(OutError))
			{
				return false;
			}
			for (const FSampleLevelSequence& Sample : GetSampleLevelSequences())
			{
				FLevelSequenceAssetOptions Options;
				Options.Shots = Sample.Shots;
				if (!CreateLevelSequenceAsset(Sample.Path, Options, OutError))
				{
					return false;
				}
			}
			// A bare graph, as the graph editor's "empty graph" makes it, for the graph examples to build on.
			return CreateGraphConfigAsset(TEXT("/Game/Graphs/ExampleGraph"), OutError) != nullptr;
		}
	}

	int32 MakeSampleProjectCommand(const TArray<FString>& Arguments)
	{
		if (Arguments.Num() != 1 || !IsMissingOrEmptyFolder(Arguments[0]))
		{
			WriteLine(stderr, TEXT("usage: vlmr make-sample-project DIR (a missing or empty folder)"));
			return ExitUsage;
		}
		const FString ProjectDir = FPaths::ConvertRelativePathToFull(Arguments[0]);
		FString Error;
		if (!WriteProjectDescriptor(ProjectDir))
		{
			WriteLine(stderr, FString::Printf(TEXT("error: cannot write the project descriptor in %s"), *ProjectDir));
			return ExitFailure;
		}
		FHeadlessEditorScope Editor(ProjectDir);
		if (!Editor.IsRunning() || !MakeSampleContent(Error))
		{
			WriteLine(stderr, TEXT("error: ") + (Editor.IsRunning() ? Error : Editor.GetError()));
			return ExitFailure;
		}
		return ExitSuccess;
	}
}
