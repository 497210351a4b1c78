// Reads image files back with the reading side of the libraries the stand-in writes them with: libpng, libjpeg,
// stb_image (BMP) and OpenEXR's C core.
#pragma once

#include "CoreMinimal.h"

#include <csetjmp>
#include <cstring>
#include <jpeglib.h>
#include <openexr.h>
#include <png.h>
#include <stb_image.h>

#include <gtest/gtest.h>

namespace UE::ImageDecodeTest
{
	// A decoded image, its samples in 8-bit levels (an EXR's floats times 255), rows top to bottom.
	struct FDecodedImage
	{
		int32 Width = 0;
		int32 Height = 0;
		int32 Channels = 0;
		TArray<float> Samples;
	};

	inline FDecodedImage DecodePng(const TArray<uint8>& InBytes)
	{
		FDecodedImage Decoded;
		png_image Image;
		std::memset(&Image, 0, sizeof(Image));
		Image.version = PNG_IMAGE_VERSION;
		if (!png_image_begin_read_from_memory(&Image, InBytes.GetData(), InBytes.Num()))
		{
			ADD_FAILURE() << "libpng: " << Image.message;
			return Decoded;
		}
		EXPECT_EQ(Image.format, png_uint_32(PNG_FORMAT_RGB)) << "8-bit RGB without alpha";
		Decoded.Width = int32(Image.width);
		Decoded.Height = int32(Image.height);
		Decoded.Channels = int32(PNG_IMAGE_SAMPLE_CHANNELS(Image.format));
		TArray<uint8> Pixels;
		Pixels.SetNumZeroed(int32(PNG_IMAGE_SIZE(Image)));
		if (!png_image_finish_read(&Image, nullptr, Pixels.GetData(), 0, nullptr))
		{
			ADD_FAILURE() << "libpng: " << Image.message;
		}
		png_image_free(&Image);
		for (const uint8 Level : Pixels)
		{
			Decoded.Samples.Add(Level);
		}
		return Decoded;
	}

	struct FJpegReadState
	{
		jpeg_error_mgr Manager;
		jpeg_decompress_struct Decompress;
		std::jmp_buf JumpBuffer;
		char Message[JMSG_LENGTH_MAX] = {};
		TArray<uint8> Pixels;
	};

	[[noreturn]] inline void OnJpegReadError(j_common_ptr InInfo)
	{
		FJpegReadState* State = reinterpret_cast<FJpegReadState*>(InInfo->err);
		(*InInfo->err->format_message)(InInfo, State->Message);
		std::longjmp(State->JumpBuffer, 1);
	}

	inline bool ReadJpeg(const TArray<uint8>& InBytes, FJpegReadState& OutState)
	{
		jpeg_decompress_struct& Decompress = OutState.Decompress;
		std::memset(&Decompress, 0, sizeof(Decompress));
		Decompress.err = jpeg_std_error(&OutState.Manager);
		OutState.Manager.error_exit = &OnJpegReadError;
		if (setjmp(OutState.JumpBuffer))
		{
			jpeg_destroy_decompress(&Decompress);
			return false;
		}
		jpeg_create_decompress(&Decompress);
		jpeg_mem_src(&Decompress, InBytes.GetData(), (unsigned long)InBytes.Num());
		jpeg_read_header(&Decompress, TRUE);
		jpeg_start_decompress(&Decompress);
		OutState.Pixels.SetNumZeroed(int32(Decompress.output_width * Decompress.output_height * Decompress.output_components));
		while (Decompress.output_scanline < Decompress.output_height)
		{
			JSAMPROW Row = OutState.Pixels.GetData() + Decompress.output_scanline * Decompress.output_width * Decompress.output_components;
			jpeg_read_scanlines(&Decompress, &Row, 1);
		}
		jpeg_finish_decompress(&Decompress);
		return true;
	}

	inline FDecodedImage DecodeJpeg(const TArray<uint8>& InBytes)
	{
		FDecodedImage Decoded;
		FJpegReadState State;
		const bool bRead = ReadJpeg(InBytes, State);
		if (!bRead)
		{
			ADD_FAILURE() << "libjpeg: " << State.Message;
			return Decoded;
		}
		EXPECT_EQ(State.Decompress.jpeg_color_space, JCS_YCbCr);
		Decoded.Width = int32(State.Decompress.output_width);
		Decoded.Height = int32(State.Decompress.output_height);
		Decoded.Channels = State.Decompress.output_components;
		jpeg_destroy_decompress(&State.Decompress);
		for (const uint8 Level : State.Pixels)
		{
			Decoded.Samples.Add(Level);
		}
		return Decoded;
	}

	inline FDecodedImage DecodeBmp(const TArray<uint8>& InBytes)
	{
		FDecodedImage Decoded;
		int Width = 0;
		int Height = 0;
		int Channels = 0;
		stbi_uc* Pixels = stbi_load_from_memory(InBytes.GetData(), InBytes.Num(), &Width, &Height, &Channels, 0);
		if (!Pixels)
		{
			ADD_FAILURE() << "stb_image: " << stbi_failure_reason();
			return Decoded;
		}
		Decoded.Width = Width;
		Decoded.Height = Height;
		Decoded.Channels = Channels;
		for (int32 Index = 0; Index < Width * Height * Channels; ++Index)
		{
			Decoded.Samples.Add(Pixels[Index]);
		}
		stbi_image_free(Pixels);
		return Decoded;
	}

