// Shared pieces of property text import and export: tokens, quoted strings, enum names and scratch values.
#pragma once

#include "CoreMinimal.h"
#include "UObject/Class.h"

class FProperty;

namespace UE::CoreUObject::StandIn::PropertyText
{
	void SkipWhitespace(const TCHAR*& Buffer);

	// The engine's FPropertyHelpers::ReadToken: a quoted string (with escapes) or a run of identifier characters
	// (with '.', '/' and ':' too when bDottedNames). Null when the text holds no token.
	const TCHAR* ReadToken(const TCHAR* Buffer, FString& OutToken, bool bDottedNames = false);

	// The engine's FParse::QuotedString: Buffer starts at the opening quote; escapes \" \\ \' \n \r \t \xHH \uHHHH.
	bool ParseQuotedString(const TCHAR* Buffer, FString& OutValue, int32& OutNumCharsRead);

	// "\"text\"" with the escapes ReplaceCharWithEscapedChar writes.
	FString QuoteString(const FString& Value);

	// Reads "Name=", "Name[Index]=" or "Name(Index)=" of a struct field assignment.
	bool ReadFieldAssignment(const TCHAR*& Buffer, FString& OutFieldName, int32& OutArrayIndex);

	void LogImportError(FOutputDevice* ErrorText, const FString& Message);

	// After an element of a parenthesized list: skips whitespace and a ',' with the whitespace after it. False when
	// neither a ',' nor the closing ')' follows.
	bool SkipListSeparator(const TCHAR*& Buffer);

	// Whether a value follows in the text (not the end, a ',' or a ')').
	bool IsValueSpecified(const TCHAR* Buffer);
	// Skips one value (quoted strings and nested parentheses included) up to the next ',' or ')'; null when unbalanced.
	const TCHAR* SkipValueText(const TCHAR* Buffer);

	// The short enumerator name of Value, "A | B" for a bitflags enum, or "(INVALID)" (also for the "_MAX" entry,
	// except when copying).
	void ExportEnumValue(FString& ValueStr, const UEnum* Enum, int64 Value, int32 PortFlags);
	// Reads an enumerator (short or full name) or the number of one; null when the token is neither.
	const TCHAR* ImportEnumValue(const TCHAR* Buffer, const UEnum* Enum, int64& OutValue);

	// Integer text: optional signs then decimal digits, or "0x" and hexadecimal digits. False on overflow or no digits.
	bool ParseSignedInteger(const TCHAR*& Buffer, int64& OutValue);
	bool ParseUnsignedInteger(const TCHAR*& Buffer, uint64& OutValue);
	// Floating point text: "1", "-1.5", ".5", "1e4", with an optional 'f' suffix.
	bool ParseFloatingPoint(const TCHAR*& Buffer, double& OutValue);

	// A copy of a struct value that an import fills and that replaces the original only when the import succeeds.
	class FScratchStructValue
	{
	public:
		FScratchStructValue(const UScriptStruct* InStruct, const void* InitialValue);
		~FScratchStructValue();
		UE_NONCOPYABLE(FScratchStructValue)

		void* Get() const { return Memory; }
		void CommitTo(void* Destination) const;

	private:
		const UScriptStruct* Struct;
		void* Memory;
	};

	// The same for the value of any property.
	class FScratchPropertyValue
	{
	public:
		FScratchPropertyValue(const FProperty* InProperty, const void* InitialValue);
		~FScratchPropertyValue();
		UE_NONCOPYABLE(FScratchPropertyValue)

		void* Get() const { return Memory; }
		void CommitTo(void* Destination) const;

	private:
		const FProperty* Property;
		void* Memory;
	};
}
