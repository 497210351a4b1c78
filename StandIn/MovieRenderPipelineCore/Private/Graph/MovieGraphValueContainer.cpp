#include "Graph/MovieGraphValueContainer.h"

#include "UObject/UnrealType.h"

namespace UE::MovieGraph::Private
{
	// Stand-in choice: the bag's one property is called "Value" until an owner names it.
	const FName DefaultValuePropertyName(TEXT("Value"));

	// True and the value in OutValue when the bag answered with one.
	template<class TValue, class TResult>
	bool TakeValue(const TResult& Result, TValue& OutValue)
	{
		if (!Result.HasValue())
		{
			return false;
		}
		OutValue = Result.GetValue();
		return true;
	}

	bool Succeeded(const EPropertyBagResult Result)
	{
		return Result == EPropertyBagResult::Success;
	}
}

UMovieGraphValueContainer::UMovieGraphValueContainer()
	: PropertyName(UE::MovieGraph::Private::DefaultValuePropertyName)
{
	Value.AddProperty(PropertyName, EPropertyBagPropertyType::Float);
}

bool UMovieGraphValueContainer::GetValueBool(bool& bOutValue) const
{
	return UE::MovieGraph::Private::TakeValue(Value.GetValueBool(PropertyName), bOutValue);
}

bool UMovieGraphValueContainer::GetValueByte(uint8& OutValue) const
{
	return UE::MovieGraph::Private::TakeValue(Value.GetValueByte(PropertyName), OutValue);
}

bool UMovieGraphValueContainer::GetValueInt32(int32& OutValue) const
{
	return UE::MovieGraph::Private::TakeValue(Value.GetValueInt32(PropertyName), OutValue);
}

bool UMovieGraphValueContainer::GetValueInt64(int64& OutValue) const
{
	return UE::MovieGraph::Private::TakeValue(Value.GetValueInt64(PropertyName), OutValue);
}

bool UMovieGraphValueContainer::GetValueFloat(float& OutValue) const
{
	return UE::MovieGraph::Private::TakeValue(Value.GetValueFloat(PropertyName), OutValue);
}

bool UMovieGraphValueContainer::GetValueDouble(double& OutValue) const
{
	return UE::MovieGraph::Private::TakeValue(Value.GetValueDouble(PropertyName), OutValue);
}

bool UMovieGraphValueContainer::GetValueName(FName& OutValue) const
{
	return UE::MovieGraph::Private::TakeValue(Value.GetValueName(PropertyName), OutValue);
}

bool UMovieGraphValueContainer::GetValueString(FString& OutValue) const
{
	return UE::MovieGraph::Private::TakeValue(Value.GetValueString(PropertyName), OutValue);
}

bool UMovieGraphValueContainer::GetValueText(FText& OutValue) const
{
	return UE::MovieGraph::Private::TakeValue(Value.GetValueText(PropertyName), OutValue);
}

bool UMovieGraphValueContainer::GetValueEnum(uint8& OutValue, const UEnum* RequestedEnum) const
{
	return UE::MovieGraph::Private::TakeValue(Value.GetValueEnum(PropertyName, RequestedEnum), OutValue);
}

bool UMovieGraphValueContainer::GetValueObject(UObject*& OutValue, const UClass* RequestedClass) const
{
	return UE::MovieGraph::Private::TakeValue(Value.GetValueObject(PropertyName, RequestedClass), OutValue);
}

bool UMovieGraphValueContainer::GetValueClass(UClass*& OutValue) const
{
	return UE::MovieGraph::Private::TakeValue(Value.GetValueClass(PropertyName), OutValue);
}

bool UMovieGraphValueContainer::GetValueStruct(FStructView& OutValue, const UScriptStruct* RequestedStruct) const
{
	return UE::MovieGraph::Private::TakeValue(Value.GetValueStruct(PropertyName, RequestedStruct), OutValue);
}

FString UMovieGraphValueContainer::GetValueSerializedString()
{
	TValueOrError<FString, EPropertyBagResult> Result = Value.GetValueSerializedString(PropertyName);
	return Result.HasValue() ? Result.GetValue() : FString();
}

bool UMovieGraphValueContainer::SetValueBool(const bool bInValue)
{
	return UE::MovieGraph::Private::Succeeded(Value.SetValueBool(PropertyName, bInValue));
}

bool UMovieGraphValueContainer::SetValueByte(const uint8 InValue)
{
	return UE::MovieGraph::Private::Succeeded(Value.SetValueByte(PropertyName, InValue));
}

bool UMovieGraphValueContainer::SetValueInt32(const int32 InValue)
{
	return UE::MovieGraph::Private::Succeeded(Value.SetValueInt32(PropertyName, InValue));
}

bool UMovieGraphValueContainer::SetValueInt64(const int64 InValue)
{
	return UE::MovieGraph::Private::Succeeded(Value.SetValueInt64(PropertyName, InValue));
}

bool UMovieGraphValueContainer::SetValueFloat(const float InValue)
{
	return UE::MovieGraph::Private::Succeeded(Value.SetValueFloat(PropertyName, InValue));
}

bool UMovieGraphValueContainer::SetValueDouble(const double InValue)
{
	return UE::MovieGraph::Private::Succeeded(Value.SetValueDouble(PropertyName, InValue));
}

bool UMovieGraphValueContainer::SetValueName(const FName InValue)
{
	return UE::MovieGraph::Private::Succeeded(Value.SetValueName(PropertyName, InValue));
}

