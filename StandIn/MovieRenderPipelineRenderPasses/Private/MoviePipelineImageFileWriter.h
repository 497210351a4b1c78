// The small images the stand-in's image sequence outputs write for every rendered frame.
#pragma once

#include "CoreMinimal.h"

namespace UE::MoviePipeline::StandIn
{
	// Stand-in choice: every frame is the same 8x8 image, a valid file of the format named by its extension ("png",
	// "jpg", "bmp" or "exr"); the engine writes the rendered pixels at the output resolution.
	constexpr int32 ImageSize = 8;

	// The encoded file; empty for an unknown extension.
	TArray<uint8> EncodeFrameImage(const FString& InExtension);

	// The CRC-32 of PNG chunks and zip files (polynomial 0xEDB88320).
	uint32 Crc32(const uint8* InData, int32 InSize, uint32 InCrc = 0);

	// The Adler-32 checksum that ends a zlib stream.
	uint32 Adler32(const uint8* InData, int32 InSize);
}
