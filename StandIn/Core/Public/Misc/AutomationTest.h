// The automation test framework: FAutomationTestBase, its test assertions and expected log messages, the framework
// singleton that registers and runs tests, and the IMPLEMENT_*_AUTOMATION_TEST macros.
#pragma once

#include "CoreTypes.h"
#include "Containers/Array.h"
#include "Containers/Map.h"
#include "Containers/UnrealString.h"
#include "Internationalization/Regex.h"
#include "Internationalization/Text.h"
#include "Logging/LogVerbosity.h"
#include "Math/Color.h"
#include "Math/UnrealMathUtility.h"
#include "Misc/AutomationEvent.h"
#include "Misc/DateTime.h"
#include "Misc/Guid.h"
#include "Misc/Optional.h"
#include "Misc/OutputDevice.h"
#include "Misc/Timespan.h"
#include "Misc/EngineVersionComparison.h"
#include "UObject/NameTypes.h"

#ifndef WITH_DEV_AUTOMATION_TESTS
	#define WITH_DEV_AUTOMATION_TESTS 1
#endif
#ifndef WITH_PERF_AUTOMATION_TESTS
	#define WITH_PERF_AUTOMATION_TESTS 1
#endif
#ifndef WITH_AUTOMATION_TESTS
	#define WITH_AUTOMATION_TESTS (WITH_DEV_AUTOMATION_TESTS || WITH_PERF_AUTOMATION_TESTS)
#endif
#ifndef WITH_AUTOMATION_WORKER
	#define WITH_AUTOMATION_WORKER 1
#endif

class FAutomationTestBase;

/** Requirements and behaviour of an automation test (5.5+: an enum class with flag operators). */
enum class EAutomationTestFlags
{
	None = 0x00000000,

	//~ Application context required for the test
	EditorContext = 0x00000001,
	ClientContext = 0x00000002,
	ServerContext = 0x00000004,
	CommandletContext = 0x00000008,
	ProgramContext = 0x00000010,

	//~ Features required for the test
	NonNullRHI = 0x00000100,
	RequiresUser = 0x00000200,

	//~ Never returned for a filter
	Disabled = 0x00010000,

#if !UE_VERSION_OLDER_THAN(5, 7, 0)
	SupportsAutoRTFM = 0x00020000,
#endif

	//~ Priority of the test
	CriticalPriority = 0x00100000,
	HighPriority = 0x00200000,
	MediumPriority = 0x00400000,
	LowPriority = 0x00800000,

	//~ Speed of the test
	SmokeFilter = 0x01000000,
	EngineFilter = 0x02000000,
	ProductFilter = 0x04000000,
	PerfFilter = 0x08000000,
	StressFilter = 0x10000000,
	NegativeFilter = 0x20000000,
};

ENUM_CLASS_FLAGS(EAutomationTestFlags)

inline constexpr EAutomationTestFlags EAutomationTestFlags_ApplicationContextMask = EAutomationTestFlags::EditorContext | EAutomationTestFlags::ClientContext | EAutomationTestFlags::ServerContext | EAutomationTestFlags::CommandletContext | EAutomationTestFlags::ProgramContext;
inline constexpr EAutomationTestFlags EAutomationTestFlags_FeatureMask = EAutomationTestFlags::NonNullRHI | EAutomationTestFlags::RequiresUser;
inline constexpr EAutomationTestFlags EAutomationTestFlags_HighPriorityAndAbove = EAutomationTestFlags::CriticalPriority | EAutomationTestFlags::HighPriority;
inline constexpr EAutomationTestFlags EAutomationTestFlags_MediumPriorityAndAbove = EAutomationTestFlags::CriticalPriority | EAutomationTestFlags::HighPriority | EAutomationTestFlags::MediumPriority;
inline constexpr EAutomationTestFlags EAutomationTestFlags_PriorityMask = EAutomationTestFlags::CriticalPriority | EAutomationTestFlags::HighPriority | EAutomationTestFlags::MediumPriority | EAutomationTestFlags::LowPriority;
inline constexpr EAutomationTestFlags EAutomationTestFlags_FilterMask = EAutomationTestFlags::SmokeFilter | EAutomationTestFlags::EngineFilter | EAutomationTestFlags::ProductFilter | EAutomationTestFlags::PerfFilter | EAutomationTestFlags::StressFilter | EAutomationTestFlags::NegativeFilter;

/** How an expected message is compared with a logged line. */
namespace EAutomationExpectedMessageFlags
{
	enum MatchType
	{
		/** The whole line must match. */
		Exact,
		/** The line must contain a match. */
		Contains,
	};

	inline const TCHAR* ToString(EAutomationExpectedMessageFlags::MatchType ThisType)
	{
		switch (ThisType)
		{
		case Contains:
			return TEXT("Contains");
		case Exact:
			return TEXT("Exact");
		}
		return TEXT("Unknown");
	}
}

namespace EAutomationExpectedErrorFlags = EAutomationExpectedMessageFlags;

/** The results of one run of an automation test. */
class FAutomationTestExecutionInfo
{
public:
	FAutomationTestExecutionInfo()
		: bSuccessful(false)
		, Duration(0.0)
		, Errors(0)
		, Warnings(0)
	{
	}

