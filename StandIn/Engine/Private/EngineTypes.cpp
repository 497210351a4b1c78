#include "Engine/EngineTypes.h"
#include "UObject/UnrealType.h"

STANDIN_IMPLEMENT_STRUCT(FDirectoryPath, "Engine")
{
	STANDIN_PROPERTY(Path, CPF_Edit | CPF_BlueprintVisible);
}

STANDIN_IMPLEMENT_STRUCT(FFilePath, "Engine")
{
	STANDIN_PROPERTY(FilePath, CPF_Edit | CPF_BlueprintVisible);
}
