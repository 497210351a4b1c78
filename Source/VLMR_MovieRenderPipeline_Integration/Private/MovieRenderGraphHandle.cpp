// The graph handle: a Movie Render Graph asset opened by a script, its members, nodes and edges, and its save.
#include "Graph/MovieGraphConfig.h"
#include "Graph/MovieGraphNode.h"
#include "Graph/MovieGraphPin.h"
#include "LuaSessionData.h"
#include "MovieRenderGraphNodes.h"
#include "MovieRenderQueueHandles.h"
#include "UObject/StrongObjectPtr.h"
#include "VLMRAssetRoutines.h"
#include "VLMRBindings.h"
#include "VLMRScriptArguments.h"
#include "VLMRScriptResults.h"

namespace VLMR
{
	using FWeakGraph = TWeakObjectPtr<UMovieGraphConfig>;
	using FHeldGraph = TStrongObjectPtr<UMovieGraphConfig>;
	using FHeldNode = TStrongObjectPtr<UMovieGraphNode>;

	static FHeldGraph ResolveGraph(const FWeakGraph& Graph, FLuaSessionData& Session, const TCHAR* Label)
	{
		return ResolveOrReport(Graph, Session, Label, TEXT("graph"));
	}

	// A variable row {name, category, description} or an input/output row {name, description, is_branch}, read at one moment.
	struct FMemberRow
	{
		FString Name;
		FString Category;
		FString Description;
		bool bIsBranch = false;
	};

	struct FGraphInfo
	{
		FString Path;
		int32 NodeCount = 0;
		int32 GlobalVariableCount = 0;
		TArray<FNodeInfo> Nodes;
		TArray<FMemberRow> Variables;
		TArray<FMemberRow> Inputs;
		TArray<FMemberRow> Outputs;
	};

	template<class TMember>
	static TArray<FMemberRow> ReadInterfaceRows(const TArray<TMember*>& Members)
	{
		TArray<FMemberRow> Rows;
		for (const TMember* Member : Members)
		{
			if (Member)
			{
				Rows.Add({ Member->GetMemberName(), FString(), Member->Description, Member->bIsBranch });
			}
		}
		return Rows;
	}

	static FGraphInfo ReadGraphInfo(const UMovieGraphConfig& Graph)
	{
		FGraphInfo Info;
		Info.Path = Graph.GetPathName();
		Info.NodeCount = Graph.GetNodes().Num();
		for (const UMovieGraphNode* Node : Graph.GetNodes())
		{
			if (Node)
			{
				Info.Nodes.Add(ReadNodeInfo(*Node));
			}
		}
		const TArray<UMovieGraphVariable*> UserVariables = Graph.GetVariables(false);
		Info.GlobalVariableCount = Graph.GetVariables(true).Num() - UserVariables.Num();
		for (const UMovieGraphVariable* Variable : UserVariables)
		{
			if (Variable)
			{
				Info.Variables.Add({ Variable->GetMemberName(), Variable->GetCategory(), Variable->Description, false });
			}
		}
		Info.Inputs = ReadInterfaceRows(Graph.GetInputs());
		Info.Outputs = ReadInterfaceRows(Graph.GetOutputs());
		return Info;
	}

	static sol::table MakeVariableRows(sol::state_view Lua, const TArray<FMemberRow>& Rows)
	{
		sol::table Table = Lua.create_table(Rows.Num(), 0);
		for (const FMemberRow& Row : Rows)
		{
			Table.add(Lua.create_table_with("name", ToUtf8(Row.Name), "category", ToUtf8(Row.Category), "description", ToUtf8(Row.Description)));
		}
		return Table;
	}

	static sol::table MakeInterfaceRows(sol::state_view Lua, const TArray<FMemberRow>& Rows)
	{
		sol::table Table = Lua.create_table(Rows.Num(), 0);
		for (const FMemberRow& Row : Rows)
		{
			Table.add(Lua.create_table_with("name", ToUtf8(Row.Name), "description", ToUtf8(Row.Description), "is_branch", Row.bIsBranch));
		}
		return Table;
	}

	static sol::object GraphInfo(sol::state_view Lua, const FWeakGraph& WeakGraph, FLuaSessionData& Session)
	{
		const FHeldGraph Graph = ResolveGraph(WeakGraph, Session, TEXT("graph:info"));
		if (!Graph)
		{
			return Nil(Lua);
		}
		const FGraphInfo Info = ReadGraphInfo(*Graph);
		sol::table Nodes = Lua.create_table(Info.Nodes.Num(), 0);
		for (const FNodeInfo& Node : Info.Nodes)
		{
			Nodes.add(MakeNodeInfoTable(Lua, Node));
		}
		sol::table Table = Lua.create_table(0, 10);
		Table["path"] = ToUtf8(Info.Path);
		Table["node_count"] = Info.NodeCount;
		Table["variable_count"] = Info.Variables.Num();
		Table["global_variable_count"] = Info.GlobalVariableCount;
		Table["input_count"] = Info.Inputs.Num();
		Table["output_count"] = Info.Outputs.Num();
		Table["nodes"] = Nodes;
		Table["variables"] = MakeVariableRows(Lua, Info.Variables);
		Table["inputs"] = MakeInterfaceRows(Lua, Info.Inputs);
		Table["outputs"] = MakeInterfaceRows(Lua, Info.Outputs);
		return Table;
	}

