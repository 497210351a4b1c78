#include "MoviePipelineImageFileWriter.h"

namespace UE::MoviePipeline::StandIn
{
	namespace
	{
		// The grey every pixel has, in 8-bit channels.
		constexpr uint8 GreyLevel = 128;

		void AppendBigEndian32(TArray<uint8>& OutBytes, uint32 InValue)
		{
			OutBytes.Add(uint8(InValue >> 24));
			OutBytes.Add(uint8(InValue >> 16));
			OutBytes.Add(uint8(InValue >> 8));
			OutBytes.Add(uint8(InValue));
		}

		void AppendLittleEndian(TArray<uint8>& OutBytes, uint64 InValue, int32 InByteCount)
		{
			for (int32 Index = 0; Index < InByteCount; ++Index)
			{
				OutBytes.Add(uint8(InValue >> (8 * Index)));
			}
		}

		void AppendString(TArray<uint8>& OutBytes, const char* InText, bool bWithTerminator)
		{
			for (const char* Character = InText; *Character; ++Character)
			{
				OutBytes.Add(uint8(*Character));
			}
			if (bWithTerminator)
			{
				OutBytes.Add(0);
			}
		}

		void AppendPngChunk(TArray<uint8>& OutBytes, const char* InType, const TArray<uint8>& InData)
		{
			AppendBigEndian32(OutBytes, uint32(InData.Num()));
			const int32 TypeStart = OutBytes.Num();
			AppendString(OutBytes, InType, false);
			OutBytes.Append(InData);
			AppendBigEndian32(OutBytes, Crc32(OutBytes.GetData() + TypeStart, OutBytes.Num() - TypeStart));
		}

