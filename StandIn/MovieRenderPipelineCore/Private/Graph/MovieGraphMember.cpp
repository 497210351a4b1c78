#include "Graph/MovieGraphConfig.h"

#include "UObject/UnrealType.h"

namespace UE::MovieGraph::Private
{
	bool HasReservedCharacter(const FString& InName)
	{
		for (const TCHAR Character : InName)
		{
			if (Character == TEXT('"') || Character == TEXT('\'') || Character == TEXT(',') || Character == TEXT('\n') || Character == TEXT('\r') || Character == TEXT('\t'))
			{
				return true;
			}
		}
		return false;
	}
}

UMovieGraphMember::UMovieGraphMember() = default;

UMovieGraphConfig* UMovieGraphMember::GetOwningGraph() const
{
	return Cast<UMovieGraphConfig>(GetOuter());
}

bool UMovieGraphMember::SetMemberName(const FString& InNewName)
{
	FText Error;
	if (!CanRename(FText::FromString(InNewName), Error))
	{
		return false;
	}
#if !UE_VERSION_OLDER_THAN(5, 7, 0)
	Modify();
#endif
	Name = InNewName;
	return true;
}

bool UMovieGraphMember::CanRename(const FText& InNewName, FText& OutError) const
{
	return IsNameAcceptable(InNewName.ToString(), OutError);
}

// Stand-in choice: the refusal for reserved characters is worded here; the empty and "Globals" refusals are the engine's.
bool UMovieGraphMember::IsNameAcceptable(const FString& InNewName, FText& OutError) const
{
	if (InNewName.TrimStartAndEnd().IsEmpty())
	{
		OutError = FText::FromString(TEXT("The name cannot be empty."));
		return false;
	}
	if (InNewName.Equals(UMovieGraphNode::GlobalsPinNameString, ESearchCase::IgnoreCase))
	{
		OutError = FText::FromString(TEXT("The name cannot be 'Globals'."));
		return false;
	}
	if (UE::MovieGraph::Private::HasReservedCharacter(InNewName))
	{
		OutError = FText::FromString(TEXT("The name cannot contain quotes, commas, line breaks or tabs."));
		return false;
	}
	return true;
}

bool UMovieGraphMember::IsDeletable() const
{
	return true;
}

bool UMovieGraphMember::IsEditable() const
{
	return bIsEditable;
}

UMovieGraphVariable::UMovieGraphVariable() = default;

bool UMovieGraphVariable::IsGlobal() const
{
	return IsA<UMovieGraphGlobalVariable>();
}

void UMovieGraphVariable::SetCategory(const FString& InNewCategory)
{
	Category = FName::NameToDisplayString(InNewCategory, false).Replace(TEXT("| "), TEXT("|"));
	if (UMovieGraphConfig* Graph = GetOwningGraph())
	{
		Graph->GroupVariablesByCategory();
	}
}

bool UMovieGraphVariable::CanRename(const FText& InNewName, FText& OutError) const
{
	if (!Super::CanRename(InNewName, OutError))
	{
		return false;
	}
	const FString NewName = InNewName.ToString();
	const UMovieGraphConfig* Graph = GetOwningGraph();
	if (!Graph || NewName.Equals(Name, ESearchCase::IgnoreCase))
	{
		return true;
	}
	for (const UMovieGraphVariable* Variable : Graph->GetVariables(true))
	{
		if (Variable && Variable != this && Variable->GetMemberName().Equals(NewName, ESearchCase::IgnoreCase))
		{
			OutError = FText::FromString(TEXT("A variable with this name already exists."));
			return false;
		}
	}
	return true;
}

UMovieGraphGlobalVariable::UMovieGraphGlobalVariable() = default;

bool UMovieGraphGlobalVariable::IsDeletable() const
{
	return false;
}

// Stand-in choice: the refusal is worded here; the engine's globals keep the name their constructor gives them.
bool UMovieGraphGlobalVariable::CanRename(const FText& InNewName, FText& OutError) const
{
	OutError = FText::FromString(TEXT("Global variables cannot be renamed."));
	return false;
}

void UMovieGraphGlobalVariable::InitializeGlobal(const TCHAR* InName, EMovieGraphValueType InValueType)
{
	Name = InName;
	bIsEditable = false;
	SetValueType(InValueType);
}

UMovieGraphGlobalVariable_ShotName::UMovieGraphGlobalVariable_ShotName()
{
	InitializeGlobal(TEXT("shot_name"), EMovieGraphValueType::String);
}

UMovieGraphGlobalVariable_SequenceName::UMovieGraphGlobalVariable_SequenceName()
{
	InitializeGlobal(TEXT("seq_name"), EMovieGraphValueType::String);
}

UMovieGraphGlobalVariable_FrameNumber::UMovieGraphGlobalVariable_FrameNumber()
{
	InitializeGlobal(TEXT("frame_num"), EMovieGraphValueType::Int32);
}

UMovieGraphGlobalVariable_CameraName::UMovieGraphGlobalVariable_CameraName()
{
	InitializeGlobal(TEXT("camera_name"), EMovieGraphValueType::String);
}

