#pragma once

#include "CoreTypes.h"
#include "Delegates/DelegateObject.h"
#include "Delegates/IDelegateInstance.h"
#include "Delegates/ScriptFrame.h"
#include "Templates/SharedPointer.h"
#include "UObject/NameTypes.h"

#include <functional>
#include <tuple>
#include <utility>

template <class T>
struct TObjectPtr;

namespace UE::Core::Private::Delegates
{
// A guard knows whether a binding's object still lives. Lock() answers something that is true while it does, and that keeps
// the object through the call where the kind of object allows it.

struct FNoGuard
{
	bool Lock() const { return true; }
	bool IsAlive() const { return true; }
	const void* GetAddress() const { return nullptr; }
	UObject* GetUObject() const { return nullptr; }
};

struct FRawGuard : FNoGuard
{
	explicit FRawGuard(const void* InAddress)
		: Address(InAddress)
	{
	}
	const void* GetAddress() const { return Address; }

	const void* Address;
};

template <class OwnerType, ESPMode Mode>
struct TSharedGuard
{
	TSharedPtr<OwnerType, Mode> Lock() const { return Owner.Pin(); }
	bool IsAlive() const { return Owner.IsValid(); }
	const void* GetAddress() const { return Address; }
	UObject* GetUObject() const { return nullptr; }

	TWeakPtr<OwnerType, Mode> Owner;
	const void* Address;
};

template <class OwnerType, ESPMode Mode>
TSharedGuard<OwnerType, Mode> MakeSharedGuard(const TSharedRef<OwnerType, Mode>& Owner, const void* Address)
{
	return {Owner, Address};
}

class FObjectGuard
{
public:
	explicit FObjectGuard(const UObject* InObject)
		: Object(MakeDelegateObject(InObject))
		, Address(InObject)
	{
	}
	UObject* Lock() const { return ResolveDelegateObject(Object); }
	bool IsAlive() const { return Lock() != nullptr; }
	const void* GetAddress() const { return Address; }
	UObject* GetUObject() const { return Lock(); }

private:
	FDelegateObject Object;
	const void* Address;
};

template <class ObjectType, class MethodType>
struct TMethodCall
{
	ObjectType* Object;
	MethodType Method;

	template <class... ArgTypes>
	decltype(auto) operator()(ArgTypes&&... Args) const
	{
		return (Object->*Method)(std::forward<ArgTypes>(Args)...);
	}
};

template <class Ret, class... ParamTypes>
struct TScriptCall
{
	UObject* Object;
	FName FunctionName;

	Ret operator()(ParamTypes... Params) const
	{
		TScriptFrame<Ret, ParamTypes...> Frame(Params...);
		CallDelegateObjectFunction(Object, FunctionName, Frame.GetMemory());
		Frame.CopyOutParameters(Params...);
		return Frame.TakeReturnValue();
	}
};

/** One binding, whatever it is bound to. */
template <class Ret, class... ParamTypes>
class TInstance
{
public:
	virtual ~TInstance() = default;
	virtual Ret Execute(ParamTypes... Params) = 0;
	/** Only for delegates that return nothing: false when the object has gone. */
	virtual bool ExecuteIfSafe(ParamTypes... Params) = 0;
	virtual bool IsSafeToExecute() const = 0;
	virtual const void* GetObjectAddress() const = 0;
	virtual UObject* GetUObject() const = 0;

	const FDelegateHandle Handle{FDelegateHandle::GenerateNewHandle};
};

template <class GuardType, class FunctorType, class VarTuple, class Ret, class... ParamTypes>
class TBoundInstance final : public TInstance<Ret, ParamTypes...>
{
public:
	template <class GuardArg, class FunctorArg>
	TBoundInstance(GuardArg&& InGuard, FunctorArg&& InFunctor, VarTuple&& InVars)
		: Guard(std::forward<GuardArg>(InGuard))
		, Functor(std::forward<FunctorArg>(InFunctor))
		, Vars(std::move(InVars))
	{
	}

	Ret Execute(ParamTypes... Params) override
	{
		const auto Locked = Guard.Lock();
		checkf(static_cast<bool>(Locked), TEXT("Execute() on a delegate whose object has gone"));
		return Call(std::forward<ParamTypes>(Params)...);
	}

	bool ExecuteIfSafe(ParamTypes... Params) override
	{
		const auto Locked = Guard.Lock();
		if (!static_cast<bool>(Locked))
		{
			return false;
		}
		static_cast<void>(Call(std::forward<ParamTypes>(Params)...));
		return true;
	}

	bool IsSafeToExecute() const override { return Guard.IsAlive(); }
	const void* GetObjectAddress() const override { return Guard.GetAddress(); }
	UObject* GetUObject() const override { return Guard.GetUObject(); }

private:
	Ret Call(ParamTypes... Params)
	{
		const auto CallWithVars = [&](auto&... InVars) -> Ret
		{
			return static_cast<Ret>(std::invoke(Functor, std::forward<ParamTypes>(Params)..., InVars...));
		};
		return std::apply(CallWithVars, Vars);
	}

	GuardType Guard;
	FunctorType Functor;
	VarTuple Vars;
};
}
