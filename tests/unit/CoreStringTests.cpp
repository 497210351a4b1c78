#include "CoreMinimal.h"

#include <gtest/gtest.h>

#include <cstring>

namespace
{
	FString Str(const TCHAR* Text)
	{
		return FString(Text);
	}
}

TEST(CoreString, PrintfStringSpecifiersDistinguishTCHARFromChar)
{
	const TCHAR* Wide = TEXT("wide");
	const char* Narrow = "narrow";
	EXPECT_STREQ(*FString::Printf(TEXT("%s|%hs|%ls|%S"), Wide, Narrow, Wide, Narrow), TEXT("wide|narrow|wide|narrow"));
	EXPECT_STREQ(*FString::Printf(TEXT("[%8s][%-8s][%.2s]"), TEXT("abc"), TEXT("abc"), TEXT("abcdef")), TEXT("[     abc][abc     ][ab]"));
	EXPECT_STREQ(*FString::Printf(TEXT("[%*s][%-*hs]"), 5, TEXT("ab"), 4, "cd"), TEXT("[   ab][cd  ]"));
	EXPECT_STREQ(*FString::Printf(TEXT("%s"), (const TCHAR*)nullptr), TEXT("(null)"));
	EXPECT_STREQ(*FString::Printf(TEXT("%s and %hs"), TEXT("em\u2014dash"), "ascii"), TEXT("em\u2014dash and ascii"));
	EXPECT_STREQ(*FString::Printf(TEXT("%c%c%hc"), TEXT('A'), TEXT('\u00e9'), 'z'), TEXT("A\u00e9z"));
	EXPECT_STREQ(*FString::Printf(TEXT("100%% %s"), TEXT("done")), TEXT("100% done"));
}

TEST(CoreString, PrintfIntegerSpecifiers)
{
	EXPECT_STREQ(*FString::Printf(TEXT("%d %i %u"), -42, 17, 4000000000u), TEXT("-42 17 4000000000"));
	EXPECT_STREQ(*FString::Printf(TEXT("%x %X %o %#x"), 255, 255, 8, 255), TEXT("ff FF 10 0xff"));
	EXPECT_STREQ(*FString::Printf(TEXT("%lld %llu %lu"), (long long)-9000000000LL, (unsigned long long)18000000000ULL, 123ul), TEXT("-9000000000 18000000000 123"));
	EXPECT_STREQ(*FString::Printf(TEXT("%hd %hhd %hu %hhu"), 70000, 300, 65537, 257), TEXT("4464 44 1 1"));
	EXPECT_STREQ(*FString::Printf(TEXT("%zu %zd"), (size_t)99, (ssize_t)-5), TEXT("99 -5"));
	EXPECT_STREQ(*FString::Printf(TEXT("[%5d][%-5d][%05d][%+d][% d]"), 42, 42, 42, 42, 42), TEXT("[   42][42   ][00042][+42][ 42]"));
	EXPECT_STREQ(*FString::Printf(TEXT("[%*d][%.3d]"), -4, 7, 5), TEXT("[7   ][005]"));
	EXPECT_STREQ(*FString::Printf(TEXT("%I64d"), (int64)-1), TEXT("-1"));
}

TEST(CoreString, PrintfFloatingPointAndPointerSpecifiers)
{
	EXPECT_STREQ(*FString::Printf(TEXT("%f"), 1.5), TEXT("1.500000"));
	EXPECT_STREQ(*FString::Printf(TEXT("%.1f|%5.2f|%-8.3f|"), 2.25f, 3.14159, 1.0), TEXT("2.2| 3.14|1.000   |"));
	EXPECT_STREQ(*FString::Printf(TEXT("%e|%E"), 12345.678, 0.00012), TEXT("1.234568e+04|1.200000E-04"));
	EXPECT_STREQ(*FString::Printf(TEXT("%g|%g|%G"), 0.0001, 1234567.0, 1e-10), TEXT("0.0001|1.23457e+06|1E-10"));
	EXPECT_STREQ(*FString::Printf(TEXT("%.*f"), 2, 9.999), TEXT("10.00"));
	EXPECT_STREQ(*FString::Printf(TEXT("%p"), (void*)0x1234abcd), TEXT("000000001234ABCD"));
	EXPECT_STREQ(*FString::Printf(TEXT("%q stays")), TEXT("%q stays"));
}