	CORE_API void Clear();

	/** Removes every event of this type; returns how many were removed. */
	CORE_API int32 RemoveAllEvents(EAutomationEventType EventType);

	const TArray<FAutomationExecutionEntry>& GetEntries() const { return Entries; }

	/** Records the event, counting errors and warnings; an event without context gets the current context. */
	CORE_API void AddEvent(const FAutomationEvent& Event, int StackOffset = 0, bool bCaptureStack = true);

	CORE_API void AddWarning(const FString& WarningMessage);
	CORE_API void AddError(const FString& ErrorMessage);

	int32 GetWarningTotal() const { return Warnings; }
	int32 GetErrorTotal() const { return Errors; }

	CORE_API const FString& GetContext() const;
	void PushContext(const FString& Context) { ContextStack.Push(Context); }
	void PopContext()
	{
		if (ContextStack.Num() > 0)
		{
			ContextStack.Pop();
		}
	}

public:
	bool bSuccessful;
	TArray<FString> AnalyticsItems;
	double Duration;

private:
	TArray<FAutomationExecutionEntry> Entries;
	int32 Errors;
	int32 Warnings;
	TArray<FString> ContextStack;
};

/** What the framework knows about one runnable test (one per parameter of a complex test). */
class FAutomationTestInfo
{
public:
	FAutomationTestInfo() = default;

	FAutomationTestInfo(const FString& InDisplayName, const FString& InFullTestPath, const FString& InTestName, const EAutomationTestFlags InTestFlags, const int32 InNumParticipantsRequired, const FString& InParameterName = FString(), const FString& InSourceFile = FString(), int32 InSourceFileLine = 0)
		: DisplayName(InDisplayName)
		, FullTestPath(InFullTestPath)
		, TestName(InTestName)
		, TestParameter(InParameterName)
		, SourceFile(InSourceFile)
		, SourceFileLine(InSourceFileLine)
		, TestFlags(InTestFlags)
		, NumParticipantsRequired(InNumParticipantsRequired)
	{
	}

	const FString& GetDisplayName() const { return DisplayName; }

	/** The dot-separated name the test is run and filtered by, e.g. "Velmire.MovieRenderGraph.PinLabelAlias". */
	const FString& GetFullTestPath() const { return FullTestPath; }

	/** The test command: the registered (class) name, followed by " <parameter>" for a complex test's variant. */
	FString GetTestName() const { return TestName; }

	const FString GetTestParameter() const { return TestParameter; }
	const FString GetSourceFile() const { return SourceFile; }
	const int32 GetSourceFileLine() const { return SourceFileLine; }
	const EAutomationTestFlags GetTestFlags() const { return TestFlags; }
	const int32 GetNumParticipantsRequired() const { return NumParticipantsRequired; }

private:
	FString DisplayName;
	FString FullTestPath;
	FString TestName;
	FString TestParameter;
	FString SourceFile;
	int32 SourceFileLine = 0;
	EAutomationTestFlags TestFlags = EAutomationTestFlags::None;
	int32 NumParticipantsRequired = 0;
};

/** A log message a test declares it expects, with the number of times it was seen. */
struct FAutomationExpectedMessage
{
	/** The pattern as given; a regular expression unless the message was added as plain text. */
	FString MessagePatternString;

	/** The case-insensitive expression built from MessagePatternString, anchored at both ends for Exact; unset for plain text. */
	TOptional<FRegexPattern> MessagePatternRegex;

	EAutomationExpectedMessageFlags::MatchType CompareType;

	/** > 0: must be seen exactly this often; 0: at least once (all occurrences suppressed); < 0: ignored. */
	int32 ExpectedNumberOfOccurrences;
	int32 ActualNumberOfOccurrences;

	/** The least severe verbosity matched: Warning matches warnings and errors. */
	ELogVerbosity::Type Verbosity;

	CORE_API FAutomationExpectedMessage(const FString& InMessagePattern, ELogVerbosity::Type InVerbosity, EAutomationExpectedMessageFlags::MatchType InCompareType, int32 InExpectedNumberOfOccurrences = 1, bool bInIsRegex = true);

	bool IsRegex() const { return MessagePatternRegex.IsSet(); }
	bool IsExactCompareType() const { return CompareType == EAutomationExpectedMessageFlags::Exact; }

	/**
	 * Case-insensitive match; counts the occurrence when it matches. A regular expression must match somewhere, or
	 * the whole line for Exact; plain text must be contained, or equal the line for Exact. A regular expression ICU
	 * refuses never matches.
	 */
	CORE_API bool Matches(const FString& Message);

	bool operator==(const FAutomationExpectedMessage& Other) const { return MessagePatternString == Other.MessagePatternString; }
	bool operator<(const FAutomationExpectedMessage& Other) const { return MessagePatternString < Other.MessagePatternString; }
};

/** The framework that registers automation tests and runs them, capturing what they log. */
class FAutomationTestFramework
{
public:
	CORE_API static FAutomationTestFramework& Get();
	static FAutomationTestFramework& GetInstance() { return Get(); }

