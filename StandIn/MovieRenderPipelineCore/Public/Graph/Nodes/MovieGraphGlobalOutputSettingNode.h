// UMovieGraphGlobalOutputSettingNode: where a render writes its files and how it numbers and times its frames; it sits
// on the Globals branch.
#pragma once

#include "CoreMinimal.h"
#include "Engine/EngineTypes.h"
#include "Graph/MovieGraphNamedResolution.h"
#include "Graph/MovieGraphNode.h"
#include "Misc/EngineVersionComparison.h"
#include "Misc/FrameRate.h"
#include "Misc/Timecode.h"

#define UE_API STANDIN_MINIMALAPI_FUNCTION(MOVIERENDERPIPELINECORE_API)

// Stand-in choice: present from 5.6 on, as in 5.7; 5.5 does not have it.
#if !UE_VERSION_OLDER_THAN(5, 6, 0)
// How the output resolution follows a camera whose aspect ratio differs from it.
UENUM(BlueprintType)
enum class EMovieGraphAspectRatioAdaptBehavior : uint8
{
	Disabled = 0,
	Automatic = 1,
	ScaleToWidth = 2,
	ScaleToHeight = 3
};
STANDIN_DECLARE_ENUM(EMovieGraphAspectRatioAdaptBehavior, MOVIERENDERPIPELINECORE_API)

// Whether one end of the rendered range is the sequence's own or a custom frame.
UENUM(BlueprintType)
enum class EMovieGraphSequenceRangeType : uint8
{
	SequenceDefault,
	Custom
};
STANDIN_DECLARE_ENUM(EMovieGraphSequenceRangeType, MOVIERENDERPIPELINECORE_API)

// One end of the rendered range; Value is a frame at the sequence's original rate.
USTRUCT(BlueprintType)
struct FMovieGraphSequencePlaybackRangeBound
{
	STANDIN_STRUCT_BODY(FMovieGraphSequencePlaybackRangeBound, MOVIERENDERPIPELINECORE_API)

public:
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Frames")
	EMovieGraphSequenceRangeType Type = EMovieGraphSequenceRangeType::Custom;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Frames")
	int32 Value = 0;
};
#endif

// Automatic versioning of output files, or a fixed version number.
USTRUCT(BlueprintType)
struct FMovieGraphVersioningSettings
{
	STANDIN_STRUCT_BODY(FMovieGraphVersioningSettings, MOVIERENDERPIPELINECORE_API)

public:
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Versioning")
	bool bAutoVersioning = true;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Versioning", meta = (UIMin = 1, ClampMin = 1))
	int32 VersionNumber = 1;
};

UCLASS(MinimalAPI)
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINECORE_API) UMovieGraphGlobalOutputSettingNode : public UMovieGraphSettingNode
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMovieGraphGlobalOutputSettingNode, UMovieGraphSettingNode, MOVIERENDERPIPELINECORE_API)

public:
	UE_API UMovieGraphGlobalOutputSettingNode();

	virtual EMovieGraphBranchRestriction GetBranchRestriction() const override { return EMovieGraphBranchRestriction::Globals; }

	// project_dir, output_resolution ("<W>_<H>"), output_width and output_height, and the project folder as metadata.
	UE_API virtual void GetFormatResolveArgs(FMovieGraphResolveArgs& OutMergedFormatArgs, const FMovieGraphRenderDataIdentifier& InRenderDataIdentifier) const override;

#if !UE_VERSION_OLDER_THAN(5, 6, 0)
	// Moves the frames of the integer playback range, saved before 5.6, into the range bounds.
	UE_API virtual void PostLoad() override;
#endif

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Overrides, meta = (InlineEditConditionToggle))
	uint8 bOverride_OutputDirectory : 1 = 0;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Overrides, meta = (InlineEditConditionToggle))
	uint8 bOverride_OutputResolution : 1 = 0;

#if !UE_VERSION_OLDER_THAN(5, 6, 0)
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Overrides, meta = (InlineEditConditionToggle))
	uint8 bOverride_AdaptResolution : 1 = 0;
#endif

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Overrides, meta = (InlineEditConditionToggle))
	uint8 bOverride_OutputFrameRate : 1 = 0;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Overrides, meta = (InlineEditConditionToggle))
	uint8 bOverride_bOverwriteExistingOutput : 1 = 0;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Overrides, meta = (InlineEditConditionToggle))
	uint8 bOverride_ZeroPadFrameNumbers : 1 = 0;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Overrides, meta = (InlineEditConditionToggle))
	uint8 bOverride_FrameNumberOffset : 1 = 0;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Overrides, meta = (InlineEditConditionToggle))
	uint8 bOverride_HandleFrameCount : 1 = 0;

#if !UE_VERSION_OLDER_THAN(5, 6, 0)
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Overrides, meta = (InlineEditConditionToggle))
	uint8 bOverride_CustomPlaybackRangeStart : 1 = 0;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Overrides, meta = (InlineEditConditionToggle))
	uint8 bOverride_CustomPlaybackRangeEnd : 1 = 0;
