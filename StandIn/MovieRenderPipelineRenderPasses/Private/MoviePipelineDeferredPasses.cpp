#include "MoviePipelineDeferredPasses.h"

#include "UObject/UnrealType.h"

UMoviePipelineDeferredPassBase::UMoviePipelineDeferredPassBase()
	: bAccumulatorIncludesAlpha(false)
	, bDisableMultisampleEffects(false)
	, bUse32BitPostProcessMaterials(false)
	, bRenderMainPass(true)
	, bAddDefaultLayer(false)
{
	PassIdentifier = FMoviePipelinePassIdentifier(TEXT("FinalImage"));
}

UMoviePipelineDeferredPass_Unlit::UMoviePipelineDeferredPass_Unlit()
{
	PassIdentifier = FMoviePipelinePassIdentifier(TEXT("Unlit"));
}

UMoviePipelineDeferredPass_DetailLighting::UMoviePipelineDeferredPass_DetailLighting()
{
	PassIdentifier = FMoviePipelinePassIdentifier(TEXT("DetailLightingOnly"));
}

UMoviePipelineDeferredPass_LightingOnly::UMoviePipelineDeferredPass_LightingOnly()
{
	PassIdentifier = FMoviePipelinePassIdentifier(TEXT("LightingOnly"));
}

UMoviePipelineDeferredPass_ReflectionsOnly::UMoviePipelineDeferredPass_ReflectionsOnly()
{
	PassIdentifier = FMoviePipelinePassIdentifier(TEXT("ReflectionsOnly"));
}

UMoviePipelineDeferredPass_PathTracer::UMoviePipelineDeferredPass_PathTracer()
	: bReferenceMotionBlur(false)
{
	PassIdentifier = FMoviePipelinePassIdentifier(TEXT("PathTracer"));
}

#if WITH_EDITOR
FText UMoviePipelineDeferredPassBase::GetDisplayText() const
{
	return NSLOCTEXT("MovieRenderPipeline", "DeferredBasePassSetting_DisplayName_Lit", "Deferred Rendering");
}

FText UMoviePipelineDeferredPass_Unlit::GetDisplayText() const
{
	return NSLOCTEXT("MovieRenderPipeline", "DeferredBasePassSetting_DisplayName_Unlit", "Deferred Rendering (Unlit)");
}

FText UMoviePipelineDeferredPass_DetailLighting::GetDisplayText() const
{
	return NSLOCTEXT("MovieRenderPipeline", "DeferredBasePassSetting_DisplayName_DetailLighting", "Deferred Rendering (Detail Lighting)");
}

FText UMoviePipelineDeferredPass_LightingOnly::GetDisplayText() const
{
	return NSLOCTEXT("MovieRenderPipeline", "DeferredBasePassSetting_DisplayName_LightingOnly", "Deferred Rendering (Lighting Only)");
}

FText UMoviePipelineDeferredPass_ReflectionsOnly::GetDisplayText() const
{
	return NSLOCTEXT("MovieRenderPipeline", "DeferredBasePassSetting_DisplayName_ReflectionsOnly", "Deferred Rendering (Reflections Only)");
}

FText UMoviePipelineDeferredPass_PathTracer::GetDisplayText() const
{
	return NSLOCTEXT("MovieRenderPipeline", "DeferredBasePassSetting_DisplayName_PathTracer", "Path Tracer");
}
#endif

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMoviePipelineDeferredPassBase, CLASS_None, "MovieRenderPipelineRenderPasses")
{
	constexpr EPropertyFlags EditableFlags = CPF_Edit | CPF_BlueprintVisible;
	STANDIN_PROPERTY(bAccumulatorIncludesAlpha, EditableFlags);
	STANDIN_PROPERTY(bDisableMultisampleEffects, EditableFlags);
	STANDIN_PROPERTY(bUse32BitPostProcessMaterials, EditableFlags);
	STANDIN_PROPERTY(bRenderMainPass, EditableFlags);
	STANDIN_PROPERTY(bAddDefaultLayer, EditableFlags);
	STANDIN_PROPERTY(DataLayers, EditableFlags)->SetMetaData(TEXT("AllowedClasses"), TEXT("/Script/Engine.DataLayerAsset"));
}

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMoviePipelineDeferredPass_Unlit, CLASS_None, "MovieRenderPipelineRenderPasses")
{
}

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMoviePipelineDeferredPass_DetailLighting, CLASS_None, "MovieRenderPipelineRenderPasses")
{
}

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMoviePipelineDeferredPass_LightingOnly, CLASS_None, "MovieRenderPipelineRenderPasses")
{
}

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMoviePipelineDeferredPass_ReflectionsOnly, CLASS_None, "MovieRenderPipelineRenderPasses")
{
}

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMoviePipelineDeferredPass_PathTracer, CLASS_None, "MovieRenderPipelineRenderPasses")
{
	STANDIN_PROPERTY(bReferenceMotionBlur, CPF_Edit | CPF_BlueprintVisible);
}
