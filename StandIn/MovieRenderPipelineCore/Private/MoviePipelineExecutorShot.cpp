#include "MoviePipelineQueue.h"

#include "Graph/MovieGraphConfig.h"
#include "MovieJobVariableAssignmentContainer.h"
#include "UObject/UnrealType.h"
#include "UObject/UObjectGlobals.h"

UMoviePipelineExecutorShot::UMoviePipelineExecutorShot()
	: bEnabled(true)
	, Progress(0.0f)
{
}

FString UMoviePipelineExecutorShot::GetCameraName(int32 InCameraIndex) const
{
	return SidecarCameras.IsValidIndex(InCameraIndex) ? SidecarCameras[InCameraIndex].Name : InnerName;
}

UMoviePipelineShotConfig* UMoviePipelineExecutorShot::AllocateNewShotOverrideConfig(TSubclassOf<UMoviePipelineShotConfig> InConfigType)
{
	UClass* ConfigClass = InConfigType.Get();
	if (!ensureAlwaysMsgf(ConfigClass, TEXT("Failed to specify a Config Type. Use the default in project setting or UMoviePipelineShotConfig.")))
	{
		ConfigClass = UMoviePipelineShotConfig::StaticClass();
	}
#if WITH_EDITOR
	Modify();
#endif
	ShotOverrideConfig = NewObject<UMoviePipelineShotConfig>(this, ConfigClass);
	if (ShotOverrideConfig)
	{
		ShotOverrideConfig->SetFlags(RF_Transactional);
	}
	return ShotOverrideConfig;
}

void UMoviePipelineExecutorShot::SetShotOverrideConfiguration(UMoviePipelineShotConfig* InPreset)
{
	if (InPreset)
	{
		if (!ShotOverrideConfig)
		{
			AllocateNewShotOverrideConfig(UMoviePipelineShotConfig::StaticClass());
		}
		ShotOverrideConfig->CopyFrom(InPreset);
	}
	else
	{
		ShotOverrideConfig = nullptr;
	}
	ShotOverridePresetOrigin = nullptr;
}

void UMoviePipelineExecutorShot::SetShotOverridePresetOrigin(UMoviePipelineShotConfig* InPreset)
{
	if (!InPreset)
	{
		ShotOverridePresetOrigin.Reset();
		return;
	}
	if (!ShotOverrideConfig)
	{
		AllocateNewShotOverrideConfig(UMoviePipelineShotConfig::StaticClass());
	}
	ShotOverrideConfig->CopyFrom(InPreset);
	ShotOverridePresetOrigin = InPreset;
}

void UMoviePipelineExecutorShot::SetGraphPreset(const UMovieGraphConfig* InGraphPreset, const bool bUpdateVariableAssignments)
{
	Modify();
	GraphPreset = InGraphPreset;
	if (bUpdateVariableAssignments)
	{
		GraphVariableAssignments.RemoveAll([InGraphPreset](const TObjectPtr<UMovieJobVariableAssignmentContainer>& Assignments)
		{
			return !Assignments || !(Assignments->GetGraphConfig() == InGraphPreset);
		});
		GetOrCreateJobVariableAssignmentsForGraph(InGraphPreset);
	}
}

UMovieGraphConfig* UMoviePipelineExecutorShot::GetGraphPreset() const
{
	return GraphPreset.LoadSynchronous();
}

bool UMoviePipelineExecutorShot::IsUsingGraphConfiguration() const
{
	if (!GraphPreset.IsNull())
	{
		return true;
	}
	const UMoviePipelineExecutorJob* OwningJob = GetTypedOuter<UMoviePipelineExecutorJob>();
	return OwningJob && OwningJob->IsUsingGraphConfiguration();
}

TArray<TObjectPtr<UMovieJobVariableAssignmentContainer>>& UMoviePipelineExecutorShot::GetAssignments(const bool bIsForPrimaryOverrides)
{
	return bIsForPrimaryOverrides ? PrimaryGraphVariableAssignments : GraphVariableAssignments;
}

