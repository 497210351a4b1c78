#include "Graph/Nodes/MovieGraphVariableNode.h"

#include "Graph/MovieGraphConfig.h"
#include "UObject/UnrealType.h"

UMovieGraphVariableNode::UMovieGraphVariableNode() = default;

TArray<FMovieGraphPinProperties> UMovieGraphVariableNode::GetOutputPinProperties() const
{
	if (!GraphVariable)
	{
		return {};
	}
	return { FMovieGraphPinProperties(FName(*GraphVariable->GetMemberName()), GraphVariable->GetValueType(), GraphVariable->GetValueTypeObject(), true) };
}

UMovieGraphVariable* UMovieGraphVariableNode::GetVariable() const
{
	return GraphVariable;
}

void UMovieGraphVariableNode::SetVariable(UMovieGraphVariable* InVariable)
{
	GraphVariable = InVariable;
	UpdatePins();
}

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMovieGraphVariableNode, CLASS_None, "MovieRenderPipelineCore")
{
	STANDIN_PROPERTY(GraphVariable, CPF_None);
}
