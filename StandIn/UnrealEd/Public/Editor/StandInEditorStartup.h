// Stand-in choice: starting and stopping the headless editor; in real Unreal the engine's launch loop does this.
#pragma once

#include "CoreMinimal.h"

class UEditorEngine;

namespace UE::UnrealEd::StandIn
{
	// Stand-in choice: creates the editor engine (rooted; GEngine, GEditor and GUnrealEd point to it), opens the world of
	// the map package EditorMapPackageName in the editor world context (loaded when the package exists, else a new empty
	// world in that package, or in "/Temp/Untitled_<N>" when the name is not a valid package name), then creates the undo
	// buffer and the engine and editor subsystems. When the editor already runs, returns it unchanged.
	UNREALED_API UEditorEngine* StartEditor(const FString& EditorMapPackageName);

	// Stand-in choice: deinitializes the subsystems, destroys the worlds of every world context, releases the editor
	// engine (the globals become null) and collects garbage. Does nothing when the editor is not running.
	UNREALED_API void StopEditor();
}
