// The Movie Render Graph library: named resolutions, the resolutions an evaluated graph renders at, file name tokens,
// output versions, and the output directory the editor shows for a job that renders with a graph.
#include "PersistenceTestSupport.h"

#include "Graph/MovieGraphBlueprintLibrary.h"
#include "Graph/MovieGraphConfig.h"
#include "Graph/MovieGraphProjectSettings.h"
#include "Graph/Nodes/MovieGraphCameraNode.h"
#include "Graph/Nodes/MovieGraphGlobalOutputSettingNode.h"
#include "Misc/EngineVersionComparison.h"
#include "Misc/FileHelper.h"
#include "MovieGraphImageSequenceOutputNode.h"
#include "MoviePipelineEditorBlueprintLibrary.h"
#include "MoviePipelineQueue.h"
#include "UObject/GarbageCollection.h"
#include "UObject/StrongObjectPtr.h"
#include "UObject/UObjectGlobals.h"

#include <gtest/gtest.h>

namespace
{
	const FName Globals(TEXT("Globals"));
	const FName Beauty(TEXT("Beauty"));

	// A graph in a throw-away project, with helpers to put setting nodes on a branch and flatten it.
	class MovieGraphLibraryTest : public testing::Test
	{
	protected:
		void TearDown() override
		{
			Evaluated.Reset();
			Graph.Reset();
			CollectGarbage(RF_NoFlags);
		}

		template<class TNode>
		TNode* AddOnBranch(const FName& InBranch)
		{
			TNode* Node = Cast<TNode>(Graph->CreateNodeByClass(TNode::StaticClass()));
			Graph->AddLabeledEdge(Node, NAME_None, Graph->GetOutputNode(), InBranch);
			if (UMovieGraphNode** Upstream = NearestToOutput.Find(InBranch))
			{
				Graph->AddLabeledEdge(*Upstream, NAME_None, Node, NAME_None);
			}
			NearestToOutput.Add(InBranch, Node);
			return Node;
		}

		UMovieGraphGlobalOutputSettingNode* AddOutputSettings(const FName& InProfile, const FIntPoint& InResolution)
		{
			UMovieGraphGlobalOutputSettingNode* Node = AddOnBranch<UMovieGraphGlobalOutputSettingNode>(Globals);
			Node->bOverride_OutputResolution = 1;
			Node->OutputResolution = FMovieGraphNamedResolution(InProfile, InResolution, FString());
			return Node;
		}

		UMovieGraphEvaluatedConfig* Flatten(UMoviePipelineExecutorJob* InJob = nullptr)
		{
			FMovieGraphTraversalContext Context;
			Context.Job = InJob;
			Context.RootGraph = Graph.Get();
			FString Error;
			Evaluated.Reset(Graph->CreateFlattenedGraph(Context, Error));
			EXPECT_EQ(Error, TEXT(""));
			return Evaluated.Get();
		}

		FString Resolve(const FString& InFormat, const FMovieGraphFilenameResolveParams& InParams) const
		{
			FMovieGraphResolveArgs Args;
			return UMovieGraphBlueprintLibrary::ResolveFormatArguments(InFormat, InParams, Args);
		}

		FScopedTestProject Project;
		FString ProjectDir = FPaths::ConvertRelativePathToFull(FPaths::ProjectDir());
		TStrongObjectPtr<UMovieGraphConfig> Graph{ NewObject<UMovieGraphConfig>() };
		TStrongObjectPtr<UMovieGraphEvaluatedConfig> Evaluated;
		TMap<FName, UMovieGraphNode*> NearestToOutput;
	};
}

