// The module registers one extension and two documented bindings with the host, and removes them at shut-down.
#include <gtest/gtest.h>

#include "CoreMinimal.h"
#include "LuaSessionData.h"
#include "Modules/ModuleManager.h"
#include "VelmireExtensionRegistrar.h"
#include "VelmireLuaSession.h"
#include "VLMRBindings.h"

namespace
{
	const FName ModuleName(TEXT("VLMR_MovieRenderPipeline_Integration"));

	TArray<const FVelmireLuaBinding*> BindingsOfExtension(const FString& ExtensionId)
	{
		TArray<const FVelmireLuaBinding*> Result;
		for (const FVelmireLuaBinding& Binding : FVelmireExtensionRegistrar::Get().GetBindings())
		{
			if (Binding.ExtensionId == ExtensionId)
			{
				Result.Add(&Binding);
			}
		}
		return Result;
	}

	const FVelmireExtensionDescriptor* FindExtension(const FString& ExtensionId)
	{
		return FVelmireExtensionRegistrar::Get().GetExtensions().FindByPredicate(
			[&ExtensionId](const FVelmireExtensionDescriptor& Descriptor) { return Descriptor.ExtensionId == ExtensionId; });
	}

	int32 CountModuleGlobals(sol::state& Lua)
	{
		int32 Count = 0;
		for (const auto& Entry : Lua.globals())
		{
			if (Entry.first.get_type() == sol::type::string)
			{
				const std::string Name = Entry.first.as<std::string>();
				Count += (Name.rfind("mrq_", 0) == 0 || Name.rfind("mrg_", 0) == 0) ? 1 : 0;
			}
		}
		return Count;
	}

	class ModuleRegistrationTest : public ::testing::Test
	{
	protected:
		void SetUp() override { ASSERT_NE(FModuleManager::Get().LoadModule(ModuleName), nullptr); }
		void TearDown() override { FModuleManager::Get().UnloadModule(ModuleName); }
	};
}

TEST_F(ModuleRegistrationTest, RegistersTheExtensionThenQueueAndGraphBindingsWithInstallers)
{
	EXPECT_NE(FindExtension(TEXT("velmire.movierenderpipeline")), nullptr);
	const TArray<const FVelmireLuaBinding*> Bindings = BindingsOfExtension(TEXT("velmire.movierenderpipeline"));
	ASSERT_EQ(Bindings.Num(), 2);
	EXPECT_TRUE(Bindings[0]->BindingName.Equals(TEXT("MovieRenderQueue"), ESearchCase::CaseSensitive));
	EXPECT_TRUE(Bindings[1]->BindingName.Equals(TEXT("MovieRenderGraph"), ESearchCase::CaseSensitive));
	EXPECT_TRUE(Bindings[0]->Installer.IsBound());
	EXPECT_TRUE(Bindings[1]->Installer.IsBound());
}

TEST_F(ModuleRegistrationTest, EachRegistrationGetsItsOwnCopyOfTheDocs)
{
	const TArray<const FVelmireLuaBinding*> Bindings = BindingsOfExtension(TEXT("velmire.movierenderpipeline"));
	ASSERT_EQ(Bindings.Num(), 2);
	EXPECT_NE(Bindings[0]->Docs.GetData(), VLMR::GetMovieRenderQueueDocs().GetData());
	EXPECT_NE(Bindings[1]->Docs.GetData(), VLMR::GetMovieRenderGraphDocs().GetData());
}

TEST(ModuleShutdownTest, ShutdownRemovesTheExtensionAndNewSessionsGetNoModuleGlobals)
{
	ASSERT_NE(FModuleManager::Get().LoadModule(ModuleName), nullptr);
	FModuleManager::Get().UnloadModule(ModuleName);

	EXPECT_EQ(FindExtension(TEXT("velmire.movierenderpipeline")), nullptr);
	EXPECT_EQ(BindingsOfExtension(TEXT("velmire.movierenderpipeline")).Num(), 0);

	FVelmireLuaSession Session;
	EXPECT_EQ(CountModuleGlobals(Session.GetState()), 0);
}