UMovieGraphInterfaceBase::UMovieGraphInterfaceBase() = default;

bool UMovieGraphInterfaceBase::IsDeletable() const
{
	return !Name.Equals(UMovieGraphNode::GlobalsPinNameString, ESearchCase::IgnoreCase);
}

bool UMovieGraphInterfaceBase::IsNameUniqueAmong(const FString& InNewName, const TArray<UMovieGraphInterfaceBase*>& InSiblings, FText& OutError, const TCHAR* InDuplicateError) const
{
	if (InNewName.Equals(Name, ESearchCase::IgnoreCase))
	{
		return true;
	}
	for (const UMovieGraphInterfaceBase* Sibling : InSiblings)
	{
		if (Sibling && Sibling != this && Sibling->GetMemberName().Equals(InNewName, ESearchCase::IgnoreCase))
		{
			OutError = FText::FromString(InDuplicateError);
			return false;
		}
	}
	return true;
}

UMovieGraphInput::UMovieGraphInput() = default;

bool UMovieGraphInput::CanRename(const FText& InNewName, FText& OutError) const
{
	const UMovieGraphConfig* Graph = GetOwningGraph();
	const TArray<UMovieGraphInput*> Inputs = Graph ? Graph->GetInputs() : TArray<UMovieGraphInput*>();
	return Super::CanRename(InNewName, OutError)
		&& IsNameUniqueAmong(InNewName.ToString(), TArray<UMovieGraphInterfaceBase*>(Inputs), OutError, TEXT("An input with this name already exists."));
}

// The Input node's pin carries the member's name.
bool UMovieGraphInput::SetMemberName(const FString& InNewName)
{
	const bool bRenamed = Super::SetMemberName(InNewName);
	UMovieGraphConfig* Graph = GetOwningGraph();
	if (bRenamed && Graph && Graph->GetInputNode())
	{
		Graph->GetInputNode()->UpdatePins();
	}
	return bRenamed;
}

UMovieGraphOutput::UMovieGraphOutput() = default;

bool UMovieGraphOutput::CanRename(const FText& InNewName, FText& OutError) const
{
	const UMovieGraphConfig* Graph = GetOwningGraph();
	const TArray<UMovieGraphOutput*> Outputs = Graph ? Graph->GetOutputs() : TArray<UMovieGraphOutput*>();
	return Super::CanRename(InNewName, OutError)
		&& IsNameUniqueAmong(InNewName.ToString(), TArray<UMovieGraphInterfaceBase*>(Outputs), OutError, TEXT("An output with this name already exists."));
}

// The Output node's pin carries the member's name.
bool UMovieGraphOutput::SetMemberName(const FString& InNewName)
{
	const bool bRenamed = Super::SetMemberName(InNewName);
	UMovieGraphConfig* Graph = GetOwningGraph();
	if (bRenamed && Graph && Graph->GetOutputNode())
	{
		Graph->GetOutputNode()->UpdatePins();
	}
	return bRenamed;
}

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMovieGraphMember, CLASS_Abstract, "MovieRenderPipelineCore")
{
	STANDIN_PROPERTY(Description, CPF_Edit | CPF_BlueprintVisible)->SetMetaData(TEXT("EditCondition"), TEXT("bIsEditable"));
	STANDIN_PROPERTY(Name, CPF_None);
	STANDIN_PROPERTY(Guid, CPF_None);
	STANDIN_PROPERTY(bIsEditable, CPF_None);
	STANDIN_FUNCTION(GetMemberName);
	STANDIN_FUNCTION(SetMemberName, TEXT("InNewName"));
	STANDIN_FUNCTION(CanRename, TEXT("InNewName"), TEXT("OutError"));
	STANDIN_FUNCTION(IsDeletable);
	STANDIN_FUNCTION(IsEditable);
}

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMovieGraphVariable, CLASS_None, "MovieRenderPipelineCore")
{
	STANDIN_PROPERTY(Category, CPF_None);
	STANDIN_FUNCTION(IsGlobal);
	STANDIN_FUNCTION(GetCategory);
	STANDIN_FUNCTION(SetCategory, TEXT("InNewCategory"));
}

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMovieGraphGlobalVariable, CLASS_Abstract, "MovieRenderPipelineCore")
{
}

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMovieGraphGlobalVariable_ShotName, CLASS_None, "MovieRenderPipelineCore")
{
}

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMovieGraphGlobalVariable_SequenceName, CLASS_None, "MovieRenderPipelineCore")
{
}

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMovieGraphGlobalVariable_FrameNumber, CLASS_None, "MovieRenderPipelineCore")
{
}

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMovieGraphGlobalVariable_CameraName, CLASS_None, "MovieRenderPipelineCore")
{
}

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMovieGraphInterfaceBase, CLASS_Abstract, "MovieRenderPipelineCore")
{
	STANDIN_PROPERTY(bIsBranch, CPF_Edit)->SetMetaData(TEXT("EditCondition"), TEXT("bIsEditable"));
}

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMovieGraphInput, CLASS_None, "MovieRenderPipelineCore")
{
}

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMovieGraphOutput, CLASS_None, "MovieRenderPipelineCore")
{
}
