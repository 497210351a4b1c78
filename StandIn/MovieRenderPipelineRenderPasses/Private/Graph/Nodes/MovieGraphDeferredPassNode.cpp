#include "Graph/Nodes/MovieGraphDeferredPassNode.h"

#include "Graph/MovieGraphStandInNodeReflection.h"
#include "UObject/UnrealType.h"

UMovieGraphDeferredRenderPassNode::UMovieGraphDeferredRenderPassNode() = default;

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMovieGraphDeferredRenderPassNode, CLASS_None, "MovieRenderPipelineRenderPasses")
{
	constexpr EPropertyFlags EditableFlags = CPF_Edit | CPF_BlueprintVisible;
	STANDIN_OVERRIDEABLE_PROPERTY(SpatialSampleCount, EditableFlags)->SetMetaData(TEXT("ClampMin"), TEXT("1"));
	STANDIN_OVERRIDEABLE_PROPERTY(AntiAliasingMethod, EditableFlags);
	STANDIN_OVERRIDEABLE_PROPERTY(bDisableToneCurve, EditableFlags);
	STANDIN_OVERRIDEABLE_PROPERTY(bAllowOCIO, EditableFlags);
}
