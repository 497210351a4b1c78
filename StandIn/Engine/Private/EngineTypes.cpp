#include "Engine/EngineTypes.h"
#include "UObject/UnrealType.h"

VLMR_IMPLEMENT_STRUCT(FDirectoryPath, "Engine")
{
	VLMR_PROPERTY(Path, CPF_Edit | CPF_BlueprintVisible);
}

VLMR_IMPLEMENT_STRUCT(FFilePath, "Engine")
{
	VLMR_PROPERTY(FilePath, CPF_Edit | CPF_BlueprintVisible);
}
