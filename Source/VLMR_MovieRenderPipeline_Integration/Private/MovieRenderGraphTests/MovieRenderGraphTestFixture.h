// What the module's Movie Render Graph automation tests share: their flags and the transient graph they build.
#pragma once

#include "CoreMinimal.h"
#include "Graph/MovieGraphConfig.h"
#include "Graph/Nodes/MovieGraphGlobalOutputSettingNode.h"
#include "Misc/AutomationTest.h"
#include "UObject/Package.h"
#include "UObject/StrongObjectPtr.h"

#if WITH_DEV_AUTOMATION_TESTS

namespace VLMR::MovieRenderGraphTests
{
	// Editor context, engine filter.
	inline constexpr EAutomationTestFlags TestFlags = EAutomationTestFlags::EditorContext | EAutomationTestFlags::EngineFilter;

	// A graph in its own "/Temp/" package with one Global Output Settings node, all held for the test's duration.
	struct FGraphFixture
	{
		TStrongObjectPtr<UPackage> Package;
		TStrongObjectPtr<UMovieGraphConfig> Graph;
		TStrongObjectPtr<UMovieGraphGlobalOutputSettingNode> SettingNode;

		// The graph's object path, as a script opens it.
		FString GetGraphPath() const;

		// The setting node's id, as scripts name nodes.
		FString GetSettingNodeId() const;
	};

	// AddLabeledEdge, judged by its outcome: the engine's return value only says whether an older edge was replaced.
	bool AddEdgeAndConfirm(UMovieGraphConfig& Graph, UMovieGraphNode* FromNode, FName FromPinLabel, UMovieGraphNode* ToNode, FName ToPinLabel);

	// Builds the fixture: the setting node overrides the output resolution (a custom size) and the frame rate (30 fps),
	// and with bWire its unlabelled output pin feeds the Output node's Globals pin. False after the test's error.
	// The graph has no render layer, so the engine's render-layer error, which it logs once per editor session at the
	// first such flattening, is declared expected for the test.
	bool BuildGraphFixture(FAutomationTestBase& Test, int32 Width, int32 Height, bool bWire, FGraphFixture& OutFixture);
}

#endif
