#include "LuaSessionData.h"
#include "PackageEditPolicy.h"
#include "VelmireExtensionRegistrar.h"
#include "VelmireLuaSession.h"

#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"

#include <gtest/gtest.h>

#include <string>

namespace
{
	FString RunExpectingError(FVelmireLuaSession& Session, const TCHAR* Code)
	{
		FString Error;
		EXPECT_FALSE(Session.RunString(Code, TEXT("test"), Error)) << TCHAR_TO_UTF8(Code);
		return Error;
	}

	void RunExpectingSuccess(FVelmireLuaSession& Session, const TCHAR* Code)
	{
		FString Error;
		EXPECT_TRUE(Session.RunString(Code, TEXT("test"), Error)) << TCHAR_TO_UTF8(*Error);
	}

	// Counts live copies, so that a test sees whether a closure's captured data was destroyed.
	struct FLiveCounter
	{
		explicit FLiveCounter(int32* InLive) : Live(InLive) { ++*Live; }
		FLiveCounter(const FLiveCounter& Other) : Live(Other.Live) { ++*Live; }
		~FLiveCounter() { --*Live; }
		int32* Live;
	};
}

TEST(LuaSession, OpensTheStandardLibrariesAndHelp)
{
	FVelmireLuaSession Session;
	RunExpectingSuccess(Session, TEXT(
		"for _, name in ipairs({ 'string', 'table', 'math', 'utf8', 'io', 'os', 'coroutine', 'debug', 'package' }) do "
		"  assert(type(_G[name]) == 'table', name) "
		"end "
		"assert(type(help) == 'function') "
		"assert(utf8.char(0x2014) == '\\u{2014}')"));
}

TEST(LuaSession, ReportsErrorsWithTheirMessageAndKeepsWorking)
{
	FVelmireLuaSession Session;
	EXPECT_STREQ(*RunExpectingError(Session, TEXT("error('boom')")), TEXT("test:1: boom"));
	EXPECT_STREQ(*RunExpectingError(Session, TEXT("local x\n x.y = 1")), TEXT("test:2: attempt to index a nil value (local 'x')"));
	EXPECT_STREQ(*RunExpectingError(Session, TEXT("return (")), TEXT("test:1: unexpected symbol near <eof>"));
	EXPECT_STREQ(*RunExpectingError(Session, TEXT("error({})")), TEXT("(error object is a table value)"));
	EXPECT_STREQ(*RunExpectingError(Session, TEXT("error(setmetatable({}, { __tostring = function() return 'described' end }))")), TEXT("described"));
	EXPECT_STREQ(*RunExpectingError(Session, TEXT("error('no position', 0)")), TEXT("no position"));

	FString Error;
	EXPECT_FALSE(Session.RunString(TEXT("error('x')"), FString(), Error));
	EXPECT_STREQ(*Error, TEXT("[string \"error('x')\"]:1: x"));
	RunExpectingSuccess(Session, TEXT("survived = 1 + 1"));
	EXPECT_EQ(Session.GetState().get<int>("survived"), 2);
	EXPECT_EQ(lua_gettop(Session.GetState().lua_state()), 0);
}

TEST(LuaSession, RunFileReportsAMissingFile)
{
	FVelmireLuaSession Session;
	FString Error;
	EXPECT_FALSE(Session.RunFile(TEXT("/nonexistent/folder/script.lua"), Error));
	EXPECT_TRUE(Error.StartsWith(TEXT("cannot open /nonexistent/folder/script.lua"))) << TCHAR_TO_UTF8(*Error);
}

