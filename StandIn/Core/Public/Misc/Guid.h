// FGuid: a 128-bit globally unique identifier made of four 32-bit components.
#pragma once

#include "CoreTypes.h"
#include "Containers/UnrealString.h"

class FOutputDevice;
class UObject;

/** Stand-in choice: only the text formats the stand-in and the module write are offered. */
enum class EGuidFormats
{
	/** 32 upper-case hexadecimal digits: "00000000000000000000000000000000". */
	Digits,

	/** Upper-case digits separated by hyphens: "00000000-0000-0000-0000-000000000000". */
	DigitsWithHyphens,
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

	/** Parses the given format only; hexadecimal digits of either case. Stand-in choice: only Digits parses. */
	CORE_API static bool ParseExact(const FString& GuidString, EGuidFormats Format, FGuid& OutGuid);

public:
	uint32 A;
	uint32 B;
	uint32 C;
	uint32 D;
};

CORE_API uint32 GetTypeHash(const FGuid& Guid);
