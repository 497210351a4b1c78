// UMovieGraphPin: one input or output of a graph node, with the edges that connect it to other pins.
#pragma once

#include "CoreMinimal.h"
#include "EdGraph/EdGraphSchema.h"
#include "Graph/MovieGraphCommon.h"
#include "UObject/Object.h"
#include "UObject/ObjectPtr.h"

#define UE_API STANDIN_MINIMALAPI_FUNCTION(MOVIERENDERPIPELINECORE_API)

class UMovieGraphEdge;
class UMovieGraphNode;

// Which pins a query by label accepts: the node's own pins, pins made from exposed properties, or both.
UENUM(BlueprintType)
enum class EMovieGraphPinQueryRequirement : uint8
{
	BuiltIn = 0,
	Dynamic = 1,
	BuiltInOrDynamic = 2
};
STANDIN_DECLARE_ENUM(EMovieGraphPinQueryRequirement, MOVIERENDERPIPELINECORE_API)

// What a pin is: its label, the type of value it carries (or a branch), and how many edges it takes.
USTRUCT(BlueprintType)
struct FMovieGraphPinProperties
{
	STANDIN_STRUCT_BODY(FMovieGraphPinProperties, MOVIERENDERPIPELINECORE_API)

public:
	FMovieGraphPinProperties() = default;

	explicit FMovieGraphPinProperties(const FName& InLabel, const EMovieGraphValueType PinType, const TObjectPtr<const UObject>& InTypeObject, bool bInAllowMultipleConnections)
		: Label(InLabel)
		, Type(PinType)
		, TypeObject(InTypeObject)
		, bAllowMultipleConnections(bInAllowMultipleConnections)
	{
	}

	// A branch pin: no value type, one edge on an input.
	static FMovieGraphPinProperties MakeBranchProperties(const FName& InLabel = NAME_None)
	{
		FMovieGraphPinProperties Properties(InLabel, EMovieGraphValueType::None, nullptr, false);
		Properties.bIsBranch = true;
		return Properties;
	}

	// A pin that takes the type of whatever it is connected to.
	static FMovieGraphPinProperties MakeWildcardProperties(const FName& InLabel = NAME_None)
	{
		FMovieGraphPinProperties Properties(InLabel, EMovieGraphValueType::None, nullptr, false);
		Properties.bIsWildcard = true;
		return Properties;
	}

	// Wildcard state is not part of a pin's identity: a wildcard pin that took a type is the same pin.
	bool operator==(const FMovieGraphPinProperties& Other) const
	{
		return Label == Other.Label && Type == Other.Type && TypeObject == Other.TypeObject
			&& bAllowMultipleConnections == Other.bAllowMultipleConnections && bIsBranch == Other.bIsBranch && bIsBuiltIn == Other.bIsBuiltIn;
	}

	bool operator!=(const FMovieGraphPinProperties& Other) const { return !(*this == Other); }

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Properties")
	FName Label = NAME_None;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Properties")
	EMovieGraphValueType Type = EMovieGraphValueType::Float;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Properties")
	TObjectPtr<const UObject> TypeObject;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Properties")
	bool bAllowMultipleConnections = true;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Properties")
	bool bIsBranch = false;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Properties")
	bool bIsWildcard = false;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Properties")
	bool bIsBuiltIn = true;
};

UCLASS(MinimalAPI)
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINECORE_API) UMovieGraphPin : public UObject
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMovieGraphPin, UObject, MOVIERENDERPIPELINECORE_API)

public:
	UE_API UMovieGraphPin();

	// Connects this pin to the other one; refuses a duplicate edge and two pins of the same direction.
	UE_API bool AddEdgeTo(UMovieGraphPin* InOtherPin);
	UE_API bool BreakEdgeTo(UMovieGraphPin* InOtherPin);
	UE_API bool BreakAllEdges();

	// Whether this (output) pin may be connected to the other (input) pin, and why not.
	UE_API FPinConnectionResponse CanCreateConnection_PinConnectionResponse(const UMovieGraphPin* InOtherPin) const;

	UFUNCTION(BlueprintCallable, Category = "Experimental")
	UE_API bool CanCreateConnection(const UMovieGraphPin* InOtherPin) const;

	UFUNCTION(BlueprintCallable, Category = "Experimental")
	UE_API bool IsConnected() const;

	UFUNCTION(BlueprintCallable, Category = "Experimental")
	UE_API bool IsInputPin() const;

	UFUNCTION(BlueprintCallable, Category = "Experimental")
	UE_API bool IsOutputPin() const;

	// Every stored edge, valid or not.
	UFUNCTION(BlueprintCallable, Category = "Experimental")
	UE_API int32 EdgeCount() const;

	// Output pins always take many edges; input pins as their properties say.
	UFUNCTION(BlueprintCallable, Category = "Experimental")
	UE_API bool AllowsMultipleConnections() const;

	UFUNCTION(BlueprintCallable, Category = "Experimental")
	UE_API UMovieGraphPin* GetFirstConnectedPin(const bool bFollowRerouteConnections = false) const;

	// The pin at the other end of each valid edge.
	UFUNCTION(BlueprintCallable, Category = "Experimental")
	UE_API TArray<UMovieGraphPin*> GetAllConnectedPins() const;

	UFUNCTION(BlueprintCallable, Category = "Experimental")
	UE_API TArray<UMovieGraphNode*> GetConnectedNodes() const;

	// The branch rules of a connection between two branch pins.
	UFUNCTION(BlueprintCallable, Category = "Experimental")
	UE_API bool IsConnectionToBranchAllowed(const UMovieGraphPin* OtherPin, FText& OutError) const;

	UFUNCTION(BlueprintCallable, Category = "Experimental")
	UE_API bool IsPinDirectionCompatibleWith(const UMovieGraphPin* OtherPin) const;

	UFUNCTION(BlueprintCallable, Category = "Experimental")
	UE_API bool IsTypeCompatibleWith(const UMovieGraphPin* InOtherPin) const;

	UPROPERTY(BlueprintReadOnly, Category = "Properties")
	TObjectPtr<UMovieGraphNode> Node = nullptr;

	UPROPERTY(BlueprintReadOnly, EditAnywhere, Category = "Properties")
	FMovieGraphPinProperties Properties;

	UPROPERTY(BlueprintReadOnly, TextExportTransient, Category = "Properties")
	TArray<TObjectPtr<UMovieGraphEdge>> Edges;
};

#undef UE_API
