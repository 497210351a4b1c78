// Graph evaluation: a graph flattened by the engine for a queue job or a transient one, and what scripts read from it.
#pragma once

#include "CoreMinimal.h"
#include "Misc/Optional.h"
#include "UObject/StrongObjectPtr.h"
#include "UObject/WeakObjectPtrTemplates.h"
#include "VelmireLuaIncludes.h"

class FLuaSessionData;
class UMovieGraphConfig;
class UMovieGraphEvaluatedConfig;
class UMoviePipelineExecutorJob;
class UMoviePipelineQueue;
struct FMovieGraphNamedResolution;

namespace VLMR
{
	class FScriptOptions;

	// The options of the evaluating graph methods, read from the script's table before any engine call; the queue job
	// they name is held once found.
	struct FEvaluationOptions
	{
		TOptional<int64> JobIndex;
		TStrongObjectPtr<UMoviePipelineExecutorJob> Job;
		int32 ShotIndex = 0;
		float Overscan = 0.f;
		float AspectRatio = 0.f;
	};

	// Reads every option, then checks job, overscan and aspect_ratio in this order; false with the first failure's message.
	bool ParseEvaluationOptions(const FScriptOptions& Options, FEvaluationOptions& OutOptions, FString& OutError);

	// The queue job at a 1-based index of the editor's queue, held; false with the lookup's message.
	bool FindQueueJobByIndex(int64 Index, TStrongObjectPtr<UMoviePipelineExecutorJob>& OutJob, FString& OutError);

	// What one evaluation made or used, held until the call returns.
	struct FEvaluationContext
	{
		TStrongObjectPtr<UMovieGraphConfig> Graph;
		TStrongObjectPtr<UMoviePipelineQueue> TransientQueue;
		TStrongObjectPtr<UMoviePipelineExecutorJob> Job;
		TStrongObjectPtr<UMovieGraphEvaluatedConfig> Flattened;

		bool IsJobTransient() const { return TransientQueue.IsValid(); }
	};

	// Flattens the graph for the queue job (or a transient job made for the call when there is none).
	bool FlattenGraph(UMovieGraphConfig& Graph, UMoviePipelineExecutorJob* QueueJob, int32 ShotIndex, FEvaluationContext& OutContext, FString& OutError);

	// A named resolution as scripts see it: {profile, width, height, description, valid}.
	struct FNamedResolutionRow
	{
		FString Profile;
		int32 Width = 0;
		int32 Height = 0;
		FString Description;
		bool bValid = false;
	};

	// Valid when the profile name is not empty and both sizes are at least 1.
	FNamedResolutionRow ReadNamedResolution(const FMovieGraphNamedResolution& Resolution);
	sol::table MakeNamedResolutionTable(sol::state_view Lua, const FNamedResolutionRow& Row);

	// The graph handle's evaluation methods and the job handle's graph methods.
	void AddGraphEvaluationMethods(sol::table& Handle, const TWeakObjectPtr<UMovieGraphConfig>& Graph, FLuaSessionData* Session);
	void AddJobEvaluationMethods(sol::table& Handle, const TWeakObjectPtr<UMoviePipelineExecutorJob>& Job, FLuaSessionData* Session);
}
