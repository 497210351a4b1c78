#include "RenderWait.h"

#include "Editor.h"
#include "EditorTestDriver.h"
#include "MoviePipelineQueueSubsystem.h"
#include "RunStop.h"

namespace UE::Vlmr
{
	namespace
	{
		UMoviePipelineQueueSubsystem* GetQueueSubsystem()
		{
			return GEditor ? GEditor->GetEditorSubsystem<UMoviePipelineQueueSubsystem>() : nullptr;
		}
	}

	bool IsRenderInProgress()
	{
		const UMoviePipelineQueueSubsystem* Subsystem = GetQueueSubsystem();
		return Subsystem && Subsystem->IsRendering();
	}

	float GetRenderProgress()
	{
		const UMoviePipelineQueueSubsystem* Subsystem = GetQueueSubsystem();
		const UMoviePipelineExecutorBase* Executor = Subsystem ? Subsystem->GetActiveExecutor() : nullptr;
		return Executor ? FMath::Clamp(Executor->GetStatusProgress(), 0.0f, 1.0f) : 0.0f;
	}

	int32 TickUntilRenderIdle(int32 MaxTicks, TFunctionRef<void()> OnTicked)
	{
		int32 Ticks = 0;
		while (Ticks < MaxTicks && GEditor && IsRenderInProgress() && !IsStopRequested())
		{
			GEditor->Tick(EditorTickSeconds, false);
			++Ticks;
			OnTicked();
		}
		return Ticks;
	}
}