TEST(CoreString, SanitizeFloatKeepsOneFractionalDigit)
{
	EXPECT_STREQ(*FString::SanitizeFloat(24.0), TEXT("24.0"));
	EXPECT_STREQ(*FString::SanitizeFloat(0.5), TEXT("0.5"));
	EXPECT_STREQ(*FString::SanitizeFloat(1.25), TEXT("1.25"));
	EXPECT_STREQ(*FString::SanitizeFloat(-3.0), TEXT("-3.0"));
	EXPECT_STREQ(*FString::SanitizeFloat(100000.0), TEXT("100000.0"));
	EXPECT_STREQ(*FString::SanitizeFloat(0.1), TEXT("0.1"));
	EXPECT_STREQ(*FString::SanitizeFloat(-0.0), TEXT("0.0"));
	EXPECT_STREQ(*FString::SanitizeFloat(1e-7), TEXT("0.0"));
	EXPECT_STREQ(*FString::SanitizeFloat(1.0 / 3.0), TEXT("0.333333"));
	EXPECT_STREQ(*FString::SanitizeFloat(24.0, 0), TEXT("24"));
	EXPECT_STREQ(*FString::SanitizeFloat(2.5, 3), TEXT("2.500"));
}

TEST(CoreString, IsNumericFollowsTheEngineRules)
{
	EXPECT_FALSE(Str(TEXT("")).IsNumeric());
	EXPECT_TRUE(Str(TEXT("0")).IsNumeric());
	EXPECT_TRUE(Str(TEXT("-12.5")).IsNumeric());
	EXPECT_TRUE(Str(TEXT("+7")).IsNumeric());
	EXPECT_TRUE(Str(TEXT(".5")).IsNumeric());
	EXPECT_TRUE(Str(TEXT("5.")).IsNumeric());
	EXPECT_FALSE(Str(TEXT("1.2.3")).IsNumeric());
	EXPECT_FALSE(Str(TEXT("1e5")).IsNumeric());
	EXPECT_FALSE(Str(TEXT("--1")).IsNumeric());
	EXPECT_FALSE(Str(TEXT(" 1")).IsNumeric());
	EXPECT_FALSE(Str(TEXT("0x10")).IsNumeric());
}

TEST(CoreString, EqualityAndSearchIgnoreCaseByDefault)
{
	const FString Hello(TEXT("Hello World"));
	EXPECT_TRUE(Hello == TEXT("hello world"));
	EXPECT_TRUE(Hello == FString(TEXT("HELLO WORLD")));
	EXPECT_FALSE(Hello != TEXT("HELLO world"));
	EXPECT_FALSE(Hello.Equals(TEXT("hello world")));
	EXPECT_TRUE(Hello.Equals(TEXT("hello world"), ESearchCase::IgnoreCase));
	EXPECT_EQ(Hello.Find(TEXT("WORLD")), 6);
	EXPECT_EQ(Hello.Find(TEXT("WORLD"), ESearchCase::CaseSensitive), INDEX_NONE);
	EXPECT_EQ(Str(TEXT("abcabc")).Find(TEXT("bc"), ESearchCase::IgnoreCase, ESearchDir::FromEnd), 4);
	EXPECT_EQ(Str(TEXT("abcabc")).Find(TEXT("bc"), ESearchCase::IgnoreCase, ESearchDir::FromStart, 2), 4);
	EXPECT_TRUE(Hello.Contains(TEXT("LO W")));
	EXPECT_TRUE(Hello.StartsWith(TEXT("hello")));
	EXPECT_FALSE(Hello.StartsWith(TEXT("hello"), ESearchCase::CaseSensitive));
	EXPECT_TRUE(Hello.EndsWith(TEXT("WORLD")));
	EXPECT_EQ(GetTypeHash(Hello), GetTypeHash(FString(TEXT("hELLO wORLD"))));
	EXPECT_TRUE(FString(TEXT("apple")) < FString(TEXT("Banana")));
	EXPECT_EQ(FString().Find(TEXT("a")), INDEX_NONE);
}