	static sol::object GraphAddVariable(sol::state_view Lua, const FWeakGraph& WeakGraph, FLuaSessionData& Session, const FString& Name, const TOptional<FString>& Category)
	{
		const TCHAR* Label = TEXT("graph:add_variable");
		const FHeldGraph Graph = ResolveGraph(WeakGraph, Session, Label);
		if (!Graph || !CheckEngineNameLength(Session, Label, Name))
		{
			return Nil(Lua);
		}
		const TStrongObjectPtr<UMovieGraphVariable> Variable(Graph->AddVariable(FName(*Name)));
		if (!Variable)
		{
			LogLine(Session, ELineKind::Fail, Label, TEXT("AddVariable failed"));
			return Nil(Lua);
		}
		if (Category.IsSet())
		{
			Variable->SetCategory(Category.GetValue());
		}
		Graph->MarkPackageDirty();
		return sol::make_object(Lua, true);
	}

	// Adds an input or output through the engine function the caller names; the engine picks the final name, which also
	// labels the member's pin and so must fit in an engine name.
	template<class TAddMember>
	static sol::object GraphAddInterfaceMember(sol::state_view Lua, const FWeakGraph& WeakGraph, FLuaSessionData& Session, const TCHAR* Label,
		const TCHAR* EngineFunction, const FString& Name, TAddMember&& AddMember)
	{
		const FHeldGraph Graph = ResolveGraph(WeakGraph, Session, Label);
		if (!Graph || !CheckEngineNameLength(Session, Label, Name))
		{
			return Nil(Lua);
		}
		const TStrongObjectPtr<UMovieGraphMember> Member(AddMember(*Graph, FText::FromString(Name)));
		if (!Member)
		{
			LogLine(Session, ELineKind::Fail, Label, FString::Printf(TEXT("%s failed"), EngineFunction));
			return Nil(Lua);
		}
		Graph->MarkPackageDirty();
		return sol::make_object(Lua, true);
	}

	// User variables first, then inputs, then outputs; global variables are never candidates.
	static UMovieGraphMember* FindDeletableMember(const UMovieGraphConfig& Graph, const FString& Name)
	{
		auto FindIn = [&Name](const auto& Members) -> UMovieGraphMember*
		{
			for (UMovieGraphMember* Member : Members)
			{
				if (Member && Member->GetMemberName().Equals(Name, ESearchCase::IgnoreCase))
				{
					return Member;
				}
			}
			return nullptr;
		};
		if (UMovieGraphMember* Variable = FindIn(Graph.GetVariables(false)))
		{
			return Variable;
		}
		if (UMovieGraphMember* Input = FindIn(Graph.GetInputs()))
		{
			return Input;
		}
		return FindIn(Graph.GetOutputs());
	}

	static sol::object GraphDeleteMember(sol::state_view Lua, const FWeakGraph& WeakGraph, FLuaSessionData& Session, const FString& Name)
	{
		const TCHAR* Label = TEXT("graph:delete_member");
		const FHeldGraph Graph = ResolveGraph(WeakGraph, Session, Label);
		if (!Graph)
		{
			return Nil(Lua);
		}
		const TStrongObjectPtr<UMovieGraphMember> Member(FindDeletableMember(*Graph, Name));
		if (!Member)
		{
			LogLine(Session, ELineKind::Fail, Label, FString::Printf(TEXT("member not found: %s"), *Name));
			return Nil(Lua);
		}
		const bool bDeleted = Graph->DeleteMember(Member.Get());
		Graph->MarkPackageDirty();
		return sol::make_object(Lua, bDeleted);
	}

