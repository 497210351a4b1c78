#include "Misc/FileHelper.h"

#include "Containers/StringConv.h"
#include "HAL/FileManager.h"
#include "Misc/Paths.h"

#include <cstdio>
#include <string>

namespace
{
	std::string ToNativePath(const TCHAR* Filename)
	{
		FTCHARToUTF8 Converted(Filename ? Filename : TEXT(""));
		return std::string((const char*)Converted.Get(), (size_t)Converted.Length());
	}

	bool WriteBytes(const uint8* Bytes, int64 Count, const TCHAR* Filename, uint32 WriteFlags)
	{
		if (!Filename || !*Filename)
		{
			return false;
		}
		const FString Directory = FPaths::GetPath(FString(Filename));
		if (!Directory.IsEmpty())
		{
			IFileManager::Get().MakeDirectory(*Directory, true);
		}
		if ((WriteFlags & FILEWRITE_NoReplaceExisting) && IFileManager::Get().FileExists(Filename))
		{
			return false;
		}
		std::FILE* File = std::fopen(ToNativePath(Filename).c_str(), (WriteFlags & FILEWRITE_Append) ? "ab" : "wb");
		if (!File)
		{
			return false;
		}
		const bool bWritten = Count == 0 || std::fwrite(Bytes, 1, (size_t)Count, File) == (size_t)Count;
		const bool bClosed = std::fclose(File) == 0;
		return bWritten && bClosed;
	}

	void AppendUTF16(TArray<uint8>& Out, uint32 Codepoint)
	{
		auto AppendUnit = [&Out](uint32 Unit)
		{
			Out.Add((uint8)(Unit & 0xFF));
			Out.Add((uint8)(Unit >> 8));
		};
		if (Codepoint >= 0x10000 && Codepoint <= 0x10FFFF)
		{
			const uint32 Offset = Codepoint - 0x10000;
			AppendUnit(0xD800 + (Offset >> 10));
			AppendUnit(0xDC00 + (Offset & 0x3FF));
		}
		else
		{
			AppendUnit(Codepoint > 0x10FFFF ? '?' : Codepoint);
		}
	}

	void DecodeUTF16(FString& Result, const uint8* Buffer, int32 Size, bool bBigEndian)
	{
		TArray<TCHAR>& Chars = Result.GetCharArray();
		Chars.Reset();
		auto UnitAt = [&](int32 Offset) -> uint32
		{
			return bBigEndian ? ((uint32)Buffer[Offset] << 8) | Buffer[Offset + 1] : ((uint32)Buffer[Offset + 1] << 8) | Buffer[Offset];
		};
		for (int32 Offset = 0; Offset + 1 < Size; Offset += 2)
		{
			uint32 Unit = UnitAt(Offset);
			if (Unit >= 0xD800 && Unit <= 0xDBFF && Offset + 3 < Size)
			{
				const uint32 Low = UnitAt(Offset + 2);
				if (Low >= 0xDC00 && Low <= 0xDFFF)
				{
					Unit = 0x10000 + ((Unit - 0xD800) << 10) + (Low - 0xDC00);
					Offset += 2;
				}
			}
			if (Unit != 0)
			{
				Chars.Add((TCHAR)Unit);
			}
		}
		if (Chars.Num() > 0)
		{
			Chars.Add(0);
		}
	}
}

bool FFileHelper::LoadFileToArray(TArray<uint8>& Result, const TCHAR* Filename, uint32 Flags)
{
	if (!IFileManager::Get().FileExists(Filename))
	{
		return false;
	}
	std::FILE* File = std::fopen(ToNativePath(Filename).c_str(), "rb");
	if (!File)
	{
		return false;
	}
	Result.Reset();
	uint8 Chunk[65536];
	size_t Read = 0;
	while ((Read = std::fread(Chunk, 1, sizeof(Chunk), File)) > 0)
	{
		Result.Append(Chunk, (int32)Read);
	}
	const bool bFailed = std::ferror(File) != 0;
	std::fclose(File);
	return !bFailed;
}

