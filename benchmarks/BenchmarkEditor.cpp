#include "BenchmarkEditor.h"

#include "Editor.h"
#include "Editor/StandInEditorStartup.h"
#include "Editor/Transactor.h"
#include "Graph/MovieGraphConfig.h"
#include "LevelSequence.h"
#include "Misc/Paths.h"
#include "Modules/ModuleManager.h"
#include "MoviePipelineQueue.h"
#include "MoviePipelineQueueSubsystem.h"
#include "UObject/GarbageCollection.h"
#include "UObject/Package.h"

namespace VLMRBench
{
	// An empty graph asset in memory for the scripts to build in; never saved, so the sample project stays unchanged.
	static bool CreateGraph(const std::string& PackageName)
	{
		const FString Name(UTF8_TO_TCHAR(PackageName.c_str()));
		UPackage* Package = CreatePackage(*Name);
		const FString AssetName = FPaths::GetBaseFilename(Name);
		return NewObject<UMovieGraphConfig>(Package, FName(*AssetName), RF_Public | RF_Standalone | RF_Transactional) != nullptr;
	}

	FBenchmarkEditor::FBenchmarkEditor()
	{
		FPaths::SetProjectDir(TEXT(VLMR_SAMPLE_PROJECT_DIR) TEXT("/"));
		UE::UnrealEd::StandIn::StartEditor(TEXT("/Game/Maps/Main"));
		FModuleManager::Get().LoadModule(TEXT("VLMR_MovieRenderPipeline_Integration"));
		Session = MakeUnique<FVelmireLuaSession>();
		Session->GetState().set_function("bench_create_graph", &CreateGraph);
		// The scenarios' assertions, for the benchmarks' checks that a floor builds what the module does.
		Session->GetState().script_file(VLMR_CHECK_LIBRARY);
		UPackage* Package = CreatePackage(TEXT("/Game/Bench/Sequence"));
		Sequence = NewObject<ULevelSequence>(Package, TEXT("Sequence"), RF_Public | RF_Standalone);
	}

	UMoviePipelineQueue* FBenchmarkEditor::GetQueue() const
	{
		return GEditor->GetEditorSubsystem<UMoviePipelineQueueSubsystem>()->GetQueue();
	}

	void FBenchmarkEditor::FillQueue(int32 JobCount) const
	{
		UMoviePipelineQueue* Queue = GetQueue();
		Queue->DeleteAllJobs();
		for (int32 Index = 0; Index < JobCount; ++Index)
		{
			UMoviePipelineExecutorJob* Job = Queue->AllocateNewJob(UMoviePipelineExecutorJob::StaticClass());
			Job->Sequence = FSoftObjectPath(Sequence);
			Job->JobName = TEXT("Bench");
		}
	}

	void FBenchmarkEditor::ForgetCallTraces(bool bCollectGarbage) const
	{
		Session->GetSessionData().ClearLog();
		GEditor->Trans->Reset(FText::GetEmpty());
		if (bCollectGarbage)
		{
			CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
		}
	}

	FBenchmarkEditor& GetEditor()
	{
		static FBenchmarkEditor Editor;
		return Editor;
	}
}
