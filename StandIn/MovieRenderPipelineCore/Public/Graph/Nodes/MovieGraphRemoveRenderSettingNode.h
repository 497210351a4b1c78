// UMovieGraphRemoveRenderSettingNode: removes the setting nodes of one class placed upstream on its branch.
#pragma once

#include "CoreMinimal.h"
#include "Graph/MovieGraphNode.h"
#include "Templates/SubclassOf.h"

#define UE_API STANDIN_MINIMALAPI_FUNCTION(MOVIERENDERPIPELINECORE_API)

UCLASS(MinimalAPI)
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINECORE_API) UMovieGraphRemoveRenderSettingNode : public UMovieGraphNode
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMovieGraphRemoveRenderSettingNode, UMovieGraphNode, MOVIERENDERPIPELINECORE_API)

public:
	UE_API UMovieGraphRemoveRenderSettingNode();

	// Stand-in choice: one unlabelled branch pin on each side, as on setting nodes.
	UE_API virtual TArray<FMovieGraphPinProperties> GetInputPinProperties() const override;
	UE_API virtual TArray<FMovieGraphPinProperties> GetOutputPinProperties() const override;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Settings")
	TSubclassOf<UMovieGraphSettingNode> NodeType;
};

#undef UE_API
