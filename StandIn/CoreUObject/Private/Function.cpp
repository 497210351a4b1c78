// UFunction: a reflected function whose parameters are properties of a parameter block, called through a native thunk.

#include "UObject/Class.h"
#include "UObject/UnrealType.h"

STANDIN_IMPLEMENT_CLASS(UFunction, CLASS_None, "CoreUObject")
{
}

FProperty* UFunction::GetReturnProperty() const
{
	for (TFieldIterator<FProperty> It(this); It; ++It)
	{
		if (It->HasAnyPropertyFlags(CPF_ReturnParm))
		{
			return *It;
		}
	}
	return nullptr;
}

UClass* UFunction::GetOuterUClass() const
{
	return Cast<UClass>(GetOuter());
}

void UFunction::Invoke(UObject* Obj, void* Parms) const
{
	if (NativeThunk)
	{
		NativeThunk(Obj, Parms);
	}
}

void UFunction::InitializeStruct(void* Dest, int32 ArrayDim) const
{
	Super::InitializeStruct(Dest, ArrayDim);
}

void UFunction::DestroyStruct(void* Dest, int32 ArrayDim) const
{
	Super::DestroyStruct(Dest, ArrayDim);
}

void UFunction::Link()
{
	Super::Link();
	NumParms = 0;
	ReturnValueOffset = MAX_uint16;
	for (FProperty* Property = PropertyLink; Property; Property = Property->PropertyLinkNext)
	{
		if (!Property->HasAnyPropertyFlags(CPF_Parm))
		{
			continue;
		}
		++NumParms;
		if (Property->HasAnyPropertyFlags(CPF_ReturnParm))
		{
			ReturnValueOffset = uint16(Property->GetOffset_ForUFunction());
		}
		if (Property->HasAnyPropertyFlags(CPF_OutParm))
		{
			FunctionFlags |= FUNC_HasOutParms;
		}
	}
	ParmsSize = uint16(PropertiesSize);
}