TEST(MovieGraphNamedResolutions, TheProjectOffersTheEnginesFourProfilesAndCustomSizesAreNamedCustom)
{
	const TArray<FMovieGraphNamedResolution>& Defaults = GetDefault<UMovieGraphProjectSettings>()->DefaultNamedResolutions;
	TArray<FString> Described;
	for (const FMovieGraphNamedResolution& Resolution : Defaults)
	{
		Described.Add(LexToString(Resolution) + TEXT(" ") + Resolution.Description);
	}
	EXPECT_EQ(Described, TArray<FString>({ TEXT("720p (HD) [1280, 720] High definition"), TEXT("1080p (FHD) [1920, 1080] Full high definition"),
		TEXT("1440p (QHD) [2560, 1440] Quad high definition"), TEXT("2160p (4K UHD) [3840, 2160] Ultra high definition (4k)") }));

	EXPECT_EQ(UMovieGraphBlueprintLibrary::NamedResolutionFromProfile(TEXT("1440p (QHD)")).Resolution, FIntPoint(2560, 1440));
	EXPECT_TRUE(UMovieGraphBlueprintLibrary::IsNamedResolutionValid(TEXT("2160p (4K UHD)")));
	EXPECT_FALSE(UMovieGraphBlueprintLibrary::IsNamedResolutionValid(TEXT("8K")));
	EXPECT_FALSE(UMovieGraphBlueprintLibrary::IsNamedResolutionValid(NAME_None));

	FLogCapture Log;
	const FMovieGraphNamedResolution Unknown = UMovieGraphBlueprintLibrary::NamedResolutionFromProfile(TEXT("8K"));
	EXPECT_EQ(LexToString(Unknown), TEXT("1080p (FHD) [1920, 1080]"));
	EXPECT_EQ(Log.CountAtOrAbove(ELogVerbosity::Error), 1);

	const FMovieGraphNamedResolution Custom = UMovieGraphBlueprintLibrary::NamedResolutionFromSize(1001, 501);
	EXPECT_EQ(LexToString(Custom), TEXT("Custom [1001, 501]"));
	EXPECT_TRUE(Custom.Description.IsEmpty());
}

TEST(MovieGraphLibrary, TheEffectiveFrameRateIsTheNodesOnlyWhenItOverridesIt)
{
	TStrongObjectPtr<UMovieGraphGlobalOutputSettingNode> Node(NewObject<UMovieGraphGlobalOutputSettingNode>());
	Node->OutputFrameRate = FFrameRate(30, 1);
	EXPECT_EQ(UMovieGraphBlueprintLibrary::GetEffectiveFrameRate(nullptr, FFrameRate(25, 1)), FFrameRate(25, 1));
	EXPECT_EQ(UMovieGraphBlueprintLibrary::GetEffectiveFrameRate(Node.Get(), FFrameRate(25, 1)), FFrameRate(25, 1));
	Node->bOverride_OutputFrameRate = 1;
	EXPECT_EQ(UMovieGraphBlueprintLibrary::GetEffectiveFrameRate(Node.Get(), FFrameRate(25, 1)), FFrameRate(30, 1));
}

