// What a Movie Render Graph render hands its file outputs: one finished output frame and the render data it holds.
#pragma once

#include "CoreMinimal.h"
#include "Graph/MovieGraphRenderDataIdentifier.h"
#include "Graph/MovieGraphTraversalContext.h"

namespace UE::MovieGraph
{
	// One output frame with every piece of render data (layer, renderer, sub-resource, camera) it is made of.
	// Stand-in choice: this header and no pixel data; outputs write a small fixed image for every identifier.
	struct FMovieGraphOutputMergerFrame
	{
		// The job, shot, root graph and time step (with the evaluated graph) the frame was rendered for.
		FMovieGraphTraversalContext TraversalContext;

		// Every piece of render data of the frame, in render order.
		TArray<FMovieGraphRenderDataIdentifier> ExpectedRenderPasses;
	};
}
