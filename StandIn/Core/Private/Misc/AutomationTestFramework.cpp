#include "Misc/AutomationTest.h"

#include "CoreGlobals.h"
#include "HAL/PlatformTime.h"
#include "Logging/LogMacros.h"
#include "Misc/OutputDeviceRedirector.h"

DEFINE_LOG_CATEGORY_STATIC(LogAutomationTest, Warning, All);

namespace
{
	const TCHAR* GetEventTypeLabel(EAutomationEventType Type)
	{
		switch (Type)
		{
		case EAutomationEventType::Error: return TEXT("error");
		case EAutomationEventType::Warning: return TEXT("warning");
		default: return TEXT("info");
		}
	}

	void PrintTestResult(FOutputDevice& Output, const FString& FullTestPath, bool bPassed, const FAutomationTestExecutionInfo& ExecutionInfo)
	{
		Output.Log(FString::Printf(TEXT("[%s] %s"), bPassed ? TEXT("PASS") : TEXT("FAIL"), *FullTestPath));
		for (const FAutomationExecutionEntry& Entry : ExecutionInfo.GetEntries())
		{
			Output.Log(FString::Printf(TEXT("  %s: %s"), GetEventTypeLabel(Entry.Event.Type), *Entry.Event.Message));
		}
	}
}

void FAutomationTestFramework::FAutomationTestOutputDevice::Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category)
{
	if (CurTest != nullptr && V != nullptr && Verbosity != ELogVerbosity::SetColor)
	{
		CurTest->HandleCapturedLogLine(V, Verbosity, Category);
	}
}

FAutomationTestFramework& FAutomationTestFramework::Get()
{
	static FAutomationTestFramework Framework;
	return Framework;
}

bool FAutomationTestFramework::RegisterAutomationTest(const FString& InTestNameToRegister, FAutomationTestBase* InTestToRegister)
{
	if (InTestToRegister == nullptr || AutomationTestClassNameToInstanceMap.Contains(InTestNameToRegister))
	{
		return false;
	}
	AutomationTestClassNameToInstanceMap.Add(InTestNameToRegister, InTestToRegister);
	return true;
}

bool FAutomationTestFramework::UnregisterAutomationTest(const FString& InTestNameToUnregister)
{
	return AutomationTestClassNameToInstanceMap.Remove(InTestNameToUnregister) > 0;
}

bool FAutomationTestFramework::UnregisterAutomationTest(const FString& InTestNameToUnregister, const FAutomationTestBase* InTest)
{
	FAutomationTestBase* const* RegisteredTest = AutomationTestClassNameToInstanceMap.Find(InTestNameToUnregister);
	if (RegisteredTest == nullptr || *RegisteredTest != InTest)
	{
		return false;
	}
	if (CurrentTest == InTest)
	{
		AutomationTestOutputDevice.SetCurrentAutomationTest(nullptr);
		CurrentTest = nullptr;
	}
	return UnregisterAutomationTest(InTestNameToUnregister);
}

bool FAutomationTestFramework::ContainsTest(const FString& InTestName) const
{
	return AutomationTestClassNameToInstanceMap.Contains(InTestName);
}

void FAutomationTestFramework::GetValidTestNames(TArray<FAutomationTestInfo>& TestInfo) const
{
	TestInfo.Reset();
	for (const auto& Pair : AutomationTestClassNameToInstanceMap)
	{
		const FAutomationTestBase* Test = Pair.Value;
		if (!EnumHasAnyFlags(Test->GetTestFlags(), EAutomationTestFlags::Disabled))
		{
			Test->GenerateTestNames(TestInfo);
		}
	}
	TestInfo.Sort([](const FAutomationTestInfo& A, const FAutomationTestInfo& B) { return A.GetFullTestPath() < B.GetFullTestPath(); });
}

