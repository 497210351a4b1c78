#include "Graph/MovieGraphNode.h"

#include "Graph/MovieGraphConfig.h"
#include "Graph/MovieGraphPin.h"
#include "UObject/UnrealType.h"

FName UMovieGraphNode::GlobalsPinName = FName(TEXT("Globals"));
FString UMovieGraphNode::GlobalsPinNameString = TEXT("Globals");

namespace UE::MovieGraph::Private
{
	bool MeetsPinRequirement(const UMovieGraphPin* InPin, const EMovieGraphPinQueryRequirement InRequirement)
	{
		switch (InRequirement)
		{
		case EMovieGraphPinQueryRequirement::BuiltIn:
			return InPin->Properties.bIsBuiltIn;
		case EMovieGraphPinQueryRequirement::Dynamic:
			return !InPin->Properties.bIsBuiltIn;
		default:
			return true;
		}
	}

	UMovieGraphPin* FindFirstConnectedPin(const TArray<UMovieGraphPin*>& InPins)
	{
		for (UMovieGraphPin* Pin : InPins)
		{
			if (Pin && Pin->IsConnected())
			{
				return Pin;
			}
		}
		return nullptr;
	}

	// The pin of the old list with this label that was not taken yet.
	int32 FindReusablePin(const TArray<TObjectPtr<UMovieGraphPin>>& InOldPins, const TArray<bool>& InTaken, const FName& InLabel)
	{
		for (int32 PinIndex = 0; PinIndex < InOldPins.Num(); ++PinIndex)
		{
			if (!InTaken[PinIndex] && InOldPins[PinIndex] && InOldPins[PinIndex]->Properties.Label == InLabel)
			{
				return PinIndex;
			}
		}
		return INDEX_NONE;
	}

	bool HasSameLayout(const FInstancedPropertyBag& InBag, const TArray<FPropertyBagPropertyDesc>& InDescs)
	{
		if (InBag.GetNumPropertiesInBag() != InDescs.Num())
		{
			return false;
		}
		for (const FPropertyBagPropertyDesc& Desc : InDescs)
		{
			const FPropertyBagPropertyDesc* Existing = InBag.FindPropertyDescByName(Desc.Name);
			if (!Existing || !Existing->CompatibleType(Desc))
			{
				return false;
			}
		}
		return true;
	}
}

UMovieGraphNode::UMovieGraphNode()
	: bIsDisabled(false)
{
}

TArray<FMovieGraphPinProperties> UMovieGraphNode::GetInputPinProperties() const
{
	return {};
}

TArray<FMovieGraphPinProperties> UMovieGraphNode::GetOutputPinProperties() const
{
	return {};
}

UMovieGraphPin* UMovieGraphNode::GetInputPin(const FName& InPinLabel, const EMovieGraphPinQueryRequirement PinRequirement) const
{
	for (UMovieGraphPin* Pin : InputPins)
	{
		if (Pin && Pin->Properties.Label == InPinLabel && UE::MovieGraph::Private::MeetsPinRequirement(Pin, PinRequirement))
		{
			return Pin;
		}
	}
	return nullptr;
}

UMovieGraphPin* UMovieGraphNode::GetOutputPin(const FName& InPinLabel) const
{
	for (UMovieGraphPin* Pin : OutputPins)
	{
		if (Pin && Pin->Properties.Label == InPinLabel)
		{
			return Pin;
		}
	}
	return nullptr;
}

UMovieGraphPin* UMovieGraphNode::GetFirstConnectedInputPin() const
{
	return UE::MovieGraph::Private::FindFirstConnectedPin(GetInputPins());
}

UMovieGraphPin* UMovieGraphNode::GetFirstConnectedOutputPin() const
{
	return UE::MovieGraph::Private::FindFirstConnectedPin(GetOutputPins());
}

// Stand-in choice: no property is promoted to a pin, so the input pins are the node's declared ones.
void UMovieGraphNode::UpdatePins()
{
	UpdatePinSide(InputPins, GetInputPinProperties());
	UpdatePinSide(OutputPins, GetOutputPinProperties());
}

void UMovieGraphNode::UpdatePinSide(TArray<TObjectPtr<UMovieGraphPin>>& InOutPins, const TArray<FMovieGraphPinProperties>& InWanted)
{
	TArray<bool> Taken;
	Taken.SetNumZeroed(InOutPins.Num());
	TArray<TObjectPtr<UMovieGraphPin>> NewPins;
	for (const FMovieGraphPinProperties& Wanted : InWanted)
	{
		const int32 Reused = UE::MovieGraph::Private::FindReusablePin(InOutPins, Taken, Wanted.Label);
		if (Reused != INDEX_NONE)
		{
			Taken[Reused] = true;
			UMovieGraphPin* Pin = InOutPins[Reused];
			Pin->Properties = Wanted;
			NewPins.Add(Pin);
			continue;
		}
		UMovieGraphPin* NewPin = NewObject<UMovieGraphPin>(this, NAME_None, RF_Transactional);
		NewPin->Node = this;
		NewPin->Properties = Wanted;
		NewPins.Add(NewPin);
	}
	InOutPins = MoveTemp(NewPins);
}