#endif

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Overrides, meta = (InlineEditConditionToggle))
	uint8 bOverride_CustomPlaybackRangeStartFrame : 1 = 0;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Overrides, meta = (InlineEditConditionToggle))
	uint8 bOverride_CustomPlaybackRangeEndFrame : 1 = 0;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Overrides, meta = (InlineEditConditionToggle))
	uint8 bOverride_CustomTimecodeStart : 1 = 0;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Overrides, meta = (InlineEditConditionToggle))
	uint8 bOverride_bDropFrameTimecode : 1 = 0;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Overrides, meta = (InlineEditConditionToggle))
	uint8 bOverride_VersioningSettings : 1 = 0;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Overrides, meta = (InlineEditConditionToggle))
	uint8 bOverride_bFlushDiskWritesPerShot : 1 = 0;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "File Output", meta = (EditCondition = "bOverride_OutputDirectory"))
	FDirectoryPath OutputDirectory;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "File Output", meta = (EditCondition = "bOverride_OutputResolution"))
	FMovieGraphNamedResolution OutputResolution;

#if !UE_VERSION_OLDER_THAN(5, 6, 0)
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "File Output", meta = (EditCondition = "bOverride_AdaptResolution"))
	EMovieGraphAspectRatioAdaptBehavior AdaptResolution = EMovieGraphAspectRatioAdaptBehavior::Disabled;
#endif

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "File Output", meta = (EditCondition = "bOverride_OutputFrameRate"))
	FFrameRate OutputFrameRate = FFrameRate(24, 1);

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "File Output", meta = (EditCondition = "bOverride_bOverwriteExistingOutput"))
	bool bOverwriteExistingOutput = true;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "File Output", meta = (EditCondition = "bOverride_ZeroPadFrameNumbers", UIMin = 1, UIMax = 5, ClampMin = 1))
	int32 ZeroPadFrameNumbers = 4;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "File Output", meta = (EditCondition = "bOverride_FrameNumberOffset"))
	int32 FrameNumberOffset = 0;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Frames", meta = (EditCondition = "bOverride_HandleFrameCount", UIMin = 0, ClampMin = 0))
	int32 HandleFrameCount = 0;

#if !UE_VERSION_OLDER_THAN(5, 6, 0)
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Frames", meta = (EditCondition = "bOverride_CustomPlaybackRangeStart"))
	FMovieGraphSequencePlaybackRangeBound CustomPlaybackRangeStart;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Frames", meta = (EditCondition = "bOverride_CustomPlaybackRangeEnd"))
	FMovieGraphSequencePlaybackRangeBound CustomPlaybackRangeEnd;

	// Replaced by CustomPlaybackRangeStart/End in 5.6; kept so that older graphs load.
	UPROPERTY(meta = (DeprecatedProperty, EditCondition = "bOverride_CustomPlaybackRangeStartFrame"))
	int32 CustomPlaybackRangeStartFrame = 0;

	UPROPERTY(meta = (DeprecatedProperty, EditCondition = "bOverride_CustomPlaybackRangeEndFrame"))
	int32 CustomPlaybackRangeEndFrame = 0;
#else
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Frames", meta = (EditCondition = "bOverride_CustomPlaybackRangeStartFrame"))
	int32 CustomPlaybackRangeStartFrame = 0;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Frames", meta = (EditCondition = "bOverride_CustomPlaybackRangeEndFrame"))
	int32 CustomPlaybackRangeEndFrame = 0;
#endif

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Frames", meta = (EditCondition = "bOverride_CustomTimecodeStart"))
	FTimecode CustomTimecodeStart;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Frames", meta = (EditCondition = "bOverride_bDropFrameTimecode"))
	bool bDropFrameTimecode = true;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Versioning", meta = (EditCondition = "bOverride_VersioningSettings"))
	FMovieGraphVersioningSettings VersioningSettings;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "File Output", meta = (EditCondition = "bOverride_bFlushDiskWritesPerShot"))
	bool bFlushDiskWritesPerShot = false;
};

// The node's name before it was renamed to UMovieGraphGlobalOutputSettingNode; scripts still see it, as deprecated.
// Stand-in choice: the engine keeps the old name only as a redirect, shown to scripts as a deprecated subclass.
UCLASS(MinimalAPI, Deprecated)
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINECORE_API) UDEPRECATED_MovieGraphOutputSettingNode : public UMovieGraphGlobalOutputSettingNode
{
	STANDIN_MINIMALAPI_CLASS_BODY(UDEPRECATED_MovieGraphOutputSettingNode, UMovieGraphGlobalOutputSettingNode, MOVIERENDERPIPELINECORE_API)

public:
	UE_API UDEPRECATED_MovieGraphOutputSettingNode();

	virtual bool CanBeAddedByUser() const override { return false; }
};

#undef UE_API
