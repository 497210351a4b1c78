#include "CoreMinimal.h"
#include "Engine/DeveloperSettings.h"
#include "Engine/EngineTypes.h"
#include "GameFramework/GameModeBase.h"
#include "Sound/SoundSubmix.h"
#include "UObject/UnrealType.h"

#include <gtest/gtest.h>

class UEngineTypesTestSettings : public UDeveloperSettings
{
	STANDIN_CLASS_BODY(UEngineTypesTestSettings, UDeveloperSettings, )
};

STANDIN_IMPLEMENT_CLASS(UEngineTypesTestSettings, CLASS_None, "VlmrUnitTests")
{
}

TEST(FEngineTypesTest, PathStructuresExportAndImportAsTheEngineWritesThem)
{
	UScriptStruct* DirectoryStruct = FDirectoryPath::StaticStruct();
	EXPECT_EQ(DirectoryStruct->GetPathName(), TEXT("/Script/Engine.DirectoryPath"));
	FDirectoryPath Directory;
	Directory.Path = TEXT("C:/Out");
	FString DirectoryText;
	DirectoryStruct->ExportText(DirectoryText, &Directory, nullptr, nullptr, PPF_None, nullptr);
	EXPECT_EQ(DirectoryText, TEXT("(Path=\"C:/Out\")"));

	FDirectoryPath Imported;
	const TCHAR* Rest = DirectoryStruct->ImportText(TEXT("(Path=\"D:/Renders/Shot \\\"A\\\"\")"), &Imported, nullptr, PPF_None, nullptr, DirectoryStruct->GetName());
	ASSERT_NE(Rest, nullptr);
	EXPECT_EQ(Imported.Path, TEXT("D:/Renders/Shot \"A\""));

	UScriptStruct* FileStruct = FFilePath::StaticStruct();
	EXPECT_EQ(FileStruct->GetPathName(), TEXT("/Script/Engine.FilePath"));
	FFilePath File;
	File.FilePath = TEXT("C:/In/Take.wav");
	FString FileText;
	FileStruct->ExportText(FileText, &File, nullptr, nullptr, PPF_None, nullptr);
	EXPECT_EQ(FileText, TEXT("(FilePath=\"C:/In/Take.wav\")"));
}

TEST(FEngineTypesTest, GameplayClassesLiveInTheEnginePackageWithTheirHierarchy)
{
	EXPECT_EQ(AGameModeBase::StaticClass()->GetPathName(), TEXT("/Script/Engine.GameModeBase"));
	EXPECT_TRUE(AGameModeBase::StaticClass()->IsChildOf(AActor::StaticClass()));
	EXPECT_EQ(USoundSubmix::StaticClass()->GetPathName(), TEXT("/Script/Engine.SoundSubmix"));
	EXPECT_TRUE(USoundSubmix::StaticClass()->IsChildOf(USoundSubmixBase::StaticClass()));
	EXPECT_TRUE(UDeveloperSettings::StaticClass()->HasAnyClassFlags(CLASS_Abstract));
}

TEST(FEngineTypesTest, DeveloperSettingsDefaultToTheGameCategoryAndTheirClassSection)
{
	const UEngineTypesTestSettings* Settings = UEngineTypesTestSettings::StaticClass()->GetDefaultObject<UEngineTypesTestSettings>();
	ASSERT_NE(Settings, nullptr);
	EXPECT_EQ(Settings->GetCategoryName(), FName(TEXT("Game")));
	EXPECT_EQ(Settings->GetSectionName(), FName(TEXT("EngineTypesTestSettings")));
}