void UMovieGraphNode::UpdateDynamicProperties()
{
	const TArray<FPropertyBagPropertyDesc> Descs = GetDynamicPropertyDescriptions();
	if (UE::MovieGraph::Private::HasSameLayout(DynamicProperties, Descs))
	{
		return;
	}
	FInstancedPropertyBag NewProperties;
	NewProperties.AddProperties(Descs);
	NewProperties.CopyMatchingValuesByID(DynamicProperties);
	DynamicProperties = MoveTemp(NewProperties);
}

TArray<FPropertyBagPropertyDesc> UMovieGraphNode::GetDynamicPropertyDescriptions() const
{
	return {};
}

UMovieGraphConfig* UMovieGraphNode::GetGraph() const
{
	return Cast<UMovieGraphConfig>(GetOuter());
}

bool UMovieGraphNode::CanBeDisabled() const
{
	return true;
}

void UMovieGraphNode::SetDisabled(const bool bNewDisableState)
{
	bIsDisabled = bNewDisableState;
}

bool UMovieGraphNode::IsDisabled() const
{
	return bIsDisabled;
}

bool UMovieGraphNode::CanBeAddedByUser() const
{
	return true;
}

EMovieGraphBranchRestriction UMovieGraphNode::GetBranchRestriction() const
{
	return EMovieGraphBranchRestriction::Any;
}

bool UMovieGraphNode::GetNodeValidationErrors(const FName& InBranchName, const UMovieGraphEvaluatedConfig* InEvaluatedConfig, TArray<FText>& OutValidationErrors) const
{
	return false;
}

#if WITH_EDITOR
void UMovieGraphNode::SetNodePosX(const int32 InNodePosX)
{
	NodePosX = InNodePosX;
}

void UMovieGraphNode::SetNodePosY(const int32 InNodePosY)
{
	NodePosY = InNodePosY;
}
#endif

UMovieGraphSettingNode::UMovieGraphSettingNode() = default;

TArray<FMovieGraphPinProperties> UMovieGraphSettingNode::GetInputPinProperties() const
{
	return { FMovieGraphPinProperties::MakeBranchProperties() };
}

TArray<FMovieGraphPinProperties> UMovieGraphSettingNode::GetOutputPinProperties() const
{
	return { FMovieGraphPinProperties::MakeBranchProperties() };
}

FString UMovieGraphSettingNode::GetNodeInstanceName() const
{
	return FString();
}

void UMovieGraphSettingNode::PostFlatten()
{
}

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMovieGraphNode, CLASS_Abstract, "MovieRenderPipelineCore")
{
	STANDIN_PROPERTY(ScriptTags, CPF_Edit | CPF_BlueprintVisible);
	STANDIN_PROPERTY(InputPins, CPF_None);
	STANDIN_PROPERTY(OutputPins, CPF_None);
	STANDIN_PROPERTY(DynamicProperties, CPF_None);
	STANDIN_PROPERTY(Guid, CPF_None);
	STANDIN_BITFIELD_PROPERTY(bIsDisabled, CPF_None);
#if WITH_EDITORONLY_DATA
	STANDIN_PROPERTY(NodePosX, CPF_EditorOnly);
	STANDIN_PROPERTY(NodePosY, CPF_EditorOnly);
#endif
	STANDIN_FUNCTION(GetInputPinProperties);
	STANDIN_FUNCTION(GetOutputPinProperties);
	STANDIN_FUNCTION(GetInputPin, TEXT("InPinLabel"), TEXT("PinRequirement"));
	STANDIN_FUNCTION(GetOutputPin, TEXT("InPinLabel"));
	STANDIN_FUNCTION(GetFirstConnectedInputPin);
	STANDIN_FUNCTION(GetFirstConnectedOutputPin);
	STANDIN_FUNCTION(CanBeDisabled);
	STANDIN_FUNCTION(SetDisabled, TEXT("bNewDisableState"));
	STANDIN_FUNCTION(IsDisabled);
	STANDIN_FUNCTION(CanBeAddedByUser);
	STANDIN_FUNCTION(GetBranchRestriction);
	STANDIN_FUNCTION(GetNodeValidationErrors, TEXT("InBranchName"), TEXT("InEvaluatedConfig"), TEXT("OutValidationErrors"));
}

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMovieGraphSettingNode, CLASS_Abstract, "MovieRenderPipelineCore")
{
}
