#pragma once

#include "UObject/UObjectArray.h"
#include "UObject/UObjectGlobals.h"

/**
 * Every object of type T, in the order of the object array. Objects that are made meanwhile may be visited; those given up or
 * being destroyed are not. The default skips class default objects, as the engine's does.
 */
template <class T>
class TObjectIterator
{
public:
	enum EEndTagType
	{
		EndTag
	};

	explicit TObjectIterator(EObjectFlags AdditionalExclusionFlags = RF_ClassDefaultObject, bool bInIncludeDerivedClasses = true,
		EInternalObjectFlags InInternalExclusionFlags = EInternalObjectFlags::None)
		: ExclusionFlags(AdditionalExclusionFlags)
		, InternalExclusionFlags(InInternalExclusionFlags | EInternalObjectFlags::Unreachable |
			  EInternalObjectFlags::PendingConstruction | EInternalObjectFlags::Garbage)
		, bIncludeDerivedClasses(bInIncludeDerivedClasses)
	{
		Advance();
	}
	TObjectIterator(EEndTagType, const TObjectIterator&)
		: Index(MAX_int32)
	{
	}

	void operator++() { Advance(); }
	T* operator*() const { return static_cast<T*>(Current); }
	T* operator->() const { return static_cast<T*>(Current); }
	explicit operator bool() const { return Current != nullptr; }
	bool operator!() const { return Current == nullptr; }
	bool operator==(const TObjectIterator& Other) const { return Current == Other.Current; }

private:
	void Advance()
	{
		Current = nullptr;
		while (++Index < GUObjectArray.GetObjectArrayNum())
		{
			const FUObjectItem& Item = GUObjectArray.IndexToObjectUnsafe(Index);
			UObject* const Candidate = static_cast<UObject*>(Item.Object);
			if (!Candidate || Item.HasAnyFlags(InternalExclusionFlags) || Candidate->HasAnyFlags(ExclusionFlags))
			{
				continue;
			}
			if (bIncludeDerivedClasses ? Candidate->IsA(T::StaticClass()) : Candidate->GetClass() == T::StaticClass())
			{
				Current = Candidate;
				return;
			}
		}
	}

	int32 Index = INDEX_NONE;
	UObject* Current = nullptr;
	EObjectFlags ExclusionFlags = RF_NoFlags;
	EInternalObjectFlags InternalExclusionFlags = EInternalObjectFlags::None;
	bool bIncludeDerivedClasses = true;
};

template <class T>
struct TObjectRange
{
	explicit TObjectRange(EObjectFlags AdditionalExclusionFlags = RF_ClassDefaultObject, bool bIncludeDerivedClasses = true,
		EInternalObjectFlags InInternalExclusionFlags = EInternalObjectFlags::None)
		: First(AdditionalExclusionFlags, bIncludeDerivedClasses, InInternalExclusionFlags)
	{
	}
	TObjectIterator<T> begin() const { return First; }
	TObjectIterator<T> end() const { return TObjectIterator<T>(TObjectIterator<T>::EndTag, First); }

private:
	TObjectIterator<T> First;
};

using FThreadSafeObjectIterator = TObjectIterator<UObject>;
using FRawObjectIterator = TObjectIterator<UObject>;
