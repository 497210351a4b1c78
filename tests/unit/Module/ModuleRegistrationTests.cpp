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

TEST_F(ModuleRegistrationTest, RegistersTheDescriptorFieldByField)
{
	const FVelmireExtensionDescriptor* Descriptor = FindExtension(TEXT("velmire.movierenderpipeline"));
	ASSERT_NE(Descriptor, nullptr);
	EXPECT_TRUE(Descriptor->DisplayName.Equals(TEXT("Movie Render Queue"), ESearchCase::CaseSensitive));
	EXPECT_TRUE(Descriptor->ModuleName.Equals(TEXT("VLMR_MovieRenderPipeline_Integration"), ESearchCase::CaseSensitive));
	EXPECT_TRUE(Descriptor->Author.Equals(TEXT("Quensel Studio"), ESearchCase::CaseSensitive));
	EXPECT_TRUE(Descriptor->Version.Equals(TEXT("0.2.0"), ESearchCase::CaseSensitive));
	EXPECT_TRUE(Descriptor->Category.Equals(TEXT("integration"), ESearchCase::CaseSensitive));
	EXPECT_TRUE(Descriptor->Description.Equals(TEXT("Configure cinematic renders \u2014 Movie Render Queue jobs, presets, anti-aliasing, output formats, and Movie Render Graph evaluation, resolution queries and pipeline control."), ESearchCase::CaseSensitive));
	EXPECT_FALSE(Descriptor->bRequiresRestart);
	EXPECT_TRUE(Descriptor->bEnabledByDefault);
	const TArray<FString> ExpectedTags = { TEXT("lua"), TEXT("render"), TEXT("mrq"), TEXT("mrg") };
	EXPECT_EQ(Descriptor->Tags, ExpectedTags);
}

TEST_F(ModuleRegistrationTest, RegistersQueueThenGraphBindingWithTheirRecordCounts)
{
	const TArray<const FVelmireLuaBinding*> Bindings = BindingsOfExtension(TEXT("velmire.movierenderpipeline"));
	ASSERT_EQ(Bindings.Num(), 2);
	EXPECT_TRUE(Bindings[0]->BindingName.Equals(TEXT("MovieRenderQueue"), ESearchCase::CaseSensitive));
	EXPECT_EQ(Bindings[0]->Docs.Num(), 20);
	EXPECT_TRUE(Bindings[1]->BindingName.Equals(TEXT("MovieRenderGraph"), ESearchCase::CaseSensitive));
	EXPECT_EQ(Bindings[1]->Docs.Num(), 23);
	EXPECT_TRUE(Bindings[0]->Installer.IsBound());
	EXPECT_TRUE(Bindings[1]->Installer.IsBound());
}

TEST_F(ModuleRegistrationTest, DocumentationTextsAreExact)
{
	const TArray<const FVelmireLuaBinding*> Bindings = BindingsOfExtension(TEXT("velmire.movierenderpipeline"));
	ASSERT_EQ(Bindings.Num(), 2);
	const TArray<FLuaFunctionDoc>& Queue = Bindings[0]->Docs;
	const TArray<FLuaFunctionDoc>& Graph = Bindings[1]->Docs;

	EXPECT_STREQ(*Queue[0].Signature, TEXT("mrq_add_job(sequence_path)"));
	EXPECT_STREQ(*Queue[0].Description, TEXT("Add a render job to the queue for a Level Sequence (does NOT clear existing jobs) \u2014 returns job handle"));
	EXPECT_STREQ(*Queue[0].Returns, TEXT("job handle or nil"));
	EXPECT_STREQ(*Queue[6].Signature, TEXT("mrq_list_settings(filter?)"));
	EXPECT_STREQ(*Queue[6].Returns, TEXT("table[]"));
	EXPECT_STREQ(*Queue[17].Signature, TEXT("mrq_load_queue(asset_path)"));
	EXPECT_STREQ(*Queue[18].Description, TEXT("Movie Render Graph methods on the mrq_open_graph handle \u2014 see help(\"MovieRenderGraph\")"));
	EXPECT_STREQ(*Queue[19].Signature, TEXT("job:output_directory() / job:evaluate(shot_index?)"));
	EXPECT_STREQ(*Queue[19].Description, TEXT("Resolve a job's output directory and evaluate its graph preset with the job's variable assignments \u2014 see help(\"MovieRenderGraph\")"));

	EXPECT_STREQ(*Graph[0].Returns, TEXT("{ok, available, plugin_enabled, engine_version, reason, features}"));
	EXPECT_STREQ(*Graph[2].Description, TEXT("Resolve a profile name (\"1080p (FHD)\") or {width=,height=} into a named resolution; unknown names return valid=false instead of throwing"));
	EXPECT_STREQ(*Graph[4].Description, TEXT("UMovieGraphBlueprintLibrary::ResolveVersionNumber \u2014 explicit version on the output node or next/highest version found in the output directory (needs opts.graph); -1 when unresolved"));
	EXPECT_STREQ(*Graph[20].Description, TEXT("Create a node downstream of node_id on the given output pin (UE 5.8+). Setting nodes have one unlabelled branch pin per side: omit pin (or pass \"\"), a name such as \"Globals\" maps onto that single pin; named pins only exist on the Input/Output nodes"));
	EXPECT_STREQ(*Graph[22].Signature, TEXT("job:evaluate(shot_index?)"));
	EXPECT_STREQ(*Graph[22].Returns, TEXT("table or {ok=false,error}"));
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
