// UMovieGraphFileOutputNode: the base of nodes that write render data to files.
#pragma once

#include "CoreMinimal.h"
#include "Containers/Set.h"
#include "Graph/MovieGraphNode.h"
#include "Graph/MovieGraphRenderDataIdentifier.h"

#define UE_API STANDIN_MINIMALAPI_FUNCTION(MOVIERENDERPIPELINECORE_API)

class UMovieGraphEvaluatedConfig;
class UMovieGraphPipeline;

namespace UE::MovieGraph
{
	struct FMovieGraphOutputMergerFrame;
}

// The pipeline calls these on the class default object of every file output class its graph holds.
UCLASS(MinimalAPI, Abstract)
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINECORE_API) UMovieGraphFileOutputNode : public UMovieGraphSettingNode
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMovieGraphFileOutputNode, UMovieGraphSettingNode, MOVIERENDERPIPELINECORE_API)

public:
	UE_API UMovieGraphFileOutputNode();

	// A finished output frame; InMask names the render data of the frame that this node writes.
	void OnReceiveImageData(UMovieGraphPipeline* InPipeline, UE::MovieGraph::FMovieGraphOutputMergerFrame* InRawFrameData, const TSet<FMovieGraphRenderDataIdentifier>& InMask)
	{
		OnReceiveImageDataImpl(InPipeline, InRawFrameData, InMask);
	}

	// Every frame of the render was handed over; the files still being written are finished.
	// Stand-in choice: these parameters, as the newer API pages show them.
	void OnAllFramesSubmitted(UMovieGraphPipeline* InPipeline, TObjectPtr<UMovieGraphEvaluatedConfig>& InPrimaryJobEvaluatedGraph)
	{
		OnAllFramesSubmittedImpl(InPipeline, InPrimaryJobEvaluatedGraph);
	}

	// Whether every file this node was handed is on disk.
	bool IsFinishedWritingToDisk() const { return IsFinishedWritingToDiskImpl(); }

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Overrides, meta = (InlineEditConditionToggle))
	uint8 bOverride_FileNameFormat : 1 = 0;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "File Output", meta = (EditCondition = "bOverride_FileNameFormat", MrgTokenAutocomplete))
	FString FileNameFormat = TEXT("{sequence_name}.{layer_name}.{frame_number}");

protected:
	virtual void OnReceiveImageDataImpl(UMovieGraphPipeline* InPipeline, UE::MovieGraph::FMovieGraphOutputMergerFrame* InRawFrameData, const TSet<FMovieGraphRenderDataIdentifier>& InMask) {}
	virtual void OnAllFramesSubmittedImpl(UMovieGraphPipeline* InPipeline, TObjectPtr<UMovieGraphEvaluatedConfig>& InPrimaryJobEvaluatedGraph) {}
	virtual bool IsFinishedWritingToDiskImpl() const { return true; }
};

#undef UE_API