UMovieJobVariableAssignmentContainer* UMoviePipelineExecutorShot::GetOrCreateJobVariableAssignmentsForGraph(const UMovieGraphConfig* InGraph, const bool bIsForPrimaryOverrides)
{
	if (!InGraph)
	{
		return nullptr;
	}
	TArray<TObjectPtr<UMovieJobVariableAssignmentContainer>>& Assignments = GetAssignments(bIsForPrimaryOverrides);
	for (UMovieJobVariableAssignmentContainer* Existing : Assignments)
	{
		if (Existing && Existing->GetGraphConfig() == InGraph)
		{
			return Existing;
		}
	}
	UMovieJobVariableAssignmentContainer* NewAssignments = NewObject<UMovieJobVariableAssignmentContainer>(this);
	NewAssignments->SetFlags(RF_Transactional);
	NewAssignments->SetGraphConfig(InGraph);
	Assignments.Add(NewAssignments);
	return NewAssignments;
}

VLMR_IMPLEMENT_CLASS(UMoviePipelineExecutorShot, CLASS_None, "MovieRenderPipelineCore")
{
	constexpr EPropertyFlags InstancedArrayFlags = CPF_ExportObject | CPF_InstancedReference | CPF_ContainsInstancedReference;
	VLMR_PROPERTY(bEnabled, CPF_BlueprintVisible);
	VLMR_PROPERTY(OuterName, CPF_BlueprintVisible);
	VLMR_PROPERTY(InnerName, CPF_BlueprintVisible);
	VLMR_PROPERTY(SidecarCameras, CPF_BlueprintVisible);
#if ENGINE_MAJOR_VERSION > 5 || ENGINE_MINOR_VERSION >= 7
	VLMR_PROPERTY(ConsoleVariableOverrides, CPF_Edit | CPF_BlueprintVisible);
#endif
	VLMR_PROPERTY(Progress, CPF_Transient);
	VLMR_PROPERTY(StatusMessage, CPF_Transient);
	VLMR_PROPERTY(ShotOverrideConfig, CPF_ExportObject | CPF_InstancedReference);
	VLMR_PROPERTY(ShotOverridePresetOrigin, CPF_None);
	VLMR_PROPERTY(GraphPreset, CPF_None);
	VLMR_PROPERTY(GraphVariableAssignments, CPF_Edit | InstancedArrayFlags);
	VLMR_PROPERTY(PrimaryGraphVariableAssignments, CPF_Edit | InstancedArrayFlags);

	VLMR_FUNCTION(ShouldRender);
	VLMR_FUNCTION(GetCameraName, TEXT("InCameraIndex"));
	VLMR_FUNCTION(SetStatusMessage, TEXT("InStatus"));
	VLMR_FUNCTION(GetStatusMessage);
	VLMR_FUNCTION(SetStatusProgress, TEXT("InProgress"));
	VLMR_FUNCTION(GetStatusProgress);
	VLMR_FUNCTION(AllocateNewShotOverrideConfig, TEXT("InConfigType"));
	VLMR_FUNCTION(SetShotOverrideConfiguration, TEXT("InPreset"));
	VLMR_FUNCTION(SetShotOverridePresetOrigin, TEXT("InPreset"));
	VLMR_FUNCTION(GetShotOverrideConfiguration);
	VLMR_FUNCTION(GetShotOverridePresetOrigin);
	VLMR_FUNCTION(SetGraphPreset, TEXT("InGraphPreset"), TEXT("bUpdateVariableAssignments"));
	VLMR_FUNCTION(GetGraphPreset);
	VLMR_FUNCTION(IsUsingGraphConfiguration);
	VLMR_FUNCTION(GetOrCreateJobVariableAssignmentsForGraph, TEXT("InGraph"), TEXT("bIsForPrimaryOverrides"));
}
