// UMovieGraphConfig: a Movie Render Graph asset: its nodes, the edges between their pins, and its members (variables,
// inputs and outputs). The members are declared here too, as the engine declares them.
#pragma once

#include "CoreMinimal.h"
#include "Graph/MovieGraphNode.h"
#include "Graph/MovieGraphTraversalContext.h"
#include "Graph/MovieGraphValueContainer.h"
#include "Misc/Guid.h"
#include "Templates/SubclassOf.h"
#include "UObject/Object.h"
#include "UObject/ObjectPtr.h"
#include "UObject/Stack.h"

#define UE_API STANDIN_MINIMALAPI_FUNCTION(MOVIERENDERPIPELINECORE_API)

class FBoolProperty;
class FProperty;
class UMovieGraphConfig;
class UMovieGraphEvaluatedConfig;
class UMovieGraphPipeline;
struct FMovieGraphTraversalContext;

// A named value of a graph: a variable, an input or an output.
UCLASS(MinimalAPI, Abstract)
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINECORE_API) UMovieGraphMember : public UMovieGraphValueContainer
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMovieGraphMember, UMovieGraphValueContainer, MOVIERENDERPIPELINECORE_API)

	friend class UMovieGraphConfig;

public:
	UE_API UMovieGraphMember();

	UE_API UMovieGraphConfig* GetOwningGraph() const;

	UFUNCTION(BlueprintCallable, Category = "Movie Graph")
	FString GetMemberName() const { return Name; }

	// Renames only when CanRename agrees.
	UFUNCTION(BlueprintCallable, Category = "Movie Graph")
	UE_API virtual bool SetMemberName(const FString& InNewName);

	UFUNCTION(BlueprintPure, Category = "Movie Graph")
	UE_API virtual bool CanRename(const FText& InNewName, FText& OutError) const;

	UFUNCTION(BlueprintCallable, Category = "Movie Graph")
	const FGuid& GetGuid() const { return Guid; }

	void SetGuid(const FGuid& InGuid) { Guid = InGuid; }

	UFUNCTION(BlueprintPure, Category = "Movie Graph")
	UE_API virtual bool IsDeletable() const;

	UFUNCTION(BlueprintPure, Category = "Movie Graph")
	UE_API virtual bool IsEditable() const;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "General", meta = (EditCondition = "bIsEditable", HideEditConditionToggle))
	FString Description;

protected:
	// The rules every member name follows: not empty, not "Globals", none of the characters the graph reserves.
	bool IsNameAcceptable(const FString& InNewName, FText& OutError) const;

	UPROPERTY()
	FString Name;

	UPROPERTY()
	FGuid Guid;

	UPROPERTY()
	bool bIsEditable = true;
};

UCLASS(MinimalAPI, BlueprintType)
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINECORE_API) UMovieGraphVariable : public UMovieGraphMember
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMovieGraphVariable, UMovieGraphMember, MOVIERENDERPIPELINECORE_API)

public:
	UE_API UMovieGraphVariable();

	// Global variables are their own classes.
	UFUNCTION(BlueprintPure, Category = "Movie Graph")
	UE_API bool IsGlobal() const;

	UFUNCTION(BlueprintPure, Category = "Movie Graph")
	const FString& GetCategory() const { return Category; }

	// Stores the category as a display string and keeps the graph's variables of one category together.
	UFUNCTION(BlueprintCallable, Category = "Movie Graph")
	UE_API void SetCategory(const FString& InNewCategory);

	UE_API virtual bool CanRename(const FText& InNewName, FText& OutError) const override;

private:
	UPROPERTY()
	FString Category;
};

// A variable every graph has, whose value the pipeline sets while it renders.
UCLASS(MinimalAPI, Abstract)
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINECORE_API) UMovieGraphGlobalVariable : public UMovieGraphVariable
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMovieGraphGlobalVariable, UMovieGraphVariable, MOVIERENDERPIPELINECORE_API)

public:
	UE_API UMovieGraphGlobalVariable();

	UE_API virtual bool IsDeletable() const override;
	UE_API virtual bool CanRename(const FText& InNewName, FText& OutError) const override;

	// Sets the value from the traversal (and the pipeline, which may be null).
	virtual void UpdateValue(const FMovieGraphTraversalContext* InTraversalContext, const UMovieGraphPipeline* InPipeline) PURE_VIRTUAL(UMovieGraphGlobalVariable::UpdateValue, );

