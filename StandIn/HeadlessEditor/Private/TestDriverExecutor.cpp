#include "TestDriverExecutor.h"

#include "UObject/UnrealType.h"

UVlmrTestDriverExecutor::UVlmrTestDriverExecutor()
	: bRendering(false)
{
}

void UVlmrTestDriverExecutor::Finish()
{
	if (bRendering)
	{
		bRendering = false;
		OnExecutorFinishedImpl();
	}
}

STANDIN_IMPLEMENT_CLASS(UVlmrTestDriverExecutor, CLASS_None, "HeadlessEditor")
{
}
