// FOutputDeviceFile: writes every log line it receives to a file, the way the engine writes its log file.
#pragma once

#include "CoreTypes.h"
#include "Containers/UnrealString.h"
#include "Misc/OutputDevice.h"

#include <cstdio>

/**
 * Each line carries the UTC time prefix: "[YYYY.MM.DD-HH.MM.SS:mmm][frame]Category: Verbosity: Message".
 * Stand-in choice: the file (and its folder) is created when the device is constructed, replacing an earlier file of that name without a backup copy.
 */
class FOutputDeviceFile : public FOutputDevice
{
public:
	CORE_API explicit FOutputDeviceFile(const TCHAR* InFilename);
	CORE_API virtual ~FOutputDeviceFile() override;

	FOutputDeviceFile(const FOutputDeviceFile&) = delete;
	FOutputDeviceFile& operator=(const FOutputDeviceFile&) = delete;

	CORE_API virtual void Serialize(const TCHAR* Data, ELogVerbosity::Type Verbosity, const FName& Category) override;
	CORE_API virtual void Flush() override;
	CORE_API virtual void TearDown() override;

	const TCHAR* GetFilename() const { return *Filename; }
	bool IsOpened() const { return File != nullptr; }

private:
	FString Filename;
	std::FILE* File = nullptr;
};
