#include "Misc/AutomationTest.h"

#include "Misc/CString.h"

namespace
{
	/** Equal strings, with two null pointers equal and a null pointer unequal to any string. */
	bool AreStringsEqual(const TCHAR* Actual, const TCHAR* Expected, ESearchCase::Type SearchCase)
	{
		if (Actual == nullptr || Expected == nullptr)
		{
			return Actual == Expected;
		}
		return SearchCase == ESearchCase::IgnoreCase ? FCString::Stricmp(Actual, Expected) == 0 : FCString::Strcmp(Actual, Expected) == 0;
	}
}

bool FAutomationTestBase::TestEqual(const TCHAR* What, const int32 Actual, const int32 Expected)
{
	if (Actual != Expected)
	{
		AddError(FString::Printf(TEXT("Expected '%s' to be %d, but it was %d."), What, Expected, Actual), 1);
		return false;
	}
	return true;
}

bool FAutomationTestBase::TestEqual(const TCHAR* What, const int64 Actual, const int64 Expected)
{
	if (Actual != Expected)
	{
		AddError(FString::Printf(TEXT("Expected '%s' to be %lld, but it was %lld."), What, (long long)Expected, (long long)Actual), 1);
		return false;
	}
	return true;
}

bool FAutomationTestBase::TestEqual(const TCHAR* What, const SIZE_T Actual, const SIZE_T Expected)
{
	if (Actual != Expected)
	{
		AddError(FString::Printf(TEXT("Expected '%s' to be %llu, but it was %llu."), What, (unsigned long long)Expected, (unsigned long long)Actual), 1);
		return false;
	}
	return true;
}

bool FAutomationTestBase::TestEqual(const TCHAR* What, const float Actual, const float Expected, float Tolerance)
{
	if (!FMath::IsNearlyEqual(Actual, Expected, Tolerance))
	{
		AddError(FString::Printf(TEXT("Expected '%s' to be %f, but it was %f and outside tolerance %f."), What, Expected, Actual, Tolerance), 1);
		return false;
	}
	return true;
}

bool FAutomationTestBase::TestEqual(const TCHAR* What, const double Actual, const double Expected, double Tolerance)
{
	if (!FMath::IsNearlyEqual(Actual, Expected, Tolerance))
	{
		AddError(FString::Printf(TEXT("Expected '%s' to be %f, but it was %f and outside tolerance %f."), What, Expected, Actual, Tolerance), 1);
		return false;
	}
	return true;
}

bool FAutomationTestBase::TestEqual(const TCHAR* What, const FColor Actual, const FColor Expected)
{
	if (Expected != Actual)
	{
		AddError(FString::Printf(TEXT("Expected '%s' to be %s, but it was %s."), What, *Expected.ToString(), *Actual.ToString()), 1);
		return false;
	}
	return true;
}

bool FAutomationTestBase::TestEqual(const TCHAR* What, const FLinearColor Actual, const FLinearColor Expected)
{
	if (Expected != Actual)
	{
		AddError(FString::Printf(TEXT("Expected '%s' to be %s, but it was %s."), What, *Expected.ToString(), *Actual.ToString()), 1);
		return false;
	}
	return true;
}

bool FAutomationTestBase::TestEqual(const TCHAR* What, const TCHAR* Actual, const TCHAR* Expected)
{
	const bool bAreEqual = AreStringsEqual(Actual, Expected, ESearchCase::IgnoreCase);
	if (!bAreEqual)
	{
		AddError(FString::Printf(TEXT("Expected '%s' to be %s, but it was %s."), What, *GetStringValueToDisplay(Expected), *GetStringValueToDisplay(Actual)), 1);
	}
	return bAreEqual;
}

bool FAutomationTestBase::TestEqual(const TCHAR* What, const FText Actual, const FText Expected)
{
	// Stand-in choice: compares Actual with Expected, ignoring case (one engine release compares Actual with itself).
	if (!Actual.EqualToCaseIgnored(Expected))
	{
		AddError(FString::Printf(TEXT("Expected '%s' to be %s, but it was %s."), What, *Expected.ToString(), *Actual.ToString()), 1);
		return false;
	}
	return true;
}

bool FAutomationTestBase::TestEqual(const TCHAR* What, const FName Actual, const FName Expected)
{
	if (!(Actual == Expected))
	{
		AddError(FString::Printf(TEXT("Expected '%s' to be %s, but it was %s."), What, *Expected.ToString(), *Actual.ToString()), 1);
		return false;
	}
	return true;
}

bool FAutomationTestBase::TestNotEqual(const TCHAR* What, const TCHAR* Actual, const TCHAR* Expected)
{
	const bool bAreDifferent = !AreStringsEqual(Actual, Expected, ESearchCase::IgnoreCase);
	if (!bAreDifferent)
	{
		AddError(FString::Printf(TEXT("Expected '%s' to differ from %s, but it was %s."), What, *GetStringValueToDisplay(Expected), *GetStringValueToDisplay(Actual)), 1);
	}
	return bAreDifferent;
}

bool FAutomationTestBase::TestNotEqual(const TCHAR* What, const FText Actual, const FText Expected)
{
	if (Actual.EqualToCaseIgnored(Expected))
	{
		AddError(FString::Printf(TEXT("Expected '%s' to differ from %s, but it was %s."), What, *Expected.ToString(), *Actual.ToString()), 1);
		return false;
	}
	return true;
}

