// UDeveloperSettings: the base of settings objects shown in the Project/Editor Settings windows.
// Stand-in choice: declared in Engine; the engine has it in its own DeveloperSettings module under this include path.
#pragma once

#include "CoreMinimal.h"
#include "UObject/ObjectMacros.h"
#include "UObject/Object.h"

class ENGINE_API UDeveloperSettings : public UObject
{
	STANDIN_CLASS_BODY(UDeveloperSettings, UObject, ENGINE_API)

public:
	UDeveloperSettings();

	// Stand-in choice: always "Project"; the engine answers "Editor" for classes configured in the editor's config files.
	virtual FName GetContainerName() const;
	// "Game" unless a subclass sets CategoryName.
	virtual FName GetCategoryName() const;
	// The class name unless a subclass sets SectionName.
	virtual FName GetSectionName() const;
	virtual FText GetSectionText() const;
	virtual FText GetSectionDescription() const;
	virtual bool SupportsAutoRegistration() const { return true; }

protected:
	FName CategoryName;
	FName SectionName;
};
