// The LuaLS types and result-table classes the headless editor reads from the records' returns texts.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "CoreMinimal.h"
#include "LuaReturnTypes.h"

namespace
{
	using FLines = std::vector<std::string>;

	// The return type first, then one line per class: "vlmr.r_result: path any, error? any".
	FLines Describe(const FString& Returns, const FString& ResultName = TEXT("r"))
	{
		const UE::Vlmr::FLuaLSReturn Return = UE::Vlmr::ToLuaLSReturn(Returns, ResultName);
		FLines Lines = { TCHAR_TO_UTF8(*Return.Type) };
		for (const UE::Vlmr::FLuaLSClass& Class : Return.Classes)
		{
			std::string Line = std::string(TCHAR_TO_UTF8(*Class.Name)) + ":";
			for (const UE::Vlmr::FLuaLSField& Field : Class.Fields)
			{
				Line += std::string(Line.back() == ':' ? " " : ", ") + TCHAR_TO_UTF8(*Field.Name) + (Field.bOptional ? "? " : " ")
					+ TCHAR_TO_UTF8(*Field.Type);
			}
			Lines.push_back(Line);
		}
		return Lines;
	}

	std::vector<std::string> NamedKindsOf(const FString& Returns)
	{
		std::vector<std::string> Kinds;
		for (const FString& Kind : UE::Vlmr::ToLuaLSReturn(Returns, TEXT("r")).NamedKinds)
		{
			Kinds.push_back(TCHAR_TO_UTF8(*Kind));
		}
		return Kinds;
	}
}

TEST(LuaReturnTypes, DocumentedKeysBecomeFieldsInTheirOrderWithOptionalKeysMarked)
{
	EXPECT_EQ(Describe(TEXT("{ok, available, plugin_enabled, engine_version, reason, features}"), TEXT("mrg_support")),
		FLines({ "vlmr.mrg_support_result",
			"vlmr.mrg_support_result: ok any, available any, plugin_enabled any, engine_version any, reason any, features any" }));
	EXPECT_EQ(Describe(TEXT("{path, error?}"), TEXT("job_output_directory")),
		FLines({ "vlmr.job_output_directory_result", "vlmr.job_output_directory_result: path any, error? any" }));
	EXPECT_EQ(Describe(TEXT("{ zero_pad ,as_path? }")),
		FLines({ "vlmr.r_result", "vlmr.r_result: zero_pad any, as_path? any" }));
}

TEST(LuaReturnTypes, LiteralsGiveTheirTypeAndABooleanLiteralNamesItsTable)
{
	EXPECT_EQ(Describe(TEXT("{ok=false, code=-1, scale=0.5, name=\"1080p (FHD)\", width=}")),
		FLines({ "vlmr.r_ok_false", "vlmr.r_ok_false: ok boolean, code number, scale number, name string, width any" }));
	EXPECT_EQ(Describe(TEXT("{ok=true, value} or {ok=false, error}")),
		FLines({ "vlmr.r_ok_true|vlmr.r_ok_false", "vlmr.r_ok_true: ok boolean, value any", "vlmr.r_ok_false: ok boolean, error any" }));
}

TEST(LuaReturnTypes, AlternativesJoinIntoAUnionSplitOnlyOutsideBracesAndQuotes)
{
	EXPECT_EQ(Describe(TEXT("{profile,width,height,valid} or {ok=false,error}"), TEXT("mrg_named_resolution")),
		FLines({ "vlmr.mrg_named_resolution_result|vlmr.mrg_named_resolution_ok_false",
			"vlmr.mrg_named_resolution_result: profile any, width any, height any, valid any",
			"vlmr.mrg_named_resolution_ok_false: ok boolean, error any" }));
	EXPECT_EQ(Describe(TEXT("true or {ok=false,error}")),
		FLines({ "true|vlmr.r_ok_false", "vlmr.r_ok_false: ok boolean, error any" }));
	EXPECT_EQ(Describe(TEXT("{label=\"this or that\", size={w, h}} or nil")),
		FLines({ "vlmr.r_result|nil", "vlmr.r_result: label string, size vlmr.r_result_size", "vlmr.r_result_size: w any, h any" }));
	// Two tables without a telling literal get distinct names.
	EXPECT_EQ(Describe(TEXT("{a} or {b}")),
		FLines({ "vlmr.r_result|vlmr.r_result2", "vlmr.r_result: a any", "vlmr.r_result2: b any" }));
}