	/** Registers under InTestNameToRegister (the test's class name); false if that name is taken. */
	CORE_API bool RegisterAutomationTest(const FString& InTestNameToRegister, FAutomationTestBase* InTestToRegister);
	CORE_API bool UnregisterAutomationTest(const FString& InTestNameToUnregister);
	CORE_API bool ContainsTest(const FString& InTestName) const;

	/** Stand-in choice: every registered test that is not Disabled, one entry per variant, in full-path order. */
	CORE_API void GetValidTestNames(TArray<FAutomationTestInfo>& TestInfo) const;

	/**
	 * Starts the test "<ClassName>[ <Parameter>]": captures GLog for it and calls RunTest. The test has run when
	 * this returns; StopTest collects the result. Logs an error if no such test is registered.
	 */
	CORE_API void StartTestByName(const FString& InTestToRun, const int32 InRoleIndex, const FString& InFullTestPath = FString());

	/** Ends the current test: it succeeded if RunTest returned true, it recorded no error and every expected message was met. */
	CORE_API bool StopTest(FAutomationTestExecutionInfo& OutExecutionInfo);

	FAutomationTestBase* GetCurrentTest() const { return CurrentTest; }
	const FString& GetCurrentTestFullPath() const { return CurrentTestFullPath; }

	/**
	 * Stand-in choice (the editor runs tests from its Session Frontend instead): runs every valid test whose full path
	 * starts with Prefix (case-insensitive) and prints to Output "[PASS] <name>" or "[FAIL] <name>", then one indented
	 * line per recorded event ("  error: ...", "  warning: ...", "  info: ..."), and finally "N passed, N failed".
	 * Returns the number of failed tests.
	 */
	CORE_API int32 RunTests(const FString& Prefix, FOutputDevice& Output);

private:
	/** Sends the Error and Warning lines GLog receives during a test to that test. */
	class FAutomationTestOutputDevice : public FOutputDevice
	{
	public:
		CORE_API virtual void Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category) override;

		void SetCurrentAutomationTest(FAutomationTestBase* InAutomationTest) { CurTest = InAutomationTest; }

	private:
		FAutomationTestBase* CurTest = nullptr;
	};

	FAutomationTestFramework() = default;
	UE_NONCOPYABLE(FAutomationTestFramework);

	friend class FAutomationTestBase;

	/** Unregisters the name only while it still refers to InTest, so a rejected duplicate cannot remove the original. */
	bool UnregisterAutomationTest(const FString& InTestNameToUnregister, const FAutomationTestBase* InTest);

	void PrepForAutomationTests();
	void ConcludeAutomationTests();
	void InternalStartTest(const FString& InTestToRun, const FString& InFullTestPath);
	bool InternalStopTest(FAutomationTestExecutionInfo& OutExecutionInfo);

	TMap<FString, FAutomationTestBase*> AutomationTestClassNameToInstanceMap;
	FAutomationTestOutputDevice AutomationTestOutputDevice;
	FAutomationTestBase* CurrentTest = nullptr;
	FString CurrentTestFullPath;
	FString Parameters;
	double StartTime = 0.0;
	bool bTestSuccessful = false;
	bool bIsTesting = false;
};

/** Base class of every automation test; a static instance registers the test with FAutomationTestFramework. */
class FAutomationTestBase
{
public:
	/** InName is the registered name, by convention the test's class name. */
	CORE_API FAutomationTestBase(const FString& InName, const bool bInComplexTask);
	CORE_API virtual ~FAutomationTestBase();

	static CORE_API bool bSuppressLogWarnings;
	static CORE_API bool bSuppressLogErrors;
	static CORE_API bool bElevateLogWarningsToErrors;

	virtual EAutomationTestFlags GetTestFlags() const = 0;

	/** The registered (class) name. */
	FString GetTestName() const { return TestName; }

	/** The parameter of the variant being run (empty for simple tests). */
	FString GetTestContext() const { return TestParameterContext; }

	/** The dot-separated name shown to users, e.g. "Velmire.MovieRenderGraph.PinLabelAlias". */
	virtual FString GetBeautifiedTestName() const = 0;

	/** The beautified name, followed by ".<context>" when running a variant. */
	CORE_API virtual FString GetTestFullName() const;

	virtual uint32 GetRequiredDeviceNum() const = 0;

	CORE_API void ClearExecutionInfo();

	/** Records an error unless it matches an expected message; any error fails the test. */
	CORE_API virtual void AddError(const FString& InError, int32 StackOffset = 0);
	CORE_API virtual bool AddErrorIfFalse(bool bCondition, const FString& InError, int32 StackOffset = 0);
	CORE_API virtual void AddWarning(const FString& InWarning, int32 StackOffset = 0);
	CORE_API virtual void AddInfo(const FString& InLogItem, int32 StackOffset = 0, bool bCaptureStack = false);
	CORE_API virtual void AddEvent(const FAutomationEvent& InEvent, int32 StackOffset = 0, bool bCaptureStack = false);
	CORE_API virtual void AddAnalyticsItem(const FString& InAnalyticsItem);

	CORE_API bool HasAnyErrors() const;

