#include "Math/Color.h"

#include <cmath>

namespace
{
	float Clamp01(float Value)
	{
		return Value < 0.f ? 0.f : (Value > 1.f ? 1.f : (std::isnan(Value) ? 0.f : Value));
	}

	float LinearToSRGB(float Linear)
	{
		return Linear <= 0.0031308f ? Linear * 12.92f : 1.055f * std::pow(Linear, 1.0f / 2.4f) - 0.055f;
	}

	float SRGBToLinear(uint8 Channel)
	{
		const float Encoded = Channel / 255.f;
		return Encoded <= 0.04045f ? Encoded / 12.92f : std::pow((Encoded + 0.055f) / 1.055f, 2.4f);
	}

	uint8 QuantizeChannel(float Value)
	{
		return static_cast<uint8>(std::floor(Clamp01(Value) * 255.999f));
	}
}

FLinearColor::FLinearColor(const FColor& Color)
	: R(SRGBToLinear(Color.R))
	, G(SRGBToLinear(Color.G))
	, B(SRGBToLinear(Color.B))
	, A(Color.A / 255.f)
{
}

bool FLinearColor::Equals(const FLinearColor& Other, float Tolerance) const
{
	return std::abs(R - Other.R) < Tolerance && std::abs(G - Other.G) < Tolerance && std::abs(B - Other.B) < Tolerance && std::abs(A - Other.A) < Tolerance;
}

FColor FLinearColor::ToFColor(const bool bSRGB) const
{
	if (!bSRGB)
	{
		return FColor(QuantizeChannel(R), QuantizeChannel(G), QuantizeChannel(B), QuantizeChannel(A));
	}
	return FColor(QuantizeChannel(LinearToSRGB(Clamp01(R))), QuantizeChannel(LinearToSRGB(Clamp01(G))), QuantizeChannel(LinearToSRGB(Clamp01(B))), QuantizeChannel(A));
}

FColor FLinearColor::ToFColorSRGB() const
{
	return ToFColor(true);
}

FString FLinearColor::ToString() const
{
	return FString::Printf(TEXT("(R=%f,G=%f,B=%f,A=%f)"), R, G, B, A);
}

const FLinearColor FLinearColor::White(1.f, 1.f, 1.f);
const FLinearColor FLinearColor::Gray(0.5f, 0.5f, 0.5f);
const FLinearColor FLinearColor::Black(0.f, 0.f, 0.f);
const FLinearColor FLinearColor::Transparent(0.f, 0.f, 0.f, 0.f);
const FLinearColor FLinearColor::Red(1.f, 0.f, 0.f);
const FLinearColor FLinearColor::Green(0.f, 1.f, 0.f);
const FLinearColor FLinearColor::Blue(0.f, 0.f, 1.f);
const FLinearColor FLinearColor::Yellow(1.f, 1.f, 0.f);

FLinearColor FColor::ReinterpretAsLinear() const
{
	return FLinearColor(R / 255.f, G / 255.f, B / 255.f, A / 255.f);
}

FString FColor::ToHex() const
{
	return FString::Printf(TEXT("%02X%02X%02X%02X"), R, G, B, A);
}

FString FColor::ToString() const
{
	return FString::Printf(TEXT("(R=%i,G=%i,B=%i,A=%i)"), R, G, B, A);
}

const FColor FColor::White(255, 255, 255);
const FColor FColor::Black(0, 0, 0);
const FColor FColor::Transparent(0, 0, 0, 0);
const FColor FColor::Red(255, 0, 0);
const FColor FColor::Green(0, 255, 0);
const FColor FColor::Blue(0, 0, 255);
const FColor FColor::Yellow(255, 255, 0);
