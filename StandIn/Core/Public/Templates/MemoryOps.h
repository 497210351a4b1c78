// Construct / destruct / relocate ranges of elements.
#pragma once

#include "HAL/UnrealMemory.h"
#include "Templates/UnrealTemplate.h"

#include <new>
#include <type_traits>

template <typename ElementType>
FORCEINLINE void DefaultConstructItems(void* Address, int32 Count)
{
	if constexpr (std::is_trivially_default_constructible_v<ElementType> && std::is_trivially_copyable_v<ElementType>)
	{
		FMemory::Memzero(Address, sizeof(ElementType) * Count);
	}
	else
	{
		ElementType* Element = (ElementType*)Address;
		for (int32 Index = 0; Index < Count; ++Index)
		{
			new (Element + Index) ElementType();
		}
	}
}

template <typename ElementType>
FORCEINLINE void DestructItem(ElementType* Element)
{
	if constexpr (!std::is_trivially_destructible_v<ElementType>)
	{
		Element->~ElementType();
	}
}

template <typename ElementType>
FORCEINLINE void DestructItems(ElementType* Element, int32 Count)
{
	if constexpr (!std::is_trivially_destructible_v<ElementType>)
	{
		for (int32 Index = 0; Index < Count; ++Index)
		{
			Element[Index].~ElementType();
		}
	}
}

template <typename DestinationElementType, typename SourceElementType>
FORCEINLINE void ConstructItems(void* Dest, const SourceElementType* Source, int32 Count)
{
	if constexpr (std::is_same_v<DestinationElementType, SourceElementType> && std::is_trivially_copy_constructible_v<DestinationElementType>)
	{
		FMemory::Memcpy(Dest, Source, sizeof(SourceElementType) * Count);
	}
	else
	{
		DestinationElementType* Element = (DestinationElementType*)Dest;
		for (int32 Index = 0; Index < Count; ++Index)
		{
			new (Element + Index) DestinationElementType(Source[Index]);
		}
	}
}

template <typename ElementType>
FORCEINLINE void CopyAssignItems(ElementType* Dest, const ElementType* Source, int32 Count)
{
	for (int32 Index = 0; Index < Count; ++Index)
	{
		Dest[Index] = Source[Index];
	}
}

/** Moves elements to new memory: the engine relocates bitwise, so no constructor or destructor runs. */
template <typename ElementType>
FORCEINLINE void RelocateConstructItems(void* Dest, const ElementType* Source, int32 Count)
{
	FMemory::Memmove(Dest, (const void*)Source, sizeof(ElementType) * Count);
}

template <typename ElementType>
FORCEINLINE bool CompareItems(const ElementType* A, const ElementType* B, int32 Count)
{
	for (int32 Index = 0; Index < Count; ++Index)
	{
		if (!(A[Index] == B[Index]))
		{
			return false;
		}
	}
	return true;
}
