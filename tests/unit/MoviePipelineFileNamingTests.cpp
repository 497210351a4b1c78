// The stand-in's output naming: frame number padding, token formatting and the version scan of earlier renders.
#include "PersistenceTestSupport.h"

#include "HAL/PlatformMisc.h"
#include "Misc/FileHelper.h"
#include "MoviePipelineStandInFileNaming.h"

#include <gtest/gtest.h>

using namespace UE::MoviePipeline::StandIn;

namespace
{
	// A project folder holding Render/ with the given files and folders (names ending in '/').
	class MoviePipelineVersionScanTest : public testing::Test
	{
	protected:
		void AddEntries(std::initializer_list<const TCHAR*> InNames)
		{
			for (const TCHAR* Name : InNames)
			{
				const FString Path = Project.GetProjectDir() / TEXT("Render") / Name;
				if (Path.EndsWith(TEXT("/")))
				{
					IFileManager::Get().MakeDirectory(*Path, true);
				}
				else
				{
					FFileHelper::SaveStringToFile(TEXT("x"), *Path);
				}
			}
		}

		static TMap<FString, FString> SequenceArguments()
		{
			TMap<FString, FString> Arguments;
			Arguments.Add(TEXT("project_dir"), FPaths::ConvertRelativePathToFull(FPaths::ProjectDir()));
			Arguments.Add(TEXT("sequence_name"), TEXT("Edit"));
			Arguments.Add(TEXT("version"), TEXT("v001"));
			return Arguments;
		}

		FScopedTestProject Project;
	};
}

TEST(MoviePipelineFileNaming, FrameNumbersArePaddedWithinTheEnginesRangeWithoutOverflow)
{
	EXPECT_EQ(PadFrameNumber(7, 4), TEXT("0007"));
	EXPECT_EQ(PadFrameNumber(-3, 4), TEXT("-0003"));
	EXPECT_EQ(PadFrameNumber(12345, 2), TEXT("12345"));
	// ZeroPadFrameNumbers has ClampMin 1: nothing pads less, and a negative count does not left-justify.
	EXPECT_EQ(PadFrameNumber(7, 0), TEXT("7"));
	EXPECT_EQ(PadFrameNumber(7, -2147483647), TEXT("7"));
	EXPECT_EQ(PadFrameNumber(int64(MAX_int32) + 1, 4), TEXT("2147483648"));
	EXPECT_EQ(PadFrameNumber(int64(MIN_int32) - 1, 1), TEXT("-2147483649"));

	const int32 MaxPath = FPlatformMisc::GetMaxPathLength();
	EXPECT_EQ(PadFrameNumber(5, MAX_int32).Len(), MaxPath);
	EXPECT_EQ(PadFrameNumber(-5, MAX_int32).Len(), MaxPath + 1);
}

TEST(MoviePipelineFileNaming, TokensFormatAsFStringFormatDoes)
{
	TMap<FString, FString> Arguments;
	Arguments.Add(TEXT("sequence_name"), TEXT("Intro"));
	Arguments.Add(TEXT("frame_number"), TEXT("0001"));

	EXPECT_EQ(FormatArguments(TEXT("{Sequence_Name}.{frame_number}.{render-pass}{unknown}"), Arguments), TEXT("Intro.0001.{render-pass}{unknown}"));
	EXPECT_EQ(FormatVersion(1), TEXT("v001"));
	EXPECT_EQ(FormatVersion(1234), TEXT("v1234"));
	EXPECT_TRUE(FitsMaxPathLength(FString::ChrN(FPlatformMisc::GetMaxPathLength(), TEXT('a'))));
	EXPECT_FALSE(FitsMaxPathLength(FString::ChrN(FPlatformMisc::GetMaxPathLength() + 1, TEXT('a'))));
}

TEST_F(MoviePipelineVersionScanTest, TheFirstVAndThreeDigitsOfEachEntryNextToTheVersionTokenCount)
{
	AddEntries({ TEXT("Edit.v002.0000.png"), TEXT("Edit.v0071.png"), TEXT("take_v012/"), TEXT("Edit.V050.png"), TEXT("Edit.v05.png"),
		TEXT("Edit.v003.v040.png"), TEXT("nested/Edit.v099.png") });

	// Files and folders of the folder holding {version} count; names inside subfolders, "V" and two digits do not.
	EXPECT_EQ(FindHighestExistingVersion(TEXT("{project_dir}/Render/{sequence_name}.{version}.{frame_number}"), SequenceArguments()), 12);
	// The same folder is searched when {version} names a folder of its own.
	EXPECT_EQ(FindHighestExistingVersion(TEXT("{project_dir}/Render/{version}/{sequence_name}.png"), SequenceArguments()), 12);
	// A relative path is taken from the project folder.
	EXPECT_EQ(FindHighestExistingVersion(TEXT("Render/{version}.png"), SequenceArguments()), 12);
}

TEST_F(MoviePipelineVersionScanTest, NoVersionWithoutAVersionTokenOrAVersionedEntry)
{
	AddEntries({ TEXT("Edit.0000.png"), TEXT("notes.txt") });

	EXPECT_EQ(FindHighestExistingVersion(TEXT("{project_dir}/Render/{sequence_name}.{frame_number}"), SequenceArguments()), INDEX_NONE);
	EXPECT_EQ(FindHighestExistingVersion(TEXT("{project_dir}/Render/{sequence_name}.{version}"), SequenceArguments()), INDEX_NONE);
	EXPECT_EQ(FindHighestExistingVersion(TEXT("{project_dir}/Missing/{version}/x.png"), SequenceArguments()), INDEX_NONE);
	const FString OverlongFolder = TEXT("{project_dir}/") + FString::ChrN(FPlatformMisc::GetMaxPathLength(), TEXT('a')) + TEXT("/{version}");
	EXPECT_EQ(FindHighestExistingVersion(OverlongFolder, SequenceArguments()), INDEX_NONE);
}
