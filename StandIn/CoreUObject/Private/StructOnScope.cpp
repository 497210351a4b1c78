// FStructOnScope: an owned, initialized instance of a struct or of a function's parameter block.

#include "UObject/StructOnScope.h"

FStructOnScope::FStructOnScope(const UStruct* InScriptStruct)
{
	Initialize(InScriptStruct);
}

FStructOnScope::FStructOnScope(const UStruct* InScriptStruct, uint8* InData)
	: ScriptStruct(InScriptStruct)
	, SampleStructMemory(InData)
{
}

FStructOnScope::FStructOnScope(FStructOnScope&& InOther)
	: ScriptStruct(InOther.ScriptStruct)
	, SampleStructMemory(InOther.SampleStructMemory)
	, Package(InOther.Package)
	, bOwnsMemory(InOther.bOwnsMemory)
{
	InOther.ScriptStruct = nullptr;
	InOther.SampleStructMemory = nullptr;
	InOther.bOwnsMemory = false;
}

FStructOnScope& FStructOnScope::operator=(FStructOnScope&& InOther)
{
	if (this != &InOther)
	{
		Destroy();
		ScriptStruct = InOther.ScriptStruct;
		SampleStructMemory = InOther.SampleStructMemory;
		Package = InOther.Package;
		bOwnsMemory = InOther.bOwnsMemory;
		InOther.ScriptStruct = nullptr;
		InOther.SampleStructMemory = nullptr;
		InOther.bOwnsMemory = false;
	}
	return *this;
}

FStructOnScope::~FStructOnScope()
{
	Destroy();
}

void FStructOnScope::Initialize(const UStruct* InScriptStruct)
{
	Destroy();
	ScriptStruct = InScriptStruct;
	if (!ScriptStruct)
	{
		return;
	}
	SampleStructMemory = static_cast<uint8*>(FMemory::Malloc(FMath::Max(1, ScriptStruct->GetStructureSize()), uint32(ScriptStruct->GetMinAlignment())));
	ScriptStruct->InitializeStruct(SampleStructMemory);
	bOwnsMemory = true;
}

void FStructOnScope::Reset()
{
	Destroy();
	ScriptStruct = nullptr;
}

void FStructOnScope::Destroy()
{
	if (bOwnsMemory && ScriptStruct && SampleStructMemory)
	{
		ScriptStruct->DestroyStruct(SampleStructMemory);
		FMemory::Free(SampleStructMemory);
	}
	SampleStructMemory = nullptr;
	bOwnsMemory = false;
}