	/** Adds an error for every expected message of at least this verbosity that was not seen as often as declared. */
	CORE_API bool HasMetExpectedMessages(ELogVerbosity::Type VerbosityType = ELogVerbosity::All);
	CORE_API bool HasMetExpectedErrors();

	CORE_API bool GetLastExecutionSuccessState();
	CORE_API void GetExecutionInfo(FAutomationTestExecutionInfo& OutInfo) const;

	/** One FAutomationTestInfo per variant from GetTests. */
	CORE_API void GenerateTestNames(TArray<FAutomationTestInfo>& TestInfo) const;

	/** Whether a message of verbosity Actual falls within MaximumVerbosity (All matches everything). */
	static CORE_API bool LogCategoryMatchesSeverityInclusive(ELogVerbosity::Type Actual, ELogVerbosity::Type MaximumVerbosity);

	/**
	 * Declares a log message the test must see. ExpectedVerbosity is a minimum: Warning also matches errors.
	 * Occurrences > 0: exactly that many times; 0: at least once; < 0: any number, never failing. A pattern equal to
	 * one already declared is ignored.
	 */
	CORE_API void AddExpectedMessage(FString ExpectedPatternString, ELogVerbosity::Type ExpectedVerbosity, EAutomationExpectedMessageFlags::MatchType CompareType = EAutomationExpectedMessageFlags::Contains, int32 Occurrences = 1, bool IsRegex = true);
	CORE_API void AddExpectedMessagePlain(FString ExpectedString, ELogVerbosity::Type ExpectedVerbosity, EAutomationExpectedMessageFlags::MatchType CompareType = EAutomationExpectedMessageFlags::Contains, int32 Occurrences = 1);
	CORE_API void AddExpectedMessage(FString ExpectedPatternString, EAutomationExpectedMessageFlags::MatchType CompareType = EAutomationExpectedMessageFlags::Contains, int32 Occurrences = 1, bool IsRegex = true);
	CORE_API void AddExpectedMessagePlain(FString ExpectedString, EAutomationExpectedMessageFlags::MatchType CompareType = EAutomationExpectedMessageFlags::Contains, int32 Occurrences = 1);

	/** The declared messages of at least this verbosity, sorted by pattern, leaving out ignored ones (Occurrences < 0) unless IncludeSuppressed. */
	CORE_API void GetExpectedMessages(TArray<FAutomationExpectedMessage>& OutInfo, ELogVerbosity::Type Verbosity = ELogVerbosity::All) const;
	CORE_API void GetExpectedMessages(TArray<FAutomationExpectedMessage>& OutInfo, bool IncludeSuppressed, ELogVerbosity::Type Verbosity = ELogVerbosity::All) const;

	/** An expected error or warning: AddExpectedMessage with Warning verbosity. */
	CORE_API void AddExpectedError(FString ExpectedPatternString, EAutomationExpectedErrorFlags::MatchType CompareType = EAutomationExpectedErrorFlags::Contains, int32 Occurrences = 1, bool IsRegex = true);
	CORE_API void AddExpectedErrorPlain(FString ExpectedString, EAutomationExpectedErrorFlags::MatchType CompareType = EAutomationExpectedErrorFlags::Contains, int32 Occurrences = 1);

	const bool IsComplexTask() const { return bComplexTask; }
	const bool IsRanOnSeparateThread() const { return bRunOnSeparateThread; }

	virtual bool SuppressLogs() { return bSuppressLogs; }
	virtual bool ShouldCaptureLogCategory(const FName& Category) const { return true; }
	virtual bool SuppressLogErrors() { return bSuppressLogErrors; }
	virtual bool SuppressLogWarnings() { return bSuppressLogWarnings; }
	virtual bool ElevateLogWarningsToErrors() { return bElevateLogWarningsToErrors; }

	virtual FString GetTestSourceFileName() const { return TEXT(""); }
	virtual int32 GetTestSourceFileLine() const { return 0; }
	virtual FString GetTestSourceFileName(const FString& InTestName) const { return GetTestSourceFileName(); }
	virtual int32 GetTestSourceFileLine(const FString& InTestName) const { return GetTestSourceFileLine(); }
	virtual FString GetTestAssetPath(const FString& Parameter) const { return TEXT(""); }
	virtual FString GetTestOpenCommand(const FString& Parameter) const { return TEXT(""); }

	void PushContext(const FString& Context) { ExecutionInfo.PushContext(Context); }
	void PopContext() { ExecutionInfo.PopContext(); }

	virtual bool CanRunInEnvironment(const FString& TestParams, FString* OutReason, bool* OutWarn) const { return true; }

public:
	//~ Assertions: each returns whether it held and, if not, adds the engine's error text.

	/** "Expected '<What>' to be <Expected>, but it was <Actual>." */
	CORE_API bool TestEqual(const TCHAR* What, const int32 Actual, const int32 Expected);
	CORE_API bool TestEqual(const TCHAR* What, const int64 Actual, const int64 Expected);
	CORE_API bool TestEqual(const TCHAR* What, const SIZE_T Actual, const SIZE_T Expected);

