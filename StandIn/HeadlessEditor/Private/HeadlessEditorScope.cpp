#include "HeadlessEditorScope.h"

#include "Editor/StandInEditorStartup.h"
#include "Misc/OutputDeviceFile.h"
#include "Misc/OutputDeviceRedirector.h"
#include "Misc/Paths.h"
#include "Modules/ModuleManager.h"
#include "ProjectFolder.h"

namespace UE::Vlmr
{
	namespace
	{
		void StartLinkedModules()
		{
			FModuleManager& ModuleManager = FModuleManager::Get();
			for (const FName& ModuleName : ModuleManager.GetStaticallyLinkedModuleNames())
			{
				ModuleManager.LoadModule(ModuleName);
			}
		}
	}

	const TCHAR* GetEditorMapPackageName()
	{
		return TEXT("/Game/Maps/Main");
	}

	FHeadlessEditorScope::FHeadlessEditorScope(const FString& ProjectDir, TOptional<ELogVerbosity::Type> ConsoleVerbosity)
	{
		if (!OpenProject(ProjectDir))
		{
			return;
		}
		if (ConsoleVerbosity.IsSet())
		{
			OpenLogFile(FPaths::ProjectDir(), ConsoleVerbosity.GetValue());
		}
		if (!UE::UnrealEd::StandIn::StartEditor(GetEditorMapPackageName()))
		{
			Error = TEXT("the editor did not start");
			return;
		}
		bEditorStarted = true;
		StartLinkedModules();
	}

	FHeadlessEditorScope::~FHeadlessEditorScope()
	{
		if (bEditorStarted)
		{
			FModuleManager::Get().UnloadModulesAtShutdown();
			UE::UnrealEd::StandIn::StopEditor();
		}
		CloseLogFile();
		TemporaryProject.Reset();
	}

	void FHeadlessEditorScope::OpenLogFile(const FString& ProjectDir, ELogVerbosity::Type ConsoleVerbosity)
	{
		const FString Filename = FPaths::ProjectLogDir() + GetProjectName(ProjectDir) + TEXT(".log");
		LogFile = MakeUnique<FOutputDeviceFile>(*Filename);
		GLog->AddOutputDevice(LogFile.Get());
		ConsoleVerbosityBefore = GLog->GetConsoleVerbosity();
		GLog->SetConsoleVerbosity(ConsoleVerbosity);
	}

	void FHeadlessEditorScope::CloseLogFile()
	{
		if (!LogFile)
		{
			return;
		}
		GLog->SetConsoleVerbosity(ConsoleVerbosityBefore);
		GLog->RemoveOutputDevice(LogFile.Get());
		LogFile.Reset();
	}

	bool FHeadlessEditorScope::OpenProject(const FString& ProjectDir)
	{
		FString Dir = ProjectDir;
		if (Dir.IsEmpty())
		{
			TemporaryProject = MakeUnique<FTemporaryProjectCopy>();
			if (!TemporaryProject->IsValid())
			{
				Error = TemporaryProject->GetError();
				return false;
			}
			Dir = TemporaryProject->GetProjectDir();
		}
		Dir = FPaths::ConvertRelativePathToFull(Dir);
		if (!FPaths::DirectoryExists(Dir))
		{
			Error = FString::Printf(TEXT("no project folder %s"), *Dir);
			return false;
		}
		if (!Dir.EndsWith(TEXT("/")))
		{
			Dir += TEXT("/");
		}
		FPaths::SetProjectDir(Dir);
		return true;
	}
}
