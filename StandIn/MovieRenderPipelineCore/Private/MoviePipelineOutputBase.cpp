#include "MoviePipelineOutputBase.h"

#include "UObject/UnrealType.h"

UMoviePipelineOutputBase::UMoviePipelineOutputBase() = default;

#if WITH_EDITOR
FText UMoviePipelineOutputBase::GetCategoryText() const
{
	return NSLOCTEXT("MovieRenderPipeline", "ExportsCategoryName_Text", "Exports");
}
#endif

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMoviePipelineOutputBase, CLASS_Abstract, "MovieRenderPipelineCore")
{
}