TEST(CoreString, ReplaceCountsAndIgnoresCase)
{
	FString Text(TEXT("One one ONE two"));
	EXPECT_EQ(Text.ReplaceInline(TEXT("one"), TEXT("1")), 3);
	EXPECT_STREQ(*Text, TEXT("1 1 1 two"));
	EXPECT_STREQ(*Str(TEXT("aXa")).Replace(TEXT("x"), TEXT("yy"), ESearchCase::CaseSensitive), TEXT("aXa"));
	EXPECT_STREQ(*Str(TEXT("aaa")).Replace(TEXT("a"), TEXT("aa")), TEXT("aaaaaa"));
	EXPECT_STREQ(*Str(TEXT("abc")).Replace(TEXT(""), TEXT("x")), TEXT("abc"));
	EXPECT_STREQ(*Str(TEXT("a.b.c")).Replace(TEXT("."), TEXT("")), TEXT("abc"));
}

TEST(CoreString, ParseIntoArraySplitsAndCullsEmptyParts)
{
	TArray<FString> Parts;
	EXPECT_EQ(Str(TEXT("a,,b,c,")).ParseIntoArray(Parts, TEXT(","), true), 3);
	ASSERT_EQ(Parts.Num(), 3);
	EXPECT_STREQ(*Parts[0], TEXT("a"));
	EXPECT_STREQ(*Parts[2], TEXT("c"));
	EXPECT_EQ(Str(TEXT("a,,b,c,")).ParseIntoArray(Parts, TEXT(","), false), 5);
	EXPECT_TRUE(Parts[1].IsEmpty());
	EXPECT_TRUE(Parts[4].IsEmpty());
	EXPECT_EQ(Str(TEXT("x::y::z")).ParseIntoArray(Parts, TEXT("::")), 3);
	EXPECT_STREQ(*Parts[1], TEXT("y"));
	EXPECT_EQ(Str(TEXT("")).ParseIntoArray(Parts, TEXT(",")), 0);
	EXPECT_EQ(Str(TEXT("line1\r\nline2\nline3")).ParseIntoArrayLines(Parts), 3);
	EXPECT_STREQ(*Parts[1], TEXT("line2"));
	EXPECT_EQ(Str(TEXT(" a\tb  c ")).ParseIntoArrayWS(Parts), 3);
	EXPECT_STREQ(*FString::Join(Parts, TEXT("+")), TEXT("a+b+c"));
}

