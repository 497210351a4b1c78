// The Movie Render Queue: a queue of jobs, each a sequence to render in a map with a configuration, split into shots.
#pragma once

#include "CoreMinimal.h"
#include "MoviePipelinePrimaryConfig.h"
#include "MoviePipelineShotConfig.h"
#include "MovieRenderPipelineDataTypes.h"
#include "Misc/EngineVersionComparison.h"
#include "Templates/SubclassOf.h"
#include "UObject/ObjectPtr.h"
#include "UObject/SoftObjectPath.h"
#include "UObject/SoftObjectPtr.h"

#define UE_API STANDIN_MINIMALAPI_FUNCTION(MOVIERENDERPIPELINECORE_API)

class UMovieGraphConfig;
class UMovieJobVariableAssignmentContainer;

#if !UE_VERSION_OLDER_THAN(5, 8, 0)
// How a job is configured: a legacy preset, a graph asset, or the basic settings of the job itself.
UENUM(BlueprintType)
enum class EMoviePipelineConfigMode : uint8
{
	Preset,
	Graph,
	Basic,
};
STANDIN_DECLARE_ENUM(EMoviePipelineConfigMode, MOVIERENDERPIPELINECORE_API)
#endif

// One shot of a job: a camera cut (inner name) inside a shot section (outer name) of the job's sequence.
UCLASS(MinimalAPI, BlueprintType)
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINECORE_API) UMoviePipelineExecutorShot : public UObject
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMoviePipelineExecutorShot, UObject, MOVIERENDERPIPELINECORE_API)

public:
	UE_API UMoviePipelineExecutorShot();

	UFUNCTION(BlueprintPure, Category = "Movie Render Pipeline")
	bool ShouldRender() const { return bEnabled; }

	// The sidecar camera's name when the index names one, else the camera cut's name.
	UFUNCTION(BlueprintPure, Category = "Movie Render Pipeline")
	UE_API FString GetCameraName(int32 InCameraIndex) const;

	UFUNCTION(BlueprintCallable, BlueprintNativeEvent, Category = "Movie Render Pipeline")
	void SetStatusMessage(const FString& InStatus) { SetStatusMessage_Implementation(InStatus); }
	UFUNCTION(BlueprintPure, BlueprintNativeEvent, Category = "Movie Render Pipeline")
	FString GetStatusMessage() const { return GetStatusMessage_Implementation(); }
	UFUNCTION(BlueprintCallable, BlueprintNativeEvent, Category = "Movie Render Pipeline")
	void SetStatusProgress(const float InProgress) { SetStatusProgress_Implementation(InProgress); }
	UFUNCTION(BlueprintPure, BlueprintNativeEvent, Category = "Movie Render Pipeline")
	float GetStatusProgress() const { return GetStatusProgress_Implementation(); }

	virtual void SetStatusMessage_Implementation(const FString& InStatus) { StatusMessage = InStatus; }
	virtual FString GetStatusMessage_Implementation() const { return StatusMessage; }
	virtual void SetStatusProgress_Implementation(const float InProgress) { Progress = InProgress; }
	virtual float GetStatusProgress_Implementation() const { return Progress; }

	UFUNCTION(BlueprintCallable, Category = "Movie Render Pipeline")
	UE_API UMoviePipelineShotConfig* AllocateNewShotOverrideConfig(TSubclassOf<UMoviePipelineShotConfig> InConfigType);

	// Copies the preset into the shot's own override configuration; null removes the override.
	UFUNCTION(BlueprintCallable, Category = "Movie Render Pipeline")
	UE_API void SetShotOverrideConfiguration(UMoviePipelineShotConfig* InPreset);

	// As SetShotOverrideConfiguration, remembering the preset as where the override came from.
	UFUNCTION(BlueprintCallable, Category = "Movie Render Pipeline")
	UE_API void SetShotOverridePresetOrigin(UMoviePipelineShotConfig* InPreset);

	UFUNCTION(BlueprintPure, Category = "Movie Render Pipeline")
	UMoviePipelineShotConfig* GetShotOverrideConfiguration() const { return ShotOverrideConfig; }

	UFUNCTION(BlueprintPure, Category = "Movie Render Pipeline")
	UMoviePipelineShotConfig* GetShotOverridePresetOrigin() const { return ShotOverridePresetOrigin.LoadSynchronous(); }

	UFUNCTION(BlueprintCallable, Category = "Movie Render Pipeline")
	UE_API void SetGraphPreset(const UMovieGraphConfig* InGraphPreset, const bool bUpdateVariableAssignments = true);

	UFUNCTION(BlueprintPure, Category = "Movie Render Pipeline")
	UE_API UMovieGraphConfig* GetGraphPreset() const;

	// True when the shot has a graph preset of its own, or its job renders with a graph.
	UFUNCTION(BlueprintPure, Category = "Movie Render Pipeline")
	UE_API bool IsUsingGraphConfiguration() const;

	UFUNCTION(BlueprintCallable, Category = "Movie Render Pipeline")
	UE_API UMovieJobVariableAssignmentContainer* GetOrCreateJobVariableAssignmentsForGraph(const UMovieGraphConfig* InGraph, const bool bIsForPrimaryOverrides = false);

	UPROPERTY(BlueprintReadWrite, Category = "Movie Render Pipeline")
	bool bEnabled;

	// The name of the shot section; may be empty.
	UPROPERTY(BlueprintReadWrite, Category = "Movie Render Pipeline")
	FString OuterName;

	// The name of the camera cut's camera; may be empty.
	UPROPERTY(BlueprintReadWrite, Category = "Movie Render Pipeline")
	FString InnerName;

	UPROPERTY(BlueprintReadWrite, Category = "Movie Render Pipeline")
	TArray<FMoviePipelineSidecarCamera> SidecarCameras;

