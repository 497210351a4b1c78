// Objects ticked by the editor every frame, whatever world is playing; they register themselves on construction.
#pragma once

#include "CoreMinimal.h"
#include "Tickable.h"

class UNREALED_API FTickableEditorObject : public FTickableObjectBase
{
public:
	FTickableEditorObject();
	virtual ~FTickableEditorObject();

	FTickableEditorObject(const FTickableEditorObject&) = delete;
	FTickableEditorObject& operator=(const FTickableEditorObject&) = delete;

	// Ticks every registered object that wants a tick.
	static void TickObjects(float DeltaSeconds);

private:
	static FTickableStatics& GetStatics();
};