TEST(CoreString, SubstringsTrimmingAndSplitting)
{
	const FString Text(TEXT("  Movie Render  "));
	EXPECT_STREQ(*Text.TrimStartAndEnd(), TEXT("Movie Render"));
	EXPECT_STREQ(*Text.TrimStart(), TEXT("Movie Render  "));
	EXPECT_STREQ(*Text.TrimEnd(), TEXT("  Movie Render"));
	const FString Word(TEXT("Sequence"));
	EXPECT_STREQ(*Word.Left(3), TEXT("Seq"));
	EXPECT_STREQ(*Word.LeftChop(3), TEXT("Seque"));
	EXPECT_STREQ(*Word.Right(3), TEXT("nce"));
	EXPECT_STREQ(*Word.RightChop(3), TEXT("uence"));
	EXPECT_STREQ(*Word.Mid(2, 3), TEXT("que"));
	EXPECT_STREQ(*Word.Mid(6), TEXT("ce"));
	EXPECT_STREQ(*Word.Mid(20, 3), TEXT(""));
	EXPECT_STREQ(*Word.Left(-1), TEXT(""));
	EXPECT_STREQ(*Word.Right(100), TEXT("Sequence"));
	EXPECT_STREQ(*Str(TEXT("\"quoted\"")).TrimQuotes(), TEXT("quoted"));

	FString Left;
	FString Right;
	EXPECT_TRUE(Str(TEXT("/Game/Seq.Seq")).Split(TEXT("."), &Left, &Right));
	EXPECT_STREQ(*Left, TEXT("/Game/Seq"));
	EXPECT_STREQ(*Right, TEXT("Seq"));
	EXPECT_TRUE(Str(TEXT("a/b/c")).Split(TEXT("/"), &Left, &Right, ESearchCase::IgnoreCase, ESearchDir::FromEnd));
	EXPECT_STREQ(*Left, TEXT("a/b"));
	EXPECT_FALSE(Str(TEXT("abc")).Split(TEXT("/"), &Left, &Right));

	FString Path(TEXT("/Game/Folder/"));
	EXPECT_TRUE(Path.RemoveFromEnd(TEXT("/")));
	EXPECT_TRUE(Path.RemoveFromStart(TEXT("/game")));
	EXPECT_STREQ(*Path, TEXT("/Folder"));
	EXPECT_FALSE(Path.RemoveFromStart(TEXT("x")));
}

TEST(CoreString, EmptyStringsAllocateNothingAndBuildUp)
{
	FString Empty;
	EXPECT_EQ(Empty.GetCharArray().Num(), 0);
	EXPECT_STREQ(*Empty, TEXT(""));
	EXPECT_EQ(Empty.Len(), 0);
	FString FromEmptyLiteral(TEXT(""));
	EXPECT_EQ(FromEmptyLiteral.GetCharArray().Num(), 0);

	FString Built;
	Built += TEXT("ab");
	Built += TEXT('c');
	Built.AppendChar(TEXT('d'));
	Built.InsertAt(0, TEXT('_'));
	Built.RemoveAt(1, 1);
	EXPECT_STREQ(*Built, TEXT("_bcd"));
	EXPECT_EQ(Built.GetCharArray().Num(), 5);
	Built.RemoveAt(0, 4);
	EXPECT_EQ(Built.GetCharArray().Num(), 0);

	EXPECT_STREQ(*(FString(TEXT("a")) + TEXT("b") + FString(TEXT("c"))), TEXT("abc"));
	EXPECT_STREQ(*FString::ChrN(3, TEXT('x')), TEXT("xxx"));
	EXPECT_STREQ(*FString::FromInt(-15), TEXT("-15"));
	EXPECT_STREQ(*FString::FormatAsNumber(1234567), TEXT("1,234,567"));
	EXPECT_STREQ(*Str(TEXT("abc")).Reverse(), TEXT("cba"));
	EXPECT_STREQ(*Str(TEXT("MiXeD")).ToUpper(), TEXT("MIXED"));
	EXPECT_STREQ(*Str(TEXT("MiXeD")).ToLower(), TEXT("mixed"));
	EXPECT_STREQ(*FString("ansi"), TEXT("ansi"));
	EXPECT_STREQ(*FString(3, TEXT("abcdef")), TEXT("abc"));
}

TEST(CoreString, PathJoinOperatorAddsOneSeparator)
{
	EXPECT_STREQ(*(Str(TEXT("A")) / TEXT("B")), TEXT("A/B"));
	EXPECT_STREQ(*(Str(TEXT("A/")) / TEXT("B")), TEXT("A/B"));
	EXPECT_STREQ(*(Str(TEXT("A")) / TEXT("/B")), TEXT("A/B"));
	EXPECT_STREQ(*(Str(TEXT("")) / TEXT("B")), TEXT("B"));
	EXPECT_STREQ(*(Str(TEXT("A")) / TEXT("")), TEXT("A/"));
}