void FAutomationTestFramework::StartTestByName(const FString& InTestToRun, const int32 InRoleIndex, const FString& InFullTestPath)
{
	if (bIsTesting)
	{
		FAutomationTestExecutionInfo AbandonedTestInfo;
		StopTest(AbandonedTestInfo);
	}

	FString TestName;
	FString TestParameters;
	if (!InTestToRun.Split(TEXT(" "), &TestName, &TestParameters, ESearchCase::CaseSensitive))
	{
		TestName = InTestToRun;
	}

	if (!ContainsTest(TestName))
	{
		UE_LOG(LogAutomationTest, Error, TEXT("Test %s does not exist and could not be run."), *InTestToRun);
		return;
	}

	PrepForAutomationTests();
	InternalStartTest(InTestToRun, InFullTestPath);
}

bool FAutomationTestFramework::StopTest(FAutomationTestExecutionInfo& OutExecutionInfo)
{
	if (!bIsTesting)
	{
		return false;
	}
	const bool bSuccessful = InternalStopTest(OutExecutionInfo);
	ConcludeAutomationTests();
	return bSuccessful;
}

int32 FAutomationTestFramework::RunTests(const FString& Prefix, FOutputDevice& Output)
{
	TArray<FAutomationTestInfo> Tests;
	GetValidTestNames(Tests);

	int32 NumPassed = 0;
	int32 NumFailed = 0;
	for (const FAutomationTestInfo& TestInfo : Tests)
	{
		if (!TestInfo.GetFullTestPath().StartsWith(Prefix))
		{
			continue;
		}

		StartTestByName(TestInfo.GetTestName(), 0, TestInfo.GetFullTestPath());
		FAutomationTestExecutionInfo ExecutionInfo;
		const bool bPassed = StopTest(ExecutionInfo);

		PrintTestResult(Output, TestInfo.GetFullTestPath(), bPassed, ExecutionInfo);
		++(bPassed ? NumPassed : NumFailed);
	}

	Output.Log(FString::Printf(TEXT("%d passed, %d failed"), NumPassed, NumFailed));
	return NumFailed;
}

void FAutomationTestFramework::PrepForAutomationTests()
{
	GLog->AddOutputDevice(&AutomationTestOutputDevice);
	GIsAutomationTesting = true;
	bIsTesting = true;
}

void FAutomationTestFramework::ConcludeAutomationTests()
{
	bIsTesting = false;
	GIsAutomationTesting = false;
	GLog->RemoveOutputDevice(&AutomationTestOutputDevice);
}

void FAutomationTestFramework::InternalStartTest(const FString& InTestToRun, const FString& InFullTestPath)
{
	FString TestName;
	Parameters.Empty();
	if (!InTestToRun.Split(TEXT(" "), &TestName, &Parameters, ESearchCase::CaseSensitive))
	{
		TestName = InTestToRun;
	}

	FAutomationTestBase* const* RegisteredTest = AutomationTestClassNameToInstanceMap.Find(TestName);
	CurrentTest = RegisteredTest ? *RegisteredTest : nullptr;
	if (CurrentTest == nullptr)
	{
		bTestSuccessful = false;
		return;
	}

	CurrentTest->ClearExecutionInfo();
	AutomationTestOutputDevice.SetCurrentAutomationTest(CurrentTest);
	CurrentTest->SetTestContext(Parameters);
	CurrentTestFullPath = InFullTestPath;
	StartTime = FPlatformTime::Seconds();

	bTestSuccessful = CurrentTest->RunTest(Parameters);
}

bool FAutomationTestFramework::InternalStopTest(FAutomationTestExecutionInfo& OutExecutionInfo)
{
	if (CurrentTest == nullptr)
	{
		OutExecutionInfo = FAutomationTestExecutionInfo();
		return false;
	}

	bTestSuccessful = bTestSuccessful && !CurrentTest->HasAnyErrors() && CurrentTest->HasMetExpectedMessages();
	CurrentTest->ExpectedMessages.Empty();
	CurrentTest->InternalSetSuccessState(bTestSuccessful);

	CurrentTest->GetExecutionInfo(OutExecutionInfo);
	OutExecutionInfo.Duration = FPlatformTime::Seconds() - StartTime;

	AutomationTestOutputDevice.SetCurrentAutomationTest(nullptr);
	CurrentTest = nullptr;
	CurrentTestFullPath.Empty();
	return bTestSuccessful;
}
