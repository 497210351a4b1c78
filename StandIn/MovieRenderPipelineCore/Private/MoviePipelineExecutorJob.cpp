#include "MoviePipelineQueue.h"

#include "Graph/MovieGraphConfig.h"
#include "LevelSequence.h"
#include "MovieJobVariableAssignmentContainer.h"
#include "MoviePipelineBlueprintLibrary.h"
#include "Templates/Casts.h"
#include "UObject/Class.h"
#include "UObject/UnrealType.h"
#include "UObject/UObjectGlobals.h"

#if !UE_VERSION_OLDER_THAN(5, 8, 0)
STANDIN_IMPLEMENT_ENUM(EMoviePipelineConfigMode, "MovieRenderPipelineCore", Preset, Graph, Basic)
#endif

UMoviePipelineExecutorJob::UMoviePipelineExecutorJob()
	: StatusProgress(0.0f)
	, bIsConsumed(false)
	, bEnabled(true)
#if !UE_VERSION_OLDER_THAN(5, 8, 0)
	, ConfigMode(EMoviePipelineConfigMode::Preset)
	, bHasInitializedLegacyPresetDefaults(false)
#endif
{
	Configuration = CreateDefaultSubobject<UMoviePipelinePrimaryConfig>(TEXT("DefaultConfig"));
}

#if WITH_EDITOR
void UMoviePipelineExecutorJob::PostEditChangeProperty(FPropertyChangedEvent& PropertyChangedEvent)
{
	Super::PostEditChangeProperty(PropertyChangedEvent);
	if (PropertyChangedEvent.GetPropertyName() == FName(TEXT("Sequence")))
	{
		SetSequence(Sequence);
	}
}
#endif

void UMoviePipelineExecutorJob::SetIsEnabled_Implementation(const bool bInEnabled)
{
#if !UE_VERSION_OLDER_THAN(5, 8, 0)
	Modify();
#endif
	bEnabled = bInEnabled;
}

void UMoviePipelineExecutorJob::OnDuplicated_Implementation()
{
	UserData = FString();
	StatusMessage = FString();
	StatusProgress = 0.0f;
	SetConsumed(false);
}

void UMoviePipelineExecutorJob::SetPresetOrigin(UMoviePipelinePrimaryConfig* InPreset)
{
	if (!InPreset || !Configuration)
	{
		return;
	}
	Configuration->CopyFrom(InPreset);
	PresetOrigin = InPreset;
}

void UMoviePipelineExecutorJob::SetConfiguration(UMoviePipelinePrimaryConfig* InPreset)
{
	if (!InPreset || !Configuration)
	{
		return;
	}
	Configuration->CopyFrom(InPreset);
	PresetOrigin.Reset();
#if !UE_VERSION_OLDER_THAN(5, 8, 0)
	ConfigMode = EMoviePipelineConfigMode::Preset;
#endif
}

UMovieGraphConfig* UMoviePipelineExecutorJob::GetGraphPreset() const
{
	return GraphPreset.LoadSynchronous();
}

void UMoviePipelineExecutorJob::SetGraphPreset(const UMovieGraphConfig* InGraphPreset, const bool bUpdateVariableAssignments)
{
	Modify();
	GraphPreset = InGraphPreset;
	if (!InGraphPreset)
	{
		for (UMoviePipelineExecutorShot* Shot : ShotInfo)
		{
			if (Shot)
			{
				Shot->SetGraphPreset(nullptr, bUpdateVariableAssignments);
			}
		}
	}
	if (bUpdateVariableAssignments)
	{
		RefreshAllVariableAssignments();
	}
#if !UE_VERSION_OLDER_THAN(5, 8, 0)
	// Stand-in choice: a graph switches the job to graph mode, clearing it returns the job to its preset.
	ConfigMode = InGraphPreset ? EMoviePipelineConfigMode::Graph : EMoviePipelineConfigMode::Preset;
#endif
}

bool UMoviePipelineExecutorJob::IsUsingGraphConfiguration() const
{
#if !UE_VERSION_OLDER_THAN(5, 8, 0)
	return ConfigMode == EMoviePipelineConfigMode::Graph;
#else
	return !GraphPreset.IsNull();
#endif
}

#if !UE_VERSION_OLDER_THAN(5, 8, 0)
void UMoviePipelineExecutorJob::SetConfigMode(const EMoviePipelineConfigMode InConfigMode)
{
	Modify();
	ConfigMode = InConfigMode;
}
#endif

void UMoviePipelineExecutorJob::SetSequence(FSoftObjectPath InSequence)
{
	Sequence = InSequence;
	ShotInfo.Reset();

	ULevelSequence* LoadedSequence = Cast<ULevelSequence>(Sequence.TryLoad());
	if (!LoadedSequence)
	{
		return;
	}
	bool bShotsChanged = false;
	UMoviePipelineBlueprintLibrary::UpdateJobShotListFromSequence(LoadedSequence, this, bShotsChanged);

	if (UMoviePipelineQueue* OwningQueue = GetTypedOuter<UMoviePipelineQueue>())
	{
		OwningQueue->InvalidateSerialNumber();
	}
}

UMovieJobVariableAssignmentContainer* UMoviePipelineExecutorJob::GetOrCreateJobVariableAssignmentsForGraph(const UMovieGraphConfig* InGraph)
{
	if (!InGraph)
	{
		return nullptr;
	}
	for (UMovieJobVariableAssignmentContainer* Assignments : GraphVariableAssignments)
	{
		if (Assignments && Assignments->GetGraphConfig() == InGraph)
		{
			return Assignments;
		}
	}
	UMovieJobVariableAssignmentContainer* NewAssignments = NewObject<UMovieJobVariableAssignmentContainer>(this);
	NewAssignments->SetFlags(RF_Transactional);
	NewAssignments->SetGraphConfig(InGraph);
	GraphVariableAssignments.Add(NewAssignments);
	return NewAssignments;
}

