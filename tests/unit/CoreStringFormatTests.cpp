// FString::Format with named arguments: which tokens it replaces, what it leaves, and how each argument kind reads.
#include "CoreMinimal.h"
#include "Misc/StringFormatArg.h"

#include <gtest/gtest.h>

namespace
{
	FString Format(const TCHAR* InFormat, const FStringFormatNamedArguments& InArguments)
	{
		return FString::Format(InFormat, InArguments);
	}
}

TEST(CoreStringFormat, NamedTokensAreReplacedEveryTimeIgnoringCaseAndInnerSpaces)
{
	FStringFormatNamedArguments Arguments;
	Arguments.Add(TEXT("sequence_name"), TEXT("Intro"));
	Arguments.Add(TEXT("frame_number"), FString(TEXT("0007")));

	EXPECT_EQ(Format(TEXT("{sequence_name}.{frame_number}.png"), Arguments), TEXT("Intro.0007.png"));
	EXPECT_EQ(Format(TEXT("{Sequence_Name}/{ frame_number }{frame_number\t}"), Arguments), TEXT("Intro/00070007"));
	EXPECT_EQ(Format(TEXT("{sequence_name}{sequence_name}"), Arguments), TEXT("IntroIntro"));
	EXPECT_EQ(Format(TEXT(""), Arguments), TEXT(""));
	EXPECT_EQ(Format(nullptr, Arguments), TEXT(""));
}

TEST(CoreStringFormat, WhatIsNotAKnownTokenStaysAsWritten)
{
	FStringFormatNamedArguments Arguments;
	Arguments.Add(TEXT("name"), TEXT("X"));

	EXPECT_EQ(Format(TEXT("{unknown}_{ unknown }_{name}"), Arguments), TEXT("{unknown}_{ unknown }_X"));
	EXPECT_EQ(Format(TEXT("{name"), Arguments), TEXT("{name"));
	EXPECT_EQ(Format(TEXT("{}{ }{na me}{na-me}"), Arguments), TEXT("{}{ }{na me}{na-me}"));
	EXPECT_EQ(Format(TEXT("{{name}}"), Arguments), TEXT("{X}"));
	EXPECT_EQ(Format(TEXT("}{name}{"), Arguments), TEXT("}X{"));
	// An argument's value is not formatted again.
	Arguments.Add(TEXT("nested"), TEXT("{name}"));
	EXPECT_EQ(Format(TEXT("{nested}"), Arguments), TEXT("{name}"));
}

TEST(CoreStringFormat, BacktickEscapesAnOpeningBraceOrItself)
{
	FStringFormatNamedArguments Arguments;
	Arguments.Add(TEXT("name"), TEXT("X"));

	EXPECT_EQ(Format(TEXT("`{name} {name}"), Arguments), TEXT("{name} X"));
	EXPECT_EQ(Format(TEXT("``{name}"), Arguments), TEXT("`X"));
	EXPECT_EQ(Format(TEXT("a`b`"), Arguments), TEXT("a`b`"));
}

TEST(CoreStringFormat, EachArgumentKindReadsAsText)
{
	const char8_t* Utf8 = u8"caf\u00e9";
	FStringFormatNamedArguments Arguments;
	Arguments.Add(TEXT("int32"), int32(-42));
	Arguments.Add(TEXT("uint32"), uint32(4000000000u));
	Arguments.Add(TEXT("int64"), int64(-9000000000LL));
	Arguments.Add(TEXT("uint64"), MAX_uint64);
	Arguments.Add(TEXT("float"), 0.5f);
	Arguments.Add(TEXT("double"), 24.0);
	Arguments.Add(TEXT("view"), FStringView(TEXT("viewed text"), 6));
	Arguments.Add(TEXT("ansi"), "narrow");
	Arguments.Add(TEXT("utf8"), Utf8);

	EXPECT_EQ(Format(TEXT("{int32} {uint32} {int64} {uint64}"), Arguments), TEXT("-42 4000000000 -9000000000 18446744073709551615"));
	EXPECT_EQ(Format(TEXT("{float} {double}"), Arguments), TEXT("0.500000 24.000000"));
	EXPECT_EQ(Format(TEXT("{view}|{ansi}|{utf8}"), Arguments), TEXT("viewed|narrow|caf\u00e9"));

	EXPECT_EQ(FStringFormatArg(int32(1)).Type, FStringFormatArg::Int);
	EXPECT_EQ(FStringFormatArg(uint64(1)).Type, FStringFormatArg::UInt);
	EXPECT_EQ(FStringFormatArg(1.0f).Type, FStringFormatArg::Double);
	EXPECT_EQ(FStringFormatArg(FString(TEXT("s"))).Type, FStringFormatArg::String);
	EXPECT_EQ(FStringFormatArg(TEXT("s")).Type, FStringFormatArg::StringLiteralWIDE);
	EXPECT_EQ(FStringFormatArg("s").Type, FStringFormatArg::StringLiteralANSI);
}
