// GetTypeHash for the built-in types, and HashCombine.
#pragma once

#include "HAL/Platform.h"

#include <cstring>
#include <type_traits>

/** Bob Jenkins' 96-bit mix, as the engine's HashCombine. */
constexpr inline uint32 HashCombine(uint32 A, uint32 C)
{
	uint32 B = 0x9e3779b9;
	A += B;

	A -= B; A -= C; A ^= (C >> 13);
	B -= C; B -= A; B ^= (A << 8);
	C -= A; C -= B; C ^= (B >> 13);
	A -= B; A -= C; A ^= (C >> 12);
	B -= C; B -= A; B ^= (A << 16);
	C -= A; C -= B; C ^= (B >> 5);
	A -= B; A -= C; A ^= (C >> 3);
	B -= C; B -= A; B ^= (A << 10);
	C -= A; C -= B; C ^= (B >> 15);

	return C;
}

constexpr inline uint32 HashCombineFast(uint32 A, uint32 B)
{
	return A ^ (B + 0x9e3779b9 + (A << 6) + (A >> 2));
}

template <typename ScalarType>
constexpr inline std::enable_if_t<std::is_integral_v<ScalarType> && (sizeof(ScalarType) <= 4), uint32> GetTypeHash(ScalarType Value)
{
	return (uint32)Value;
}

template <typename ScalarType>
constexpr inline std::enable_if_t<std::is_integral_v<ScalarType> && (sizeof(ScalarType) == 8), uint32> GetTypeHash(ScalarType Value)
{
	return (uint32)Value + ((uint32)((uint64)Value >> 32) * 23);
}

inline uint32 GetTypeHash(float Value)
{
	uint32 Bits;
	std::memcpy(&Bits, &Value, sizeof(Bits));
	return Bits;
}

inline uint32 GetTypeHash(double Value)
{
	uint64 Bits;
	std::memcpy(&Bits, &Value, sizeof(Bits));
	return GetTypeHash(Bits);
}

inline uint32 PointerHash(const void* Key)
{
	// Allocations are at least 16-byte aligned, so the low bits carry no information.
	const UPTRINT PtrInt = reinterpret_cast<UPTRINT>(Key) >> 4;
	return GetTypeHash((uint64)PtrInt);
}

inline uint32 PointerHash(const void* Key, uint32 C)
{
	return HashCombine(PointerHash(Key), C);
}

template <typename T>
inline uint32 GetTypeHash(T* Value)
{
	return PointerHash(Value);
}

template <typename EnumType>
constexpr inline std::enable_if_t<std::is_enum_v<EnumType>, uint32> GetTypeHash(EnumType E)
{
	return GetTypeHash((std::underlying_type_t<EnumType>)E);
}
