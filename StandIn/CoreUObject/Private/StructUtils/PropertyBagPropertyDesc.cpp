// FPropertyBagPropertyDesc and FPropertyBagContainerTypes: what a property of a bag is, and their text form.

#include "StructUtils/PropertyBag.h"
#include "UObject/EnumProperty.h"
#include "UObject/StandInTypeBuilder.h"
#include "UObject/TextProperty.h"
#include "PropertyTextParsing.h"

#if UE_VERSION_OLDER_THAN(5, 8, 0)
STANDIN_IMPLEMENT_ENUM(EPropertyBagPropertyType, "CoreUObject", None, Bool, Byte, Int32, Int64, Float, Double, Name, String, Text,
	Enum, Struct, Object, SoftObject, Class, SoftClass, UInt32, UInt64, Count)
STANDIN_IMPLEMENT_ENUM(EPropertyBagContainerType, "CoreUObject", None, Array, Set, Count)
#else
STANDIN_IMPLEMENT_ENUM(EPropertyBagPropertyType, "CoreUObject", None, Bool, Byte, Int32, Int64, Float, Double, Name, String, Text,
	Enum, Struct, Object, SoftObject, Class, SoftClass, Int8, Int16, UInt16, UInt32, UInt64, Count)
STANDIN_IMPLEMENT_ENUM(EPropertyBagContainerType, "CoreUObject", None, Array, Set, Map, Count)
#endif

STANDIN_IMPLEMENT_STRUCT(FPropertyBagContainerTypes, "CoreUObject")
{
}

STANDIN_IMPLEMENT_STRUCT(FPropertyBagPropertyDesc, "CoreUObject")
{
	STANDIN_PROPERTY(ValueTypeObject, CPF_None);
	STANDIN_PROPERTY(ID, CPF_None);
	STANDIN_PROPERTY(Name, CPF_None);
	STANDIN_PROPERTY(ValueType, CPF_None);
	STANDIN_PROPERTY(ContainerTypes, CPF_None);
}

using namespace UE::CoreUObject::StandIn::PropertyText;

FPropertyBagContainerTypes::FPropertyBagContainerTypes(EPropertyBagContainerType ContainerType)
{
	Add(ContainerType);
}

FPropertyBagContainerTypes::FPropertyBagContainerTypes(const std::initializer_list<EPropertyBagContainerType>& InTypes)
{
	for (EPropertyBagContainerType Type : InTypes)
	{
		Add(Type);
	}
}

bool FPropertyBagContainerTypes::Add(const EPropertyBagContainerType PropertyBagContainerType)
{
	if (PropertyBagContainerType == EPropertyBagContainerType::None || !CanAdd())
	{
		return false;
	}
	Types[NumContainers++] = PropertyBagContainerType;
	return true;
}

EPropertyBagContainerType FPropertyBagContainerTypes::PopHead()
{
	const EPropertyBagContainerType Head = GetFirstContainerType();
	if (NumContainers > 0)
	{
		for (int32 Index = 1; Index < NumContainers; ++Index)
		{
			Types[Index - 1] = Types[Index];
		}
		Types[--NumContainers] = EPropertyBagContainerType::None;
	}
	return Head;
}

bool FPropertyBagContainerTypes::operator==(const FPropertyBagContainerTypes& Other) const
{
	if (NumContainers != Other.NumContainers)
	{
		return false;
	}
	for (int32 Index = 0; Index < NumContainers; ++Index)
	{
		if (Types[Index] != Other.Types[Index])
		{
			return false;
		}
	}
	return true;
}

uint32 GetTypeHash(const FPropertyBagContainerTypes& Types)
{
	uint32 Hash = ::GetTypeHash(Types.NumContainers);
	for (int32 Index = 0; Index < Types.NumContainers; ++Index)
	{
		Hash = HashCombine(Hash, ::GetTypeHash(uint8(Types.Types[Index])));
	}
	return Hash;
}

bool FPropertyBagContainerTypes::ExportTextItem(FString& ValueStr, const FPropertyBagContainerTypes& DefaultValue, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) const
{
	const UEnum* Enum = StaticEnum<EPropertyBagContainerType>();
	ValueStr += TEXT("(");
	for (int32 Index = 0; Index < NumContainers; ++Index)
	{
		ValueStr += Index > 0 ? TEXT(",") : TEXT("");
		ValueStr += Enum->GetNameStringByValue(int64(Types[Index]));
	}
	ValueStr += TEXT(")");
	return true;
}