protected:
	// Names the global and gives it its type; globals are neither editable nor renamed.
	void InitializeGlobal(const TCHAR* InName, EMovieGraphValueType InValueType);
};

UCLASS(MinimalAPI, BlueprintType)
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINECORE_API) UMovieGraphGlobalVariable_ShotName final : public UMovieGraphGlobalVariable
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMovieGraphGlobalVariable_ShotName, UMovieGraphGlobalVariable, MOVIERENDERPIPELINECORE_API)

public:
	UE_API UMovieGraphGlobalVariable_ShotName();

	UE_API virtual void UpdateValue(const FMovieGraphTraversalContext* InTraversalContext, const UMovieGraphPipeline* InPipeline) override;
};

UCLASS(MinimalAPI, BlueprintType)
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINECORE_API) UMovieGraphGlobalVariable_SequenceName final : public UMovieGraphGlobalVariable
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMovieGraphGlobalVariable_SequenceName, UMovieGraphGlobalVariable, MOVIERENDERPIPELINECORE_API)

public:
	UE_API UMovieGraphGlobalVariable_SequenceName();

	UE_API virtual void UpdateValue(const FMovieGraphTraversalContext* InTraversalContext, const UMovieGraphPipeline* InPipeline) override;
};

UCLASS(MinimalAPI, BlueprintType)
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINECORE_API) UMovieGraphGlobalVariable_FrameNumber final : public UMovieGraphGlobalVariable
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMovieGraphGlobalVariable_FrameNumber, UMovieGraphGlobalVariable, MOVIERENDERPIPELINECORE_API)

public:
	UE_API UMovieGraphGlobalVariable_FrameNumber();

	UE_API virtual void UpdateValue(const FMovieGraphTraversalContext* InTraversalContext, const UMovieGraphPipeline* InPipeline) override;
};

UCLASS(MinimalAPI, BlueprintType)
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINECORE_API) UMovieGraphGlobalVariable_CameraName final : public UMovieGraphGlobalVariable
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMovieGraphGlobalVariable_CameraName, UMovieGraphGlobalVariable, MOVIERENDERPIPELINECORE_API)

public:
	UE_API UMovieGraphGlobalVariable_CameraName();

	UE_API virtual void UpdateValue(const FMovieGraphTraversalContext* InTraversalContext, const UMovieGraphPipeline* InPipeline) override;
};

// An input or an output of a graph: a pin of its Input or Output node, a branch unless told otherwise.
UCLASS(MinimalAPI, Abstract)
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINECORE_API) UMovieGraphInterfaceBase : public UMovieGraphMember
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMovieGraphInterfaceBase, UMovieGraphMember, MOVIERENDERPIPELINECORE_API)

public:
	UE_API UMovieGraphInterfaceBase();

	// Every member may be deleted except the one named "Globals".
	UE_API virtual bool IsDeletable() const override;

	UPROPERTY(EditAnywhere, Category = "Value", meta = (EditCondition = "bIsEditable", HideEditConditionToggle))
	bool bIsBranch = true;

protected:
	// Inputs are unique among inputs, outputs among outputs.
	bool IsNameUniqueAmong(const FString& InNewName, const TArray<UMovieGraphInterfaceBase*>& InSiblings, FText& OutError, const TCHAR* InDuplicateError) const;
};

UCLASS(MinimalAPI, BlueprintType)
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINECORE_API) UMovieGraphInput : public UMovieGraphInterfaceBase
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMovieGraphInput, UMovieGraphInterfaceBase, MOVIERENDERPIPELINECORE_API)

public:
	UE_API UMovieGraphInput();

	UE_API virtual bool CanRename(const FText& InNewName, FText& OutError) const override;
	UE_API virtual bool SetMemberName(const FString& InNewName) override;
};

UCLASS(MinimalAPI, BlueprintType)
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINECORE_API) UMovieGraphOutput : public UMovieGraphInterfaceBase
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMovieGraphOutput, UMovieGraphInterfaceBase, MOVIERENDERPIPELINECORE_API)

