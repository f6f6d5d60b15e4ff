#pragma once

#include "Containers/Array.h"
#include "CoreTypes.h"
#include "Delegates/DelegateInstances.h"
#include "Delegates/IDelegateInstance.h"
#include "Misc/AssertionMacros.h"
#include "Templates/SharedPointer.h"
#include "Templates/UnrealTemplate.h"
#include "UObject/NameTypes.h"
#include "UObject/ScriptDelegates.h"

#include <type_traits>

struct FDefaultDelegateUserPolicy
{
};
struct FDefaultTSDelegateUserPolicy
{
};

namespace DelegatesInternal = UE::Core::Private::Delegates;

template <class DelegateSignature, class UserPolicy = FDefaultDelegateUserPolicy>
class TDelegate;
template <class DelegateSignature, class UserPolicy = FDefaultDelegateUserPolicy>
class TMulticastDelegate;

/**
 * A callable bound to a function, a lambda or an object's method, or nothing. Bindings to shared pointers and objects are weak:
 * the delegate becomes unbound with the object's end. Further arguments of a binding are kept and passed after the call's own.
 * Copies share one binding.
 */
template <class RetValType, class... ParamTypes, class UserPolicy>
class TDelegate<RetValType(ParamTypes...), UserPolicy>
{
	using FInstance = DelegatesInternal::TInstance<RetValType, ParamTypes...>;
	template <class... VarTypes>
	using TFunctionPtr = RetValType (*)(ParamTypes..., std::decay_t<VarTypes>...);
	template <class UserClass, class... VarTypes>
	using TMethod = RetValType (UserClass::*)(ParamTypes..., std::decay_t<VarTypes>...);
	template <class UserClass, class... VarTypes>
	using TConstMethod = RetValType (UserClass::*)(ParamTypes..., std::decay_t<VarTypes>...) const;

public:
	using RegistrationType = TDelegate;
	using TFuncType = RetValType(ParamTypes...);

	TDelegate(std::nullptr_t = nullptr) {}

	template <class... VarTypes>
	[[nodiscard]] static TDelegate CreateStatic(std::type_identity_t<TFunctionPtr<VarTypes...>> Func, VarTypes&&... Vars)
	{
		return Make(DelegatesInternal::FNoGuard(), Func, Forward<VarTypes>(Vars)...);
	}

	template <class FunctorType, class... VarTypes>
	[[nodiscard]] static TDelegate CreateLambda(FunctorType&& Functor, VarTypes&&... Vars)
	{
		return Make(DelegatesInternal::FNoGuard(), Forward<FunctorType>(Functor), Forward<VarTypes>(Vars)...);
	}

	/** The lambda is called only while Object lives. */
	template <class UserClass, class FunctorType, class... VarTypes>
	[[nodiscard]] static TDelegate CreateWeakLambda(UserClass* Object, FunctorType&& Functor, VarTypes&&... Vars)
	{
		return Make(DelegatesInternal::FObjectGuard(Object), Forward<FunctorType>(Functor), Forward<VarTypes>(Vars)...);
	}

	/** Object must outlive the binding. */
	template <class UserClass, class... VarTypes>
	[[nodiscard]] static TDelegate CreateRaw(UserClass* Object,
		std::type_identity_t<TMethod<UserClass, VarTypes...>> Method, VarTypes&&... Vars)
	{
		return MakeMethod(DelegatesInternal::FRawGuard(Object), Object, Method, Forward<VarTypes>(Vars)...);
	}
	template <class UserClass, class... VarTypes>
	[[nodiscard]] static TDelegate CreateRaw(const UserClass* Object,
		std::type_identity_t<TConstMethod<UserClass, VarTypes...>> Method, VarTypes&&... Vars)
	{
		return MakeMethod(DelegatesInternal::FRawGuard(Object), Object, Method, Forward<VarTypes>(Vars)...);
	}

