#include "CoreMinimal.h"
#include "Containers/Ticker.h"
#include "Templates/UniquePtr.h"
#include "Editor.h"
#include "Editor/StandInEditorStartup.h"
#include "Editor/UnrealEdEngine.h"
#include "EditorSubsystem.h"
#include "Engine/Engine.h"
#include "Engine/World.h"
#include "Subsystems/EngineSubsystem.h"
#include "Tickable.h"
#include "TickableEditorObject.h"
#include "UObject/Package.h"
#include "UObject/UnrealType.h"
#include "UObject/WeakObjectPtrTemplates.h"

#include <gtest/gtest.h>

namespace EditorEngineTests
{
	// What the test subsystems saw, in order: "Initialize <Class>", "Deinitialize <Class>".
	TArray<FString>& SubsystemEvents()
	{
		static TArray<FString> Events;
		return Events;
	}
}

class UEditorEngineTestSubsystem : public UEditorSubsystem
{
	STANDIN_CLASS_BODY(UEditorEngineTestSubsystem, UEditorSubsystem, )

public:
	void Initialize(FSubsystemCollectionBase& Collection) override
	{
		EditorEngineTests::SubsystemEvents().Add(TEXT("Initialize EditorEngineTestSubsystem"));
	}

	void Deinitialize() override
	{
		EditorEngineTests::SubsystemEvents().Add(TEXT("Deinitialize EditorEngineTestSubsystem"));
	}
};

STANDIN_IMPLEMENT_CLASS(UEditorEngineTestSubsystem, CLASS_None, "VlmrUnitTests")
{
}

// Initializes the subsystem above as a dependency before itself, whatever the class order.
class UEditorEngineTestDependentSubsystem : public UEditorSubsystem
{
	STANDIN_CLASS_BODY(UEditorEngineTestDependentSubsystem, UEditorSubsystem, )

public:
	void Initialize(FSubsystemCollectionBase& Collection) override
	{
		Dependency = Collection.InitializeDependency<UEditorEngineTestSubsystem>();
		EditorEngineTests::SubsystemEvents().Add(TEXT("Initialize EditorEngineTestDependentSubsystem"));
	}

	UEditorEngineTestSubsystem* Dependency = nullptr;
};

STANDIN_IMPLEMENT_CLASS(UEditorEngineTestDependentSubsystem, CLASS_None, "VlmrUnitTests")
{
}

class UEditorEngineTestAbstractSubsystem : public UEditorSubsystem
{
	STANDIN_CLASS_BODY(UEditorEngineTestAbstractSubsystem, UEditorSubsystem, )
};

STANDIN_IMPLEMENT_CLASS(UEditorEngineTestAbstractSubsystem, CLASS_Abstract, "VlmrUnitTests")
{
}

class UEditorEngineTestConcreteSubsystem : public UEditorEngineTestAbstractSubsystem
{
	STANDIN_CLASS_BODY(UEditorEngineTestConcreteSubsystem, UEditorEngineTestAbstractSubsystem, )
};

STANDIN_IMPLEMENT_CLASS(UEditorEngineTestConcreteSubsystem, CLASS_None, "VlmrUnitTests")
{
}

class UEditorEngineTestDeclinedSubsystem : public UEditorSubsystem
{
	STANDIN_CLASS_BODY(UEditorEngineTestDeclinedSubsystem, UEditorSubsystem, )

public:
	bool ShouldCreateSubsystem(UObject* Outer) const override { return false; }
};

STANDIN_IMPLEMENT_CLASS(UEditorEngineTestDeclinedSubsystem, CLASS_None, "VlmrUnitTests")
{
}

class UEditorEngineTestEngineSubsystem : public UEngineSubsystem
{
	STANDIN_CLASS_BODY(UEditorEngineTestEngineSubsystem, UEngineSubsystem, )
};

STANDIN_IMPLEMENT_CLASS(UEditorEngineTestEngineSubsystem, CLASS_None, "VlmrUnitTests")
{
}

namespace EditorEngineTests
{
	class FCountingGameObject : public FTickableGameObject
	{
	public:
		FCountingGameObject(UWorld* InWorld, bool bInTickableInEditor)
			: World(InWorld)
			, bTickableInEditor(bInTickableInEditor)
		{
		}

		void Tick(float DeltaTime) override { ++Ticks; }
		bool IsTickable() const override { return bTickable; }
		bool IsTickableInEditor() const override { return bTickableInEditor; }
		UWorld* GetTickableGameObjectWorld() const override { return World; }

		UWorld* World;
		bool bTickableInEditor;
		bool bTickable = true;
		int32 Ticks = 0;
	};

	class FCountingEditorObject : public FTickableEditorObject
	{
	public:
		void Tick(float DeltaTime) override
		{
			++Ticks;
			LastDeltaTime = DeltaTime;
			if (ObjectToDestroy)
			{
				ObjectToDestroy->Reset();
			}
		}

		int32 Ticks = 0;
		float LastDeltaTime = 0.0f;
		TUniquePtr<FCountingEditorObject>* ObjectToDestroy = nullptr;
	};
}

