// Image sequence outputs: the abstract base and its BMP, JPG, PNG, EXR and multi-layer EXR formats; each writes one
// file per frame.
#pragma once

#include "CoreMinimal.h"
#include "Graph/Nodes/MovieGraphFileOutputNode.h"
#include "MoviePipelineEXROutput.h"

#define UE_API STANDIN_MINIMALAPI_FUNCTION(MOVIERENDERPIPELINERENDERPASSES_API)

UCLASS(MinimalAPI, Abstract)
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINERENDERPASSES_API) UMovieGraphImageSequenceOutputNode : public UMovieGraphFileOutputNode
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMovieGraphImageSequenceOutputNode, UMovieGraphFileOutputNode, MOVIERENDERPIPELINERENDERPASSES_API)

public:
	UE_API UMovieGraphImageSequenceOutputNode();

protected:
	// Writes one image per render data of the mask, named by the branch's file name format under the Globals output directory.
	UE_API virtual void OnReceiveImageDataImpl(UMovieGraphPipeline* InPipeline, UE::MovieGraph::FMovieGraphOutputMergerFrame* InRawFrameData, const TSet<FMovieGraphRenderDataIdentifier>& InMask) override;
	UE_API virtual void OnAllFramesSubmittedImpl(UMovieGraphPipeline* InPipeline, TObjectPtr<UMovieGraphEvaluatedConfig>& InPrimaryJobEvaluatedGraph) override;

	// Stand-in choice: the format is named by its file extension ("png", "jpg", "bmp", "exr").
	FString OutputFormatExtension;

private:
	void ReportWriteFailure(const FString& InPath);

	// Only the first failed write of a render is logged, so that a folder that cannot be written does not flood the log.
	bool bReportedWriteFailure;
};

UCLASS(MinimalAPI)
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINERENDERPASSES_API) UMovieGraphImageSequenceOutputNode_BMP : public UMovieGraphImageSequenceOutputNode
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMovieGraphImageSequenceOutputNode_BMP, UMovieGraphImageSequenceOutputNode, MOVIERENDERPIPELINERENDERPASSES_API)

public:
	UE_API UMovieGraphImageSequenceOutputNode_BMP();
};

UCLASS(MinimalAPI)
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINERENDERPASSES_API) UMovieGraphImageSequenceOutputNode_JPG : public UMovieGraphImageSequenceOutputNode
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMovieGraphImageSequenceOutputNode_JPG, UMovieGraphImageSequenceOutputNode, MOVIERENDERPIPELINERENDERPASSES_API)

public:
	UE_API UMovieGraphImageSequenceOutputNode_JPG();
};

UCLASS(MinimalAPI)
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINERENDERPASSES_API) UMovieGraphImageSequenceOutputNode_PNG : public UMovieGraphImageSequenceOutputNode
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMovieGraphImageSequenceOutputNode_PNG, UMovieGraphImageSequenceOutputNode, MOVIERENDERPIPELINERENDERPASSES_API)

public:
	UE_API UMovieGraphImageSequenceOutputNode_PNG();
};

UCLASS(MinimalAPI)
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINERENDERPASSES_API) UMovieGraphImageSequenceOutputNode_EXR : public UMovieGraphImageSequenceOutputNode
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMovieGraphImageSequenceOutputNode_EXR, UMovieGraphImageSequenceOutputNode, MOVIERENDERPIPELINERENDERPASSES_API)

public:
	UE_API UMovieGraphImageSequenceOutputNode_EXR();

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Overrides, meta = (InlineEditConditionToggle))
	uint8 bOverride_Compression : 1 = 0;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Format", meta = (EditCondition = "bOverride_Compression"))
	EEXRCompressionFormat Compression = EEXRCompressionFormat::PIZ;
};

UCLASS(MinimalAPI)
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINERENDERPASSES_API) UMovieGraphImageSequenceOutputNode_MultiLayerEXR : public UMovieGraphImageSequenceOutputNode_EXR
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMovieGraphImageSequenceOutputNode_MultiLayerEXR, UMovieGraphImageSequenceOutputNode_EXR, MOVIERENDERPIPELINERENDERPASSES_API)

public:
	UE_API UMovieGraphImageSequenceOutputNode_MultiLayerEXR();

	virtual EMovieGraphBranchRestriction GetBranchRestriction() const override { return EMovieGraphBranchRestriction::Globals; }

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Overrides, meta = (InlineEditConditionToggle))
	uint8 bOverride_bMultipart : 1 = 0;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Format", meta = (EditCondition = "bOverride_bMultipart"))
	bool bMultipart = false;
};

#undef UE_API
