// Set-up shared by the render tests: a sequence of two shots and chains of graph nodes.
#pragma once

#include "CoreMinimal.h"
#include "Graph/MovieGraphConfig.h"
#include "LevelSequence.h"
#include "MovieScene.h"
#include "UObject/Package.h"

namespace UE::MovieRenderTest
{
	constexpr int32 TicksPerFrame = 1000;

	inline void AddShot(ULevelSequence& InSequence, const TCHAR* InName, const TCHAR* InCamera, int32 InStartFrame, int32 InEndFrame)
	{
		FMovieSceneStandInShot Shot;
		Shot.ShotDisplayName = InName;
		Shot.CameraName = InCamera;
		Shot.SectionRange.Value = TRange<FFrameNumber>(FFrameNumber(InStartFrame * TicksPerFrame), FFrameNumber(InEndFrame * TicksPerFrame));
		InSequence.GetMovieScene()->AddStandInShot(Shot);
	}

	// A kept 24 fps sequence of two shots of two frames each: sh010 (camera CamA) and sh020 (camera CamB).
	inline ULevelSequence* CreateTwoShotSequence(const TCHAR* InPackageName, const TCHAR* InName)
	{
		ULevelSequence* Sequence = NewObject<ULevelSequence>(CreatePackage(InPackageName), InName, RF_Public | RF_Standalone);
		Sequence->Initialize();
		UMovieScene* MovieScene = Sequence->GetMovieScene();
		MovieScene->SetTickResolutionDirectly(FFrameRate(24 * TicksPerFrame, 1));
		MovieScene->SetDisplayRate(FFrameRate(24, 1));
		MovieScene->SetPlaybackRange(TRange<FFrameNumber>(FFrameNumber(0), FFrameNumber(4 * TicksPerFrame)));
		AddShot(*Sequence, TEXT("sh010"), TEXT("CamA"), 0, 2);
		AddShot(*Sequence, TEXT("sh020"), TEXT("CamB"), 2, 4);
		return Sequence;
	}

	// Connects the nodes into one chain ending at the Output node's pin, the first node nearest the Output.
	inline void ChainNodes(UMovieGraphConfig* InGraph, const FName& InBranch, const TArray<UMovieGraphNode*>& InNearestFirst)
	{
		UMovieGraphNode* Downstream = InGraph->GetOutputNode();
		FName DownstreamPin = InBranch;
		for (UMovieGraphNode* Node : InNearestFirst)
		{
			InGraph->AddLabeledEdge(Node, NAME_None, Downstream, DownstreamPin);
			Downstream = Node;
			DownstreamPin = NAME_None;
		}
	}
}
