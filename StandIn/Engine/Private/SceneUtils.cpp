#include "SceneUtils.h"

#include "UObject/Class.h"
#include "UObject/UnrealType.h"

// AAM_MAX is the trailing entry the enum registration adds itself.
STANDIN_IMPLEMENT_ENUM(EAntiAliasingMethod, "Engine", AAM_None, AAM_FXAA, AAM_TemporalAA, AAM_MSAA, AAM_TSR)
