// The deferred renderer's passes: the lit final image and its unlit, lighting, reflection and path-traced variants.
#pragma once

#include "CoreMinimal.h"
#include "MoviePipelineImagePassBase.h"
#include "UObject/SoftObjectPath.h"

#define UE_API STANDIN_MINIMALAPI_FUNCTION(MOVIERENDERPIPELINERENDERPASSES_API)

// Stand-in choice: the post-process material and actor layer lists are left out (no materials or actor layers here).
UCLASS(MinimalAPI, BlueprintType)
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINERENDERPASSES_API) UMoviePipelineDeferredPassBase : public UMoviePipelineImagePassBase
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMoviePipelineDeferredPassBase, UMoviePipelineImagePassBase, MOVIERENDERPIPELINERENDERPASSES_API)

public:
	UE_API UMoviePipelineDeferredPassBase();

#if WITH_EDITOR
	UE_API virtual FText GetDisplayText() const override;
#endif

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Settings")
	bool bAccumulatorIncludesAlpha;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Post Processing")
	bool bDisableMultisampleEffects;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Deferred Renderer Data")
	bool bUse32BitPostProcessMaterials;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Stencil Clip Layers")
	bool bRenderMainPass;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Stencil Clip Layers")
	bool bAddDefaultLayer;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, meta = (AllowedClasses = "/Script/Engine.DataLayerAsset"), Category = "Stencil Clip Layers")
	TArray<FSoftObjectPath> DataLayers;
};

UCLASS(MinimalAPI, BlueprintType)
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINERENDERPASSES_API) UMoviePipelineDeferredPass_Unlit : public UMoviePipelineDeferredPassBase
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMoviePipelineDeferredPass_Unlit, UMoviePipelineDeferredPassBase, MOVIERENDERPIPELINERENDERPASSES_API)

public:
	UE_API UMoviePipelineDeferredPass_Unlit();

#if WITH_EDITOR
	UE_API virtual FText GetDisplayText() const override;
#endif
};

UCLASS(MinimalAPI, BlueprintType)
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINERENDERPASSES_API) UMoviePipelineDeferredPass_DetailLighting : public UMoviePipelineDeferredPassBase
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMoviePipelineDeferredPass_DetailLighting, UMoviePipelineDeferredPassBase, MOVIERENDERPIPELINERENDERPASSES_API)

public:
	UE_API UMoviePipelineDeferredPass_DetailLighting();

#if WITH_EDITOR
	UE_API virtual FText GetDisplayText() const override;
#endif
};

UCLASS(MinimalAPI, BlueprintType)
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINERENDERPASSES_API) UMoviePipelineDeferredPass_LightingOnly : public UMoviePipelineDeferredPassBase
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMoviePipelineDeferredPass_LightingOnly, UMoviePipelineDeferredPassBase, MOVIERENDERPIPELINERENDERPASSES_API)

public:
	UE_API UMoviePipelineDeferredPass_LightingOnly();

#if WITH_EDITOR
	UE_API virtual FText GetDisplayText() const override;
#endif
};

UCLASS(MinimalAPI, BlueprintType)
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINERENDERPASSES_API) UMoviePipelineDeferredPass_ReflectionsOnly : public UMoviePipelineDeferredPassBase
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMoviePipelineDeferredPass_ReflectionsOnly, UMoviePipelineDeferredPassBase, MOVIERENDERPIPELINERENDERPASSES_API)

public:
	UE_API UMoviePipelineDeferredPass_ReflectionsOnly();

#if WITH_EDITOR
	UE_API virtual FText GetDisplayText() const override;
#endif
};

UCLASS(MinimalAPI, BlueprintType)
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINERENDERPASSES_API) UMoviePipelineDeferredPass_PathTracer : public UMoviePipelineDeferredPassBase
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMoviePipelineDeferredPass_PathTracer, UMoviePipelineDeferredPassBase, MOVIERENDERPIPELINERENDERPASSES_API)

public:
	UE_API UMoviePipelineDeferredPass_PathTracer();

#if WITH_EDITOR
	UE_API virtual FText GetDisplayText() const override;
#endif

	// Blends all samples before denoising and turns off post-processed motion blur.
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Reference Motion Blur")
	bool bReferenceMotionBlur;
};

#undef UE_API