TEST(LuaReturnTypes, NestedTablesAreClassesNamedAfterTheirParentAndKeyEachAfterItsParent)
{
	EXPECT_EQ(Describe(TEXT("{items={{profile,width,height,description}}, count, default_profile}"),
		TEXT("mrg_named_resolutions")),
		FLines({ "vlmr.mrg_named_resolutions_result",
			"vlmr.mrg_named_resolutions_result: items vlmr.mrg_named_resolutions_result_items[], count any, default_profile any",
			"vlmr.mrg_named_resolutions_result_items: profile any, width any, height any, description any" }));
	EXPECT_EQ(Describe(TEXT("{a={b={c}, d}, e}")),
		FLines({ "vlmr.r_result", "vlmr.r_result: a vlmr.r_result_a, e any", "vlmr.r_result_a: b vlmr.r_result_a_b, d any",
			"vlmr.r_result_a_b: c any" }));
}

TEST(LuaReturnTypes, ArraysOfWordsTablesAndNamedResults)
{
	EXPECT_EQ(Describe(TEXT("{string...}")), FLines({ "string[]" }));
	EXPECT_EQ(Describe(TEXT("{ number ... }")), FLines({ "number[]" }));
	EXPECT_EQ(Describe(TEXT("{{x, y}}")), FLines({ "vlmr.r_result[]", "vlmr.r_result: x any, y any" }));
	EXPECT_EQ(Describe(TEXT("{{x}...} or nil")), FLines({ "vlmr.r_result[]|nil", "vlmr.r_result: x any" }));
	EXPECT_EQ(Describe(TEXT("{node_info...} or {ok=false,error}")),
		FLines({ "vlmr.node_info[]|vlmr.r_ok_false", "vlmr.r_ok_false: ok boolean, error any" }));
	EXPECT_EQ(NamedKindsOf(TEXT("{node_info...} or {ok=false,error}")), std::vector<std::string>({ "node_info" }));
	EXPECT_EQ(Describe(TEXT("{}")), FLines({ "table" }));
}

TEST(LuaReturnTypes, PlainTypesHandlesAndNamedResultsKeepTheirType)
{
	EXPECT_EQ(Describe(TEXT("table")), FLines({ "table" }));
	EXPECT_EQ(Describe(TEXT("table[]")), FLines({ "table[]" }));
	EXPECT_EQ(Describe(TEXT("bool")), FLines({ "boolean" }));
	EXPECT_EQ(Describe(TEXT("string or nil")), FLines({ "string|nil" }));
	EXPECT_EQ(Describe(TEXT("true or nil or nil")), FLines({ "true|nil" }));
	EXPECT_EQ(Describe(TEXT("job handle or nil")), FLines({ "vlmr.job|nil" }));
	EXPECT_EQ(Describe(TEXT("node_info or {ok=false,error}")),
		FLines({ "vlmr.node_info|vlmr.r_ok_false", "vlmr.r_ok_false: ok boolean, error any" }));
	EXPECT_EQ(NamedKindsOf(TEXT("job handle or node_info or graph handle or job handle")),
		std::vector<std::string>({ "job", "node_info", "graph" }));
}

TEST(LuaReturnTypes, TextThatCannotBeReadFallsBackToAPlainTypeWithoutClasses)
{
	for (const TCHAR* const Returns : { TEXT("{a, b"), TEXT("{a}{b}"), TEXT("{a,,b}"), TEXT("{a, a}"), TEXT("{1st}"), TEXT("{a b}"),
		TEXT("{items={{a,}}, count}"), TEXT("{label=\"open}") })
	{
		EXPECT_EQ(Describe(Returns), FLines({ "table" })) << TCHAR_TO_UTF8(Returns);
	}
	EXPECT_EQ(Describe(TEXT("{items={{a,}}, count} or nil")), FLines({ "table|nil" }));
	EXPECT_EQ(NamedKindsOf(TEXT("{items={node_info...}, a a}")), std::vector<std::string>());
	// Words that name no type make the whole result "any", and no class is declared for it.
	EXPECT_EQ(Describe(TEXT("the number of frames")), FLines({ "any" }));
	EXPECT_EQ(Describe(TEXT("{a} or a list of frames")), FLines({ "any" }));
	EXPECT_EQ(Describe(TEXT("")), FLines({ "any" }));
}