// sol2 compiled as the engine compiles (no exceptions, no RTTI, all safeties on) must turn a wrong argument type of a
// bound closure into a Lua error carrying its own message, free the closure's captured data, and leave the session usable.
TEST(LuaSession, WrongArgumentTypesOfBoundClosuresAreLuaErrors)
{
	int32 LiveCaptures = 0;
	{
		FVelmireLuaSession Session;
		FLiveCounter Counter(&LiveCaptures);
		Session.GetState().set_function("scale", [Counter](int Factor, const std::string& Text)
		{
			return std::string(size_t(Factor), Text.empty() ? '?' : Text[0]);
		});

		const FString WrongNumber = RunExpectingError(Session, TEXT("scale('x', 'y')"));
		EXPECT_TRUE(WrongNumber.StartsWith(TEXT("stack index 1, expected number, received string"))) << TCHAR_TO_UTF8(*WrongNumber);
		EXPECT_TRUE(WrongNumber.Contains(TEXT("(bad argument into '"))) << TCHAR_TO_UTF8(*WrongNumber);

		const FString WrongText = RunExpectingError(Session, TEXT("scale(2, {})"));
		EXPECT_TRUE(WrongText.StartsWith(TEXT("stack index 2, expected string, received table"))) << TCHAR_TO_UTF8(*WrongText);
		const FString Missing = RunExpectingError(Session, TEXT("scale()"));
		EXPECT_TRUE(Missing.StartsWith(TEXT("stack index 1, expected number, received no value"))) << TCHAR_TO_UTF8(*Missing);
		const FString NotWhole = RunExpectingError(Session, TEXT("scale(1.5, 'a')"));
		EXPECT_TRUE(NotWhole.Contains(TEXT("not a numeric type that fits exactly an integer"))) << TCHAR_TO_UTF8(*NotWhole);

		RunExpectingSuccess(Session, TEXT("assert(scale(3, 'ab') == 'aaa')"));
		RunExpectingSuccess(Session, TEXT("assert(not pcall(scale, {}, 'a')); assert(scale(1, 'z') == 'z')"));
		EXPECT_EQ(LiveCaptures, 2);
	}
	EXPECT_EQ(LiveCaptures, 0);
}

TEST(LuaSession, UnprotectedErrorsEndTheProgramThroughTheFatalLog)
{
	GTEST_FLAG_SET(death_test_style, "threadsafe");
	EXPECT_DEATH(
		{
			FVelmireLuaSession Session;
			lua_State* L = Session.GetState().lua_state();
			lua_pushstring(L, "outside any protected call");
			lua_error(L);
		},
		"Unprotected error in a Lua session: outside any protected call");
}

TEST(LuaSession, HelpListsBindingsAndTheirRecords)
{
	FVelmireExtensionRegistrar& Registrar = FVelmireExtensionRegistrar::Get();
	Registrar.RegisterLuaBinding(TEXT("test.help"), TEXT("HelpBinding"), {
		{ TEXT("help_first(path, opts?)"), TEXT("Does the first thing"), TEXT("true or nil") },
		{ TEXT("help_second()"), TEXT(""), TEXT("table") },
		{ TEXT("help_third(x)"), TEXT("Returns nothing"), TEXT("") },
	}, FVelmireLuaBindingInstaller());

	TArray<FString> Printed;
	FVelmireLuaSession Session([&Printed](const FString& Line) { Printed.Add(Line); });
	RunExpectingSuccess(Session, TEXT("help() help('helpbinding') help('Missing') help(42)"));
	const TArray<FString> Expected = {
		TEXT("help: 1 Lua binding; help(\"<binding>\") lists a binding's functions"),
		TEXT("HelpBinding (3 functions)"),
		TEXT("HelpBinding (3 functions)"),
		TEXT("help_first(path, opts?) \u2014 Does the first thing -> true or nil"),
		TEXT("help_second() -> table"),
		TEXT("help_third(x) \u2014 Returns nothing"),
		TEXT("help: no Lua binding named 'Missing'"),
		TEXT("help: no Lua binding named '42'"),
	};
	const TArray<FString>& Logged = Session.GetSessionData().GetLogLines();
	ASSERT_EQ(Logged.Num(), Expected.Num());
	ASSERT_EQ(Printed.Num(), Expected.Num());
	for (int32 Index = 0; Index < Expected.Num(); ++Index)
	{
		EXPECT_STREQ(*Logged[Index], *Expected[Index]);
		EXPECT_STREQ(*Printed[Index], *Expected[Index]);
	}
	EXPECT_STREQ(*RunExpectingError(Session, TEXT("help({})")), TEXT("test:1: bad argument #1 to 'help' (string expected, got table)"));

	Session.GetSessionData().ClearLog();
	EXPECT_TRUE(Session.GetSessionData().GetLogLines().IsEmpty());
	EXPECT_EQ(Registrar.UnregisterAllForExtension(TEXT("test.help")), 1);
}