#if !UE_VERSION_OLDER_THAN(5, 6, 0)
TEST_F(MovieGraphLibraryTest, AProjectProfileWinsOverTheStoredSizeAndOverscanRoundsEachAxisUpAroundACentredCrop)
{
	UMovieGraphGlobalOutputSettingNode* Output = AddOutputSettings(TEXT("720p (HD)"), FIntPoint(100, 100));
	EXPECT_EQ(UMovieGraphBlueprintLibrary::GetDesiredOutputResolution(Flatten()), FIntPoint(1280, 720));

	Output->OutputResolution = UMovieGraphBlueprintLibrary::NamedResolutionFromSize(1001, 501);
	UMovieGraphEvaluatedConfig* Config = Flatten();
	EXPECT_EQ(UMovieGraphBlueprintLibrary::GetDesiredOutputResolution(Config), FIntPoint(1001, 501));
	EXPECT_EQ(UMovieGraphBlueprintLibrary::GetOverscannedResolution(Config), FIntPoint(1001, 501));
	EXPECT_EQ(UMovieGraphBlueprintLibrary::GetOverscannedResolution(Config, 0.1f), FIntPoint(1102, 552));
	EXPECT_EQ(UMovieGraphBlueprintLibrary::GetBackbufferResolution(Config, 0.1f), FIntPoint(1102, 552));
	EXPECT_EQ(UMovieGraphBlueprintLibrary::GetEffectiveOutputResolution(Config, 0.1f), FIntPoint(1102, 552));
	EXPECT_EQ(UMovieGraphBlueprintLibrary::GetOverscanCropRectangle(Config, 0.1f), FIntRect(50, 25, 1051, 526));
	EXPECT_EQ(UMovieGraphBlueprintLibrary::GetOverscannedResolution(Config, 1.5f), FIntPoint(2002, 1002));
	EXPECT_EQ(UMovieGraphBlueprintLibrary::GetOverscannedResolution(Config, -0.5f), FIntPoint(1001, 501));

	// The Globals camera settings replace the default overscan only when they override it.
	UMovieGraphCameraSettingNode* Camera = AddOnBranch<UMovieGraphCameraSettingNode>(Globals);
	Camera->OverscanPercentage = 25.0f;
	EXPECT_EQ(UMovieGraphBlueprintLibrary::GetOverscannedResolution(Flatten(), 0.1f), FIntPoint(1102, 552));
	Camera->bOverride_OverscanPercentage = 1;
	Config = Flatten();
	EXPECT_EQ(UMovieGraphBlueprintLibrary::GetOverscannedResolution(Config, 0.1f), FIntPoint(1252, 627));
	EXPECT_EQ(UMovieGraphBlueprintLibrary::GetOverscanCropRectangle(Config, 0.1f), FIntRect(125, 63, 1126, 564));

	FLogCapture Log;
	EXPECT_EQ(UMovieGraphBlueprintLibrary::GetOverscannedResolution(nullptr, 0.1f), FIntPoint(0, 0));
	EXPECT_EQ(Log.CountAtOrAbove(ELogVerbosity::Error), 1);
}

TEST_F(MovieGraphLibraryTest, AdaptingToTheCameraRecomputesOneAxisRoundedToTheNearestPixel)
{
	UMovieGraphGlobalOutputSettingNode* Output = AddOutputSettings(TEXT("1080p (FHD)"), FIntPoint(1, 1));
	Output->bOverride_AdaptResolution = 1;
	auto DesiredFor = [this, Output](const EMovieGraphAspectRatioAdaptBehavior InBehavior, const float InCameraAspectRatio)
	{
		Output->AdaptResolution = InBehavior;
		return UMovieGraphBlueprintLibrary::GetDesiredOutputResolution(Flatten(), InCameraAspectRatio);
	};
	using enum EMovieGraphAspectRatioAdaptBehavior;
	EXPECT_EQ(DesiredFor(Disabled, 2.2f), FIntPoint(1920, 1080));
	EXPECT_EQ(DesiredFor(ScaleToWidth, 2.2f), FIntPoint(1920, 873));
	EXPECT_EQ(DesiredFor(ScaleToHeight, 1.336f), FIntPoint(1443, 1080));
	EXPECT_EQ(DesiredFor(ScaleToWidth, 0.0f), FIntPoint(1920, 1080));
	// Automatic keeps the width for a wider camera and the height for a narrower one.
	EXPECT_EQ(DesiredFor(Automatic, 2.2f), FIntPoint(1920, 873));
	EXPECT_EQ(DesiredFor(Automatic, 1.0f), FIntPoint(1080, 1080));

	Output->AdaptResolution = ScaleToWidth;
	UMovieGraphEvaluatedConfig* Config = Flatten();
	EXPECT_EQ(UMovieGraphBlueprintLibrary::GetOverscannedResolution(Config, 0.1f, 2.2f), FIntPoint(2112, 961));
	EXPECT_EQ(UMovieGraphBlueprintLibrary::GetOverscanCropRectangle(Config, 0.1f, 2.2f), FIntRect(96, 44, 2016, 917));
}
#else
TEST_F(MovieGraphLibraryTest, TheEffectiveOutputResolutionIsTheProfileGrownByTheOverscan)
{
	AddOutputSettings(TEXT("720p (HD)"), FIntPoint(100, 100));
	EXPECT_EQ(UMovieGraphBlueprintLibrary::GetEffectiveOutputResolution(Flatten(), 0.1f), FIntPoint(1408, 792));
	UMovieGraphCameraSettingNode* Camera = AddOnBranch<UMovieGraphCameraSettingNode>(Globals);
	Camera->bOverride_OverscanPercentage = 1;
	Camera->OverscanPercentage = 25.0f;
	EXPECT_EQ(UMovieGraphBlueprintLibrary::GetEffectiveOutputResolution(Flatten(), 0.1f), FIntPoint(1600, 900));
}
#endif

