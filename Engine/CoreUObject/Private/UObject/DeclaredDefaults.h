#pragma once

#include "CoreMinimal.h"
#include "DeclaredSubobjects.h"

class FProperty;

/**
 * What a declaration without C++ has in a constructor's place: initial values of members, each of which is copied into a new value
 * of the struct or class, and a class's sub-objects.
 */
class FDeclaredDefaults
{
public:
	FDeclaredDefaults() = default;
	~FDeclaredDefaults();
	FDeclaredDefaults(const FDeclaredDefaults&) = delete;
	FDeclaredDefaults& operator=(const FDeclaredDefaults&) = delete;

	/** Takes over a value that the property's AllocateAndInitializeValue made. */
	void Add(const FProperty* Property, void* Value) { Values.Emplace(Property, Value); }
	bool IsEmpty() const { return Values.IsEmpty(); }
	/** The container's members must be initialized. */
	void ApplyTo(void* Container) const;

	/** Null where the class makes the same sub-objects as its super, or none. */
	const FDeclaredSubobjects* GetSubobjects() const { return Subobjects.Get(); }
	void SetSubobjects(TUniquePtr<FDeclaredSubobjects>&& InSubobjects) { Subobjects = MoveTemp(InSubobjects); }

private:
	TArray<TPair<const FProperty*, void*>> Values;
	TUniquePtr<FDeclaredSubobjects> Subobjects;
};
