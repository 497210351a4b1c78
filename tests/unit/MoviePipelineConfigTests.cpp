#include "PersistenceTestSupport.h"

#include "LevelSequence.h"
#include "MovieScene.h"
#include "MoviePipelineAntiAliasingSetting.h"
#include "MoviePipelineCameraSetting.h"
#include "MoviePipelineConsoleVariableSetting.h"
#include "MoviePipelineDeferredPasses.h"
#include "MoviePipelineDeprecatedSetting.h"
#include "MoviePipelineGameOverrideSetting.h"
#include "MoviePipelineOutputSetting.h"
#include "MoviePipelinePrimaryConfig.h"
#include "MoviePipelineRenderPass.h"
#include "MoviePipelineShotConfig.h"
#include "UObject/GarbageCollection.h"
#include "UObject/StrongObjectPtr.h"
#include "UObject/UnrealType.h"
#include "UObject/UObjectGlobals.h"

#include <gtest/gtest.h>

// A setting the engine would only accept on shots, to see the primary configuration refuse it.
class UMoviePipelineTestShotOnlySetting : public UMoviePipelineSetting
{
	STANDIN_CLASS_BODY(UMoviePipelineTestShotOnlySetting, UMoviePipelineSetting, )

public:
	virtual bool IsValidOnShots() const override { return true; }
	virtual bool IsValidOnPrimary() const override { return false; }
};

STANDIN_IMPLEMENT_CLASS(UMoviePipelineTestShotOnlySetting, CLASS_None, "MovieRenderQueueTests")
{
}

namespace
{
	class MoviePipelineConfigTest : public testing::Test
	{
	protected:
		void TearDown() override
		{
			Config.Reset();
			CollectGarbage(RF_NoFlags);
		}

		TArray<UClass*> SettingClasses(const TArray<UMoviePipelineSetting*>& Settings) const
		{
			TArray<UClass*> Classes;
			for (const UMoviePipelineSetting* Setting : Settings)
			{
				Classes.Add(Setting->GetClass());
			}
			return Classes;
		}

		FString ExportProperty(UObject* Object, const TCHAR* PropertyName) const
		{
			FString Text;
			const FProperty* Property = Object->GetClass()->FindPropertyByName(FName(PropertyName));
			Property->ExportTextItem_InContainer(Text, Object, nullptr, Object, PPF_None);
			return Text;
		}

		TStrongObjectPtr<UMoviePipelinePrimaryConfig> Config{ NewObject<UMoviePipelinePrimaryConfig>() };
	};
}

TEST_F(MoviePipelineConfigTest, ANewPrimaryConfigHoldsOnlyTheOutputSettingWithTheEngineDefaults)
{
	ASSERT_EQ(Config->GetUserSettings().Num(), 1);
	const UMoviePipelineOutputSetting* Output = Config->FindSetting<UMoviePipelineOutputSetting>();
	ASSERT_NE(Output, nullptr);
	EXPECT_EQ(Output->OutputDirectory.Path, TEXT("{project_dir}/Saved/MovieRenders/"));
	EXPECT_EQ(Output->FileNameFormat, TEXT("{sequence_name}.{frame_number}"));
	EXPECT_EQ(Output->OutputResolution, FIntPoint(1920, 1080));
	EXPECT_EQ(Output->OutputFrameRate, FFrameRate(24, 1));
	EXPECT_FALSE(Output->bUseCustomFrameRate);
	EXPECT_TRUE(Output->bOverrideExistingOutput);
	EXPECT_EQ(Output->OutputFrameStep, 1);
	EXPECT_EQ(Output->VersionNumber, 1);
	EXPECT_TRUE(Output->bAutoVersion);
	EXPECT_EQ(Output->ZeroPadFrameNumbers, 4);
	EXPECT_FALSE(Output->IsValidOnShots());
	EXPECT_FALSE(Output->CanBeDisabled());
	EXPECT_EQ(ExportProperty(Config->GetUserSettings()[0], TEXT("OutputDirectory")), TEXT("(Path=\"{project_dir}/Saved/MovieRenders/\")"));
	EXPECT_EQ(ExportProperty(Config->GetUserSettings()[0], TEXT("OutputResolution")), TEXT("(X=1920,Y=1080)"));

	// Disabling is refused by the editor UI only; the setting itself accepts it.
	Config->GetUserSettings()[0]->SetIsEnabled(false);
	EXPECT_FALSE(Config->GetUserSettings()[0]->IsEnabled());
	EXPECT_EQ(Config->FindSetting<UMoviePipelineOutputSetting>(), nullptr);
	EXPECT_NE(Config->FindSetting<UMoviePipelineOutputSetting>(true), nullptr);
}

