// Shared pieces of property text import and export.

#include "PropertyTextParsing.h"
#include "UObject/UnrealType.h"

#include <limits>

namespace UE::CoreUObject::StandIn::PropertyText
{
	namespace
	{
		bool IsTokenStart(TCHAR Char, bool bDottedNames)
		{
			return FChar::IsAlnum(Char) || (bDottedNames && Char == TCHAR('/')) || uint32(Char) > 255;
		}

		bool IsTokenChar(TCHAR Char, bool bDottedNames)
		{
			return FChar::IsAlnum(Char) || Char == TCHAR('_') || Char == TCHAR('-') || Char == TCHAR('+') || uint32(Char) > 255
				|| (bDottedNames && (Char == TCHAR('.') || Char == TCHAR('/') || Char == TCHAR(':')));
		}

		bool IsOctDigit(TCHAR Char)
		{
			return Char >= TCHAR('0') && Char <= TCHAR('7');
		}

		uint32 HexDigitValue(TCHAR Char)
		{
			if (Char >= TCHAR('0') && Char <= TCHAR('9'))
			{
				return uint32(Char - TCHAR('0'));
			}
			if (Char >= TCHAR('a') && Char <= TCHAR('f'))
			{
				return uint32(Char - TCHAR('a') + 10);
			}
			return uint32(Char - TCHAR('A') + 10);
		}

		// Reads up to MaxDigits digits of the given base; the code point they spell.
		uint32 ReadCodePoint(const TCHAR*& Buffer, int32 MaxDigits, uint32 Base)
		{
			uint32 CodePoint = 0;
			for (int32 Digit = 0; Digit < MaxDigits; ++Digit)
			{
				const bool bIsDigit = Base == 8 ? IsOctDigit(*Buffer) : FChar::IsHexDigit(*Buffer);
				if (!bIsDigit)
				{
					break;
				}
				CodePoint = CodePoint * Base + HexDigitValue(*Buffer++);
			}
			return CodePoint;
		}

		bool ReadEscape(const TCHAR*& Buffer, FString& OutValue)
		{
			const TCHAR Escaped = *Buffer;
			switch (Escaped)
			{
			case TCHAR('\\'): OutValue += TCHAR('\\'); ++Buffer; return true;
			case TCHAR('"'): OutValue += TCHAR('"'); ++Buffer; return true;
			case TCHAR('\''): OutValue += TCHAR('\''); ++Buffer; return true;
			case TCHAR('n'): OutValue += TCHAR('\n'); ++Buffer; return true;
			case TCHAR('r'): OutValue += TCHAR('\r'); ++Buffer; return true;
			case TCHAR('t'): OutValue += TCHAR('\t'); ++Buffer; return true;
			default: break;
			}
			if (IsOctDigit(Escaped))
			{
				const uint32 CodePoint = ReadCodePoint(Buffer, 3, 8);
				if (CodePoint == 0)
				{
					return false;
				}
				OutValue += TCHAR(CodePoint);
				return true;
			}
			const int32 HexDigits = Escaped == TCHAR('x') ? 8 : (Escaped == TCHAR('u') ? 4 : (Escaped == TCHAR('U') ? 8 : 0));
			if (HexDigits > 0 && FChar::IsHexDigit(Buffer[1]))
			{
				++Buffer;
				const uint32 CodePoint = ReadCodePoint(Buffer, HexDigits, 16);
				if (CodePoint == 0 || CodePoint > 0x10FFFF)
				{
					return false;
				}
				OutValue += TCHAR(CodePoint);
				return true;
			}
			// An unknown escape keeps its backslash, as the engine does.
			if (Escaped == 0)
			{
				return false;
			}
			OutValue += TCHAR('\\');
			OutValue += *Buffer++;
			return true;
		}

