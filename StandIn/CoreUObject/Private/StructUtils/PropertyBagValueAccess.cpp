// Typed access to one property bag value: type checks against the desc, numeric conversions and text.

#include "PropertyBagValueAccess.h"
#include "UObject/EnumProperty.h"
#include "UObject/TextProperty.h"
#include "PropertyTextParsing.h"

namespace UE::StructUtils::Private
{
	namespace
	{
		const FNumericProperty* AsNumericProperty(const FPropertyBagPropertyDesc& Desc)
		{
			return Desc.ValueType == EPropertyBagPropertyType::Bool ? nullptr : CastField<FNumericProperty>(Desc.CachedProperty);
		}

		// Stand-in choice: enum values are read and written only through GetValueEnum/SetValueEnum, never as numbers.
		bool IsNumericValue(const FPropertyBagPropertyDesc& Desc)
		{
			return Desc.CachedProperty && Desc.ContainerTypes.IsEmpty() && Desc.IsNumericType();
		}

		bool IsValueOfType(const FPropertyBagPropertyDesc& Desc, EPropertyBagPropertyType ValueType)
		{
			return Desc.CachedProperty && Desc.ContainerTypes.IsEmpty() && Desc.ValueType == ValueType;
		}

		bool IsSoftReference(const FPropertyBagPropertyDesc& Desc)
		{
			return Desc.ValueType == EPropertyBagPropertyType::SoftObject || Desc.ValueType == EPropertyBagPropertyType::SoftClass;
		}
	}

	TValueOrError<int64, EPropertyBagResult> GetValueAsInt64(const FPropertyBagPropertyDesc& Desc, const void* Address)
	{
		if (!IsNumericValue(Desc))
		{
			return MakeError(EPropertyBagResult::TypeMismatch);
		}
		if (const FBoolProperty* BoolProperty = CastField<FBoolProperty>(Desc.CachedProperty))
		{
			return MakeValue(BoolProperty->GetPropertyValue(Address) ? 1 : 0);
		}
		const FNumericProperty* Numeric = AsNumericProperty(Desc);
		return MakeValue(Numeric->IsFloatingPoint() ? int64(Numeric->GetFloatingPointPropertyValue(Address)) : Numeric->GetSignedIntPropertyValue(Address));
	}

	TValueOrError<uint64, EPropertyBagResult> GetValueAsUInt64(const FPropertyBagPropertyDesc& Desc, const void* Address)
	{
		if (IsNumericValue(Desc) && Desc.IsUnsignedNumericType())
		{
			return MakeValue(AsNumericProperty(Desc)->GetUnsignedIntPropertyValue(Address));
		}
		TValueOrError<int64, EPropertyBagResult> Signed = GetValueAsInt64(Desc, Address);
		if (!Signed.HasValue())
		{
			return MakeError(Signed.GetError());
		}
		return MakeValue(uint64(Signed.GetValue()));
	}

	TValueOrError<double, EPropertyBagResult> GetValueAsDouble(const FPropertyBagPropertyDesc& Desc, const void* Address)
	{
		if (IsNumericValue(Desc) && Desc.IsNumericFloatType())
		{
			return MakeValue(AsNumericProperty(Desc)->GetFloatingPointPropertyValue(Address));
		}
		if (IsNumericValue(Desc) && Desc.IsUnsignedNumericType())
		{
			return MakeValue(double(AsNumericProperty(Desc)->GetUnsignedIntPropertyValue(Address)));
		}
		TValueOrError<int64, EPropertyBagResult> Signed = GetValueAsInt64(Desc, Address);
		if (!Signed.HasValue())
		{
			return MakeError(Signed.GetError());
		}
		return MakeValue(double(Signed.GetValue()));
	}

	EPropertyBagResult SetValueFromInt64(const FPropertyBagPropertyDesc& Desc, void* Address, const int64 InValue)
	{
		if (!IsNumericValue(Desc))
		{
			return EPropertyBagResult::TypeMismatch;
		}
		if (const FBoolProperty* BoolProperty = CastField<FBoolProperty>(Desc.CachedProperty))
		{
			BoolProperty->SetPropertyValue(Address, InValue != 0);
		}
		else if (AsNumericProperty(Desc)->IsFloatingPoint())
		{
			AsNumericProperty(Desc)->SetFloatingPointPropertyValue(Address, double(InValue));
		}
		else
		{
			AsNumericProperty(Desc)->SetIntPropertyValue(Address, InValue);
		}
		return EPropertyBagResult::Success;
	}

	EPropertyBagResult SetValueFromUInt64(const FPropertyBagPropertyDesc& Desc, void* Address, const uint64 InValue)
	{
		if (IsNumericValue(Desc) && Desc.IsUnsignedNumericType())
		{
			AsNumericProperty(Desc)->SetIntPropertyValue(Address, InValue);
			return EPropertyBagResult::Success;
		}
		if (IsNumericValue(Desc) && Desc.IsNumericFloatType())
		{
			AsNumericProperty(Desc)->SetFloatingPointPropertyValue(Address, double(InValue));
			return EPropertyBagResult::Success;
		}
		return SetValueFromInt64(Desc, Address, int64(InValue));
	}

