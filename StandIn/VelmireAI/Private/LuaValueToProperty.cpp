#include "LuaValueToProperty.h"

#include "Math/NumericLimits.h"
#include "PropertyValueText.h"
#include "UObject/UnrealType.h"
#include "VelLuaProperty.h"

#include <cmath>

namespace UE::VelmireAI::Private
{
	namespace
	{
		// A Lua number keeps its integer or float subtype, so that large integers are never rounded through a double.
		struct FLuaNumber
		{
			bool bIsInteger = false;
			int64 Integer = 0;
			double Float = 0.0;

			bool IsWhole() const { return bIsInteger || (std::isfinite(Float) && std::floor(Float) == Float); }
			double AsDouble() const { return bIsInteger ? double(Integer) : Float; }
			FString ToString() const
			{
				return bIsInteger ? FString::Printf(TEXT("%lld"), (long long)Integer) : FString::Printf(TEXT("%.14g"), Float);
			}
		};

		FLuaNumber ReadLuaNumber(const sol::object& LuaValue)
		{
			lua_State* L = LuaValue.lua_state();
			LuaValue.push(L);
			FLuaNumber Number;
			Number.bIsInteger = lua_isinteger(L, -1) != 0;
			if (Number.bIsInteger)
			{
				Number.Integer = lua_tointeger(L, -1);
			}
			else
			{
				Number.Float = lua_tonumber(L, -1);
			}
			lua_pop(L, 1);
			return Number;
		}

		FString ReadLuaString(const sol::object& LuaValue)
		{
			const std::string_view Text = LuaValue.as<std::string_view>();
			const FUTF8ToTCHAR Converted(Text.data(), int32(Text.size()));
			return FString(Converted.Length(), Converted.Get());
		}

		FString DescribeTarget(const FProperty* Property, const FString& PropertyPath)
		{
			return FString::Printf(TEXT("%s (%s)"), *PropertyPath, *DescribePropertyType(Property));
		}

		bool Refuse(const FProperty* Property, const FString& PropertyPath, const FString& Problem, FString& OutError)
		{
			OutError = FString::Printf(TEXT("cannot set %s%s"), *DescribeTarget(Property, PropertyPath), *Problem);
			return false;
		}

		bool RefuseLuaType(const FProperty* Property, const sol::object& LuaValue, const FString& PropertyPath, FString& OutError)
		{
			const FString LuaTypeName(UTF8_TO_TCHAR(lua_typename(LuaValue.lua_state(), int(LuaValue.get_type()))));
			return Refuse(Property, PropertyPath, FString::Printf(TEXT(" from a %s value"), *LuaTypeName), OutError);
		}

		bool IsUnsignedIntegerProperty(const FProperty* Property)
		{
			return CastField<FByteProperty>(Property) || CastField<FUInt16Property>(Property)
				|| CastField<FUInt32Property>(Property) || CastField<FUInt64Property>(Property);
		}

		bool WriteUnsignedInteger(const FNumericProperty* Numeric, void* Value, const FLuaNumber& Number, const FString& PropertyPath, FString& OutError)
		{
			const int32 Bits = Numeric->GetElementSize() * 8;
			const uint64 Max = Bits >= 64 ? TNumericLimits<uint64>::Max() : (uint64(1) << Bits) - 1;
			const bool bInRange = Number.bIsInteger
				? Number.Integer >= 0 && uint64(Number.Integer) <= Max
				: Number.Float >= 0.0 && Number.Float < 18446744073709551616.0 && (Bits >= 64 || Number.Float <= double(Max));
			if (!bInRange)
			{
				return Refuse(Numeric, PropertyPath, FString::Printf(TEXT(" from %s: out of range 0..%llu"),
					*Number.ToString(), (unsigned long long)Max), OutError);
			}
			Numeric->SetIntPropertyValue(Value, Number.bIsInteger ? uint64(Number.Integer) : uint64(Number.Float));
			return true;
		}