		bool ReadDigits(const TCHAR*& Buffer, uint32 Base, uint64& OutMagnitude)
		{
			const TCHAR* Start = Buffer;
			uint64 Magnitude = 0;
			while (Base == 16 ? FChar::IsHexDigit(*Buffer) : FChar::IsDigit(*Buffer))
			{
				const uint64 Digit = HexDigitValue(*Buffer++);
				if (Magnitude > (std::numeric_limits<uint64>::max() - Digit) / Base)
				{
					return false;
				}
				Magnitude = Magnitude * Base + Digit;
			}
			OutMagnitude = Magnitude;
			return Buffer != Start;
		}

		bool ReadMagnitude(const TCHAR*& Buffer, uint64& OutMagnitude)
		{
			if (Buffer[0] == TCHAR('0') && (Buffer[1] == TCHAR('x') || Buffer[1] == TCHAR('X')))
			{
				Buffer += 2;
				return ReadDigits(Buffer, 16, OutMagnitude);
			}
			return ReadDigits(Buffer, 10, OutMagnitude);
		}
	}

	void SkipWhitespace(const TCHAR*& Buffer)
	{
		while (*Buffer == TCHAR(' ') || *Buffer == TCHAR('\t') || *Buffer == TCHAR('\r') || *Buffer == TCHAR('\n'))
		{
			++Buffer;
		}
	}

	bool ParseQuotedString(const TCHAR* Buffer, FString& OutValue, int32& OutNumCharsRead)
	{
		const TCHAR* Start = Buffer;
		if (*Buffer++ != TCHAR('"'))
		{
			return false;
		}
		FString Value;
		while (*Buffer != 0 && *Buffer != TCHAR('"') && *Buffer != TCHAR('\n') && *Buffer != TCHAR('\r'))
		{
			if (*Buffer != TCHAR('\\'))
			{
				Value += *Buffer++;
			}
			else if (!ReadEscape(++Buffer, Value))
			{
				return false;
			}
		}
		if (*Buffer++ != TCHAR('"'))
		{
			return false;
		}
		OutValue = MoveTemp(Value);
		OutNumCharsRead = int32(Buffer - Start);
		return true;
	}

	const TCHAR* ReadToken(const TCHAR* Buffer, FString& OutToken, bool bDottedNames)
	{
		if (!Buffer || *Buffer == 0)
		{
			return nullptr;
		}
		if (*Buffer == TCHAR('"'))
		{
			int32 NumCharsRead = 0;
			if (!ParseQuotedString(Buffer, OutToken, NumCharsRead))
			{
				return nullptr;
			}
			return Buffer + NumCharsRead;
		}
		if (IsTokenStart(*Buffer, bDottedNames))
		{
			while (IsTokenChar(*Buffer, bDottedNames))
			{
				OutToken += *Buffer++;
			}
			return Buffer;
		}
		// One character that cannot start a token is the token, unread, as the engine does.
		OutToken += *Buffer;
		return Buffer;
	}

	FString QuoteString(const FString& Value)
	{
		return FString(TEXT("\"")) + Value.ReplaceCharWithEscapedChar() + TEXT("\"");
	}

	bool ReadFieldAssignment(const TCHAR*& Buffer, FString& OutFieldName, int32& OutArrayIndex)
	{
		const TCHAR* Cursor = Buffer;
		while (FChar::IsAlnum(*Cursor) || *Cursor == TCHAR('_'))
		{
			OutFieldName += *Cursor++;
		}
		if (OutFieldName.IsEmpty())
		{
			return false;
		}
		SkipWhitespace(Cursor);
		OutArrayIndex = 0;
		if (*Cursor == TCHAR('[') || *Cursor == TCHAR('('))
		{
			const TCHAR Closing = *Cursor == TCHAR('[') ? TCHAR(']') : TCHAR(')');
			++Cursor;
			int64 Index = 0;
			if (!ParseSignedInteger(Cursor, Index) || *Cursor != Closing || Index < 0 || Index > MAX_int32)
			{
				return false;
			}
			OutArrayIndex = int32(Index);
			++Cursor;
			SkipWhitespace(Cursor);
		}
		if (*Cursor != TCHAR('='))
		{
			return false;
		}
		Buffer = Cursor + 1;
		return true;
	}

