// Result lines, failure tables, asset routines and version gates shared by every script-facing call.
#include <gtest/gtest.h>

#include "CoreMinimal.h"
#include "HAL/FileManager.h"
#include "LuaSessionData.h"
#include "PackageEditPolicy.h"
#include "Misc/PackageName.h"
#include "Misc/Paths.h"
#include "UObject/Package.h"
#include "UObject/UnrealType.h"
#include "VLMRAssetRoutines.h"
#include "VLMRScriptArguments.h"
#include "VLMRScriptResults.h"
#include "VLMRVersionGates.h"

class UVLMRSupportTestAsset : public UObject
{
	STANDIN_CLASS_BODY(UVLMRSupportTestAsset, UObject, )
public:
	int32 Value = 0;
};

STANDIN_IMPLEMENT_CLASS(UVLMRSupportTestAsset, CLASS_None, "VLMRModuleTests")
{
	STANDIN_PROPERTY(Value, CPF_Edit);
}

namespace
{
	TArray<FString> KeysOf(const sol::table& Table)
	{
		TArray<FString> Keys;
		for (const auto& Entry : Table)
		{
			Keys.Add(VLMR::ToFString(Entry.first.as<std::string>()));
		}
		Keys.Sort();
		return Keys;
	}

	class ScriptSupportTest : public ::testing::Test
	{
	protected:
		void SetUp() override
		{
			ProjectDir = FPaths::Combine(FPaths::ConvertRelativePathToFull(TEXT("ScriptSupportTestProject")), FGuid::NewGuid().ToString()) + TEXT("/");
			IFileManager::Get().MakeDirectory(*(ProjectDir + TEXT("Content")), true);
			FPaths::SetProjectDir(ProjectDir);
		}

		void TearDown() override
		{
			IFileManager::Get().DeleteDirectory(*ProjectDir, false, true);
		}

		UVLMRSupportTestAsset* MakeAsset(const TCHAR* PackageName, const TCHAR* AssetName)
		{
			UPackage* Package = CreatePackage(PackageName);
			return NewObject<UVLMRSupportTestAsset>(Package, AssetName, RF_Public | RF_Standalone);
		}

		FString ProjectDir;
		FLuaSessionData Session;
		sol::state Lua;
	};
}

TEST(ScriptPathTest, NormalisesAndFormsObjectPaths)
{
	EXPECT_STREQ(*VLMR::NormalizeAssetPath(TEXT("Cinematics/Shot")), TEXT("/Game/Cinematics/Shot"));
	EXPECT_STREQ(*VLMR::NormalizeAssetPath(TEXT("/Game/Cinematics/Shot")), TEXT("/Game/Cinematics/Shot"));
	EXPECT_STREQ(*VLMR::NormalizeAssetPath(TEXT("")), TEXT(""));
	EXPECT_STREQ(*VLMR::ToObjectPath(TEXT("Cinematics/Shot")), TEXT("/Game/Cinematics/Shot.Shot"));
	EXPECT_STREQ(*VLMR::ToObjectPath(TEXT("/Game/A.B")), TEXT("/Game/A.B"));
	EXPECT_STREQ(*VLMR::ToObjectPath(TEXT("Shot")), TEXT("/Game/Shot.Shot"));
}

TEST_F(ScriptSupportTest, FailLogsOneLineAndReturnsOnlyOkAndError)
{
	sol::table Result = VLMR::Fail(Lua, Session, TEXT("graph:connect"), TEXT("graph no longer valid"));
	ASSERT_EQ(Session.GetLogLines().Num(), 1);
	EXPECT_STREQ(*Session.GetLogLines()[0], TEXT("[FAIL] graph:connect -> graph no longer valid"));
	EXPECT_EQ(KeysOf(Result), (TArray<FString>{ TEXT("error"), TEXT("ok") }));
	EXPECT_FALSE(Result.get<bool>("ok"));
	EXPECT_EQ(Result.get<std::string>("error"), "graph no longer valid");
}

