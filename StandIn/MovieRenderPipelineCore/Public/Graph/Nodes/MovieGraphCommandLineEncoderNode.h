// UMovieGraphCommandLineEncoderNode: starts an encoder process on the rendered files once the renders are done.
#pragma once

#include "CoreMinimal.h"
#include "Graph/MovieGraphNode.h"

#define UE_API STANDIN_MINIMALAPI_FUNCTION(MOVIERENDERPIPELINECORE_API)

UCLASS(MinimalAPI)
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINECORE_API) UMovieGraphCommandLineEncoderNode : public UMovieGraphSettingNode
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMovieGraphCommandLineEncoderNode, UMovieGraphSettingNode, MOVIERENDERPIPELINECORE_API)

public:
	UE_API UMovieGraphCommandLineEncoderNode();

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Overrides, meta = (InlineEditConditionToggle))
	uint8 bOverride_FileNameFormat : 1 = 0;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Overrides, meta = (InlineEditConditionToggle))
	uint8 bOverride_bDeleteSourceFiles : 1 = 0;

	// Stand-in choice: one encoded file per sequence by default.
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Command Line Encoder", meta = (EditCondition = "bOverride_FileNameFormat"))
	FString FileNameFormat = TEXT("{sequence_name}");

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Command Line Encoder", meta = (EditCondition = "bOverride_bDeleteSourceFiles"))
	bool bDeleteSourceFiles = false;
};

#undef UE_API
