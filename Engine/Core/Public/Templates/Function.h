#pragma once

#include "CoreTypes.h"
#include "Misc/AssertionMacros.h"
#include "Templates/UnrealTemplate.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <new>
#include <type_traits>
#include <utility>

template <class FuncType>
class TFunction;
template <class FuncType>
class TUniqueFunction;
template <class FuncType>
class TFunctionRef;

namespace UE::Core::Private::Function
{
template <class T>
inline constexpr bool TIsFunctionWrapper = false;
template <class FuncType>
inline constexpr bool TIsFunctionWrapper<TFunction<FuncType>> = true;
template <class FuncType>
inline constexpr bool TIsFunctionWrapper<TUniqueFunction<FuncType>> = true;
template <class FuncType>
inline constexpr bool TIsFunctionWrapper<TFunctionRef<FuncType>> = true;

template <class Ret, class Functor, class... ParamTypes>
Ret Invoke(Functor& Func, ParamTypes&&... Params)
{
	if constexpr (std::is_void_v<Ret>)
	{
		std::invoke(Func, std::forward<ParamTypes>(Params)...);
	}
	else
	{
		return std::invoke(Func, std::forward<ParamTypes>(Params)...);
	}
}

template <class Functor, class Ret, class... ParamTypes>
concept CCallable = std::is_invocable_r_v<Ret, Functor&, ParamTypes...>;

/** Whether a functor is one of the nullable kinds and holds nothing. */
template <class Functor>
bool IsEmpty(const Functor& Func)
{
	if constexpr (std::is_pointer_v<Functor> || std::is_member_pointer_v<Functor>)
	{
		return Func == nullptr;
	}
	else if constexpr (TIsFunctionWrapper<Functor>)
	{
		return !Func;
	}
	else
	{
		return false;
	}
}

/** Where a function wrapper keeps its functor: in itself when it is small, else on the heap. */
class FStorage
{
public:
	static constexpr std::size_t InlineSize = 32;
	static constexpr std::size_t InlineAlign = 16;

	struct FOps
	{
		void (*Move)(FStorage& To, FStorage& From); // From's functor is gone afterwards
		void (*Copy)(FStorage& To, const FStorage& From); // null for move-only wrappers
		void (*Destroy)(FStorage& Storage);
	};

	template <class Functor>
	static constexpr bool bInline = sizeof(Functor) <= InlineSize &&
		alignof(Functor) <= InlineAlign&& std::is_nothrow_move_constructible_v<Functor>;

	template <class Functor>
	Functor& Get()
	{
		if constexpr (bInline<Functor>)
		{
			return *std::launder(reinterpret_cast<Functor*>(Buffer));
		}
		else
		{
			return *static_cast<Functor*>(Heap);
		}
	}

	template <class Functor, class ArgType>
	void Construct(ArgType&& Arg)
	{
		if constexpr (bInline<Functor>)
		{
			::new (static_cast<void*>(Buffer)) Functor(std::forward<ArgType>(Arg));
		}
		else
		{
			Heap = new Functor(std::forward<ArgType>(Arg));
		}
	}

	template <class Functor, bool bCopyable>
	static const FOps* GetOps()
	{
		static constexpr FOps Ops = {
			[](FStorage& To, FStorage& From)
			{
				if constexpr (bInline<Functor>)
				{
					To.Construct<Functor>(std::move(From.Get<Functor>()));
					From.Get<Functor>().~Functor();
				}
				else
				{
					To.Heap = From.Heap;
				}
			},
			GetCopy<Functor, bCopyable>(),
			[](FStorage& Storage)
			{
				if constexpr (bInline<Functor>)
				{
					Storage.Get<Functor>().~Functor();
				}
				else
				{
					delete &Storage.Get<Functor>();
				}
			}};
		return &Ops;
	}

private:
	template <class Functor, bool bCopyable>
	static constexpr auto GetCopy() -> void (*)(FStorage&, const FStorage&)
	{
		if constexpr (bCopyable)
		{
			return [](FStorage& To, const FStorage& From)
			{ To.Construct<Functor>(std::as_const(const_cast<FStorage&>(From).Get<Functor>())); };
		}
		else
		{
			return nullptr;
		}
	}

