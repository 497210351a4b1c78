// FDelegateHandle and the interface every bound delegate instance implements.
#pragma once

#include "CoreTypes.h"
#include "Templates/TypeHash.h"

class UObject;

/** Identifies one binding added to a multicast delegate. */
class FDelegateHandle
{
public:
	enum EGenerateNewHandleType
	{
		GenerateNewHandle
	};

	FDelegateHandle() = default;
	explicit FDelegateHandle(EGenerateNewHandleType) : ID(GenerateNewID()) {}

	FORCEINLINE bool IsValid() const { return ID != 0; }
	FORCEINLINE void Reset() { ID = 0; }
	FORCEINLINE bool operator==(const FDelegateHandle& Rhs) const { return ID == Rhs.ID; }
	FORCEINLINE bool operator!=(const FDelegateHandle& Rhs) const { return ID != Rhs.ID; }
	friend FORCEINLINE uint32 GetTypeHash(const FDelegateHandle& Key) { return GetTypeHash(Key.ID); }

private:
	CORE_API static uint64 GenerateNewID();

	uint64 ID = 0;
};

class IDelegateInstance
{
public:
	virtual ~IDelegateInstance() = default;

	/** Whether the bound object (if any) is still alive, so the delegate may run. */
	virtual bool IsSafeToExecute() const = 0;
	/** Whether the delegate is bound to this object (what RemoveAll matches). */
	virtual bool HasSameObject(const void* InUserObject) const = 0;
	/** The UObject the delegate is bound to, if it is bound to one. */
	virtual UObject* GetUObject() const = 0;
	virtual bool IsCompactable() const { return !IsSafeToExecute(); }

	FDelegateHandle GetHandle() const { return Handle; }
	void SetHandle(FDelegateHandle InHandle) { Handle = InHandle; }

private:
	FDelegateHandle Handle;
};
