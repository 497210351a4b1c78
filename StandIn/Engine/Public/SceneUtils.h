// Rendering enums shared by the renderer's project settings and the tools that override them.
#pragma once

#include "CoreMinimal.h"
#include "UObject/ObjectMacros.h"

// Used by rendering project settings.
UENUM()
enum EAntiAliasingMethod : int
{
	AAM_None,
	AAM_FXAA,
	AAM_TemporalAA,
	// Only supported with forward shading.
	AAM_MSAA,
	AAM_TSR,
	AAM_MAX,
};
STANDIN_DECLARE_ENUM(EAntiAliasingMethod, ENGINE_API)
