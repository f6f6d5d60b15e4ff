#pragma once

#include "CoreMinimal.h"
#include "Lum/Value/LumTemporaryValue.h"
#include "Lum/Value/LumValuePlace.h"
#include "UObject/WeakObjectPtr.h"
#include "VexelExpected.h"

class FLumObjectOwner;
class UObject;

/** What holds values: it says where they lie and which may be written, and hears of the changes. */
class ILumValueOwner
{
public:
	virtual ~ILumValueOwner() = default;

	/** The memory that places begin from; null when the owner is gone. */
	virtual void* GetMemory() const = 0;
	/** The object that the values belong to; null where there is none. */
	virtual UObject* GetObject() const = 0;
	/** The object on whose behalf values refer to others; null where there is none. */
	virtual UObject* GetReferrer() const { return GetObject(); }
	/** This owner where it is an object, else null. */
	virtual FLumObjectOwner* AsObjectOwner() { return nullptr; }
	/** Whether the values are those of another owner until the first write makes this one's of them. */
	virtual bool IsInherited() const { return false; }
	/** Whether the value there may be written, else why not. */
	virtual TVexelExpected<void> CheckWritable(const FLumValuePlace& Place) const = 0;

	/**
	 * Runs Work, which writes the value at the place or parts of it. The owner hears of the first write before it happens, and once of all
	 * when Work is done; of work within work the outermost counts.
	 */
	TVexelExpected<void> Change(
		const FLumValuePlace& Place, EPropertyChangeType::Type Type, TFunctionRef<TVexelExpected<void>()> Work);
	/** To be called within Change before each write. Nothing may be written where it fails. */
	TVexelExpected<void> BeginWrite();

protected:
	/** A change that is under way. */
	struct FChange
	{
		const FLumValuePlace& Place;
		EPropertyChangeType::Type Type;
		bool bHasBegun = false;
	};

	virtual TVexelExpected<void> OnBegin(const FChange& Change) { return {}; }
	/** Called after the last write, where there was one. */
	virtual TVexelExpected<void> OnEnd(const FChange& Change) { return {}; }

private:
	FChange* OpenChange = nullptr;
};

/** A value that no object has. It can be written freely. */
class FLumLooseOwner : public ILumValueOwner
{
public:
	/** The value starts as the type's own default. The object, which may be null, is the one on whose behalf it refers to others. */
	FLumLooseOwner(const FProperty& InProperty, UObject* InObject)
		: Value(InProperty)
		, WeakObject(InObject)
	{
	}

	virtual void* GetMemory() const override { return Value.Get(); }
	virtual UObject* GetObject() const override { return WeakObject.Get(); }
	virtual TVexelExpected<void> CheckWritable(const FLumValuePlace&) const override { return {}; }

private:
	FLumTemporaryValue Value;
	TWeakObjectPtr<UObject> WeakObject;
};
