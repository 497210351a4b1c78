#include "MovieJobVariableAssignmentContainer.h"

#include "Graph/MovieGraphConfig.h"
#include "UObject/UnrealType.h"

UMovieJobVariableAssignmentContainer::UMovieJobVariableAssignmentContainer() = default;

VLMR_IMPLEMENT_CLASS(UMovieJobVariableAssignmentContainer, CLASS_None, "MovieRenderPipelineCore")
{
	VLMR_PROPERTY(GraphConfig, CPF_None);
}
