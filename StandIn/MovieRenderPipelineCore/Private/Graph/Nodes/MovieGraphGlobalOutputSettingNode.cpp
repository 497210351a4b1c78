#include "Graph/Nodes/MovieGraphGlobalOutputSettingNode.h"

#include "Graph/MovieGraphBlueprintLibrary.h"
#include "Graph/MovieGraphFilenameResolveParams.h"
#include "Graph/MovieGraphStandInNodeReflection.h"
#include "Misc/Paths.h"
#include "UObject/UnrealType.h"

UMovieGraphGlobalOutputSettingNode::UMovieGraphGlobalOutputSettingNode()
{
	OutputDirectory.Path = TEXT("{project_dir}/Saved/MovieRenders/");
}

void UMovieGraphGlobalOutputSettingNode::GetFormatResolveArgs(FMovieGraphResolveArgs& OutMergedFormatArgs, const FMovieGraphRenderDataIdentifier& InRenderDataIdentifier) const
{
	const FString ProjectDir = FPaths::ConvertRelativePathToFull(FPaths::ProjectDir());
	const FIntPoint Resolution = UMovieGraphBlueprintLibrary::IsNamedResolutionValid(OutputResolution.ProfileName)
		? UMovieGraphBlueprintLibrary::NamedResolutionFromProfile(OutputResolution.ProfileName).Resolution
		: OutputResolution.Resolution;
	OutMergedFormatArgs.FilenameArguments.Add(TEXT("project_dir"), ProjectDir);
	OutMergedFormatArgs.FilenameArguments.Add(TEXT("output_resolution"), FString::Printf(TEXT("%d_%d"), Resolution.X, Resolution.Y));
	OutMergedFormatArgs.FilenameArguments.Add(TEXT("output_width"), FString::FromInt(Resolution.X));
	OutMergedFormatArgs.FilenameArguments.Add(TEXT("output_height"), FString::FromInt(Resolution.Y));
	OutMergedFormatArgs.FileMetadata.Add(TEXT("unreal/project_dir"), ProjectDir);
}

#if !UE_VERSION_OLDER_THAN(5, 6, 0)
namespace UE::MovieGraph::Private
{
	FMovieGraphSequencePlaybackRangeBound MakeCustomRangeBound(const int32 InFrame)
	{
		FMovieGraphSequencePlaybackRangeBound Bound;
		Bound.Type = EMovieGraphSequenceRangeType::Custom;
		Bound.Value = InFrame;
		return Bound;
	}
}

void UMovieGraphGlobalOutputSettingNode::PostLoad()
{
	Super::PostLoad();

	if (bOverride_CustomPlaybackRangeStartFrame)
	{
		CustomPlaybackRangeStart = UE::MovieGraph::Private::MakeCustomRangeBound(CustomPlaybackRangeStartFrame);
		bOverride_CustomPlaybackRangeStart = 1;
		bOverride_CustomPlaybackRangeStartFrame = 0;
	}
	if (bOverride_CustomPlaybackRangeEndFrame)
	{
		CustomPlaybackRangeEnd = UE::MovieGraph::Private::MakeCustomRangeBound(CustomPlaybackRangeEndFrame);
		bOverride_CustomPlaybackRangeEnd = 1;
		bOverride_CustomPlaybackRangeEndFrame = 0;
	}
}

STANDIN_IMPLEMENT_ENUM(EMovieGraphAspectRatioAdaptBehavior, "MovieRenderPipelineCore", Disabled, Automatic, ScaleToWidth, ScaleToHeight)
STANDIN_IMPLEMENT_ENUM(EMovieGraphSequenceRangeType, "MovieRenderPipelineCore", SequenceDefault, Custom)

STANDIN_IMPLEMENT_STRUCT(FMovieGraphSequencePlaybackRangeBound, "MovieRenderPipelineCore")
{
	STANDIN_PROPERTY(Type, CPF_Edit | CPF_BlueprintVisible);
	STANDIN_PROPERTY(Value, CPF_Edit | CPF_BlueprintVisible);
}
#endif

STANDIN_IMPLEMENT_STRUCT(FMovieGraphVersioningSettings, "MovieRenderPipelineCore")
{
	STANDIN_PROPERTY(bAutoVersioning, CPF_Edit | CPF_BlueprintVisible);
	STANDIN_PROPERTY(VersionNumber, CPF_Edit | CPF_BlueprintVisible)->SetMetaData(TEXT("ClampMin"), TEXT("1"));
}

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMovieGraphGlobalOutputSettingNode, CLASS_None, "MovieRenderPipelineCore")
{
	constexpr EPropertyFlags EditableFlags = CPF_Edit | CPF_BlueprintVisible;
	STANDIN_OVERRIDEABLE_PROPERTY(OutputDirectory, EditableFlags);
	STANDIN_OVERRIDEABLE_PROPERTY(OutputResolution, EditableFlags);
#if !UE_VERSION_OLDER_THAN(5, 6, 0)
	STANDIN_OVERRIDEABLE_PROPERTY(AdaptResolution, EditableFlags);
#endif
	STANDIN_OVERRIDEABLE_PROPERTY(OutputFrameRate, EditableFlags);
	STANDIN_OVERRIDEABLE_PROPERTY(bOverwriteExistingOutput, EditableFlags);
	STANDIN_OVERRIDEABLE_PROPERTY(ZeroPadFrameNumbers, EditableFlags)->SetMetaData(TEXT("ClampMin"), TEXT("1"));
	STANDIN_OVERRIDEABLE_PROPERTY(FrameNumberOffset, EditableFlags);
	STANDIN_OVERRIDEABLE_PROPERTY(HandleFrameCount, EditableFlags)->SetMetaData(TEXT("ClampMin"), TEXT("0"));
#if !UE_VERSION_OLDER_THAN(5, 6, 0)
	STANDIN_OVERRIDEABLE_PROPERTY(CustomPlaybackRangeStart, EditableFlags);
	STANDIN_OVERRIDEABLE_PROPERTY(CustomPlaybackRangeEnd, EditableFlags);
	STANDIN_OVERRIDEABLE_PROPERTY(CustomPlaybackRangeStartFrame, CPF_Deprecated)->SetMetaData(TEXT("DeprecatedProperty"), TEXT(""));
	STANDIN_OVERRIDEABLE_PROPERTY(CustomPlaybackRangeEndFrame, CPF_Deprecated)->SetMetaData(TEXT("DeprecatedProperty"), TEXT(""));
#else
	STANDIN_OVERRIDEABLE_PROPERTY(CustomPlaybackRangeStartFrame, EditableFlags);
	STANDIN_OVERRIDEABLE_PROPERTY(CustomPlaybackRangeEndFrame, EditableFlags);
#endif
	STANDIN_OVERRIDEABLE_PROPERTY(CustomTimecodeStart, EditableFlags);
	STANDIN_OVERRIDEABLE_PROPERTY(bDropFrameTimecode, EditableFlags);
	STANDIN_OVERRIDEABLE_PROPERTY(VersioningSettings, EditableFlags);
	STANDIN_OVERRIDEABLE_PROPERTY(bFlushDiskWritesPerShot, EditableFlags);
}

UDEPRECATED_MovieGraphOutputSettingNode::UDEPRECATED_MovieGraphOutputSettingNode() = default;

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UDEPRECATED_MovieGraphOutputSettingNode, CLASS_Deprecated, "MovieRenderPipelineCore")
{
}
