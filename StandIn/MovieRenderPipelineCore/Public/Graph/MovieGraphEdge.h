// UMovieGraphEdge: one connection between an output pin and an input pin, stored on both pins.
#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "UObject/ObjectPtr.h"

#define UE_API STANDIN_MINIMALAPI_FUNCTION(MOVIERENDERPIPELINECORE_API)

class UMovieGraphPin;

UCLASS(MinimalAPI)
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINECORE_API) UMovieGraphEdge : public UObject
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMovieGraphEdge, UObject, MOVIERENDERPIPELINECORE_API)

public:
	UE_API UMovieGraphEdge();

	// Both ends are set.
	UE_API bool IsValid() const;

	// The end that is not InFirst; through reroute nodes to the pin beyond them when asked.
	UE_API UMovieGraphPin* GetOtherPin(const UMovieGraphPin* InFirst, const bool bFollowRerouteConnections = false) const;

	UE_API UMovieGraphPin* GetInputPin() const;
	UE_API UMovieGraphPin* GetOutputPin() const;

	// As the engine names them: InputPin is the upstream node's output pin, OutputPin the downstream node's input pin.
	UPROPERTY()
	TObjectPtr<UMovieGraphPin> InputPin;

	UPROPERTY()
	TObjectPtr<UMovieGraphPin> OutputPin;
};

#undef UE_API
