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

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMoviePipelineExecutorShot, CLASS_None, "MovieRenderPipelineCore")
{
	constexpr EPropertyFlags InstancedArrayFlags = CPF_ExportObject | CPF_InstancedReference | CPF_ContainsInstancedReference;
	STANDIN_PROPERTY(bEnabled, CPF_BlueprintVisible);
	STANDIN_PROPERTY(OuterName, CPF_BlueprintVisible);
	STANDIN_PROPERTY(InnerName, CPF_BlueprintVisible);
	STANDIN_PROPERTY(SidecarCameras, CPF_BlueprintVisible);
#if !UE_VERSION_OLDER_THAN(5, 7, 0)
	STANDIN_PROPERTY(ConsoleVariableOverrides, CPF_Edit | CPF_BlueprintVisible);
#endif
	STANDIN_PROPERTY(Progress, CPF_Transient);
	STANDIN_PROPERTY(StatusMessage, CPF_Transient);
	STANDIN_PROPERTY(ShotOverrideConfig, CPF_ExportObject | CPF_InstancedReference);
	STANDIN_PROPERTY(ShotOverridePresetOrigin, CPF_None);
	STANDIN_PROPERTY(GraphPreset, CPF_None);
	STANDIN_PROPERTY(GraphVariableAssignments, CPF_Edit | InstancedArrayFlags);
	STANDIN_PROPERTY(PrimaryGraphVariableAssignments, CPF_Edit | InstancedArrayFlags);

	STANDIN_FUNCTION(ShouldRender);
	STANDIN_FUNCTION(GetCameraName, TEXT("InCameraIndex"));
	STANDIN_FUNCTION(SetStatusMessage, TEXT("InStatus"));
	STANDIN_FUNCTION(GetStatusMessage);
	STANDIN_FUNCTION(SetStatusProgress, TEXT("InProgress"));
	STANDIN_FUNCTION(GetStatusProgress);
	STANDIN_FUNCTION(AllocateNewShotOverrideConfig, TEXT("InConfigType"));
	STANDIN_FUNCTION(SetShotOverrideConfiguration, TEXT("InPreset"));
	STANDIN_FUNCTION(SetShotOverridePresetOrigin, TEXT("InPreset"));
	STANDIN_FUNCTION(GetShotOverrideConfiguration);
	STANDIN_FUNCTION(GetShotOverridePresetOrigin);
	STANDIN_FUNCTION(SetGraphPreset, TEXT("InGraphPreset"), TEXT("bUpdateVariableAssignments"));
	STANDIN_FUNCTION(GetGraphPreset);
	STANDIN_FUNCTION(IsUsingGraphConfiguration);
	STANDIN_FUNCTION(GetOrCreateJobVariableAssignmentsForGraph, TEXT("InGraph"), TEXT("bIsForPrimaryOverrides"));
}
