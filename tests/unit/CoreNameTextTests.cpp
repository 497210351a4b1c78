#include "CoreMinimal.h"

#include <gtest/gtest.h>

#include <thread>
#include <vector>

#define LOCTEXT_NAMESPACE "CoreNameTextTests"

TEST(CoreName, CaseInsensitiveNamesKeepTheFirstSpelling)
{
	const FName First(TEXT("VlmrFirstSpellingProbe"));
	const FName Second(TEXT("VLMRFIRSTSPELLINGPROBE"));
	EXPECT_EQ(First, Second);
	EXPECT_EQ(GetTypeHash(First), GetTypeHash(Second));
	EXPECT_STREQ(*Second.ToString(), TEXT("VlmrFirstSpellingProbe"));
	EXPECT_TRUE(Second == TEXT("vlmrfirstspellingprobe"));
	EXPECT_FALSE(Second == TEXT("VlmrFirstSpelling"));
	EXPECT_EQ(FName("vlmrFirstSpellingProbe"), First);
	EXPECT_EQ(FName(FString(TEXT("vlmrfirstspellingPROBE"))), First);

	FString Appended(TEXT("Name: "));
	First.AppendString(Appended);
	EXPECT_STREQ(*Appended, TEXT("Name: VlmrFirstSpellingProbe"));

	EXPECT_TRUE(FName(TEXT("VlmrNeverRegisteredProbe"), FNAME_Find).IsNone());
	EXPECT_FALSE(FName(TEXT("vlmrfirstspellingprobe"), FNAME_Find).IsNone());
	EXPECT_STREQ(*FName(TEXT("Shot"), 3).ToString(), TEXT("Shot_2"));
	EXPECT_STREQ(*FName(TEXT("Shot"), NAME_NO_NUMBER_INTERNAL).ToString(), TEXT("Shot"));
}

TEST(CoreName, NoneIsTheEmptyName)
{
	EXPECT_TRUE(FName().IsNone());
	EXPECT_EQ(FName(), NAME_None);
	EXPECT_EQ(FName(NAME_None), FName(TEXT("")));
	EXPECT_EQ(FName(TEXT("none")), NAME_None);
	EXPECT_STREQ(*FName().ToString(), TEXT("None"));
	EXPECT_TRUE(FName() == TEXT(""));
	EXPECT_TRUE(FName().IsValid());
	EXPECT_NE(FName(TEXT("Something")), NAME_None);
	EXPECT_EQ(FName(FString::ChrN(2000, TEXT('x'))), NAME_None);
}

TEST(CoreName, OrderingIsLexicalIgnoringCase)
{
	const FName Apple(TEXT("apple"));
	const FName Banana(TEXT("Banana"));
	EXPECT_LT(Apple.Compare(Banana), 0);
	EXPECT_GT(Banana.Compare(Apple), 0);
	EXPECT_EQ(Apple.Compare(FName(TEXT("APPLE"))), 0);
	EXPECT_TRUE(Apple.LexicalLess(Banana));
	EXPECT_NE(Apple.FastLess(Banana), Banana.FastLess(Apple));

	TArray<FName> Names = { FName(TEXT("c")), FName(TEXT("B")), FName(TEXT("a")) };
	Names.Sort(FNameLexicalLess());
	EXPECT_EQ(Names[0], FName(TEXT("a")));
	EXPECT_EQ(Names[2], FName(TEXT("c")));
}

TEST(CoreName, NameToDisplayStringMakesNamesReadable)
{
	EXPECT_STREQ(*FName::NameToDisplayString(TEXT("bEnabled"), true), TEXT("Enabled"));
	EXPECT_STREQ(*FName::NameToDisplayString(TEXT("bEnabled"), false), TEXT("B Enabled"));
	EXPECT_STREQ(*FName::NameToDisplayString(TEXT("bool"), true), TEXT("Bool"));
	EXPECT_STREQ(*FName::NameToDisplayString(TEXT("MoviePipelineOutputSetting"), false), TEXT("Movie Pipeline Output Setting"));
	EXPECT_STREQ(*FName::NameToDisplayString(TEXT("bUseCustomFrameRate"), true), TEXT("Use Custom Frame Rate"));
	EXPECT_STREQ(*FName::NameToDisplayString(TEXT("DrawScale3D"), false), TEXT("Draw Scale 3D"));
	EXPECT_STREQ(*FName::NameToDisplayString(TEXT("HTTPServer"), false), TEXT("HTTPServer"));
	EXPECT_STREQ(*FName::NameToDisplayString(TEXT("RenderInEditor"), false), TEXT("Render in Editor"));
	EXPECT_STREQ(*FName::NameToDisplayString(TEXT("NumberOfFramesToRender"), false), TEXT("Number Of Frames to Render"));
	EXPECT_STREQ(*FName::NameToDisplayString(TEXT("InstanceCount"), false), TEXT("Instance Count"));
	EXPECT_STREQ(*FName::NameToDisplayString(TEXT("output_directory"), false), TEXT("Output Directory"));
	EXPECT_STREQ(*FName::NameToDisplayString(TEXT("Layer1Name"), false), TEXT("Layer 1Name"));
	EXPECT_STREQ(*FName::NameToDisplayString(TEXT("Offset-1.5"), false), TEXT("Offset-1.5"));
	EXPECT_STREQ(*FName::NameToDisplayString(TEXT(""), false), TEXT(""));
}