#if !UE_VERSION_OLDER_THAN(5, 7, 0)
	// Stand-in choice: offered from 5.7, the first version it was seen in.
	UPROPERTY(BlueprintReadWrite, EditAnywhere, Category = "Movie Render Pipeline")
	TArray<FMoviePipelineConsoleVariableEntry> ConsoleVariableOverrides;
#endif

	// Run-time data of the shot, rebuilt from the sequence; not saved.
	FMoviePipelineCameraCutInfo ShotInfo;

private:
	TArray<TObjectPtr<UMovieJobVariableAssignmentContainer>>& GetAssignments(const bool bIsForPrimaryOverrides);

	UPROPERTY(Transient)
	float Progress;

	UPROPERTY(Transient)
	FString StatusMessage;

	UPROPERTY(Instanced)
	TObjectPtr<UMoviePipelineShotConfig> ShotOverrideConfig;

	UPROPERTY()
	TSoftObjectPtr<UMoviePipelineShotConfig> ShotOverridePresetOrigin;

	UPROPERTY()
	TSoftObjectPtr<UMovieGraphConfig> GraphPreset;

	UPROPERTY(EditAnywhere, Instanced, Category = "Variable Assignments")
	TArray<TObjectPtr<UMovieJobVariableAssignmentContainer>> GraphVariableAssignments;

	UPROPERTY(EditAnywhere, Instanced, Category = "Variable Assignments")
	TArray<TObjectPtr<UMovieJobVariableAssignmentContainer>> PrimaryGraphVariableAssignments;
};

// One job of the queue: what to render (sequence, map), how (configuration or graph), and its state in a render.
UCLASS(MinimalAPI, BlueprintType)
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINECORE_API) UMoviePipelineExecutorJob : public UObject
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMoviePipelineExecutorJob, UObject, MOVIERENDERPIPELINECORE_API)

public:
	UE_API UMoviePipelineExecutorJob();

#if WITH_EDITOR
	// A changed Sequence rebuilds the shot list, as SetSequence does.
	UE_API virtual void PostEditChangeProperty(FPropertyChangedEvent& PropertyChangedEvent) override;
