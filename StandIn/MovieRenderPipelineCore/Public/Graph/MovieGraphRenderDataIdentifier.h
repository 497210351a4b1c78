// FMovieGraphRenderDataIdentifier: which branch, layer, renderer, sub-resource and camera one image belongs to.
#pragma once

#include "CoreMinimal.h"
#include "Templates/TypeHash.h"
#include "UObject/ObjectMacros.h"

USTRUCT(BlueprintType)
struct FMovieGraphRenderDataIdentifier
{
	STANDIN_STRUCT_BODY(FMovieGraphRenderDataIdentifier, MOVIERENDERPIPELINECORE_API)

public:
	FMovieGraphRenderDataIdentifier() = default;

	FMovieGraphRenderDataIdentifier(const FName& InRootBranchName, const FString& InLayerName, const FString& InRendererName,
		const FString& InSubRenderResourceName, const FString& InCameraName)
		: RootBranchName(InRootBranchName)
		, LayerName(InLayerName)
		, RendererName(InRendererName)
		, SubResourceName(InSubRenderResourceName)
		, CameraName(InCameraName)
	{
	}

	bool operator==(const FMovieGraphRenderDataIdentifier& Other) const
	{
		return RootBranchName == Other.RootBranchName && LayerName == Other.LayerName && RendererName == Other.RendererName
			&& SubResourceName == Other.SubResourceName && CameraName == Other.CameraName;
	}

	friend uint32 GetTypeHash(const FMovieGraphRenderDataIdentifier& InIdentifier)
	{
		return HashCombine(HashCombine(HashCombine(HashCombine(GetTypeHash(InIdentifier.RootBranchName), GetTypeHash(InIdentifier.LayerName)),
			GetTypeHash(InIdentifier.RendererName)), GetTypeHash(InIdentifier.SubResourceName)), GetTypeHash(InIdentifier.CameraName));
	}

	UPROPERTY(BlueprintReadWrite, Category = "Movie Graph")
	FName RootBranchName;

	UPROPERTY(BlueprintReadWrite, Category = "Movie Graph")
	FString LayerName;

	UPROPERTY(BlueprintReadWrite, Category = "Movie Graph")
	FString RendererName;

	UPROPERTY(BlueprintReadWrite, Category = "Movie Graph")
	FString SubResourceName;

	UPROPERTY(BlueprintReadWrite, Category = "Movie Graph")
	FString CameraName;
};
