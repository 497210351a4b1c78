// Text a script hands to the engine as a soft path, checked before the engine sees it: the engine ensures on a
// short package name and stores nothing.
#pragma once

#include "CoreMinimal.h"

class FProperty;

namespace VLMR
{
	// Whether the engine stores the text as a soft path without an ensure: no short package name, and no object part
	// unless the path starts at a mount point. The empty text and "None" clear the path.
	bool IsStorableSoftPath(const FString& Text);

	// Whether the property's import text becomes a soft path: a soft object or class pointer, FSoftObjectPath or FSoftClassPath.
	bool ImportsAsSoftPath(const FProperty& Property);

	// "'<text>' is not a path the engine can store; a path starts at a mount point such as /Game/".
	FString UnstorableSoftPathMessage(const FString& Text);
}
