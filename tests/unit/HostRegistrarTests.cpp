#include "VelmireExtensionRegistrar.h"
#include "VelmireLuaSession.h"

#include <gtest/gtest.h>

namespace
{
	FVelmireExtensionDescriptor MakeDescriptor(const FString& ExtensionId)
	{
		FVelmireExtensionDescriptor Descriptor;
		Descriptor.ExtensionId = ExtensionId;
		Descriptor.DisplayName = TEXT("Registrar test");
		return Descriptor;
	}

	// An installer that appends its binding name to the Lua array `installed`.
	FVelmireLuaBindingInstaller MakeRecordingInstaller(const FString& BindingName, int32* CallCount = nullptr)
	{
		return FVelmireLuaBindingInstaller::CreateLambda([BindingName, CallCount](sol::state& Lua, FLuaSessionData&)
		{
			if (CallCount)
			{
				++*CallCount;
			}
			sol::table Installed = Lua["installed"].get_or_create<sol::table>();
			Installed.add(std::string(TCHAR_TO_UTF8(*BindingName)));
		});
	}

	TArray<FString> BindingNamesOf(const FString& ExtensionId)
	{
		TArray<FString> Names;
		for (const FVelmireLuaBinding& Binding : FVelmireExtensionRegistrar::Get().GetBindings())
		{
			if (Binding.ExtensionId == ExtensionId)
			{
				Names.Add(Binding.BindingName);
			}
		}
		return Names;
	}

	std::vector<std::string> InstalledNames(FVelmireLuaSession& Session)
	{
		std::vector<std::string> Names;
		sol::optional<sol::table> Installed = Session.GetState()["installed"];
		if (Installed)
		{
			for (size_t Index = 1; Index <= Installed->size(); ++Index)
			{
				Names.push_back(Installed->get<std::string>(Index));
			}
		}
		return Names;
	}
}

TEST(HostRegistrar, KeepsRegistrationOrderAndCountsEveryRemovedRegistration)
{
	FVelmireExtensionRegistrar& Registrar = FVelmireExtensionRegistrar::Get();
	Registrar.RegisterExtension(MakeDescriptor(TEXT("test.order.first")));
	Registrar.RegisterExtension(MakeDescriptor(TEXT("test.order.second")));
	const FVelmireExtensionHandle Handle1 = Registrar.RegisterLuaBinding(TEXT("test.order.first"), TEXT("OrderOne"), {}, MakeRecordingInstaller(TEXT("OrderOne")));
	const FVelmireExtensionHandle Handle2 = Registrar.RegisterLuaBinding(TEXT("test.order.second"), TEXT("OrderTwo"), {}, MakeRecordingInstaller(TEXT("OrderTwo")));
	const FVelmireExtensionHandle Handle3 = Registrar.RegisterLuaBinding(TEXT("test.order.first"), TEXT("OrderThree"), {}, MakeRecordingInstaller(TEXT("OrderThree")));

	EXPECT_TRUE(Handle1.IsValid());
	EXPECT_NE(Handle1.RegistrationId, Handle2.RegistrationId);
	EXPECT_NE(Handle2.RegistrationId, Handle3.RegistrationId);
	EXPECT_EQ(Handle3.BindingName, TEXT("OrderThree"));
	EXPECT_EQ(BindingNamesOf(TEXT("test.order.first")), TArray<FString>({ TEXT("OrderOne"), TEXT("OrderThree") }));
	{
		FVelmireLuaSession Session;
		EXPECT_EQ(InstalledNames(Session), std::vector<std::string>({ "OrderOne", "OrderTwo", "OrderThree" }));
	}

	EXPECT_EQ(Registrar.UnregisterAllForExtension(TEXT("test.order.first")), 3);
	EXPECT_EQ(Registrar.UnregisterAllForExtension(TEXT("test.order.first")), 0);
	EXPECT_TRUE(BindingNamesOf(TEXT("test.order.first")).IsEmpty());
	EXPECT_EQ(Registrar.FindBinding(TEXT("OrderOne")), nullptr);
	ASSERT_NE(Registrar.FindBinding(TEXT("ordertwo")), nullptr);
	EXPECT_EQ(Registrar.FindBinding(TEXT("ordertwo"))->BindingName, TEXT("OrderTwo"));
	EXPECT_EQ(Registrar.UnregisterAllForExtension(TEXT("test.order.second")), 2);
	EXPECT_EQ(Registrar.FindBinding(TEXT("OrderTwo")), nullptr);
}

