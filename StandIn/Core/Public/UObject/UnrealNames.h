// EName: the names every process has from the start.
#pragma once

#include "HAL/Platform.h"

/** Stand-in choice: a subset of the engine's hard-coded names, numbered in this order. */
#define UE_STANDIN_HARDCODED_NAMES(Op) \
	Op(None) \
	Op(ByteProperty) \
	Op(IntProperty) \
	Op(BoolProperty) \
	Op(FloatProperty) \
	Op(ObjectProperty) \
	Op(NameProperty) \
	Op(DelegateProperty) \
	Op(DoubleProperty) \
	Op(ArrayProperty) \
	Op(StructProperty) \
	Op(StrProperty) \
	Op(TextProperty) \
	Op(InterfaceProperty) \
	Op(MulticastDelegateProperty) \
	Op(LazyObjectProperty) \
	Op(SoftObjectProperty) \
	Op(UInt64Property) \
	Op(UInt32Property) \
	Op(UInt16Property) \
	Op(Int64Property) \
	Op(Int16Property) \
	Op(Int8Property) \
	Op(MapProperty) \
	Op(SetProperty) \
	Op(EnumProperty) \
	Op(ClassProperty) \
	Op(SoftClassProperty) \
	Op(WeakObjectProperty) \
	Op(Core) \
	Op(CoreUObject) \
	Op(Engine) \
	Op(Editor) \
	Op(Object) \
	Op(Class) \
	Op(Package) \
	Op(Actor) \
	Op(Struct) \
	Op(Enum) \
	Op(Function) \
	Op(Vector) \
	Op(Vector2D) \
	Op(Color) \
	Op(LinearColor) \
	Op(Guid) \
	Op(IntPoint) \
	Op(Rotator) \
	Op(Transform) \
	Op(Name) \
	Op(Add) \
	Op(Remove) \
	Op(Error) \
	Op(Warning) \
	Op(Log) \
	Op(Display)

#define UE_STANDIN_ENAME_ENTRY(Name) Name,
enum class EName : uint32
{
	UE_STANDIN_HARDCODED_NAMES(UE_STANDIN_ENAME_ENTRY)
	MaxHardcodedNameIndex,
};
#undef UE_STANDIN_ENAME_ENTRY

#define UE_STANDIN_ENAME_CONSTANT(Name) inline constexpr EName NAME_##Name = EName::Name;
UE_STANDIN_HARDCODED_NAMES(UE_STANDIN_ENAME_CONSTANT)
#undef UE_STANDIN_ENAME_CONSTANT
