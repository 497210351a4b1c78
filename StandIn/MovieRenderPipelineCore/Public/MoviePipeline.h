// UMoviePipeline: the legacy pipeline. It renders one job, shot after shot, one output frame per engine tick, and
// hands every frame to the job's outputs.
#pragma once

#include "CoreMinimal.h"
#include "Containers/Map.h"
#include "Misc/DateTime.h"
#include "Misc/FrameRate.h"
#include "Misc/StringFormatArg.h"
#include "MoviePipelineBase.h"
#include "MoviePipelineQueue.h"
#include "MoviePipelineStandInShotRanges.h"
#include "Tickable.h"
#include "UObject/ObjectPtr.h"
#include "UObject/WeakObjectPtrTemplates.h"

#define UE_API STANDIN_MINIMALAPI_FUNCTION(MOVIERENDERPIPELINECORE_API)

class UMoviePipelineOutputSetting;
class UMoviePipelinePrimaryConfig;

UCLASS(MinimalAPI, BlueprintType)
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINECORE_API) UMoviePipeline : public UMoviePipelineBase, public FTickableGameObject
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMoviePipeline, UMoviePipelineBase, MOVIERENDERPIPELINECORE_API)

public:
	UE_API UMoviePipeline();

	// Prepares the render of the job: its shot list, frame ranges and output version. Rendering starts at the next tick.
	UFUNCTION(BlueprintCallable, Category = "Movie Render Pipeline")
	UE_API void Initialize(UMoviePipelineExecutorJob* InJob);

	// Stand-in choice: the job is held weakly, so a job deleted and collected mid-render makes the render fail.
	UFUNCTION(BlueprintPure, Category = "Movie Render Pipeline")
	UMoviePipelineExecutorJob* GetCurrentJob() const { return CurrentJob.Get(); }

	UFUNCTION(BlueprintPure, Category = "Movie Render Pipeline")
	int32 GetCurrentShotIndex() const { return FMath::Min(CurrentShotIndex, FMath::Max(ActiveShots.Num() - 1, 0)); }

	// The enabled shots of the job, in render order; shots collected since Initialize are left out.
	UE_API const TArray<TObjectPtr<UMoviePipelineExecutorShot>>& GetActiveShotList() const;

	UFUNCTION(BlueprintPure, Category = "Movie Render Pipeline")
	UE_API UMoviePipelinePrimaryConfig* GetPipelinePrimaryConfig() const;

	UFUNCTION(BlueprintPure, Category = "Movie Render Pipeline")
	FDateTime GetInitializationTime() const { return InitializationTime; }

	// Resolves InFormatString ({token}s from the job, its configuration, the output state and InFormatOverrides; unknown
	// tokens stay as written) into OutFinalPath, made unique with {file_dup} when existing files must not be overwritten.
	// Stand-in choice: a path longer than the platform's maximum path length resolves to an empty path, reported once per render.
	UE_API void ResolveFilenameFormatArguments(const FString& InFormatString, const FStringFormatNamedArguments& InFormatOverrides, FString& OutFinalPath, FMoviePipelineFormatArgs& OutFinalFormatArgs, const FMoviePipelineFrameOutputState* InOutputState = nullptr, const int32 InFrameNumberOffset = 0) const;

	// FTickableGameObject: each tick renders one output frame.
	UE_API virtual void Tick(float DeltaTime) override;
	UE_API virtual bool IsTickable() const override;
	virtual bool IsTickableInEditor() const override { return true; }

protected:
	UE_API virtual void ShutdownImpl(bool bIsError) override;
	virtual UMoviePipelineExecutorJob* GetWorkFinishedJob() const override { return CurrentJob.Get(); }

private:
	friend class UMoviePipelineBlueprintLibrary;

	bool GatherActiveShots();
	int32 ResolveVersionNumber() const;
	void TickProducingFrames();
	void RenderFrame(UMoviePipelineExecutorShot& InShot, const UE::MoviePipeline::StandIn::FShotOutputRange& InActiveShot);
	void AdvanceToNextShot();
	void SetShotState(int32 InShotIndex, EMovieRenderShotState InState);
	void UpdateJobProgress();
	void FinishRender();
	void GetFormatArguments(FMoviePipelineFormatArgs& InOutFormatArgs) const;
	void RefuseOverlongPath(const FString& InPath) const;
	UMoviePipelineOutputSetting* GetOutputSetting() const;

	TWeakObjectPtr<UMoviePipelineExecutorJob> CurrentJob;
	TArray<UE::MoviePipeline::StandIn::FShotOutputRange> ActiveShots;
	mutable TArray<TObjectPtr<UMoviePipelineExecutorShot>> ActiveShotList;
	int32 CurrentShotIndex;
	int32 CurrentFrameInShot;
	int32 OutputFrameCount;
	int32 TotalOutputFrames;
	FFrameRate EffectiveFrameRate;
	FDateTime InitializationTime;
	int32 InitializationVersion;
	mutable bool bRefusedOverlongPath;
};

#undef UE_API
