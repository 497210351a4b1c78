// The host's registry of extensions and of the Lua bindings they contribute.
#pragma once

#include "CoreMinimal.h"
#include "VelmireLuaIncludes.h"

class FLuaSessionData;

// What an extension tells the host about itself.
struct VELMIREAI_API FVelmireExtensionDescriptor
{
	FString ExtensionId;
	FString DisplayName;
	FString ModuleName;
	FString Author;
	FString Version;
	FString Category;
	FString Description;
	bool bRequiresRestart = false;
	TArray<FString> Tags;
	bool bEnabledByDefault = false;
};

// One documentation record of a Lua binding: signature, description, returns.
struct VELMIREAI_API FLuaFunctionDoc
{
	FString Signature;
	FString Description;
	FString Returns;
};

using FVelmireLuaBindingInstaller = TDelegate<void(sol::state&, FLuaSessionData&)>;

// Names one registered binding; the host keeps the registration whether or not the handle is kept.
struct VELMIREAI_API FVelmireExtensionHandle
{
	FString ExtensionId;
	FString BindingName;
	int32 RegistrationId = INDEX_NONE;

	bool IsValid() const { return RegistrationId != INDEX_NONE; }
};

struct VELMIREAI_API FVelmireLuaBinding
{
	FString ExtensionId;
	FString BindingName;
	TArray<FLuaFunctionDoc> Docs;
	FVelmireLuaBindingInstaller Installer;
	int32 RegistrationId = INDEX_NONE;
};

class VELMIREAI_API FVelmireExtensionRegistrar
{
public:
	static FVelmireExtensionRegistrar& Get();

	void RegisterExtension(const FVelmireExtensionDescriptor& Descriptor);
	FVelmireExtensionHandle RegisterLuaBinding(const FString& ExtensionId, const FString& BindingName,
		TArray<FLuaFunctionDoc> Docs, FVelmireLuaBindingInstaller Installer);
	// Removes the extension and every binding it registered; returns how many registrations were removed.
	int32 UnregisterAllForExtension(const FString& ExtensionId);

	// Extensions and bindings in registration order.
	const TArray<FVelmireExtensionDescriptor>& GetExtensions() const { return Extensions; }
	const TArray<FVelmireLuaBinding>& GetBindings() const { return Bindings; }
	const FVelmireLuaBinding* FindBinding(const FString& BindingName) const;

	// Calls every installer of every registered binding, in registration order.
	void InstallBindings(sol::state& Lua, FLuaSessionData& Session) const;

private:
	TArray<FVelmireExtensionDescriptor> Extensions;
	TArray<FVelmireLuaBinding> Bindings;
	int32 NextRegistrationId = 0;
};
