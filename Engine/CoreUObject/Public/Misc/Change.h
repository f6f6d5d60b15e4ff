#pragma once

#include "CoreMinimal.h"

class UObject;

/** A change that a transaction holds beside the objects that it remembers: it knows by itself how to take itself back. */
class FChange
{
public:
	virtual ~FChange() = default;

	enum class EChangeStyle : uint8
	{
		/** One Execute does it, and answers the change that takes it back. */
		InPlaceSwap,
		/** Apply and Revert, any number of times. */
		CommandPattern
	};

	virtual EChangeStyle GetChangeType() = 0;
	virtual void Apply(UObject* Object) = 0;
	virtual void Revert(UObject* Object) = 0;
	virtual TUniquePtr<FChange> Execute(UObject* Object) = 0;
	/** Whether what the change is about is gone, so that applying it means nothing. */
	virtual bool HasExpired(UObject* Object) const { return false; }
	virtual FString ToString() const = 0;
};

/** A change that becomes its own opposite by being executed. */
class FSwapChange : public FChange
{
public:
	EChangeStyle GetChangeType() final { return EChangeStyle::InPlaceSwap; }
	void Apply(UObject* Object) final { checkNoEntry(); }
	void Revert(UObject* Object) final { checkNoEntry(); }
};

/** A change that is applied and reverted; it holds what both need. */
class FCommandChange : public FChange
{
public:
	EChangeStyle GetChangeType() final { return EChangeStyle::CommandPattern; }
	TUniquePtr<FChange> Execute(UObject* Object) final
	{
		checkNoEntry();
		return nullptr;
	}
};
