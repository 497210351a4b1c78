#include "Graph/Nodes/MovieGraphCameraNode.h"

#include "Graph/MovieGraphStandInNodeReflection.h"
#include "UObject/UnrealType.h"

UMovieGraphCameraSettingNode::UMovieGraphCameraSettingNode() = default;

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMovieGraphCameraSettingNode, CLASS_None, "MovieRenderPipelineCore")
{
	constexpr EPropertyFlags EditableFlags = CPF_Edit | CPF_BlueprintVisible;
	{
		FProperty* Property = STANDIN_OVERRIDEABLE_PROPERTY(OverscanPercentage, EditableFlags);
		Property->SetMetaData(TEXT("ClampMin"), TEXT("0"));
		Property->SetMetaData(TEXT("ClampMax"), TEXT("100"));
	}
}