TArray<TObjectPtr<UMovieJobVariableAssignmentContainer>>& UMoviePipelineExecutorJob::GetGraphVariableAssignments(const bool bUpdateAssignments)
{
	if (bUpdateAssignments)
	{
		RefreshAllVariableAssignments();
	}
	return GraphVariableAssignments;
}

void UMoviePipelineExecutorJob::RefreshVariableAssignmentsForGraph(const UMovieGraphConfig* InGraph)
{
	GraphVariableAssignments.RemoveAll([InGraph](const TObjectPtr<UMovieJobVariableAssignmentContainer>& Assignments)
	{
		return !Assignments || !InGraph || !(Assignments->GetGraphConfig() == InGraph);
	});
	GetOrCreateJobVariableAssignmentsForGraph(InGraph);
}

// Stand-in choice: only the preset graphs themselves are followed; the engine also visits the graphs of their subgraph nodes.
void UMoviePipelineExecutorJob::RefreshAllVariableAssignments()
{
	const UMovieGraphConfig* JobGraph = GetGraphPreset();
	RefreshVariableAssignmentsForGraph(JobGraph);
	for (UMoviePipelineExecutorShot* Shot : ShotInfo)
	{
		if (!Shot)
		{
			continue;
		}
		Shot->GetOrCreateJobVariableAssignmentsForGraph(JobGraph, true);
		Shot->GetOrCreateJobVariableAssignmentsForGraph(Shot->GetGraphPreset());
	}
}

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMoviePipelineExecutorJob, CLASS_None, "MovieRenderPipelineCore")
{
	constexpr EPropertyFlags EditableFlags = CPF_Edit | CPF_BlueprintVisible;
	constexpr EPropertyFlags InstancedArrayFlags = CPF_ExportObject | CPF_InstancedReference | CPF_ContainsInstancedReference;
	STANDIN_PROPERTY(JobName, EditableFlags);
	STANDIN_PROPERTY(Sequence, EditableFlags)->SetMetaData(TEXT("AllowedClasses"), TEXT("/Script/LevelSequence.LevelSequence"));
	STANDIN_PROPERTY(Map, EditableFlags)->SetMetaData(TEXT("AllowedClasses"), TEXT("/Script/Engine.World"));
	STANDIN_PROPERTY(Author, EditableFlags);
	STANDIN_PROPERTY(Comment, EditableFlags)->SetMetaData(TEXT("MultiLine"), TEXT("true"));
	STANDIN_PROPERTY(ShotInfo, CPF_BlueprintVisible | InstancedArrayFlags);
	STANDIN_PROPERTY(UserData, CPF_BlueprintVisible);
	STANDIN_PROPERTY(ConsoleVariableOverrides, EditableFlags);
	STANDIN_PROPERTY(StatusMessage, CPF_Transient);
	STANDIN_PROPERTY(StatusProgress, CPF_Transient);
	STANDIN_PROPERTY(bIsConsumed, CPF_Transient);
	STANDIN_PROPERTY(Configuration, CPF_ExportObject | CPF_InstancedReference);
	STANDIN_PROPERTY(PresetOrigin, CPF_None);
	STANDIN_PROPERTY(bEnabled, CPF_None);
	STANDIN_PROPERTY(GraphPreset, CPF_None);
	STANDIN_PROPERTY(GraphVariableAssignments, CPF_Edit | InstancedArrayFlags);
#if !UE_VERSION_OLDER_THAN(5, 8, 0)
	STANDIN_PROPERTY(BasicConfig, CPF_ExportObject | CPF_InstancedReference);
	STANDIN_PROPERTY(ConfigMode, CPF_None);
	STANDIN_PROPERTY(bHasInitializedLegacyPresetDefaults, CPF_None);
#endif

	STANDIN_FUNCTION(SetStatusMessage, TEXT("InStatus"));
	STANDIN_FUNCTION(GetStatusMessage);
	STANDIN_FUNCTION(SetStatusProgress, TEXT("InProgress"));
	STANDIN_FUNCTION(GetStatusProgress);
	STANDIN_FUNCTION(SetConsumed, TEXT("bInConsumed"));
	STANDIN_FUNCTION(IsConsumed);
	STANDIN_FUNCTION(SetIsEnabled, TEXT("bInEnabled"));
	STANDIN_FUNCTION(IsEnabled);
	STANDIN_FUNCTION(OnDuplicated);
	STANDIN_FUNCTION(SetPresetOrigin, TEXT("InPreset"));
	STANDIN_FUNCTION(GetPresetOrigin);
	STANDIN_FUNCTION(GetConfiguration);
	STANDIN_FUNCTION(SetConfiguration, TEXT("InPreset"));
	STANDIN_FUNCTION(GetGraphPreset);
	STANDIN_FUNCTION(SetGraphPreset, TEXT("InGraphPreset"), TEXT("bUpdateVariableAssignments"));
	STANDIN_FUNCTION(IsUsingGraphConfiguration);
	STANDIN_FUNCTION(SetSequence, TEXT("InSequence"));
	STANDIN_FUNCTION(GetOrCreateJobVariableAssignmentsForGraph, TEXT("InGraph"));
#if !UE_VERSION_OLDER_THAN(5, 8, 0)
	STANDIN_FUNCTION(GetConfigMode);
	STANDIN_FUNCTION(SetConfigMode, TEXT("InConfigMode"));
	STANDIN_FUNCTION(IsUsingBasicConfiguration);
	STANDIN_FUNCTION(GetBasicConfig);
	STANDIN_FUNCTION(CanUseConsoleVariableOverrides);
#endif
}
