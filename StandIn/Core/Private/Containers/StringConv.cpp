#include "Containers/StringConv.h"

namespace UE::Core::Private
{
	namespace
	{
		constexpr uint32 BogusCodepoint = '?';

		bool IsValidCodepoint(uint32 Codepoint)
		{
			return Codepoint <= 0x10FFFF && (Codepoint < 0xD800 || Codepoint > 0xDFFF);
		}

		void AppendUTF8(TArray<UTF8CHAR>& Out, uint32 Codepoint)
		{
			if (!IsValidCodepoint(Codepoint))
			{
				Codepoint = BogusCodepoint;
			}
			if (Codepoint < 0x80)
			{
				Out.Add((UTF8CHAR)Codepoint);
			}
			else if (Codepoint < 0x800)
			{
				Out.Add((UTF8CHAR)(0xC0 | (Codepoint >> 6)));
				Out.Add((UTF8CHAR)(0x80 | (Codepoint & 0x3F)));
			}
			else if (Codepoint < 0x10000)
			{
				Out.Add((UTF8CHAR)(0xE0 | (Codepoint >> 12)));
				Out.Add((UTF8CHAR)(0x80 | ((Codepoint >> 6) & 0x3F)));
				Out.Add((UTF8CHAR)(0x80 | (Codepoint & 0x3F)));
			}
			else
			{
				Out.Add((UTF8CHAR)(0xF0 | (Codepoint >> 18)));
				Out.Add((UTF8CHAR)(0x80 | ((Codepoint >> 12) & 0x3F)));
				Out.Add((UTF8CHAR)(0x80 | ((Codepoint >> 6) & 0x3F)));
				Out.Add((UTF8CHAR)(0x80 | (Codepoint & 0x3F)));
			}
		}

		/** Decodes one code point at Source[Index], advancing Index past it (one byte for an invalid sequence). */
		uint32 DecodeUTF8(const UTF8CHAR* Source, int32 SourceLen, int32& Index)
		{
			const uint32 Lead = (uint8)Source[Index++];
			if (Lead < 0x80)
			{
				return Lead;
			}
			int32 NumContinuation = 0;
			uint32 Codepoint = 0;
			uint32 Minimum = 0;
			if ((Lead & 0xE0) == 0xC0)
			{
				NumContinuation = 1;
				Codepoint = Lead & 0x1F;
				Minimum = 0x80;
			}
			else if ((Lead & 0xF0) == 0xE0)
			{
				NumContinuation = 2;
				Codepoint = Lead & 0x0F;
				Minimum = 0x800;
			}
			else if ((Lead & 0xF8) == 0xF0)
			{
				NumContinuation = 3;
				Codepoint = Lead & 0x07;
				Minimum = 0x10000;
			}
			else
			{
				return BogusCodepoint;
			}
			if (Index + NumContinuation > SourceLen)
			{
				return BogusCodepoint;
			}
			for (int32 Continuation = 0; Continuation < NumContinuation; ++Continuation)
			{
				const uint32 Byte = (uint8)Source[Index + Continuation];
				if ((Byte & 0xC0) != 0x80)
				{
					return BogusCodepoint;
				}
				Codepoint = (Codepoint << 6) | (Byte & 0x3F);
			}
			Index += NumContinuation;
			if (Codepoint < Minimum || !IsValidCodepoint(Codepoint))
			{
				return BogusCodepoint;
			}
			return Codepoint;
		}
	}

	void ConvertTCHARToUTF8(const TCHAR* Source, int32 SourceLen, TArray<UTF8CHAR>& Out)
	{
		Out.Reserve(Out.Num() + SourceLen + 1);
		for (int32 Index = 0; Index < SourceLen; ++Index)
		{
			AppendUTF8(Out, (uint32)Source[Index]);
		}
		Out.Add((UTF8CHAR)0);
	}

	void ConvertUTF8ToTCHAR(const UTF8CHAR* Source, int32 SourceLen, TArray<TCHAR>& Out)
	{
		Out.Reserve(Out.Num() + SourceLen + 1);
		int32 Index = 0;
		while (Index < SourceLen)
		{
			Out.Add((TCHAR)DecodeUTF8(Source, SourceLen, Index));
		}
		Out.Add(0);
	}

	void ConvertTCHARToANSI(const TCHAR* Source, int32 SourceLen, TArray<ANSICHAR>& Out)
	{
		Out.Reserve(Out.Num() + SourceLen + 1);
		for (int32 Index = 0; Index < SourceLen; ++Index)
		{
			const uint32 Codepoint = (uint32)Source[Index];
			Out.Add(Codepoint < 0x80 ? (ANSICHAR)Codepoint : (ANSICHAR)BogusCodepoint);
		}
		Out.Add(0);
	}

	void ConvertANSIToTCHAR(const ANSICHAR* Source, int32 SourceLen, TArray<TCHAR>& Out)
	{
		Out.Reserve(Out.Num() + SourceLen + 1);
		for (int32 Index = 0; Index < SourceLen; ++Index)
		{
			Out.Add((TCHAR)(uint8)Source[Index]);
		}
		Out.Add(0);
	}
}