#endif

	UFUNCTION(BlueprintCallable, BlueprintNativeEvent, Category = "Movie Render Pipeline")
	void SetStatusMessage(const FString& InStatus) { SetStatusMessage_Implementation(InStatus); }
	UFUNCTION(BlueprintPure, BlueprintNativeEvent, Category = "Movie Render Pipeline")
	FString GetStatusMessage() const { return GetStatusMessage_Implementation(); }
	// Cosmetic; a negative value makes the editor show the status message instead of a progress bar.
	UFUNCTION(BlueprintCallable, BlueprintNativeEvent, Category = "Movie Render Pipeline")
	void SetStatusProgress(const float InProgress) { SetStatusProgress_Implementation(InProgress); }
	UFUNCTION(BlueprintPure, BlueprintNativeEvent, Category = "Movie Render Pipeline")
	float GetStatusProgress() const { return GetStatusProgress_Implementation(); }

	// Consumed jobs are skipped by executors.
	UFUNCTION(BlueprintCallable, BlueprintNativeEvent, Category = "Movie Render Pipeline")
	void SetConsumed(const bool bInConsumed) { SetConsumed_Implementation(bInConsumed); }
	UFUNCTION(BlueprintPure, BlueprintNativeEvent, Category = "Movie Render Pipeline")
	bool IsConsumed() const { return IsConsumed_Implementation(); }

	UFUNCTION(BlueprintCallable, BlueprintNativeEvent, Category = "Movie Render Pipeline")
	void SetIsEnabled(const bool bInEnabled) { SetIsEnabled_Implementation(bInEnabled); }
	UFUNCTION(BlueprintPure, BlueprintNativeEvent, Category = "Movie Render Pipeline")
	bool IsEnabled() const { return IsEnabled_Implementation(); }

	// Called on the copy made by UMoviePipelineQueue::DuplicateJob: clears what belongs to one render of the original.
	UFUNCTION(BlueprintNativeEvent, Category = "Movie Render Pipeline")
	void OnDuplicated() { OnDuplicated_Implementation(); }

	virtual void SetStatusMessage_Implementation(const FString& InStatus) { StatusMessage = InStatus; }
	virtual FString GetStatusMessage_Implementation() const { return StatusMessage; }
	virtual void SetStatusProgress_Implementation(const float InProgress) { StatusProgress = InProgress; }
	virtual float GetStatusProgress_Implementation() const { return StatusProgress; }
	virtual void SetConsumed_Implementation(const bool bInConsumed) { bIsConsumed = bInConsumed; }
	virtual bool IsConsumed_Implementation() const { return bIsConsumed; }
	UE_API virtual void SetIsEnabled_Implementation(const bool bInEnabled);
	virtual bool IsEnabled_Implementation() const { return bEnabled; }
	UE_API virtual void OnDuplicated_Implementation();

	// Copies the preset into the job's configuration and remembers it as the configuration's origin; null does nothing.
	UFUNCTION(BlueprintCallable, Category = "Movie Render Pipeline")
	UE_API void SetPresetOrigin(UMoviePipelinePrimaryConfig* InPreset);

	UFUNCTION(BlueprintPure, Category = "Movie Render Pipeline")
	UMoviePipelinePrimaryConfig* GetPresetOrigin() const { return PresetOrigin.LoadSynchronous(); }

	UFUNCTION(BlueprintPure, Category = "Movie Render Pipeline")
	UMoviePipelinePrimaryConfig* GetConfiguration() const { return Configuration; }

	// Copies the preset into the job's configuration and forgets the origin; null does nothing.
	UFUNCTION(BlueprintCallable, Category = "Movie Render Pipeline")
	UE_API void SetConfiguration(UMoviePipelinePrimaryConfig* InPreset);

	UFUNCTION(BlueprintPure, Category = "Movie Render Pipeline")
	UE_API UMovieGraphConfig* GetGraphPreset() const;

	// Null also clears the graph presets of the shots.
	UFUNCTION(BlueprintCallable, Category = "Movie Render Pipeline")
	UE_API void SetGraphPreset(const UMovieGraphConfig* InGraphPreset, const bool bUpdateVariableAssignments = true);

	UFUNCTION(BlueprintPure, Category = "Movie Render Pipeline")
	UE_API bool IsUsingGraphConfiguration() const;

	// Stores the path, empties the shot list and, when the sequence loads, rebuilds the shots from it.
	UFUNCTION(BlueprintSetter)
	UE_API void SetSequence(FSoftObjectPath InSequence);

	UFUNCTION(BlueprintCallable, Category = "Movie Render Pipeline", meta = (ScriptName = "GetOrCreateVariableOverrides"))
	UE_API UMovieJobVariableAssignmentContainer* GetOrCreateJobVariableAssignmentsForGraph(const UMovieGraphConfig* InGraph);

	UE_API TArray<TObjectPtr<UMovieJobVariableAssignmentContainer>>& GetGraphVariableAssignments(const bool bUpdateAssignments = true);

	// Keeps one assignment container for the graph in use and none for others, on the job and on its shots.
	UE_API void RefreshAllVariableAssignments();