bool FPropertyBagContainerTypes::ImportTextItem(const TCHAR*& Buffer, int32 PortFlags, UObject* Parent, FOutputDevice* ErrorText)
{
	const TCHAR* Cursor = Buffer;
	if (*Cursor != TCHAR('('))
	{
		return false;
	}
	++Cursor;
	FPropertyBagContainerTypes Parsed;
	SkipWhitespace(Cursor);
	while (*Cursor != TCHAR(')'))
	{
		int64 Value = 0;
		Cursor = ImportEnumValue(Cursor, StaticEnum<EPropertyBagContainerType>(), Value);
		if (!Cursor || !Parsed.Add(EPropertyBagContainerType(Value)) || !SkipListSeparator(Cursor))
		{
			return false;
		}
	}
	*this = Parsed;
	Buffer = Cursor + 1;
	return true;
}

namespace UE::StructUtils::Private
{
	// The bag type of a property of the kinds a bag can hold; None for any other.
	void DescribeValueProperty(const FProperty* Property, EPropertyBagPropertyType& OutValueType, const UObject*& OutValueTypeObject)
	{
		OutValueTypeObject = nullptr;
		OutValueType = EPropertyBagPropertyType::None;
		if (const FEnumProperty* EnumProperty = CastField<FEnumProperty>(Property))
		{
			OutValueType = EPropertyBagPropertyType::Enum;
			OutValueTypeObject = EnumProperty->GetEnum();
		}
		else if (const FByteProperty* ByteProperty = CastField<FByteProperty>(Property))
		{
			OutValueType = ByteProperty->Enum ? EPropertyBagPropertyType::Enum : EPropertyBagPropertyType::Byte;
			OutValueTypeObject = ByteProperty->Enum;
		}
		else if (const FStructProperty* StructProperty = CastField<FStructProperty>(Property))
		{
			OutValueType = EPropertyBagPropertyType::Struct;
			OutValueTypeObject = StructProperty->Struct;
		}
		else if (const FSoftClassProperty* SoftClassProperty = CastField<FSoftClassProperty>(Property))
		{
			OutValueType = EPropertyBagPropertyType::SoftClass;
			OutValueTypeObject = SoftClassProperty->MetaClass;
		}
		else if (const FClassProperty* ClassProperty = CastField<FClassProperty>(Property))
		{
			OutValueType = EPropertyBagPropertyType::Class;
			OutValueTypeObject = ClassProperty->MetaClass;
		}
		else if (const FSoftObjectProperty* SoftObjectProperty = CastField<FSoftObjectProperty>(Property))
		{
			OutValueType = EPropertyBagPropertyType::SoftObject;
			OutValueTypeObject = SoftObjectProperty->PropertyClass;
		}
		else if (const FObjectProperty* ObjectProperty = CastField<FObjectProperty>(Property))
		{
			OutValueType = EPropertyBagPropertyType::Object;
			OutValueTypeObject = ObjectProperty->PropertyClass;
		}
		else if (Property->IsA<FBoolProperty>()) { OutValueType = EPropertyBagPropertyType::Bool; }
		else if (Property->IsA<FIntProperty>()) { OutValueType = EPropertyBagPropertyType::Int32; }
		else if (Property->IsA<FInt64Property>()) { OutValueType = EPropertyBagPropertyType::Int64; }
		else if (Property->IsA<FUInt32Property>()) { OutValueType = EPropertyBagPropertyType::UInt32; }
		else if (Property->IsA<FUInt64Property>()) { OutValueType = EPropertyBagPropertyType::UInt64; }
#if !UE_VERSION_OLDER_THAN(5, 8, 0)
		else if (Property->IsA<FInt8Property>()) { OutValueType = EPropertyBagPropertyType::Int8; }
		else if (Property->IsA<FInt16Property>()) { OutValueType = EPropertyBagPropertyType::Int16; }
		else if (Property->IsA<FUInt16Property>()) { OutValueType = EPropertyBagPropertyType::UInt16; }
#endif
		else if (Property->IsA<FFloatProperty>()) { OutValueType = EPropertyBagPropertyType::Float; }
		else if (Property->IsA<FDoubleProperty>()) { OutValueType = EPropertyBagPropertyType::Double; }
		else if (Property->IsA<FNameProperty>()) { OutValueType = EPropertyBagPropertyType::Name; }
		else if (Property->IsA<FStrProperty>()) { OutValueType = EPropertyBagPropertyType::String; }
		else if (Property->IsA<FTextProperty>()) { OutValueType = EPropertyBagPropertyType::Text; }
	}
}

