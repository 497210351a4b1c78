#include "Graph/Nodes/MovieGraphRenderLayerNode.h"

#include "Graph/MovieGraphStandInNodeReflection.h"
#include "UObject/UnrealType.h"

UMovieGraphRenderLayerNode::UMovieGraphRenderLayerNode() = default;

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMovieGraphRenderLayerNode, CLASS_None, "MovieRenderPipelineCore")
{
	constexpr EPropertyFlags EditableFlags = CPF_Edit | CPF_BlueprintVisible;
	STANDIN_OVERRIDEABLE_PROPERTY(LayerName, EditableFlags);
#if !UE_VERSION_OLDER_THAN(5, 8, 0)
	STANDIN_OVERRIDEABLE_PROPERTY(LayerWarmUpFrames, EditableFlags)->SetMetaData(TEXT("ClampMin"), TEXT("0"));
#endif
}
