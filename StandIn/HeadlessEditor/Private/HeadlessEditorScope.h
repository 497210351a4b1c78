// The editor as one run of vlmr sees it: project opened, editor started, every linked module started; undone in reverse.
#pragma once

#include "CoreMinimal.h"
#include "Misc/Optional.h"
#include "Templates/UniquePtr.h"

class FOutputDeviceFile;

namespace UE::Vlmr
{
	class FTemporaryProjectCopy;

	// The map every vlmr run opens.
	const TCHAR* GetEditorMapPackageName();

	class FHeadlessEditorScope
	{
	public:
		// Opens ProjectDir, or a temporary copy of the sample project when ProjectDir is empty. With a ConsoleVerbosity,
		// the engine log then goes to the project's Saved/Logs/<ProjectName>.log, and stderr keeps only the lines up to it.
		explicit FHeadlessEditorScope(const FString& ProjectDir = FString(), TOptional<ELogVerbosity::Type> ConsoleVerbosity = TOptional<ELogVerbosity::Type>());
		// Shuts the modules down, stops the editor, closes the log file and removes the temporary copy.
		~FHeadlessEditorScope();

		FHeadlessEditorScope(const FHeadlessEditorScope&) = delete;
		FHeadlessEditorScope& operator=(const FHeadlessEditorScope&) = delete;

		bool IsRunning() const { return bEditorStarted; }
		const FString& GetError() const { return Error; }

	private:
		bool OpenProject(const FString& ProjectDir);
		void OpenLogFile(const FString& ProjectDir, ELogVerbosity::Type ConsoleVerbosity);
		void CloseLogFile();

		TUniquePtr<FTemporaryProjectCopy> TemporaryProject;
		TUniquePtr<FOutputDeviceFile> LogFile;
		ELogVerbosity::Type ConsoleVerbosityBefore = ELogVerbosity::Display;
		bool bEditorStarted = false;
		FString Error;
	};
}