TEST_F(MoviePipelineConfigTest, FindOrAddSettingByClassFindsOrAddsAndUserSettingsEndWithTheOutputSetting)
{
	const int32 Serial = Config->GetSettingsSerialNumber();
	UMoviePipelineSetting* Camera = Config->FindOrAddSettingByClass(UMoviePipelineCameraSetting::StaticClass());
	UMoviePipelineSetting* AntiAliasing = Config->FindOrAddSettingByClass(UMoviePipelineAntiAliasingSetting::StaticClass());

	ASSERT_NE(Camera, nullptr);
	EXPECT_EQ(Camera->GetOuter(), Config.Get());
	EXPECT_EQ(Config->GetSettingsSerialNumber(), Serial + 2);
	EXPECT_EQ(Config->FindOrAddSettingByClass(UMoviePipelineCameraSetting::StaticClass()), Camera);
	EXPECT_EQ(Config->GetSettingsSerialNumber(), Serial + 2);
	EXPECT_EQ(SettingClasses(Config->GetUserSettings()), (TArray<UClass*>{
		UMoviePipelineCameraSetting::StaticClass(), UMoviePipelineAntiAliasingSetting::StaticClass(), UMoviePipelineOutputSetting::StaticClass() }));

	// A disabled setting is found only when disabled settings are searched; otherwise a second one is added.
	AntiAliasing->SetIsEnabled(false);
	EXPECT_EQ(Config->FindOrAddSettingByClass(UMoviePipelineAntiAliasingSetting::StaticClass(), true), AntiAliasing);
	UMoviePipelineSetting* SecondAntiAliasing = Config->FindOrAddSettingByClass(UMoviePipelineAntiAliasingSetting::StaticClass());
	EXPECT_NE(SecondAntiAliasing, AntiAliasing);
	EXPECT_EQ(Config->FindSettingsByClass(UMoviePipelineAntiAliasingSetting::StaticClass(), true).Num(), 2);

	EXPECT_EQ(Config->FindOrAddSettingByClass(nullptr), nullptr);
	EXPECT_EQ(Config->FindOrAddSettingByClass(UMoviePipelineRenderPass::StaticClass()), nullptr);
	EXPECT_EQ(Config->GetUserSettings().Num(), 4);
}

TEST_F(MoviePipelineConfigTest, SubclassesMatchUnlessTheMatchMustBeExact)
{
	UMoviePipelineSetting* Unlit = Config->FindOrAddSettingByClass(UMoviePipelineDeferredPass_Unlit::StaticClass());

	EXPECT_EQ(Config->FindSettingByClass(UMoviePipelineDeferredPassBase::StaticClass()), Unlit);
	EXPECT_EQ(Config->FindSettingByClass(UMoviePipelineDeferredPassBase::StaticClass(), false, true), nullptr);
	UMoviePipelineSetting* Base = Config->FindOrAddSettingByClass(UMoviePipelineDeferredPassBase::StaticClass(), false, true);
	ASSERT_NE(Base, nullptr);
	EXPECT_EQ(Base->GetClass(), UMoviePipelineDeferredPassBase::StaticClass());
	EXPECT_EQ(Config->FindSettingsByClass(UMoviePipelineDeferredPassBase::StaticClass()), (TArray<UMoviePipelineSetting*>{ Unlit, Base }));
}

TEST_F(MoviePipelineConfigTest, EachConfigTypeRefusesTheSettingsItCannotHoldWithAScriptError)
{
	FLogCapture Log;
	EXPECT_EQ(Config->FindOrAddSettingByClass(UMoviePipelineTestShotOnlySetting::StaticClass()), nullptr);
	EXPECT_TRUE(Log.Contains(TEXT("Setting MoviePipelineTestShotOnlySetting is not compatible with this Config Type and was not added."), ELogVerbosity::Error));
	EXPECT_EQ(Config->GetUserSettings().Num(), 1);

	TStrongObjectPtr<UMoviePipelineShotConfig> ShotConfig(NewObject<UMoviePipelineShotConfig>());
	EXPECT_EQ(ShotConfig->FindOrAddSettingByClass(UMoviePipelineGameOverrideSetting::StaticClass()), nullptr);
	EXPECT_TRUE(Log.Contains(TEXT("Setting MoviePipelineGameOverrideSetting is not compatible with this Config Type and was not added."), ELogVerbosity::Error));
	EXPECT_NE(ShotConfig->FindOrAddSettingByClass(UMoviePipelineTestShotOnlySetting::StaticClass()), nullptr);
	EXPECT_NE(ShotConfig->FindOrAddSettingByClass(UMoviePipelineConsoleVariableSetting::StaticClass()), nullptr);
	EXPECT_TRUE(ShotConfig->FindSetting<UMoviePipelineOutputSetting>() == nullptr);
}

