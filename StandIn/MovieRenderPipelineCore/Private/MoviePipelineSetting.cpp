#include "MoviePipelineSetting.h"

#include "MoviePipeline.h"
#include "UObject/Class.h"
#include "UObject/UnrealType.h"

UMoviePipelineSetting::UMoviePipelineSetting()
	: bEnabled(true)
	, ValidationState(EMoviePipelineValidationState::Valid)
{
}

#if WITH_EDITOR
void UMoviePipelineSetting::PostEditChangeProperty(FPropertyChangedEvent& PropertyChangedEvent)
{
	Super::PostEditChangeProperty(PropertyChangedEvent);
	ValidateState();
}

FText UMoviePipelineSetting::GetDisplayText() const
{
	return GetClass()->GetDisplayNameText();
}

FText UMoviePipelineSetting::GetCategoryText() const
{
	return NSLOCTEXT("MovieRenderPipeline", "DefaultCategoryName_Text", "Settings");
}
#endif

void UMoviePipelineSetting::OnMoviePipelineInitialized(UMoviePipeline* InPipeline)
{
	CachedPipeline = InPipeline;
	SetupForPipelineImpl(InPipeline);
}

UMoviePipeline* UMoviePipelineSetting::GetPipeline() const
{
	return CachedPipeline.Get();
}

void UMoviePipelineSetting::ValidateStateImpl()
{
	ValidationResults.Reset();
	ValidationState = EMoviePipelineValidationState::Valid;
}

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMoviePipelineSetting, CLASS_Abstract, "MovieRenderPipelineCore")
{
	STANDIN_PROPERTY(bEnabled, CPF_None);
	STANDIN_FUNCTION(IsEnabled);
	STANDIN_FUNCTION(SetIsEnabled, TEXT("bInEnabled"));
}