	/** Weak. Object derives from TSharedFromThis and is held by a shared pointer already. */
	template <class UserClass, class... VarTypes>
	[[nodiscard]] static TDelegate CreateSP(UserClass* Object,
		std::type_identity_t<TMethod<UserClass, VarTypes...>> Method, VarTypes&&... Vars)
	{
		return MakeMethod(DelegatesInternal::MakeSharedGuard(Object->AsShared(), Object), Object, Method, Forward<VarTypes>(Vars)...);
	}
	template <class UserClass, class... VarTypes>
	[[nodiscard]] static TDelegate CreateSP(const UserClass* Object,
		std::type_identity_t<TConstMethod<UserClass, VarTypes...>> Method, VarTypes&&... Vars)
	{
		return MakeMethod(DelegatesInternal::MakeSharedGuard(Object->AsShared(), Object), Object, Method, Forward<VarTypes>(Vars)...);
	}
	template <class UserClass, ESPMode Mode, class... VarTypes>
	[[nodiscard]] static TDelegate CreateSP(const TSharedRef<UserClass, Mode>& Object,
		std::type_identity_t<TMethod<UserClass, VarTypes...>> Method, VarTypes&&... Vars)
	{
		return MakeMethod(DelegatesInternal::MakeSharedGuard(Object, &Object.Get()), &Object.Get(), Method, Forward<VarTypes>(Vars)...);
	}
	template <class UserClass, ESPMode Mode, class... VarTypes>
	[[nodiscard]] static TDelegate CreateSP(const TSharedRef<UserClass, Mode>& Object,
		std::type_identity_t<TConstMethod<UserClass, VarTypes...>> Method, VarTypes&&... Vars)
	{
		return MakeMethod(DelegatesInternal::MakeSharedGuard(Object, &Object.Get()), &Object.Get(), Method, Forward<VarTypes>(Vars)...);
	}
	template <class... ArgTypes>
	[[nodiscard]] static TDelegate CreateThreadSafeSP(ArgTypes&&... Args)
	{
		return CreateSP(Forward<ArgTypes>(Args)...);
	}

	/** The lambda is called only while the shared object lives, and holds it during the call. */
	template <class UserClass, class FunctorType, class... VarTypes>
	[[nodiscard]] static TDelegate CreateSPLambda(UserClass* Object, FunctorType&& Functor, VarTypes&&... Vars)
	{
		return Make(
			DelegatesInternal::MakeSharedGuard(Object->AsShared(), Object), Forward<FunctorType>(Functor), Forward<VarTypes>(Vars)...);
	}
	template <class UserClass, ESPMode Mode, class FunctorType, class... VarTypes>
	[[nodiscard]] static TDelegate CreateSPLambda(const TSharedRef<UserClass, Mode>& Object, FunctorType&& Functor, VarTypes&&... Vars)
	{
		return Make(DelegatesInternal::MakeSharedGuard(Object, &Object.Get()), Forward<FunctorType>(Functor), Forward<VarTypes>(Vars)...);
	}

	/** Weak. */
	template <class UserClass, class... VarTypes>
	[[nodiscard]] static TDelegate CreateUObject(UserClass* Object,
		std::type_identity_t<TMethod<UserClass, VarTypes...>> Method, VarTypes&&... Vars)
	{
		return MakeMethod(DelegatesInternal::FObjectGuard(Object), Object, Method, Forward<VarTypes>(Vars)...);
	}
	template <class UserClass, class... VarTypes>
	[[nodiscard]] static TDelegate CreateUObject(const UserClass* Object,
		std::type_identity_t<TConstMethod<UserClass, VarTypes...>> Method, VarTypes&&... Vars)
	{
		return MakeMethod(DelegatesInternal::FObjectGuard(Object), Object, Method, Forward<VarTypes>(Vars)...);
	}
	template <class UserClass, class... ArgTypes>
	[[nodiscard]] static TDelegate CreateWeakLambda(const TObjectPtr<UserClass>& Object, ArgTypes&&... Args)
	{
		return CreateWeakLambda(static_cast<UserClass*>(Object), Forward<ArgTypes>(Args)...);
	}
	template <class UserClass, class... ArgTypes>
	[[nodiscard]] static TDelegate CreateUObject(const TObjectPtr<UserClass>& Object, ArgTypes&&... Args)
	{
		return CreateUObject(static_cast<UserClass*>(Object), Forward<ArgTypes>(Args)...);
	}

	/** Weak; calls the reflected function of that name. */
	template <class UObjectTemplate>
	[[nodiscard]] static TDelegate CreateUFunction(UObjectTemplate* Object, const FName& FunctionName)
	{
		const DelegatesInternal::FObjectGuard Guard(Object);
		return Make(Guard, DelegatesInternal::TScriptCall<RetValType, ParamTypes...>{Object, FunctionName});
	}

	template <class... ArgTypes>
	void BindStatic(ArgTypes&&... Args)
	{
		*this = CreateStatic(Forward<ArgTypes>(Args)...);
	}
	template <class... ArgTypes>
	void BindLambda(ArgTypes&&... Args)
	{
		*this = CreateLambda(Forward<ArgTypes>(Args)...);
	}
	template <class... ArgTypes>
	void BindWeakLambda(ArgTypes&&... Args)
	{
		*this = CreateWeakLambda(Forward<ArgTypes>(Args)...);
	}
	template <class... ArgTypes>
	void BindRaw(ArgTypes&&... Args)
	{
		*this = CreateRaw(Forward<ArgTypes>(Args)...);
	}
	template <class... ArgTypes>
	void BindSP(ArgTypes&&... Args)
	{
		*this = CreateSP(Forward<ArgTypes>(Args)...);
	}
	template <class... ArgTypes>
	void BindSPLambda(ArgTypes&&... Args)
	{
		*this = CreateSPLambda(Forward<ArgTypes>(Args)...);
	}
	template <class... ArgTypes>
	void BindThreadSafeSP(ArgTypes&&... Args)
	{
		*this = CreateThreadSafeSP(Forward<ArgTypes>(Args)...);
	}
	template <class... ArgTypes>
	void BindUObject(ArgTypes&&... Args)
	{
		*this = CreateUObject(Forward<ArgTypes>(Args)...);
	}
	template <class... ArgTypes>
	void BindUFunction(ArgTypes&&... Args)
	{
		*this = CreateUFunction(Forward<ArgTypes>(Args)...);
	}

