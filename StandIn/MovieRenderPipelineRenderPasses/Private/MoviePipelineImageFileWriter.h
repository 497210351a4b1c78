// The small images the stand-in's image sequence outputs write for every rendered frame.
#pragma once

#include "CoreMinimal.h"

namespace UE::MoviePipeline::StandIn
{
	// Stand-in choice: every frame is the same 8x8 RGB image, a valid file of the format named by its extension ("png",
	// "jpg"/"jpeg", "bmp" or "exr"); the engine writes the rendered pixels at the output resolution. Red rises from left
	// to right (16, 48, ... 240), green from top to bottom, blue stays at 128, so that a reader that flips the rows or
	// swaps the channels tells; the EXR holds each level divided by 255, as half floats.
	constexpr int32 ImageSize = 8;

	// The encoded file, written by libpng, libjpeg, stb_image_write (BMP) or OpenEXR; empty for an unknown extension or
	// when the library reports an error (logged). The size is only ever changed by tests, to make the libraries fail.
	MOVIERENDERPIPELINERENDERPASSES_API TArray<uint8> EncodeFrameImage(const FString& InExtension, int32 InWidth = ImageSize, int32 InHeight = ImageSize);
}
