#include "Graph/Nodes/MovieGraphGlobalGameOverrides.h"

#include "Graph/MovieGraphStandInNodeReflection.h"
#include "UObject/UnrealType.h"

STANDIN_IMPLEMENT_ENUM(EMovieGraphScalabilityQualityLevel, "MovieRenderPipelineCore", Low, Medium, High, Epic, Cinematic)

UMovieGraphGlobalGameOverridesNode::UMovieGraphGlobalGameOverridesNode() = default;

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMovieGraphGlobalGameOverridesNode, CLASS_None, "MovieRenderPipelineCore")
{
	constexpr EPropertyFlags EditableFlags = CPF_Edit | CPF_BlueprintVisible;
	STANDIN_OVERRIDEABLE_PROPERTY(GameModeOverride, CPF_BlueprintVisible | CPF_Deprecated)->SetMetaData(TEXT("DeprecatedProperty"), TEXT(""));
	STANDIN_OVERRIDEABLE_PROPERTY(SoftGameModeOverride, EditableFlags);
	STANDIN_OVERRIDEABLE_PROPERTY(ScalabilityQualityLevel, EditableFlags);
	STANDIN_OVERRIDEABLE_PROPERTY(bDisableTextureStreaming, EditableFlags);
	STANDIN_OVERRIDEABLE_PROPERTY(bDisableLODs, EditableFlags);
	STANDIN_OVERRIDEABLE_PROPERTY(bDisableHLODs, EditableFlags);
	STANDIN_OVERRIDEABLE_PROPERTY(bFlushLevelStreaming, EditableFlags);
	STANDIN_OVERRIDEABLE_PROPERTY(bFlushAssetCompiler, EditableFlags);
	STANDIN_OVERRIDEABLE_PROPERTY(bFlushShaderCompiler, EditableFlags);
	STANDIN_OVERRIDEABLE_PROPERTY(bFlushGrassStreaming, EditableFlags);
	STANDIN_OVERRIDEABLE_PROPERTY(bFlushStreamingManagers, EditableFlags);
	STANDIN_OVERRIDEABLE_PROPERTY(VirtualTextureFeedbackFactor, EditableFlags)->SetMetaData(TEXT("ClampMin"), TEXT("1"));
#if UE_VERSION_OLDER_THAN(5, 8, 0)
	STANDIN_OVERRIDEABLE_PROPERTY(bRebuildLumenSceneBetweenRenderLayers, EditableFlags);
#endif
#if !UE_VERSION_OLDER_THAN(5, 8, 0)
	STANDIN_OVERRIDEABLE_PROPERTY(bRebuildLumenSceneBetweenRenderLayers, CPF_Deprecated)->SetMetaData(TEXT("DeprecatedProperty"), TEXT(""));
#endif
}