TEST_F(MovieGraphLibraryTest, TokensComeFromTheFrameTheRenderDataTheJobAndTheNodesAndOverridesWinOverAll)
{
	FMovieGraphFilenameResolveParams Params;
	Params.RootFrameNumber = -3;
	Params.ShotFrameNumber = 12;
	Params.RootFrameNumberRel = 5;
	Params.ZeroPadFrameNumberCount = 4;
	Params.RenderDataIdentifier = FMovieGraphRenderDataIdentifier(Beauty, TEXT("Chars"), TEXT("Deferred"), TEXT("Base"), TEXT("Cam1"));
	Params.InitializationTime = FDateTime(2024, 3, 5, 14, 7, 9);
	Params.InitializationTimeOffset = FTimespan::FromHours(1);
	Params.Version = 7;
	Params.DefaultFrameRate = FFrameRate(30, 1);
	EXPECT_EQ(Resolve(TEXT("{frame_number}|{frame_number_shot}|{frame_number_rel}|{shot_name}"), Params), TEXT("-0003|0012|0005|NoShot"));
	EXPECT_EQ(Resolve(TEXT("{branch_name}/{layer_name}/{renderer_name}/{renderer_sub_name}/{camera_name}"), Params), TEXT("Beauty/Chars/Deferred/Base/Cam1"));
	EXPECT_EQ(Resolve(TEXT("{date}_{time}_{year}{month}{day}_{version}_{frame_rate}_[{job_name}]"), Params), TEXT("2024.03.05_15.07.09_20240305_v007_30.0_[]"));
	EXPECT_EQ(Resolve(TEXT("{output_resolution}|{output_width}x{output_height}|{project_dir}"), Params), TEXT("1920_1080|1920x1080|") + ProjectDir);
	EXPECT_EQ(Resolve(TEXT("{mrg:layer_name}.{unknown}.{ext}.{file_dup}"), Params), TEXT("Chars.{unknown}.{ext}."));

	Params.FrameNumberOffset = 1000;
	Params.bForceRelativeFrameNumbers = true;
	EXPECT_EQ(Resolve(TEXT("{frame_number}|{frame_number_shot}"), Params), TEXT("1005|1000"));

	TStrongObjectPtr<UMoviePipelineQueue> Queue(NewObject<UMoviePipelineQueue>());
	UMoviePipelineExecutorJob* Job = Queue->AllocateNewJob(UMoviePipelineExecutorJob::StaticClass());
	Job->Sequence = FSoftObjectPath(TEXT("/Game/Seq/Shot010.Shot010"));
	Job->JobName = TEXT("Nightly");
	UMoviePipelineExecutorShot* Shot = NewObject<UMoviePipelineExecutorShot>(Job);
	Shot->OuterName = TEXT("sh020");
	Params.Job = Job;
	Params.Shot = Shot;
	Params.Version = 1234;
	Params.FileNameFormatOverrides.Add(TEXT("version"), TEXT("{version}"));
	Params.FileNameFormatOverrides.Add(TEXT("layer_name"), TEXT("Props"));
	Params.FileMetadata.Add(TEXT("studio/take"), TEXT("3"));
	EXPECT_EQ(Resolve(TEXT("{sequence_name}_{job_name}_{shot_name}_{layer_name}_{version}"), Params), TEXT("Shot010_Nightly_sh020_Props_{version}"));
	Params.FileNameFormatOverrides.Reset();
	EXPECT_EQ(Resolve(TEXT("{version}"), Params), TEXT("v1234"));

	// An empty format string resolves to nothing but still adds every value to what the caller already has.
	FMovieGraphResolveArgs Args;
	Args.FilenameArguments.Add(TEXT("earlier"), TEXT("kept"));
	EXPECT_EQ(UMovieGraphBlueprintLibrary::ResolveFormatArguments(FString(), Params, Args), TEXT(""));
	EXPECT_EQ(Args.FilenameArguments.FindRef(TEXT("earlier")), TEXT("kept"));
	EXPECT_EQ(Args.FilenameArguments.FindRef(TEXT("shot_name")), TEXT("sh020"));
	EXPECT_EQ(Args.FileMetadata.FindRef(TEXT("studio/take")), TEXT("3"));
	EXPECT_EQ(Args.FileMetadata.FindRef(TEXT("unreal/project_dir")), ProjectDir);
}

