#pragma once

#include "CoreMinimal.h"
#include "UObject/Field.h"

/** A path to a field that survives its struct's reload: "/Script/Engine.Actor:bHidden". Empty points at nothing. */
struct COREUOBJECT_API FFieldPath
{
	FFieldPath() = default;
	FFieldPath(const FField* InField);

	/** The field if its struct is in memory, else null. ExpectedType filters by class; null accepts any. */
	FField* GetTyped(const FFieldClass* ExpectedType) const;
	void Generate(const TCHAR* PathText);
	void Generate(const FField* InField);
	void Reset() { Path.Reset(); }
	bool IsEmpty() const { return Path.IsEmpty(); }
	FString ToString() const { return Path; }

	bool operator==(const FFieldPath& Other) const { return Path.Equals(Other.Path, ESearchCase::IgnoreCase); }
	friend uint32 GetTypeHash(const FFieldPath& Value) { return GetTypeHash(Value.Path); }
	friend COREUOBJECT_API FArchive& operator<<(FArchive& Ar, FFieldPath& Value);

private:
	FString Path;
};

template <typename PropertyType>
struct TFieldPath : public FFieldPath
{
	TFieldPath() = default;
	TFieldPath(TYPE_OF_NULLPTR) {}
	TFieldPath(const PropertyType* InField)
		: FFieldPath(InField)
	{
	}

	PropertyType* Get() const { return static_cast<PropertyType*>(GetTyped(PropertyType::StaticClass())); }
	PropertyType* operator->() const { return Get(); }
	PropertyType& operator*() const { return *Get(); }
	explicit operator bool() const { return Get() != nullptr; }
};