TEST(CoreString, MatchesWildcard)
{
	EXPECT_TRUE(Str(TEXT("Render.PNG")).MatchesWildcard(TEXT("*.png")));
	EXPECT_FALSE(Str(TEXT("Render.PNG")).MatchesWildcard(TEXT("*.png"), ESearchCase::CaseSensitive));
	EXPECT_TRUE(Str(TEXT("shot_010")).MatchesWildcard(TEXT("shot_0?0")));
	EXPECT_FALSE(Str(TEXT("shot_010")).MatchesWildcard(TEXT("shot_?")));
	EXPECT_TRUE(Str(TEXT("")).MatchesWildcard(TEXT("*")));
}

TEST(CoreString, LexConversions)
{
	EXPECT_STREQ(*LexToString(42), TEXT("42"));
	EXPECT_STREQ(*LexToString(true), TEXT("true"));
	EXPECT_STREQ(*LexToString(1.5f), TEXT("1.500000"));
	EXPECT_STREQ(*LexToSanitizedString(1.5), TEXT("1.5"));
	int32 IntValue = 0;
	LexFromString(IntValue, TEXT("-17"));
	EXPECT_EQ(IntValue, -17);
	double DoubleValue = 0.0;
	LexFromString(DoubleValue, TEXT("2.5"));
	EXPECT_DOUBLE_EQ(DoubleValue, 2.5);
	bool BoolValue = false;
	LexFromString(BoolValue, TEXT("Yes"));
	EXPECT_TRUE(BoolValue);
	EXPECT_FALSE(LexTryParseString(IntValue, TEXT("12abc")));
	EXPECT_FALSE(LexTryParseString(IntValue, TEXT("1.5")));
	EXPECT_TRUE(LexTryParseString(IntValue, TEXT("12")));
	EXPECT_EQ(IntValue, 12);
	EXPECT_EQ(FCString::Atoi(TEXT("  7x")), 7);
	EXPECT_EQ(FCString::Strtoi(TEXT("ff"), nullptr, 16), 255);
	EXPECT_EQ(FCString::Stricmp(TEXT("ABC"), TEXT("abd")), -1);
	EXPECT_EQ(FCString::Strnicmp(TEXT("ABCx"), TEXT("abcY"), 3), 0);
	EXPECT_STREQ(FCString::Stristr(TEXT("Movie Pipeline"), TEXT("PIPE")), TEXT("Pipeline"));
}

TEST(CoreString, UTF8RoundTripIncludesCharactersBeyondTheBasicPlane)
{
	const FString Original(TEXT("Render \u2014 done \U0001F3AC caf\u00e9"));
	FTCHARToUTF8 Utf8(*Original);
	const char* Expected = "Render \xE2\x80\x94 done \xF0\x9F\x8E\xAC caf\xC3\xA9";
	EXPECT_EQ(Utf8.Length(), (int32)std::strlen(Expected));
	EXPECT_STREQ(TCHAR_TO_UTF8(*Original), Expected);
	EXPECT_STREQ(UTF8_TO_TCHAR(Expected), *Original);
	EXPECT_EQ(FString(UTF8_TO_TCHAR(TCHAR_TO_UTF8(*Original))), Original);
	EXPECT_STREQ(*FString(u8"\u2014"), TEXT("\u2014"));

	EXPECT_STREQ(UTF8_TO_TCHAR("bad \xC3 end"), TEXT("bad ? end"));
	EXPECT_STREQ(UTF8_TO_TCHAR("\xED\xA0\x80!"), TEXT("?!"));
	EXPECT_STREQ(TCHAR_TO_ANSI(TEXT("caf\u00e9")), "caf?");
	EXPECT_STREQ(ANSI_TO_TCHAR("plain"), TEXT("plain"));

	auto Cast = StringCast<UTF8CHAR>(TEXT("\u00e9t\u00e9"), 2);
	EXPECT_EQ(Cast.Length(), 3);
}