#if !UE_VERSION_OLDER_THAN(5, 8, 0)
	UFUNCTION(BlueprintPure, Category = "Movie Render Pipeline")
	EMoviePipelineConfigMode GetConfigMode() const { return ConfigMode; }
	UFUNCTION(BlueprintCallable, Category = "Movie Render Pipeline")
	UE_API void SetConfigMode(const EMoviePipelineConfigMode InConfigMode);
	UFUNCTION(BlueprintPure, Category = "Movie Render Pipeline")
	bool IsUsingBasicConfiguration() const { return ConfigMode == EMoviePipelineConfigMode::Basic; }
	UFUNCTION(BlueprintPure, Category = "Movie Render Pipeline")
	UMovieGraphConfig* GetBasicConfig() const { return BasicConfig; }
	// The job's console variable overrides apply to graph and basic configurations only.
	UFUNCTION(BlueprintPure, Category = "Movie Render Pipeline")
	bool CanUseConsoleVariableOverrides() const { return ConfigMode != EMoviePipelineConfigMode::Preset; }
#endif

	// Shown in burn-ins.
	UPROPERTY(BlueprintReadWrite, EditAnywhere, Category = "Movie Render Pipeline")
	FString JobName;

	UPROPERTY(BlueprintReadWrite, EditAnywhere, BlueprintSetter = SetSequence, meta = (AllowedClasses = "/Script/LevelSequence.LevelSequence"), Category = "Movie Render Pipeline")
	FSoftObjectPath Sequence;

	UPROPERTY(BlueprintReadWrite, EditAnywhere, meta = (AllowedClasses = "/Script/Engine.World"), Category = "Movie Render Pipeline")
	FSoftObjectPath Map;

	// Empty means the user name of the machine that renders.
	UPROPERTY(BlueprintReadWrite, EditAnywhere, Category = "Movie Render Pipeline")
	FString Author;

	UPROPERTY(BlueprintReadWrite, EditAnywhere, meta = (MultiLine = true), Category = "Movie Render Pipeline")
	FString Comment;

	UPROPERTY(BlueprintReadWrite, Instanced, Category = "Movie Render Pipeline")
	TArray<TObjectPtr<UMoviePipelineExecutorShot>> ShotInfo;

	// Anything a script wants to keep with the job; the engine never reads it.
	UPROPERTY(BlueprintReadWrite, Category = "Movie Render Pipeline")
	FString UserData;

	UPROPERTY(BlueprintReadWrite, EditAnywhere, Category = "Movie Render Pipeline")
	TArray<FMoviePipelineConsoleVariableEntry> ConsoleVariableOverrides;

private:
	void RefreshVariableAssignmentsForGraph(const UMovieGraphConfig* InGraph);

	UPROPERTY(Transient)
	FString StatusMessage;

	UPROPERTY(Transient)
	float StatusProgress;

	UPROPERTY(Transient)
	bool bIsConsumed;

	UPROPERTY(Instanced)
	TObjectPtr<UMoviePipelinePrimaryConfig> Configuration;

	UPROPERTY()
	TSoftObjectPtr<UMoviePipelinePrimaryConfig> PresetOrigin;

	UPROPERTY()
	bool bEnabled;

	UPROPERTY()
	TSoftObjectPtr<UMovieGraphConfig> GraphPreset;

	UPROPERTY(EditAnywhere, Instanced, Category = "Variable Assignments")
	TArray<TObjectPtr<UMovieJobVariableAssignmentContainer>> GraphVariableAssignments;

