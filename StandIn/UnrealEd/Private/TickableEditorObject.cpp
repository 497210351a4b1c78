#include "TickableEditorObject.h"

FTickableEditorObject::FTickableEditorObject()
{
	GetStatics().Add(this);
}

FTickableEditorObject::~FTickableEditorObject()
{
	GetStatics().Remove(this);
}

FTickableObjectBase::FTickableStatics& FTickableEditorObject::GetStatics()
{
	static FTickableStatics Statics;
	return Statics;
}

void FTickableEditorObject::TickObjects(float DeltaSeconds)
{
	GetStatics().ForEach([DeltaSeconds](FTickableObjectBase& Object)
	{
		FTickableEditorObject& EditorObject = static_cast<FTickableEditorObject&>(Object);
		if (EditorObject.IsAllowedToTick() && EditorObject.WantsTick())
		{
			EditorObject.Tick(DeltaSeconds);
		}
	});
}