public:
	UE_API UMovieGraphOutput();

	UE_API virtual bool CanRename(const FText& InNewName, FText& OutError) const override;
	UE_API virtual bool SetMemberName(const FString& InNewName) override;
};

// The flattened nodes of one class and instance name on a branch (one per name; a stack while flattening).
USTRUCT()
struct FMovieGraphEvaluatedSettingsStack
{
	STANDIN_STRUCT_BODY(FMovieGraphEvaluatedSettingsStack, MOVIERENDERPIPELINECORE_API)

public:
	UPROPERTY(Transient)
	TArray<TObjectPtr<UMovieGraphNode>> NodeInstances;
};

// The flattened settings of one branch, keyed by node instance name (empty for ordinary nodes).
USTRUCT()
struct FMovieGraphEvaluatedBranchConfig
{
	STANDIN_STRUCT_BODY(FMovieGraphEvaluatedBranchConfig, MOVIERENDERPIPELINECORE_API)

	friend class UMovieGraphConfig;

public:
	UE_API UMovieGraphNode* GetNodeByClassExactMatch(const TSubclassOf<UMovieGraphNode>& InClass, const FString& InName) const;

	// Every flattened node of the branch, all instance names.
	UE_API TArray<TObjectPtr<UMovieGraphNode>> GetNodes() const;

	// Removes the nodes of exactly this class.
	UE_API void RemoveNodesOfType(const TSubclassOf<UMovieGraphNode>& InClass);

private:
	UPROPERTY(Transient)
	TMap<FString, FMovieGraphEvaluatedSettingsStack> NamedNodes;
};

// A graph flattened for one traversal: per branch, the setting nodes that apply, each holding the winning values.
UCLASS(MinimalAPI, BlueprintType)
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINECORE_API) UMovieGraphEvaluatedConfig : public UObject
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMovieGraphEvaluatedConfig, UObject, MOVIERENDERPIPELINECORE_API)

	friend class UMovieGraphConfig;

public:
	UE_API UMovieGraphEvaluatedConfig();

	// The branches in the Output node's pin order, Globals first.
	UFUNCTION(BlueprintCallable, Category = "Movie Graph")
	UE_API const TArray<FName> GetBranchNames() const;

	// The first of GetSettingsForBranch, or null.
	UFUNCTION(BlueprintCallable, Category = "Movie Graph")
	UE_API UMovieGraphSettingNode* GetSettingForBranch(UClass* InClass, const FName InBranchName, bool bIncludeCDOs = true, bool bExactMatch = false) const;

	// The branch's flattened nodes of the class (or exactly the class), then the class default object when asked.
	UFUNCTION(BlueprintCallable, Category = "Movie Graph")
	UE_API TArray<UMovieGraphSettingNode*> GetSettingsForBranch(UClass* InClass, const FName InBranchName, bool bIncludeCDOs = true, bool bExactMatch = false) const;

	template<typename NodeType>
	NodeType* GetSettingForBranch(const FName InBranchName, bool bIncludeCDOs = true, bool bExactMatch = false) const
	{
		return Cast<NodeType>(GetSettingForBranch(NodeType::StaticClass(), InBranchName, bIncludeCDOs, bExactMatch));
	}

	template<typename NodeType>
	TArray<NodeType*> GetSettingsForBranch(const FName InBranchName, bool bIncludeCDOs = true, bool bExactMatch = false) const
	{
		TArray<NodeType*> Typed;
		for (UMovieGraphSettingNode* Node : GetSettingsForBranch(NodeType::StaticClass(), InBranchName, bIncludeCDOs, bExactMatch))
		{
			Typed.Add(static_cast<NodeType*>(Node));
		}
		return Typed;
	}

#if !UE_VERSION_OLDER_THAN(5, 7, 0)
	// Not exported by the engine: other modules reach these through reflection.
	UFUNCTION(BlueprintCallable, Category = "Movie Graph", meta = (ReturnDisplayName = "Variable Exists"))
	bool GetVariableValueByName(const FString& InVariableName, UMovieGraphValueContainer*& OutVariableValue) const;

	UFUNCTION(BlueprintCallable, Category = "Movie Graph", meta = (ReturnDisplayName = "Variable Exists"))
	bool GetVariableStringValueByName(const FString& InVariableName, const FString& InDefaultValue, FString& OutVariableValue) const;

	// The root graph and every subgraph the flattening went through.
	UFUNCTION(BlueprintCallable, Category = "Movie Graph")
	const TArray<UMovieGraphConfig*>& GetEvaluatedGraphs() const;
