#include "CoreMinimal.h"
#include "Misc/DateTime.h"
#include "Misc/FileHelper.h"
#include "Misc/OutputDeviceFile.h"
#include "Misc/OutputDeviceRedirector.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <regex>

namespace
{
	FString ReadLogFile(const FString& Filename)
	{
		FString Content;
		FFileHelper::LoadFileToString(Content, *Filename);
		return Content;
	}
}

TEST(CoreOutputDeviceFile, ReplacesTheFileAndPrefixesEveryLineWithUtcTimeAndFrame)
{
	const std::filesystem::path Root = std::filesystem::temp_directory_path() / "vlmr-output-device-file";
	std::filesystem::remove_all(Root);
	const FString Filename = FString(UTF8_TO_TCHAR(Root.string().c_str())) + TEXT("/Saved/Logs/Project.log");
	const uint64 FrameCounterBefore = GFrameCounter;
	for (const TCHAR* Message : {TEXT("first run"), TEXT("second run")})
	{
		FOutputDeviceFile File(*Filename);
		ASSERT_TRUE(File.IsOpened());
		GFrameCounter = 1007;
		File.Serialize(Message, ELogVerbosity::Warning, FName(TEXT("LogTemp")));
		GFrameCounter = 42;
		File.Serialize(TEXT("plain"), ELogVerbosity::Log, NAME_None);
	}
	GFrameCounter = FrameCounterBefore;

	const std::string Content(TCHAR_TO_UTF8(*ReadLogFile(Filename)));
	const std::string Date(TCHAR_TO_UTF8(*FDateTime::UtcNow().ToString(TEXT("%Y.%m.%d"))));
	const std::regex Expected("\\[" + Date + "-[0-9]{2}\\.[0-9]{2}\\.[0-9]{2}:[0-9]{3}\\]\\[  7\\]LogTemp: Warning: second run\n"
		"\\[" + Date + "-[0-9]{2}\\.[0-9]{2}\\.[0-9]{2}:[0-9]{3}\\]\\[ 42\\]plain\n");
	EXPECT_TRUE(std::regex_match(Content, Expected)) << Content;
	std::filesystem::remove_all(Root);
}

TEST(CoreLogging, ConsoleShowsTheLinesUpToItsVerbosity)
{
	const ELogVerbosity::Type Before = GLog->GetConsoleVerbosity();
	GLog->SetConsoleVerbosity(ELogVerbosity::Error);
	EXPECT_TRUE(GLog->ShouldPrintToConsole(ELogVerbosity::Fatal));
	EXPECT_TRUE(GLog->ShouldPrintToConsole(ELogVerbosity::Error));
	EXPECT_FALSE(GLog->ShouldPrintToConsole(ELogVerbosity::Warning));
	GLog->SetConsoleVerbosity(ELogVerbosity::All);
	EXPECT_TRUE(GLog->ShouldPrintToConsole(ELogVerbosity::VeryVerbose));
	EXPECT_FALSE(GLog->ShouldPrintToConsole(ELogVerbosity::NoLogging));
	GLog->SetConsoleVerbosity(Before);
}
