// Raw storage with the size and alignment of a type.
#pragma once

#include "HAL/Platform.h"

template <typename ElementType>
struct TTypeCompatibleBytes
{
	alignas(ElementType) uint8 Pad[sizeof(ElementType)];

	ElementType* GetTypedPtr() { return reinterpret_cast<ElementType*>(Pad); }
	const ElementType* GetTypedPtr() const { return reinterpret_cast<const ElementType*>(Pad); }
};

template <int32 Size, uint32 Alignment>
struct TAlignedBytes
{
	alignas(Alignment) uint8 Pad[Size];
};