	EPropertyBagResult SetValueFromDouble(const FPropertyBagPropertyDesc& Desc, void* Address, const double InValue)
	{
		if (IsNumericValue(Desc) && Desc.IsNumericFloatType())
		{
			AsNumericProperty(Desc)->SetFloatingPointPropertyValue(Address, InValue);
			return EPropertyBagResult::Success;
		}
		if (IsNumericValue(Desc) && Desc.ValueType == EPropertyBagPropertyType::Bool)
		{
			return SetValueFromInt64(Desc, Address, InValue != 0.0 ? 1 : 0);
		}
		return SetValueFromInt64(Desc, Address, int64(InValue));
	}

	TValueOrError<FName, EPropertyBagResult> GetValueName(const FPropertyBagPropertyDesc& Desc, const void* Address)
	{
		if (!IsValueOfType(Desc, EPropertyBagPropertyType::Name))
		{
			return MakeError(EPropertyBagResult::TypeMismatch);
		}
		return MakeValue(*static_cast<const FName*>(Address));
	}

	TValueOrError<FString, EPropertyBagResult> GetValueString(const FPropertyBagPropertyDesc& Desc, const void* Address)
	{
		if (!IsValueOfType(Desc, EPropertyBagPropertyType::String))
		{
			return MakeError(EPropertyBagResult::TypeMismatch);
		}
		return MakeValue(*static_cast<const FString*>(Address));
	}

	TValueOrError<FText, EPropertyBagResult> GetValueText(const FPropertyBagPropertyDesc& Desc, const void* Address)
	{
		if (!IsValueOfType(Desc, EPropertyBagPropertyType::Text))
		{
			return MakeError(EPropertyBagResult::TypeMismatch);
		}
		return MakeValue(*static_cast<const FText*>(Address));
	}

	TValueOrError<uint8, EPropertyBagResult> GetValueEnum(const FPropertyBagPropertyDesc& Desc, const void* Address, const UEnum* RequestedEnum)
	{
		if (!IsValueOfType(Desc, EPropertyBagPropertyType::Enum) || Desc.ValueTypeObject != RequestedEnum)
		{
			return MakeError(EPropertyBagResult::TypeMismatch);
		}
		return MakeValue(*static_cast<const uint8*>(Address));
	}

	TValueOrError<FStructView, EPropertyBagResult> GetValueStruct(const FPropertyBagPropertyDesc& Desc, void* Address, const UScriptStruct* RequestedStruct)
	{
		const UScriptStruct* Struct = Cast<UScriptStruct>(Desc.ValueTypeObject.Get());
		if (!IsValueOfType(Desc, EPropertyBagPropertyType::Struct) || !Struct || (RequestedStruct && !Struct->IsChildOf(RequestedStruct)))
		{
			return MakeError(EPropertyBagResult::TypeMismatch);
		}
		return MakeValue(Struct, static_cast<uint8*>(Address));
	}

	TValueOrError<UObject*, EPropertyBagResult> GetValueObject(const FPropertyBagPropertyDesc& Desc, const void* Address, const UClass* RequestedClass)
	{
		const FObjectPropertyBase* ObjectProperty = CastField<FObjectPropertyBase>(Desc.CachedProperty);
		if (!ObjectProperty || !Desc.ContainerTypes.IsEmpty() || !(Desc.IsObjectType() || Desc.IsClassType()))
		{
			return MakeError(EPropertyBagResult::TypeMismatch);
		}
		const UClass* PropertyClass = Desc.IsClassType() ? UClass::StaticClass() : ObjectProperty->PropertyClass;
		if (RequestedClass && !(PropertyClass && PropertyClass->IsChildOf(RequestedClass)))
		{
			return MakeError(EPropertyBagResult::TypeMismatch);
		}
		return MakeValue(ObjectProperty->GetObjectPropertyValue(Address));
	}

	TValueOrError<FSoftObjectPath, EPropertyBagResult> GetValueSoftPath(const FPropertyBagPropertyDesc& Desc, const void* Address)
	{
		if (!Desc.CachedProperty || !Desc.ContainerTypes.IsEmpty() || !IsSoftReference(Desc))
		{
			return MakeError(EPropertyBagResult::TypeMismatch);
		}
		return MakeValue(static_cast<const FSoftObjectPtr*>(Address)->ToSoftObjectPath());
	}

	TValueOrError<FString, EPropertyBagResult> GetValueSerializedString(const FPropertyBagPropertyDesc& Desc, const void* Address)
	{
		if (!Desc.CachedProperty)
		{
			return MakeError(EPropertyBagResult::PropertyNotFound);
		}
		FString Text;
		Desc.CachedProperty->ExportTextItem_Direct(Text, Address, nullptr, nullptr, PPF_None);
		return MakeValue(MoveTemp(Text));
	}