TEST_F(MoviePipelineConfigTest, RemoveSettingTakesAUserSettingOutButNeverTheOutputSetting)
{
	UMoviePipelineSetting* Camera = Config->FindOrAddSettingByClass(UMoviePipelineCameraSetting::StaticClass());
	const int32 Serial = Config->GetSettingsSerialNumber();

	Config->RemoveSetting(Camera);
	EXPECT_EQ(Config->FindSettingByClass(UMoviePipelineCameraSetting::StaticClass(), true), nullptr);
	EXPECT_EQ(Config->GetSettingsSerialNumber(), Serial + 1);

	Config->RemoveSetting(Config->FindSetting<UMoviePipelineOutputSetting>());
	EXPECT_EQ(SettingClasses(Config->GetUserSettings()), (TArray<UClass*>{ UMoviePipelineOutputSetting::StaticClass() }));
}

TEST_F(MoviePipelineConfigTest, TransientSettingsFillInEveryOtherPrimarySettingAndStepAsideForUserSettings)
{
	Config->FindOrAddSettingByClass(UMoviePipelineCameraSetting::StaticClass());
	Config->InitializeTransientSettings();
	const TArray<UClass*> TransientClasses = SettingClasses(Config->GetTransientSettings());

	EXPECT_TRUE(TransientClasses.Contains(UMoviePipelineAntiAliasingSetting::StaticClass()));
	EXPECT_TRUE(TransientClasses.Contains(UMoviePipelineGameOverrideSetting::StaticClass()));
	EXPECT_FALSE(TransientClasses.Contains(UMoviePipelineCameraSetting::StaticClass()));
	EXPECT_FALSE(TransientClasses.Contains(UMoviePipelineOutputSetting::StaticClass()));
	EXPECT_FALSE(TransientClasses.Contains(UMoviePipelineTestShotOnlySetting::StaticClass()));
	EXPECT_FALSE(TransientClasses.Contains(UMoviePipelineRenderPass::StaticClass()));
	for (const UMoviePipelineSetting* Transient : Config->GetTransientSettings())
	{
		EXPECT_TRUE(Transient->HasAnyFlags(RF_Transient));
	}

	// Only settings that ignore the transient filters take part unless transient settings are asked for.
	const TArray<UClass*> Effective = SettingClasses(Config->GetAllSettings());
	EXPECT_EQ(Effective, (TArray<UClass*>{ UMoviePipelineCameraSetting::StaticClass(), UMoviePipelineOutputSetting::StaticClass(), UMoviePipelineGameOverrideSetting::StaticClass() }));
	EXPECT_EQ(Config->GetAllSettings(false, true).Num(), 2 + Config->GetTransientSettings().Num());

	UMoviePipelineSetting* AntiAliasing = Config->FindOrAddSettingByClass(UMoviePipelineAntiAliasingSetting::StaticClass());
	EXPECT_FALSE(SettingClasses(Config->GetTransientSettings()).Contains(UMoviePipelineAntiAliasingSetting::StaticClass()));
	Config->RemoveSetting(AntiAliasing);
	EXPECT_TRUE(SettingClasses(Config->GetTransientSettings()).Contains(UMoviePipelineAntiAliasingSetting::StaticClass()));
}

