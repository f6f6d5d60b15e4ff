#pragma once

#include "CoreMinimal.h"

class FProperty;

/** Initial values that a declaration without C++ gives its members; each is copied into a new value of the struct or class. */
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

private:
	TArray<TPair<const FProperty*, void*>> Values;
};
