// The editor as one run of vlmr sees it: project opened, editor started, every linked module started; undone in reverse.
#pragma once

#include "CoreMinimal.h"
#include "Templates/UniquePtr.h"

namespace UE::Vlmr
{
	class FTemporaryProjectCopy;

	// The map every vlmr run opens.
	const TCHAR* GetEditorMapPackageName();

	class FHeadlessEditorScope
	{
	public:
		// Opens ProjectDir, or a temporary copy of the sample project when ProjectDir is empty.
		explicit FHeadlessEditorScope(const FString& ProjectDir = FString());
		// Shuts the modules down, stops the editor and removes the temporary copy.
		~FHeadlessEditorScope();

		FHeadlessEditorScope(const FHeadlessEditorScope&) = delete;
		FHeadlessEditorScope& operator=(const FHeadlessEditorScope&) = delete;

		bool IsRunning() const { return bEditorStarted; }
		const FString& GetError() const { return Error; }

	private:
		bool OpenProject(const FString& ProjectDir);

		TUniquePtr<FTemporaryProjectCopy> TemporaryProject;
		bool bEditorStarted = false;
		FString Error;
	};
}
