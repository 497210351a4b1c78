#include "MoviePipelineImageFileWriter.h"

#include "MovieRenderPipelineCoreModule.h"

// The only file of the module that sees the image libraries' headers.
#include <csetjmp>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <jpeglib.h>
#include <openexr.h>
#include <png.h>
#include <stb_image_write.h>

namespace UE::MoviePipeline::StandIn
{
	namespace
	{
		// An 8-bit RGB image, its rows top to bottom.
		struct FFrameImage
		{
			int32 Width = 0;
			int32 Height = 0;
			TArray<uint8> Rgb;
		};

		// What a library said when it refused the image.
		struct FLibraryError
		{
			char Message[JMSG_LENGTH_MAX] = {};

			void Set(const char* InMessage)
			{
				if (Message[0] == 0)
				{
					std::snprintf(Message, sizeof(Message), "%s", InMessage ? InMessage : "unknown error");
				}
			}
		};

		// The pixels are only made for a size the libraries can be handed; a size that is not positive is still handed
		// to them, with no pixels, so that they refuse it before they read any (tests rely on that to reach the error
		// paths).
		FFrameImage MakeFrameImage(int32 InWidth, int32 InHeight)
		{
			FFrameImage Image;
			Image.Width = InWidth;
			Image.Height = InHeight;
			if (InWidth > 0 && InHeight > 0 && int64(InWidth) * InHeight * 3 <= MAX_int32)
			{
				Image.Rgb.SetNumUninitialized(InWidth * InHeight * 3);
				uint8* Pixel = Image.Rgb.GetData();
				for (int32 Y = 0; Y < InHeight; ++Y)
				{
					for (int32 X = 0; X < InWidth; ++X)
					{
						*Pixel++ = uint8(16 + 32 * (X % 8));
						*Pixel++ = uint8(16 + 32 * (Y % 8));
						*Pixel++ = 128;
					}
				}
			}
			return Image;
		}

		bool HasPixelsFor(const FFrameImage& InImage)
		{
			return InImage.Rgb.Num() > 0 || InImage.Width <= 0 || InImage.Height <= 0;
		}

		// PNG through libpng: its errors longjmp back to the setjmp below instead of aborting. Nothing with a destructor
		// lives in this frame, so the jump skips none.
		struct FPngState
		{
			TArray<uint8> Bytes;
			FLibraryError Error;
		};

		void AppendPngBytes(png_structp InPng, png_bytep InData, png_size_t InSize)
		{
			static_cast<FPngState*>(png_get_io_ptr(InPng))->Bytes.Append(InData, int32(InSize));
		}

		[[noreturn]] void OnPngError(png_structp InPng, png_const_charp InMessage)
		{
			static_cast<FPngState*>(png_get_error_ptr(InPng))->Error.Set(InMessage);
			png_longjmp(InPng, 1);
		}

		void OnPngWarning(png_structp, png_const_charp)
		{
		}