TEST(CoreString, StringViewComparesAndSlices)
{
	const FString Owner(TEXT("Movie Graph Config"));
	const FStringView View(Owner);
	EXPECT_EQ(View.Len(), Owner.Len());
	EXPECT_TRUE(View == TEXT("movie graph config"));
	EXPECT_FALSE(View.Equals(TEXT("movie graph config")));
	EXPECT_TRUE(View.StartsWith(TEXT("MOVIE")));
	EXPECT_EQ(View.Find(TEXT("graph")), 6);
	EXPECT_EQ(FString(View.Mid(6, 5)), TEXT("Graph"));
	EXPECT_EQ(FString(View.Right(6)), TEXT("Config"));
	EXPECT_EQ(FString(FStringView(TEXT("  x  ")).TrimStartAndEnd()), TEXT("x"));
	EXPECT_EQ(TEXTVIEW("abc").Len(), 3);
	EXPECT_TRUE(Owner == View);
}

TEST(CoreString, EscapingAndPaddingHelpers)
{
	const FString Raw(TEXT("say \"hi\"\n\tpath\\x"));
	const FString Escaped = Raw.ReplaceCharWithEscapedChar();
	EXPECT_STREQ(*Escaped, TEXT("say \\\"hi\\\"\\n\\tpath\\\\x"));
	EXPECT_EQ(Escaped.ReplaceEscapedCharWithChar(), Raw);
	EXPECT_STREQ(*Str(TEXT("a\"b")).ReplaceQuotesWithEscapedQuotes(), TEXT("a\\\"b"));
	EXPECT_STREQ(*Str(TEXT("7")).LeftPad(3), TEXT("  7"));
	EXPECT_STREQ(*Str(TEXT("7")).RightPad(3), TEXT("7  "));
	EXPECT_STREQ(*Str(TEXT("long")).LeftPad(2), TEXT("long"));

	FString Inserted(TEXT("ad"));
	Inserted.InsertAt(1, FString(TEXT("bc")));
	EXPECT_STREQ(*Inserted, TEXT("abcd"));
	Inserted.LeftInline(3);
	EXPECT_STREQ(*Inserted, TEXT("abc"));
	Inserted.RightChopInline(1);
	EXPECT_STREQ(*Inserted, TEXT("bc"));
	Inserted.MidInline(1, 5);
	EXPECT_STREQ(*Inserted, TEXT("c"));
	Inserted.Appendf(TEXT("%d%s"), 12, TEXT("x"));
	EXPECT_STREQ(*Inserted, TEXT("c12x"));

	bool bRemoved = false;
	FString Quoted(TEXT("'q'"));
	Quoted.TrimCharInline(TEXT('\''), &bRemoved);
	EXPECT_TRUE(bRemoved);
	EXPECT_STREQ(*Quoted, TEXT("q"));
	EXPECT_STREQ(*Str(TEXT("\"only start")).TrimQuotes(&bRemoved), TEXT("only start"));
	EXPECT_TRUE(bRemoved);

	uint8 Bytes[4] = {};
	EXPECT_EQ(HexToBytes(TEXT("0aFF10"), Bytes), 3);
	EXPECT_EQ(Bytes[1], 0xFF);
	EXPECT_STREQ(*BytesToHex(Bytes, 3), TEXT("0AFF10"));
	EXPECT_STREQ(*FString::FormatAsNumber(-1234), TEXT("-1,234"));
	EXPECT_STREQ(*FString::FormatAsNumber(999), TEXT("999"));
}

