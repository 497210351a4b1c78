#include "CineCameraComponent.h"

#include "UObject/UnrealType.h"

UCineCameraComponent::UCineCameraComponent()
	: CurrentFocusDistance(FocusSettings.ManualFocusDistance)
{
}

STANDIN_IMPLEMENT_STRUCT(FCameraFocusSettings, "CinematicCamera")
{
	STANDIN_PROPERTY(ManualFocusDistance, CPF_Edit | CPF_BlueprintVisible);
}

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UCineCameraComponent, CLASS_None, "CinematicCamera")
{
	constexpr EPropertyFlags EditableFlags = CPF_Edit | CPF_BlueprintVisible;
	STANDIN_PROPERTY(FocusSettings, EditableFlags);
	STANDIN_PROPERTY(CurrentFocalLength, EditableFlags | CPF_Interp);
	STANDIN_PROPERTY(CurrentAperture, EditableFlags | CPF_Interp);
	STANDIN_PROPERTY(CurrentFocusDistance, CPF_Edit | CPF_EditConst | CPF_BlueprintVisible | CPF_BlueprintReadOnly);
}
