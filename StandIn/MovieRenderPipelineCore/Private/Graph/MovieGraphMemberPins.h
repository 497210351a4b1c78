// The pins that graph members give the nodes showing them: the Input and Output nodes, and subgraph nodes.
#pragma once

#include "CoreMinimal.h"
#include "Graph/MovieGraphPin.h"

namespace UE::MovieGraph::Private
{
	// One pin per member, named after it and carrying its type; a branch when the member is one.
	template<class TMember>
	TArray<FMovieGraphPinProperties> MakeMemberPinProperties(const TArray<TMember*>& InMembers)
	{
		TArray<FMovieGraphPinProperties> PinProperties;
		for (const TMember* Member : InMembers)
		{
			if (Member)
			{
				FMovieGraphPinProperties& Properties = PinProperties.Emplace_GetRef(FName(*Member->GetMemberName()), Member->GetValueType(), Member->GetValueTypeObject(), false);
				Properties.bIsBranch = Member->bIsBranch;
			}
		}
		return PinProperties;
	}
}