	inline int64_t ReadExrBytes(exr_const_context_t, void* InUserData, void* OutData, uint64_t InSize, uint64_t InOffset, exr_stream_error_func_ptr_t)
	{
		const TArray<uint8>& Bytes = *static_cast<const TArray<uint8>*>(InUserData);
		if (InOffset >= uint64_t(Bytes.Num()))
		{
			return 0;
		}
		const uint64_t Count = FMath::Min<uint64_t>(InSize, uint64_t(Bytes.Num()) - InOffset);
		std::memcpy(OutData, Bytes.GetData() + InOffset, Count);
		return int64_t(Count);
	}

	inline int64_t ExrSize(exr_const_context_t, void* InUserData)
	{
		return static_cast<const TArray<uint8>*>(InUserData)->Num();
	}

	// Decodes the single scanline part into float R, G, B samples, whichever order the file stores its channels in.
	inline exr_result_t ReadExrPixels(exr_context_t InContext, const exr_attr_box2i_t& InWindow, FDecodedImage& OutDecoded)
	{
		int32_t LinesPerChunk = 0;
		exr_result_t Result = exr_get_scanlines_per_chunk(InContext, 0, &LinesPerChunk);
		exr_decode_pipeline_t Decoder = EXR_DECODE_PIPELINE_INITIALIZER;
		bool bInitialized = false;
		for (int32 Y = InWindow.min.y; Result == EXR_ERR_SUCCESS && Y <= InWindow.max.y; Y += LinesPerChunk)
		{
			exr_chunk_info_t Chunk;
			Result = exr_read_scanline_chunk_info(InContext, 0, Y, &Chunk);
			if (Result == EXR_ERR_SUCCESS)
			{
				Result = bInitialized ? exr_decoding_update(InContext, 0, &Chunk, &Decoder) : exr_decoding_initialize(InContext, 0, &Chunk, &Decoder);
			}
			if (Result != EXR_ERR_SUCCESS)
			{
				break;
			}
			for (int16_t Index = 0; Index < Decoder.channel_count; ++Index)
			{
				exr_coding_channel_info_t& Channel = Decoder.channels[Index];
				const char* const Order = "RGB";
				const int32 Offset = int32(std::strchr(Order, Channel.channel_name[0]) - Order);
				Channel.decode_to_ptr = reinterpret_cast<uint8_t*>(OutDecoded.Samples.GetData() + ((Y - InWindow.min.y) * OutDecoded.Width * 3 + Offset));
				Channel.user_data_type = EXR_PIXEL_FLOAT;
				Channel.user_bytes_per_element = sizeof(float);
				Channel.user_pixel_stride = 3 * sizeof(float);
				Channel.user_line_stride = OutDecoded.Width * 3 * sizeof(float);
			}
			if (!bInitialized)
			{
				bInitialized = true;
				Result = exr_decoding_choose_default_routines(InContext, 0, &Decoder);
			}
			if (Result == EXR_ERR_SUCCESS)
			{
				Result = exr_decoding_run(InContext, 0, &Decoder);
			}
		}
		if (bInitialized)
		{
			exr_decoding_destroy(InContext, &Decoder);
		}
		return Result;
	}

	inline FDecodedImage DecodeExr(const TArray<uint8>& InBytes)
	{
		FDecodedImage Decoded;
		exr_context_initializer_t Initializer = EXR_DEFAULT_CONTEXT_INITIALIZER;
		Initializer.user_data = const_cast<TArray<uint8>*>(&InBytes);
		Initializer.read_fn = &ReadExrBytes;
		Initializer.size_fn = &ExrSize;
		exr_context_t Context = nullptr;
		if (exr_start_read(&Context, "frame.exr", &Initializer) != EXR_ERR_SUCCESS)
		{
			ADD_FAILURE() << "OpenEXR could not read the header";
			return Decoded;
		}
		int PartCount = 0;
		exr_storage_t Storage = EXR_STORAGE_LAST_TYPE;
		exr_attr_box2i_t Window = {};
		const exr_attr_chlist_t* Channels = nullptr;
		EXPECT_EQ(exr_get_count(Context, &PartCount), EXR_ERR_SUCCESS);
		EXPECT_EQ(PartCount, 1);
		EXPECT_EQ(exr_get_storage(Context, 0, &Storage), EXR_ERR_SUCCESS);
		EXPECT_EQ(Storage, EXR_STORAGE_SCANLINE);
		EXPECT_EQ(exr_get_data_window(Context, 0, &Window), EXR_ERR_SUCCESS);
		EXPECT_EQ(exr_get_channels(Context, 0, &Channels), EXR_ERR_SUCCESS);
		if (Channels)
		{
			Decoded.Channels = Channels->num_channels;
			for (int32 Index = 0; Index < Channels->num_channels; ++Index)
			{
				EXPECT_STREQ(Channels->entries[Index].name.str, Index == 0 ? "B" : Index == 1 ? "G" : "R") << "stored in name order";
				EXPECT_EQ(Channels->entries[Index].pixel_type, EXR_PIXEL_HALF);
			}
		}
		Decoded.Width = Window.max.x - Window.min.x + 1;
		Decoded.Height = Window.max.y - Window.min.y + 1;
		if (Decoded.Channels == 3 && Decoded.Width > 0 && Decoded.Height > 0)
		{
			Decoded.Samples.SetNumZeroed(Decoded.Width * Decoded.Height * 3);
			EXPECT_EQ(ReadExrPixels(Context, Window, Decoded), EXR_ERR_SUCCESS);
			for (float& Sample : Decoded.Samples)
			{
				Sample *= 255.0f;
			}
		}
		exr_finish(&Context);
		return Decoded;
	}
}
