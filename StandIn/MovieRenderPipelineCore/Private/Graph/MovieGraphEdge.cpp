#include "Graph/MovieGraphEdge.h"

#include "Graph/MovieGraphNode.h"
#include "Graph/MovieGraphPin.h"
#include "Graph/Nodes/MovieGraphRerouteNode.h"
#include "UObject/UnrealType.h"

UMovieGraphEdge::UMovieGraphEdge() = default;

bool UMovieGraphEdge::IsValid() const
{
	return InputPin && OutputPin;
}

UMovieGraphPin* UMovieGraphEdge::GetOtherPin(const UMovieGraphPin* InFirst, const bool bFollowRerouteConnections) const
{
	UMovieGraphPin* OtherPin = InFirst == InputPin ? OutputPin.Get() : InputPin.Get();
#if !UE_VERSION_OLDER_THAN(5, 6, 0)
	// Through a chain of reroute nodes to the first pin that is not a reroute's; a reroute cycle ends the walk.
	TSet<const UMovieGraphNode*> VisitedReroutes;
	while (bFollowRerouteConnections && OtherPin && OtherPin->Node && OtherPin->Node->IsA<UMovieGraphRerouteNode>() && !VisitedReroutes.Contains(OtherPin->Node))
	{
		const UMovieGraphNode* Reroute = OtherPin->Node;
		VisitedReroutes.Add(Reroute);
		const TArray<UMovieGraphPin*>& FarSide = OtherPin->IsInputPin() ? Reroute->GetOutputPins() : Reroute->GetInputPins();
		OtherPin = FarSide.Num() > 0 && FarSide[0] ? FarSide[0]->GetFirstConnectedPin(false) : nullptr;
	}
#endif
	return OtherPin;
}

UMovieGraphPin* UMovieGraphEdge::GetInputPin() const
{
	return InputPin;
}

UMovieGraphPin* UMovieGraphEdge::GetOutputPin() const
{
	return OutputPin;
}

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMovieGraphEdge, CLASS_None, "MovieRenderPipelineCore")
{
	STANDIN_PROPERTY(InputPin, CPF_None);
	STANDIN_PROPERTY(OutputPin, CPF_None);
}