#endif

	UPROPERTY(Transient)
	TMap<FName, FMovieGraphEvaluatedBranchConfig> BranchConfigMapping;

private:
#if !UE_VERSION_OLDER_THAN(5, 7, 0)
	// The resolved value of every user variable of every evaluated graph, parent-most graph first.
	TMap<FString, TArray<TObjectPtr<UMovieGraphValueContainer>>> VariablesByName;

	UPROPERTY(Transient)
	TArray<TObjectPtr<UMovieGraphValueContainer>> VariableValues;

	UPROPERTY(Transient)
	TArray<TObjectPtr<UMovieGraphConfig>> EvaluatedGraphs;
#endif
};

UCLASS(MinimalAPI, BlueprintType)
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINECORE_API) UMovieGraphConfig : public UObject
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMovieGraphConfig, UObject, MOVIERENDERPIPELINECORE_API)

	friend class UMovieGraphVariable;

public:
	// A new graph has the Input and Output nodes, the "Globals" input and output and the four global variables.
	UE_API UMovieGraphConfig();

	// Adds the default members again: a graph saved before one of them existed gets it.
	UE_API virtual void PostLoad() override;

	// Connects FromNode's output pin to ToNode's input pin. True only when an existing connection of the input pin
	// was replaced; refusals are script errors answered with false.
	UFUNCTION(BlueprintCallable, Category = "Movie Graph")
	UE_API bool AddLabeledEdge(UMovieGraphNode* FromNode, const FName& FromPinLabel, UMovieGraphNode* ToNode, const FName& ToPinLabel);

	// True when an edge between the two pins existed and was removed.
	UFUNCTION(BlueprintCallable, Category = "Movie Graph")
	UE_API bool RemoveLabeledEdge(UMovieGraphNode* FromNode, const FName& FromPinName, UMovieGraphNode* ToNode, const FName& ToPinName);

	UFUNCTION(BlueprintCallable, Category = "Movie Graph")
	UE_API bool RemoveAllInboundEdges(UMovieGraphNode* InNode);

	UFUNCTION(BlueprintCallable, Category = "Movie Graph")
	UE_API bool RemoveAllOutboundEdges(UMovieGraphNode* InNode);

	UFUNCTION(BlueprintCallable, Category = "Movie Graph")
	UE_API bool RemoveInboundEdges(UMovieGraphNode* InNode, const FName& InPinName);

	UFUNCTION(BlueprintCallable, Category = "Movie Graph")
	UE_API bool RemoveOutboundEdges(UMovieGraphNode* InNode, const FName& InPinName);

	// Takes the node into the graph (outer, transactional flag, node list).
	UE_API void AddNode(UMovieGraphNode* InNode);

	// Breaks the node's edges; true when it was one of the graph's nodes.
	UFUNCTION(BlueprintCallable, Category = "Movie Graph")
	UE_API bool RemoveNode(UMovieGraphNode* InNode);

	UFUNCTION(BlueprintCallable, Category = "Movie Graph")
	UE_API bool RemoveNodes(TArray<UMovieGraphNode*> InNodes);

	UFUNCTION(BlueprintPure, Category = "Movie Graph")
	UMovieGraphNode* GetInputNode() const { return InputNode; }

	UFUNCTION(BlueprintPure, Category = "Movie Graph")
	UMovieGraphNode* GetOutputNode() const { return OutputNode; }

	// The nodes users added; the Input and Output nodes are not among them.
	const TArray<TObjectPtr<UMovieGraphNode>>& GetNodes() const { return AllNodes; }

	// A new node of the class, with its pins and a new GUID, added to the graph and connected to nothing.
	UFUNCTION(BlueprintCallable, Category = "Movie Graph", meta = (DeterminesOutputType = "InClass"))
	UMovieGraphNode* CreateNodeByClass(const TSubclassOf<UMovieGraphNode> InClass)
	{
		if (!InClass)
		{
			// The function name as the engine's compiler spells __FUNCTION__.
			FFrame::KismetExecutionMessage(TEXT("UMovieGraphConfig::CreateNodeByClass: Invalid PipelineGraphNodeClass. Please specify a valid class."), ELogVerbosity::Error);
			return nullptr;
		}
		return ConstructRuntimeNode<UMovieGraphNode>(InClass);
	}

	template<class T>
	T* ConstructRuntimeNode(TSubclassOf<UMovieGraphNode> PipelineGraphNodeClass = T::StaticClass())
	{
		if (!PipelineGraphNodeClass)
		{
			FFrame::KismetExecutionMessage(TEXT("UMovieGraphConfig::ConstructRuntimeNode: Invalid PipelineGraphNodeClass. Please specify a valid class."), ELogVerbosity::Error);
			return nullptr;
		}
		T* NewNode = NewObject<T>(this, PipelineGraphNodeClass, NAME_None, RF_Transactional);
		NewNode->UpdateDynamicProperties();
		NewNode->UpdatePins();
		NewNode->Guid = FGuid::NewGuid();
		AddNode(NewNode);
		return NewNode;
	}

