// FLinearColor (32-bit float RGBA, linear space) and FColor (8-bit BGRA, usually sRGB).
#pragma once

#include "CoreTypes.h"
#include "Containers/UnrealString.h"
#include "Templates/TypeHash.h"

struct FColor;

struct FLinearColor
{
	float R = 0.f;
	float G = 0.f;
	float B = 0.f;
	float A = 0.f;

	FLinearColor() = default;

	explicit FLinearColor(EForceInit)
	{
	}

	constexpr FLinearColor(float InR, float InG, float InB, float InA = 1.0f)
		: R(InR)
		, G(InG)
		, B(InB)
		, A(InA)
	{
	}

	/** Converts an sRGB FColor to linear space. */
	CORE_API FLinearColor(const FColor& Color);

	FLinearColor operator+(const FLinearColor& Other) const { return FLinearColor(R + Other.R, G + Other.G, B + Other.B, A + Other.A); }
	FLinearColor operator-(const FLinearColor& Other) const { return FLinearColor(R - Other.R, G - Other.G, B - Other.B, A - Other.A); }
	FLinearColor operator*(const FLinearColor& Other) const { return FLinearColor(R * Other.R, G * Other.G, B * Other.B, A * Other.A); }
	FLinearColor operator*(float Scalar) const { return FLinearColor(R * Scalar, G * Scalar, B * Scalar, A * Scalar); }
	FLinearColor operator/(float Scalar) const { return FLinearColor(R / Scalar, G / Scalar, B / Scalar, A / Scalar); }

	bool operator==(const FLinearColor& Other) const { return R == Other.R && G == Other.G && B == Other.B && A == Other.A; }
	bool operator!=(const FLinearColor& Other) const { return !(*this == Other); }

	CORE_API bool Equals(const FLinearColor& Other, float Tolerance = 1.e-4f) const;

	/** Quantizes to 8 bits per channel, through the sRGB curve when bSRGB. */
	CORE_API FColor ToFColor(const bool bSRGB) const;
	CORE_API FColor ToFColorSRGB() const;

	/** "(R=1.000000,G=0.500000,B=0.000000,A=1.000000)" */
	CORE_API FString ToString() const;

	static CORE_API const FLinearColor White;
	static CORE_API const FLinearColor Gray;
	static CORE_API const FLinearColor Black;
	static CORE_API const FLinearColor Transparent;
	static CORE_API const FLinearColor Red;
	static CORE_API const FLinearColor Green;
	static CORE_API const FLinearColor Blue;
	static CORE_API const FLinearColor Yellow;

	friend uint32 GetTypeHash(const FLinearColor& Color)
	{
		return HashCombine(HashCombine(GetTypeHash(Color.R), GetTypeHash(Color.G)), HashCombine(GetTypeHash(Color.B), GetTypeHash(Color.A)));
	}
};

inline FLinearColor operator*(float Scalar, const FLinearColor& Color)
{
	return Color * Scalar;
}

struct FColor
{
	// The engine's little-endian memory order.
	uint8 B = 0;
	uint8 G = 0;
	uint8 R = 0;
	uint8 A = 0;

	FColor() = default;

	explicit FColor(EForceInit)
	{
	}

	constexpr FColor(uint8 InR, uint8 InG, uint8 InB, uint8 InA = 255)
		: B(InB)
		, G(InG)
		, R(InR)
		, A(InA)
	{
	}

	/** From 0xAARRGGBB. */
	explicit FColor(uint32 InColor)
		: B(uint8(InColor))
		, G(uint8(InColor >> 8))
		, R(uint8(InColor >> 16))
		, A(uint8(InColor >> 24))
	{
	}

	/** 0xAARRGGBB */
	uint32 ToPackedARGB() const { return (uint32(A) << 24) | (uint32(R) << 16) | (uint32(G) << 8) | uint32(B); }

	bool operator==(const FColor& Other) const { return ToPackedARGB() == Other.ToPackedARGB(); }
	bool operator!=(const FColor& Other) const { return !(*this == Other); }

	/** Each channel divided by 255, without the sRGB curve. */
	CORE_API FLinearColor ReinterpretAsLinear() const;

	/** "RRGGBBAA" in upper-case hexadecimal. */
	CORE_API FString ToHex() const;

	/** "(R=255,G=128,B=0,A=255)" */
	CORE_API FString ToString() const;

	static CORE_API const FColor White;
	static CORE_API const FColor Black;
	static CORE_API const FColor Transparent;
	static CORE_API const FColor Red;
	static CORE_API const FColor Green;
	static CORE_API const FColor Blue;
	static CORE_API const FColor Yellow;

	friend uint32 GetTypeHash(const FColor& Color)
	{
		return Color.ToPackedARGB();
	}
};