		bool WriteSignedInteger(const FNumericProperty* Numeric, void* Value, const FLuaNumber& Number, const FString& PropertyPath, FString& OutError)
		{
			const int32 Bits = Numeric->GetElementSize() * 8;
			const int64 Min = Bits >= 64 ? TNumericLimits<int64>::Min() : -(int64(1) << (Bits - 1));
			const int64 Max = Bits >= 64 ? TNumericLimits<int64>::Max() : (int64(1) << (Bits - 1)) - 1;
			const bool bRepresentable = Number.bIsInteger || (Number.Float >= -9223372036854775808.0 && Number.Float < 9223372036854775808.0);
			const int64 Integer = Number.bIsInteger ? Number.Integer : (bRepresentable ? int64(Number.Float) : 0);
			if (!bRepresentable || Integer < Min || Integer > Max)
			{
				return Refuse(Numeric, PropertyPath, FString::Printf(TEXT(" from %s: out of range %lld..%lld"),
					*Number.ToString(), (long long)Min, (long long)Max), OutError);
			}
			Numeric->SetIntPropertyValue(Value, Integer);
			return true;
		}

		bool WriteEnumValue(const FNumericProperty* Underlying, const FProperty* Property, const UEnum* Enum, void* Value,
			const FLuaNumber& Number, const FString& PropertyPath, FString& OutError)
		{
			const int64 EnumValue = Number.bIsInteger ? Number.Integer : int64(Number.Float);
			const bool bRepresentable = Number.bIsInteger || std::fabs(Number.Float) < 9007199254740992.0;
			if (!bRepresentable || !Enum->IsValidEnumValue(EnumValue))
			{
				return Refuse(Property, PropertyPath, FString::Printf(TEXT(" from %s: not a value of %s"),
					*Number.ToString(), *Enum->GetName()), OutError);
			}
			Underlying->SetIntPropertyValue(Value, EnumValue);
			return true;
		}

		// Stand-in choice: a number into an enum property must be one of the enum's values.
		bool ApplyNumber(const FProperty* Property, void* Value, const sol::object& LuaValue, const FString& PropertyPath, FString& OutError)
		{
			const FLuaNumber Number = ReadLuaNumber(LuaValue);
			const FEnumProperty* EnumProperty = CastField<FEnumProperty>(Property);
			const FNumericProperty* Numeric = EnumProperty ? EnumProperty->GetUnderlyingProperty() : CastField<FNumericProperty>(Property);
			if (!Numeric)
			{
				return RefuseLuaType(Property, LuaValue, PropertyPath, OutError);
			}
			if (Numeric->IsFloatingPoint())
			{
				Numeric->SetFloatingPointPropertyValue(Value, Number.AsDouble());
				return true;
			}
			if (!Number.IsWhole())
			{
				return Refuse(Property, PropertyPath, FString::Printf(TEXT(" from %s: not a whole number"), *Number.ToString()), OutError);
			}
			if (const UEnum* Enum = EnumProperty ? EnumProperty->GetEnum() : Numeric->GetIntPropertyEnum())
			{
				return WriteEnumValue(Numeric, Property, Enum, Value, Number, PropertyPath, OutError);
			}
			return IsUnsignedIntegerProperty(Numeric)
				? WriteUnsignedInteger(Numeric, Value, Number, PropertyPath, OutError)
				: WriteSignedInteger(Numeric, Value, Number, PropertyPath, OutError);
		}

		bool ApplyBoolean(const FProperty* Property, void* Value, const sol::object& LuaValue, const FString& PropertyPath, FString& OutError)
		{
			const FBoolProperty* BoolProperty = CastField<FBoolProperty>(Property);
			if (!BoolProperty)
			{
				return RefuseLuaType(Property, LuaValue, PropertyPath, OutError);
			}
			BoolProperty->SetPropertyValue(Value, LuaValue.as<bool>());
			return true;
		}

		struct FStructFieldValue
		{
			FString Name;
			sol::object Value;
		};

		// Fields in name order, so that the same table always reports the same first problem.
		bool CollectStructFields(const FProperty* Property, const sol::table& Table, const FString& PropertyPath,
			TArray<FStructFieldValue>& OutFields, FString& OutError)
		{
			for (const auto& [Key, FieldValue] : Table)
			{
				if (Key.get_type() != sol::type::string)
				{
					return Refuse(Property, PropertyPath, TEXT(" from a table whose keys are not all field names"), OutError);
				}
				OutFields.Add(FStructFieldValue{ ReadLuaString(Key), FieldValue });
			}
			OutFields.Sort([](const FStructFieldValue& A, const FStructFieldValue& B) { return A.Name.Compare(B.Name, ESearchCase::CaseSensitive) < 0; });
			return true;
		}