TEST(CoreText, LocalizedTextKeepsNamespaceAndKey)
{
	const FText Namespaced = NSLOCTEXT("MovieRenderPipeline", "QueueTitle", "Render Queue");
	EXPECT_STREQ(*Namespaced.ToString(), TEXT("Render Queue"));
	ASSERT_TRUE(FTextInspector::GetNamespace(Namespaced).IsSet());
	EXPECT_STREQ(*FTextInspector::GetNamespace(Namespaced).GetValue(), TEXT("MovieRenderPipeline"));
	EXPECT_STREQ(*FTextInspector::GetKey(Namespaced).GetValue(), TEXT("QueueTitle"));

	const FText Local = LOCTEXT("LocalKey", "Local text");
	EXPECT_STREQ(*FTextInspector::GetNamespace(Local).GetValue(), TEXT("CoreNameTextTests"));
	EXPECT_STREQ(*FTextInspector::GetKey(Local).GetValue(), TEXT("LocalKey"));
	EXPECT_FALSE(Local.IsCultureInvariant());

	const FText FromString = FText::FromString(TEXT("plain"));
	EXPECT_FALSE(FTextInspector::GetNamespace(FromString).IsSet());
	EXPECT_FALSE(FTextInspector::GetKey(FromString).IsSet());
	EXPECT_TRUE(FromString.IsInitializedFromString());
	EXPECT_TRUE(INVTEXT("inv").IsCultureInvariant());
	EXPECT_TRUE(FText::AsCultureInvariant(TEXT("x")).IsCultureInvariant());
	EXPECT_STREQ(*FText::FromName(FName(TEXT("SomeName"))).ToString(), TEXT("SomeName"));
	EXPECT_TRUE(Namespaced.IdenticalTo(NSLOCTEXT("MovieRenderPipeline", "QueueTitle", "Render Queue")));
	EXPECT_FALSE(FromString.IdenticalTo(FText::FromString(TEXT("plain"))));
}

TEST(CoreText, EmptinessAndComparison)
{
	EXPECT_TRUE(FText().IsEmpty());
	EXPECT_TRUE(FText::GetEmpty().IsEmpty());
	EXPECT_STREQ(*FText::GetEmpty().ToString(), TEXT(""));
	EXPECT_TRUE(FText::FromString(TEXT(" \t")).IsEmptyOrWhitespace());
	EXPECT_FALSE(FText::FromString(TEXT(" a ")).IsEmptyOrWhitespace());
	EXPECT_TRUE(FText::FromString(TEXT("Same")).EqualTo(FText::FromString(TEXT("Same"))));
	EXPECT_FALSE(FText::FromString(TEXT("Same")).EqualTo(FText::FromString(TEXT("same"))));
	EXPECT_TRUE(FText::FromString(TEXT("Same")).EqualToCaseIgnored(FText::FromString(TEXT("same"))));
	EXPECT_STREQ(*FText::TrimPrecedingAndTrailing(FText::FromString(TEXT("  x "))).ToString(), TEXT("x"));
	EXPECT_STREQ(*FText::Join(FText::FromString(TEXT(", ")), TArray<FText>{ INVTEXT("a"), INVTEXT("b") }).ToString(), TEXT("a, b"));
}

TEST(CoreText, FormatReplacesOrderedAndNamedArguments)
{
	EXPECT_STREQ(*FText::Format(LOCTEXT("Progress", "{0} of {1}"), 3, 10).ToString(), TEXT("3 of 10"));
	EXPECT_STREQ(*FText::Format(INVTEXT("{1}-{0}-{1}"), FText::FromString(TEXT("a")), FText::FromString(TEXT("b"))).ToString(), TEXT("b-a-b"));
	EXPECT_STREQ(*FText::Format(INVTEXT("{0} frames"), 1234567).ToString(), TEXT("1,234,567 frames"));
	EXPECT_STREQ(*FText::Format(INVTEXT("{0}"), 3.14159).ToString(), TEXT("3.142"));
	EXPECT_STREQ(*FText::Format(INVTEXT("{0} and {3}"), 1).ToString(), TEXT("1 and {3}"));
	EXPECT_STREQ(*FText::Format(INVTEXT("`{0`} {0}"), 5).ToString(), TEXT("{0} 5"));

	FFormatNamedArguments Named;
	Named.Add(TEXT("Shot"), FText::FromString(TEXT("sh010")));
	Named.Add(TEXT("Frame"), 42);
	EXPECT_STREQ(*FText::Format(INVTEXT("{Shot} at {Frame}"), Named).ToString(), TEXT("sh010 at 42"));

	FFormatOrderedArguments Ordered;
	Ordered.Add(FText::FromString(TEXT("x")));
	EXPECT_STREQ(*FText::Format(INVTEXT("[{0}]"), Ordered).ToString(), TEXT("[x]"));
}

