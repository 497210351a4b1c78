// FGuid: a 128-bit globally unique identifier made of four 32-bit components.
#pragma once

#include "CoreTypes.h"
#include "Containers/UnrealString.h"

class FOutputDevice;
class UObject;

enum class EGuidFormats
{
	/** 32 upper-case hexadecimal digits: "00000000000000000000000000000000". */
	Digits,

	/** 32 lower-case hexadecimal digits: "0123abc456def789abcd123ef4a5b6c7". */
	DigitsLower,

	/** Upper-case digits separated by hyphens: "00000000-0000-0000-0000-000000000000". */
	DigitsWithHyphens,

	/** Lower-case digits separated by hyphens, as in RFC 4122: "bd048ce3-358b-46c5-8cee-627c719418f8". */
	DigitsWithHyphensLower,

	/** "{00000000-0000-0000-0000-000000000000}". */
	DigitsWithHyphensInBraces,

	/** "(00000000-0000-0000-0000-000000000000)". */
	DigitsWithHyphensInParentheses,

	/** "{0x00000000,0x0000,0x0000,{0x00,0x00,0x00,0x00,0x00,0x00,0x00,0x00}}". */
	HexValuesInBraces,

	/** The FUniqueObjectGuid form: "00000000-00000000-00000000-00000000". */
	UniqueObjectGuid,

	/** 22 base64 characters with '-' and '_' in place of '+' and '/', no padding: "AQsMCQ0PAAUKCgQEBAgADQ". */
	Short,

	/** 25 base-36 characters (0-9, A-Z), safe on case-insensitive file systems: "1DPF6ARFCM4XH5RMWPU8TGR0J". */
	Base36Encoded,
};

struct FGuid
{
public:
	constexpr FGuid()
		: A(0)
		, B(0)
		, C(0)
		, D(0)
	{
	}

	explicit constexpr FGuid(uint32 InA, uint32 InB, uint32 InC, uint32 InD)
		: A(InA)
		, B(InB)
		, C(InC)
		, D(InD)
	{
	}

	/** Parses any of the formats Parse accepts; an unparsable string gives the invalid (all-zero) GUID. */
	explicit FGuid(const FString& InGuidStr)
		: FGuid()
	{
		if (!Parse(InGuidStr, *this))
		{
			Invalidate();
		}
	}

public:
	friend bool operator==(const FGuid& X, const FGuid& Y)
	{
		return ((X.A ^ Y.A) | (X.B ^ Y.B) | (X.C ^ Y.C) | (X.D ^ Y.D)) == 0;
	}

	friend bool operator!=(const FGuid& X, const FGuid& Y)
	{
		return !(X == Y);
	}

	/** Component-wise, A first. */
	friend bool operator<(const FGuid& X, const FGuid& Y)
	{
		if (X.A != Y.A) { return X.A < Y.A; }
		if (X.B != Y.B) { return X.B < Y.B; }
		if (X.C != Y.C) { return X.C < Y.C; }
		return X.D < Y.D;
	}

	/** Index 0..3 selects A..D; any other index gives A. */
	uint32& operator[](int32 Index)
	{
		switch (Index)
		{
		case 1: return B;
		case 2: return C;
		case 3: return D;
		default: return A;
		}
	}

	const uint32& operator[](int32 Index) const
	{
		return const_cast<FGuid&>(*this)[Index];
	}

	friend FString LexToString(const FGuid& Value)
	{
		return Value.ToString();
	}

	friend void LexFromString(FGuid& Result, const TCHAR* String)
	{
		FGuid::Parse(String, Result);
	}

public:
	/** Text export writes the Digits format. */
	CORE_API bool ExportTextItem(FString& ValueStr, FGuid const& DefaultValue, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) const;

	/** Text import reads exactly 32 hexadecimal digits and advances Buffer past them. */
	CORE_API bool ImportTextItem(const TCHAR*& Buffer, int32 PortFlags, UObject* Parent, FOutputDevice* ErrorText);

	void Invalidate()
	{
		A = B = C = D = 0;
	}

	/** A GUID whose components are all zero is invalid. */
	bool IsValid() const
	{
		return (A | B | C | D) != 0;
	}

	FString ToString(EGuidFormats Format = EGuidFormats::Digits) const
	{
		FString Out;
		AppendString(Out, Format);
		return Out;
	}

	CORE_API void AppendString(FString& Out, EGuidFormats Format = EGuidFormats::Digits) const;

public:
	/** A new random GUID; never the invalid all-zero value. */
	CORE_API static FGuid NewGuid();

	/** A GUID combining the two given ones. */
	CORE_API static FGuid Combine(const FGuid& GuidA, const FGuid& GuidB);

	/** Recognizes the format from the length (32, 36, 38, 68, 35, 22 or 25 characters) and parses it. */
	CORE_API static bool Parse(const FString& GuidString, FGuid& OutGuid);
	CORE_API static bool Parse(const TCHAR* GuidString, FGuid& OutGuid);

	/** Parses the given format only; the hexadecimal formats accept either case. */
	CORE_API static bool ParseExact(const FString& GuidString, EGuidFormats Format, FGuid& OutGuid);
	CORE_API static bool ParseExact(const TCHAR* GuidString, EGuidFormats Format, FGuid& OutGuid);

public:
	uint32 A;
	uint32 B;
	uint32 C;
	uint32 D;
};

CORE_API uint32 GetTypeHash(const FGuid& Guid);
