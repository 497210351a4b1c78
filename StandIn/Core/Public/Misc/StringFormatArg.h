// FStringFormatArg: one value given to FString::Format, a number or a string.
#pragma once

#include "CoreTypes.h"
#include "Containers/StringView.h"
#include "Containers/UnrealString.h"

struct FStringFormatArg
{
	// Stand-in choice: no UCS-2 literal kind, as the stand-in has no UCS2CHAR type.
	enum EType { Int, UInt, Double, String, StringLiteralANSI, StringLiteralWIDE, StringLiteralUTF8 };

	EType Type;

	// The value of a number or string literal kind; a literal must outlive the argument.
	union
	{
		int64 IntValue;
		uint64 UIntValue;
		double DoubleValue;
		const ANSICHAR* StringLiteralANSIValue;
		const WIDECHAR* StringLiteralWIDEValue;
		const UTF8CHAR* StringLiteralUTF8Value;
	};

	// The value of the String kind.
	FString StringValue;

	CORE_API FStringFormatArg(const int32 Value);
	CORE_API FStringFormatArg(const uint32 Value);
	CORE_API FStringFormatArg(const int64 Value);
	CORE_API FStringFormatArg(const uint64 Value);
	CORE_API FStringFormatArg(const float Value);
	CORE_API FStringFormatArg(const double Value);
	CORE_API FStringFormatArg(FString Value);
	CORE_API FStringFormatArg(FStringView Value);
	CORE_API FStringFormatArg(const ANSICHAR* Value);
	CORE_API FStringFormatArg(const WIDECHAR* Value);
	CORE_API FStringFormatArg(const UTF8CHAR* Value);

	FStringFormatArg(const FStringFormatArg& Other) = default;
	FStringFormatArg(FStringFormatArg&& Other) = default;
	FStringFormatArg& operator=(const FStringFormatArg& Other) = default;
	FStringFormatArg& operator=(FStringFormatArg&& Other) = default;

	FStringFormatArg() = delete;
};