	union
	{
		alignas(InlineAlign) unsigned char Buffer[InlineSize];
		void* Heap;
	};
};

/** What TFunction and TUniqueFunction share: an owned functor, or none. */
template <bool bCopyable, class FuncType>
class TOwned;

template <bool bCopyable, class Ret, class... ParamTypes>
class TOwned<bCopyable, Ret(ParamTypes...)>
{
public:
	TOwned() = default;

	template <class Functor, class ArgType>
	void Assign(ArgType&& Arg)
	{
		if (IsEmpty<Functor>(Arg))
		{
			return;
		}
		Storage.template Construct<Functor>(std::forward<ArgType>(Arg));
		Ops = FStorage::GetOps<Functor, bCopyable>();
		Caller = [](FStorage& InStorage, ParamTypes... Params) -> Ret
		{ return Function::Invoke<Ret>(InStorage.Get<Functor>(), std::forward<ParamTypes>(Params)...); };
	}

	TOwned(TOwned&& Other) noexcept { Take(Other); }
	TOwned(const TOwned& Other) requires bCopyable
		: Ops(Other.Ops),
		  Caller(Other.Caller)
	{
		if (Ops != nullptr)
		{
			Ops->Copy(Storage, Other.Storage);
		}
	}
	TOwned& operator=(TOwned&& Other) noexcept
	{
		if (this != &Other)
		{
			// The old functor goes last: its destructor may come back to this wrapper.
			TOwned Old(std::move(*this));
			Take(Other);
		}
		return *this;
	}
	TOwned& operator=(const TOwned& Other) requires bCopyable
	{
		return *this = TOwned(Other);
	}
	~TOwned() { Reset(); }

	void Reset()
	{
		if (Ops != nullptr)
		{
			const FStorage::FOps* const OldOps = std::exchange(Ops, nullptr);
			Caller = nullptr;
			OldOps->Destroy(Storage);
		}
	}
	bool IsSet() const { return Ops != nullptr; }

	Ret Call(ParamTypes... Params) const
	{
		checkf(Caller != nullptr, TEXT("Attempting to call an unbound TFunction!"));
		return Caller(Storage, std::forward<ParamTypes>(Params)...);
	}

private:
	void Take(TOwned& Other)
	{
		Ops = std::exchange(Other.Ops, nullptr);
		Caller = std::exchange(Other.Caller, nullptr);
		if (Ops != nullptr)
		{
			Ops->Move(Storage, Other.Storage);
		}
	}

	mutable FStorage Storage;
	const FStorage::FOps* Ops = nullptr;
	Ret (*Caller)(FStorage&, ParamTypes...) = nullptr;
};
}

/** A copyable callable, or nothing. Calling an unset one fails a check. */
template <class Ret, class... ParamTypes>
class TFunction<Ret(ParamTypes...)>
{
	using FOwned = UE::Core::Private::Function::TOwned<true, Ret(ParamTypes...)>;

public:
	TFunction(std::nullptr_t = nullptr) {}

	template <class FunctorType, class Functor = std::decay_t<FunctorType>>
	requires(!std::is_same_v<Functor, TFunction> && !std::is_same_v<Functor, std::nullptr_t> &&
		UE::Core::Private::Function::CCallable<Functor, Ret, ParamTypes...>) TFunction(FunctorType&& Func)
	{
		static_assert(std::is_copy_constructible_v<Functor>, "TFunction copies its functor: use TUniqueFunction for one that only moves");
		Owned.template Assign<Functor>(std::forward<FunctorType>(Func));
	}

	TFunction(const TFunction&) = default;
	TFunction(TFunction&&) = default;
	TFunction& operator=(const TFunction&) = default;
	TFunction& operator=(TFunction&&) = default;
	TFunction& operator=(std::nullptr_t)
	{
		Reset();
		return *this;
	}