TEST(CoreString, CharacterClassesAreAsciiOnlyForCase)
{
	EXPECT_EQ(FChar::ToUpper(TEXT('a')), TEXT('A'));
	EXPECT_EQ(FChar::ToUpper(TEXT('\u00e9')), TEXT('\u00e9'));
	EXPECT_EQ(FChar::ToLower(TEXT('Z')), TEXT('z'));
	EXPECT_EQ(FChar::ToLower(TEXT('[')), TEXT('['));
	EXPECT_TRUE(FChar::IsWhitespace(TEXT('\u3000')));
	EXPECT_TRUE(FChar::IsWhitespace(TEXT('\t')));
	EXPECT_FALSE(FChar::IsWhitespace(TEXT('x')));
	EXPECT_TRUE(FChar::IsHexDigit(TEXT('F')));
	EXPECT_FALSE(FChar::IsHexDigit(TEXT('g')));
	EXPECT_TRUE(FChar::IsAlnum(TEXT('5')));
	EXPECT_FALSE(FChar::IsAlpha(TEXT('_')));
	EXPECT_TRUE(FChar::IsUnderscore(TEXT('_')));
	EXPECT_TRUE(FChar::IsPunct(TEXT('!')));
	EXPECT_STREQ(*Str(TEXT("\u00c9cole")).ToLower(), TEXT("\u00c9cole"));
	EXPECT_STREQ(*Str(TEXT("  \u3000x\u3000 ")).TrimStartAndEnd(), TEXT("x"));

	TCHAR Buffer[4];
	FCString::Strncpy(Buffer, TEXT("abcdef"), 4);
	EXPECT_STREQ(Buffer, TEXT("abc"));
	EXPECT_EQ(FCString::Strlen(FCString::Spc(5)), 5);
	EXPECT_STREQ(FCString::Spc(0), TEXT(""));
	EXPECT_TRUE(FCString::ToBool(TEXT("TRUE")));
	EXPECT_TRUE(FCString::ToBool(TEXT("on")));
	EXPECT_TRUE(FCString::ToBool(TEXT("2")));
	EXPECT_FALSE(FCString::ToBool(TEXT("no")));
	EXPECT_TRUE(FCString::IsPureAnsi(TEXT("plain")));
	EXPECT_FALSE(FCString::IsPureAnsi(TEXT("caf\u00e9")));
	EXPECT_DOUBLE_EQ(FCString::Atod(TEXT("2.5e2")), 250.0);
	EXPECT_EQ(FCString::Atoi64(TEXT("-9000000000")), -9000000000LL);
	EXPECT_EQ(FCString::Strcmp(TEXT("a"), TEXT("B")), 1);
	EXPECT_EQ(FCString::Strstr(TEXT("abc"), TEXT("C")), nullptr);
	EXPECT_STREQ(FCString::Strrchr(TEXT("a/b/c"), TEXT('/')), TEXT("/c"));
}

TEST(CoreString, PrintfProducesLongOutputAndExtremeValues)
{
	const FString Long = FString::Printf(TEXT("%s|%300d|%.1f"), *FString::ChrN(500, TEXT('x')), 1, 1e300);
	EXPECT_EQ(Long.Len(), 500 + 1 + 300 + 1 + 303);
	EXPECT_TRUE(Long.EndsWith(TEXT(".0")));
	EXPECT_STREQ(*FString::Printf(TEXT("%d %d"), MIN_int32, MAX_int32), TEXT("-2147483648 2147483647"));
	EXPECT_STREQ(*FString::Printf(TEXT("%llu"), (unsigned long long)MAX_uint64), TEXT("18446744073709551615"));
	EXPECT_STREQ(*FString::Printf(TEXT("%f %f"), 1.0 / 0.0, -1.0 / 0.0), TEXT("inf -inf"));
	EXPECT_STREQ(*FString::Printf(TEXT("trailing %")), TEXT("trailing %"));
	EXPECT_STREQ(*FString::Printf(TEXT("%5c|%-3c|"), TEXT('a'), TEXT('b')), TEXT("    a|b  |"));
	EXPECT_STREQ(*FString::Printf(TEXT("%s=%d, %s=%.2f, %hs=%c"), TEXT("a"), 1, TEXT("b"), 2.0, "c", TEXT('d')), TEXT("a=1, b=2.00, c=d"));
	EXPECT_STREQ(*FString::SanitizeFloat(1e20), TEXT("100000000000000000000.0"));
	EXPECT_STREQ(*FString::SanitizeFloat(-1.5e-3), TEXT("-0.0015"));
}