TEST(LuaSessionData, EnsurePackageEditableRefusesWithOneLineNamingPackageAndReason)
{
	FLuaSessionData Session;
	EXPECT_TRUE(Session.EnsurePackageEditable(CreatePackage(TEXT("/Game/Seq/Shot010")), TEXT("mrq_save_queue"), true));
	EXPECT_TRUE(Session.EnsurePackageEditable(CreatePackage(TEXT("/Temp/Scratch/Queue")), TEXT("mrq_save_queue"), true));
	EXPECT_TRUE(Session.GetLogLines().IsEmpty());

	EXPECT_FALSE(Session.EnsurePackageEditable(nullptr, TEXT("graph:save"), true));
	EXPECT_FALSE(Session.EnsurePackageEditable(GetTransientPackage(), TEXT("config:save"), true));
	EXPECT_FALSE(Session.EnsurePackageEditable(CreatePackage(TEXT("/Engine/Presets/Base")), TEXT("config:save"), true));

	EXPECT_FALSE(Session.EnsurePackageEditable(CreatePackage(TEXT("/Game/Bad Name")), TEXT("mrq_save_queue"), true));

	UE::VelmireAI::Private::SetPackagePrefixReadOnly(TEXT("/Game/Locked"), true);
	EXPECT_FALSE(Session.EnsurePackageEditable(CreatePackage(TEXT("/Game/Locked/Shot")), TEXT("graph:add_node"), true));
	EXPECT_FALSE(Session.EnsurePackageEditable(CreatePackage(TEXT("/Game/Locked")), TEXT("graph:add_node"), true));
	EXPECT_TRUE(Session.EnsurePackageEditable(CreatePackage(TEXT("/Game/LockedOther/Shot")), TEXT("graph:add_node"), true));
	EXPECT_FALSE(Session.EnsurePackageEditable(CreatePackage(TEXT("/Game/Locked/Quiet")), TEXT("graph:add_node"), false));
	UE::VelmireAI::Private::SetPackagePrefixReadOnly(TEXT("/Game/Locked"), false);
	EXPECT_TRUE(Session.EnsurePackageEditable(CreatePackage(TEXT("/Game/Locked/Shot")), TEXT("graph:add_node"), true));

	const TArray<FString> Expected = {
		TEXT("[FAIL] graph:save -> package 'None' is not editable: there is no package"),
		TEXT("[FAIL] config:save -> package '/Engine/Transient' is not editable: only packages under /Game/ and /Temp/ can be edited"),
		TEXT("[FAIL] config:save -> package '/Engine/Presets/Base' is not editable: only packages under /Game/ and /Temp/ can be edited"),
		TEXT("[FAIL] mrq_save_queue -> package '/Game/Bad Name' is not editable: invalid long package name (Input '/Game/Bad Name' "
			"contains one of the invalid characters for LongPackageNames: '\\:*?\"<>|' ,.&!~\\n\\r\\t@#'.)"),
		TEXT("[FAIL] graph:add_node -> package '/Game/Locked/Shot' is not editable: '/Game/Locked' is read-only"),
		TEXT("[FAIL] graph:add_node -> package '/Game/Locked' is not editable: '/Game/Locked' is read-only"),
	};
	const TArray<FString>& Logged = Session.GetLogLines();
	ASSERT_EQ(Logged.Num(), Expected.Num());
	for (int32 Index = 0; Index < Expected.Num(); ++Index)
	{
		EXPECT_STREQ(*Logged[Index], *Expected[Index]);
	}
}
