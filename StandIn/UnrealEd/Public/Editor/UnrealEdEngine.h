// UUnrealEdEngine: the editor engine class the editor runs with.
#pragma once

#include "CoreMinimal.h"
#include "Editor/EditorEngine.h"

class UNREALED_API UUnrealEdEngine : public UEditorEngine
{
	STANDIN_CLASS_BODY(UUnrealEdEngine, UEditorEngine, UNREALED_API)

public:
	UUnrealEdEngine();
};
