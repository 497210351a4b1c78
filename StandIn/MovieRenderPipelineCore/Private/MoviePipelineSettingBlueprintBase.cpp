#include "MoviePipelineSettingBlueprintBase.h"

#include "UObject/UnrealType.h"

// Stand-in choice: a new Blueprint setting is valid everywhere and can be disabled, in the default category.
UMoviePipelineSetting_BlueprintBase::UMoviePipelineSetting_BlueprintBase()
	: CategoryText(NSLOCTEXT("MovieRenderPipeline", "DefaultCategoryName_Text", "Settings"))
	, bIsValidOnPrimary(true)
	, bIsValidOnShots(true)
	, bCanBeDisabled(true)
{
}

VLMR_IMPLEMENT_CLASS(UMoviePipelineSetting_BlueprintBase, CLASS_Abstract, "MovieRenderPipelineCore")
{
	constexpr EPropertyFlags DefaultsFlags = CPF_Edit | CPF_DisableEditOnInstance | CPF_BlueprintVisible;
	VLMR_PROPERTY(CategoryText, DefaultsFlags);
	VLMR_PROPERTY(bIsValidOnPrimary, DefaultsFlags);
	VLMR_PROPERTY(bIsValidOnShots, DefaultsFlags);
	VLMR_PROPERTY(bCanBeDisabled, DefaultsFlags);
}