	/** The delegate must be bound. */
	RetValType Execute(ParamTypes... Params) const
	{
		// The copy keeps the binding, which the callee may undo, until the call is over.
		const TSharedPtr<FInstance> Kept = Instance;
		checkf(Kept.IsValid(), TEXT("Execute() on an unbound delegate"));
		return Kept->Execute(Forward<ParamTypes>(Params)...);
	}

	/** Calls when bound, and says whether it did. */
	bool ExecuteIfBound(ParamTypes... Params) const
		requires std::is_void_v<RetValType>
	{
		const TSharedPtr<FInstance> Kept = Instance;
		return Kept.IsValid() && Kept->ExecuteIfSafe(Forward<ParamTypes>(Params)...);
	}

	bool IsBound() const { return Instance.IsValid() && Instance->IsSafeToExecute(); }
	void Unbind() { Instance.Reset(); }
	/** The object of a raw, shared or weak object binding. */
	bool IsBoundToObject(const void* Object) const
	{
		return Instance.IsValid() && Object != nullptr && Instance->GetObjectAddress() == Object;
	}
	UObject* GetUObject() const { return Instance.IsValid() ? Instance->GetUObject() : nullptr; }
	FDelegateHandle GetHandle() const { return Instance.IsValid() ? Instance->Handle : FDelegateHandle(); }

private:
	template <class Guard, class FunctorType, class... VarTypes>
	static TDelegate Make(Guard&& InGuard, FunctorType&& Functor, VarTypes&&... Vars)
	{
		using FVars = std::tuple<std::decay_t<VarTypes>...>;
		using FBound = DelegatesInternal::TBoundInstance<std::decay_t<Guard>, std::decay_t<FunctorType>, FVars, RetValType, ParamTypes...>;
		TDelegate Result;
		Result.Instance = MakeShared<FBound>(Forward<Guard>(InGuard), Forward<FunctorType>(Functor), FVars(Forward<VarTypes>(Vars)...));
		return Result;
	}

	template <class Guard, class ObjectType, class MethodType, class... VarTypes>
	static TDelegate MakeMethod(Guard&& InGuard, ObjectType* Object, MethodType Method, VarTypes&&... Vars)
	{
		check(Method != nullptr);
		return Make(
			Forward<Guard>(InGuard), DelegatesInternal::TMethodCall<ObjectType, MethodType>{Object, Method}, Forward<VarTypes>(Vars)...);
	}

	TSharedPtr<FInstance> Instance;
};

/**
 * A list of delegates that are called together, the last one added first. The list may be changed and even destroyed by those that it
 * calls: what is removed is not called any more, what is added is first called by the next broadcast.
 */
template <class... ParamTypes, class UserPolicy>
class TMulticastDelegate<void(ParamTypes...), UserPolicy>
{
public:
	using FDelegate = TDelegate<void(ParamTypes...), UserPolicy>;
	using RegistrationType = TMulticastDelegate;

	TMulticastDelegate() = default;
	TMulticastDelegate(const TMulticastDelegate& Other) { *this = Other; }
	TMulticastDelegate(TMulticastDelegate&&) = default;
	TMulticastDelegate& operator=(TMulticastDelegate&&) = default;
	TMulticastDelegate& operator=(const TMulticastDelegate& Other)
	{
		if (this != &Other)
		{
			List.Reset();
			if (Other.List.IsValid())
			{
				List = MakeShared<FList>();
				List->Delegates = Other.List->Delegates;
			}
		}
		return *this;
	}

	/** An unbound delegate is not added: the handle is then invalid. */
	FDelegateHandle Add(const FDelegate& Delegate)
	{
		const FDelegateHandle Handle = Delegate.GetHandle();
		if (Handle.IsValid())
		{
			if (!List.IsValid())
			{
				List = MakeShared<FList>();
			}
			List->Compact();
			List->Delegates.Add(Delegate);
		}
		return Handle;
	}

