#include "MoviePipelineImageSequenceOutput.h"

#include "Misc/FileHelper.h"
#include "Misc/Paths.h"
#include "Misc/StringFormatArg.h"
#include "MoviePipeline.h"
#include "MoviePipelineImageFileWriter.h"
#include "MoviePipelineOutputSetting.h"
#include "MoviePipelinePrimaryConfig.h"
#include "MovieRenderPipelineCoreModule.h"
#include "MovieRenderPipelineDataTypes.h"
#include "UObject/UnrealType.h"

namespace UE::MoviePipeline::Private
{
	// Puts {render_pass} in a name that several passes share, and {file_dup} before the frame number (so that a
	// "_(2)" duplicate still reads as an image sequence), or at the end. False when the name has no frame number.
	static bool ValidateOutputFormatString(FString& InOutFilenameFormatString, const bool bTestRenderPass)
	{
		static const TCHAR* const FrameNumberIdentifiers[] = { TEXT("{frame_number}"), TEXT("{frame_number_shot}"), TEXT("{frame_number_rel}"), TEXT("{frame_number_shot_rel}") };
		auto FindFrameNumber = [&InOutFilenameFormatString]()
		{
			for (const TCHAR* Identifier : FrameNumberIdentifiers)
			{
				const int32 Index = InOutFilenameFormatString.Find(Identifier, ESearchCase::IgnoreCase, ESearchDir::FromEnd);
				if (Index != INDEX_NONE)
				{
					return Index;
				}
			}
			return int32(INDEX_NONE);
		};

		if (bTestRenderPass && !InOutFilenameFormatString.Contains(TEXT("{render_pass}"), ESearchCase::IgnoreCase))
		{
			const int32 FrameNumberIndex = FindFrameNumber();
			if (FrameNumberIndex == INDEX_NONE)
			{
				InOutFilenameFormatString += TEXT("{render_pass}");
			}
			else
			{
				InOutFilenameFormatString.InsertAt(FrameNumberIndex, TEXT("{render_pass}."));
			}
		}
		const int32 FrameNumberIndex = FindFrameNumber();
		if (FrameNumberIndex != INDEX_NONE)
		{
			InOutFilenameFormatString.InsertAt(FrameNumberIndex, TEXT("{file_dup}"));
		}
		if (!InOutFilenameFormatString.Contains(TEXT("{file_dup}"), ESearchCase::IgnoreCase))
		{
			InOutFilenameFormatString += TEXT("{file_dup}");
		}
		return FrameNumberIndex != INDEX_NONE;
	}
}

UMoviePipelineImageSequenceOutputBase::UMoviePipelineImageSequenceOutputBase()
	: bWarnedMissingFrameNumber(false)
	, bReportedWriteFailure(false)
{
}

void UMoviePipelineImageSequenceOutputBase::SetupForPipelineImpl(UMoviePipeline* InPipeline)
{
	Super::SetupForPipelineImpl(InPipeline);
	bWarnedMissingFrameNumber = false;
	bReportedWriteFailure = false;
}

void UMoviePipelineImageSequenceOutputBase::OnReceiveImageDataImpl(FMoviePipelineMergerOutputFrame* InMergedOutputFrame)
{
	const UMoviePipeline* Pipeline = GetPipeline();
	const UMoviePipelinePrimaryConfig* Config = Pipeline ? Pipeline->GetPipelinePrimaryConfig() : nullptr;
	const UMoviePipelineOutputSetting* OutputSettings = Config ? Config->FindSetting<UMoviePipelineOutputSetting>(true) : nullptr;
	if (!InMergedOutputFrame || !OutputSettings)
	{
		return;
	}
	FString FileNameFormatString = FPaths::Combine(OutputSettings->OutputDirectory.Path, OutputSettings->FileNameFormat);
	const bool bHasFrameNumber = UE::MoviePipeline::Private::ValidateOutputFormatString(FileNameFormatString, InMergedOutputFrame->ExpectedRenderPasses.Num() > 1);
	// Stand-in choice: the warning is given once per render instead of once per frame.
	if (!bHasFrameNumber && !bWarnedMissingFrameNumber)
	{
		bWarnedMissingFrameNumber = true;
		UE_LOG(LogMovieRenderPipeline, Warning, TEXT("Frame number identifier not found. Files may be overwritten."));
	}

	const TArray<uint8> ImageBytes = UE::MoviePipeline::StandIn::EncodeFrameImage(OutputFormatExtension);
	for (const FMoviePipelinePassIdentifier& RenderPass : InMergedOutputFrame->ExpectedRenderPasses)
	{
		FStringFormatNamedArguments FormatOverrides;
		FormatOverrides.Add(TEXT("render_pass"), RenderPass.Name);
		FormatOverrides.Add(TEXT("ext"), OutputFormatExtension);
		FString OutputPath;
		FMoviePipelineFormatArgs FinalFormatArgs;
		Pipeline->ResolveFilenameFormatArguments(FileNameFormatString, FormatOverrides, OutputPath, FinalFormatArgs, &InMergedOutputFrame->FrameOutputState);
		// An empty path is one the pipeline refused to write.
		if (OutputPath.IsEmpty())
		{
			continue;
		}
		// Stand-in choice: only the first failed write of a render is logged, so that a folder that cannot be written does not flood the log.
		if (!FFileHelper::SaveArrayToFile(ImageBytes, *OutputPath) && !bReportedWriteFailure)
		{
			bReportedWriteFailure = true;
			UE_LOG(LogMovieRenderPipeline, Error, TEXT("Failed to write image to '%s'."), *OutputPath);
		}
	}
}

UMoviePipelineImageSequenceOutput_BMP::UMoviePipelineImageSequenceOutput_BMP()
{
	OutputFormatExtension = TEXT("bmp");
}

UMoviePipelineImageSequenceOutput_PNG::UMoviePipelineImageSequenceOutput_PNG()
	: bWriteAlpha(true)
{
	OutputFormatExtension = TEXT("png");
}

UMoviePipelineImageSequenceOutput_JPG::UMoviePipelineImageSequenceOutput_JPG()
{
	OutputFormatExtension = TEXT("jpg");
}

#if WITH_EDITOR
FText UMoviePipelineImageSequenceOutput_BMP::GetDisplayText() const
{
	return NSLOCTEXT("MovieRenderPipeline", "ImgSequenceBMPSettingDisplayName", ".bmp Sequence [8bit]");
}

FText UMoviePipelineImageSequenceOutput_PNG::GetDisplayText() const
{
	return NSLOCTEXT("MovieRenderPipeline", "ImgSequencePNGSettingDisplayName", ".png Sequence [8bit]");
}

FText UMoviePipelineImageSequenceOutput_JPG::GetDisplayText() const
{
	return NSLOCTEXT("MovieRenderPipeline", "ImgSequenceJPGSettingDisplayName", ".jpg Sequence [8bit]");
}
#endif

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMoviePipelineImageSequenceOutputBase, CLASS_Abstract, "MovieRenderPipelineRenderPasses")
{
}

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMoviePipelineImageSequenceOutput_BMP, CLASS_None, "MovieRenderPipelineRenderPasses")
{
}

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMoviePipelineImageSequenceOutput_PNG, CLASS_None, "MovieRenderPipelineRenderPasses")
{
	STANDIN_PROPERTY(bWriteAlpha, CPF_Edit | CPF_BlueprintVisible);
}

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMoviePipelineImageSequenceOutput_JPG, CLASS_None, "MovieRenderPipelineRenderPasses")
{
}