class FEditorEngineTest : public ::testing::Test
{
protected:
	void SetUp() override
	{
		EditorEngineTests::SubsystemEvents().Empty();
		Editor = UE::UnrealEd::StandIn::StartEditor(TEXT("/Game/EditorEngineTests/Map"));
	}

	void TearDown() override
	{
		UE::UnrealEd::StandIn::StopEditor();
	}

	UEditorEngine* Editor = nullptr;
};

TEST_F(FEditorEngineTest, StartEditorSetsTheGlobalsAndOneEditorWorldContext)
{
	ASSERT_NE(Editor, nullptr);
	EXPECT_EQ(GEditor, Editor);
	EXPECT_EQ(GEngine, Editor);
	EXPECT_TRUE(Editor->IsA(UUnrealEdEngine::StaticClass()));
	EXPECT_TRUE(Editor->IsRooted());
	EXPECT_EQ(UE::UnrealEd::StandIn::StartEditor(TEXT("/Game/EditorEngineTests/Other")), Editor);

	const TIndirectArray<FWorldContext>& Contexts = GEngine->GetWorldContexts();
	ASSERT_EQ(Contexts.Num(), 1);
	const FWorldContext& Context = Contexts[0];
	EXPECT_EQ(Context.WorldType, EWorldType::Editor);
	EXPECT_EQ(Context.ContextHandle, FName(TEXT("Context_0")));
	ASSERT_NE(Context.World(), nullptr);
	EXPECT_EQ(&GEditor->GetEditorWorldContext(), &Context);

	UWorld* World = Context.World();
	EXPECT_EQ(World->WorldType, EWorldType::Editor);
	EXPECT_EQ(World->GetMapName(), TEXT("Map"));
	EXPECT_EQ(World->GetPathName(), TEXT("/Game/EditorEngineTests/Map.Map"));
	EXPECT_EQ(World->GetWorld(), World);
	EXPECT_TRUE(World->IsEditorWorld());
	EXPECT_FALSE(World->IsGameWorld());
	EXPECT_EQ(GEditor->PlayWorld, nullptr);
	EXPECT_EQ(GEditor->GetPIEWorldContext(), nullptr);
	EXPECT_NE(GEditor->Trans, nullptr);
}

TEST_F(FEditorEngineTest, WorldTypesKeepTheEngineValues)
{
	EXPECT_EQ(int32(EWorldType::None), 0);
	EXPECT_EQ(int32(EWorldType::Game), 1);
	EXPECT_EQ(int32(EWorldType::Editor), 2);
	EXPECT_EQ(int32(EWorldType::PIE), 3);
	EXPECT_EQ(int32(EWorldType::EditorPreview), 4);
	EXPECT_EQ(int32(EWorldType::GamePreview), 5);
	EXPECT_EQ(int32(EWorldType::GameRPC), 6);
	EXPECT_EQ(int32(EWorldType::Inactive), 7);
}

TEST_F(FEditorEngineTest, WorldContextsAreFoundByWorldAndHandleAndDestroyed)
{
	UWorld* GameWorld = UWorld::CreateWorld(EWorldType::Game, false);
	ASSERT_NE(GameWorld, nullptr);
	EXPECT_TRUE(GameWorld->GetPackage()->GetName().StartsWith(TEXT("/Temp/Untitled_")));
	FWorldContext& GameContext = GEngine->CreateNewWorldContext(EWorldType::Game);
	GameContext.SetCurrentWorld(GameWorld);

	EXPECT_EQ(GEngine->GetWorldContexts().Num(), 2);
	EXPECT_EQ(GEngine->GetWorldContextFromWorld(GameWorld), &GameContext);
	EXPECT_EQ(GEngine->GetWorldContextFromHandle(FName(TEXT("Context_1"))), &GameContext);
	EXPECT_TRUE(GameWorld->IsGameWorld());

	GEngine->DestroyWorldContext(GameWorld);
	EXPECT_EQ(GEngine->GetWorldContexts().Num(), 1);
	EXPECT_EQ(GEngine->GetWorldContextFromWorld(GameWorld), nullptr);
	GameWorld->DestroyWorld(false);
}