	EPropertyBagResult SetValueName(const FPropertyBagPropertyDesc& Desc, void* Address, const FName InValue)
	{
		if (!IsValueOfType(Desc, EPropertyBagPropertyType::Name))
		{
			return EPropertyBagResult::TypeMismatch;
		}
		*static_cast<FName*>(Address) = InValue;
		return EPropertyBagResult::Success;
	}

	EPropertyBagResult SetValueString(const FPropertyBagPropertyDesc& Desc, void* Address, const FString& InValue)
	{
		if (!IsValueOfType(Desc, EPropertyBagPropertyType::String))
		{
			return EPropertyBagResult::TypeMismatch;
		}
		*static_cast<FString*>(Address) = InValue;
		return EPropertyBagResult::Success;
	}

	EPropertyBagResult SetValueText(const FPropertyBagPropertyDesc& Desc, void* Address, const FText& InValue)
	{
		if (!IsValueOfType(Desc, EPropertyBagPropertyType::Text))
		{
			return EPropertyBagResult::TypeMismatch;
		}
		*static_cast<FText*>(Address) = InValue;
		return EPropertyBagResult::Success;
	}

	EPropertyBagResult SetValueEnum(const FPropertyBagPropertyDesc& Desc, void* Address, const uint8 InValue, const UEnum* Enum)
	{
		if (!IsValueOfType(Desc, EPropertyBagPropertyType::Enum) || Desc.ValueTypeObject != Enum)
		{
			return EPropertyBagResult::TypeMismatch;
		}
		*static_cast<uint8*>(Address) = InValue;
		return EPropertyBagResult::Success;
	}

	EPropertyBagResult SetValueStruct(const FPropertyBagPropertyDesc& Desc, void* Address, FConstStructView InValue)
	{
		const UScriptStruct* Struct = Cast<UScriptStruct>(Desc.ValueTypeObject.Get());
		if (!IsValueOfType(Desc, EPropertyBagPropertyType::Struct) || !Struct || InValue.GetScriptStruct() != Struct)
		{
			return EPropertyBagResult::TypeMismatch;
		}
		if (InValue.GetMemory())
		{
			Struct->CopyScriptStruct(Address, InValue.GetMemory());
		}
		else
		{
			Desc.CachedProperty->ClearValue(Address);
		}
		return EPropertyBagResult::Success;
	}

	EPropertyBagResult SetValueObject(const FPropertyBagPropertyDesc& Desc, void* Address, UObject* InValue)
	{
		const FObjectPropertyBase* ObjectProperty = CastField<FObjectPropertyBase>(Desc.CachedProperty);
		if (!ObjectProperty || !Desc.ContainerTypes.IsEmpty() || !(Desc.IsObjectType() || Desc.IsClassType()))
		{
			return EPropertyBagResult::TypeMismatch;
		}
		const UClass* RequiredClass = Desc.IsClassType() ? UClass::StaticClass() : ObjectProperty->PropertyClass;
		if (InValue && RequiredClass && !InValue->IsA(RequiredClass))
		{
			return EPropertyBagResult::TypeMismatch;
		}
		const FClassProperty* ClassProperty = CastField<FClassProperty>(Desc.CachedProperty);
		const FSoftClassProperty* SoftClassProperty = CastField<FSoftClassProperty>(Desc.CachedProperty);
		const UClass* MetaClass = ClassProperty ? ClassProperty->MetaClass : (SoftClassProperty ? SoftClassProperty->MetaClass : nullptr);
		if (InValue && MetaClass && !static_cast<UClass*>(InValue)->IsChildOf(MetaClass))
		{
			return EPropertyBagResult::TypeMismatch;
		}
		ObjectProperty->SetObjectPropertyValue(Address, InValue);
		return EPropertyBagResult::Success;
	}

	EPropertyBagResult SetValueSoftPath(const FPropertyBagPropertyDesc& Desc, void* Address, const FSoftObjectPath& InValue)
	{
		if (!Desc.CachedProperty || !Desc.ContainerTypes.IsEmpty() || !IsSoftReference(Desc))
		{
			return EPropertyBagResult::TypeMismatch;
		}
		*static_cast<FSoftObjectPtr*>(Address) = FSoftObjectPtr(InValue);
		return EPropertyBagResult::Success;
	}

	// Stand-in choice: the whole text must be one value of the property (trailing text refuses it, as unparsable text does).
	EPropertyBagResult SetValueSerializedString(const FPropertyBagPropertyDesc& Desc, void* Address, const FString& InValue)
	{
		using namespace UE::CoreUObject::StandIn::PropertyText;
		if (!Desc.CachedProperty)
		{
			return EPropertyBagResult::PropertyNotFound;
		}
		FScratchPropertyValue Scratch(Desc.CachedProperty, Address);
		const TCHAR* End = Desc.CachedProperty->ImportText_Direct(*InValue, Scratch.Get(), nullptr, PPF_None, nullptr);
		if (End)
		{
			SkipWhitespace(End);
		}
		if (!End || *End != TCHAR('\0'))
		{
			return EPropertyBagResult::TypeMismatch;
		}
		Scratch.CommitTo(Address);
		return EPropertyBagResult::Success;
	}
}
