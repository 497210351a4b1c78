#include "Internationalization/TextNumberFormat.h"

#include <cmath>
#include <cstdio>

namespace UE::Core::Private
{
	namespace
	{
		double RoundForFormatting(double Value, ERoundingMode Mode, int32 FractionalDigits)
		{
			const double Scale = std::pow(10.0, FractionalDigits);
			const double Scaled = Value * Scale;
			double Rounded = Scaled;
			switch (Mode)
			{
			case ERoundingMode::HalfToEven: Rounded = std::nearbyint(Scaled); break;
			case ERoundingMode::HalfFromZero: Rounded = std::round(Scaled); break;
			case ERoundingMode::HalfToZero: Rounded = (Scaled < 0.0) ? -std::ceil(-Scaled - 0.5) : std::ceil(Scaled - 0.5); break;
			case ERoundingMode::FromZero: Rounded = (Scaled < 0.0) ? std::floor(Scaled) : std::ceil(Scaled); break;
			case ERoundingMode::ToZero: Rounded = std::trunc(Scaled); break;
			case ERoundingMode::ToNegativeInfinity: Rounded = std::floor(Scaled); break;
			case ERoundingMode::ToPositiveInfinity: Rounded = std::ceil(Scaled); break;
			}
			return Rounded / Scale;
		}

		/** Digits of the integral part, padded to the minimum and cut to the maximum, with ',' every three digits when grouping. */
		FString FormatIntegralDigits(FString Digits, const FNumberFormattingOptions& Options)
		{
			while (Digits.Len() < Options.MinimumIntegralDigits)
			{
				Digits.InsertAt(0, TEXT('0'));
			}
			if (Options.MaximumIntegralDigits >= 0 && Digits.Len() > Options.MaximumIntegralDigits)
			{
				Digits.RightInline(Options.MaximumIntegralDigits);
			}
			if (Options.UseGrouping)
			{
				for (int32 Index = Digits.Len() - 3; Index > 0; Index -= 3)
				{
					Digits.InsertAt(Index, TEXT(','));
				}
			}
			return Digits;
		}

		FString WithSign(FString&& Number, bool bNegative, const FNumberFormattingOptions& Options)
		{
			if (bNegative)
			{
				return TEXT("-") + Number;
			}
			return Options.AlwaysSign ? TEXT("+") + Number : MoveTemp(Number);
		}
	}

	FString FormatUnsignedNumber(uint64 Value, const FNumberFormattingOptions& Options)
	{
		FString Result = FormatIntegralDigits(FString::Printf(TEXT("%llu"), (unsigned long long)Value), Options);
		if (Options.MinimumFractionalDigits > 0)
		{
			Result += TEXT(".") + FString::ChrN(Options.MinimumFractionalDigits, TEXT('0'));
		}
		return WithSign(MoveTemp(Result), false, Options);
	}

	FString FormatSignedNumber(int64 Value, const FNumberFormattingOptions& Options)
	{
		const bool bNegative = Value < 0;
		const uint64 Magnitude = bNegative ? (uint64)0 - (uint64)Value : (uint64)Value;
		FString Result = FormatIntegralDigits(FString::Printf(TEXT("%llu"), (unsigned long long)Magnitude), Options);
		if (Options.MinimumFractionalDigits > 0)
		{
			Result += TEXT(".") + FString::ChrN(Options.MinimumFractionalDigits, TEXT('0'));
		}
		return WithSign(MoveTemp(Result), bNegative, Options);
	}

	FString FormatFloatingNumber(double Value, const FNumberFormattingOptions& Options)
	{
		if (std::isnan(Value))
		{
			return TEXT("NaN");
		}
		if (std::isinf(Value))
		{
			return Value < 0.0 ? TEXT("-\u221E") : TEXT("\u221E");
		}
		const int32 MaxFractional = Options.MaximumFractionalDigits < 0 ? 0 : (Options.MaximumFractionalDigits > 30 ? 30 : Options.MaximumFractionalDigits);
		const int32 MinFractional = Options.MinimumFractionalDigits < 0 ? 0 : (Options.MinimumFractionalDigits > MaxFractional ? MaxFractional : Options.MinimumFractionalDigits);
		const double Rounded = RoundForFormatting(Value, Options.RoundingMode, MaxFractional);
		const bool bNegative = Rounded < 0.0;
		const FString Fixed = FString::Printf(TEXT("%.*f"), MaxFractional, std::fabs(Rounded));

		FString IntegralPart = Fixed;
		FString FractionalPart;
		Fixed.Split(TEXT("."), &IntegralPart, &FractionalPart);
		while (FractionalPart.Len() > MinFractional && FractionalPart.EndsWith(TEXT("0")))
		{
			FractionalPart.LeftChopInline(1);
		}
		FString Result = FormatIntegralDigits(IntegralPart, Options);
		if (!FractionalPart.IsEmpty())
		{
			Result += TEXT(".");
			Result += FractionalPart;
		}
		return WithSign(MoveTemp(Result), bNegative, Options);
	}
}
