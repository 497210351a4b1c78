#include "Misc/VarargsFormatter.h"

#include <cstdio>
#include <cwchar>
#include <cstddef>
#include <sys/types.h>

namespace UE::Core::Private
{
	namespace
	{
		enum class ELengthModifier
		{
			None,
			Char,
			Short,
			Long,
			LongLong,
			Size,
			IntMax,
			PtrDiff,
			LongDouble,
			Int64,
			Int32,
		};

		struct FFormatDirective
		{
			char Flags[8] = {};
			int32 NumFlags = 0;
			bool bLeftJustify = false;
			int32 Width = -1;
			int32 Precision = -1;
			ELengthModifier Length = ELengthModifier::None;
			TCHAR Conversion = 0;
		};

		void AddFlag(FFormatDirective& Directive, TCHAR Flag)
		{
			if (Directive.NumFlags < (int32)sizeof(Directive.Flags) - 1)
			{
				Directive.Flags[Directive.NumFlags++] = (char)Flag;
			}
			if (Flag == '-')
			{
				Directive.bLeftJustify = true;
			}
		}

		int32 ParseNumber(const TCHAR*& Cursor)
		{
			int64 Value = 0;
			while (FChar::IsDigit(*Cursor))
			{
				Value = Value * 10 + (*Cursor - '0');
				if (Value > 100000)
				{
					Value = 100000;
				}
				++Cursor;
			}
			return (int32)Value;
		}

		ELengthModifier ParseLength(const TCHAR*& Cursor)
		{
			switch (*Cursor)
			{
			case 'h':
				++Cursor;
				if (*Cursor == 'h')
				{
					++Cursor;
					return ELengthModifier::Char;
				}
				return ELengthModifier::Short;
			case 'l':
				++Cursor;
				if (*Cursor == 'l')
				{
					++Cursor;
					return ELengthModifier::LongLong;
				}
				return ELengthModifier::Long;
			case 'z':
				++Cursor;
				return ELengthModifier::Size;
			case 'j':
				++Cursor;
				return ELengthModifier::IntMax;
			case 't':
				++Cursor;
				return ELengthModifier::PtrDiff;
			case 'L':
				++Cursor;
				return ELengthModifier::LongDouble;
			case 'I':
				if (Cursor[1] == '6' && Cursor[2] == '4')
				{
					Cursor += 3;
					return ELengthModifier::Int64;
				}
				if (Cursor[1] == '3' && Cursor[2] == '2')
				{
					Cursor += 3;
					return ELengthModifier::Int32;
				}
				return ELengthModifier::None;
			default:
				return ELengthModifier::None;
			}
		}

		/** The narrow printf conversion for a number, with flags, width and precision already resolved. */
		void BuildNarrowFormat(char* Buffer, const FFormatDirective& Directive, const char* LengthText, char Conversion)
		{
			int32 Written = std::snprintf(Buffer, 64, "%%%s", Directive.Flags);
			if (Directive.Width >= 0)
			{
				Written += std::snprintf(Buffer + Written, 64 - Written, "%d", (int)Directive.Width);
			}
			if (Directive.Precision >= 0)
			{
				Written += std::snprintf(Buffer + Written, 64 - Written, ".%d", (int)Directive.Precision);
			}
			std::snprintf(Buffer + Written, 64 - Written, "%s%c", LengthText, Conversion);
		}

		template <typename ValueType>
		void AppendNarrow(FString& Out, const char* Format, ValueType Value)
		{
			char Small[128];
			const int32 Needed = std::snprintf(Small, sizeof(Small), Format, Value);
			if (Needed < 0)
			{
				return;
			}
			if (Needed < (int32)sizeof(Small))
			{
				Out.AppendChars(Small, Needed);
				return;
			}
			TArray<char> Large;
			Large.SetNumUninitialized(Needed + 1);
			std::snprintf(Large.GetData(), Needed + 1, Format, Value);
			Out.AppendChars(Large.GetData(), Needed);
		}

		void AppendPadding(FString& Out, int32 Count)
		{
			for (int32 Index = 0; Index < Count; ++Index)
			{
				Out.AppendChar(TEXT(' '));
			}
		}