TEST_F(FEditorEngineTest, EditorSubsystemsAreCreatedForEveryConcreteClassAndFoundByClass)
{
	UEditorEngineTestSubsystem* Subsystem = GEditor->GetEditorSubsystem<UEditorEngineTestSubsystem>();
	ASSERT_NE(Subsystem, nullptr);
	EXPECT_EQ(Subsystem->GetOuter(), GEditor);

	UEditorEngineTestDependentSubsystem* Dependent = GEditor->GetEditorSubsystem<UEditorEngineTestDependentSubsystem>();
	ASSERT_NE(Dependent, nullptr);
	EXPECT_EQ(Dependent->Dependency, Subsystem);
	const int32 SubsystemInitialized = EditorEngineTests::SubsystemEvents().Find(TEXT("Initialize EditorEngineTestSubsystem"));
	const int32 DependentInitialized = EditorEngineTests::SubsystemEvents().Find(TEXT("Initialize EditorEngineTestDependentSubsystem"));
	EXPECT_NE(SubsystemInitialized, INDEX_NONE);
	EXPECT_LT(SubsystemInitialized, DependentInitialized);
	EXPECT_EQ(EditorEngineTests::SubsystemEvents().FilterByPredicate([](const FString& Event) { return Event == TEXT("Initialize EditorEngineTestSubsystem"); }).Num(), 1);

	UEditorEngineTestAbstractSubsystem* ByAbstractBase = GEditor->GetEditorSubsystem<UEditorEngineTestAbstractSubsystem>();
	ASSERT_NE(ByAbstractBase, nullptr);
	EXPECT_EQ(ByAbstractBase->GetClass(), UEditorEngineTestConcreteSubsystem::StaticClass());
	EXPECT_EQ(GEditor->GetEditorSubsystemBase(UEditorEngineTestConcreteSubsystem::StaticClass()), ByAbstractBase);

	EXPECT_EQ(GEditor->GetEditorSubsystem<UEditorEngineTestDeclinedSubsystem>(), nullptr);
	EXPECT_NE(GEngine->GetEngineSubsystem<UEditorEngineTestEngineSubsystem>(), nullptr);
}

TEST_F(FEditorEngineTest, StopEditorDeinitializesSubsystemsAndReleasesTheEditor)
{
	const TWeakObjectPtr<UEditorEngine> WeakEditor = Editor;
	const TWeakObjectPtr<UWorld> WeakWorld = GEditor->GetEditorWorldContext().World();
	const TWeakObjectPtr<UEditorEngineTestSubsystem> WeakSubsystem = GEditor->GetEditorSubsystem<UEditorEngineTestSubsystem>();
	ASSERT_TRUE(WeakSubsystem.IsValid());

	UE::UnrealEd::StandIn::StopEditor();
	EXPECT_EQ(GEditor, nullptr);
	EXPECT_EQ(GEngine, nullptr);
	EXPECT_TRUE(EditorEngineTests::SubsystemEvents().Contains(TEXT("Deinitialize EditorEngineTestSubsystem")));
	EXPECT_FALSE(WeakEditor.IsValid());
	EXPECT_FALSE(WeakWorld.IsValid());
	EXPECT_FALSE(WeakSubsystem.IsValid());
	UE::UnrealEd::StandIn::StopEditor();
}

TEST_F(FEditorEngineTest, TickTicksTickersAndTickableObjectsAsTheEditorDoes)
{
	UWorld* EditorWorld = GEditor->GetEditorWorldContext().World();
	EditorEngineTests::FCountingGameObject InEditorWorld(EditorWorld, true);
	EditorEngineTests::FCountingGameObject GameOnlyInEditorWorld(EditorWorld, false);
	EditorEngineTests::FCountingGameObject WithoutWorld(nullptr, false);
	EditorEngineTests::FCountingGameObject NotTickable(nullptr, true);
	NotTickable.bTickable = false;
	EditorEngineTests::FCountingEditorObject EditorObject;
	int32 TickerFires = 0;
	FTSTicker::FDelegateHandle TickerHandle = FTSTicker::GetCoreTicker().AddTicker(FTickerDelegate::CreateLambda([&TickerFires](float)
	{
		++TickerFires;
		return true;
	}));

	GEditor->Tick(0.5f, false);
	GEditor->Tick(0.25f, false);
	FTSTicker::RemoveTicker(TickerHandle);

	EXPECT_EQ(TickerFires, 2);
	EXPECT_EQ(InEditorWorld.Ticks, 2);
	EXPECT_EQ(GameOnlyInEditorWorld.Ticks, 0);
	EXPECT_EQ(WithoutWorld.Ticks, 2);
	EXPECT_EQ(NotTickable.Ticks, 0);
	EXPECT_EQ(EditorObject.Ticks, 2);
	EXPECT_FLOAT_EQ(EditorObject.LastDeltaTime, 0.25f);
	EXPECT_DOUBLE_EQ(EditorWorld->GetTimeSeconds(), 0.75);
}

TEST_F(FEditorEngineTest, TickableObjectDestroyedDuringTheTickIsSkipped)
{
	TUniquePtr<EditorEngineTests::FCountingEditorObject> Destroyer = MakeUnique<EditorEngineTests::FCountingEditorObject>();
	TUniquePtr<EditorEngineTests::FCountingEditorObject> Victim = MakeUnique<EditorEngineTests::FCountingEditorObject>();
	Destroyer->ObjectToDestroy = &Victim;

	GEditor->Tick(0.1f, false);
	EXPECT_EQ(Destroyer->Ticks, 1);
	EXPECT_FALSE(Victim.IsValid());

	TUniquePtr<EditorEngineTests::FCountingEditorObject> Later = MakeUnique<EditorEngineTests::FCountingEditorObject>();
	Destroyer->ObjectToDestroy = nullptr;
	GEditor->Tick(0.1f, false);
	EXPECT_EQ(Destroyer->Ticks, 2);
	EXPECT_EQ(Later->Ticks, 1);
}