TEST(CoreText, AsNumberUsesTheInvariantCulture)
{
	EXPECT_STREQ(*FText::AsNumber(1234).ToString(), TEXT("1,234"));
	EXPECT_STREQ(*FText::AsNumber(-1234567).ToString(), TEXT("-1,234,567"));
	EXPECT_STREQ(*FText::AsNumber(12).ToString(), TEXT("12"));
	EXPECT_STREQ(*FText::AsNumber(1234, &FNumberFormattingOptions::DefaultNoGrouping()).ToString(), TEXT("1234"));
	EXPECT_STREQ(*FText::AsNumber(2.5).ToString(), TEXT("2.5"));
	EXPECT_STREQ(*FText::AsNumber(1.0005).ToString(), TEXT("1"));
	FNumberFormattingOptions Options;
	Options.SetMinimumFractionalDigits(2).SetMaximumFractionalDigits(2).SetMinimumIntegralDigits(3);
	EXPECT_STREQ(*FText::AsNumber(7.0, &Options).ToString(), TEXT("007.00"));
	EXPECT_STREQ(*FText::AsPercent(0.25).ToString(), TEXT("25%"));
}

TEST(CoreName, ConcurrentRegistrationAgreesOnEveryName)
{
	constexpr int32 NumThreads = 4;
	constexpr int32 NumNames = 500;
	TArray<TArray<FName>> PerThread;
	PerThread.SetNum(NumThreads);
	std::vector<std::thread> Threads;
	for (int32 ThreadIndex = 0; ThreadIndex < NumThreads; ++ThreadIndex)
	{
		Threads.emplace_back([&PerThread, ThreadIndex]()
		{
			for (int32 Index = 0; Index < NumNames; ++Index)
			{
				const FString Spelling = FString::Printf(ThreadIndex % 2 ? TEXT("VLMRCONCURRENT_%d") : TEXT("vlmrconcurrent_%d"), Index);
				PerThread[ThreadIndex].Add(FName(*Spelling));
			}
		});
	}
	for (std::thread& Thread : Threads)
	{
		Thread.join();
	}
	for (int32 Index = 0; Index < NumNames; ++Index)
	{
		const FString Display = PerThread[0][Index].ToString();
		for (int32 ThreadIndex = 1; ThreadIndex < NumThreads; ++ThreadIndex)
		{
			ASSERT_EQ(PerThread[ThreadIndex][Index], PerThread[0][Index]);
			ASSERT_STREQ(*PerThread[ThreadIndex][Index].ToString(), *Display);
		}
		ASSERT_TRUE(Display.Equals(FString::Printf(TEXT("vlmrconcurrent_%d"), Index), ESearchCase::IgnoreCase));
	}
}

TEST(CoreText, NumberFormattingOptionsAndRounding)
{
	FNumberFormattingOptions Whole;
	Whole.SetMaximumFractionalDigits(0);
	EXPECT_STREQ(*FText::AsNumber(2.5, &Whole).ToString(), TEXT("2"));
	EXPECT_STREQ(*FText::AsNumber(3.5, &Whole).ToString(), TEXT("4"));
	Whole.SetRoundingMode(ERoundingMode::HalfFromZero);
	EXPECT_STREQ(*FText::AsNumber(2.5, &Whole).ToString(), TEXT("3"));
	Whole.SetRoundingMode(ERoundingMode::ToZero);
	EXPECT_STREQ(*FText::AsNumber(-2.7, &Whole).ToString(), TEXT("-2"));

	FNumberFormattingOptions Signed;
	Signed.SetAlwaysSign(true);
	EXPECT_STREQ(*FText::AsNumber(5, &Signed).ToString(), TEXT("+5"));
	EXPECT_STREQ(*FText::AsNumber(-5, &Signed).ToString(), TEXT("-5"));
	EXPECT_STREQ(*FText::AsNumber(MAX_uint64).ToString(), TEXT("18,446,744,073,709,551,615"));
	EXPECT_STREQ(*FText::AsNumber(MIN_int64).ToString(), TEXT("-9,223,372,036,854,775,808"));
	EXPECT_STREQ(*FText::AsNumber(-0.0001).ToString(), TEXT("0"));
	EXPECT_STREQ(*FText::AsNumber(1234.5678f).ToString(), TEXT("1,234.568"));

	EXPECT_STREQ(*FText::Format(INVTEXT("{0}|{1}|{2}"), -1500, 2.0f, (uint8)7).ToString(), TEXT("-1,500|2|7"));
	FFormatNamedArguments Named;
	Named.Add(TEXT("Known"), 1);
	EXPECT_STREQ(*FText::Format(INVTEXT("{Known} {Unknown} {"), Named).ToString(), TEXT("1 {Unknown} {"));
	EXPECT_STREQ(*FText::Format(INVTEXT("{known}"), Named).ToString(), TEXT("1"));
	EXPECT_TRUE(FText::Format(INVTEXT("{0}"), 1).IsTransient());
	EXPECT_STREQ(*FText::FromString(TEXT("MiXeD")).ToUpper().ToString(), TEXT("MIXED"));
}

#undef LOCTEXT_NAMESPACE