		bool WritePng(const FFrameImage& InImage, FPngState& OutState)
		{
			png_structp Png = png_create_write_struct(PNG_LIBPNG_VER_STRING, &OutState, &OnPngError, &OnPngWarning);
			png_infop Info = Png ? png_create_info_struct(Png) : nullptr;
			if (!Info)
			{
				png_destroy_write_struct(&Png, nullptr);
				OutState.Error.Set("out of memory");
				return false;
			}
			if (setjmp(png_jmpbuf(Png)))
			{
				png_destroy_write_struct(&Png, &Info);
				return false;
			}
			png_set_write_fn(Png, &OutState, &AppendPngBytes, nullptr);
			png_set_IHDR(Png, Info, png_uint_32(InImage.Width), png_uint_32(InImage.Height), 8, PNG_COLOR_TYPE_RGB,
				PNG_INTERLACE_NONE, PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
			png_write_info(Png, Info);
			for (int32 Row = 0; Row < InImage.Height; ++Row)
			{
				png_write_row(Png, InImage.Rgb.GetData() + int64(Row) * InImage.Width * 3);
			}
			png_write_end(Png, nullptr);
			png_destroy_write_struct(&Png, &Info);
			return true;
		}

		// JPEG through libjpeg: error_exit longjmps back to the setjmp below instead of exiting the process. What the
		// library changes lives in the caller's frame, so it is still valid after the jump.
		struct FJpegState
		{
			jpeg_error_mgr Manager;
			jpeg_compress_struct Compress;
			std::jmp_buf JumpBuffer;
			FLibraryError Error;
			unsigned char* Buffer = nullptr;
			unsigned long Size = 0;
		};

		[[noreturn]] void OnJpegError(j_common_ptr InInfo)
		{
			FJpegState* State = reinterpret_cast<FJpegState*>(InInfo->err);
			char Message[JMSG_LENGTH_MAX];
			(*InInfo->err->format_message)(InInfo, Message);
			State->Error.Set(Message);
			std::longjmp(State->JumpBuffer, 1);
		}

		void OnJpegMessage(j_common_ptr)
		{
		}

		// Quality 95 with no chroma subsampling, so that the small image reads back close to what was written.
		bool WriteJpeg(const FFrameImage& InImage, FJpegState& OutState)
		{
			jpeg_compress_struct& Compress = OutState.Compress;
			std::memset(&Compress, 0, sizeof(Compress));
			Compress.err = jpeg_std_error(&OutState.Manager);
			OutState.Manager.error_exit = &OnJpegError;
			OutState.Manager.output_message = &OnJpegMessage;
			if (setjmp(OutState.JumpBuffer))
			{
				jpeg_destroy_compress(&Compress);
				return false;
			}
			jpeg_create_compress(&Compress);
			jpeg_mem_dest(&Compress, &OutState.Buffer, &OutState.Size);
			Compress.image_width = JDIMENSION(InImage.Width);
			Compress.image_height = JDIMENSION(InImage.Height);
			Compress.input_components = 3;
			Compress.in_color_space = JCS_RGB;
			jpeg_set_defaults(&Compress);
			jpeg_set_quality(&Compress, 95, TRUE);
			for (int32 Component = 0; Component < Compress.num_components; ++Component)
			{
				Compress.comp_info[Component].h_samp_factor = 1;
				Compress.comp_info[Component].v_samp_factor = 1;
			}
			jpeg_start_compress(&Compress, TRUE);
			while (Compress.next_scanline < Compress.image_height)
			{
				JSAMPROW Row = const_cast<JSAMPROW>(InImage.Rgb.GetData() + int64(Compress.next_scanline) * InImage.Width * 3);
				jpeg_write_scanlines(&Compress, &Row, 1);
			}
			jpeg_finish_compress(&Compress);
			jpeg_destroy_compress(&Compress);
			return true;
		}

		// BMP through stb_image_write: a 24-bit bottom-up bitmap; it reports a refused image by returning 0.
		void AppendStbBytes(void* InContext, void* InData, int InSize)
		{
			static_cast<TArray<uint8>*>(InContext)->Append(static_cast<const uint8*>(InData), InSize);
		}

		bool WriteBmp(const FFrameImage& InImage, TArray<uint8>& OutBytes, FLibraryError& OutError)
		{
			if (!stbi_write_bmp_to_func(&AppendStbBytes, &OutBytes, InImage.Width, InImage.Height, 3, InImage.Rgb.GetData()))
			{
				OutError.Set("stb_image_write refused the image");
				return false;
			}
			return true;
		}

		// EXR through OpenEXR's C core, whose calls return error codes (the C++ library throws, which this module,
		// built without exceptions, could not catch): a single-part scanline file of half-float B, G and R channels,
		// uncompressed, written into memory.
		struct FExrState
		{
			TArray<uint8> Bytes;
			FLibraryError Error;
		};

		int64_t WriteExrBytes(exr_const_context_t InContext, void* InUserData, const void* InData, uint64_t InSize, uint64_t InOffset, exr_stream_error_func_ptr_t InReportError)
		{
			TArray<uint8>& Bytes = static_cast<FExrState*>(InUserData)->Bytes;
			if (InOffset + InSize > uint64_t(MAX_int32))
			{
				InReportError(InContext, EXR_ERR_WRITE_IO, "the image does not fit in memory");
				return -1;
			}
			const int32 End = int32(InOffset + InSize);
			if (End > Bytes.Num())
			{
				Bytes.AddZeroed(End - Bytes.Num());
			}
			std::memcpy(Bytes.GetData() + InOffset, InData, InSize);
			return int64_t(InSize);
		}

		// The state of the EXR this thread is writing: the error handler runs with the context locked, so it cannot ask
		// the context for its user data.
		thread_local FExrState* ExrStateOfThisThread = nullptr;

		void OnExrError(exr_const_context_t InContext, exr_result_t InCode, const char* InMessage)
		{
			if (ExrStateOfThisThread)
			{
				ExrStateOfThisThread->Error.Set(InMessage);
			}
		}

		exr_result_t EncodeExrScanlines(exr_context_t InContext, int InPart, const FFrameImage& InImage, const TArray<float>& InLinear)
		{
			int32_t LinesPerChunk = 0;
			exr_result_t Result = exr_get_scanlines_per_chunk(InContext, InPart, &LinesPerChunk);
			exr_encode_pipeline_t Encoder = EXR_ENCODE_PIPELINE_INITIALIZER;
			bool bInitialized = false;
			for (int32 Y = 0; Result == EXR_ERR_SUCCESS && Y < InImage.Height; Y += LinesPerChunk)
			{
				exr_chunk_info_t Chunk;
				Result = exr_write_scanline_chunk_info(InContext, InPart, Y, &Chunk);
				if (Result == EXR_ERR_SUCCESS)
				{
					Result = bInitialized ? exr_encoding_update(InContext, InPart, &Chunk, &Encoder) : exr_encoding_initialize(InContext, InPart, &Chunk, &Encoder);
				}
				if (Result != EXR_ERR_SUCCESS)
				{
					break;
				}
				for (int16_t Index = 0; Index < Encoder.channel_count; ++Index)
				{
					exr_coding_channel_info_t& Channel = Encoder.channels[Index];
					const int32 Offset = Channel.channel_name[0] == 'R' ? 0 : Channel.channel_name[0] == 'G' ? 1 : 2;
					Channel.encode_from_ptr = reinterpret_cast<const uint8_t*>(InLinear.GetData() + (int64(Y) * InImage.Width * 3 + Offset));
					Channel.user_data_type = EXR_PIXEL_FLOAT;
					Channel.user_bytes_per_element = sizeof(float);
					Channel.user_pixel_stride = 3 * sizeof(float);
					Channel.user_line_stride = InImage.Width * 3 * sizeof(float);
				}
				if (!bInitialized)
				{
					bInitialized = true;
					Result = exr_encoding_choose_default_routines(InContext, InPart, &Encoder);
				}
				if (Result == EXR_ERR_SUCCESS)
				{
					Result = exr_encoding_run(InContext, InPart, &Encoder);
				}
			}
			if (bInitialized)
			{
				exr_encoding_destroy(InContext, &Encoder);
			}
			return Result;
		}

		bool WriteExr(const FFrameImage& InImage, FExrState& OutState)
		{
			TArray<float> Linear;
			Linear.Reserve(InImage.Rgb.Num());
			for (const uint8 Level : InImage.Rgb)
			{
				Linear.Add(float(Level) / 255.0f);
			}

			exr_context_initializer_t Initializer = EXR_DEFAULT_CONTEXT_INITIALIZER;
			Initializer.user_data = &OutState;
			Initializer.write_fn = &WriteExrBytes;
			Initializer.error_handler_fn = &OnExrError;
			exr_context_t Context = nullptr;
			int Part = 0;
			ExrStateOfThisThread = &OutState;
			exr_result_t Result = exr_start_write(&Context, "frame.exr", EXR_WRITE_FILE_DIRECTLY, &Initializer);
			if (Result == EXR_ERR_SUCCESS)
			{
				Result = exr_add_part(Context, nullptr, EXR_STORAGE_SCANLINE, &Part);
			}
			if (Result == EXR_ERR_SUCCESS)
			{
				Result = exr_initialize_required_attr_simple(Context, Part, InImage.Width, InImage.Height, EXR_COMPRESSION_NONE);
			}
			for (const char* Name : { "R", "G", "B" })
			{
				if (Result == EXR_ERR_SUCCESS)
				{
					Result = exr_add_channel(Context, Part, Name, EXR_PIXEL_HALF, EXR_PERCEPTUALLY_LOGARITHMIC, 1, 1);
				}
			}
			if (Result == EXR_ERR_SUCCESS)
			{
				Result = exr_write_header(Context);
			}
			if (Result == EXR_ERR_SUCCESS)
			{
				Result = EncodeExrScanlines(Context, Part, InImage, Linear);
			}
			if (Context)
			{
				// Writes the chunk offsets, then frees the context.
				const exr_result_t FinishResult = exr_finish(&Context);
				Result = Result == EXR_ERR_SUCCESS ? FinishResult : Result;
			}
			ExrStateOfThisThread = nullptr;
			if (Result != EXR_ERR_SUCCESS)
			{
				OutState.Error.Set(exr_get_default_error_message(Result));
				return false;
			}
			return true;
		}

		bool IsExtension(const FString& InExtension, const TCHAR* InName)
		{
			return InExtension.Equals(InName, ESearchCase::IgnoreCase);
		}
	}