	template <class... ArgTypes>
	FDelegateHandle AddStatic(ArgTypes&&... Args)
	{
		return Add(FDelegate::CreateStatic(Forward<ArgTypes>(Args)...));
	}
	template <class... ArgTypes>
	FDelegateHandle AddLambda(ArgTypes&&... Args)
	{
		return Add(FDelegate::CreateLambda(Forward<ArgTypes>(Args)...));
	}
	template <class... ArgTypes>
	FDelegateHandle AddWeakLambda(ArgTypes&&... Args)
	{
		return Add(FDelegate::CreateWeakLambda(Forward<ArgTypes>(Args)...));
	}
	template <class... ArgTypes>
	FDelegateHandle AddRaw(ArgTypes&&... Args)
	{
		return Add(FDelegate::CreateRaw(Forward<ArgTypes>(Args)...));
	}
	template <class... ArgTypes>
	FDelegateHandle AddSP(ArgTypes&&... Args)
	{
		return Add(FDelegate::CreateSP(Forward<ArgTypes>(Args)...));
	}
	template <class... ArgTypes>
	FDelegateHandle AddSPLambda(ArgTypes&&... Args)
	{
		return Add(FDelegate::CreateSPLambda(Forward<ArgTypes>(Args)...));
	}
	template <class... ArgTypes>
	FDelegateHandle AddThreadSafeSP(ArgTypes&&... Args)
	{
		return Add(FDelegate::CreateThreadSafeSP(Forward<ArgTypes>(Args)...));
	}
	template <class... ArgTypes>
	FDelegateHandle AddUObject(ArgTypes&&... Args)
	{
		return Add(FDelegate::CreateUObject(Forward<ArgTypes>(Args)...));
	}
	template <class... ArgTypes>
	FDelegateHandle AddUFunction(ArgTypes&&... Args)
	{
		return Add(FDelegate::CreateUFunction(Forward<ArgTypes>(Args)...));
	}

	/** Whether there was such a binding. */
	bool Remove(FDelegateHandle Handle)
	{
		return Handle.IsValid() && RemoveIf([&Handle](const FDelegate& Delegate)
									   { return Delegate.GetHandle() == Handle; }) > 0;
	}

	/** Removes the bindings to one object; lambdas without an object stay. Answers how many. */
	int32 RemoveAll(const void* Object)
	{
		return RemoveIf([Object](const FDelegate& Delegate)
			{ return Delegate.IsBoundToObject(Object); });
	}

	void Clear()
	{
		RemoveIf([](const FDelegate&)
			{ return true; });
	}

	bool IsBound() const
	{
		return List.IsValid() && List->Delegates.ContainsByPredicate([](const FDelegate& Delegate)
									 { return Delegate.IsBound(); });
	}
	bool IsBoundToObject(const void* Object) const
	{
		const auto IsToObject = [Object](const FDelegate& Delegate)
		{ return Delegate.IsBoundToObject(Object); };
		return List.IsValid() && List->Delegates.ContainsByPredicate(IsToObject);
	}

	void Broadcast(ParamTypes... Params) const
	{
		const TSharedPtr<FList> Kept = List;
		if (!Kept.IsValid())
		{
			return;
		}
		++Kept->NumBroadcasts;
		for (int32 Index = Kept->Delegates.Num() - 1; Index >= 0; --Index)
		{
			const FDelegate Delegate = Kept->Delegates[Index];
			Delegate.ExecuteIfBound(Params...);
		}
		--Kept->NumBroadcasts;
		Kept->Compact();
	}

private:
	struct FList
	{
		TArray<FDelegate> Delegates;
		int32 NumBroadcasts = 0;

		/** A running broadcast counts by index, so that places stay until it is over. */
		void Compact()
		{
			if (NumBroadcasts == 0)
			{
				Delegates.RemoveAll([](const FDelegate& Delegate)
					{ return !Delegate.IsBound(); });
			}
		}
	};

	template <class PredicateType>
	int32 RemoveIf(PredicateType Predicate)
	{
		int32 NumRemoved = 0;
		if (const TSharedPtr<FList> Kept = List; Kept.IsValid())
		{
			// The bindings are freed after the list is whole again: their destructors may come back to it.
			TArray<FDelegate> Removed;
			for (FDelegate& Delegate : Kept->Delegates)
			{
				if (Predicate(AsConst(Delegate)))
				{
					Removed.Add(MoveTemp(Delegate));
					Delegate.Unbind();
					++NumRemoved;
				}
			}
			Kept->Compact();
		}
		return NumRemoved;
	}

	TSharedPtr<FList> List;
};

#include "Delegates/DelegateCombinations.h"

DECLARE_DELEGATE(FSimpleDelegate);
DECLARE_MULTICAST_DELEGATE(FSimpleMulticastDelegate);
DECLARE_TS_MULTICAST_DELEGATE(FTSSimpleMulticastDelegate);
