// A plugin's subsystem deactivated and activated again through the subsystem collections.
#include "CoreMinimal.h"
#include "Editor.h"
#include "Editor/StandInEditorStartup.h"
#include "EditorSubsystem.h"
#include "Engine/Engine.h"
#include "Subsystems/EngineSubsystem.h"
#include "UObject/GarbageCollection.h"
#include "UObject/UnrealType.h"
#include "UObject/WeakObjectPtrTemplates.h"

#include <gtest/gtest.h>

namespace ExternalSubsystemTests
{
	// "Initialize" and "Deinitialize" of the plugin subsystem, in order.
	TArray<FString>& Events()
	{
		static TArray<FString> Recorded;
		return Recorded;
	}
}

class UExternalTestPluginSubsystem : public UEditorSubsystem
{
	STANDIN_CLASS_BODY(UExternalTestPluginSubsystem, UEditorSubsystem, )

public:
	void Initialize(FSubsystemCollectionBase& Collection) override { ExternalSubsystemTests::Events().Add(TEXT("Initialize")); }
	void Deinitialize() override { ExternalSubsystemTests::Events().Add(TEXT("Deinitialize")); }
};

STANDIN_IMPLEMENT_CLASS(UExternalTestPluginSubsystem, CLASS_None, "VlmrUnitTests")
{
}

class UExternalTestEngineSubsystem : public UEngineSubsystem
{
	STANDIN_CLASS_BODY(UExternalTestEngineSubsystem, UEngineSubsystem, )
};

STANDIN_IMPLEMENT_CLASS(UExternalTestEngineSubsystem, CLASS_None, "VlmrUnitTests")
{
}

class FExternalSubsystemTest : public ::testing::Test
{
protected:
	void SetUp() override
	{
		UE::UnrealEd::StandIn::StartEditor(TEXT("/Game/ExternalSubsystemTests/Map"));
		ExternalSubsystemTests::Events().Empty();
	}

	void TearDown() override
	{
		FSubsystemCollectionBase::ActivateExternalSubsystem(UExternalTestPluginSubsystem::StaticClass());
		FSubsystemCollectionBase::ActivateExternalSubsystem(UExternalTestEngineSubsystem::StaticClass());
		UE::UnrealEd::StandIn::StopEditor();
	}

	static UExternalTestPluginSubsystem* GetPluginSubsystem()
	{
		return GEditor->GetEditorSubsystem<UExternalTestPluginSubsystem>();
	}
};

TEST_F(FExternalSubsystemTest, DeactivationDeinitializesAndRemovesTheInstanceWhichIsThenCollected)
{
	const TWeakObjectPtr<UExternalTestPluginSubsystem> Removed = GetPluginSubsystem();
	ASSERT_TRUE(Removed.IsValid());

	FSubsystemCollectionBase::DeactivateExternalSubsystem(UExternalTestPluginSubsystem::StaticClass());
	EXPECT_EQ(GetPluginSubsystem(), nullptr);
	EXPECT_EQ(ExternalSubsystemTests::Events(), TArray<FString>({ TEXT("Deinitialize") }));
	EXPECT_TRUE(Removed.IsValid()) << "nothing is destroyed before the next collection";

	CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
	EXPECT_FALSE(Removed.IsValid());
	FSubsystemCollectionBase::DeactivateExternalSubsystem(UExternalTestPluginSubsystem::StaticClass());
	EXPECT_EQ(ExternalSubsystemTests::Events().Num(), 1) << "deactivating twice deinitializes once";
}

TEST_F(FExternalSubsystemTest, ActivationAddsOneInitializedInstanceToTheCollectionOfItsBaseType)
{
	UExternalTestPluginSubsystem* Original = GetPluginSubsystem();
	FSubsystemCollectionBase::ActivateExternalSubsystem(UExternalTestPluginSubsystem::StaticClass());
	EXPECT_EQ(GetPluginSubsystem(), Original) << "an active subsystem is kept";
	EXPECT_TRUE(ExternalSubsystemTests::Events().IsEmpty());

	FSubsystemCollectionBase::DeactivateExternalSubsystem(UExternalTestPluginSubsystem::StaticClass());
	FSubsystemCollectionBase::ActivateExternalSubsystem(UExternalTestPluginSubsystem::StaticClass());
	UExternalTestPluginSubsystem* Activated = GetPluginSubsystem();
	ASSERT_NE(Activated, nullptr);
	EXPECT_NE(Activated, Original);
	EXPECT_EQ(Activated->GetOuter(), GEditor);
	EXPECT_EQ(ExternalSubsystemTests::Events(), TArray<FString>({ TEXT("Deinitialize"), TEXT("Initialize") }));
}

TEST_F(FExternalSubsystemTest, OnlyCollectionsOfTheClassBaseTypeAreReached)
{
	UExternalTestPluginSubsystem* EditorOwned = GetPluginSubsystem();
	FSubsystemCollectionBase::DeactivateExternalSubsystem(UExternalTestEngineSubsystem::StaticClass());
	EXPECT_EQ(GEngine->GetEngineSubsystem<UExternalTestEngineSubsystem>(), nullptr);
	EXPECT_EQ(GetPluginSubsystem(), EditorOwned);

	FSubsystemCollectionBase::ActivateExternalSubsystem(UExternalTestEngineSubsystem::StaticClass());
	EXPECT_NE(GEngine->GetEngineSubsystem<UExternalTestEngineSubsystem>(), nullptr);
	FSubsystemCollectionBase::ActivateExternalSubsystem(nullptr);
	FSubsystemCollectionBase::DeactivateExternalSubsystem(nullptr);
}

TEST_F(FExternalSubsystemTest, ADeactivatedClassStaysOutOfEditorsStartedLaterUntilActivated)
{
	FSubsystemCollectionBase::DeactivateExternalSubsystem(UExternalTestPluginSubsystem::StaticClass());
	UE::UnrealEd::StandIn::StopEditor();
	UE::UnrealEd::StandIn::StartEditor(TEXT("/Game/ExternalSubsystemTests/Map"));
	EXPECT_EQ(GetPluginSubsystem(), nullptr);

	FSubsystemCollectionBase::ActivateExternalSubsystem(UExternalTestPluginSubsystem::StaticClass());
	UE::UnrealEd::StandIn::StopEditor();
	UE::UnrealEd::StandIn::StartEditor(TEXT("/Game/ExternalSubsystemTests/Map"));
	EXPECT_NE(GetPluginSubsystem(), nullptr);
}
