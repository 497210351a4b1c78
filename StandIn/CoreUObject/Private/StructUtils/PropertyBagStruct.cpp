// UPropertyBag: the script struct of a bag layout, built from property descs and shared by every bag with that layout.

#include "StructUtils/PropertyBag.h"
#include "UObject/EnumProperty.h"
#include "UObject/Package.h"
#include "UObject/StandInTypeBuilder.h"
#include "UObject/UObjectGlobals.h"

STANDIN_IMPLEMENT_CLASS(UPropertyBag, CLASS_None, "CoreUObject")
{
}

namespace
{
	using UE::CoreUObject::StandIn::NativeFieldFlags;

	template<class TProperty>
	FProperty* NewObjectReferenceProperty(FFieldVariant Owner, FName Name, const UObject* ValueTypeObject)
	{
		TProperty* Property = new TProperty(Owner, Name, NativeFieldFlags);
		const UClass* Class = Cast<UClass>(ValueTypeObject);
		Property->PropertyClass = const_cast<UClass*>(Class ? Class : UObject::StaticClass());
		return Property;
	}

	template<class TProperty>
	FProperty* NewClassReferenceProperty(FFieldVariant Owner, FName Name, const UObject* ValueTypeObject)
	{
		TProperty* Property = new TProperty(Owner, Name, NativeFieldFlags);
		const UClass* MetaClass = Cast<UClass>(ValueTypeObject);
		Property->PropertyClass = UClass::StaticClass();
		Property->MetaClass = const_cast<UClass*>(MetaClass ? MetaClass : UObject::StaticClass());
		return Property;
	}

	FProperty* NewEnumValueProperty(FFieldVariant Owner, FName Name, const UObject* ValueTypeObject)
	{
		UEnum* Enum = const_cast<UEnum*>(Cast<UEnum>(ValueTypeObject));
		if (!Enum)
		{
			return nullptr;
		}
		return UE::CoreUObject::StandIn::NewEnumProperty(Owner, Name, Enum, new FByteProperty(nullptr, FName(TEXT("UnderlyingType")), NativeFieldFlags));
	}

	FProperty* NewStructValueProperty(FFieldVariant Owner, FName Name, const UObject* ValueTypeObject)
	{
		UScriptStruct* Struct = const_cast<UScriptStruct*>(Cast<UScriptStruct>(ValueTypeObject));
		if (!Struct)
		{
			return nullptr;
		}
		FStructProperty* Property = new FStructProperty(Owner, Name, NativeFieldFlags);
		Property->Struct = Struct;
		Property->SetElementSize(Struct->GetStructureSize());
		return Property;
	}

	// A property holding one value of ValueType; null when the type needs a type object it was not given.
	FProperty* NewValueProperty(FFieldVariant Owner, FName Name, EPropertyBagPropertyType ValueType, const UObject* ValueTypeObject)
	{
		switch (ValueType)
		{
		case EPropertyBagPropertyType::Bool: return new FBoolProperty(Owner, Name, NativeFieldFlags);
		case EPropertyBagPropertyType::Byte: return new FByteProperty(Owner, Name, NativeFieldFlags);
		case EPropertyBagPropertyType::Int32: return new FIntProperty(Owner, Name, NativeFieldFlags);
		case EPropertyBagPropertyType::Int64: return new FInt64Property(Owner, Name, NativeFieldFlags);
		case EPropertyBagPropertyType::UInt32: return new FUInt32Property(Owner, Name, NativeFieldFlags);
		case EPropertyBagPropertyType::UInt64: return new FUInt64Property(Owner, Name, NativeFieldFlags);
#if !UE_VERSION_OLDER_THAN(5, 8, 0)
		case EPropertyBagPropertyType::Int8: return new FInt8Property(Owner, Name, NativeFieldFlags);
		case EPropertyBagPropertyType::Int16: return new FInt16Property(Owner, Name, NativeFieldFlags);
		case EPropertyBagPropertyType::UInt16: return new FUInt16Property(Owner, Name, NativeFieldFlags);
#endif
		case EPropertyBagPropertyType::Float: return new FFloatProperty(Owner, Name, NativeFieldFlags);
		case EPropertyBagPropertyType::Double: return new FDoubleProperty(Owner, Name, NativeFieldFlags);
		case EPropertyBagPropertyType::Name: return new FNameProperty(Owner, Name, NativeFieldFlags);
		case EPropertyBagPropertyType::String: return new FStrProperty(Owner, Name, NativeFieldFlags);
		case EPropertyBagPropertyType::Text: return UE::CoreUObject::StandIn::NewTextProperty(Owner, Name);
		case EPropertyBagPropertyType::Enum: return NewEnumValueProperty(Owner, Name, ValueTypeObject);
		case EPropertyBagPropertyType::Struct: return NewStructValueProperty(Owner, Name, ValueTypeObject);
		case EPropertyBagPropertyType::Object: return NewObjectReferenceProperty<FObjectProperty>(Owner, Name, ValueTypeObject);
		case EPropertyBagPropertyType::SoftObject: return NewObjectReferenceProperty<FSoftObjectProperty>(Owner, Name, ValueTypeObject);
		case EPropertyBagPropertyType::Class: return NewClassReferenceProperty<FClassProperty>(Owner, Name, ValueTypeObject);
		case EPropertyBagPropertyType::SoftClass: return NewClassReferenceProperty<FSoftClassProperty>(Owner, Name, ValueTypeObject);
		default: return nullptr;
		}
	}

