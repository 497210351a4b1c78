#include "Misc/Guid.h"

#include "Misc/Char.h"
#include "Misc/CString.h"

#include <chrono>
#include <random>
#include <sys/random.h>

namespace
{
	constexpr int32 DigitCount = 32;

	void AppendHex(FString& Out, uint32 Value, int32 HexDigitCount)
	{
		static const TCHAR* const HexDigits = TEXT("0123456789ABCDEF");
		for (int32 Shift = (HexDigitCount - 1) * 4; Shift >= 0; Shift -= 4)
		{
			Out.AppendChar(HexDigits[(Value >> Shift) & 0xF]);
		}
	}

	/** "%08X-%04X-%04X-%04X-%04X%08X" of the components. */
	void AppendDigitsWithHyphens(FString& Out, const FGuid& Guid)
	{
		AppendHex(Out, Guid.A, 8);
		Out.AppendChar(TEXT('-'));
		AppendHex(Out, Guid.B >> 16, 4);
		Out.AppendChar(TEXT('-'));
		AppendHex(Out, Guid.B & 0xFFFF, 4);
		Out.AppendChar(TEXT('-'));
		AppendHex(Out, Guid.C >> 16, 4);
		Out.AppendChar(TEXT('-'));
		AppendHex(Out, Guid.C & 0xFFFF, 4);
		AppendHex(Out, Guid.D, 8);
	}

	uint32 ParseHexComponent(const FString& Digits, int32 Start)
	{
		uint32 Value = 0;
		for (int32 Index = Start; Index < Start + 8; ++Index)
		{
			const TCHAR Char = Digits[Index];
			const uint32 Nibble = FChar::IsDigit(Char) ? uint32(Char - TEXT('0')) : uint32(FChar::ToUpper(Char) - TEXT('A') + 10);
			Value = (Value << 4) | Nibble;
		}
		return Value;
	}

	bool ParseDigits(const FString& Text, FGuid& OutGuid)
	{
		if (Text.Len() != DigitCount)
		{
			return false;
		}
		for (TCHAR Char : Text)
		{
			if (!FChar::IsHexDigit(Char))
			{
				return false;
			}
		}
		OutGuid = FGuid(ParseHexComponent(Text, 0), ParseHexComponent(Text, 8), ParseHexComponent(Text, 16), ParseHexComponent(Text, 24));
		return true;
	}

	bool FillRandomBytes(void* Buffer, size_t Size)
	{
		return getrandom(Buffer, Size, 0) == (ssize_t)Size;
	}

	uint32 FallbackRandomComponent()
	{
		static thread_local std::mt19937 Generator((uint32)std::chrono::high_resolution_clock::now().time_since_epoch().count());
		return Generator();
	}
}

bool FGuid::ExportTextItem(FString& ValueStr, FGuid const& DefaultValue, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) const
{
	AppendString(ValueStr, EGuidFormats::Digits);
	return true;
}

bool FGuid::ImportTextItem(const TCHAR*& Buffer, int32 PortFlags, UObject* Parent, FOutputDevice* ErrorText)
{
	if (Buffer == nullptr || FCString::Strnlen(Buffer, DigitCount) < DigitCount)
	{
		return false;
	}
	if (!ParseExact(FString(DigitCount, Buffer), EGuidFormats::Digits, *this))
	{
		return false;
	}
	Buffer += DigitCount;
	return true;
}

void FGuid::AppendString(FString& Out, EGuidFormats Format) const
{
	if (Format == EGuidFormats::DigitsWithHyphens)
	{
		AppendDigitsWithHyphens(Out, *this);
		return;
	}
	for (int32 Index = 0; Index < 4; ++Index)
	{
		AppendHex(Out, (*this)[Index], 8);
	}
}

uint32 GetTypeHash(const FGuid& Guid)
{
	return HashCombine(HashCombine(Guid.A, Guid.B), HashCombine(Guid.C, Guid.D));
}

FGuid FGuid::NewGuid()
{
	FGuid Result;
	while (!Result.IsValid())
	{
		uint32 Components[4] = {};
		if (!FillRandomBytes(Components, sizeof(Components)))
		{
			for (uint32& Component : Components)
			{
				Component = FallbackRandomComponent();
			}
		}
		Result = FGuid(Components[0], Components[1], Components[2], Components[3]);
	}
	return Result;
}

bool FGuid::ParseExact(const FString& GuidString, EGuidFormats Format, FGuid& OutGuid)
{
	return Format == EGuidFormats::Digits && ParseDigits(GuidString, OutGuid);
}