bool UMovieGraphValueContainer::SetValueString(const FString& InValue)
{
	return UE::MovieGraph::Private::Succeeded(Value.SetValueString(PropertyName, InValue));
}

bool UMovieGraphValueContainer::SetValueText(const FText& InValue)
{
	return UE::MovieGraph::Private::Succeeded(Value.SetValueText(PropertyName, InValue));
}

bool UMovieGraphValueContainer::SetValueEnum(const uint8 InValue, const UEnum* Enum)
{
	return UE::MovieGraph::Private::Succeeded(Value.SetValueEnum(PropertyName, InValue, Enum));
}

bool UMovieGraphValueContainer::SetValueObject(UObject* InValue)
{
	return UE::MovieGraph::Private::Succeeded(Value.SetValueObject(PropertyName, InValue));
}

bool UMovieGraphValueContainer::SetValueClass(UClass* InValue)
{
	return UE::MovieGraph::Private::Succeeded(Value.SetValueClass(PropertyName, InValue));
}

bool UMovieGraphValueContainer::SetValueStruct(FConstStructView InValue)
{
	return UE::MovieGraph::Private::Succeeded(Value.SetValueStruct(PropertyName, InValue));
}

bool UMovieGraphValueContainer::SetValueSerializedString(const FString& NewValue)
{
	return UE::MovieGraph::Private::Succeeded(Value.SetValueSerializedString(PropertyName, NewValue));
}

const FPropertyBagPropertyDesc* UMovieGraphValueContainer::FindValueDesc() const
{
	return Value.FindPropertyDescByName(PropertyName);
}

EMovieGraphValueType UMovieGraphValueContainer::GetValueType() const
{
	const FPropertyBagPropertyDesc* Desc = FindValueDesc();
	return Desc ? EMovieGraphValueType(Desc->ValueType) : EMovieGraphValueType::None;
}

void UMovieGraphValueContainer::SetValueType(EMovieGraphValueType ValueType, UObject* InValueTypeObject)
{
	RebuildValue(ValueType, InValueTypeObject, GetValueContainerType());
}

const UObject* UMovieGraphValueContainer::GetValueTypeObject() const
{
	const FPropertyBagPropertyDesc* Desc = FindValueDesc();
	return Desc ? Desc->ValueTypeObject.Get() : nullptr;
}

void UMovieGraphValueContainer::SetValueTypeObject(const UObject* ValueTypeObject)
{
	RebuildValue(GetValueType(), ValueTypeObject, GetValueContainerType());
}

EMovieGraphContainerType UMovieGraphValueContainer::GetValueContainerType() const
{
	const FPropertyBagPropertyDesc* Desc = FindValueDesc();
	return Desc ? EMovieGraphContainerType(Desc->ContainerTypes.GetFirstContainerType()) : EMovieGraphContainerType::None;
}

void UMovieGraphValueContainer::SetValueContainerType(EMovieGraphContainerType ContainerType)
{
	RebuildValue(GetValueType(), GetValueTypeObject(), ContainerType);
}

void UMovieGraphValueContainer::RebuildValue(EMovieGraphValueType InValueType, const UObject* InValueTypeObject, EMovieGraphContainerType InContainerType)
{
	const bool bUnchanged = InValueType == GetValueType() && InValueTypeObject == GetValueTypeObject() && InContainerType == GetValueContainerType() && FindValueDesc();
	if (bUnchanged)
	{
		return;
	}
	FInstancedPropertyBag NewValue;
	if (InContainerType == EMovieGraphContainerType::None)
	{
		NewValue.AddProperty(PropertyName, EPropertyBagPropertyType(InValueType), InValueTypeObject);
	}
	else
	{
		NewValue.AddContainerProperty(PropertyName, EPropertyBagContainerType(InContainerType), EPropertyBagPropertyType(InValueType), InValueTypeObject);
	}
	Value = MoveTemp(NewValue);
}

TValueOrError<FPropertyBagArrayRef, EPropertyBagResult> UMovieGraphValueContainer::GetArrayRef()
{
	return Value.GetMutableArrayRef(PropertyName);
}

// The value keeps its type and contents under the new name.
void UMovieGraphValueContainer::SetPropertyName(const FName& InName)
{
	const FPropertyBagPropertyDesc* Desc = FindValueDesc();
	if (InName == PropertyName || !Desc)
	{
		PropertyName = InName;
		return;
	}
	FPropertyBagPropertyDesc RenamedDesc = *Desc;
	RenamedDesc.Name = InName;
	FInstancedPropertyBag NewValue;
	NewValue.AddProperties({ RenamedDesc });
	NewValue.CopyMatchingValuesByID(Value);
	Value = MoveTemp(NewValue);
	PropertyName = InName;
}

FName UMovieGraphValueContainer::GetPropertyName() const
{
	return PropertyName;
}

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMovieGraphValueContainer, CLASS_None, "MovieRenderPipelineCore")
{
	STANDIN_PROPERTY(PropertyName, CPF_None);
	STANDIN_PROPERTY(Value, CPF_None);
	STANDIN_FUNCTION(GetValueBool, TEXT("bOutValue"));
	STANDIN_FUNCTION(GetValueInt32, TEXT("OutValue"));
	STANDIN_FUNCTION(GetValueString, TEXT("OutValue"));
	STANDIN_FUNCTION(GetValueSerializedString);
	STANDIN_FUNCTION(SetValueSerializedString, TEXT("NewValue"));
	STANDIN_FUNCTION(GetValueType);
	STANDIN_FUNCTION(GetValueContainerType);
}
