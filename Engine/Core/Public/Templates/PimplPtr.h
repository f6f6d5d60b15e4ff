#pragma once

#include "Templates/SharedPointer.h"

enum class EPimplPtrMode : uint8
{
	NoCopy,
	DeepCopy
};

/** Sole owner of a type that may be incomplete wherever the pointer is destroyed: it is complete where MakePimpl is called. */
template <class T, EPimplPtrMode Mode = EPimplPtrMode::NoCopy>
class TPimplPtr
{
public:
	TPimplPtr(std::nullptr_t = nullptr) {}
	TPimplPtr(TPimplPtr&&) = default;
	TPimplPtr& operator=(TPimplPtr&&) = default;
	TPimplPtr(const TPimplPtr&) = delete;
	TPimplPtr& operator=(const TPimplPtr&) = delete;

	bool IsValid() const { return Object.IsValid(); }
	explicit operator bool() const { return Object.IsValid(); }
	T* Get() const { return Object.Get(); }
	T* operator->() const { return Object.Get(); }
	T& operator*() const { return *Object; }
	void Reset() { Object.Reset(); }

private:
	template <class U, EPimplPtrMode OtherMode, class... ArgTypes>
	friend TPimplPtr<U, OtherMode> MakePimpl(ArgTypes&&... Args);

	static_assert(Mode == EPimplPtrMode::NoCopy, "Deep-copied implementations are not supported: copy the value itself");

	TSharedPtr<T> Object;
};

template <class T, EPimplPtrMode Mode = EPimplPtrMode::NoCopy, class... ArgTypes>
[[nodiscard]] TPimplPtr<T, Mode> MakePimpl(ArgTypes&&... Args)
{
	TPimplPtr<T, Mode> Result;
	Result.Object = MakeShared<T>(Forward<ArgTypes>(Args)...);
	return Result;
}
