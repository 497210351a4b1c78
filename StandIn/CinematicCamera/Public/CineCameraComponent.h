// UCineCameraComponent: a camera with the lens and focus settings of a film camera.
#pragma once

#include "CoreMinimal.h"
#include "Camera/CameraComponent.h"

#define UE_API STANDIN_MINIMALAPI_FUNCTION(CINEMATICCAMERA_API)

// How the camera focuses.
// Stand-in choice: declared in this header with only the manual focus distance; the engine's has the focus method,
// tracking and smoothing settings too.
USTRUCT(BlueprintType)
struct FCameraFocusSettings
{
	STANDIN_STRUCT_BODY(FCameraFocusSettings, CINEMATICCAMERA_API)

public:
	// Stand-in choice: 100000 cm (1 km), the engine's default manual focus distance as documented for the component.
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Manual Focus Settings", meta = (Units = cm))
	float ManualFocusDistance = 100000.0f;
};

UCLASS(MinimalAPI, Blueprintable, Config = Engine)
class STANDIN_MINIMALAPI_CLASS(CINEMATICCAMERA_API) UCineCameraComponent : public UCameraComponent
{
	STANDIN_MINIMALAPI_CLASS_BODY(UCineCameraComponent, UCameraComponent, CINEMATICCAMERA_API)

public:
	UE_API UCineCameraComponent();

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Current Camera Settings")
	FCameraFocusSettings FocusSettings;

	// Stand-in choice: 35 mm, the engine's default lens.
	UPROPERTY(Interp, EditAnywhere, BlueprintReadWrite, Category = "Current Camera Settings")
	float CurrentFocalLength = 35.0f;

	// Stand-in choice: f/2.8, the engine's default aperture.
	UPROPERTY(Interp, EditAnywhere, BlueprintReadWrite, Category = "Current Camera Settings")
	float CurrentAperture = 2.8f;

	// Read-only: follows FocusSettings (always manual focus here).
	UPROPERTY(VisibleAnywhere, BlueprintReadOnly, Category = "Current Camera Settings")
	float CurrentFocusDistance;
};

#undef UE_API