	static sol::object GraphAddNode(sol::state_view Lua, const FWeakGraph& WeakGraph, FLuaSessionData& Session, const FString& ClassName, const TOptional<FString>& ScriptTag)
	{
		const TCHAR* Label = TEXT("graph:add_node");
		const FHeldGraph Graph = ResolveGraph(WeakGraph, Session, Label);
		if (!Graph)
		{
			return Nil(Lua);
		}
		const TStrongObjectPtr<UClass> NodeClass(ResolveNodeClass(ClassName));
		if (!NodeClass)
		{
			LogLine(Session, ELineKind::Fail, Label, FString::Printf(TEXT("class not found: %s"), *ClassName));
			return Nil(Lua);
		}
		const FHeldNode Node(Graph->CreateNodeByClass(NodeClass.Get()));
		if (!Node)
		{
			LogLine(Session, ELineKind::Fail, Label, FString::Printf(TEXT("CreateNodeByClass failed: %s"), *ClassName));
			return Nil(Lua);
		}
		if (ScriptTag.IsSet())
		{
			Node->ScriptTags.Add(ScriptTag.GetValue());
		}
		Graph->MarkPackageDirty();
		return MakeNodeInfoTable(Lua, ReadNodeInfo(*Node));
	}

	static sol::object GraphSetNodeDisabled(sol::state_view Lua, const FWeakGraph& WeakGraph, FLuaSessionData& Session, const FString& NodeId, bool bDisabled)
	{
		const TCHAR* Label = TEXT("graph:set_node_disabled");
		const FHeldGraph Graph = ResolveGraph(WeakGraph, Session, Label);
		if (!Graph)
		{
			return Nil(Lua);
		}
		const FHeldNode Node(FindGraphNode(Graph.Get(), NodeId));
		if (!Node)
		{
			LogLine(Session, ELineKind::Fail, Label, TEXT("node not found"));
			return Nil(Lua);
		}
		Node->SetDisabled(bDisabled);
		Graph->MarkPackageDirty();
		return sol::make_object(Lua, true);
	}

	// The two ends of a connection a script names, resolved and held for one call.
	struct FEdgeEnds
	{
		FHeldNode FromNode;
		FHeldNode ToNode;
		FResolvedPinLabel FromLabel;
		FResolvedPinLabel ToLabel;
	};

	// The graph, both nodes and both pin labels, checked in this order; false after the failure's line.
	static bool ResolveEdgeEnds(const UMovieGraphConfig& Graph, FLuaSessionData& Session, const TCHAR* Label,
		const FString& FromNodeId, const FString& FromPin, const FString& ToNodeId, const FString& ToPin, FEdgeEnds& OutEnds)
	{
		OutEnds.FromNode.Reset(FindGraphNode(&Graph, FromNodeId));
		OutEnds.ToNode.Reset(FindGraphNode(&Graph, ToNodeId));
		if (!OutEnds.FromNode || !OutEnds.ToNode)
		{
			LogLine(Session, ELineKind::Fail, Label, TEXT("node not found"));
			return false;
		}
		if (!CheckEngineNameLength(Session, Label, FromPin) || !CheckEngineNameLength(Session, Label, ToPin))
		{
			return false;
		}
		OutEnds.FromLabel = ResolvePinLabel(OutEnds.FromNode.Get(), FromPin, EPinSide::Output);
		OutEnds.ToLabel = ResolvePinLabel(OutEnds.ToNode.Get(), ToPin, EPinSide::Input);
		return true;
	}

	static sol::object GraphConnect(sol::state_view Lua, const FWeakGraph& WeakGraph, FLuaSessionData& Session,
		const FString& FromNodeId, const FString& FromPin, const FString& ToNodeId, const FString& ToPin)
	{
		const TCHAR* Label = TEXT("graph:connect");
		const FHeldGraph Graph = ResolveGraph(WeakGraph, Session, Label);
		FEdgeEnds Ends;
		if (!Graph || !ResolveEdgeEnds(*Graph, Session, Label, FromNodeId, FromPin, ToNodeId, ToPin, Ends))
		{
			return Nil(Lua);
		}
		const TStrongObjectPtr<UMovieGraphPin> OutputPin(Ends.FromNode->GetOutputPin(Ends.FromLabel.Label));
		const TStrongObjectPtr<UMovieGraphPin> InputPin(Ends.ToNode->GetInputPin(Ends.ToLabel.Label, EMovieGraphPinQueryRequirement::BuiltInOrDynamic));
		if (!OutputPin || !InputPin || !OutputPin->CanCreateConnection(InputPin.Get()))
		{
			return sol::make_object(Lua, false);
		}
		// A refused connection says nothing; the alias is reported only for a connection that is made.
		if (Ends.FromLabel.bAliased || Ends.ToLabel.bAliased)
		{
			LogLine(Session, ELineKind::Info, Label, FString::Printf(
				TEXT("'%s'/'%s' mapped onto the node's single unlabelled branch pin (setting nodes have no named pins)"), *FromPin, *ToPin));
		}
		Graph->AddLabeledEdge(Ends.FromNode.Get(), Ends.FromLabel.Label, Ends.ToNode.Get(), Ends.ToLabel.Label);
		const bool bConnected = InputPin->GetAllConnectedPins().Contains(OutputPin.Get());
		if (bConnected)
		{
			Graph->MarkPackageDirty();
		}
		return sol::make_object(Lua, bConnected);
	}

