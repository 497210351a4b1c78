// Base engine enumerations used by world and object ticking.
#pragma once

#include "CoreMinimal.h"

// What a world tick covers.
enum ELevelTick
{
	// Update the level time only.
	LEVELTICK_TimeOnly = 0,
	// Update time and viewports: an editor world outside Play In Editor.
	LEVELTICK_ViewportsOnly = 1,
	// Update everything: a game or Play In Editor world.
	LEVELTICK_All = 2,
	// Delta time is zero, we are paused.
	LEVELTICK_PauseTick = 3,
};