		template <typename CharType>
		void AppendString(FString& Out, const FFormatDirective& Directive, const CharType* String)
		{
			static const CharType NullText[] = { '(', 'n', 'u', 'l', 'l', ')', 0 };
			if (!String)
			{
				String = NullText;
			}
			int32 Length = 0;
			while (String[Length] && (Directive.Precision < 0 || Length < Directive.Precision))
			{
				++Length;
			}
			const int32 Padding = Directive.Width > Length ? Directive.Width - Length : 0;
			if (!Directive.bLeftJustify)
			{
				AppendPadding(Out, Padding);
			}
			Out.AppendChars(String, Length);
			if (Directive.bLeftJustify)
			{
				AppendPadding(Out, Padding);
			}
		}

		void AppendCharacter(FString& Out, const FFormatDirective& Directive, TCHAR Character)
		{
			const int32 Padding = Directive.Width > 1 ? Directive.Width - 1 : 0;
			if (!Directive.bLeftJustify)
			{
				AppendPadding(Out, Padding);
			}
			Out.AppendChar(Character);
			if (Directive.bLeftJustify)
			{
				AppendPadding(Out, Padding);
			}
		}

		long long ReadSigned(ELengthModifier Length, va_list& Args)
		{
			switch (Length)
			{
			case ELengthModifier::Char: return (signed char)va_arg(Args, int);
			case ELengthModifier::Short: return (short)va_arg(Args, int);
			case ELengthModifier::Long: return va_arg(Args, long);
			case ELengthModifier::LongLong: return va_arg(Args, long long);
			case ELengthModifier::Size: return va_arg(Args, ssize_t);
			case ELengthModifier::IntMax: return va_arg(Args, intmax_t);
			case ELengthModifier::PtrDiff: return va_arg(Args, ptrdiff_t);
			case ELengthModifier::Int64: return va_arg(Args, long long);
			default: return va_arg(Args, int);
			}
		}

		unsigned long long ReadUnsigned(ELengthModifier Length, va_list& Args)
		{
			switch (Length)
			{
			case ELengthModifier::Char: return (unsigned char)va_arg(Args, unsigned int);
			case ELengthModifier::Short: return (unsigned short)va_arg(Args, unsigned int);
			case ELengthModifier::Long: return va_arg(Args, unsigned long);
			case ELengthModifier::LongLong: return va_arg(Args, unsigned long long);
			case ELengthModifier::Size: return va_arg(Args, size_t);
			case ELengthModifier::IntMax: return va_arg(Args, uintmax_t);
			case ELengthModifier::PtrDiff: return (unsigned long long)va_arg(Args, ptrdiff_t);
			case ELengthModifier::Int64: return va_arg(Args, unsigned long long);
			default: return va_arg(Args, unsigned int);
			}
		}

