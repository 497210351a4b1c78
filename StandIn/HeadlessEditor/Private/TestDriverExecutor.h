// An executor that renders nothing and reports rendering until told to finish: it lets scripts put the editor in
// the state of a running render. A test driver of vlmr, never part of the engine's executors.
#pragma once

#include "CoreMinimal.h"
#include "MoviePipelineExecutor.h"

class UVlmrTestDriverExecutor : public UMoviePipelineExecutorBase
{
	STANDIN_CLASS_BODY(UVlmrTestDriverExecutor, UMoviePipelineExecutorBase, )

public:
	UVlmrTestDriverExecutor();

	// Stops reporting rendering and tells the listeners the executor finished successfully.
	void Finish();

protected:
	virtual void Execute_Implementation(UMoviePipelineQueue* InPipelineQueue) override { bRendering = true; }
	virtual bool IsRendering_Implementation() const override { return bRendering; }
	virtual void CancelCurrentJob_Implementation() override { Finish(); }
	virtual void CancelAllJobs_Implementation() override { Finish(); }

private:
	bool bRendering;
};
