// The editor's globals.
#pragma once

#include "CoreMinimal.h"
#include "Editor/EditorEngine.h"

extern UNREALED_API UEditorEngine* GEditor;
