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

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMoviePipelineSetting_BlueprintBase, CLASS_Abstract, "MovieRenderPipelineCore")
{
	constexpr EPropertyFlags DefaultsFlags = CPF_Edit | CPF_DisableEditOnInstance | CPF_BlueprintVisible;
	STANDIN_PROPERTY(CategoryText, DefaultsFlags);
	STANDIN_PROPERTY(bIsValidOnPrimary, DefaultsFlags);
	STANDIN_PROPERTY(bIsValidOnShots, DefaultsFlags);
	STANDIN_PROPERTY(bCanBeDisabled, DefaultsFlags);
}
