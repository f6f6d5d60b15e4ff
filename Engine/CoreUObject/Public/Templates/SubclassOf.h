#pragma once

#include "UObject/Class.h"

/** A class that is T or below it; assigning any other class makes it null. */
template <typename T>
class TSubclassOf
{
public:
	using ElementType = T;

	TSubclassOf() = default;
	FORCEINLINE TSubclassOf(UClass* From)
		: Class(From)
	{
	}
	FORCEINLINE TSubclassOf(TYPE_OF_NULLPTR) {}
	template <typename U>
	requires(std::is_base_of_v<UClass, U> && !std::is_same_v<U, UClass>)
		FORCEINLINE TSubclassOf(U* From)
		: Class(From)
	{
	}
	template <typename U>
	FORCEINLINE TSubclassOf(const TObjectPtr<U>& From)
		: Class(From.Get())
	{
	}
	/** For an object that may be a class. */
	explicit TSubclassOf(UObject* From)
		: Class(From && From->IsA(UClass::StaticClass()) ? static_cast<UClass*>(From) : nullptr)
	{
	}
	template <typename U>
	requires(std::is_convertible_v<U*, T*> && !std::is_same_v<U, T>)
		FORCEINLINE TSubclassOf(const TSubclassOf<U>& Other)
		: Class(Other.Get())
	{
	}
	FORCEINLINE TSubclassOf& operator=(UClass* From)
	{
		Class = From;
		return *this;
	}

	FORCEINLINE UClass* operator*() const { return Get(); }
	FORCEINLINE UClass* Get() const { return Class && Class->IsChildOf(T::StaticClass()) ? Class : nullptr; }
	FORCEINLINE UClass* operator->() const { return Get(); }
	FORCEINLINE operator UClass*() const { return Get(); }
	FORCEINLINE explicit operator bool() const { return Get() != nullptr; }
	T* GetDefaultObject() const
	{
		UClass* const Result = Get();
		return Result ? Result->template GetDefaultObject<T>() : nullptr;
	}
	/** The class as it was set, whatever it is. */
	FORCEINLINE UClass* DebugAccessRawClassPtr() const { return Class; }
	FORCEINLINE friend uint32 GetTypeHash(const TSubclassOf& SubclassOf) { return ::PointerHash(SubclassOf.Class); }
	friend FArchive& operator<<(FArchive& Ar, TSubclassOf& SubclassOf)
	{
		UObject* Value = SubclassOf.Class;
		Ar << Value;
		SubclassOf.Class = static_cast<UClass*>(Value);
		return Ar;
	}

private:
	UClass* Class = nullptr;
};