TEST_F(ScriptSupportTest, UnsupportedNamesFeatureMinimumAndThisBuild)
{
	sol::table Result = VLMR::Unsupported(Lua, Session, TEXT("graph:insert_after"), TEXT("UMovieGraphConfig::InsertAfter"), TEXT("5.8"));
	const FString Expected = FString::Printf(TEXT("unsupported: UMovieGraphConfig::InsertAfter needs UE 5.8+ (this editor is %d.%d)"),
		ENGINE_MAJOR_VERSION, ENGINE_MINOR_VERSION);
	ASSERT_EQ(Session.GetLogLines().Num(), 1);
	EXPECT_STREQ(*Session.GetLogLines()[0], *(TEXT("[FAIL] graph:insert_after -> ") + Expected));
	EXPECT_EQ(KeysOf(Result), (TArray<FString>{ TEXT("error"), TEXT("min_version"), TEXT("ok"), TEXT("supported") }));
	EXPECT_FALSE(Result.get<bool>("ok"));
	EXPECT_FALSE(Result.get<bool>("supported"));
	EXPECT_EQ(Result.get<std::string>("min_version"), "5.8");
	EXPECT_EQ(VLMR::ToFString(Result.get<std::string>("error")), Expected);
}

TEST_F(ScriptSupportTest, SaveOfAGoneAssetFailsWithoutTouchingDisk)
{
	EXPECT_FALSE(VLMR::SaveAsset(nullptr, Session, TEXT("mrq_save_queue")));
	ASSERT_EQ(Session.GetLogLines().Num(), 1);
	EXPECT_STREQ(*Session.GetLogLines()[0], TEXT("[FAIL] mrq_save_queue -> asset no longer valid"));
}

TEST_F(ScriptSupportTest, SaveRefusedByTheHostAddsNoLineOfItsOwn)
{
	UE::VelmireAI::Private::SetPackagePrefixReadOnly(TEXT("/Game/Locked/"), true);
	UVLMRSupportTestAsset* Asset = MakeAsset(TEXT("/Game/Locked/Preset"), TEXT("Preset"));
	EXPECT_FALSE(VLMR::SaveAsset(Asset, Session, TEXT("config:save")));
	UE::VelmireAI::Private::SetPackagePrefixReadOnly(TEXT("/Game/Locked/"), false);

	ASSERT_EQ(Session.GetLogLines().Num(), 1);
	EXPECT_TRUE(Session.GetLogLines()[0].StartsWith(TEXT("[FAIL] config:save -> "), ESearchCase::CaseSensitive));
	EXPECT_FALSE(Session.GetLogLines()[0].Contains(TEXT("save failed"), ESearchCase::CaseSensitive));
	EXPECT_FALSE(FPaths::FileExists(FPackageName::LongPackageNameToFilename(TEXT("/Game/Locked/Preset"), FPackageName::GetAssetPackageExtension())));
}

TEST_F(ScriptSupportTest, SaveWritesThePackageAndLogsOneOkLine)
{
	UVLMRSupportTestAsset* Asset = MakeAsset(TEXT("/Game/Presets/Saved"), TEXT("Saved"));
	Asset->Value = 42;
	EXPECT_TRUE(VLMR::SaveAsset(Asset, Session, TEXT("config:save")));
	ASSERT_EQ(Session.GetLogLines().Num(), 1);
	EXPECT_STREQ(*Session.GetLogLines()[0], TEXT("[OK] config:save -> saved '/Game/Presets/Saved'"));
	EXPECT_TRUE(FPaths::FileExists(FPackageName::LongPackageNameToFilename(TEXT("/Game/Presets/Saved"), FPackageName::GetAssetPackageExtension())));
	EXPECT_FALSE(Asset->GetPackage()->IsDirty());
}

