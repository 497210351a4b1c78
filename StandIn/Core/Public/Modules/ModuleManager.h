// FModuleManager: creates, starts and shuts down modules; IMPLEMENT_MODULE registers a module class under its name.
#pragma once

#include "CoreTypes.h"
#include "Containers/Array.h"
#include "Containers/Map.h"
#include "Containers/UnrealString.h"
#include "Delegates/Delegate.h"
#include "Modules/Boilerplate/ModuleBoilerplate.h"
#include "Modules/ModuleInterface.h"
#include "Templates/UniquePtr.h"
#include "UObject/NameTypes.h"

enum class ELoadModuleFlags
{
	None = 0x0,
	LogFailures = 1 << 0,
};

ENUM_CLASS_FLAGS(ELoadModuleFlags)

enum class EModuleLoadResult
{
	Success,
	FileNotFound,
	FileIncompatible,
	CouldNotBeLoadedByOS,
	FailedToInitialize
};

struct FModuleStatus
{
	FString Name;
	FString FilePath;
	bool bIsLoaded = false;
	bool bIsGameModule = false;
};

/**
 * Stand-in choice: modules exist only as the statically linked list of a monolithic build; there are no module
 * binaries to discover, load or hot-reload.
 */
class FModuleManager
{
public:
	DECLARE_DELEGATE_RetVal(IModuleInterface*, FInitializeStaticallyLinkedModule)

	/** The process-wide manager; it is never destroyed. */
	CORE_API static FModuleManager& Get();

	/** Creates the module from its registered initializer and calls StartupModule; the existing module if already loaded; null if unknown. */
	CORE_API IModuleInterface* LoadModule(const FName InModuleName, ELoadModuleFlags InLoadModuleFlags = ELoadModuleFlags::None);

	CORE_API IModuleInterface* LoadModuleWithFailureReason(const FName InModuleName, EModuleLoadResult& OutFailureReason, ELoadModuleFlags InLoadModuleFlags = ELoadModuleFlags::None);

	/** As LoadModule; a module that cannot be loaded is a fatal error. */
	CORE_API IModuleInterface& LoadModuleChecked(const FName InModuleName);

	/** The loaded module, or null. */
	CORE_API IModuleInterface* GetModule(const FName InModuleName);

	CORE_API bool IsModuleLoaded(const FName InModuleName) const;

	/** Calls ShutdownModule and destroys the module object; false if the module was not loaded. */
	CORE_API bool UnloadModule(const FName InModuleName, bool bIsShutdown = false, bool bAllowUnloadCode = true);

	/** Calls PreUnloadCallback on every loaded module that supports automatic shutdown, then unloads them in reverse load order. */
	CORE_API void UnloadModulesAtShutdown();

	/** Whether a module with this name is registered. */
	CORE_API bool ModuleExists(const TCHAR* ModuleName) const;

	/** Number of loaded modules. */
	CORE_API int32 GetModuleCount() const;

	/** Every registered module, in name order, with whether it is loaded. */
	CORE_API void QueryModules(TArray<FModuleStatus>& OutModuleStatuses) const;

	CORE_API bool QueryModule(const FName InModuleName, FModuleStatus& OutModuleStatus) const;

	/** Called by IMPLEMENT_MODULE at static initialization; a second registration under the same name replaces the first. */
	CORE_API void RegisterStaticallyLinkedModule(const FName InModuleName, const FInitializeStaticallyLinkedModule& InInitializerDelegate);

	/** Stand-in choice: the names registered by IMPLEMENT_MODULE, in name order (the engine has no such query). */
	CORE_API TArray<FName> GetStaticallyLinkedModuleNames() const;

	template<typename TModuleInterface>
	static TModuleInterface& GetModuleChecked(const FName ModuleName)
	{
		FModuleManager& ModuleManager = FModuleManager::Get();
		checkf(ModuleManager.IsModuleLoaded(ModuleName), TEXT("Tried to get module interface for unloaded module: '%s'"), *ModuleName.ToString());
		return static_cast<TModuleInterface&>(*ModuleManager.GetModule(ModuleName));
	}

	template<typename TModuleInterface>
	static TModuleInterface* GetModulePtr(const FName ModuleName)
	{
		return static_cast<TModuleInterface*>(FModuleManager::Get().GetModule(ModuleName));
	}

	template<typename TModuleInterface>
	static TModuleInterface& LoadModuleChecked(const FName ModuleName)
	{
		IModuleInterface& Module = FModuleManager::Get().LoadModuleChecked(ModuleName);
		return static_cast<TModuleInterface&>(Module);
	}

	template<typename TModuleInterface>
	static TModuleInterface* LoadModulePtr(const FName ModuleName)
	{
		return static_cast<TModuleInterface*>(FModuleManager::Get().LoadModule(ModuleName));
	}

private:
	struct FModuleInfo
	{
		TUniquePtr<IModuleInterface> Module;
		int32 LoadOrder = 0;
	};

	FModuleManager() = default;
	UE_NONCOPYABLE(FModuleManager);

	TMap<FName, FInitializeStaticallyLinkedModule> StaticallyLinkedModuleInitializers;
	TMap<FName, FModuleInfo> Modules;
	int32 NextLoadOrder = 1;
};

/** Registers ModuleClass with the module manager when constructed (IMPLEMENT_MODULE makes a static instance). */
template<class ModuleClass>
class FStaticallyLinkedModuleRegistrant
{
public:
	explicit FStaticallyLinkedModuleRegistrant(const TCHAR* InModuleName)
	{
		FModuleManager::Get().RegisterStaticallyLinkedModule(FName(InModuleName), FModuleManager::FInitializeStaticallyLinkedModule::CreateStatic(&InitializeModule));
	}

private:
	static IModuleInterface* InitializeModule()
	{
		return new ModuleClass();
	}
};

/** A module with no code of its own. */
class FDefaultModuleImpl : public IModuleInterface
{
};

class FDefaultGameModuleImpl : public FDefaultModuleImpl
{
public:
	virtual bool IsGameModule() const override
	{
		return true;
	}
};

#define IMPLEMENT_MODULE(ModuleImplClass, ModuleName) \
	static FStaticallyLinkedModuleRegistrant<ModuleImplClass> ModuleRegistrant##ModuleName(TEXT(#ModuleName)); \
	extern "C" void IMPLEMENT_MODULE_##ModuleName() {} \
	PER_MODULE_BOILERPLATE_ANYLINK(ModuleImplClass, ModuleName)

#define IMPLEMENT_GAME_MODULE(ModuleImplClass, ModuleName) \
	IMPLEMENT_MODULE(ModuleImplClass, ModuleName)

#define IMPLEMENT_PRIMARY_GAME_MODULE(ModuleImplClass, ModuleName, GameName) \
	IMPLEMENT_GAME_MODULE(ModuleImplClass, ModuleName)
