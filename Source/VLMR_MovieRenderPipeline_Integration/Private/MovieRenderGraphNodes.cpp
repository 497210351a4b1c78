#include "MovieRenderGraphNodes.h"

#include "Graph/MovieGraphConfig.h"
#include "Graph/MovieGraphNode.h"
#include "Graph/MovieGraphPin.h"
#include "VLMRClassLookup.h"
#include "VLMRScriptArguments.h"

namespace VLMR
{
	FString MakeNodeId(const UMovieGraphNode& Node)
	{
		return Node.GetGuid().ToString(EGuidFormats::DigitsWithHyphens);
	}

	UMovieGraphNode* FindGraphNode(const UMovieGraphConfig* Graph, const FString& NodeId)
	{
		if (!Graph)
		{
			return nullptr;
		}
		if (NodeId.Equals(TEXT("input"), ESearchCase::IgnoreCase))
		{
			return Graph->GetInputNode();
		}
		if (NodeId.Equals(TEXT("output"), ESearchCase::IgnoreCase))
		{
			return Graph->GetOutputNode();
		}
		for (UMovieGraphNode* Node : Graph->GetNodes())
		{
			if (Node && MakeNodeId(*Node).Equals(NodeId, ESearchCase::IgnoreCase))
			{
				return Node;
			}
		}
		return nullptr;
	}

	static TArray<FPinRow> ReadPinRows(const TArray<UMovieGraphPin*>& Pins)
	{
		TArray<FPinRow> Rows;
		for (const UMovieGraphPin* Pin : Pins)
		{
			if (Pin)
			{
				Rows.Add({ Pin->Properties.Label.ToString(), Pin->EdgeCount(), Pin->Properties.bIsBranch });
			}
		}
		return Rows;
	}

	FNodeInfo ReadNodeInfo(const UMovieGraphNode& Node)
	{
		FNodeInfo Info;
		Info.Id = MakeNodeId(Node);
		Info.ClassName = Node.GetClass()->GetName();
		Info.bIsDisabled = Node.IsDisabled();
		Info.Inputs = ReadPinRows(Node.GetInputPins());
		Info.Outputs = ReadPinRows(Node.GetOutputPins());
		Info.ScriptTags = Node.ScriptTags;
		return Info;
	}

	static sol::table MakePinRows(sol::state_view Lua, const TArray<FPinRow>& Rows)
	{
		sol::table Table = Lua.create_table(Rows.Num(), 0);
		for (const FPinRow& Row : Rows)
		{
			Table.add(Lua.create_table_with("label", ToUtf8(Row.Label), "edge_count", Row.EdgeCount, "is_branch", Row.bIsBranch));
		}
		return Table;
	}

	sol::table MakeNodeInfoTable(sol::state_view Lua, const FNodeInfo& Info)
	{
		sol::table Tags = Lua.create_table(Info.ScriptTags.Num(), 0);
		for (const FString& Tag : Info.ScriptTags)
		{
			Tags.add(ToUtf8(Tag));
		}
		sol::table Table = Lua.create_table(0, 9);
		Table["id"] = ToUtf8(Info.Id);
		Table["class"] = ToUtf8(Info.ClassName);
		Table["disabled"] = Info.bIsDisabled;
		Table["input_pin_count"] = Info.Inputs.Num();
		Table["inputs"] = MakePinRows(Lua, Info.Inputs);
		Table["output_pin_count"] = Info.Outputs.Num();
		Table["outputs"] = MakePinRows(Lua, Info.Outputs);
		Table["script_tags"] = Tags;
		Table["script_tag_count"] = Info.ScriptTags.Num();
		return Table;
	}

	FResolvedPinLabel ResolvePinLabel(const UMovieGraphNode* Node, const FString& LabelText, EPinSide Side)
	{
		const FName Requested = LabelText.IsEmpty() ? NAME_None : FName(*LabelText);
		if (!Node)
		{
			return { Requested, false };
		}
		int32 BranchPinCount = 0;
		const UMovieGraphPin* LastBranchPin = nullptr;
		for (const UMovieGraphPin* Pin : Side == EPinSide::Input ? Node->GetInputPins() : Node->GetOutputPins())
		{
			if (!Pin)
			{
				continue;
			}
			if (Pin->Properties.Label == Requested)
			{
				return { Requested, false };
			}
			if (Pin->Properties.bIsBranch)
			{
				++BranchPinCount;
				LastBranchPin = Pin;
			}
		}
		if (BranchPinCount == 1 && LastBranchPin->Properties.Label.IsNone() && !Requested.IsNone())
		{
			return { NAME_None, true };
		}
		return { Requested, false };
	}

	UClass* ResolveNodeClass(const FString& Name)
	{
		return ResolveClassByScriptName(Name, UMovieGraphNode::StaticClass(), CLASS_Abstract | CLASS_Deprecated);
	}
}