	void LogImportError(FOutputDevice* ErrorText, const FString& Message)
	{
		if (ErrorText)
		{
			ErrorText->Log(ELogVerbosity::Warning, *Message);
		}
	}

	bool SkipListSeparator(const TCHAR*& Buffer)
	{
		SkipWhitespace(Buffer);
		if (*Buffer == TCHAR(','))
		{
			++Buffer;
			SkipWhitespace(Buffer);
			return true;
		}
		return *Buffer == TCHAR(')');
	}

	bool IsValueSpecified(const TCHAR* Buffer)
	{
		return Buffer && *Buffer && *Buffer != TCHAR(',') && *Buffer != TCHAR(')');
	}

	const TCHAR* SkipValueText(const TCHAR* Buffer)
	{
		int32 Depth = 0;
		while (*Buffer && (Depth > 0 || (*Buffer != TCHAR(',') && *Buffer != TCHAR(')'))))
		{
			if (*Buffer == TCHAR('"'))
			{
				FString Ignored;
				int32 NumCharsRead = 0;
				if (!ParseQuotedString(Buffer, Ignored, NumCharsRead))
				{
					return nullptr;
				}
				Buffer += NumCharsRead;
				continue;
			}
			Depth += *Buffer == TCHAR('(') ? 1 : (*Buffer == TCHAR(')') ? -1 : 0);
			++Buffer;
		}
		return Depth == 0 ? Buffer : nullptr;
	}

	void ExportEnumValue(FString& ValueStr, const UEnum* Enum, int64 Value, int32 PortFlags)
	{
		if (Enum->HasAnyEnumFlags(EEnumFlags::Flags))
		{
			ValueStr += Enum->GetValueOrBitfieldAsString(Value);
			return;
		}
		const bool bIsValid = Enum->IsValidEnumValue(Value);
		const bool bIsMax = Value == Enum->GetMaxEnumValue();
		if (bIsValid && (!bIsMax || (PortFlags & PPF_Copy)))
		{
			ValueStr += Enum->GetNameStringByValue(Value);
		}
		else
		{
			ValueStr += TEXT("(INVALID)");
		}
	}

	const TCHAR* ImportEnumValue(const TCHAR* Buffer, const UEnum* Enum, int64& OutValue)
	{
		int64 Result = 0;
		for (;;)
		{
			FString Token;
			const TCHAR* AfterToken = ReadToken(Buffer, Token, true);
			if (!AfterToken || AfterToken == Buffer)
			{
				return nullptr;
			}
			const int32 Index = Enum->GetIndexByNameString(Token);
			int64 TokenValue = 0;
			if (Index != INDEX_NONE)
			{
				TokenValue = Enum->GetValueByIndex(Index);
			}
			else
			{
				const TCHAR* NumberCursor = *Token;
				if (!ParseSignedInteger(NumberCursor, TokenValue) || *NumberCursor != 0 || !Enum->IsValidEnumValue(TokenValue))
				{
					return nullptr;
				}
			}
			Result |= TokenValue;
			Buffer = AfterToken;

			const TCHAR* Separator = Buffer;
			SkipWhitespace(Separator);
			if (!Enum->HasAnyEnumFlags(EEnumFlags::Flags) || *Separator != TCHAR('|'))
			{
				break;
			}
			++Separator;
			SkipWhitespace(Separator);
			Buffer = Separator;
		}
		OutValue = Result;
		return Buffer;
	}

	bool ParseSignedInteger(const TCHAR*& Buffer, int64& OutValue)
	{
		const TCHAR* Cursor = Buffer;
		bool bNegative = false;
		if (*Cursor == TCHAR('+') || *Cursor == TCHAR('-'))
		{
			bNegative = *Cursor++ == TCHAR('-');
		}
		uint64 Magnitude = 0;
		if (!ReadMagnitude(Cursor, Magnitude))
		{
			return false;
		}
		const uint64 Limit = bNegative ? uint64(std::numeric_limits<int64>::max()) + 1 : uint64(std::numeric_limits<int64>::max());
		if (Magnitude > Limit)
		{
			return false;
		}
		OutValue = bNegative ? int64(0 - Magnitude) : int64(Magnitude);
		Buffer = Cursor;
		return true;
	}