FPropertyBagPropertyDesc::FPropertyBagPropertyDesc(const FName InName, const FProperty* InSourceProperty)
	: ID(FGuid::NewGuid())
	, Name(InName)
{
	if (!InSourceProperty)
	{
		return;
	}
	const FProperty* ValueProperty = InSourceProperty;
	if (const FArrayProperty* ArrayProperty = CastField<FArrayProperty>(InSourceProperty))
	{
		ContainerTypes.Add(EPropertyBagContainerType::Array);
		ValueProperty = ArrayProperty->Inner;
	}
	const UObject* TypeObject = nullptr;
	UE::StructUtils::Private::DescribeValueProperty(ValueProperty, ValueType, TypeObject);
	ValueTypeObject = TypeObject;
}

FPropertyBagPropertyDesc::FPropertyBagPropertyDesc(const FName InName, const EPropertyBagPropertyType InValueType, const UObject* InValueTypeObject)
	: ValueTypeObject(InValueTypeObject)
	, ID(FGuid::NewGuid())
	, Name(InName)
	, ValueType(InValueType)
{
}

FPropertyBagPropertyDesc::FPropertyBagPropertyDesc(const FName InName, const EPropertyBagContainerType InContainerType, const EPropertyBagPropertyType InValueType, const UObject* InValueTypeObject)
	: FPropertyBagPropertyDesc(InName, InValueType, InValueTypeObject)
{
	ContainerTypes.Add(InContainerType);
}

FPropertyBagPropertyDesc::FPropertyBagPropertyDesc(const FName InName, const FPropertyBagContainerTypes& InNestedContainers, const EPropertyBagPropertyType InValueType, const UObject* InValueTypeObject)
	: FPropertyBagPropertyDesc(InName, InValueType, InValueTypeObject)
{
	ContainerTypes = InNestedContainers;
}

bool FPropertyBagPropertyDesc::CompatibleType(const FPropertyBagPropertyDesc& Other) const
{
	return ValueType == Other.ValueType && ValueTypeObject == Other.ValueTypeObject && ContainerTypes == Other.ContainerTypes;
}

bool FPropertyBagPropertyDesc::IsNumericType() const
{
	return ValueType == EPropertyBagPropertyType::Bool || ValueType == EPropertyBagPropertyType::Byte || ValueType == EPropertyBagPropertyType::Int32
		|| ValueType == EPropertyBagPropertyType::Int64 || IsUnsignedNumericType() || IsNumericFloatType()
#if !UE_VERSION_OLDER_THAN(5, 8, 0)
		|| ValueType == EPropertyBagPropertyType::Int8 || ValueType == EPropertyBagPropertyType::Int16
#endif
		;
}

bool FPropertyBagPropertyDesc::IsUnsignedNumericType() const
{
	return ValueType == EPropertyBagPropertyType::UInt32 || ValueType == EPropertyBagPropertyType::UInt64
#if !UE_VERSION_OLDER_THAN(5, 8, 0)
		|| ValueType == EPropertyBagPropertyType::UInt16
#endif
		;
}

bool FPropertyBagPropertyDesc::IsNumericFloatType() const
{
	return ValueType == EPropertyBagPropertyType::Float || ValueType == EPropertyBagPropertyType::Double;
}

bool FPropertyBagPropertyDesc::IsObjectType() const
{
	return ValueType == EPropertyBagPropertyType::Object || ValueType == EPropertyBagPropertyType::SoftObject;
}

bool FPropertyBagPropertyDesc::IsClassType() const
{
	return ValueType == EPropertyBagPropertyType::Class || ValueType == EPropertyBagPropertyType::SoftClass;
}
