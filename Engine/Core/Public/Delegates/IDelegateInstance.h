#pragma once

#include "CoreTypes.h"
#include "Templates/TypeHash.h"

/** Names one binding, for its removal from a multicast delegate or a ticker. */
class FDelegateHandle
{
public:
	enum EGenerateNewHandleType
	{
		GenerateNewHandle
	};

	FDelegateHandle() = default;
	explicit FDelegateHandle(EGenerateNewHandleType)
		: ID(GenerateNewID())
	{
	}

	bool IsValid() const { return ID != 0; }
	void Reset() { ID = 0; }
	bool operator==(const FDelegateHandle& Other) const = default;

	friend uint32 GetTypeHash(const FDelegateHandle& Handle) { return ::GetTypeHash(Handle.ID); }

private:
	CORE_API static uint64 GenerateNewID();

	uint64 ID = 0;
};
