#include "Modules/ModuleManager.h"

#include "Logging/LogMacros.h"

DEFINE_LOG_CATEGORY_STATIC(LogModuleManager, Log, All);

namespace
{
	struct FModuleToUnload
	{
		FName ModuleName;
		int32 LoadOrder = 0;
		IModuleInterface* Module = nullptr;
	};
}

FModuleManager& FModuleManager::Get()
{
	// Never destroyed, so modules and registrants may use it during static destruction.
	static FModuleManager* ModuleManager = new FModuleManager();
	return *ModuleManager;
}

IModuleInterface* FModuleManager::LoadModule(const FName InModuleName, ELoadModuleFlags InLoadModuleFlags)
{
	EModuleLoadResult FailureReason = EModuleLoadResult::Success;
	return LoadModuleWithFailureReason(InModuleName, FailureReason, InLoadModuleFlags);
}

IModuleInterface* FModuleManager::LoadModuleWithFailureReason(const FName InModuleName, EModuleLoadResult& OutFailureReason, ELoadModuleFlags InLoadModuleFlags)
{
	if (IModuleInterface* LoadedModule = GetModule(InModuleName))
	{
		OutFailureReason = EModuleLoadResult::Success;
		return LoadedModule;
	}

	const FInitializeStaticallyLinkedModule* Initializer = StaticallyLinkedModuleInitializers.Find(InModuleName);
	if (Initializer == nullptr || !Initializer->IsBound())
	{
		OutFailureReason = EModuleLoadResult::FileNotFound;
		if (EnumHasAnyFlags(InLoadModuleFlags, ELoadModuleFlags::LogFailures))
		{
			UE_LOG(LogModuleManager, Warning, TEXT("ModuleManager: Unable to load module '%s' because it is not statically linked."), *InModuleName.ToString());
		}
		return nullptr;
	}

	IModuleInterface* NewModule = Initializer->Execute();
	if (NewModule == nullptr)
	{
		OutFailureReason = EModuleLoadResult::FailedToInitialize;
		UE_LOG(LogModuleManager, Warning, TEXT("ModuleManager: Unable to load module '%s' because its initializer returned no module."), *InModuleName.ToString());
		return nullptr;
	}

	// Entered before StartupModule so that a module loading itself during startup gets this instance.
	FModuleInfo& ModuleInfo = Modules.Add(InModuleName);
	ModuleInfo.Module = TUniquePtr<IModuleInterface>(NewModule);

	NewModule->StartupModule();

	// Numbered after startup: modules loaded by StartupModule come first, so they shut down after this one.
	// StartupModule may have added map entries, so the entry is looked up again.
	if (FModuleInfo* StartedModuleInfo = Modules.Find(InModuleName))
	{
		StartedModuleInfo->LoadOrder = NextLoadOrder++;
	}
	OutFailureReason = EModuleLoadResult::Success;
	return GetModule(InModuleName);
}

IModuleInterface& FModuleManager::LoadModuleChecked(const FName InModuleName)
{
	IModuleInterface* Module = LoadModule(InModuleName, ELoadModuleFlags::LogFailures);
	checkf(Module != nullptr, TEXT("Unable to load module '%s'"), *InModuleName.ToString());
	return *Module;
}

IModuleInterface* FModuleManager::GetModule(const FName InModuleName)
{
	FModuleInfo* ModuleInfo = Modules.Find(InModuleName);
	return ModuleInfo ? ModuleInfo->Module.Get() : nullptr;
}

bool FModuleManager::IsModuleLoaded(const FName InModuleName) const
{
	const FModuleInfo* ModuleInfo = Modules.Find(InModuleName);
	return ModuleInfo != nullptr && ModuleInfo->Module.IsValid();
}

bool FModuleManager::UnloadModule(const FName InModuleName, bool bIsShutdown, bool bAllowUnloadCode)
{
	FModuleInfo* ModuleInfo = Modules.Find(InModuleName);
	if (ModuleInfo == nullptr || !ModuleInfo->Module.IsValid())
	{
		return false;
	}

	ModuleInfo->Module->ShutdownModule();

	// ShutdownModule may have loaded or unloaded other modules, which can move map entries.
	ModuleInfo = Modules.Find(InModuleName);
	if (ModuleInfo != nullptr)
	{
		TUniquePtr<IModuleInterface> ModuleToDestroy = MoveTemp(ModuleInfo->Module);
		Modules.Remove(InModuleName);
	}
	return true;
}

void FModuleManager::UnloadModulesAtShutdown()
{
	TArray<FModuleToUnload> ModulesToUnload;
	for (const auto& Pair : Modules)
	{
		IModuleInterface* Module = Pair.Value.Module.Get();
		if (Module != nullptr && Module->SupportsAutomaticShutdown())
		{
			ModulesToUnload.Add({ Pair.Key, Pair.Value.LoadOrder, Module });
		}
	}

	ModulesToUnload.Sort([](const FModuleToUnload& A, const FModuleToUnload& B) { return A.LoadOrder > B.LoadOrder; });

	for (const FModuleToUnload& ModuleToUnload : ModulesToUnload)
	{
		ModuleToUnload.Module->PreUnloadCallback();
	}
	for (const FModuleToUnload& ModuleToUnload : ModulesToUnload)
	{
		UnloadModule(ModuleToUnload.ModuleName, true);
	}
}

bool FModuleManager::ModuleExists(const TCHAR* ModuleName) const
{
	return ModuleName != nullptr && StaticallyLinkedModuleInitializers.Contains(FName(ModuleName));
}

int32 FModuleManager::GetModuleCount() const
{
	return Modules.Num();
}

void FModuleManager::QueryModules(TArray<FModuleStatus>& OutModuleStatuses) const
{
	OutModuleStatuses.Reset();
	for (const FName& ModuleName : GetStaticallyLinkedModuleNames())
	{
		FModuleStatus Status;
		QueryModule(ModuleName, Status);
		OutModuleStatuses.Add(Status);
	}
}

bool FModuleManager::QueryModule(const FName InModuleName, FModuleStatus& OutModuleStatus) const
{
	if (!StaticallyLinkedModuleInitializers.Contains(InModuleName))
	{
		return false;
	}

	const FModuleInfo* ModuleInfo = Modules.Find(InModuleName);
	const IModuleInterface* Module = ModuleInfo ? ModuleInfo->Module.Get() : nullptr;
	OutModuleStatus.Name = InModuleName.ToString();
	OutModuleStatus.FilePath = FString();
	OutModuleStatus.bIsLoaded = Module != nullptr;
	OutModuleStatus.bIsGameModule = Module != nullptr && Module->IsGameModule();
	return true;
}

void FModuleManager::RegisterStaticallyLinkedModule(const FName InModuleName, const FInitializeStaticallyLinkedModule& InInitializerDelegate)
{
	StaticallyLinkedModuleInitializers.Add(InModuleName, InInitializerDelegate);
}

TArray<FName> FModuleManager::GetStaticallyLinkedModuleNames() const
{
	TArray<FName> ModuleNames;
	StaticallyLinkedModuleInitializers.GenerateKeyArray(ModuleNames);
	ModuleNames.Sort(FNameLexicalLess());
	return ModuleNames;
}
