// UMovieGraphNode: one node of a Movie Render Graph, with its pins; UMovieGraphSettingNode: the nodes whose settings a
// graph's evaluation gathers per branch.
#pragma once

#include "CoreMinimal.h"
#include "Graph/MovieGraphCommon.h"
#include "Graph/MovieGraphPin.h"
#include "Misc/Guid.h"
#include "StructUtils/PropertyBag.h"
#include "UObject/Object.h"
#include "UObject/ObjectPtr.h"

#define UE_API STANDIN_MINIMALAPI_FUNCTION(MOVIERENDERPIPELINECORE_API)

class UMovieGraphConfig;
class UMovieGraphEvaluatedConfig;
struct FMovieGraphRenderDataIdentifier;
struct FMovieGraphResolveArgs;

UCLASS(MinimalAPI, Abstract)
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINECORE_API) UMovieGraphNode : public UObject
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMovieGraphNode, UObject, MOVIERENDERPIPELINECORE_API)

	friend class UMovieGraphConfig;
	friend class UMovieGraphEdge;

public:
	static MOVIERENDERPIPELINECORE_API FName GlobalsPinName;
	static MOVIERENDERPIPELINECORE_API FString GlobalsPinNameString;

	UE_API UMovieGraphNode();

	UFUNCTION(BlueprintCallable, Category = "Movie Graph")
	const TArray<UMovieGraphPin*>& GetInputPins() const { return ToRawPtrTArrayUnsafe(InputPins); }

	UFUNCTION(BlueprintCallable, Category = "Movie Graph")
	const TArray<UMovieGraphPin*>& GetOutputPins() const { return ToRawPtrTArrayUnsafe(OutputPins); }

	// The pins the node itself declares; exposed properties add their own input pins.
	UFUNCTION(BlueprintCallable, Category = "Movie Graph")
	UE_API virtual TArray<FMovieGraphPinProperties> GetInputPinProperties() const;

	UFUNCTION(BlueprintCallable, Category = "Movie Graph")
	UE_API virtual TArray<FMovieGraphPinProperties> GetOutputPinProperties() const;

	// The first input pin with this label whose built-in state the requirement accepts.
	UFUNCTION(BlueprintCallable, Category = "Movie Graph")
	UE_API UMovieGraphPin* GetInputPin(const FName& InPinLabel, const EMovieGraphPinQueryRequirement PinRequirement = EMovieGraphPinQueryRequirement::BuiltInOrDynamic) const;

	UFUNCTION(BlueprintCallable, Category = "Movie Graph")
	UE_API UMovieGraphPin* GetOutputPin(const FName& InPinLabel) const;

	UFUNCTION(BlueprintCallable, Category = "Movie Graph")
	UE_API UMovieGraphPin* GetFirstConnectedInputPin() const;

	UFUNCTION(BlueprintCallable, Category = "Movie Graph")
	UE_API UMovieGraphPin* GetFirstConnectedOutputPin() const;

	// Rebuilds the pin lists from the node's pin properties, keeping the pins (and edges) whose label stays.
	UE_API void UpdatePins();

	// Rebuilds the dynamic property bag when the node's dynamic property descriptions changed, keeping matching values.
	UE_API void UpdateDynamicProperties();

	UE_API virtual TArray<FPropertyBagPropertyDesc> GetDynamicPropertyDescriptions() const;

	UE_API UMovieGraphConfig* GetGraph() const;

	const FGuid& GetGuid() const { return Guid; }

	UFUNCTION(BlueprintCallable, Category = "Movie Graph")
	UE_API virtual bool CanBeDisabled() const;

	// Only writes the flag: no Modify, no notification.
	UFUNCTION(BlueprintCallable, Category = "Movie Graph")
	UE_API void SetDisabled(const bool bNewDisableState);

	UFUNCTION(BlueprintCallable, Category = "Movie Graph")
	UE_API bool IsDisabled() const;

	UFUNCTION(BlueprintCallable, Category = "Movie Graph")
	UE_API virtual bool CanBeAddedByUser() const;

	UFUNCTION(BlueprintCallable, Category = "Movie Graph")
	UE_API virtual EMovieGraphBranchRestriction GetBranchRestriction() const;

	// True with the messages in OutValidationErrors when the node's flattened settings cannot be used on the branch.
	UFUNCTION(BlueprintCallable, Category = "Movie Graph")
	UE_API virtual bool GetNodeValidationErrors(const FName& InBranchName, const UMovieGraphEvaluatedConfig* InEvaluatedConfig, TArray<FText>& OutValidationErrors) const;

#if WITH_EDITOR
	int32 GetNodePosX() const { return NodePosX; }
	int32 GetNodePosY() const { return NodePosY; }
	UE_API void SetNodePosX(const int32 InNodePosX);
	UE_API void SetNodePosY(const int32 InNodePosY);
#endif

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Tags")
	TArray<FString> ScriptTags;

protected:
	UPROPERTY()
	TArray<TObjectPtr<UMovieGraphPin>> InputPins;

	UPROPERTY()
	TArray<TObjectPtr<UMovieGraphPin>> OutputPins;

	UPROPERTY()
	FInstancedPropertyBag DynamicProperties;

	UPROPERTY()
	FGuid Guid;

	UPROPERTY()
	uint8 bIsDisabled : 1;

#if WITH_EDITORONLY_DATA
	UPROPERTY()
	int32 NodePosX = 0;

	UPROPERTY()
	int32 NodePosY = 0;
#endif

private:
	// Brings one side's pins in line with the wanted properties.
	void UpdatePinSide(TArray<TObjectPtr<UMovieGraphPin>>& InOutPins, const TArray<FMovieGraphPinProperties>& InWanted);
};

UCLASS(MinimalAPI, Abstract, BlueprintType)
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINECORE_API) UMovieGraphSettingNode : public UMovieGraphNode
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMovieGraphSettingNode, UMovieGraphNode, MOVIERENDERPIPELINECORE_API)

public:
	UE_API UMovieGraphSettingNode();

	// One unlabelled branch pin on each side.
	UE_API virtual TArray<FMovieGraphPinProperties> GetInputPinProperties() const override;
	UE_API virtual TArray<FMovieGraphPinProperties> GetOutputPinProperties() const override;

	// Tells apart several nodes of one class on a branch; empty for most nodes.
	UE_API virtual FString GetNodeInstanceName() const;

	// Called on each flattened node once every branch of the graph has been flattened.
	UE_API virtual void PostFlatten();

	// Adds the file name tokens and file metadata the node gives the outputs of the render data; none by default.
	virtual void GetFormatResolveArgs(FMovieGraphResolveArgs& OutMergedFormatArgs, const FMovieGraphRenderDataIdentifier& InRenderDataIdentifier) const {}
};

#undef UE_API