bool FAutomationTestBase::TestNotEqual(const TCHAR* What, const FName Actual, const FName Expected)
{
	if (Actual == Expected)
	{
		AddError(FString::Printf(TEXT("Expected '%s' to differ from %s, but it was %s."), What, *Expected.ToString(), *Actual.ToString()), 1);
		return false;
	}
	return true;
}

bool FAutomationTestBase::TestNotEqual(const TCHAR* What, const float Actual, const float Expected, float Tolerance)
{
	if (FMath::IsNearlyEqual(Actual, Expected, Tolerance))
	{
		AddError(FString::Printf(TEXT("Expected '%s' to be unequal to %f, but it was %f and within tolerance %f."), What, Expected, Actual, Tolerance), 1);
		return false;
	}
	return true;
}

bool FAutomationTestBase::TestNotEqual(const TCHAR* What, const double Actual, const double Expected, double Tolerance)
{
	if (FMath::IsNearlyEqual(Actual, Expected, Tolerance))
	{
		AddError(FString::Printf(TEXT("Expected '%s' to be unequal to %f, but it was %f and within tolerance %f."), What, Expected, Actual, Tolerance), 1);
		return false;
	}
	return true;
}

bool FAutomationTestBase::TestEqualSensitive(const TCHAR* What, const TCHAR* Actual, const TCHAR* Expected)
{
	const bool bAreEqual = AreStringsEqual(Actual, Expected, ESearchCase::CaseSensitive);
	if (!bAreEqual)
	{
		AddError(FString::Printf(TEXT("Expected '%s' to be %s, but it was %s."), What, *GetStringValueToDisplay(Expected), *GetStringValueToDisplay(Actual)), 1);
	}
	return bAreEqual;
}

bool FAutomationTestBase::TestNotEqualSensitive(const TCHAR* What, const TCHAR* Actual, const TCHAR* Expected)
{
	const bool bAreDifferent = !AreStringsEqual(Actual, Expected, ESearchCase::CaseSensitive);
	if (!bAreDifferent)
	{
		AddError(FString::Printf(TEXT("Expected '%s' to differ from %s, but it was %s."), What, *GetStringValueToDisplay(Expected), *GetStringValueToDisplay(Actual)), 1);
	}
	return bAreDifferent;
}

bool FAutomationTestBase::TestLessThan(const TCHAR* What, const int32 Actual, const int32 Expected)
{
	return AddErrorIfFalse(Actual < Expected, FString::Printf(TEXT("Expected '%s' to be less than %d, but it was %d."), What, Expected, Actual), 1);
}

bool FAutomationTestBase::TestLessThan(const TCHAR* What, const int64 Actual, const int64 Expected)
{
	return AddErrorIfFalse(Actual < Expected, FString::Printf(TEXT("Expected '%s' to be less than %lld, but it was %lld."), What, (long long)Expected, (long long)Actual), 1);
}

bool FAutomationTestBase::TestGreaterThan(const TCHAR* What, const int32 Actual, const int32 Expected)
{
	return AddErrorIfFalse(Actual > Expected, FString::Printf(TEXT("Expected '%s' to be greater than %d, but it was %d."), What, Expected, Actual), 1);
}

bool FAutomationTestBase::TestGreaterThan(const TCHAR* What, const int64 Actual, const int64 Expected)
{
	return AddErrorIfFalse(Actual > Expected, FString::Printf(TEXT("Expected '%s' to be greater than %lld, but it was %lld."), What, (long long)Expected, (long long)Actual), 1);
}

bool FAutomationTestBase::TestLessEqual(const TCHAR* What, const int32 Actual, const int32 Expected)
{
	return AddErrorIfFalse(Actual <= Expected, FString::Printf(TEXT("Expected '%s' to be less than or equal to %d, but it was %d."), What, Expected, Actual), 1);
}

bool FAutomationTestBase::TestLessEqual(const TCHAR* What, const int64 Actual, const int64 Expected)
{
	return AddErrorIfFalse(Actual <= Expected, FString::Printf(TEXT("Expected '%s' to be less than or equal to %lld, but it was %lld."), What, (long long)Expected, (long long)Actual), 1);
}

bool FAutomationTestBase::TestGreaterEqual(const TCHAR* What, const int32 Actual, const int32 Expected)
{
	return AddErrorIfFalse(Actual >= Expected, FString::Printf(TEXT("Expected '%s' to be greater than or equal to %d, but it was %d."), What, Expected, Actual), 1);
}

bool FAutomationTestBase::TestGreaterEqual(const TCHAR* What, const int64 Actual, const int64 Expected)
{
	return AddErrorIfFalse(Actual >= Expected, FString::Printf(TEXT("Expected '%s' to be greater than or equal to %lld, but it was %lld."), What, (long long)Expected, (long long)Actual), 1);
}

bool FAutomationTestBase::TestFalse(const TCHAR* What, bool Value)
{
	if (Value)
	{
		AddError(FString::Printf(TEXT("Expected '%s' to be false."), What), 1);
		return false;
	}
	return true;
}

bool FAutomationTestBase::TestTrue(const TCHAR* What, bool Value)
{
	if (!Value)
	{
		AddError(FString::Printf(TEXT("Expected '%s' to be true."), What), 1);
		return false;
	}
	return true;
}

bool FAutomationTestBase::TestNull(const TCHAR* What, const void* Pointer)
{
	if (Pointer != nullptr)
	{
		AddError(FString::Printf(TEXT("Expected '%s' to be null."), What), 1);
		return false;
	}
	return true;
}
