#include "Graph/MovieGraphConfig.h"

#include "MovieRenderPipelineCoreModule.h"
#include "UObject/UnrealType.h"

UMovieGraphNode* FMovieGraphEvaluatedBranchConfig::GetNodeByClassExactMatch(const TSubclassOf<UMovieGraphNode>& InClass, const FString& InName) const
{
	if (const FMovieGraphEvaluatedSettingsStack* Stack = NamedNodes.Find(InName))
	{
		for (const TObjectPtr<UMovieGraphNode>& Node : Stack->NodeInstances)
		{
			if (Node && Node->GetClass() == InClass.Get())
			{
				return Node;
			}
		}
	}
	return nullptr;
}

TArray<TObjectPtr<UMovieGraphNode>> FMovieGraphEvaluatedBranchConfig::GetNodes() const
{
	TArray<TObjectPtr<UMovieGraphNode>> Nodes;
	for (const TPair<FString, FMovieGraphEvaluatedSettingsStack>& Pair : NamedNodes)
	{
		Nodes.Append(Pair.Value.NodeInstances);
	}
	return Nodes;
}

void FMovieGraphEvaluatedBranchConfig::RemoveNodesOfType(const TSubclassOf<UMovieGraphNode>& InClass)
{
	for (TPair<FString, FMovieGraphEvaluatedSettingsStack>& Pair : NamedNodes)
	{
		Pair.Value.NodeInstances.RemoveAll([&InClass](const TObjectPtr<UMovieGraphNode>& Node)
		{
			return Node && Node->GetClass() == InClass.Get();
		});
	}
}

UMovieGraphEvaluatedConfig::UMovieGraphEvaluatedConfig() = default;

const TArray<FName> UMovieGraphEvaluatedConfig::GetBranchNames() const
{
	TArray<FName> BranchNames;
	BranchConfigMapping.GenerateKeyArray(BranchNames);
	return BranchNames;
}

UMovieGraphSettingNode* UMovieGraphEvaluatedConfig::GetSettingForBranch(UClass* InClass, const FName InBranchName, bool bIncludeCDOs, bool bExactMatch) const
{
	const TArray<UMovieGraphSettingNode*> Settings = GetSettingsForBranch(InClass, InBranchName, bIncludeCDOs, bExactMatch);
	return Settings.Num() > 0 ? Settings[0] : nullptr;
}

// Stand-in choice: as the 5.8 engine, the class default object is added only when the branch has no node of the class.
TArray<UMovieGraphSettingNode*> UMovieGraphEvaluatedConfig::GetSettingsForBranch(UClass* InClass, const FName InBranchName, bool bIncludeCDOs, bool bExactMatch) const
{
	TArray<UMovieGraphSettingNode*> Settings;
	const FMovieGraphEvaluatedBranchConfig* Branch = BranchConfigMapping.Find(InBranchName);
	if (!Branch)
	{
		UE_LOG(LogMovieRenderPipeline, Error, TEXT("GetSettingsForBranch: the evaluated graph has no branch named %s."), *InBranchName.ToString());
		return Settings;
	}
	if (!InClass)
	{
		return Settings;
	}
	for (const TObjectPtr<UMovieGraphNode>& Node : Branch->GetNodes())
	{
		const bool bMatches = Node && (bExactMatch ? Node->GetClass() == InClass : Node->IsA(InClass));
		if (bMatches)
		{
			Settings.Add(static_cast<UMovieGraphSettingNode*>(Node.Get()));
		}
	}
	if (bIncludeCDOs && Settings.Num() == 0 && InClass->IsChildOf(UMovieGraphSettingNode::StaticClass()))
	{
		Settings.Add(static_cast<UMovieGraphSettingNode*>(InClass->GetDefaultObject()));
	}
	return Settings;
}

#if !UE_VERSION_OLDER_THAN(5, 7, 0)
// A missing variable answers false with a fresh default container (a Float holding 0), so that callers never get null.
bool UMovieGraphEvaluatedConfig::GetVariableValueByName(const FString& InVariableName, UMovieGraphValueContainer*& OutVariableValue) const
{
	const TArray<TObjectPtr<UMovieGraphValueContainer>>* Values = VariablesByName.Find(InVariableName);
	if (Values && Values->Num() > 0 && (*Values)[0])
	{
		OutVariableValue = (*Values)[0];
		return true;
	}
	OutVariableValue = NewObject<UMovieGraphValueContainer>(GetTransientPackageAsObject());
	return false;
}

bool UMovieGraphEvaluatedConfig::GetVariableStringValueByName(const FString& InVariableName, const FString& InDefaultValue, FString& OutVariableValue) const
{
	UMovieGraphValueContainer* Value = nullptr;
	if (GetVariableValueByName(InVariableName, Value))
	{
		OutVariableValue = Value->GetValueSerializedString();
		return true;
	}
	OutVariableValue = InDefaultValue;
	return false;
}

const TArray<UMovieGraphConfig*>& UMovieGraphEvaluatedConfig::GetEvaluatedGraphs() const
{
	return ToRawPtrTArrayUnsafe(EvaluatedGraphs);
}
#endif

STANDIN_IMPLEMENT_STRUCT(FMovieGraphEvaluatedSettingsStack, "MovieRenderPipelineCore")
{
	STANDIN_PROPERTY(NodeInstances, CPF_Transient);
}

STANDIN_IMPLEMENT_STRUCT(FMovieGraphEvaluatedBranchConfig, "MovieRenderPipelineCore")
{
	STANDIN_PROPERTY(NamedNodes, CPF_Transient);
}

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMovieGraphEvaluatedConfig, CLASS_None, "MovieRenderPipelineCore")
{
	STANDIN_PROPERTY(BranchConfigMapping, CPF_Transient);
	STANDIN_FUNCTION(GetBranchNames);
#if !UE_VERSION_OLDER_THAN(5, 7, 0)
	STANDIN_PROPERTY(VariableValues, CPF_Transient);
	STANDIN_PROPERTY(EvaluatedGraphs, CPF_Transient);
	STANDIN_FUNCTION(GetVariableValueByName, TEXT("InVariableName"), TEXT("OutVariableValue"));
	STANDIN_FUNCTION(GetVariableStringValueByName, TEXT("InVariableName"), TEXT("InDefaultValue"), TEXT("OutVariableValue"));
	STANDIN_FUNCTION(GetEvaluatedGraphs);
#endif
}
