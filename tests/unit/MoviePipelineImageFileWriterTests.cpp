// The stand-in's frame images, read back with the reading side of the libraries that wrote them.
#include "CapturedLogTestSupport.h"
#include "ImageDecodeTestSupport.h"

#include "CoreMinimal.h"
#include "MoviePipelineImageFileWriter.h"
#include "Misc/OutputDeviceRedirector.h"

#include <gtest/gtest.h>

namespace
{
	using namespace UE::ImageDecodeTest;
	using UE::MoviePipeline::StandIn::EncodeFrameImage;
	using UE::MoviePipeline::StandIn::ImageSize;

	// The stand-in's image: red rises from left to right, green from top to bottom, blue stays at 128.
	void ExpectFrameImage(const FDecodedImage& InDecoded, float InTolerance)
	{
		ASSERT_EQ(InDecoded.Width, ImageSize);
		ASSERT_EQ(InDecoded.Height, ImageSize);
		ASSERT_EQ(InDecoded.Channels, 3);
		ASSERT_EQ(InDecoded.Samples.Num(), ImageSize * ImageSize * 3);
		float WorstError = 0.0f;
		for (int32 Y = 0; Y < ImageSize; ++Y)
		{
			for (int32 X = 0; X < ImageSize; ++X)
			{
				const float Expected[3] = { float(16 + 32 * X), float(16 + 32 * Y), 128.0f };
				for (int32 Channel = 0; Channel < 3; ++Channel)
				{
					const float Sample = InDecoded.Samples[(Y * ImageSize + X) * 3 + Channel];
					EXPECT_NEAR(Sample, Expected[Channel], InTolerance) << "pixel " << X << "," << Y << " channel " << Channel;
					WorstError = FMath::Max(WorstError, FMath::Abs(Sample - Expected[Channel]));
				}
			}
		}
		testing::Test::RecordProperty("WorstError", std::to_string(WorstError));
	}
}

TEST(MoviePipelineImageFileWriter, PngReadsBackLosslessly)
{
	ExpectFrameImage(DecodePng(EncodeFrameImage(TEXT("png"))), 0.0f);
}

TEST(MoviePipelineImageFileWriter, JpegReadsBackWithinTheLossOfQuality95)
{
	ExpectFrameImage(DecodeJpeg(EncodeFrameImage(TEXT("jpg"))), 4.0f);
	EXPECT_EQ(EncodeFrameImage(TEXT("JPEG")), EncodeFrameImage(TEXT("jpg"))) << "either extension, any case";
}

TEST(MoviePipelineImageFileWriter, BmpReadsBackLosslessly)
{
	ExpectFrameImage(DecodeBmp(EncodeFrameImage(TEXT("bmp"))), 0.0f);
}

TEST(MoviePipelineImageFileWriter, ExrReadsBackToHalfFloatPrecision)
{
	// A half float keeps 11 significant bits: less than a quarter of an 8-bit level below 1.
	ExpectFrameImage(DecodeExr(EncodeFrameImage(TEXT("exr"))), 0.25f);
}

TEST(MoviePipelineImageFileWriter, AnUnknownExtensionGivesNothing)
{
	FCapturedLog Captured;
	EXPECT_TRUE(EncodeFrameImage(TEXT("tga")).IsEmpty());
	EXPECT_TRUE(EncodeFrameImage(TEXT("")).IsEmpty());
	EXPECT_TRUE(EncodeFrameImage(TEXT(".png")).IsEmpty());
	EXPECT_TRUE(Captured.Lines.IsEmpty()) << "an extension the writer does not know is not an error";
}

// A negative width reaches each library, whose error handler turns the failure into an empty result and a logged error
// (under ASan, without a leak); libpng and libjpeg would otherwise abort or exit the process.
TEST(MoviePipelineImageFileWriter, ALibraryErrorGivesNothingAndIsLogged)
{
	const TCHAR* const Extensions[] = { TEXT("png"), TEXT("jpg"), TEXT("bmp"), TEXT("exr") };
	for (const TCHAR* Extension : Extensions)
	{
		FCapturedLog Captured;
		EXPECT_TRUE(EncodeFrameImage(Extension, -1, ImageSize).IsEmpty()) << *FString(Extension);
		ASSERT_EQ(Captured.Lines.Num(), 1) << *FString(Extension);
		EXPECT_TRUE(Captured.Lines[0].StartsWith(FString::Printf(TEXT("LogMovieRenderPipeline: Error: Failed to encode the %s image: "), Extension))) << *Captured.Lines[0];
	}
	// An empty image, which stb_image_write alone accepts (a header without pixels).
	for (const TCHAR* Extension : { TEXT("png"), TEXT("jpg"), TEXT("exr") })
	{
		EXPECT_TRUE(EncodeFrameImage(Extension, 0, ImageSize).IsEmpty()) << *FString(Extension);
		EXPECT_TRUE(EncodeFrameImage(Extension, ImageSize, 0).IsEmpty()) << *FString(Extension);
	}
	// libjpeg's and libpng's own size limits.
	EXPECT_TRUE(EncodeFrameImage(TEXT("jpg"), 70000, 1).IsEmpty());
	EXPECT_TRUE(EncodeFrameImage(TEXT("png"), 2000000, 1).IsEmpty());
	// After all of those, the writer still works.
	ExpectFrameImage(DecodePng(EncodeFrameImage(TEXT("png"))), 0.0f);
}
