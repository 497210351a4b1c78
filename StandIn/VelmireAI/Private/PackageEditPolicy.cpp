#include "PackageEditPolicy.h"

#include "Misc/PackageName.h"

namespace UE::VelmireAI::Private
{
	namespace
	{
		TArray<FString>& GetReadOnlyPackagePrefixes()
		{
			static TArray<FString> ReadOnlyPrefixes;
			return ReadOnlyPrefixes;
		}

		// Stand-in choice: a prefix names a folder or a package, so "/Game/Locked" covers "/Game/Locked" and
		// "/Game/Locked/Shot" but not "/Game/LockedOther".
		bool IsPackageUnderPrefix(const FString& PackageName, const FString& Prefix)
		{
			if (Prefix.IsEmpty() || !PackageName.StartsWith(Prefix))
			{
				return false;
			}
			return PackageName.Len() == Prefix.Len() || Prefix.EndsWith(TEXT("/")) || PackageName[Prefix.Len()] == TEXT('/');
		}

		const FString* FindReadOnlyPrefix(const FString& PackageName)
		{
			return GetReadOnlyPackagePrefixes().FindByPredicate(
				[&PackageName](const FString& Prefix) { return IsPackageUnderPrefix(PackageName, Prefix); });
		}

		// The engine's reasons quote its list of invalid characters, line breaks included; a log line keeps to one line.
		FString EscapeLineBreaks(const FString& Text)
		{
			return Text.Replace(TEXT("\n"), TEXT("\\n"), ESearchCase::CaseSensitive)
				.Replace(TEXT("\r"), TEXT("\\r"), ESearchCase::CaseSensitive)
				.Replace(TEXT("\t"), TEXT("\\t"), ESearchCase::CaseSensitive);
		}

		bool IsUnderEditableRoot(const FString& PackageName)
		{
			return PackageName.StartsWith(TEXT("/Game/")) || PackageName.StartsWith(TEXT("/Temp/"));
		}
	}

	FString FindReasonPackageIsNotEditable(const FString& PackageName)
	{
		if (!IsUnderEditableRoot(PackageName))
		{
			return TEXT("only packages under /Game/ and /Temp/ can be edited");
		}
		// The engine counts /Temp/ among its read-only roots; sessions may edit it, so the root test above decides.
		FText InvalidNameReason;
		if (!FPackageName::IsValidLongPackageName(PackageName, true, &InvalidNameReason))
		{
			return FString::Printf(TEXT("invalid long package name (%s)"), *EscapeLineBreaks(InvalidNameReason.ToString()));
		}
		if (const FString* ReadOnlyPrefix = FindReadOnlyPrefix(PackageName))
		{
			return FString::Printf(TEXT("'%s' is read-only"), **ReadOnlyPrefix);
		}
		return FString();
	}

	void SetPackagePrefixReadOnly(const FString& Prefix, bool bReadOnly)
	{
		TArray<FString>& ReadOnlyPrefixes = GetReadOnlyPackagePrefixes();
		ReadOnlyPrefixes.Remove(Prefix);
		if (bReadOnly)
		{
			ReadOnlyPrefixes.Add(Prefix);
		}
	}
}
