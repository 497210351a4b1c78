#include "Misc/OutputDeviceFile.h"

#include "Containers/StringConv.h"
#include "HAL/FileManager.h"
#include "Misc/Paths.h"

FOutputDeviceFile::FOutputDeviceFile(const TCHAR* InFilename)
	: Filename(InFilename ? InFilename : TEXT(""))
{
	IFileManager::Get().MakeDirectory(*FPaths::GetPath(Filename), true);
	File = std::fopen(TCHAR_TO_UTF8(*Filename), "wb");
}

FOutputDeviceFile::~FOutputDeviceFile()
{
	TearDown();
}

void FOutputDeviceFile::Serialize(const TCHAR* Data, ELogVerbosity::Type Verbosity, const FName& Category)
{
	if (!File)
	{
		return;
	}
	const FTCHARToUTF8 Line(*FOutputDeviceHelper::FormatLogLine(Verbosity, Category, Data ? Data : TEXT(""), ELogTimes::UTC));
	std::fwrite(Line.Get(), 1, size_t(Line.Length()), File);
	std::fputc('\n', File);
}

void FOutputDeviceFile::Flush()
{
	if (File)
	{
		std::fflush(File);
	}
}

void FOutputDeviceFile::TearDown()
{
	if (File)
	{
		std::fclose(File);
		File = nullptr;
	}
}
