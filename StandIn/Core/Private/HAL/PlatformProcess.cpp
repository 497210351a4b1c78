#include "HAL/PlatformProcess.h"

#include "Containers/StringConv.h"
#include "Containers/UnrealString.h"

#include <cmath>
#include <cstdlib>
#include <limits.h>
#include <mutex>
#include <pwd.h>
#include <sched.h>
#include <time.h>
#include <unistd.h>

namespace
{
	/** Strings computed once and kept for the whole process, so the returned pointers stay valid. */
	struct FProcessStrings
	{
		FString UserName;
		FString UserNameAlphaNumeric;
		FString TempDir;
		FString UserDir;
		FString ComputerName;
		FString BaseDir;
		FString ExecutableName;
	};

	FString ReadExecutablePath()
	{
		char Buffer[PATH_MAX];
		const ssize_t Length = readlink("/proc/self/exe", Buffer, sizeof(Buffer) - 1);
		if (Length <= 0)
		{
			return FString();
		}
		Buffer[Length] = 0;
		return FString(UTF8_TO_TCHAR(Buffer));
	}

	FString ReadUserName()
	{
		if (const char* FromEnvironment = std::getenv("USER"))
		{
			return FString(UTF8_TO_TCHAR(FromEnvironment));
		}
		if (const passwd* Entry = getpwuid(geteuid()))
		{
			return FString(UTF8_TO_TCHAR(Entry->pw_name));
		}
		return FString(TEXT("user"));
	}

	FProcessStrings* CreateProcessStrings()
	{
		FProcessStrings* Strings = new FProcessStrings();
		Strings->UserName = ReadUserName();
		for (TCHAR Character : Strings->UserName)
		{
			if (FChar::IsAlnum(Character))
			{
				Strings->UserNameAlphaNumeric.AppendChar(Character);
			}
		}
		const char* TempDir = std::getenv("TMPDIR");
		Strings->TempDir = FString(UTF8_TO_TCHAR(TempDir && *TempDir ? TempDir : "/tmp"));
		if (Strings->TempDir.Len() > 1 && Strings->TempDir.EndsWith(TEXT("/")))
		{
			Strings->TempDir.LeftChopInline(1);
		}
		const char* Home = std::getenv("HOME");
		Strings->UserDir = FString(UTF8_TO_TCHAR(Home ? Home : "/tmp")) + TEXT("/");
		char HostName[256] = {};
		gethostname(HostName, sizeof(HostName) - 1);
		Strings->ComputerName = FString(UTF8_TO_TCHAR(HostName));
		const FString ExecutablePath = ReadExecutablePath();
		int32 SlashIndex = INDEX_NONE;
		ExecutablePath.FindLastChar(TEXT('/'), SlashIndex);
		Strings->BaseDir = SlashIndex == INDEX_NONE ? FString(TEXT("./")) : ExecutablePath.Left(SlashIndex + 1);
		Strings->ExecutableName = SlashIndex == INDEX_NONE ? ExecutablePath : ExecutablePath.RightChop(SlashIndex + 1);
		return Strings;
	}

	const FProcessStrings& GetProcessStrings()
	{
		static const FProcessStrings* Strings = CreateProcessStrings();
		return *Strings;
	}
}

const TCHAR* FPlatformProcess::UserName(bool bOnlyAlphaNumeric)
{
	return bOnlyAlphaNumeric ? *GetProcessStrings().UserNameAlphaNumeric : *GetProcessStrings().UserName;
}

const TCHAR* FPlatformProcess::UserTempDir()
{
	return *GetProcessStrings().TempDir;
}

const TCHAR* FPlatformProcess::UserDir()
{
	return *GetProcessStrings().UserDir;
}

const TCHAR* FPlatformProcess::ComputerName()
{
	return *GetProcessStrings().ComputerName;
}

const TCHAR* FPlatformProcess::BaseDir()
{
	return *GetProcessStrings().BaseDir;
}

const TCHAR* FPlatformProcess::ExecutableName(bool bRemoveExtension)
{
	return *GetProcessStrings().ExecutableName;
}

uint32 FPlatformProcess::GetCurrentProcessId()
{
	return (uint32)getpid();
}

uint32 FPlatformProcess::GetCurrentCoreNumber()
{
	const int Core = sched_getcpu();
	return Core < 0 ? 0 : (uint32)Core;
}

void FPlatformProcess::Sleep(float Seconds)
{
	SleepNoStats(Seconds);
}

void FPlatformProcess::SleepNoStats(float Seconds)
{
	if (!(Seconds > 0.0f))
	{
		sched_yield();
		return;
	}
	timespec Duration;
	Duration.tv_sec = (time_t)Seconds;
	Duration.tv_nsec = (long)((Seconds - (float)Duration.tv_sec) * 1e9f);
	while (nanosleep(&Duration, &Duration) != 0)
	{
	}
}
