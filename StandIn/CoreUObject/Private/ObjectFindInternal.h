// Path-based object lookup shared by finding and loading.
#pragma once

#include "CoreMinimal.h"

class UObject;
class UClass;

namespace UE::CoreUObject::StandIn::Private
{
	/** The path trimmed of spaces, with a "Class'Path'" wrapper removed. */
	FString NormalizeObjectPathText(const TCHAR* Name);
	/** Whether the path names an object inside a package ("/Game/A.B"), not just a package. */
	bool HasObjectPart(const FString& Path);
	/** Follows "/Game/A.B:C.D" (or a path relative to InOuter) segment by segment; the class applies to the last one. */
	UObject* FindObjectByPath(UClass* Class, UObject* InOuter, const FString& Path, bool bExactClass);
}
