// Whether an undo or redo is being applied.
// Stand-in choice: kept by UnrealEd; the engine keeps it in GIsTransacting (CoreGlobals.h), which the stand-in Core lacks.
#pragma once

namespace UE::UnrealEd::Private
{
	bool& IsTransactingFlag();
}
