// How scripts name, find and read graph nodes: node ids, node descriptions, pin labels and node classes.
#pragma once

#include "CoreMinimal.h"
#include "VelmireLuaIncludes.h"

class UClass;
class UMovieGraphConfig;
class UMovieGraphNode;

namespace VLMR
{
	// The node's GUID as 36 upper-case hexadecimal digits in 8-4-4-4-12 groups.
	FString MakeNodeId(const UMovieGraphNode& Node);

	// "input" and "output" (any case) name the graph's Input and Output nodes; any other id is compared with each listed
	// node's GUID, case-insensitively.
	UMovieGraphNode* FindGraphNode(const UMovieGraphConfig* Graph, const FString& NodeId);

	// One pin of a node, read at one moment.
	struct FPinRow
	{
		FString Label;
		int32 EdgeCount = 0;
		bool bIsBranch = false;
	};

	// A node's description, read at one moment.
	struct FNodeInfo
	{
		FString Id;
		FString ClassName;
		bool bIsDisabled = false;
		TArray<FPinRow> Inputs;
		TArray<FPinRow> Outputs;
		TArray<FString> ScriptTags;
	};

	FNodeInfo ReadNodeInfo(const UMovieGraphNode& Node);

	// {id, class, disabled, input_pin_count, inputs, output_pin_count, outputs, script_tags, script_tag_count}.
	sol::table MakeNodeInfoTable(sol::state_view Lua, const FNodeInfo& Info);

	enum class EPinSide : uint8
	{
		Input,
		Output
	};

	// The label a script's pin text addresses on one side of a node.
	struct FResolvedPinLabel
	{
		FName Label;
		// The single unlabelled branch pin was chosen for a name it does not carry.
		bool bAliased = false;
	};

	// An existing label matches directly; otherwise a node whose only branch pin on that side is unlabelled takes any
	// name for it; any other text passes through unchanged.
	FResolvedPinLabel ResolvePinLabel(const UMovieGraphNode* Node, const FString& LabelText, EPinSide Side);

	// A script's class name to a concrete, non-deprecated graph node class.
	UClass* ResolveNodeClass(const FString& Name);
}
