#pragma once

#include "CoreTypes.h"
#include "Misc/AssertionMacros.h"
#include "Serialization/Archive.h"
#include "Templates/MemoryOps.h"
#include "Templates/TypeHash.h"
#include "Templates/UnrealTemplate.h"

struct FNullOpt
{
	explicit constexpr FNullOpt(int) {}
};

inline constexpr FNullOpt NullOpt{0};

/** A value or none. The value stands at the start of the optional, the flag behind it, as reflection expects. */
template <typename OptionalType>
class TOptional
{
public:
	using ElementType = OptionalType;

	TOptional()
		: bIsSet(false)
	{
	}
	TOptional(FNullOpt)
		: bIsSet(false)
	{
	}
	TOptional(const OptionalType& InValue)
		: TOptional(InPlace, InValue)
	{
	}
	TOptional(OptionalType&& InValue)
		: TOptional(InPlace, MoveTempIfPossible(InValue))
	{
	}
	template <typename... ArgTypes>
	explicit TOptional(EInPlace, ArgTypes&&... Args)
		: bIsSet(true)
	{
		::new (static_cast<void*>(&Storage)) OptionalType(Forward<ArgTypes>(Args)...);
	}
	TOptional(const TOptional& Other)
		: bIsSet(Other.bIsSet)
	{
		if (bIsSet)
		{
			::new (static_cast<void*>(&Storage)) OptionalType(*Other.Storage.GetTypedPtr());
		}
	}
	TOptional(TOptional&& Other)
		: bIsSet(Other.bIsSet)
	{
		if (bIsSet)
		{
			::new (static_cast<void*>(&Storage)) OptionalType(MoveTempIfPossible(*Other.Storage.GetTypedPtr()));
		}
	}
	~TOptional() { Reset(); }

	TOptional& operator=(const TOptional& Other)
	{
		if (this == &Other)
		{
			return *this;
		}
		if (Other.bIsSet)
		{
			Assign(Other.GetValue());
		}
		else
		{
			Reset();
		}
		return *this;
	}
	TOptional& operator=(TOptional&& Other)
	{
		if (this == &Other)
		{
			return *this;
		}
		if (Other.bIsSet)
		{
			Assign(MoveTempIfPossible(Other.GetValue()));
		}
		else
		{
			Reset();
		}
		return *this;
	}
	TOptional& operator=(const OptionalType& InValue)
	{
		Assign(InValue);
		return *this;
	}
	TOptional& operator=(OptionalType&& InValue)
	{
		Assign(MoveTempIfPossible(InValue));
		return *this;
	}

	void Reset()
	{
		if (bIsSet)
		{
			bIsSet = false;
			DestructItem(Storage.GetTypedPtr());
		}
	}
	template <typename... ArgsType>
	OptionalType& Emplace(ArgsType&&... Args)
	{
		Reset();
		OptionalType* const Result = ::new (static_cast<void*>(&Storage)) OptionalType(Forward<ArgsType>(Args)...);
		bIsSet = true;
		return *Result;
	}

	bool IsSet() const { return bIsSet; }
	explicit operator bool() const { return bIsSet; }
	OptionalType& GetValue()
	{
		checkf(bIsSet, TEXT("GetValue() of an optional that has none; ask IsSet() or use Get(Default)"));
		return *Storage.GetTypedPtr();
	}
	const OptionalType& GetValue() const { return const_cast<TOptional*>(this)->GetValue(); }
	OptionalType* operator->() { return &GetValue(); }
	const OptionalType* operator->() const { return &GetValue(); }
	OptionalType& operator*() { return GetValue(); }
	const OptionalType& operator*() const { return GetValue(); }
	const OptionalType& Get(const OptionalType& DefaultValue UE_LIFETIMEBOUND) const
	{
		return bIsSet ? *Storage.GetTypedPtr() : DefaultValue;
	}
	OptionalType* GetPtrOrNull() { return bIsSet ? Storage.GetTypedPtr() : nullptr; }
	const OptionalType* GetPtrOrNull() const { return bIsSet ? Storage.GetTypedPtr() : nullptr; }

	friend bool operator==(const TOptional& A, const TOptional& B)
	{
		return A.bIsSet == B.bIsSet && (!A.bIsSet || A.GetValue() == B.GetValue());
	}
	friend bool operator==(const TOptional& A, const OptionalType& Value) { return A.bIsSet && A.GetValue() == Value; }
	friend bool operator==(const TOptional& A, FNullOpt) { return !A.bIsSet; }
	friend uint32 GetTypeHash(const TOptional& Optional) { return Optional.bIsSet ? GetTypeHash(Optional.GetValue()) : 0; }
	friend FArchive& operator<<(FArchive& Ar, TOptional& Optional)
	{
		bool bOptionalIsSet = Optional.bIsSet;
		Ar << bOptionalIsSet;
		if (Ar.IsLoading())
		{
			Optional.Reset();
			if (bOptionalIsSet && !Ar.IsError())
			{
				Ar << Optional.Emplace();
			}
		}
		else if (bOptionalIsSet)
		{
			Ar << Optional.GetValue();
		}
		return Ar;
	}

private:
	template <typename ValueType>
	void Assign(ValueType&& InValue)
	{
		if (bIsSet && &InValue == Storage.GetTypedPtr())
		{
			return;
		}
		Reset();
		::new (static_cast<void*>(&Storage)) OptionalType(Forward<ValueType>(InValue));
		bIsSet = true;
	}

	TTypeCompatibleBytes<OptionalType> Storage;
	bool bIsSet;
};

template <typename T>
TOptional(T) -> TOptional<T>;