TEST_F(MoviePipelineConfigTest, CopyFromDuplicatesTheSettingsAndTheOutputSettingUnderTheirNames)
{
	TStrongObjectPtr<UMoviePipelinePrimaryConfig> Source(NewObject<UMoviePipelinePrimaryConfig>());
	Source->DisplayName = TEXT("Source Preset");
	UMoviePipelineCameraSetting* SourceCamera = Cast<UMoviePipelineCameraSetting>(Source->FindOrAddSettingByClass(UMoviePipelineCameraSetting::StaticClass()));
	SourceCamera->ShutterTiming = EMoviePipelineShutterTiming::FrameClose;
	Source->FindSetting<UMoviePipelineOutputSetting>()->FileNameFormat = TEXT("{shot_name}");
	Config->FindOrAddSettingByClass(UMoviePipelineAntiAliasingSetting::StaticClass());
	UMoviePipelineOutputSetting* OldOutput = Config->FindSetting<UMoviePipelineOutputSetting>();

	Config->CopyFrom(Source.Get());

	EXPECT_EQ(Config->DisplayName, TEXT("Source Preset"));
	EXPECT_EQ(SettingClasses(Config->GetUserSettings()), (TArray<UClass*>{ UMoviePipelineCameraSetting::StaticClass(), UMoviePipelineOutputSetting::StaticClass() }));
	UMoviePipelineCameraSetting* Camera = Config->FindSetting<UMoviePipelineCameraSetting>();
	ASSERT_NE(Camera, nullptr);
	EXPECT_NE(Camera, SourceCamera);
	EXPECT_EQ(Camera->GetFName(), SourceCamera->GetFName());
	EXPECT_EQ(Camera->ShutterTiming, EMoviePipelineShutterTiming::FrameClose);
	UMoviePipelineOutputSetting* Output = Config->FindSetting<UMoviePipelineOutputSetting>();
	EXPECT_EQ(Output->GetFName(), FName(TEXT("DefaultOutputSetting")));
	EXPECT_EQ(Output->GetOuter(), Config.Get());
	EXPECT_EQ(Output->FileNameFormat, TEXT("{shot_name}"));
	EXPECT_NE(OldOutput->GetOuter(), Config.Get());

	const int32 Serial = Config->GetSettingsSerialNumber();
	Config->CopyFrom(Config.Get());
	Config->CopyFrom(nullptr);
	EXPECT_EQ(Config->GetSettingsSerialNumber(), Serial);
}

TEST_F(MoviePipelineConfigTest, EffectiveFrameRateIsTheCustomRateElseTheSequenceDisplayRate)
{
	TStrongObjectPtr<ULevelSequence> Sequence(NewObject<ULevelSequence>());
	Sequence->Initialize();
	Sequence->GetMovieScene()->SetDisplayRate(FFrameRate(25, 1));

	EXPECT_EQ(Config->GetEffectiveFrameRate(Sequence.Get()), FFrameRate(25, 1));
	EXPECT_EQ(Config->GetEffectiveFrameRate(nullptr), FFrameRate());
	UMoviePipelineOutputSetting* Output = Config->FindSetting<UMoviePipelineOutputSetting>();
	Output->bUseCustomFrameRate = true;
	Output->OutputFrameRate = FFrameRate(30000, 1001);
	EXPECT_EQ(Config->GetEffectiveFrameRate(Sequence.Get()), FFrameRate(30000, 1001));
}

TEST_F(MoviePipelineConfigTest, ConsoleVariableOverridesUpdateAndRemoveTheLastEntryWithTheName)
{
	UMoviePipelineConsoleVariableSetting* CVars = Cast<UMoviePipelineConsoleVariableSetting>(
		Config->FindOrAddSettingByClass(UMoviePipelineConsoleVariableSetting::StaticClass()));
	ASSERT_NE(CVars, nullptr);
	EXPECT_EQ(CVars->GetPriority(), 1);

	EXPECT_TRUE(CVars->AddConsoleVariable(TEXT("r.X"), 1.0f));
	EXPECT_TRUE(CVars->AddConsoleVariable(TEXT("r.X"), 2.0f));
	EXPECT_TRUE(CVars->AddOrUpdateConsoleVariable(TEXT("r.X"), 5.0f));
	EXPECT_TRUE(CVars->AddOrUpdateConsoleVariable(TEXT("r.Y"), 0.5f));
	EXPECT_TRUE(CVars->UpdateConsoleVariableEnableState(TEXT("r.X"), false));
	EXPECT_FALSE(CVars->UpdateConsoleVariableEnableState(TEXT("r.Missing"), false));
	EXPECT_EQ(CVars->GetConsoleVariables(), (TArray<FMoviePipelineConsoleVariableEntry>{
		{ TEXT("r.X"), 1.0f }, { TEXT("r.X"), 5.0f, false }, { TEXT("r.Y"), 0.5f } }));
	EXPECT_EQ(ExportProperty(CVars, TEXT("CVars")),
		TEXT("((Name=\"r.X\",Value=1.000000),(Name=\"r.X\",Value=5.000000,bIsEnabled=False),(Name=\"r.Y\",Value=0.500000))"));

	EXPECT_TRUE(CVars->RemoveConsoleVariable(TEXT("r.X")));
	EXPECT_EQ(CVars->GetConsoleVariables(), (TArray<FMoviePipelineConsoleVariableEntry>{ { TEXT("r.X"), 1.0f }, { TEXT("r.Y"), 0.5f } }));
	CVars->AddConsoleVariable(TEXT("r.Y"), 0.25f);
	EXPECT_TRUE(CVars->RemoveConsoleVariable(TEXT("r.Y"), true));
	EXPECT_EQ(CVars->GetConsoleVariables(), (TArray<FMoviePipelineConsoleVariableEntry>{ { TEXT("r.X"), 1.0f } }));
	EXPECT_FALSE(CVars->RemoveConsoleVariable(TEXT("r.Y"), true));
	EXPECT_FALSE(CVars->RemoveConsoleVariable(TEXT("r.Y")));
}

