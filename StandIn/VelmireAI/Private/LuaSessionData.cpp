#include "LuaSessionData.h"

#include "PackageEditPolicy.h"
#include "UObject/Package.h"

FLuaSessionData::FLuaSessionData() = default;

FLuaSessionData::~FLuaSessionData() = default;

void FLuaSessionData::Log(const FString& Line)
{
	LogLines.Add(Line);
	if (LogSink)
	{
		LogSink(Line);
	}
}

bool FLuaSessionData::EnsurePackageEditable(UPackage* Package, const wchar_t* Label, bool bForWrite)
{
	const FString PackageName = Package ? Package->GetName() : FString(TEXT("None"));
	const FString Reason = Package
		? UE::VelmireAI::Private::FindReasonPackageIsNotEditable(PackageName)
		: FString(TEXT("there is no package"));
	if (Reason.IsEmpty())
	{
		return true;
	}
	// Stand-in choice: bForWrite = false only asks, so that refusal is not reported in the log.
	if (bForWrite)
	{
		Log(FString::Printf(TEXT("[FAIL] %s -> package '%s' is not editable: %s"), Label ? Label : TEXT(""), *PackageName, *Reason));
	}
	return false;
}
