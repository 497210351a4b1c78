#include "Graph/MovieGraphNamedResolution.h"

#include "UObject/UnrealType.h"

STANDIN_IMPLEMENT_STRUCT(FMovieGraphNamedResolution, "MovieRenderPipelineCore")
{
	constexpr EPropertyFlags EditableConfigFlags = CPF_Config | CPF_Edit | CPF_BlueprintVisible;
	STANDIN_PROPERTY(ProfileName, EditableConfigFlags);
	STANDIN_PROPERTY(Resolution, EditableConfigFlags);
	STANDIN_PROPERTY(Description, EditableConfigFlags);
}