TEST_F(MovieGraphLibraryTest, FilenamesAreCleanAbsolutePathsWithTheExtensionAndAFreeDuplicateNumber)
{
	FMovieGraphFilenameResolveParams Params;
	Params.FileNameFormatOverrides.Add(TEXT("ext"), TEXT("exr"));
	Params.RenderDataIdentifier.LayerName = TEXT("Chars");
	FMovieGraphResolveArgs Args;
	EXPECT_EQ(UMovieGraphBlueprintLibrary::ResolveFilenameFormatArguments(TEXT("Renders\\{layer_name}"), Params, Args), ProjectDir / TEXT("Renders/Chars.exr"));
	EXPECT_EQ(UMovieGraphBlueprintLibrary::ResolveFilenameFormatArguments(TEXT("/out//a/../b/{layer_name}."), Params, Args), TEXT("/out/a/./b/Chars.exr"));
	Params.bEnsureAbsolutePath = false;
	EXPECT_EQ(UMovieGraphBlueprintLibrary::ResolveFilenameFormatArguments(TEXT("//farm/share//{layer_name}"), Params, Args), TEXT("//farm/share/Chars.exr"));
	EXPECT_EQ(UMovieGraphBlueprintLibrary::ResolveFilenameFormatArguments(TEXT("Renders/{layer_name}"), Params, Args), TEXT("Renders/Chars.exr"));

	// Existing files are overwritten unless the Globals output settings forbid it.
	FFileHelper::SaveStringToFile(TEXT("x"), *(ProjectDir / TEXT("out/f.exr")));
	FFileHelper::SaveStringToFile(TEXT("x"), *(ProjectDir / TEXT("out/f_(2).exr")));
	Params.bEnsureAbsolutePath = true;
	EXPECT_EQ(UMovieGraphBlueprintLibrary::ResolveFilenameFormatArguments(TEXT("{project_dir}/out/f{file_dup}"), Params, Args), ProjectDir / TEXT("out/f.exr"));
	UMovieGraphGlobalOutputSettingNode* Output = AddOnBranch<UMovieGraphGlobalOutputSettingNode>(Globals);
	Output->bOverride_bOverwriteExistingOutput = 1;
	Output->bOverwriteExistingOutput = false;
	Params.EvaluatedConfig = Flatten();
	FMovieGraphResolveArgs DuplicateArgs;
	EXPECT_EQ(UMovieGraphBlueprintLibrary::ResolveFilenameFormatArguments(TEXT("{project_dir}/out/f{file_dup}"), Params, DuplicateArgs), ProjectDir / TEXT("out/f_(3).exr"));
	EXPECT_EQ(DuplicateArgs.FilenameArguments.FindRef(TEXT("file_dup")), TEXT("_(3)"));
}

