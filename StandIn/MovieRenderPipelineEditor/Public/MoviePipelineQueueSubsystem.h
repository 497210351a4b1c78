// UMoviePipelineQueueSubsystem: the editor's Movie Render Queue and the executor rendering it.
#pragma once

#include "CoreMinimal.h"
#include "Delegates/Delegate.h"
#include "EditorSubsystem.h"
#include "MoviePipelineExecutor.h"
#include "MoviePipelineQueue.h"
#include "Misc/EngineVersionComparison.h"
#include "Templates/SubclassOf.h"
#include "UObject/ObjectPtr.h"

#define UE_API STANDIN_MINIMALAPI_FUNCTION(MOVIERENDERPIPELINEEDITOR_API)

// Stand-in choice: a native multicast delegate; the engine's is a dynamic one, assignable from Blueprints.
DECLARE_MULTICAST_DELEGATE(FOnMoviePipelineQueueLoaded);

UCLASS(MinimalAPI, BlueprintType)
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINEEDITOR_API) UMoviePipelineQueueSubsystem : public UEditorSubsystem
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMoviePipelineQueueSubsystem, UEditorSubsystem, MOVIERENDERPIPELINEEDITOR_API)

public:
	UE_API UMoviePipelineQueueSubsystem();

	UFUNCTION(BlueprintPure, Category = "Movie Render Pipeline|Queue")
	UMoviePipelineQueue* GetQueue() const { return CurrentQueue; }

	// Creates an executor of the type and renders the editor's queue with it; null when a render is in progress.
	UFUNCTION(BlueprintCallable, Category = "Movie Render Pipeline|Rendering")
	UE_API UMoviePipelineExecutorBase* RenderQueueWithExecutor(TSubclassOf<UMoviePipelineExecutorBase> InExecutorType);

	// Renders the editor's queue with the executor, which becomes the active executor until it finishes.
	UFUNCTION(BlueprintCallable, Category = "Movie Render Pipeline|Rendering")
	UE_API void RenderQueueWithExecutorInstance(UMoviePipelineExecutorBase* InExecutor);

#if !UE_VERSION_OLDER_THAN(5, 6, 0)
	// Stand-in choice: offered from 5.6, the first version these are believed to exist in.
	UFUNCTION(BlueprintCallable, Category = "Movie Render Pipeline|Rendering")
	UE_API UMoviePipelineExecutorBase* RenderQueueInstanceWithExecutor(UMoviePipelineQueue* InQueue, TSubclassOf<UMoviePipelineExecutorBase> InExecutorType);

	UFUNCTION(BlueprintCallable, Category = "Movie Render Pipeline|Rendering")
	UE_API void RenderQueueInstanceWithExecutorInstance(UMoviePipelineQueue* InQueue, UMoviePipelineExecutorBase* InExecutor);
#endif

	UFUNCTION(BlueprintPure, Category = "Movie Render Pipeline|Rendering")
	UMoviePipelineExecutorBase* GetActiveExecutor() const { return ActiveExecutor; }

	// True only while there is an active executor and it reports that it is rendering.
	UFUNCTION(BlueprintPure, Category = "Movie Render Pipeline|Rendering")
	bool IsRendering() const { return ActiveExecutor && ActiveExecutor->IsRendering(); }

	// True when the queue has jobs but was never saved or loaded, or when it was modified since.
	UFUNCTION(BlueprintPure, Category = "Movie Render Pipeline|Queue")
	UE_API bool IsQueueDirty() const;

	// Replaces the editor queue's jobs with copies of the saved queue's and refreshes their shot lists.
	UFUNCTION(BlueprintCallable, Category = "Movie Render Pipeline|Queue")
	UE_API bool LoadQueue(UMoviePipelineQueue* QueueToLoad, const bool bPromptOnReplacingDirtyQueue = true);

	UPROPERTY(BlueprintAssignable, Category = "Movie Render Pipeline|Queue")
	FOnMoviePipelineQueueLoaded OnQueueLoaded;

protected:
	UPROPERTY(Transient)
	TObjectPtr<UMoviePipelineExecutorBase> ActiveExecutor;

	UPROPERTY(Transient, Instanced)
	TObjectPtr<UMoviePipelineQueue> CurrentQueue;

private:
	void StartRender(UMoviePipelineQueue* InQueue, UMoviePipelineExecutorBase* InExecutor);
	bool RefreshShotListsFromSequences();
	void OnExecutorFinished(UMoviePipelineExecutorBase* InPipelineExecutor, bool bSuccess);
};

#undef UE_API
