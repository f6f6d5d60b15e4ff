#pragma once

#include "Lum/Value/LumValueOwner.h"

class UBlueprintGeneratedClass;
class USCS_Node;

/**
 * An object whose properties are written as a details panel writes them: asked first, saved for undo, told before and after, and with
 * the change handed on to what is made from it and had the old value. A component that a Blueprint has from a parent Blueprint, and what
 * belongs to it, is the parent's until a write makes an override of it.
 */
class FLumObjectOwner : public ILumValueOwner
{
public:
	/** Within is the place of the reference through which the object was reached from another one that it is a part of. */
	explicit FLumObjectOwner(UObject& Object, const TSharedPtr<const FLumValuePlace>& InWithin = nullptr);

	virtual void* GetMemory() const override { return GetObject(); }
	virtual UObject* GetObject() const override;
	virtual UObject* GetReferrer() const override;
	virtual FLumObjectOwner* AsObjectOwner() override { return this; }
	virtual bool IsInherited() const override;
	virtual TVexelExpected<void> CheckWritable(const FLumValuePlace& Place) const override;

protected:
	virtual TVexelExpected<void> OnBegin(const FChange& Change) override;
	virtual TVexelExpected<void> OnEnd(const FChange& Change) override;

private:
	/** The owner of the object that this one is a part of; null for one that is looked at by itself. */
	FLumObjectOwner* GetOuterOwner() const;
	UBlueprintGeneratedClass* GetClassOfComponent() const;
	/** Makes an override of the inherited component that this object is or belongs to. */
	TVexelExpected<void> TakeOver();
	/** Undoes TakeOver where the writes have left no difference. */
	void GiveBackIfSame();
	/** Calls Tell for the object and for those that it is a part of, each with the members from it down to the changed value. */
	void ForEachObject(TArray<FProperty*> Members, TFunctionRef<void(UObject& Object, const TArray<FProperty*>& Members)> Tell) const;

	TSharedPtr<const FLumValuePlace> Within;
	/** Of an inherited component. */
	TWeakObjectPtr<const USCS_Node> WeakNode;
	/** Whether the object is an inherited component or belongs to one. It is looked up at each use then: the first write makes another. */
	bool bOfInherited = false;
	/** The object where it is not looked up. */
	TWeakObjectPtr<UObject> WeakObject;
	/** The value before the change, while one is under way on an object that others are made from. */
	TUniquePtr<FLumTemporaryValue> OldDefault;
};