		bool ApplyTableToStruct(const FStructProperty* StructProperty, void* Value, const sol::table& Table, const FString& PropertyPath, FString& OutError)
		{
			TArray<FStructFieldValue> Fields;
			if (!CollectStructFields(StructProperty, Table, PropertyPath, Fields, OutError))
			{
				return false;
			}
			for (const FStructFieldValue& Field : Fields)
			{
				FProperty* FieldProperty = VelLuaProperty::FindPropertyByName(StructProperty->Struct, Field.Name);
				if (!FieldProperty)
				{
					return Refuse(StructProperty, PropertyPath, FString::Printf(TEXT(": no field '%s'"), *Field.Name), OutError);
				}
				void* FieldValue = FieldProperty->ContainerPtrToValuePtr<void>(Value);
				const FString FieldPath = PropertyPath + TEXT(".") + FieldProperty->GetName();
				if (!ApplyLuaValueToProperty(FieldProperty, FieldValue, Field.Value, FieldPath, OutError))
				{
					return false;
				}
			}
			return true;
		}

		// The elements of a sequence table in order; false when its keys are not exactly 1..n.
		bool CollectSequence(const sol::table& Table, TArray<sol::object>& OutElements)
		{
			TArray<TPair<int64, sol::object>> Entries;
			for (const auto& [Key, ElementValue] : Table)
			{
				if (Key.get_type() != sol::type::number)
				{
					return false;
				}
				const FLuaNumber Index = ReadLuaNumber(Key);
				if (!Index.bIsInteger)
				{
					return false;
				}
				Entries.Add(TPair<int64, sol::object>(Index.Integer, ElementValue));
			}
			OutElements.SetNum(Entries.Num());
			for (TPair<int64, sol::object>& Entry : Entries)
			{
				if (Entry.Key < 1 || Entry.Key > Entries.Num())
				{
					return false;
				}
				OutElements[int32(Entry.Key - 1)] = Entry.Value;
			}
			return true;
		}

		bool ApplyTableToArray(const FArrayProperty* ArrayProperty, void* Value, const sol::table& Table, const FString& PropertyPath, FString& OutError)
		{
			TArray<sol::object> Elements;
			if (!CollectSequence(Table, Elements))
			{
				return Refuse(ArrayProperty, PropertyPath, TEXT(" from a table that is not a sequence (keys 1..n)"), OutError);
			}
			FScriptArrayHelper Helper(ArrayProperty, Value);
			Helper.Resize(Elements.Num());
			for (int32 Index = 0; Index < Elements.Num(); ++Index)
			{
				const FString ElementPath = FString::Printf(TEXT("%s[%d]"), *PropertyPath, Index + 1);
				if (!ApplyLuaValueToProperty(ArrayProperty->Inner, Helper.GetRawPtr(Index), Elements[Index], ElementPath, OutError))
				{
					return false;
				}
			}
			return true;
		}

		bool ApplyTable(const FProperty* Property, void* Value, const sol::object& LuaValue, const FString& PropertyPath, FString& OutError)
		{
			const sol::table Table = LuaValue.as<sol::table>();
			if (const FStructProperty* StructProperty = CastField<FStructProperty>(Property))
			{
				return ApplyTableToStruct(StructProperty, Value, Table, PropertyPath, OutError);
			}
			if (const FArrayProperty* ArrayProperty = CastField<FArrayProperty>(Property))
			{
				return ApplyTableToArray(ArrayProperty, Value, Table, PropertyPath, OutError);
			}
			return RefuseLuaType(Property, LuaValue, PropertyPath, OutError);
		}
	}

	bool ApplyLuaValueToProperty(const FProperty* Property, void* Value, const sol::object& LuaValue,
		const FString& PropertyPath, FString& OutError)
	{
		switch (LuaValue.get_type())
		{
		case sol::type::string:
			return ImportPropertyText(Property, Value, ReadLuaString(LuaValue), nullptr, PPF_None, PropertyPath, OutError);
		case sol::type::number:
			return ApplyNumber(Property, Value, LuaValue, PropertyPath, OutError);
		case sol::type::boolean:
			return ApplyBoolean(Property, Value, LuaValue, PropertyPath, OutError);
		case sol::type::table:
			return ApplyTable(Property, Value, LuaValue, PropertyPath, OutError);
		default:
			return RefuseLuaType(Property, LuaValue, PropertyPath, OutError);
		}
	}
}