	/** "Expected '<What>' to be <Expected>, but it was <Actual> and outside tolerance <Tolerance>." (%f) */
	CORE_API bool TestEqual(const TCHAR* What, const float Actual, const float Expected, float Tolerance = UE_KINDA_SMALL_NUMBER);
	CORE_API bool TestEqual(const TCHAR* What, const double Actual, const double Expected, double Tolerance = UE_KINDA_SMALL_NUMBER);

	CORE_API bool TestEqual(const TCHAR* What, const FColor Actual, const FColor Expected);
	CORE_API bool TestEqual(const TCHAR* What, const FLinearColor Actual, const FLinearColor Expected);

	/** Case-insensitive; "Expected '<What>' to be \"<Expected>\", but it was \"<Actual>\"." (nullptr shown unquoted). */
	CORE_API bool TestEqual(const TCHAR* What, const TCHAR* Actual, const TCHAR* Expected);
	bool TestEqual(const TCHAR* What, const FString& Actual, const FString& Expected) { return TestEqual(What, *Actual, *Expected); }
	bool TestEqual(const TCHAR* What, const FString& Actual, const TCHAR* Expected) { return TestEqual(What, *Actual, Expected); }
	bool TestEqual(const TCHAR* What, const TCHAR* Actual, const FString& Expected) { return TestEqual(What, Actual, *Expected); }
	CORE_API bool TestEqual(const TCHAR* What, const FText Actual, const FText Expected);
	CORE_API bool TestEqual(const TCHAR* What, const FName Actual, const FName Expected);

	/** "Expected '<What>' to differ from \"<Expected>\", but it was \"<Actual>\"." */
	CORE_API bool TestNotEqual(const TCHAR* What, const TCHAR* Actual, const TCHAR* Expected);
	bool TestNotEqual(const TCHAR* What, const FString& Actual, const FString& Expected) { return TestNotEqual(What, *Actual, *Expected); }
	bool TestNotEqual(const TCHAR* What, const FString& Actual, const TCHAR* Expected) { return TestNotEqual(What, *Actual, Expected); }
	CORE_API bool TestNotEqual(const TCHAR* What, const FText Actual, const FText Expected);
	CORE_API bool TestNotEqual(const TCHAR* What, const FName Actual, const FName Expected);

	/** "Expected '<What>' to be unequal to <Expected>, but it was <Actual> and within tolerance <Tolerance>." */
	CORE_API bool TestNotEqual(const TCHAR* What, const float Actual, const float Expected, float Tolerance = UE_KINDA_SMALL_NUMBER);
	CORE_API bool TestNotEqual(const TCHAR* What, const double Actual, const double Expected, double Tolerance = UE_KINDA_SMALL_NUMBER);

	/** Case-sensitive string comparisons. */
	CORE_API bool TestEqualSensitive(const TCHAR* What, const TCHAR* Actual, const TCHAR* Expected);
	bool TestEqualSensitive(const TCHAR* What, const FString& Actual, const FString& Expected) { return TestEqualSensitive(What, *Actual, *Expected); }
	CORE_API bool TestNotEqualSensitive(const TCHAR* What, const TCHAR* Actual, const TCHAR* Expected);
	bool TestNotEqualSensitive(const TCHAR* What, const FString& Actual, const FString& Expected) { return TestNotEqualSensitive(What, *Actual, *Expected); }

	bool TestEqualInsensitive(const TCHAR* What, const TCHAR* Actual, const TCHAR* Expected) { return TestEqual(What, Actual, Expected); }
	bool TestNotEqualInsensitive(const TCHAR* What, const TCHAR* Actual, const TCHAR* Expected) { return TestNotEqual(What, Actual, Expected); }

	bool TestEqual(const FString& What, const int32 Actual, const int32 Expected) { return TestEqual(*What, Actual, Expected); }
	bool TestEqual(const FString& What, const float Actual, const float Expected, float Tolerance = UE_KINDA_SMALL_NUMBER) { return TestEqual(*What, Actual, Expected, Tolerance); }
	bool TestEqual(const FString& What, const double Actual, const double Expected, double Tolerance = UE_KINDA_SMALL_NUMBER) { return TestEqual(*What, Actual, Expected, Tolerance); }
	bool TestEqual(const FString& What, const FColor Actual, const FColor Expected) { return TestEqual(*What, Actual, Expected); }
	bool TestEqual(const FString& What, const TCHAR* Actual, const TCHAR* Expected) { return TestEqual(*What, Actual, Expected); }
	bool TestEqual(const FString& What, const FString& Actual, const FString& Expected) { return TestEqual(*What, *Actual, *Expected); }
	bool TestEqual(const FString& What, const FString& Actual, const TCHAR* Expected) { return TestEqual(*What, *Actual, Expected); }
	bool TestEqualSensitive(const FString& What, const TCHAR* Actual, const TCHAR* Expected) { return TestEqualSensitive(*What, Actual, Expected); }
	bool TestNotEqualSensitive(const FString& What, const TCHAR* Actual, const TCHAR* Expected) { return TestNotEqualSensitive(*What, Actual, Expected); }

