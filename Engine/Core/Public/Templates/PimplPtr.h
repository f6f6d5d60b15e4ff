#pragma once

#include "Templates/SharedPointer.h"

enum class EPimplPtrMode : uint8
{
	NoCopy,
	/** A copy of the pointer owns a copy of the object. */
	DeepCopy
};

namespace UE::Core::Private
{
template <class T, EPimplPtrMode Mode>
struct TPimplHolder
{
	TPimplHolder() = default;
	TPimplHolder(TPimplHolder&&) = default;
	TPimplHolder& operator=(TPimplHolder&&) = default;

	template <class... ArgTypes>
	void Make(ArgTypes&&... Args)
	{
		Object = MakeShared<T>(Forward<ArgTypes>(Args)...);
	}

	TSharedPtr<T> Object;
};

template <class T>
struct TPimplHolder<T, EPimplPtrMode::DeepCopy>
{
	TPimplHolder() = default;
	TPimplHolder(TPimplHolder&&) = default;
	TPimplHolder& operator=(TPimplHolder&&) = default;
	TPimplHolder(const TPimplHolder& Other)
		: Object(Other.Object.IsValid() ? Other.Copy(*Other.Object) : nullptr)
		, Copy(Other.Copy)
	{
	}
	TPimplHolder& operator=(const TPimplHolder& Other) { return *this = TPimplHolder(Other); }

	template <class... ArgTypes>
	void Make(ArgTypes&&... Args)
	{
		Object = MakeShared<T>(Forward<ArgTypes>(Args)...);
		Copy = [](const T& Source) -> TSharedPtr<T>
		{ return MakeShared<T>(Source); };
	}

	TSharedPtr<T> Object;
	/** Made where the type is complete. */
	TSharedPtr<T> (*Copy)(const T& Source) = nullptr;
};
}

/** Sole owner of a type that may be incomplete wherever the pointer is destroyed or copied: it is complete where MakePimpl is called. */
template <class T, EPimplPtrMode Mode = EPimplPtrMode::NoCopy>
class TPimplPtr
{
public:
	TPimplPtr(std::nullptr_t = nullptr) {}

	bool IsValid() const { return Holder.Object.IsValid(); }
	explicit operator bool() const { return IsValid(); }
	T* Get() const { return Holder.Object.Get(); }
	T* operator->() const { return Holder.Object.Get(); }
	T& operator*() const { return *Holder.Object; }
	void Reset() { Holder.Object.Reset(); }

private:
	template <class U, EPimplPtrMode OtherMode, class... ArgTypes>
	friend TPimplPtr<U, OtherMode> MakePimpl(ArgTypes&&... Args);

	UE::Core::Private::TPimplHolder<T, Mode> Holder;
};

template <class T, EPimplPtrMode Mode = EPimplPtrMode::NoCopy, class... ArgTypes>
[[nodiscard]] TPimplPtr<T, Mode> MakePimpl(ArgTypes&&... Args)
{
	TPimplPtr<T, Mode> Result;
	Result.Holder.Make(Forward<ArgTypes>(Args)...);
	return Result;
}
