// Registration of a Movie Render Graph node's overrideable properties: each real property and its "bOverride_" flag.
#pragma once

#include "CoreMinimal.h"
#include "UObject/UnrealType.h"

namespace UE::MovieGraph::StandIn
{
	inline FProperty* MarkOverrideFlag(FProperty* InFlagProperty)
	{
		InFlagProperty->SetMetaData(TEXT("InlineEditConditionToggle"), TEXT(""));
		return InFlagProperty;
	}

	inline FProperty* MarkOverrideable(FProperty* InRealProperty)
	{
		InRealProperty->SetMetaData(TEXT("EditCondition"), *(FString(TEXT("bOverride_")) + InRealProperty->GetName()));
		return InRealProperty;
	}
}

// Inside a node's registration body: the flag "bOverride_<Member>" (editable, an inline edit-condition toggle), then the
// property itself with the given flags, editable under that condition. Yields the real property for more metadata.
#define STANDIN_OVERRIDEABLE_PROPERTY(Member, TPropertyFlags) \
	(UE::MovieGraph::StandIn::MarkOverrideFlag(STANDIN_BITFIELD_PROPERTY(bOverride_##Member, CPF_Edit | CPF_BlueprintVisible)), \
		UE::MovieGraph::StandIn::MarkOverrideable(STANDIN_PROPERTY(Member, TPropertyFlags)))
