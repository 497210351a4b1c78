#include "Graph/Nodes/MovieGraphSelectNode.h"

#include "UObject/UnrealType.h"

UMovieGraphSelectNode::UMovieGraphSelectNode() = default;

TArray<FMovieGraphPinProperties> UMovieGraphSelectNode::GetInputPinProperties() const
{
	TArray<FMovieGraphPinProperties> PinProperties;
	for (const FString& Option : SelectOptions)
	{
		FMovieGraphPinProperties& OptionPin = PinProperties.Add_GetRef(FMovieGraphPinProperties::MakeBranchProperties(FName(*Option)));
		OptionPin.bIsBuiltIn = false;
	}
	PinProperties.Add(FMovieGraphPinProperties::MakeBranchProperties(TEXT("Default")));
	PinProperties.Add(FMovieGraphPinProperties(TEXT("Selected Option"), EMovieGraphValueType::String, nullptr, false));
	return PinProperties;
}

TArray<FMovieGraphPinProperties> UMovieGraphSelectNode::GetOutputPinProperties() const
{
	return { FMovieGraphPinProperties::MakeBranchProperties() };
}

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMovieGraphSelectNode, CLASS_None, "MovieRenderPipelineCore")
{
	STANDIN_PROPERTY(SelectOptions, CPF_Edit | CPF_BlueprintVisible);
	STANDIN_PROPERTY(SelectedOption, CPF_Edit | CPF_BlueprintVisible);
}
