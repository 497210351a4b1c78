// FFileHelper: whole-file reads and writes.
#pragma once

#include "CoreTypes.h"
#include "Containers/Array.h"
#include "Containers/UnrealString.h"
#include "Containers/StringView.h"

class IFileManager;

enum EFileWrite
{
	FILEWRITE_None = 0x00,
	FILEWRITE_NoFail = 0x01,
	FILEWRITE_NoReplaceExisting = 0x02,
	FILEWRITE_EvenIfReadOnly = 0x04,
	FILEWRITE_Append = 0x08,
	FILEWRITE_AllowRead = 0x10,
	FILEWRITE_Silent = 0x20
};

enum EFileRead
{
	FILEREAD_None = 0x00,
	FILEREAD_NoFail = 0x01,
	FILEREAD_Silent = 0x02,
	FILEREAD_AllowWrite = 0x04
};

struct FFileHelper
{
	enum class EHashOptions
	{
		None = 0,
		EnableVerify = 1 << 0,
		ErrorMissingHash = 1 << 1
	};

	enum class EEncodingOptions
	{
		AutoDetect,
		ForceAnsi,
		ForceUnicode,
		ForceUTF8,
		ForceUTF8WithoutBOM
	};

	/** Reads a whole file into bytes; false if it cannot be read. */
	CORE_API static bool LoadFileToArray(TArray<uint8>& Result, const TCHAR* Filename, uint32 Flags = 0);
	/** Reads a text file: UTF-8 (with or without BOM) or UTF-16 with a BOM. */
	CORE_API static bool LoadFileToString(FString& Result, const TCHAR* Filename, EHashOptions VerifyFlags = EHashOptions::None, uint32 ReadFlags = 0);
	CORE_API static bool LoadFileToStringArray(TArray<FString>& Result, const TCHAR* Filename);
	/** Decodes bytes read from a text file. */
	CORE_API static void BufferToString(FString& Result, const uint8* Buffer, int32 Size);

	/** Writes the bytes, creating the directories on the way. */
	CORE_API static bool SaveArrayToFile(TArrayView<const uint8> Array, const TCHAR* Filename, IFileManager* FileManager = nullptr, uint32 WriteFlags = 0);
	/**
	 * Writes a text file, creating the directories on the way. Stand-in choice: AutoDetect and ForceUTF8WithoutBOM
	 * write UTF-8 without BOM, ForceUTF8 adds the BOM, ForceUnicode writes UTF-16LE with BOM, ForceAnsi writes '?' for non-ASCII.
	 */
	CORE_API static bool SaveStringToFile(FStringView String, const TCHAR* Filename, EEncodingOptions EncodingOptions = EEncodingOptions::AutoDetect, IFileManager* FileManager = nullptr, uint32 WriteFlags = 0);
	CORE_API static bool SaveStringArrayToFile(const TArray<FString>& Lines, const TCHAR* Filename, EEncodingOptions EncodingOptions = EEncodingOptions::AutoDetect, IFileManager* FileManager = nullptr, uint32 WriteFlags = 0);
};
