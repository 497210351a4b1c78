#include "Engine/DeveloperSettings.h"
#include "UObject/Class.h"
#include "UObject/UnrealType.h"

UDeveloperSettings::UDeveloperSettings()
{
	CategoryName = FName(TEXT("Game"));
	SectionName = GetClass() ? GetClass()->GetFName() : NAME_None;
}

STANDIN_IMPLEMENT_CLASS(UDeveloperSettings, CLASS_Abstract, "Engine")
{
}

FName UDeveloperSettings::GetContainerName() const
{
	return FName(TEXT("Project"));
}

FName UDeveloperSettings::GetCategoryName() const
{
	return CategoryName;
}

FName UDeveloperSettings::GetSectionName() const
{
	return SectionName;
}

FText UDeveloperSettings::GetSectionText() const
{
	return GetClass()->GetDisplayNameText();
}

FText UDeveloperSettings::GetSectionDescription() const
{
	return GetClass()->GetToolTipText();
}
