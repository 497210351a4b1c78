#include "MovieJobVariableAssignmentContainer.h"

#include "Graph/MovieGraphConfig.h"
#include "UObject/UnrealType.h"

UMovieJobVariableAssignmentContainer::UMovieJobVariableAssignmentContainer() = default;

// Stand-in choice: assignments are keyed by the variable's name, and a new assignment starts disabled.
FName UMovieJobVariableAssignmentContainer::FindOrAddAssignment(const UMovieGraphVariable* InGraphVariable)
{
	if (!InGraphVariable)
	{
		return NAME_None;
	}
	const FName AssignmentName(*InGraphVariable->GetMemberName());
	if (Value.FindPropertyDescByName(AssignmentName))
	{
		return AssignmentName;
	}
	UMovieGraphVariable* Variable = const_cast<UMovieGraphVariable*>(InGraphVariable);
	const EPropertyBagPropertyType ValueType = EPropertyBagPropertyType(Variable->GetValueType());
	const EMovieGraphContainerType ContainerType = Variable->GetValueContainerType();
	if (ContainerType == EMovieGraphContainerType::None)
	{
		Value.AddProperty(AssignmentName, ValueType, Variable->GetValueTypeObject());
	}
	else
	{
		Value.AddContainerProperty(AssignmentName, EPropertyBagContainerType(ContainerType), ValueType, Variable->GetValueTypeObject());
	}
	Value.SetValueSerializedString(AssignmentName, Variable->GetValueSerializedString());
	return AssignmentName;
}

bool UMovieJobVariableAssignmentContainer::SetValueSerializedString(const UMovieGraphVariable* InGraphVariable, const FString& NewValue)
{
	const FName AssignmentName = FindOrAddAssignment(InGraphVariable);
	return !AssignmentName.IsNone() && Value.SetValueSerializedString(AssignmentName, NewValue) == EPropertyBagResult::Success;
}

FString UMovieJobVariableAssignmentContainer::GetValueSerializedString(const UMovieGraphVariable* InGraphVariable)
{
	if (!InGraphVariable)
	{
		return FString();
	}
	TValueOrError<FString, EPropertyBagResult> Result = Value.GetValueSerializedString(FName(*InGraphVariable->GetMemberName()));
	return Result.HasValue() ? Result.GetValue() : FString();
}

bool UMovieJobVariableAssignmentContainer::SetVariableAssignmentEnableState(const UMovieGraphVariable* InGraphVariable, bool bIsEnabled)
{
	const FName AssignmentName = FindOrAddAssignment(InGraphVariable);
	if (AssignmentName.IsNone())
	{
		return false;
	}
	if (bIsEnabled)
	{
		EnabledAssignments.AddUnique(AssignmentName);
	}
	else
	{
		EnabledAssignments.Remove(AssignmentName);
	}
	return true;
}

bool UMovieJobVariableAssignmentContainer::GetVariableAssignmentEnableState(const UMovieGraphVariable* InGraphVariable, bool& bOutIsEnabled)
{
	const FName AssignmentName = InGraphVariable ? FName(*InGraphVariable->GetMemberName()) : NAME_None;
	if (AssignmentName.IsNone() || !Value.FindPropertyDescByName(AssignmentName))
	{
		return false;
	}
	bOutIsEnabled = EnabledAssignments.Contains(AssignmentName);
	return true;
}

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMovieJobVariableAssignmentContainer, CLASS_None, "MovieRenderPipelineCore")
{
	STANDIN_PROPERTY(GraphConfig, CPF_None);
	STANDIN_PROPERTY(Value, CPF_None);
	STANDIN_PROPERTY(EnabledAssignments, CPF_None);
	STANDIN_FUNCTION(SetValueSerializedString, TEXT("InGraphVariable"), TEXT("NewValue"));
	STANDIN_FUNCTION(GetValueSerializedString, TEXT("InGraphVariable"));
	STANDIN_FUNCTION(SetVariableAssignmentEnableState, TEXT("InGraphVariable"), TEXT("bIsEnabled"));
	STANDIN_FUNCTION(GetVariableAssignmentEnableState, TEXT("InGraphVariable"), TEXT("bOutIsEnabled"));
}
