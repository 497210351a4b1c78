#include "MovieJobVariableAssignmentContainer.h"

#include "Graph/MovieGraphConfig.h"
#include "UObject/UnrealType.h"

UMovieJobVariableAssignmentContainer::UMovieJobVariableAssignmentContainer() = default;

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMovieJobVariableAssignmentContainer, CLASS_None, "MovieRenderPipelineCore")
{
	STANDIN_PROPERTY(GraphConfig, CPF_None);
}