		/** Formats one conversion; returns false for an unknown conversion character. */
		bool AppendConversion(FString& Out, FFormatDirective& Directive, va_list& Args)
		{
			char NarrowFormat[64];
			switch (Directive.Conversion)
			{
			case 'd':
			case 'i':
				BuildNarrowFormat(NarrowFormat, Directive, "ll", 'd');
				AppendNarrow(Out, NarrowFormat, ReadSigned(Directive.Length, Args));
				return true;
			case 'u':
			case 'x':
			case 'X':
			case 'o':
				BuildNarrowFormat(NarrowFormat, Directive, "ll", (char)Directive.Conversion);
				AppendNarrow(Out, NarrowFormat, ReadUnsigned(Directive.Length, Args));
				return true;
			case 'f':
			case 'F':
			case 'e':
			case 'E':
			case 'g':
			case 'G':
			case 'a':
			case 'A':
				if (Directive.Length == ELengthModifier::LongDouble)
				{
					BuildNarrowFormat(NarrowFormat, Directive, "L", (char)Directive.Conversion);
					AppendNarrow(Out, NarrowFormat, va_arg(Args, long double));
				}
				else
				{
					BuildNarrowFormat(NarrowFormat, Directive, "", (char)Directive.Conversion);
					AppendNarrow(Out, NarrowFormat, va_arg(Args, double));
				}
				return true;
			case 'p':
			{
				const unsigned long long Address = (unsigned long long)(UPTRINT)va_arg(Args, void*);
				FFormatDirective PointerDirective;
				PointerDirective.Width = Directive.Width;
				PointerDirective.bLeftJustify = Directive.bLeftJustify;
				char Digits[32];
				std::snprintf(Digits, sizeof(Digits), "%016llX", Address);
				AppendString(Out, PointerDirective, Digits);
				return true;
			}
			case 'c':
				if (Directive.Length == ELengthModifier::Short || Directive.Length == ELengthModifier::Char)
				{
					AppendCharacter(Out, Directive, (TCHAR)(uint8)(char)va_arg(Args, int));
				}
				else
				{
					AppendCharacter(Out, Directive, (TCHAR)va_arg(Args, wint_t));
				}
				return true;
			case 'C':
				AppendCharacter(Out, Directive, (TCHAR)(uint8)(char)va_arg(Args, int));
				return true;
			case 's':
				if (Directive.Length == ELengthModifier::Short || Directive.Length == ELengthModifier::Char)
				{
					AppendString(Out, Directive, va_arg(Args, const ANSICHAR*));
				}
				else
				{
					AppendString(Out, Directive, va_arg(Args, const TCHAR*));
				}
				return true;
			case 'S':
				AppendString(Out, Directive, va_arg(Args, const ANSICHAR*));
				return true;
			case 'n':
				// Writing through %n is never supported; the argument is consumed.
				(void)va_arg(Args, void*);
				return true;
			default:
				return false;
			}
		}
	}

	void AppendFormattedVarArgs(FString& Out, const TCHAR* Fmt, va_list Args)
	{
		if (!Fmt)
		{
			return;
		}
		va_list ArgsCopy;
		va_copy(ArgsCopy, Args);
		const TCHAR* Cursor = Fmt;
		while (*Cursor)
		{
			if (*Cursor != '%')
			{
				const TCHAR* RunStart = Cursor;
				while (*Cursor && *Cursor != '%')
				{
					++Cursor;
				}
				Out.AppendChars(RunStart, (int32)(Cursor - RunStart));
				continue;
			}

			const TCHAR* DirectiveStart = Cursor++;
			if (*Cursor == '%')
			{
				Out.AppendChar(TEXT('%'));
				++Cursor;
				continue;
			}

			FFormatDirective Directive;
			while (*Cursor == '-' || *Cursor == '+' || *Cursor == ' ' || *Cursor == '#' || *Cursor == '0')
			{
				AddFlag(Directive, *Cursor++);
			}
			if (*Cursor == '*')
			{
				++Cursor;
				Directive.Width = va_arg(ArgsCopy, int);
				if (Directive.Width < 0)
				{
					AddFlag(Directive, '-');
					Directive.Width = Directive.Width == MIN_int32 ? MAX_int32 : -Directive.Width;
				}
				Directive.Width = Directive.Width > 100000 ? 100000 : Directive.Width;
			}
			else if (FChar::IsDigit(*Cursor))
			{
				Directive.Width = ParseNumber(Cursor);
			}
			if (*Cursor == '.')
			{
				++Cursor;
				if (*Cursor == '*')
				{
					++Cursor;
					const int32 Precision = va_arg(ArgsCopy, int);
					Directive.Precision = Precision < 0 ? -1 : (Precision > 100000 ? 100000 : Precision);
				}
				else
				{
					Directive.Precision = ParseNumber(Cursor);
				}
			}
			Directive.Length = ParseLength(Cursor);
			Directive.Conversion = *Cursor;
			if (Directive.Conversion == 0)
			{
				Out.AppendChars(DirectiveStart, (int32)(Cursor - DirectiveStart));
				break;
			}
			++Cursor;
			if (!AppendConversion(Out, Directive, ArgsCopy))
			{
				Out.AppendChars(DirectiveStart, (int32)(Cursor - DirectiveStart));
			}
		}
		va_end(ArgsCopy);
	}

	FString FormatVarArgs(const TCHAR* Fmt, va_list Args)
	{
		FString Result;
		AppendFormattedVarArgs(Result, Fmt, Args);
		return Result;
	}
}