TEST(HostRegistrar, CallsInstallersForEachNewSessionAndNeverAfterUnregistering)
{
	FVelmireExtensionRegistrar& Registrar = FVelmireExtensionRegistrar::Get();
	int32 CallCount = 0;
	Registrar.RegisterExtension(MakeDescriptor(TEXT("test.sessions")));
	Registrar.RegisterLuaBinding(TEXT("test.sessions"), TEXT("SessionBinding"), {}, MakeRecordingInstaller(TEXT("SessionBinding"), &CallCount));
	{
		FVelmireLuaSession First;
		FVelmireLuaSession Second;
		EXPECT_EQ(CallCount, 2);
		EXPECT_EQ(InstalledNames(Second), std::vector<std::string>({ "SessionBinding" }));
	}

	EXPECT_EQ(Registrar.UnregisterAllForExtension(TEXT("test.sessions")), 2);
	FVelmireLuaSession AfterShutdown;
	EXPECT_EQ(CallCount, 2);
	EXPECT_TRUE(InstalledNames(AfterShutdown).empty());
}

TEST(HostRegistrar, BindingsRemovedDuringInstallationAreNotInstalled)
{
	FVelmireExtensionRegistrar& Registrar = FVelmireExtensionRegistrar::Get();
	int32 VictimCalls = 0;
	Registrar.RegisterLuaBinding(TEXT("test.remover"), TEXT("Remover"), {}, FVelmireLuaBindingInstaller::CreateLambda(
		[](sol::state&, FLuaSessionData&) { FVelmireExtensionRegistrar::Get().UnregisterAllForExtension(TEXT("test.victim")); }));
	Registrar.RegisterLuaBinding(TEXT("test.victim"), TEXT("Victim"), {}, MakeRecordingInstaller(TEXT("Victim"), &VictimCalls));
	{
		FVelmireLuaSession Session;
	}
	EXPECT_EQ(VictimCalls, 0);
	EXPECT_EQ(Registrar.UnregisterAllForExtension(TEXT("test.remover")), 1);
}

TEST(HostRegistrar, RegisteringAgainReplacesTheEarlierRegistration)
{
	FVelmireExtensionRegistrar& Registrar = FVelmireExtensionRegistrar::Get();
	FVelmireExtensionDescriptor Descriptor = MakeDescriptor(TEXT("test.again"));
	Registrar.RegisterExtension(Descriptor);
	Descriptor.Version = TEXT("2.0.0");
	Registrar.RegisterExtension(Descriptor);
	int32 OldCalls = 0;
	int32 NewCalls = 0;
	Registrar.RegisterLuaBinding(TEXT("test.again"), TEXT("AgainBinding"), { { TEXT("old()"), TEXT(""), TEXT("") } },
		MakeRecordingInstaller(TEXT("old"), &OldCalls));
	Registrar.RegisterLuaBinding(TEXT("test.again"), TEXT("AgainBinding"), {}, MakeRecordingInstaller(TEXT("new"), &NewCalls));
	{
		FVelmireLuaSession Session;
	}

	const FVelmireExtensionDescriptor* Registered = Registrar.GetExtensions().FindByPredicate(
		[](const FVelmireExtensionDescriptor& Candidate) { return Candidate.ExtensionId == TEXT("test.again"); });
	ASSERT_NE(Registered, nullptr);
	EXPECT_EQ(Registered->Version, TEXT("2.0.0"));
	EXPECT_EQ(OldCalls, 0);
	EXPECT_EQ(NewCalls, 1);
	EXPECT_EQ(Registrar.FindBinding(TEXT("AgainBinding"))->Docs.Num(), 0);
	EXPECT_EQ(Registrar.UnregisterAllForExtension(TEXT("test.again")), 2);
}