#if !UE_VERSION_OLDER_THAN(5, 8, 0)
	// Stand-in choice: the basic configuration is a graph owned by the job.
	UPROPERTY(Instanced)
	TObjectPtr<UMovieGraphConfig> BasicConfig;

	UPROPERTY()
	EMoviePipelineConfigMode ConfigMode;

	UPROPERTY()
	bool bHasInitializedLegacyPresetDefaults;
#endif
};

// The editor's and the executors' list of jobs.
UCLASS(MinimalAPI, BlueprintType)
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINECORE_API) UMoviePipelineQueue : public UObject
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMoviePipelineQueue, UObject, MOVIERENDERPIPELINECORE_API)

public:
	UE_API UMoviePipelineQueue();

	// Appends a new job of the type (UMoviePipelineExecutorJob when none is given).
	UFUNCTION(BlueprintCallable, Category = "Movie Render Pipeline", meta = (DeterminesOutputType = "InJobType"))
	UE_API UMoviePipelineExecutorJob* AllocateNewJob(TSubclassOf<UMoviePipelineExecutorJob> InJobType);

	UFUNCTION(BlueprintCallable, Category = "Movie Render Pipeline")
	UE_API void DeleteJob(UMoviePipelineExecutorJob* InJob);

	UFUNCTION(BlueprintCallable, Category = "Movie Render Pipeline")
	UE_API void DeleteAllJobs();

	// Appends a copy of the job, without the original's render state and user data.
	UFUNCTION(BlueprintCallable, Category = "Movie Render Pipeline")
	UE_API UMoviePipelineExecutorJob* DuplicateJob(UMoviePipelineExecutorJob* InJob);

	UFUNCTION(BlueprintPure, Category = "Movie Render Pipeline")
	UE_API TArray<UMoviePipelineExecutorJob*> GetJobs() const;

	// Replaces the jobs with copies of InQueue's and takes over its origin; null logs a warning and returns null.
	UFUNCTION(BlueprintCallable, Category = "Movie Render Pipeline")
	UE_API UMoviePipelineQueue* CopyFrom(UMoviePipelineQueue* InQueue);

	// Moves the job so that it ends up before the job now at Index.
	UFUNCTION(BlueprintCallable, Category = "Movie Render Pipeline")
	UE_API void SetJobIndex(UMoviePipelineExecutorJob* InJob, int32 Index);

	// The saved queue this transient queue was loaded from.
	UFUNCTION(BlueprintPure, Category = "Movie Render Pipeline")
	UMoviePipelineQueue* GetQueueOrigin() const { return QueueOrigin.LoadSynchronous(); }
	UFUNCTION(BlueprintCallable, Category = "Movie Render Pipeline")
	void SetQueueOrigin(UMoviePipelineQueue* InConfig) { QueueOrigin = InConfig; }

#if WITH_EDITOR
	// Whether the queue or anything inside it was modified since it was last saved or loaded.
	UFUNCTION(BlueprintPure, Category = "Movie Render Pipeline")
	bool IsDirty() const { return bIsDirty; }
	UFUNCTION(BlueprintCallable, Category = "Movie Render Pipeline")
	void SetIsDirty(const bool bNewDirtyState) { bIsDirty = bNewDirtyState; }
#endif

	// Changes whenever the jobs change, so that views of the queue know to refresh.
	uint32 GetQueueSerialNumber() const { return QueueSerialNumber; }
	void InvalidateSerialNumber() { ++QueueSerialNumber; }

	UE_API virtual void PreSave(const ITargetPlatform* TargetPlatform) override;

private:
#if WITH_EDITOR
	void OnAnyObjectModified(UObject* InModifiedObject);
#endif

	UPROPERTY(Instanced)
	TArray<TObjectPtr<UMoviePipelineExecutorJob>> Jobs;

	UPROPERTY()
	TSoftObjectPtr<UMoviePipelineQueue> QueueOrigin;

	uint32 QueueSerialNumber;
#if WITH_EDITOR
	bool bIsDirty;
#endif
};

#undef UE_API
