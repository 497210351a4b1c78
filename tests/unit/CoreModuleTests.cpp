// The module manager: modules entered by IMPLEMENT_MODULE at static initialization, started on load and shut down in reverse order.
#include "Modules/ModuleManager.h"

#include <gtest/gtest.h>

namespace
{
	/** What the test modules did, in order: "Startup A", "PreUnload A", "Shutdown A", "Destroy A". */
	TArray<FString>& ModuleEvents()
	{
		static TArray<FString> Events;
		return Events;
	}

	FString JoinedModuleEvents()
	{
		return FString::Join(ModuleEvents(), TEXT(", "));
	}

	class FRecordingTestModule : public IModuleInterface
	{
	public:
		explicit FRecordingTestModule(const TCHAR* InLabel)
			: Label(InLabel)
		{
		}

		virtual ~FRecordingTestModule() override { Record(TEXT("Destroy")); }
		virtual void StartupModule() override { Record(TEXT("Startup")); }
		virtual void PreUnloadCallback() override { Record(TEXT("PreUnload")); }
		virtual void ShutdownModule() override { Record(TEXT("Shutdown")); }

		int32 Answer = 42;

	private:
		void Record(const TCHAR* What)
		{
			ModuleEvents().Add(FString::Printf(TEXT("%s %s"), What, Label));
		}

		const TCHAR* Label;
	};

	class FCoreTestModuleA : public FRecordingTestModule
	{
	public:
		FCoreTestModuleA() : FRecordingTestModule(TEXT("A")) {}
	};

	class FCoreTestModuleB : public FRecordingTestModule
	{
	public:
		FCoreTestModuleB() : FRecordingTestModule(TEXT("B")) {}
	};

	/** Loads A while starting up, as a module that depends on another does. */
	class FCoreTestModuleDependent : public FRecordingTestModule
	{
	public:
		FCoreTestModuleDependent() : FRecordingTestModule(TEXT("Dependent")) {}

		virtual void StartupModule() override
		{
			FModuleManager::Get().LoadModuleChecked(TEXT("CoreTestModuleA"));
			FRecordingTestModule::StartupModule();
		}
	};

	class FCoreTestModuleManual : public FRecordingTestModule
	{
	public:
		FCoreTestModuleManual() : FRecordingTestModule(TEXT("Manual")) {}
		virtual bool SupportsAutomaticShutdown() override { return false; }
	};

	const TCHAR* const TestModuleNames[] = { TEXT("CoreTestModuleA"), TEXT("CoreTestModuleB"), TEXT("CoreTestModuleDependent"), TEXT("CoreTestModuleManual") };

	class CoreModuleTests : public ::testing::Test
	{
	protected:
		virtual void SetUp() override
		{
			UnloadTestModules();
			ModuleEvents().Reset();
		}

		virtual void TearDown() override
		{
			UnloadTestModules();
		}

		static void UnloadTestModules()
		{
			for (const TCHAR* Name : TestModuleNames)
			{
				FModuleManager::Get().UnloadModule(Name);
			}
		}
	};
}

IMPLEMENT_MODULE(FCoreTestModuleA, CoreTestModuleA)
IMPLEMENT_MODULE(FCoreTestModuleB, CoreTestModuleB)
IMPLEMENT_MODULE(FCoreTestModuleDependent, CoreTestModuleDependent)
IMPLEMENT_GAME_MODULE(FCoreTestModuleManual, CoreTestModuleManual)

TEST_F(CoreModuleTests, ImplementModuleRegistersBeforeMain)
{
	FModuleManager& Manager = FModuleManager::Get();
	const TArray<FName> Names = Manager.GetStaticallyLinkedModuleNames();
	for (const TCHAR* Name : TestModuleNames)
	{
		EXPECT_TRUE(Names.Contains(FName(Name))) << Manager.GetStaticallyLinkedModuleNames().Num();
		EXPECT_TRUE(Manager.ModuleExists(Name));
		EXPECT_FALSE(Manager.IsModuleLoaded(Name));
	}
	EXPECT_FALSE(Manager.ModuleExists(TEXT("NoSuchModule")));
	EXPECT_TRUE(ModuleEvents().IsEmpty()) << "registration creates no module";

	FModuleStatus Status;
	ASSERT_TRUE(Manager.QueryModule(TEXT("CoreTestModuleA"), Status));
	EXPECT_STREQ(*Status.Name, TEXT("CoreTestModuleA"));
	EXPECT_FALSE(Status.bIsLoaded);
	EXPECT_FALSE(Manager.QueryModule(TEXT("NoSuchModule"), Status));
}

