// UMovieGraphSelectNode: continues along the branch of the option its selector names.
#pragma once

#include "CoreMinimal.h"
#include "Graph/MovieGraphNode.h"

#define UE_API STANDIN_MINIMALAPI_FUNCTION(MOVIERENDERPIPELINECORE_API)

UCLASS(MinimalAPI)
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINECORE_API) UMovieGraphSelectNode : public UMovieGraphNode
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMovieGraphSelectNode, UMovieGraphNode, MOVIERENDERPIPELINECORE_API)

public:
	UE_API UMovieGraphSelectNode();

	// One dynamic branch input per option, named after it, the built-in "Default" branch input, then a string
	// "Selected Option" data input.
	UE_API virtual TArray<FMovieGraphPinProperties> GetInputPinProperties() const override;

	// One unlabelled branch output.
	UE_API virtual TArray<FMovieGraphPinProperties> GetOutputPinProperties() const override;

	// Stand-in choice: the options are kept as their names.
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Select")
	TArray<FString> SelectOptions;

	// The option followed when the "Selected Option" pin brings no value.
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Select")
	FString SelectedOption;
};

#undef UE_API
