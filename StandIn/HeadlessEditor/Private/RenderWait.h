// Ticking the editor while a Movie Render Queue render is in progress.
#pragma once

#include "CoreMinimal.h"
#include "Templates/Function.h"

namespace UE::Vlmr
{
	// Whether the queue subsystem reports a render in progress; false without the subsystem.
	bool IsRenderInProgress();

	// The active executor's progress, 0 to 1; 0 without one.
	float GetRenderProgress();

	// Ticks the editor until no render is in progress, MaxTicks ticks were done or the run is asked to stop, calling
	// OnTicked after each tick; returns the number of ticks.
	int32 TickUntilRenderIdle(int32 MaxTicks, TFunctionRef<void()> OnTicked);
}