TEST_F(MovieGraphLibraryTest, TheVersionIsFoundNextToTheVersionTokenOfTheBranchsOutputsUnlessItIsFixed)
{
	Graph->AddOutput(FText::FromString(TEXT("Beauty")));
	UMovieGraphGlobalOutputSettingNode* Output = AddOnBranch<UMovieGraphGlobalOutputSettingNode>(Globals);
	Output->bOverride_OutputDirectory = 1;
	Output->OutputDirectory.Path = TEXT("{project_dir}/Renders/{version}");
	AddOnBranch<UMovieGraphImageSequenceOutputNode_PNG>(Beauty);
	FMovieGraphFilenameResolveParams Params;
	Params.RenderDataIdentifier.RootBranchName = Beauty;
	Params.EvaluatedConfig = Flatten();

	EXPECT_EQ(UMovieGraphBlueprintLibrary::ResolveVersionNumber(Params), 0);
	EXPECT_EQ(UMovieGraphBlueprintLibrary::ResolveVersionNumber(Params, false), -1);
	IFileManager::Get().MakeDirectory(*(ProjectDir / TEXT("Renders/v001")), true);
	IFileManager::Get().MakeDirectory(*(ProjectDir / TEXT("Renders/v003")), true);
	EXPECT_EQ(UMovieGraphBlueprintLibrary::ResolveVersionNumber(Params), 4);
	EXPECT_EQ(UMovieGraphBlueprintLibrary::ResolveVersionNumber(Params, false), 3);

	Output->bOverride_VersioningSettings = 1;
	Output->VersioningSettings.bAutoVersioning = false;
	Output->VersioningSettings.VersionNumber = 7;
	Params.EvaluatedConfig = Flatten();
	EXPECT_EQ(UMovieGraphBlueprintLibrary::ResolveVersionNumber(Params), 7);

	FLogCapture Log;
	Params.EvaluatedConfig = nullptr;
	EXPECT_EQ(UMovieGraphBlueprintLibrary::ResolveVersionNumber(Params), -1);
	EXPECT_EQ(Log.CountAtOrAbove(ELogVerbosity::Error), 1);
}

TEST_F(MovieGraphLibraryTest, AGraphJobsOutputDirectoryIsItsGlobalsDirectoryResolvedUpToTheFirstPerRenderToken)
{
	TStrongObjectPtr<UMoviePipelineQueue> Queue(NewObject<UMoviePipelineQueue>());
	UMoviePipelineExecutorJob* Job = Queue->AllocateNewJob(UMoviePipelineExecutorJob::StaticClass());
	Job->Sequence = FSoftObjectPath(TEXT("/Game/Seq/Shot010.Shot010"));
	Job->SetGraphPreset(Graph.Get());
	EXPECT_EQ(UMoviePipelineEditorBlueprintLibrary::ResolveOutputDirectoryFromJob(Job), ProjectDir / TEXT("Saved/MovieRenders/"));

	UMovieGraphGlobalOutputSettingNode* Output = AddOutputSettings(TEXT("720p (HD)"), FIntPoint(1, 1));
	Output->bOverride_OutputDirectory = 1;
	Output->OutputDirectory.Path = TEXT("{project_dir}/Renders/{sequence_name}/{output_resolution}/{version}/{layer_name}/{shot_name}");
	AddOnBranch<UMovieGraphImageSequenceOutputNode_PNG>(Globals);
	const FString VersionsDir = ProjectDir / TEXT("Renders/Shot010/1280_720");
	EXPECT_EQ(UMoviePipelineEditorBlueprintLibrary::ResolveOutputDirectoryFromJob(Job), VersionsDir / TEXT("v000/"));
	IFileManager::Get().MakeDirectory(*(VersionsDir / TEXT("v002")), true);
	EXPECT_EQ(UMoviePipelineEditorBlueprintLibrary::ResolveOutputDirectoryFromJob(Job), VersionsDir / TEXT("v002/"));

#if !UE_VERSION_OLDER_THAN(5, 8, 0)
	FText Error;
	EXPECT_EQ(UMoviePipelineEditorBlueprintLibrary::TryResolveOutputDirectoryFromJob(Job, Error), VersionsDir / TEXT("v002/"));
	EXPECT_TRUE(Error.IsEmpty());
	EXPECT_EQ(UMoviePipelineEditorBlueprintLibrary::TryResolveOutputDirectoryFromJob(nullptr, Error), TEXT(""));
	EXPECT_EQ(Error.ToString(), TEXT("No job was provided."));
#endif
}