TEST_F(MoviePipelineConfigTest, SettingDefaultsAndFlagsFollowTheEngine)
{
	const UMoviePipelineGameOverrideSetting* GameOverrides = UMoviePipelineGameOverrideSetting::StaticClass()->GetDefaultObject<UMoviePipelineGameOverrideSetting>();
	EXPECT_EQ(GameOverrides->TextureStreaming, EMoviePipelineTextureStreamingMethod::Disabled);
	EXPECT_EQ(GameOverrides->ShadowDistanceScale, 10);
	EXPECT_EQ(GameOverrides->ViewDistanceScale, 50);
	EXPECT_TRUE(GameOverrides->IgnoreTransientFilters());
	EXPECT_EQ(GameOverrides->SoftGameModeOverride.ToString(), TEXT("/Script/MovieRenderPipelineCore.MoviePipelineGameMode"));
	EXPECT_EQ(GameOverrides->GameModeOverride.Get(), nullptr);

	const UMoviePipelineAntiAliasingSetting* AntiAliasing = UMoviePipelineAntiAliasingSetting::StaticClass()->GetDefaultObject<UMoviePipelineAntiAliasingSetting>();
	EXPECT_EQ(AntiAliasing->AntiAliasingMethod, EAntiAliasingMethod::AAM_None);
	EXPECT_EQ(AntiAliasing->RenderWarmUpCount, 32);
	EXPECT_EQ(ExportProperty(const_cast<UMoviePipelineAntiAliasingSetting*>(AntiAliasing), TEXT("AntiAliasingMethod")), TEXT("AAM_None"));
	EXPECT_EQ(UMoviePipelineCameraSetting::StaticClass()->GetDefaultObject<UMoviePipelineCameraSetting>()->ShutterTiming, EMoviePipelineShutterTiming::FrameCenter);

	const FProperty* Deprecated = UMoviePipelineConsoleVariableSetting::StaticClass()->FindPropertyByName(TEXT("ConsoleVariables_DEPRECATED"));
	ASSERT_NE(Deprecated, nullptr);
	EXPECT_TRUE(Deprecated->HasAnyPropertyFlags(CPF_Deprecated));
	EXPECT_TRUE(UMoviePipelineRenderPass::StaticClass()->HasAnyClassFlags(CLASS_Abstract));
	EXPECT_FALSE(UMoviePipelineDeferredPassBase::StaticClass()->HasAnyClassFlags(CLASS_Abstract));
}

TEST_F(MoviePipelineConfigTest, ADeprecatedSettingClassStillInstantiatesAndOldConsoleVariablesMoveIntoTheList)
{
	UClass* DeprecatedClass = UDEPRECATED_MoviePipelineStandInLegacySetting::StaticClass();
	EXPECT_TRUE(DeprecatedClass->HasAnyClassFlags(CLASS_Deprecated));
	EXPECT_FALSE(DeprecatedClass->HasAnyClassFlags(CLASS_Abstract));
	EXPECT_EQ(DeprecatedClass->GetName(), TEXT("DEPRECATED_MoviePipelineStandInLegacySetting"));
	EXPECT_NE(Config->FindOrAddSettingByClass(DeprecatedClass), nullptr);
	TStrongObjectPtr<UMoviePipelinePrimaryConfig> Other(NewObject<UMoviePipelinePrimaryConfig>());
	Other->InitializeTransientSettings();
	EXPECT_FALSE(SettingClasses(Other->GetTransientSettings()).Contains(DeprecatedClass));

	UMoviePipelineConsoleVariableSetting* CVars = NewObject<UMoviePipelineConsoleVariableSetting>(Config.Get());
	CVars->AddConsoleVariable(TEXT("r.Kept"), 1.0f);
	CVars->ConsoleVariables_DEPRECATED.Add(TEXT("r.Kept"), 2.0f);
	CVars->ConsoleVariables_DEPRECATED.Add(TEXT("r.Old"), 3.0f);
	CVars->PostLoad();
	EXPECT_TRUE(CVars->ConsoleVariables_DEPRECATED.IsEmpty());
	EXPECT_EQ(CVars->GetConsoleVariables(), (TArray<FMoviePipelineConsoleVariableEntry>{ { TEXT("r.Kept"), 2.0f }, { TEXT("r.Old"), 3.0f } }));
}
