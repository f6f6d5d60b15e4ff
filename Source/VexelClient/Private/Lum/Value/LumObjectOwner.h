#pragma once

#include "Lum/Value/LumValueOwner.h"

/**
 * An object whose properties are written as a details panel writes them: asked first, saved for undo, told before and after, and with
 * the change handed on to what is made from it and had the old value.
 */
class FLumObjectOwner : public ILumValueOwner
{
public:
	/** Within is the place of the reference through which the object was reached from another one that it is a part of. */
	explicit FLumObjectOwner(UObject& Object, const TSharedPtr<const FLumValuePlace>& InWithin = nullptr)
		: WeakObject(&Object)
		, Within(InWithin)
	{
	}

	virtual void* GetMemory() const override { return WeakObject.Get(); }
	virtual UObject* GetObject() const override { return WeakObject.Get(); }
	virtual const FLumObjectOwner* AsObjectOwner() const override { return this; }
	virtual TVexelExpected<void> CheckWritable(const FLumValuePlace& Place) const override;

protected:
	virtual void OnBegin(const FChange& Change) override;
	virtual TVexelExpected<void> OnEnd(const FChange& Change) override;

private:
	/** Calls Tell for the object and for those that it is a part of, each with the members from it down to the changed value. */
	void ForEachObject(TArray<FProperty*> Members, TFunctionRef<void(UObject& Object, const TArray<FProperty*>& Members)> Tell) const;

	TWeakObjectPtr<UObject> WeakObject;
	TSharedPtr<const FLumValuePlace> Within;
	/** The value before the change, while one is under way on an object that others are made from. */
	TUniquePtr<FLumTemporaryValue> OldDefault;
};
