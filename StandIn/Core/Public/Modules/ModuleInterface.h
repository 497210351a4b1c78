// IModuleInterface: the interface every module class implements.
#pragma once

#include "CoreTypes.h"

class IModuleInterface
{
public:
	virtual ~IModuleInterface()
	{
	}

	/** Called right after the module object has been created. */
	virtual void StartupModule()
	{
	}

	/** Called on every module before any module is shut down at application exit. */
	virtual void PreUnloadCallback()
	{
	}

	/** Called after a module has been reloaded. */
	virtual void PostLoadCallback()
	{
	}

	/** Called before the module object is destroyed. */
	virtual void ShutdownModule()
	{
	}

	virtual bool SupportsDynamicReloading()
	{
		return true;
	}

	/** Whether UnloadModulesAtShutdown shuts this module down. */
	virtual bool SupportsAutomaticShutdown()
	{
		return true;
	}

	virtual bool IsGameModule() const
	{
		return false;
	}
};