	/** Any other type compared with operator!=: "<What>: The two values are not equal." */
	template<typename ValueType>
	bool TestEqual(const TCHAR* What, const ValueType& Actual, const ValueType& Expected)
	{
		if (Actual != Expected)
		{
			AddError(FString::Printf(TEXT("%s: The two values are not equal."), What), 1);
			return false;
		}
		return true;
	}

	template<typename ValueType>
	bool TestEqual(const FString& What, const ValueType& Actual, const ValueType& Expected)
	{
		return TestEqual(*What, Actual, Expected);
	}

	/** Any other type compared with operator==: "<What>: The two values are equal." */
	template<typename ValueType>
	bool TestNotEqual(const TCHAR* Description, const ValueType& Actual, const ValueType& Expected)
	{
		if (Actual == Expected)
		{
			AddError(FString::Printf(TEXT("%s: The two values are equal."), Description), 1);
			return false;
		}
		return true;
	}

	template<typename ValueType>
	bool TestNotEqual(const FString& Description, const ValueType& Actual, const ValueType& Expected)
	{
		return TestNotEqual(*Description, Actual, Expected);
	}

	bool TestNotEqual(const FString& What, const float Actual, const float Expected, float Tolerance = UE_KINDA_SMALL_NUMBER) { return TestNotEqual(*What, Actual, Expected, Tolerance); }
	bool TestNotEqual(const FString& What, const double Actual, const double Expected, double Tolerance = UE_KINDA_SMALL_NUMBER) { return TestNotEqual(*What, Actual, Expected, Tolerance); }

	bool TestNearlyEqual(const TCHAR* What, const float Actual, const float Expected, float Tolerance = UE_KINDA_SMALL_NUMBER) { return TestEqual(What, Actual, Expected, Tolerance); }
	bool TestNearlyEqual(const TCHAR* What, const double Actual, const double Expected, double Tolerance = UE_KINDA_SMALL_NUMBER) { return TestEqual(What, Actual, Expected, Tolerance); }
	bool TestNearlyEqual(const FString& What, const float Actual, const float Expected, float Tolerance = UE_KINDA_SMALL_NUMBER) { return TestEqual(*What, Actual, Expected, Tolerance); }
	bool TestNearlyEqual(const FString& What, const double Actual, const double Expected, double Tolerance = UE_KINDA_SMALL_NUMBER) { return TestEqual(*What, Actual, Expected, Tolerance); }

	/** "Expected '<What>' to be less than <Expected>, but it was <Actual>." and the greater / or-equal variants. */
	CORE_API bool TestLessThan(const TCHAR* What, const int32 Actual, const int32 Expected);
	CORE_API bool TestLessThan(const TCHAR* What, const int64 Actual, const int64 Expected);
	CORE_API bool TestGreaterThan(const TCHAR* What, const int32 Actual, const int32 Expected);
	CORE_API bool TestGreaterThan(const TCHAR* What, const int64 Actual, const int64 Expected);
	CORE_API bool TestLessEqual(const TCHAR* What, const int32 Actual, const int32 Expected);
	CORE_API bool TestLessEqual(const TCHAR* What, const int64 Actual, const int64 Expected);
	CORE_API bool TestGreaterEqual(const TCHAR* What, const int32 Actual, const int32 Expected);
	CORE_API bool TestGreaterEqual(const TCHAR* What, const int64 Actual, const int64 Expected);
	bool TestLessThan(const FString& What, const int32 Actual, const int32 Expected) { return TestLessThan(*What, Actual, Expected); }
	bool TestGreaterThan(const FString& What, const int32 Actual, const int32 Expected) { return TestGreaterThan(*What, Actual, Expected); }
	bool TestLessEqual(const FString& What, const int32 Actual, const int32 Expected) { return TestLessEqual(*What, Actual, Expected); }
	bool TestGreaterEqual(const FString& What, const int32 Actual, const int32 Expected) { return TestGreaterEqual(*What, Actual, Expected); }

	/** "Expected '<What>' to be false." */
	CORE_API bool TestFalse(const TCHAR* What, bool Value);
	bool TestFalse(const FString& What, bool Value) { return TestFalse(*What, Value); }

	/** "Expected '<What>' to be true." */
	CORE_API bool TestTrue(const TCHAR* What, bool Value);
	bool TestTrue(const FString& What, bool Value) { return TestTrue(*What, Value); }

	/** "Expected '<What>' to be null." */
	CORE_API bool TestNull(const TCHAR* What, const void* Pointer);
	bool TestNull(const FString& What, const void* Pointer) { return TestNull(*What, Pointer); }

	/** "Expected '<What>' to be not null." */
	template<typename ValueType>
	bool TestNotNull(const TCHAR* What, const ValueType* Pointer)
	{
		if (Pointer == nullptr)
		{
			AddError(FString::Printf(TEXT("Expected '%s' to be not null."), What), 1);
			return false;
		}
		return true;
	}

	template<typename ValueType>
	bool TestNotNull(const FString& What, const ValueType* Pointer)
	{
		return TestNotNull(*What, Pointer);
	}