TEST_F(ScriptSupportTest, LoadTypedAssetTriesThePathThenTheObjectPath)
{
	UVLMRSupportTestAsset* Asset = MakeAsset(TEXT("/Game/Seq/Shot010"), TEXT("Shot010"));
	EXPECT_EQ(VLMR::LoadTypedAsset<UVLMRSupportTestAsset>(TEXT("Seq/Shot010")), Asset);
	EXPECT_EQ(VLMR::LoadTypedAsset<UVLMRSupportTestAsset>(TEXT("/Game/Seq/Shot010.Shot010")), Asset);
	EXPECT_EQ(VLMR::LoadTypedAsset<UVLMRSupportTestAsset>(TEXT("")), nullptr);
	EXPECT_EQ(VLMR::LoadTypedAsset<UVLMRSupportTestAsset>(TEXT("Seq/NoSuchShot")), nullptr);
	EXPECT_EQ(VLMR::LoadTypedAsset(UPackage::StaticClass(), TEXT("Seq/Shot010.Shot010")), nullptr);
}

TEST_F(ScriptSupportTest, LoadTypedAssetReadsASavedPackageBack)
{
	UVLMRSupportTestAsset* Asset = MakeAsset(TEXT("/Game/Seq/Shot020"), TEXT("Shot020"));
	Asset->Value = 7;
	ASSERT_TRUE(VLMR::SaveAsset(Asset, Session, TEXT("save")));
	Asset->ClearFlags(RF_Standalone);
	Asset->MarkAsGarbage();
	CollectGarbage(RF_NoFlags);

	UVLMRSupportTestAsset* Loaded = VLMR::LoadTypedAsset<UVLMRSupportTestAsset>(TEXT("Seq/Shot020"));
	ASSERT_NE(Loaded, nullptr);
	EXPECT_EQ(Loaded->Value, 7);
}

TEST(VersionGateTest, EachGateIsOpenExactlyFromItsMinimumVersion)
{
	int32 Count = 0;
	for (const VLMR::FVersionGate& Gate : VLMR::GetVersionGates())
	{
		FString Major, Minor;
		ASSERT_TRUE(FString(Gate.MinVersion).Split(TEXT("."), &Major, &Minor));
		const bool bExpected = ENGINE_MAJOR_VERSION > FCString::Atoi(*Major)
			|| (ENGINE_MAJOR_VERSION == FCString::Atoi(*Major) && ENGINE_MINOR_VERSION >= FCString::Atoi(*Minor));
		EXPECT_EQ(Gate.bAvailable, bExpected) << TCHAR_TO_UTF8(Gate.FeatureName);
		EXPECT_EQ(&VLMR::GetVersionGate(Gate.Feature), &Gate);
		++Count;
	}
	EXPECT_EQ(Count, 7);

	const VLMR::FVersionGate& InsertAfter = VLMR::GetVersionGate(VLMR::EGatedFeature::InsertAfter);
	EXPECT_STREQ(InsertAfter.FeatureName, TEXT("UMovieGraphConfig::InsertAfter"));
	EXPECT_STREQ(InsertAfter.MinVersion, TEXT("5.8"));
#if !UE_VERSION_OLDER_THAN(5, 7, 0) && UE_VERSION_OLDER_THAN(5, 8, 0)
	EXPECT_FALSE(InsertAfter.bAvailable);
	EXPECT_TRUE(VLMR::GetVersionGate(VLMR::EGatedFeature::ResolutionQueries).bAvailable);
	EXPECT_STREQ(*VLMR::GetEngineVersionString(), TEXT("5.7.4"));
#endif
}

TEST(VersionGateTest, RefusalUsesTheGateFeatureAndMinimum)
{
	FLuaSessionData Session;
	sol::state Lua;
	sol::table Result = VLMR::RefuseGatedFeature(Lua, Session, TEXT("graph:insert_before"), VLMR::EGatedFeature::InsertBefore);
	EXPECT_EQ(Result.get<std::string>("min_version"), "5.8");
	ASSERT_EQ(Session.GetLogLines().Num(), 1);
	EXPECT_TRUE(Session.GetLogLines()[0].StartsWith(TEXT("[FAIL] graph:insert_before -> unsupported: UMovieGraphConfig::InsertBefore needs UE 5.8+ (this editor is "), ESearchCase::CaseSensitive));
}