	bool ParseUnsignedInteger(const TCHAR*& Buffer, uint64& OutValue)
	{
		const TCHAR* Cursor = Buffer;
		if (*Cursor == TCHAR('+'))
		{
			++Cursor;
		}
		else if (*Cursor == TCHAR('-'))
		{
			// Only zero may be written with a minus sign.
			++Cursor;
			uint64 Magnitude = 0;
			if (!ReadMagnitude(Cursor, Magnitude) || Magnitude != 0)
			{
				return false;
			}
			OutValue = 0;
			Buffer = Cursor;
			return true;
		}
		uint64 Magnitude = 0;
		if (!ReadMagnitude(Cursor, Magnitude))
		{
			return false;
		}
		OutValue = Magnitude;
		Buffer = Cursor;
		return true;
	}

	bool ParseFloatingPoint(const TCHAR*& Buffer, double& OutValue)
	{
		const TCHAR* Cursor = Buffer;
		FString Number;
		if (*Cursor == TCHAR('+') || *Cursor == TCHAR('-'))
		{
			Number += *Cursor++;
		}
		int32 NumDigits = 0;
		while (FChar::IsDigit(*Cursor))
		{
			Number += *Cursor++;
			++NumDigits;
		}
		if (*Cursor == TCHAR('.'))
		{
			Number += *Cursor++;
			while (FChar::IsDigit(*Cursor))
			{
				Number += *Cursor++;
				++NumDigits;
			}
		}
		if (NumDigits == 0)
		{
			return false;
		}
		if ((*Cursor == TCHAR('e') || *Cursor == TCHAR('E'))
			&& (FChar::IsDigit(Cursor[1]) || ((Cursor[1] == TCHAR('+') || Cursor[1] == TCHAR('-')) && FChar::IsDigit(Cursor[2]))))
		{
			Number += *Cursor++;
			if (*Cursor == TCHAR('+') || *Cursor == TCHAR('-'))
			{
				Number += *Cursor++;
			}
			while (FChar::IsDigit(*Cursor))
			{
				Number += *Cursor++;
			}
		}
		if (*Cursor == TCHAR('f') || *Cursor == TCHAR('F'))
		{
			++Cursor;
		}
		OutValue = FCString::Atod(*Number);
		Buffer = Cursor;
		return true;
	}

	FScratchStructValue::FScratchStructValue(const UScriptStruct* InStruct, const void* InitialValue)
		: Struct(InStruct)
		, Memory(FMemory::Malloc(FMath::Max(1, InStruct->GetStructureSize()), uint32(InStruct->GetMinAlignment())))
	{
		Struct->InitializeStruct(Memory);
		if (InitialValue)
		{
			Struct->CopyScriptStruct(Memory, InitialValue);
		}
	}

	FScratchStructValue::~FScratchStructValue()
	{
		Struct->DestroyStruct(Memory);
		FMemory::Free(Memory);
	}

	void FScratchStructValue::CommitTo(void* Destination) const
	{
		Struct->CopyScriptStruct(Destination, Memory);
	}

	FScratchPropertyValue::FScratchPropertyValue(const FProperty* InProperty, const void* InitialValue)
		: Property(InProperty)
		, Memory(InProperty->AllocateAndInitializeValue())
	{
		if (InitialValue)
		{
			Property->CopySingleValue(Memory, InitialValue);
		}
	}

	FScratchPropertyValue::~FScratchPropertyValue()
	{
		Property->DestroyAndFreeValue(Memory);
	}

	void FScratchPropertyValue::CommitTo(void* Destination) const
	{
		Property->CopySingleValue(Destination, Memory);
	}
}