	TArray<uint8> EncodeFrameImage(const FString& InExtension, int32 InWidth, int32 InHeight)
	{
		const bool bPng = IsExtension(InExtension, TEXT("png"));
		const bool bJpeg = IsExtension(InExtension, TEXT("jpg")) || IsExtension(InExtension, TEXT("jpeg"));
		const bool bBmp = IsExtension(InExtension, TEXT("bmp"));
		const bool bExr = IsExtension(InExtension, TEXT("exr"));
		if (!bPng && !bJpeg && !bBmp && !bExr)
		{
			return TArray<uint8>();
		}

		const FFrameImage Image = MakeFrameImage(InWidth, InHeight);
		TArray<uint8> Bytes;
		FLibraryError Error;
		if (!HasPixelsFor(Image))
		{
			Error.Set("the image does not fit in memory");
		}
		else if (bPng)
		{
			FPngState State;
			if (WritePng(Image, State))
			{
				Bytes = MoveTemp(State.Bytes);
			}
			Error = State.Error;
		}
		else if (bJpeg)
		{
			FJpegState State;
			if (WriteJpeg(Image, State))
			{
				Bytes.Append(State.Buffer, int32(State.Size));
			}
			// jpeg_mem_dest's buffer is the caller's to free, after an error as well.
			std::free(State.Buffer);
			Error = State.Error;
		}
		else if (bBmp)
		{
			if (!WriteBmp(Image, Bytes, Error))
			{
				Bytes.Empty();
			}
		}
		else
		{
			FExrState State;
			if (WriteExr(Image, State))
			{
				Bytes = MoveTemp(State.Bytes);
			}
			Error = State.Error;
		}

		if (Bytes.IsEmpty())
		{
			UE_LOG(LogMovieRenderPipeline, Error, TEXT("Failed to encode the %s image: %s"), *InExtension, UTF8_TO_TCHAR(Error.Message));
		}
		return Bytes;
	}
}