		// RGB, 8 bits a channel, each scanline with filter type 0, in one stored (uncompressed) deflate block.
		TArray<uint8> EncodePng()
		{
			TArray<uint8> Scanlines;
			for (int32 Row = 0; Row < ImageSize; ++Row)
			{
				Scanlines.Add(0);
				for (int32 Channel = 0; Channel < ImageSize * 3; ++Channel)
				{
					Scanlines.Add(GreyLevel);
				}
			}
			TArray<uint8> Zlib = { 0x78, 0x01, 0x01 };
			AppendLittleEndian(Zlib, uint32(Scanlines.Num()), 2);
			AppendLittleEndian(Zlib, uint32(~Scanlines.Num() & 0xFFFF), 2);
			Zlib.Append(Scanlines);
			AppendBigEndian32(Zlib, Adler32(Scanlines.GetData(), Scanlines.Num()));

			TArray<uint8> Header;
			AppendBigEndian32(Header, ImageSize);
			AppendBigEndian32(Header, ImageSize);
			Header.Append({ 8, 2, 0, 0, 0 });

			TArray<uint8> Bytes = { 0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n' };
			AppendPngChunk(Bytes, "IHDR", Header);
			AppendPngChunk(Bytes, "IDAT", Zlib);
			AppendPngChunk(Bytes, "IEND", TArray<uint8>());
			return Bytes;
		}

		// A bottom-up 24-bit BITMAPINFOHEADER bitmap; 8 pixels of 3 bytes need no row padding.
		TArray<uint8> EncodeBmp()
		{
			constexpr int32 HeadersSize = 14 + 40;
			constexpr int32 PixelBytes = ImageSize * ImageSize * 3;
			TArray<uint8> Bytes = { 'B', 'M' };
			AppendLittleEndian(Bytes, HeadersSize + PixelBytes, 4);
			AppendLittleEndian(Bytes, 0, 4);
			AppendLittleEndian(Bytes, HeadersSize, 4);
			AppendLittleEndian(Bytes, 40, 4);
			AppendLittleEndian(Bytes, ImageSize, 4);
			AppendLittleEndian(Bytes, ImageSize, 4);
			AppendLittleEndian(Bytes, 1, 2);
			AppendLittleEndian(Bytes, 24, 2);
			AppendLittleEndian(Bytes, 0, 4);
			AppendLittleEndian(Bytes, PixelBytes, 4);
			AppendLittleEndian(Bytes, 2835, 4);
			AppendLittleEndian(Bytes, 2835, 4);
			AppendLittleEndian(Bytes, 0, 4);
			AppendLittleEndian(Bytes, 0, 4);
			for (int32 Index = 0; Index < PixelBytes; ++Index)
			{
				Bytes.Add(GreyLevel);
			}
			return Bytes;
		}

		// A baseline grayscale JPEG of one 8x8 block whose only coefficient, DC, is 0 (mid grey): each Huffman table
		// has a single one-bit code, so the scan is "0" (DC category 0) then "0" (end of block), padded with ones.
		TArray<uint8> EncodeJpeg()
		{
			TArray<uint8> Bytes = { 0xFF, 0xD8 };
			Bytes.Append({ 0xFF, 0xE0, 0x00, 0x10, 'J', 'F', 'I', 'F', 0x00, 0x01, 0x01, 0x00, 0x00, 0x01, 0x00, 0x01, 0x00, 0x00 });
			Bytes.Append({ 0xFF, 0xDB, 0x00, 0x43, 0x00 });
			for (int32 Index = 0; Index < 64; ++Index)
			{
				Bytes.Add(1);
			}
			Bytes.Append({ 0xFF, 0xC0, 0x00, 0x0B, 0x08, 0x00, ImageSize, 0x00, ImageSize, 0x01, 0x01, 0x11, 0x00 });
			for (const uint8 TableClassAndId : { uint8(0x00), uint8(0x10) })
			{
				Bytes.Append({ 0xFF, 0xC4, 0x00, 0x14, TableClassAndId, 0x01 });
				for (int32 Length = 2; Length <= 16; ++Length)
				{
					Bytes.Add(0);
				}
				Bytes.Add(0x00);
			}
			Bytes.Append({ 0xFF, 0xDA, 0x00, 0x08, 0x01, 0x01, 0x00, 0x00, 0x3F, 0x00 });
			Bytes.Add(0x3F);
			Bytes.Append({ 0xFF, 0xD9 });
			return Bytes;
		}

		void AppendExrAttribute(TArray<uint8>& OutBytes, const char* InName, const char* InType, const TArray<uint8>& InValue)
		{
			AppendString(OutBytes, InName, true);
			AppendString(OutBytes, InType, true);
			AppendLittleEndian(OutBytes, uint32(InValue.Num()), 4);
			OutBytes.Append(InValue);
		}

		TArray<uint8> Box2i(int32 InMaxX, int32 InMaxY)
		{
			TArray<uint8> Value;
			AppendLittleEndian(Value, 0, 4);
			AppendLittleEndian(Value, 0, 4);
			AppendLittleEndian(Value, uint32(InMaxX), 4);
			AppendLittleEndian(Value, uint32(InMaxY), 4);
			return Value;
		}

		// A single-part scanline OpenEXR with half-float B, G and R channels, uncompressed (one scanline a block).
		TArray<uint8> EncodeExr()
		{
			constexpr uint16 HalfOneHalf = 0x3800;
			constexpr int32 ChannelCount = 3;
			TArray<uint8> Channels;
			for (const char* ChannelName : { "B", "G", "R" })
			{
				AppendString(Channels, ChannelName, true);
				AppendLittleEndian(Channels, 1, 4);
				AppendLittleEndian(Channels, 0, 4);
				AppendLittleEndian(Channels, 1, 4);
				AppendLittleEndian(Channels, 1, 4);
			}
			Channels.Add(0);
			TArray<uint8> FloatOne;
			AppendLittleEndian(FloatOne, 0x3F800000, 4);

			TArray<uint8> Bytes = { 0x76, 0x2F, 0x31, 0x01, 0x02, 0x00, 0x00, 0x00 };
			AppendExrAttribute(Bytes, "channels", "chlist", Channels);
			AppendExrAttribute(Bytes, "compression", "compression", { 0 });
			AppendExrAttribute(Bytes, "dataWindow", "box2i", Box2i(ImageSize - 1, ImageSize - 1));
			AppendExrAttribute(Bytes, "displayWindow", "box2i", Box2i(ImageSize - 1, ImageSize - 1));
			AppendExrAttribute(Bytes, "lineOrder", "lineOrder", { 0 });
			AppendExrAttribute(Bytes, "pixelAspectRatio", "float", FloatOne);
			AppendExrAttribute(Bytes, "screenWindowCenter", "v2f", TArray<uint8>({ 0, 0, 0, 0, 0, 0, 0, 0 }));
			AppendExrAttribute(Bytes, "screenWindowWidth", "float", FloatOne);
			Bytes.Add(0);

			constexpr int32 LineDataSize = ImageSize * ChannelCount * 2;
			constexpr int32 BlockSize = 4 + 4 + LineDataSize;
			const int32 FirstBlockOffset = Bytes.Num() + ImageSize * 8;
			for (int32 Line = 0; Line < ImageSize; ++Line)
			{
				AppendLittleEndian(Bytes, uint64(FirstBlockOffset + Line * BlockSize), 8);
			}
			for (int32 Line = 0; Line < ImageSize; ++Line)
			{
				AppendLittleEndian(Bytes, uint32(Line), 4);
				AppendLittleEndian(Bytes, LineDataSize, 4);
				for (int32 Sample = 0; Sample < ImageSize * ChannelCount; ++Sample)
				{
					AppendLittleEndian(Bytes, HalfOneHalf, 2);
				}
			}
			return Bytes;
		}
	}

	TArray<uint8> EncodeFrameImage(const FString& InExtension)
	{
		if (InExtension.Equals(TEXT("png"), ESearchCase::IgnoreCase))
		{
			return EncodePng();
		}
		if (InExtension.Equals(TEXT("jpg"), ESearchCase::IgnoreCase) || InExtension.Equals(TEXT("jpeg"), ESearchCase::IgnoreCase))
		{
			return EncodeJpeg();
		}
		if (InExtension.Equals(TEXT("bmp"), ESearchCase::IgnoreCase))
		{
			return EncodeBmp();
		}
		if (InExtension.Equals(TEXT("exr"), ESearchCase::IgnoreCase))
		{
			return EncodeExr();
		}
		return TArray<uint8>();
	}

	uint32 Crc32(const uint8* InData, int32 InSize, uint32 InCrc)
	{
		uint32 Crc = ~InCrc;
		for (int32 Index = 0; Index < InSize; ++Index)
		{
			Crc ^= InData[Index];
			for (int32 Bit = 0; Bit < 8; ++Bit)
			{
				Crc = (Crc >> 1) ^ (0xEDB88320u & (0u - (Crc & 1u)));
			}
		}
		return ~Crc;
	}

	uint32 Adler32(const uint8* InData, int32 InSize)
	{
		constexpr uint32 Modulus = 65521;
		uint32 A = 1;
		uint32 B = 0;
		for (int32 Index = 0; Index < InSize; ++Index)
		{
			A = (A + InData[Index]) % Modulus;
			B = (B + A) % Modulus;
		}
		return (B << 16) | A;
	}
}
