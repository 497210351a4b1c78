#include "VLMRSoftPathText.h"

#include "Misc/PackageName.h"
#include "UObject/UnrealType.h"

namespace VLMR
{
	bool IsStorableSoftPath(const FString& Text)
	{
		if (Text.IsEmpty() || Text == TEXT("None"))
		{
			return true;
		}
		const FString Path = Text.StartsWith(TEXT("/")) ? Text : FPackageName::ExportTextPathToObjectPath(Text);
		int32 Separator = INDEX_NONE;
		const bool bNamesObject = Path.FindChar(TEXT('.'), Separator) || Path.FindChar(TEXT(':'), Separator);
		return !FPackageName::IsShortPackageName(Path) && (Path.StartsWith(TEXT("/")) || !bNamesObject);
	}

	bool ImportsAsSoftPath(const FProperty& Property)
	{
		if (Property.IsA<FSoftObjectProperty>())
		{
			return true;
		}
		// Matched by the reflected struct's name, so that no struct needs looking up on every write.
		static const FName SoftObjectPathName(TEXT("SoftObjectPath"));
		static const FName SoftClassPathName(TEXT("SoftClassPath"));
		const FStructProperty* StructProperty = CastField<FStructProperty>(&Property);
		return StructProperty && StructProperty->Struct
			&& (StructProperty->Struct->GetFName() == SoftObjectPathName || StructProperty->Struct->GetFName() == SoftClassPathName);
	}

	FString UnstorableSoftPathMessage(const FString& Text)
	{
		return FString::Printf(TEXT("'%s' is not a path the engine can store; a path starts at a mount point such as /Game/"), *Text);
	}
}