	static sol::object GraphDisconnect(sol::state_view Lua, const FWeakGraph& WeakGraph, FLuaSessionData& Session,
		const FString& FromNodeId, const FString& FromPin, const FString& ToNodeId, const FString& ToPin)
	{
		const TCHAR* Label = TEXT("graph:disconnect");
		const FHeldGraph Graph = ResolveGraph(WeakGraph, Session, Label);
		FEdgeEnds Ends;
		if (!Graph || !ResolveEdgeEnds(*Graph, Session, Label, FromNodeId, FromPin, ToNodeId, ToPin, Ends))
		{
			return Nil(Lua);
		}
		const bool bRemoved = Graph->RemoveLabeledEdge(Ends.FromNode.Get(), Ends.FromLabel.Label, Ends.ToNode.Get(), Ends.ToLabel.Label);
		if (bRemoved)
		{
			Graph->MarkPackageDirty();
		}
		return sol::make_object(Lua, bRemoved);
	}

	static void AddGraphMethods(sol::table& Handle, const FWeakGraph& Graph, FLuaSessionData* S)
	{
		Handle.set_function("info", [Graph, S](sol::this_state L, sol::object) { return GraphInfo(L, Graph, *S); });
		Handle.set_function("add_variable", [Graph, S](sol::this_state L, sol::object, const FScriptText& Name, const TOptionalArgument<FScriptText>& Category) {
			return GraphAddVariable(L, Graph, *S, Name.Value, Category.Value.IsSet() ? TOptional<FString>(Category.Value->Value) : TOptional<FString>());
		});
		Handle.set_function("add_input", [Graph, S](sol::this_state L, sol::object, const FScriptText& Name) {
			return GraphAddInterfaceMember(L, Graph, *S, TEXT("graph:add_input"), TEXT("AddInput"), Name.Value,
				[](UMovieGraphConfig& Target, const FText& BaseName) { return Target.AddInput(BaseName); });
		});
		Handle.set_function("add_output", [Graph, S](sol::this_state L, sol::object, const FScriptText& Name) {
			return GraphAddInterfaceMember(L, Graph, *S, TEXT("graph:add_output"), TEXT("AddOutput"), Name.Value,
				[](UMovieGraphConfig& Target, const FText& BaseName) { return Target.AddOutput(BaseName); });
		});
		Handle.set_function("delete_member", [Graph, S](sol::this_state L, sol::object, const FScriptText& Name) { return GraphDeleteMember(L, Graph, *S, Name.Value); });
		Handle.set_function("add_node", [Graph, S](sol::this_state L, sol::object, const FScriptText& ClassName, const TOptionalArgument<FScriptText>& Tag) {
			return GraphAddNode(L, Graph, *S, ClassName.Value, Tag.Value.IsSet() ? TOptional<FString>(Tag.Value->Value) : TOptional<FString>());
		});
		Handle.set_function("set_node_disabled", [Graph, S](sol::this_state L, sol::object, const FScriptText& NodeId, FScriptBool bDisabled) {
			return GraphSetNodeDisabled(L, Graph, *S, NodeId.Value, bDisabled.Value);
		});
		Handle.set_function("connect", [Graph, S](sol::this_state L, sol::object, const FScriptText& FromNode, const FScriptText& FromPin, const FScriptText& ToNode, const FScriptText& ToPin) {
			return GraphConnect(L, Graph, *S, FromNode.Value, FromPin.Value, ToNode.Value, ToPin.Value);
		});
		Handle.set_function("disconnect", [Graph, S](sol::this_state L, sol::object, const FScriptText& FromNode, const FScriptText& FromPin, const FScriptText& ToNode, const FScriptText& ToPin) {
			return GraphDisconnect(L, Graph, *S, FromNode.Value, FromPin.Value, ToNode.Value, ToPin.Value);
		});
		Handle.set_function("save", [Graph, S](sol::object) { return SaveAsset(Graph.Get(), *S, TEXT("graph:save")); });
	}
}

sol::table BuildGraphHandle(sol::state_view& Lua, TWeakObjectPtr<UMovieGraphConfig> Graph, FLuaSessionData& Session)
{
	using namespace VLMR;
	const UMovieGraphConfig* Resolved = Graph.Get();
	sol::table Handle = CreateHandleTable(Lua, "path", Resolved ? TOptional<FString>(Resolved->GetPathName()) : TOptional<FString>());
	AddGraphMethods(Handle, Graph, &Session);
	VLMRMovieRenderGraph::ExtendGraphHandle(Lua, Handle, Graph, Session);
	return Handle;
}