#if !UE_VERSION_OLDER_THAN(5, 8, 0)
	// A new node of the class feeding the target's input pin, fed by what fed that pin; null (warning) when the target,
	// the class or the pin is missing.
	UFUNCTION(BlueprintCallable, Category = "Movie Graph")
	UE_API UMovieGraphNode* InsertBefore(UMovieGraphNode* InTargetNode, const TSubclassOf<UMovieGraphNode> InNodeClass, const FName& InTargetPinLabel = FName());

	// A new node of the class between the target's output pin and the first pin it fed, which keeps its label.
	UFUNCTION(BlueprintCallable, Category = "Movie Graph")
	UE_API UMovieGraphNode* InsertAfter(UMovieGraphNode* InTargetNode, const TSubclassOf<UMovieGraphNode> InNodeClass, const FName& InTargetPinLabel = FName());
#endif

	// A new user variable named after the base name ("Variable" when none), a Float holding 0.
	UFUNCTION(BlueprintCallable, Category = "Movie Graph")
	UE_API UMovieGraphVariable* AddVariable(const FName InCustomBaseName = NAME_None);

	// A new input (a branch) named after the base name ("Input" when empty), with its pin on the Input node.
	UFUNCTION(BlueprintCallable, Category = "Movie Graph")
	UE_API UMovieGraphInput* AddInput(const FText& InBaseName = FText::GetEmpty());

	// A new output (a branch) named after the base name ("Output" when empty), with its pin on the Output node.
	UFUNCTION(BlueprintCallable, Category = "Movie Graph")
	UE_API UMovieGraphOutput* AddOutput(const FText& InBaseName = FText::GetEmpty());

	UFUNCTION(BlueprintCallable, Category = "Movie Graph")
	UE_API UMovieGraphVariable* GetVariableByGuid(const FGuid& InGuid) const;

	// User and global variables, by exact name.
	UFUNCTION(BlueprintCallable, Category = "Movie Graph")
	UE_API UMovieGraphVariable* GetVariableByName(const FString& InVariableName) const;

	// The user variables, then (when asked) the global ones.
	UFUNCTION(BlueprintCallable, Category = "Movie Graph")
	UE_API TArray<UMovieGraphVariable*> GetVariables(const bool bIncludeGlobal = false) const;

	UFUNCTION(BlueprintCallable, Category = "Movie Graph")
	UE_API TArray<UMovieGraphInput*> GetInputs() const;

	UFUNCTION(BlueprintCallable, Category = "Movie Graph")
	UE_API TArray<UMovieGraphOutput*> GetOutputs() const;

	// Deletes a variable (and the variable nodes that read it), an input or an output. Globals and the "Globals" input
	// and output are refused with a script error.
	UFUNCTION(BlueprintCallable, Category = "Movie Graph")
	UE_API bool DeleteMember(UMovieGraphMember* MemberToDelete);

	// The output names, "Globals" first.
	UFUNCTION(BlueprintCallable, Category = "Movie Graph")
	UE_API TArray<FName> GetBranchNames() const;

	// The raw output directory of the first Global Output Settings node on the Globals branch that overrides it.
	UFUNCTION(BlueprintCallable, Category = "Movie Graph")
	UE_API void GetOutputDirectory(FString& OutOutputDirectory) const;

	// Output-node pin labels reachable downstream of the node through branch connections.
	UFUNCTION(BlueprintCallable, Category = "Movie Graph")
	UE_API TArray<FString> GetDownstreamBranchNames(UMovieGraphNode* FromNode, const UMovieGraphPin* FromPin, const bool bStopAtSubgraph = false) const;

	// Input-node pin labels reachable upstream of the node through branch connections.
	UFUNCTION(BlueprintCallable, Category = "Movie Graph")
	UE_API TArray<FString> GetUpstreamBranchNames(UMovieGraphNode* FromNode, const UMovieGraphPin* FromPin, const bool bStopAtSubgraph = false) const;

	// Flattens the graph for the traversal: per Output-node branch, the setting nodes that apply with their winning
	// values. Null with OutError on a cycle, an invalid connection or node validation errors.
	UFUNCTION(BlueprintCallable, Category = "Movie Graph")
	UE_API UMovieGraphEvaluatedConfig* CreateFlattenedGraph(const FMovieGraphTraversalContext& InContext, FString& OutError);