void FFileHelper::BufferToString(FString& Result, const uint8* Buffer, int32 Size)
{
	if (Size >= 2 && Buffer[0] == 0xFF && Buffer[1] == 0xFE)
	{
		DecodeUTF16(Result, Buffer + 2, Size - 2, false);
		return;
	}
	if (Size >= 2 && Buffer[0] == 0xFE && Buffer[1] == 0xFF)
	{
		DecodeUTF16(Result, Buffer + 2, Size - 2, true);
		return;
	}
	if (Size >= 3 && Buffer[0] == 0xEF && Buffer[1] == 0xBB && Buffer[2] == 0xBF)
	{
		Buffer += 3;
		Size -= 3;
	}
	TArray<TCHAR>& Chars = Result.GetCharArray();
	Chars.Reset();
	if (Size > 0)
	{
		UE::Core::Private::ConvertUTF8ToTCHAR((const UTF8CHAR*)Buffer, Size, Chars);
		Chars.RemoveAll([](TCHAR Character) { return Character == 0; });
		if (Chars.Num() > 0)
		{
			Chars.Add(0);
		}
	}
}

bool FFileHelper::LoadFileToString(FString& Result, const TCHAR* Filename, EHashOptions VerifyFlags, uint32 ReadFlags)
{
	TArray<uint8> Bytes;
	if (!LoadFileToArray(Bytes, Filename, ReadFlags))
	{
		return false;
	}
	BufferToString(Result, Bytes.GetData(), Bytes.Num());
	return true;
}

bool FFileHelper::LoadFileToStringArray(TArray<FString>& Result, const TCHAR* Filename)
{
	FString Contents;
	if (!LoadFileToString(Contents, Filename))
	{
		return false;
	}
	Contents.ParseIntoArrayLines(Result, true);
	return true;
}

bool FFileHelper::SaveArrayToFile(TArrayView<const uint8> Array, const TCHAR* Filename, IFileManager* FileManager, uint32 WriteFlags)
{
	return WriteBytes(Array.GetData(), Array.Num(), Filename, WriteFlags);
}

bool FFileHelper::SaveStringToFile(FStringView String, const TCHAR* Filename, EEncodingOptions EncodingOptions, IFileManager* FileManager, uint32 WriteFlags)
{
	TArray<uint8> Bytes;
	switch (EncodingOptions)
	{
	case EEncodingOptions::ForceAnsi:
	{
		FTCHARToANSI Converted(String.GetData(), String.Len());
		Bytes.Append((const uint8*)Converted.Get(), Converted.Length());
		break;
	}
	case EEncodingOptions::ForceUnicode:
		Bytes.Add(0xFF);
		Bytes.Add(0xFE);
		for (TCHAR Character : String)
		{
			AppendUTF16(Bytes, (uint32)Character);
		}
		break;
	case EEncodingOptions::ForceUTF8:
		Bytes.Append({ 0xEF, 0xBB, 0xBF });
		[[fallthrough]];
	case EEncodingOptions::AutoDetect:
	case EEncodingOptions::ForceUTF8WithoutBOM:
	{
		FTCHARToUTF8 Converted(String.GetData(), String.Len());
		Bytes.Append((const uint8*)Converted.Get(), Converted.Length());
		break;
	}
	}
	return WriteBytes(Bytes.GetData(), Bytes.Num(), Filename, WriteFlags);
}

bool FFileHelper::SaveStringArrayToFile(const TArray<FString>& Lines, const TCHAR* Filename, EEncodingOptions EncodingOptions, IFileManager* FileManager, uint32 WriteFlags)
{
	FString Contents;
	for (const FString& Line : Lines)
	{
		Contents += Line;
		Contents += TEXT("\n");
	}
	return SaveStringToFile(Contents, Filename, EncodingOptions, FileManager, WriteFlags);
}
