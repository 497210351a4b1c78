// FPropertyBagArrayRef: typed element access to an array property of a bag.

#include "StructUtils/PropertyBag.h"
#include "PropertyBagValueAccess.h"

using namespace UE::StructUtils::Private;

FPropertyBagArrayRef::FPropertyBagArrayRef(const FPropertyBagPropertyDesc& InDesc, const void* InArray)
	: FScriptArrayHelper(CastFieldChecked<FArrayProperty>(InDesc.CachedProperty), InArray)
	, ValueDesc(InDesc)
{
	ValueDesc.ContainerTypes.PopHead();
	ValueDesc.CachedProperty = CastFieldChecked<FArrayProperty>(InDesc.CachedProperty)->Inner;
}

#define PROPERTY_BAG_ARRAY_GETTER(Call) \
	{ \
		if (!IsValidIndex(Index)) \
		{ \
			return MakeError(EPropertyBagResult::OutOfBounds); \
		} \
		uint8* Address = const_cast<uint8*>(GetRawPtr(Index)); \
		return Call; \
	}

#define PROPERTY_BAG_ARRAY_SETTER(Call) \
	{ \
		if (!IsValidIndex(Index)) \
		{ \
			return EPropertyBagResult::OutOfBounds; \
		} \
		uint8* Address = GetRawPtr(Index); \
		return Call; \
	}

TValueOrError<bool, EPropertyBagResult> FPropertyBagArrayRef::GetValueBool(const int32 Index) const PROPERTY_BAG_ARRAY_GETTER(GetNumericValue<bool>(ValueDesc, Address))
TValueOrError<uint8, EPropertyBagResult> FPropertyBagArrayRef::GetValueByte(const int32 Index) const PROPERTY_BAG_ARRAY_GETTER(GetNumericValue<uint8>(ValueDesc, Address))
TValueOrError<int32, EPropertyBagResult> FPropertyBagArrayRef::GetValueInt32(const int32 Index) const PROPERTY_BAG_ARRAY_GETTER(GetNumericValue<int32>(ValueDesc, Address))
TValueOrError<int64, EPropertyBagResult> FPropertyBagArrayRef::GetValueInt64(const int32 Index) const PROPERTY_BAG_ARRAY_GETTER(GetNumericValue<int64>(ValueDesc, Address))
TValueOrError<float, EPropertyBagResult> FPropertyBagArrayRef::GetValueFloat(const int32 Index) const PROPERTY_BAG_ARRAY_GETTER(GetNumericValue<float>(ValueDesc, Address))
TValueOrError<double, EPropertyBagResult> FPropertyBagArrayRef::GetValueDouble(const int32 Index) const PROPERTY_BAG_ARRAY_GETTER(GetNumericValue<double>(ValueDesc, Address))
TValueOrError<FName, EPropertyBagResult> FPropertyBagArrayRef::GetValueName(const int32 Index) const PROPERTY_BAG_ARRAY_GETTER(UE::StructUtils::Private::GetValueName(ValueDesc, Address))
TValueOrError<FString, EPropertyBagResult> FPropertyBagArrayRef::GetValueString(const int32 Index) const PROPERTY_BAG_ARRAY_GETTER(UE::StructUtils::Private::GetValueString(ValueDesc, Address))
TValueOrError<FText, EPropertyBagResult> FPropertyBagArrayRef::GetValueText(const int32 Index) const PROPERTY_BAG_ARRAY_GETTER(UE::StructUtils::Private::GetValueText(ValueDesc, Address))
TValueOrError<UObject*, EPropertyBagResult> FPropertyBagArrayRef::GetValueObject(const int32 Index, const UClass* RequestedClass) const PROPERTY_BAG_ARRAY_GETTER(UE::StructUtils::Private::GetValueObject(ValueDesc, Address, RequestedClass))
TValueOrError<FStructView, EPropertyBagResult> FPropertyBagArrayRef::GetValueStruct(const int32 Index, const UScriptStruct* RequestedStruct) const PROPERTY_BAG_ARRAY_GETTER(UE::StructUtils::Private::GetValueStruct(ValueDesc, Address, RequestedStruct))

EPropertyBagResult FPropertyBagArrayRef::SetValueBool(const int32 Index, const bool bInValue) PROPERTY_BAG_ARRAY_SETTER(SetNumericValue(ValueDesc, Address, int64(bInValue)))
EPropertyBagResult FPropertyBagArrayRef::SetValueByte(const int32 Index, const uint8 InValue) PROPERTY_BAG_ARRAY_SETTER(SetNumericValue(ValueDesc, Address, int64(InValue)))
EPropertyBagResult FPropertyBagArrayRef::SetValueInt32(const int32 Index, const int32 InValue) PROPERTY_BAG_ARRAY_SETTER(SetNumericValue(ValueDesc, Address, InValue))
EPropertyBagResult FPropertyBagArrayRef::SetValueInt64(const int32 Index, const int64 InValue) PROPERTY_BAG_ARRAY_SETTER(SetNumericValue(ValueDesc, Address, InValue))
EPropertyBagResult FPropertyBagArrayRef::SetValueFloat(const int32 Index, const float InValue) PROPERTY_BAG_ARRAY_SETTER(SetNumericValue(ValueDesc, Address, InValue))
EPropertyBagResult FPropertyBagArrayRef::SetValueDouble(const int32 Index, const double InValue) PROPERTY_BAG_ARRAY_SETTER(SetNumericValue(ValueDesc, Address, InValue))
EPropertyBagResult FPropertyBagArrayRef::SetValueName(const int32 Index, const FName InValue) PROPERTY_BAG_ARRAY_SETTER(UE::StructUtils::Private::SetValueName(ValueDesc, Address, InValue))
EPropertyBagResult FPropertyBagArrayRef::SetValueString(const int32 Index, const FString& InValue) PROPERTY_BAG_ARRAY_SETTER(UE::StructUtils::Private::SetValueString(ValueDesc, Address, InValue))
EPropertyBagResult FPropertyBagArrayRef::SetValueText(const int32 Index, const FText& InValue) PROPERTY_BAG_ARRAY_SETTER(UE::StructUtils::Private::SetValueText(ValueDesc, Address, InValue))
EPropertyBagResult FPropertyBagArrayRef::SetValueObject(const int32 Index, UObject* InValue) PROPERTY_BAG_ARRAY_SETTER(UE::StructUtils::Private::SetValueObject(ValueDesc, Address, InValue))
EPropertyBagResult FPropertyBagArrayRef::SetValueStruct(const int32 Index, FConstStructView InValue) PROPERTY_BAG_ARRAY_SETTER(UE::StructUtils::Private::SetValueStruct(ValueDesc, Address, InValue))

#undef PROPERTY_BAG_ARRAY_GETTER
#undef PROPERTY_BAG_ARRAY_SETTER
