#include "VelmireExtensionRegistrar.h"

#include "VelmireAILog.h"

DEFINE_LOG_CATEGORY(LogVelmireAI);

FVelmireExtensionRegistrar& FVelmireExtensionRegistrar::Get()
{
	static FVelmireExtensionRegistrar Registrar;
	return Registrar;
}

void FVelmireExtensionRegistrar::RegisterExtension(const FVelmireExtensionDescriptor& Descriptor)
{
	FVelmireExtensionDescriptor* Existing = Extensions.FindByPredicate(
		[&Descriptor](const FVelmireExtensionDescriptor& Candidate) { return Candidate.ExtensionId == Descriptor.ExtensionId; });
	if (Existing)
	{
		// Stand-in choice: registering an extension id again replaces its descriptor in place (a reloaded module).
		UE_LOG(LogVelmireAI, Warning, TEXT("Extension '%s' registered again; its descriptor is replaced"), *Descriptor.ExtensionId);
		*Existing = Descriptor;
		return;
	}
	Extensions.Add(Descriptor);
}

FVelmireExtensionHandle FVelmireExtensionRegistrar::RegisterLuaBinding(const FString& ExtensionId, const FString& BindingName,
	TArray<FLuaFunctionDoc> Docs, FVelmireLuaBindingInstaller Installer)
{
	const int32 Replaced = Bindings.RemoveAll(
		[&BindingName](const FVelmireLuaBinding& Candidate) { return Candidate.BindingName == BindingName; });
	if (Replaced > 0)
	{
		// Stand-in choice: a binding name registered again replaces the earlier registration and moves to the end.
		UE_LOG(LogVelmireAI, Warning, TEXT("Lua binding '%s' registered again; the earlier registration is replaced"), *BindingName);
	}

	FVelmireLuaBinding& Binding = Bindings.AddDefaulted_GetRef();
	Binding.ExtensionId = ExtensionId;
	Binding.BindingName = BindingName;
	Binding.Docs = MoveTemp(Docs);
	Binding.Installer = MoveTemp(Installer);
	Binding.RegistrationId = NextRegistrationId++;

	FVelmireExtensionHandle Handle;
	Handle.ExtensionId = ExtensionId;
	Handle.BindingName = BindingName;
	Handle.RegistrationId = Binding.RegistrationId;
	return Handle;
}

int32 FVelmireExtensionRegistrar::UnregisterAllForExtension(const FString& ExtensionId)
{
	// Stand-in choice: the count is every registration removed, the extension descriptor and each of its bindings.
	const int32 RemovedExtensions = Extensions.RemoveAll(
		[&ExtensionId](const FVelmireExtensionDescriptor& Candidate) { return Candidate.ExtensionId == ExtensionId; });
	const int32 RemovedBindings = Bindings.RemoveAll(
		[&ExtensionId](const FVelmireLuaBinding& Candidate) { return Candidate.ExtensionId == ExtensionId; });
	return RemovedExtensions + RemovedBindings;
}

const FVelmireLuaBinding* FVelmireExtensionRegistrar::FindBinding(const FString& BindingName) const
{
	return Bindings.FindByPredicate(
		[&BindingName](const FVelmireLuaBinding& Candidate) { return Candidate.BindingName == BindingName; });
}

void FVelmireExtensionRegistrar::InstallBindings(sol::state& Lua, FLuaSessionData& Session) const
{
	// Walked by registration id, so an installer that registers or unregisters neither disturbs the walk nor lets a
	// binding removed meanwhile be installed.
	TArray<int32> RegistrationIds;
	for (const FVelmireLuaBinding& Binding : Bindings)
	{
		RegistrationIds.Add(Binding.RegistrationId);
	}
	for (const int32 RegistrationId : RegistrationIds)
	{
		const FVelmireLuaBinding* Binding = Bindings.FindByPredicate(
			[RegistrationId](const FVelmireLuaBinding& Candidate) { return Candidate.RegistrationId == RegistrationId; });
		if (Binding)
		{
			const FVelmireLuaBindingInstaller Installer = Binding->Installer;
			Installer.ExecuteIfBound(Lua, Session);
		}
	}
}
