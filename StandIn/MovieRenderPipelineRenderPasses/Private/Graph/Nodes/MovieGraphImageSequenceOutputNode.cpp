#include "MovieGraphImageSequenceOutputNode.h"

#include "Graph/MovieGraphBlueprintLibrary.h"
#include "Graph/MovieGraphConfig.h"
#include "Graph/MovieGraphDataTypes.h"
#include "Graph/MovieGraphStandInNodeReflection.h"
#include "Graph/Nodes/MovieGraphGlobalOutputSettingNode.h"
#include "Misc/FileHelper.h"
#include "MoviePipelineImageFileWriter.h"
#include "MovieRenderPipelineCoreModule.h"
#include "UObject/UnrealType.h"

UMovieGraphImageSequenceOutputNode::UMovieGraphImageSequenceOutputNode()
	: bReportedWriteFailure(false)
{
}

void UMovieGraphImageSequenceOutputNode::OnReceiveImageDataImpl(UMovieGraphPipeline* InPipeline, UE::MovieGraph::FMovieGraphOutputMergerFrame* InRawFrameData, const TSet<FMovieGraphRenderDataIdentifier>& InMask)
{
	const FMovieGraphTraversalContext& Context = InRawFrameData->TraversalContext;
	const UMovieGraphEvaluatedConfig* EvaluatedConfig = Context.Time.EvaluatedConfig;
	if (!EvaluatedConfig)
	{
		return;
	}
	const UMovieGraphGlobalOutputSettingNode* OutputSettings = EvaluatedConfig->GetSettingForBranch<UMovieGraphGlobalOutputSettingNode>(UMovieGraphNode::GlobalsPinName);
	const TArray<uint8> ImageBytes = UE::MoviePipeline::StandIn::EncodeFrameImage(OutputFormatExtension);
	const TMap<FString, FString> FormatOverrides = { { TEXT("ext"), OutputFormatExtension } };
	for (const FMovieGraphRenderDataIdentifier& Identifier : InRawFrameData->ExpectedRenderPasses)
	{
		const UMovieGraphFileOutputNode* BranchNode = InMask.Contains(Identifier) ? Cast<UMovieGraphFileOutputNode>(EvaluatedConfig->GetSettingForBranch(GetClass(), Identifier.RootBranchName, true, true)) : nullptr;
		if (!BranchNode)
		{
			continue;
		}
		const FMovieGraphFilenameResolveParams Params = FMovieGraphFilenameResolveParams::MakeResolveParams(Identifier, InPipeline, Context.Time.EvaluatedConfig, Context, FormatOverrides);
		FMovieGraphResolveArgs MergedArgs;
		const FString OutputPath = UMovieGraphBlueprintLibrary::ResolveFilenameFormatArguments(OutputSettings->OutputDirectory.Path / BranchNode->FileNameFormat, Params, MergedArgs);
		if (OutputPath.IsEmpty() || !FFileHelper::SaveArrayToFile(ImageBytes, *OutputPath))
		{
			ReportWriteFailure(OutputPath);
		}
	}
}

void UMovieGraphImageSequenceOutputNode::OnAllFramesSubmittedImpl(UMovieGraphPipeline* InPipeline, TObjectPtr<UMovieGraphEvaluatedConfig>& InPrimaryJobEvaluatedGraph)
{
	bReportedWriteFailure = false;
}

void UMovieGraphImageSequenceOutputNode::ReportWriteFailure(const FString& InPath)
{
	if (!bReportedWriteFailure)
	{
		bReportedWriteFailure = true;
		UE_LOG(LogMovieRenderPipeline, Error, TEXT("Failed to write image to '%s'."), *InPath);
	}
}

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMovieGraphImageSequenceOutputNode, CLASS_Abstract, "MovieRenderPipelineRenderPasses")
{
}

UMovieGraphImageSequenceOutputNode_BMP::UMovieGraphImageSequenceOutputNode_BMP()
{
	OutputFormatExtension = TEXT("bmp");
}

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMovieGraphImageSequenceOutputNode_BMP, CLASS_None, "MovieRenderPipelineRenderPasses")
{
}

UMovieGraphImageSequenceOutputNode_JPG::UMovieGraphImageSequenceOutputNode_JPG()
{
	OutputFormatExtension = TEXT("jpg");
}

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMovieGraphImageSequenceOutputNode_JPG, CLASS_None, "MovieRenderPipelineRenderPasses")
{
}

UMovieGraphImageSequenceOutputNode_PNG::UMovieGraphImageSequenceOutputNode_PNG()
{
	OutputFormatExtension = TEXT("png");
}

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMovieGraphImageSequenceOutputNode_PNG, CLASS_None, "MovieRenderPipelineRenderPasses")
{
}

UMovieGraphImageSequenceOutputNode_EXR::UMovieGraphImageSequenceOutputNode_EXR()
{
	OutputFormatExtension = TEXT("exr");
}

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMovieGraphImageSequenceOutputNode_EXR, CLASS_None, "MovieRenderPipelineRenderPasses")
{
	constexpr EPropertyFlags EditableFlags = CPF_Edit | CPF_BlueprintVisible;
	STANDIN_OVERRIDEABLE_PROPERTY(Compression, EditableFlags);
}

UMovieGraphImageSequenceOutputNode_MultiLayerEXR::UMovieGraphImageSequenceOutputNode_MultiLayerEXR()
{
	FileNameFormat = TEXT("{sequence_name}.{frame_number}");
}

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMovieGraphImageSequenceOutputNode_MultiLayerEXR, CLASS_None, "MovieRenderPipelineRenderPasses")
{
	constexpr EPropertyFlags EditableFlags = CPF_Edit | CPF_BlueprintVisible;
	STANDIN_OVERRIDEABLE_PROPERTY(bMultipart, EditableFlags);
}