	Ret operator()(ParamTypes... Params) const { return Owned.Call(std::forward<ParamTypes>(Params)...); }
	explicit operator bool() const { return Owned.IsSet(); }
	bool IsSet() const { return Owned.IsSet(); }
	void Reset() { Owned.Reset(); }

private:
	FOwned Owned;
};

/** A callable that only moves, or nothing. Calling an unset one fails a check. */
template <class Ret, class... ParamTypes>
class TUniqueFunction<Ret(ParamTypes...)>
{
	using FOwned = UE::Core::Private::Function::TOwned<false, Ret(ParamTypes...)>;

public:
	TUniqueFunction(std::nullptr_t = nullptr) {}

	template <class FunctorType, class Functor = std::decay_t<FunctorType>>
	requires(!std::is_same_v<Functor, TUniqueFunction> && !std::is_same_v<Functor, std::nullptr_t> &&
		UE::Core::Private::Function::CCallable<Functor, Ret, ParamTypes...>) TUniqueFunction(FunctorType&& Func)
	{
		Owned.template Assign<Functor>(std::forward<FunctorType>(Func));
	}

	TUniqueFunction(const TUniqueFunction&) = delete;
	TUniqueFunction& operator=(const TUniqueFunction&) = delete;
	TUniqueFunction(TUniqueFunction&&) = default;
	TUniqueFunction& operator=(TUniqueFunction&&) = default;
	TUniqueFunction& operator=(std::nullptr_t)
	{
		Reset();
		return *this;
	}

	Ret operator()(ParamTypes... Params) const { return Owned.Call(std::forward<ParamTypes>(Params)...); }
	explicit operator bool() const { return Owned.IsSet(); }
	bool IsSet() const { return Owned.IsSet(); }
	void Reset() { Owned.Reset(); }

private:
	FOwned Owned;
};

/** A reference to a callable of the caller, valid while that lives; for parameters only. Never empty. */
template <class Ret, class... ParamTypes>
class TFunctionRef<Ret(ParamTypes...)>
{
public:
	template <class FunctorType, class Functor = std::remove_reference_t<FunctorType>>
	requires(!std::is_same_v<std::remove_cv_t<Functor>, TFunctionRef> && !std::is_function_v<Functor> &&
		UE::Core::Private::Function::CCallable<Functor, Ret, ParamTypes...>) TFunctionRef(FunctorType&& Func)
		: Object(const_cast<void*>(static_cast<const void*>(std::addressof(Func))))
		, Caller([](void* InObject, ParamTypes... Params) -> Ret
			  { return UE::Core::Private::Function::Invoke<Ret>(*static_cast<Functor*>(InObject), std::forward<ParamTypes>(Params)...); })
	{
		checkf(!UE::Core::Private::Function::IsEmpty<std::remove_cv_t<Functor>>(Func),
			TEXT("Cannot bind a null or unbound callable to a TFunctionRef"));
	}

	/** A plain function outlives everything, so its address is kept in place of an object. */
	template <class FunctionType>
	requires(std::is_function_v<FunctionType>&& std::is_invocable_r_v<Ret, FunctionType*, ParamTypes...>)
		TFunctionRef(FunctionType& Func)
		: Object(reinterpret_cast<void*>(&Func))
		, Caller([](void* InObject, ParamTypes... Params) -> Ret
			  {
				  FunctionType* Function = reinterpret_cast<FunctionType*>(InObject);
				  return UE::Core::Private::Function::Invoke<Ret>(Function, std::forward<ParamTypes>(Params)...); })
	{
	}

	TFunctionRef(const TFunctionRef&) = default;
	TFunctionRef& operator=(const TFunctionRef&) = delete;

	Ret operator()(ParamTypes... Params) const { return Caller(Object, std::forward<ParamTypes>(Params)...); }

private:
	void* Object;
	Ret (*Caller)(void*, ParamTypes...);
};

template <class FuncType>
bool operator==(const TFunction<FuncType>& Func, std::nullptr_t)
{
	return !Func;
}
template <class FuncType>
bool operator==(const TUniqueFunction<FuncType>& Func, std::nullptr_t)
{
	return !Func;
}
