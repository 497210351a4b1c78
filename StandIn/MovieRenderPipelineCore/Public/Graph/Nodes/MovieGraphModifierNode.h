// UMovieGraphModifierNode: changes the actors of named collections while a layer renders.
#pragma once

#include "CoreMinimal.h"
#include "Graph/MovieGraphNode.h"

#define UE_API STANDIN_MINIMALAPI_FUNCTION(MOVIERENDERPIPELINECORE_API)

UCLASS(MinimalAPI)
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINECORE_API) UMovieGraphModifierNode : public UMovieGraphSettingNode
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMovieGraphModifierNode, UMovieGraphSettingNode, MOVIERENDERPIPELINECORE_API)

public:
	UE_API UMovieGraphModifierNode();

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Modifiers")
	TArray<FName> Collections;
};

#undef UE_API