	// Stand-in choice: arrays are the only container the stand-in builds (sets and maps of a bag are refused).
	FProperty* NewDescProperty(FFieldVariant Owner, FName Name, FPropertyBagContainerTypes ContainerTypes, EPropertyBagPropertyType ValueType, const UObject* ValueTypeObject)
	{
		const EPropertyBagContainerType Container = ContainerTypes.PopHead();
		if (Container == EPropertyBagContainerType::None)
		{
			return NewValueProperty(Owner, Name, ValueType, ValueTypeObject);
		}
		if (Container != EPropertyBagContainerType::Array)
		{
			return nullptr;
		}
		FArrayProperty* ArrayProperty = new FArrayProperty(Owner, Name, NativeFieldFlags);
		FProperty* Inner = NewDescProperty(ArrayProperty, Name, ContainerTypes, ValueType, ValueTypeObject);
		if (!Inner)
		{
			delete ArrayProperty;
			return nullptr;
		}
		ArrayProperty->AddCppProperty(Inner);
		return ArrayProperty;
	}

	// Everything that makes two layouts different: names, types, type objects, containers and IDs, in order.
	FString MakeLayoutKey(const TConstArrayView<FPropertyBagPropertyDesc> PropertyDescs)
	{
		FString Key;
		for (const FPropertyBagPropertyDesc& Desc : PropertyDescs)
		{
			Key += FString::Printf(TEXT("%s|%d|%s|%u|%s;"), *Desc.Name.ToString(), int32(Desc.ValueType),
				Desc.ValueTypeObject ? *Desc.ValueTypeObject->GetPathName() : TEXT(""), GetTypeHash(Desc.ContainerTypes), *Desc.ID.ToString());
		}
		return Key;
	}

	TMap<FString, UPropertyBag*>& GetBagsByLayout()
	{
		static TMap<FString, UPropertyBag*> BagsByLayout;
		return BagsByLayout;
	}
}

namespace UE::StructUtils::Private
{
	bool CanCreatePropertyForDesc(const FPropertyBagPropertyDesc& Desc)
	{
		FProperty* Property = NewDescProperty(nullptr, Desc.Name, Desc.ContainerTypes, Desc.ValueType, Desc.ValueTypeObject.Get());
		delete Property;
		return Property != nullptr;
	}
}

const UPropertyBag* UPropertyBag::GetOrCreateFromDescs(const TConstArrayView<FPropertyBagPropertyDesc> PropertyDescs, const TCHAR* PrefixName)
{
	const FString Key = MakeLayoutKey(PropertyDescs);
	if (UPropertyBag** Existing = GetBagsByLayout().Find(Key))
	{
		return *Existing;
	}
	static int32 NumBagsCreated = 0;
	const FString BagName = FString::Printf(TEXT("%s_%d"), PrefixName ? PrefixName : TEXT("PropertyBag"), NumBagsCreated++);
	UPropertyBag* Bag = NewObject<UPropertyBag>(GetTransientPackageAsObject(), FName(*BagName), RF_Public | RF_Transient);
	// Layouts are shared by every bag value that uses them, wherever those values live, so they are never collected.
	Bag->AddToRoot();
	Bag->BuildLayout(PropertyDescs);
	GetBagsByLayout().Add(Key, Bag);
	return Bag;
}

void UPropertyBag::BuildLayout(const TConstArrayView<FPropertyBagPropertyDesc> InPropertyDescs)
{
	int32 Offset = 0;
	int32 Alignment = 1;
	for (const FPropertyBagPropertyDesc& SourceDesc : InPropertyDescs)
	{
		FProperty* Property = NewDescProperty(this, SourceDesc.Name, SourceDesc.ContainerTypes, SourceDesc.ValueType, SourceDesc.ValueTypeObject.Get());
		if (!Property)
		{
			continue;
		}
		Property->PropertyFlags |= CPF_Edit;
		Offset = Align(Offset, uint64(Property->GetMinAlignment()));
		Property->SetOffset_Internal(Offset);
		Offset += Property->GetSize();
		Alignment = FMath::Max(Alignment, Property->GetMinAlignment());
		AddCppProperty(Property);

		FPropertyBagPropertyDesc& Desc = PropertyDescs.Add_GetRef(SourceDesc);
		Desc.CachedProperty = Property;
	}
	SetMinAlignment(Alignment);
	SetPropertiesSize(FMath::Max(Align(Offset, uint64(Alignment)), 1));
	Link();
}

const FPropertyBagPropertyDesc* UPropertyBag::FindPropertyDescByID(const FGuid ID) const
{
	return PropertyDescs.FindByPredicate([&ID](const FPropertyBagPropertyDesc& Desc) { return Desc.ID == ID; });
}

const FPropertyBagPropertyDesc* UPropertyBag::FindPropertyDescByName(const FName Name) const
{
	return PropertyDescs.FindByPredicate([&Name](const FPropertyBagPropertyDesc& Desc) { return Desc.Name == Name; });
}

const FPropertyBagPropertyDesc* UPropertyBag::FindPropertyDescByProperty(const FProperty* Property) const
{
	return PropertyDescs.FindByPredicate([Property](const FPropertyBagPropertyDesc& Desc) { return Desc.CachedProperty == Property; });
}