	/** "<Description>: The value is not valid (.IsValid() returned false)." */
	template<typename ValueType>
	bool TestValid(const TCHAR* Description, const ValueType& Value)
	{
		if (!Value.IsValid())
		{
			AddError(FString::Printf(TEXT("%s: The value is not valid (.IsValid() returned false)."), Description), 1);
			return false;
		}
		return true;
	}

	template<typename ValueType>
	bool TestValid(const FString& Description, const ValueType& Value)
	{
		return TestValid(*Description, Value);
	}

	/** "<Description>: The value is valid (.IsValid() returned true)." */
	template<typename ValueType>
	bool TestInvalid(const TCHAR* Description, const ValueType& Value)
	{
		if (Value.IsValid())
		{
			AddError(FString::Printf(TEXT("%s: The value is valid (.IsValid() returned true)."), Description), 1);
			return false;
		}
		return true;
	}

	template<typename ValueType>
	bool TestInvalid(const FString& Description, const ValueType& Value)
	{
		return TestInvalid(*Description, Value);
	}

	/** "<Description>: The two values are not the same." unless both refer to the same object. */
	template<typename ValueType>
	bool TestSame(const TCHAR* Description, const ValueType& Actual, const ValueType& Expected)
	{
		if (&Actual != &Expected)
		{
			AddError(FString::Printf(TEXT("%s: The two values are not the same."), Description), 1);
			return false;
		}
		return true;
	}

	/** "<Description>: The two values are the same." when both refer to the same object. */
	template<typename ValueType>
	bool TestNotSame(const TCHAR* Description, const ValueType& Actual, const ValueType& Expected)
	{
		if (&Actual == &Expected)
		{
			AddError(FString::Printf(TEXT("%s: The two values are the same."), Description), 1);
			return false;
		}
		return true;
	}

protected:
	/** The variants of this test: display names and the parameters RunTest receives ("" for a simple test). */
	virtual void GetTests(TArray<FString>& OutBeautifiedNames, TArray<FString>& OutTestCommands) const = 0;

	/** The test body; return false to fail. */
	virtual bool RunTest(const FString& Parameters) = 0;

	virtual void SetTestContext(FString Context) { TestParameterContext = Context; }

protected:
	bool bComplexTask;
	bool bRunOnSeparateThread = false;
	bool bSuppressLogs = false;
	FString TestName;
	FString TestParameterContext;
	FAutomationTestExecutionInfo ExecutionInfo;

	friend class FAutomationTestFramework;

private:
	/** Counts the message against the first matching expectation; true if one matched (the message is then absorbed). */
	CORE_API bool IsExpectedMessage(const FString& Message, const ELogVerbosity::Type& Verbosity = ELogVerbosity::All);

	/** Routes a line GLog received while this test ran: expected lines are absorbed, errors and warnings recorded. */
	void HandleCapturedLogLine(const TCHAR* Message, ELogVerbosity::Type Verbosity, const FName& Category);

	void InternalSetSuccessState(bool bSuccessful);

	/** "\"text\"" for a string, nullptr for a null pointer. */
	static FString GetStringValueToDisplay(const TCHAR* Value);

	TArray<FAutomationExpectedMessage> ExpectedMessages;
};

//~ IMPLEMENT_*_AUTOMATION_TEST: declare the test class and its static instance; the user defines TClass::RunTest.

#define IMPLEMENT_SIMPLE_AUTOMATION_TEST_PRIVATE(TClass, TBaseClass, PrettyName, TFlags, FileName, LineNumber) \
	class TClass : public TBaseClass \
	{ \
	public: \
		TClass(const FString& InName) \
			: TBaseClass(InName, false) \
		{ \
			static_assert(!!((TFlags) & EAutomationTestFlags_ApplicationContextMask), "AutomationTest has no application flag.  It shouldn't run.  See AutomationTest.h."); \
			static_assert(!!(((TFlags) & EAutomationTestFlags_FilterMask) == EAutomationTestFlags::SmokeFilter) || \
				!!(((TFlags) & EAutomationTestFlags_FilterMask) == EAutomationTestFlags::EngineFilter) || \
				!!(((TFlags) & EAutomationTestFlags_FilterMask) == EAutomationTestFlags::ProductFilter) || \
				!!(((TFlags) & EAutomationTestFlags_FilterMask) == EAutomationTestFlags::PerfFilter) || \
				!!(((TFlags) & EAutomationTestFlags_FilterMask) == EAutomationTestFlags::StressFilter) || \
				!!(((TFlags) & EAutomationTestFlags_FilterMask) == EAutomationTestFlags::NegativeFilter), \
				"All AutomationTests must have exactly 1 filter type.  See AutomationTest.h."); \
		} \
		virtual EAutomationTestFlags GetTestFlags() const override { return TFlags; } \
		virtual bool IsStressTest() const { return false; } \
		virtual uint32 GetRequiredDeviceNum() const override { return 1; } \
		virtual FString GetTestSourceFileName() const override { return FileName; } \
		virtual int32 GetTestSourceFileLine() const override { return LineNumber; } \
	protected: \
		virtual void GetTests(TArray<FString>& OutBeautifiedNames, TArray<FString>& OutTestCommands) const override \
		{ \
			OutBeautifiedNames.Add(PrettyName); \
			OutTestCommands.Add(FString()); \
		} \
		virtual bool RunTest(const FString& Parameters) override; \
		virtual FString GetBeautifiedTestName() const override { return PrettyName; } \
	};

