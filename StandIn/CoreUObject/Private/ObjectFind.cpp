#include "UObject/UObjectGlobals.h"

#include "Misc/OutputDeviceRedirector.h"
#include "Misc/PackageName.h"
#include "ObjectFindInternal.h"
#include "UObject/Class.h"
#include "UObject/GarbageCollection.h"
#include "UObject/Package.h"
#include "UObject/UObjectArray.h"
#include "UObject/UObjectHash.h"

DEFINE_LOG_CATEGORY_STATIC(LogUObjectFind, Log, All);

namespace UE::CoreUObject::StandIn::Private
{
	namespace
	{
		bool IsObjectPathDelimiter(TCHAR Character)
		{
			return Character == TEXT('.') || Character == TEXT(':');
		}

		// The segments of a path: "/Game/A.B:C.D" -> "/Game/A", "B", "C", "D".
		TArray<FString> SplitObjectPath(const FString& Path)
		{
			TArray<FString> Segments;
			FString Current;
			for (TCHAR Character : Path.GetCharArray())
			{
				if (Character == 0)
				{
					break;
				}
				if (IsObjectPathDelimiter(Character))
				{
					Segments.Add(Current);
					Current.Reset();
				}
				else
				{
					Current.AppendChar(Character);
				}
			}
			Segments.Add(Current);
			return Segments;
		}

		// An existing name only: a name never registered cannot name an object.
		bool FindExistingName(const FString& Text, FName& OutName)
		{
			if (Text.IsEmpty())
			{
				return false;
			}
			OutName = FName(*Text, FNAME_Find);
			return !OutName.IsNone();
		}
	}

	FString NormalizeObjectPathText(const TCHAR* Name)
	{
		FString Path(Name ? Name : TEXT(""));
		Path.TrimStartAndEndInline();
		if (Path.EndsWith(TEXT("'"), ESearchCase::CaseSensitive))
		{
			Path = FPackageName::ExportTextPathToObjectPath(Path);
		}
		return Path;
	}

	bool HasObjectPart(const FString& Path)
	{
		for (TCHAR Character : Path.GetCharArray())
		{
			if (IsObjectPathDelimiter(Character))
			{
				return true;
			}
		}
		return false;
	}

	UObject* FindObjectByPath(UClass* Class, UObject* InOuter, const FString& Path, bool bExactClass)
	{
		const TArray<FString> Segments = SplitObjectPath(Path);
		UObject* Outer = InOuter;
		for (int32 Index = 0; Index < Segments.Num(); ++Index)
		{
			FName SegmentName;
			if (!FindExistingName(Segments[Index], SegmentName))
			{
				return nullptr;
			}
			const bool bIsLast = Index == Segments.Num() - 1;
			Outer = UE::CoreUObject::StandIn::FindObjectFast(Outer, SegmentName, bIsLast ? Class : nullptr, bIsLast && bExactClass);
			if (!Outer)
			{
				return nullptr;
			}
		}
		return Outer;
	}
}

using namespace UE::CoreUObject::StandIn::Private;

UObject* StaticFindObject(UClass* Class, UObject* InOuter, const TCHAR* Name, bool ExactClass)
{
	const FString Path = NormalizeObjectPathText(Name);
	if (Path.IsEmpty() || Path == TEXT("None"))
	{
		return nullptr;
	}
	return FindObjectByPath(Class, InOuter, Path, ExactClass);
}

UObject* StaticFindObject(UClass* Class, FTopLevelAssetPath ObjectPath, bool ExactClass)
{
	if (ObjectPath.IsNull())
	{
		return nullptr;
	}
	if (ObjectPath.GetAssetName().IsNone())
	{
		return UE::CoreUObject::StandIn::FindObjectFast(nullptr, ObjectPath.GetPackageName(), Class, ExactClass);
	}
	UObject* Package = UE::CoreUObject::StandIn::FindObjectFast(nullptr, ObjectPath.GetPackageName(), UPackage::StaticClass());
	return Package ? UE::CoreUObject::StandIn::FindObjectFast(Package, ObjectPath.GetAssetName(), Class, ExactClass) : nullptr;
}

UObject* StaticFindObjectChecked(UClass* Class, UObject* InOuter, const TCHAR* Name, bool ExactClass)
{
	UObject* Result = StaticFindObject(Class, InOuter, Name, ExactClass);
	if (!Result)
	{
		UE_LOG(LogUObjectFind, Fatal, TEXT("Failed to find object '%s %s.%s'"), Class ? *Class->GetName() : TEXT("None"),
			InOuter ? *InOuter->GetPathName() : TEXT("None"), Name ? Name : TEXT("None"));
	}
	return Result;
}

UObject* StaticFindObjectSafe(UClass* Class, UObject* InOuter, const TCHAR* Name, bool ExactClass)
{
	return IsGarbageCollecting() ? nullptr : StaticFindObject(Class, InOuter, Name, ExactClass);
}

UObject* StaticFindObjectFast(UClass* Class, UObject* InOuter, FName InName, bool ExactClass, EObjectFlags ExclusiveFlags, EInternalObjectFlags ExclusiveInternalFlags)
{
	return StaticFindObjectFastInternal(Class, InOuter, InName, ExactClass, ExclusiveFlags, ExclusiveInternalFlags);
}

UObject* StaticFindFirstObject(UClass* Class, const TCHAR* Name, EFindFirstObjectOptions Options, ELogVerbosity::Type AmbiguousMessageVerbosity, const TCHAR* InCurrentOperation)
{
	const bool bExactClass = EnumHasAnyFlags(Options, EFindFirstObjectOptions::ExactClass);
	const FString Path = NormalizeObjectPathText(Name);
	if (Path.IsEmpty() || Path == TEXT("None"))
	{
		return nullptr;
	}
	if (!FPackageName::IsShortPackageName(Path))
	{
		return StaticFindObject(Class, nullptr, *Path, bExactClass);
	}
	FName ShortName;
	if (!FindExistingName(Path, ShortName))
	{
		return nullptr;
	}

	TArray<UObject*> Matches;
	ForEachObjectOfClass(Class ? Class : UObject::StaticClass(), [&](UObject* Object)
	{
		if (Object->GetFName() == ShortName)
		{
			Matches.Add(Object);
		}
	}, !bExactClass, RF_NoFlags);
	if (Matches.Num() == 0)
	{
		return nullptr;
	}
	UObject* Result = Matches[0];
	if (EnumHasAnyFlags(Options, EFindFirstObjectOptions::NativeFirst))
	{
		for (UObject* Match : Matches)
		{
			if (Match->GetPackage() && Match->GetPackage()->HasAnyPackageFlags(PKG_CompiledIn))
			{
				Result = Match;
				break;
			}
		}
	}
	if (Matches.Num() > 1)
	{
		if (AmbiguousMessageVerbosity != ELogVerbosity::NoLogging)
		{
			FString Candidates;
			for (UObject* Match : Matches)
			{
				Candidates += FString::Printf(TEXT("\n\t%s"), *Match->GetPathName());
			}
			GLog->Log(FName(TEXT("LogUObjectGlobals")), AmbiguousMessageVerbosity, FString::Printf(TEXT("StaticFindFirstObject: found ambiguous object '%s' while %s; returning '%s'. Candidates:%s"),
				*Path, InCurrentOperation ? InCurrentOperation : TEXT("searching"), *Result->GetPathName(), *Candidates));
		}
		ensureMsgf(!EnumHasAnyFlags(Options, EFindFirstObjectOptions::EnsureIfAmbiguous), TEXT("Found %d objects named '%s'"), Matches.Num(), *Path);
	}
	return Result;
}