#if !UE_VERSION_OLDER_THAN(5, 6, 0)
	// The nodes of the class upstream of the branch's Output-node pin, nearest the Output first; subgraphs not entered.
	UFUNCTION(BlueprintCallable, Category = "Movie Graph", meta = (DeterminesOutputType = "InClass"))
	UE_API TArray<UMovieGraphNode*> GetNodesForBranch(UClass* InClass, const FName& InBranchName, bool bExactMatch = false) const;

	UFUNCTION(BlueprintCallable, Category = "Movie Graph", meta = (DeterminesOutputType = "InClass"))
	UE_API UMovieGraphNode* GetNodeForBranch(UClass* InClass, const FName& InBranchName, bool bExactMatch = false) const;

	// The nodes carrying the tag (exact, case-sensitive), on the branch when one is given, of the class when one is given.
	UFUNCTION(BlueprintCallable, Category = "Movie Graph", meta = (DeterminesOutputType = "OptionalClassFilter"))
	UE_API TArray<UMovieGraphNode*> GetNodesForTag(const FString& ScriptTag, UClass* OptionalClassFilter = nullptr, const FName OptionalBranchFilter = NAME_None, bool bExactMatch = false) const;

	UFUNCTION(BlueprintCallable, Category = "Movie Graph", meta = (DeterminesOutputType = "OptionalClassFilter"))
	UE_API UMovieGraphNode* GetNodeForTag(const FString& ScriptTag, UClass* OptionalClassFilter = nullptr, const FName OptionalBranchFilter = NAME_None, bool bExactMatch = false) const;
#endif

	// The bool property named "bOverride_" and the property's name, bitfields included.
	UE_API static FBoolProperty* FindOverridePropertyForRealProperty(UClass* InClass, const FProperty* InRealProperty);

protected:
	UPROPERTY()
	TArray<TObjectPtr<UMovieGraphNode>> AllNodes;

	UPROPERTY()
	TObjectPtr<UMovieGraphNode> InputNode;

	UPROPERTY()
	TObjectPtr<UMovieGraphNode> OutputNode;

private:
	// Walks the branches for CreateFlattenedGraph.
	class FFlattener;

	// The "Globals" input and output, then the four global variables, each only when missing.
	void AddDefaultMembers();
	void AddGlobalVariableIfMissing(UClass* InGlobalClass);
	void RemoveVariableNodesOf(const UMovieGraphVariable* InVariable);

	// Reorders the user variables so that those of one category follow each other, in order of first appearance.
	void GroupVariablesByCategory();

	UPROPERTY()
	TArray<TObjectPtr<UMovieGraphVariable>> Variables;

	UPROPERTY()
	TArray<TObjectPtr<UMovieGraphGlobalVariable>> GlobalVariables;

	UPROPERTY()
	TArray<TObjectPtr<UMovieGraphInput>> Inputs;

	UPROPERTY()
	TArray<TObjectPtr<UMovieGraphOutput>> Outputs;
};

#undef UE_API