#define IMPLEMENT_COMPLEX_AUTOMATION_TEST_PRIVATE(TClass, TBaseClass, PrettyName, TFlags, FileName, LineNumber) \
	class TClass : public TBaseClass \
	{ \
	public: \
		TClass(const FString& InName) \
			: TBaseClass(InName, true) \
		{ \
			static_assert(!!((TFlags) & EAutomationTestFlags_ApplicationContextMask), "AutomationTest has no application flag.  It shouldn't run.  See AutomationTest.h."); \
			static_assert(!!(((TFlags) & EAutomationTestFlags_FilterMask) == EAutomationTestFlags::SmokeFilter) || \
				!!(((TFlags) & EAutomationTestFlags_FilterMask) == EAutomationTestFlags::EngineFilter) || \
				!!(((TFlags) & EAutomationTestFlags_FilterMask) == EAutomationTestFlags::ProductFilter) || \
				!!(((TFlags) & EAutomationTestFlags_FilterMask) == EAutomationTestFlags::PerfFilter) || \
				!!(((TFlags) & EAutomationTestFlags_FilterMask) == EAutomationTestFlags::StressFilter) || \
				!!(((TFlags) & EAutomationTestFlags_FilterMask) == EAutomationTestFlags::NegativeFilter), \
				"All AutomationTests must have exactly 1 filter type.  See AutomationTest.h."); \
		} \
		virtual EAutomationTestFlags GetTestFlags() const override { return ((TFlags) & ~(EAutomationTestFlags::SmokeFilter)); } \
		virtual bool IsStressTest() const { return true; } \
		virtual uint32 GetRequiredDeviceNum() const override { return 1; } \
		virtual FString GetTestSourceFileName() const override { return FileName; } \
		virtual int32 GetTestSourceFileLine() const override { return LineNumber; } \
	protected: \
		virtual void GetTests(TArray<FString>& OutBeautifiedNames, TArray<FString>& OutTestCommands) const override; \
		virtual bool RunTest(const FString& Parameters) override; \
		virtual FString GetBeautifiedTestName() const override { return PrettyName; } \
	};

#define IMPLEMENT_SIMPLE_AUTOMATION_TEST(TClass, PrettyName, TFlags) \
	IMPLEMENT_SIMPLE_AUTOMATION_TEST_PRIVATE(TClass, FAutomationTestBase, PrettyName, TFlags, __FILE__, __LINE__) \
	namespace \
	{ \
		TClass TClass##AutomationTestInstance(TEXT(#TClass)); \
	}

#define IMPLEMENT_COMPLEX_AUTOMATION_TEST(TClass, PrettyName, TFlags) \
	IMPLEMENT_COMPLEX_AUTOMATION_TEST_PRIVATE(TClass, FAutomationTestBase, PrettyName, TFlags, __FILE__, __LINE__) \
	namespace \
	{ \
		TClass TClass##AutomationTestInstance(TEXT(#TClass)); \
	}

#define IMPLEMENT_CUSTOM_SIMPLE_AUTOMATION_TEST(TClass, TBaseClass, PrettyName, TFlags) \
	IMPLEMENT_SIMPLE_AUTOMATION_TEST_PRIVATE(TClass, TBaseClass, PrettyName, TFlags, __FILE__, __LINE__) \
	namespace \
	{ \
		TClass TClass##AutomationTestInstance(TEXT(#TClass)); \
	}

#define IMPLEMENT_CUSTOM_COMPLEX_AUTOMATION_TEST(TClass, TBaseClass, PrettyName, TFlags) \
	IMPLEMENT_COMPLEX_AUTOMATION_TEST_PRIVATE(TClass, TBaseClass, PrettyName, TFlags, __FILE__, __LINE__) \
	namespace \
	{ \
		TClass TClass##AutomationTestInstance(TEXT(#TClass)); \
	}

//~ Early-exit one-liners: run the assertion and `return false;` from RunTest when it fails.

#define UTEST_EQUAL(What, Actual, Expected) if (!TestEqual(What, Actual, Expected)) { return false; }
#define UTEST_EQUAL_TOLERANCE(What, Actual, Expected, Tolerance) if (!TestEqual(What, Actual, Expected, Tolerance)) { return false; }
#define UTEST_NOT_EQUAL(What, Actual, Expected) if (!TestNotEqual(What, Actual, Expected)) { return false; }
#define UTEST_TRUE(What, Value) if (!TestTrue(What, Value)) { return false; }
#define UTEST_FALSE(What, Value) if (!TestFalse(What, Value)) { return false; }
#define UTEST_VALID(What, Value) if (!TestValid(What, Value)) { return false; }
#define UTEST_INVALID(What, Value) if (!TestInvalid(What, Value)) { return false; }
#define UTEST_NULL(What, Pointer) if (!TestNull(What, Pointer)) { return false; }
#define UTEST_NOT_NULL(What, Pointer) if (!TestNotNull(What, Pointer)) { return false; }