TEST_F(CoreModuleTests, LoadStartsOnceAndUnloadShutsDown)
{
	FModuleManager& Manager = FModuleManager::Get();
	const int32 CountBefore = Manager.GetModuleCount();

	IModuleInterface* Module = Manager.LoadModule(TEXT("CoreTestModuleA"));
	ASSERT_NE(Module, nullptr);
	EXPECT_EQ(Manager.LoadModule(TEXT("CoreTestModuleA")), Module) << "a loaded module is returned again";
	EXPECT_STREQ(*JoinedModuleEvents(), TEXT("Startup A"));
	EXPECT_TRUE(Manager.IsModuleLoaded(TEXT("CoreTestModuleA")));
	EXPECT_EQ(Manager.GetModule(TEXT("CoreTestModuleA")), Module);
	EXPECT_EQ(Manager.GetModuleCount(), CountBefore + 1);
	EXPECT_EQ(FModuleManager::GetModulePtr<FCoreTestModuleA>(TEXT("CoreTestModuleA"))->Answer, 42);
	EXPECT_EQ(&FModuleManager::GetModuleChecked<FCoreTestModuleA>(TEXT("CoreTestModuleA")), Module);
	EXPECT_EQ(&FModuleManager::LoadModuleChecked<FCoreTestModuleA>(TEXT("CoreTestModuleA")), Module);

	FModuleStatus Status;
	ASSERT_TRUE(Manager.QueryModule(TEXT("CoreTestModuleA"), Status));
	EXPECT_TRUE(Status.bIsLoaded);
	EXPECT_FALSE(Status.bIsGameModule);

	EXPECT_TRUE(Manager.UnloadModule(TEXT("CoreTestModuleA")));
	EXPECT_STREQ(*JoinedModuleEvents(), TEXT("Startup A, Shutdown A, Destroy A"));
	EXPECT_FALSE(Manager.IsModuleLoaded(TEXT("CoreTestModuleA")));
	EXPECT_EQ(Manager.GetModule(TEXT("CoreTestModuleA")), nullptr);
	EXPECT_FALSE(Manager.UnloadModule(TEXT("CoreTestModuleA"))) << "nothing left to unload";
	EXPECT_EQ(Manager.GetModuleCount(), CountBefore);

	ASSERT_NE(FModuleManager::LoadModulePtr<FCoreTestModuleA>(TEXT("CoreTestModuleA")), nullptr);
	EXPECT_STREQ(*JoinedModuleEvents(), TEXT("Startup A, Shutdown A, Destroy A, Startup A")) << "a reload makes a new module";
}

TEST_F(CoreModuleTests, UnknownModulesAreNotLoaded)
{
	FModuleManager& Manager = FModuleManager::Get();
	EXPECT_EQ(Manager.LoadModule(TEXT("NoSuchModule")), nullptr);
	EXPECT_EQ(Manager.LoadModule(TEXT("NoSuchModule"), ELoadModuleFlags::LogFailures), nullptr);

	EModuleLoadResult Result = EModuleLoadResult::Success;
	EXPECT_EQ(Manager.LoadModuleWithFailureReason(TEXT("NoSuchModule"), Result), nullptr);
	EXPECT_EQ(Result, EModuleLoadResult::FileNotFound);
	EXPECT_FALSE(Manager.IsModuleLoaded(TEXT("NoSuchModule")));
	EXPECT_EQ(FModuleManager::GetModulePtr<IModuleInterface>(TEXT("NoSuchModule")), nullptr);
	EXPECT_EQ(FModuleManager::LoadModulePtr<IModuleInterface>(NAME_None), nullptr);
}

TEST_F(CoreModuleTests, ShutdownRunsInReverseLoadOrder)
{
	FModuleManager& Manager = FModuleManager::Get();
	ASSERT_NE(Manager.LoadModule(TEXT("CoreTestModuleB")), nullptr);
	ASSERT_NE(Manager.LoadModule(TEXT("CoreTestModuleDependent")), nullptr);
	ASSERT_NE(Manager.LoadModule(TEXT("CoreTestModuleManual")), nullptr);
	EXPECT_STREQ(*JoinedModuleEvents(), TEXT("Startup B, Startup A, Startup Dependent, Startup Manual"))
		<< "the dependency finished starting up first";

	ModuleEvents().Reset();
	Manager.UnloadModulesAtShutdown();

	// A finished starting up before Dependent (which loaded it), so it shuts down after Dependent.
	EXPECT_STREQ(*JoinedModuleEvents(), TEXT("PreUnload Dependent, PreUnload A, PreUnload B, Shutdown Dependent, Destroy Dependent, Shutdown A, Destroy A, Shutdown B, Destroy B"));
	EXPECT_FALSE(Manager.IsModuleLoaded(TEXT("CoreTestModuleA")));
	EXPECT_FALSE(Manager.IsModuleLoaded(TEXT("CoreTestModuleB")));
	EXPECT_TRUE(Manager.IsModuleLoaded(TEXT("CoreTestModuleManual"))) << "modules without automatic shutdown stay loaded";
}

TEST_F(CoreModuleTests, QueryModulesListsRegisteredModulesInNameOrder)
{
	FModuleManager& Manager = FModuleManager::Get();
	ASSERT_NE(Manager.LoadModule(TEXT("CoreTestModuleB")), nullptr);

	TArray<FModuleStatus> Statuses;
	Manager.QueryModules(Statuses);
	ASSERT_EQ(Statuses.Num(), Manager.GetStaticallyLinkedModuleNames().Num());
	for (int32 Index = 1; Index < Statuses.Num(); ++Index)
	{
		EXPECT_LT(Statuses[Index - 1].Name.Compare(Statuses[Index].Name, ESearchCase::IgnoreCase), 0);
	}

	const FModuleStatus* StatusA = Statuses.FindByPredicate([](const FModuleStatus& Status) { return Status.Name == TEXT("CoreTestModuleA"); });
	const FModuleStatus* StatusB = Statuses.FindByPredicate([](const FModuleStatus& Status) { return Status.Name == TEXT("CoreTestModuleB"); });
	ASSERT_NE(StatusA, nullptr);
	ASSERT_NE(StatusB, nullptr);
	EXPECT_FALSE(StatusA->bIsLoaded);
	EXPECT_TRUE(StatusB->bIsLoaded);
}
