// Class lookups by a script's name follow the classes in memory: registered, destroyed, in the engine's order.
#include <gtest/gtest.h>

#include "CoreMinimal.h"
#include "Modules/ModuleManager.h"
#include "MoviePipelineSetting.h"
#include "UObject/Class.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/WeakObjectPtrTemplates.h"
#include "VLMRClassLookup.h"

namespace
{
	const FName ModuleName(TEXT("VLMR_MovieRenderPipeline_Integration"));

	// A native class that is never instantiated: its name, super class and flags are all a lookup reads.
	UClass* RegisterNativeSettingClass(const TCHAR* Name, EClassFlags ClassFlags = CLASS_None)
	{
		UE::CoreUObject::StandIn::FNativeClassParams Params;
		Params.Name = Name;
		Params.ModuleName = TEXT("VLMRClassLookupTests");
		Params.SuperClass = &UMoviePipelineSetting::StaticClass;
		Params.ClassFlags = ClassFlags;
		UClass* Class = nullptr;
		UE::CoreUObject::StandIn::ConstructNativeClass(Class, Params);
		return Class;
	}

	UClass* ResolveSetting(const TCHAR* Name)
	{
		return VLMR::ResolveClassByScriptName(Name, UMoviePipelineSetting::StaticClass(), CLASS_Abstract);
	}

	class ClassLookupTest : public ::testing::Test
	{
	protected:
		void SetUp() override { ASSERT_NE(FModuleManager::Get().LoadModule(ModuleName), nullptr); }
		void TearDown() override { FModuleManager::Get().UnloadModule(ModuleName); }
	};
}

TEST_F(ClassLookupTest, SeesClassesRegisteredAndDestroyedBetweenLookups)
{
	EXPECT_EQ(ResolveSetting(TEXT("VLMRLateSetting")), nullptr);
	UClass* Late = RegisterNativeSettingClass(TEXT("UVLMRLateSetting"));
	EXPECT_EQ(ResolveSetting(TEXT("VLMRLateSetting")), Late);
	EXPECT_EQ(VLMR::CollectClassesDerivedFrom(UMoviePipelineSetting::StaticClass(), CLASS_Abstract).Last(), Late);

	// A class that is not native and that nothing keeps: the next collection destroys it.
	UClass* Transient = NewObject<UClass>(GetTransientPackage(), TEXT("VLMRTransientSetting"));
	Transient->SetSuperStruct(UMoviePipelineSetting::StaticClass());
	EXPECT_EQ(ResolveSetting(TEXT("VLMRTransientSetting")), Transient);
	const TWeakObjectPtr<UClass> WeakTransient(Transient);
	CollectGarbage(RF_NoFlags);
	ASSERT_FALSE(WeakTransient.IsValid(true));

	EXPECT_EQ(ResolveSetting(TEXT("VLMRTransientSetting")), nullptr);
	for (UClass* Class : VLMR::CollectClassesDerivedFrom(UMoviePipelineSetting::StaticClass(), CLASS_Abstract))
	{
		EXPECT_NE(Class->GetName(), TEXT("VLMRTransientSetting"));
	}
	EXPECT_EQ(ResolveSetting(TEXT("VLMRLateSetting")), Late);
}

TEST_F(ClassLookupTest, ExactNamesComeBeforeSubstringsAndEachPassKeepsEnumerationOrder)
{
	UClass* Longer = RegisterNativeSettingClass(TEXT("UVLMROrderSettingLonger"));
	UClass* Exact = RegisterNativeSettingClass(TEXT("UVLMROrderSetting"));
	RegisterNativeSettingClass(TEXT("UVLMROrderSettingAbstract"), CLASS_Abstract);

	const auto ExpectDocumentedAnswers = [&]()
	{
		EXPECT_EQ(ResolveSetting(TEXT("VLMROrderSetting")), Exact);
		EXPECT_EQ(ResolveSetting(TEXT("uvlmrordersetting")), Exact);
		EXPECT_EQ(ResolveSetting(TEXT("VLMROrderSet")), Longer);
		EXPECT_EQ(ResolveSetting(TEXT("VLMROrderSettingAbstract")), nullptr);
		const TArray<UClass*> Classes = VLMR::CollectClassesDerivedFrom(UMoviePipelineSetting::StaticClass(), CLASS_Abstract);
		const TArray<UClass*> Tail(Classes.GetData() + Classes.Num() - 2, 2);
		EXPECT_EQ(Tail, (TArray<UClass*>{ Longer, Exact }));
	};
	ExpectDocumentedAnswers();
	ExpectDocumentedAnswers();

	// Without the module's cache (unloaded), each call walks the classes itself and answers the same.
	FModuleManager::Get().UnloadModule(ModuleName);
	ExpectDocumentedAnswers();
}
