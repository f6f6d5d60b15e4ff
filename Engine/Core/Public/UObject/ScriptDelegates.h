#pragma once

#include "Containers/Array.h"
#include "Containers/UnrealString.h"
#include "Delegates/DelegateObject.h"
#include "Delegates/ScriptFrame.h"
#include "Templates/TypeHash.h"
#include "UObject/NameTypes.h"

#include <utility>

class FArchive;
class UObject;

/** A weak object and the name of a reflected function of it. The value of a delegate property. */
class FScriptDelegate
{
public:
	void BindUFunction(const UObject* InObject, const FName& InFunctionName)
	{
		Object = UE::Core::MakeDelegateObject(InObject);
		FunctionName = InFunctionName;
	}
	void Unbind()
	{
		Object = UE::Core::FDelegateObject();
		FunctionName = FName();
	}
	void Clear() { Unbind(); }

	/** Whether the object lives and has such a function. */
	CORE_API bool IsBound() const;
	bool IsBoundToObject(const void* InObject) const { return InObject != nullptr && InObject == GetUObject(); }
	/** Whether the object has gone. */
	bool IsCompactable() const { return GetUObject() == nullptr; }
	UObject* GetUObject() const { return UE::Core::ResolveDelegateObject(Object); }
	FName GetFunctionName() const { return FunctionName; }

	/** Parameters as the function's properties are laid out. The delegate must be bound. */
	template <class UObjectTemplate = UObject>
	void ProcessDelegate(void* Parameters) const
	{
		Process(Parameters);
	}

	bool operator==(const FScriptDelegate& Other) const { return Object == Other.Object && FunctionName == Other.FunctionName; }

	friend uint32 GetTypeHash(const FScriptDelegate& Delegate)
	{
		return HashCombine(::GetTypeHash(Delegate.Object.ObjectIndex), GetTypeHash(Delegate.FunctionName));
	}
	/** The object as an object reference, then the name. */
	CORE_API friend FArchive& operator<<(FArchive& Ar, FScriptDelegate& Delegate);

private:
	CORE_API void Process(void* Parameters) const;

	UE::Core::FDelegateObject Object;
	FName FunctionName;
};

/** The value of a multicast delegate property: an ordered list without duplicates. */
class FMulticastScriptDelegate
{
public:
	CORE_API bool IsBound() const;
	bool Contains(const FScriptDelegate& Delegate) const { return InvocationList.Contains(Delegate); }
	bool Contains(const UObject* Object, FName FunctionName) const { return InvocationList.Contains(Make(Object, FunctionName)); }
	void Add(const FScriptDelegate& Delegate) { InvocationList.AddUnique(Delegate); }
	void AddUnique(const FScriptDelegate& Delegate) { InvocationList.AddUnique(Delegate); }
	void Remove(const FScriptDelegate& Delegate)
	{
		InvocationList.RemoveAll([&Delegate](const FScriptDelegate& Other)
			{ return Other == Delegate; });
	}
	void Remove(const UObject* Object, FName FunctionName) { Remove(Make(Object, FunctionName)); }
	CORE_API void RemoveAll(const UObject* Object);
	void Clear() { InvocationList.Empty(); }
	CORE_API TArray<UObject*> GetAllObjects() const;

	/** Calls every function that is still bound. The list may be changed by those called. */
	template <class UObjectTemplate = UObject>
	void ProcessMulticastDelegate(void* Parameters) const
	{
		Process(Parameters);
	}

	bool operator==(const FMulticastScriptDelegate& Other) const { return InvocationList == Other.InvocationList; }
	CORE_API friend FArchive& operator<<(FArchive& Ar, FMulticastScriptDelegate& Delegate);

	TArray<FScriptDelegate> InvocationList;

protected:
	static FScriptDelegate Make(const UObject* Object, FName FunctionName)
	{
		FScriptDelegate Result;
		Result.BindUFunction(Object, FunctionName);
		return Result;
	}

private:
	CORE_API void Process(void* Parameters) const;
};

namespace UE::Core::Private
{
/** "Use" of "&UDoor::Use", as the AddDynamic macros spell it. */
CORE_API FName GetFunctionNameOfMethod(const TCHAR* MethodExpression);
}

#define STATIC_FUNCTION_FNAME(MethodExpression) UE::Core::Private::GetFunctionNameOfMethod(MethodExpression)

template <class RetValType, class... ParamTypes>
class TBaseDynamicDelegate : public FScriptDelegate
{
public:
	TBaseDynamicDelegate() = default;
	explicit TBaseDynamicDelegate(const FScriptDelegate& Delegate)
		: FScriptDelegate(Delegate)
	{
	}

	template <class UserClass>
	void __Internal_BindDynamic(UserClass* Object, RetValType (UserClass::*)(ParamTypes...), const FName& FunctionName)
	{
		BindUFunction(Object, FunctionName);
	}

	RetValType Execute(ParamTypes... Params) const
	{
		UE::Core::TScriptFrame<RetValType, ParamTypes...> Frame(Params...);
		ProcessDelegate<UObject>(Frame.GetMemory());
		Frame.CopyOutParameters(Params...);
		return Frame.TakeReturnValue();
	}

	bool ExecuteIfBound(ParamTypes... Params) const
		requires std::is_void_v<RetValType>
	{
		if (!IsBound())
		{
			return false;
		}
		Execute(std::forward<ParamTypes>(Params)...);
		return true;
	}
};

template <class RetValType, class... ParamTypes>
class TBaseDynamicMulticastDelegate : public FMulticastScriptDelegate
{
public:
	template <class UserClass>
	void __Internal_AddDynamic(UserClass* Object, RetValType (UserClass::*)(ParamTypes...), const FName& FunctionName)
	{
		Add(Make(Object, FunctionName));
	}
	template <class UserClass>
	void __Internal_AddUniqueDynamic(UserClass* Object, RetValType (UserClass::*)(ParamTypes...), const FName& FunctionName)
	{
		AddUnique(Make(Object, FunctionName));
	}
	template <class UserClass>
	void __Internal_RemoveDynamic(UserClass* Object, RetValType (UserClass::*)(ParamTypes...), const FName& FunctionName)
	{
		Remove(Make(Object, FunctionName));
	}
	template <class UserClass>
	bool __Internal_IsAlreadyBound(UserClass* Object, RetValType (UserClass::*)(ParamTypes...), const FName& FunctionName) const
	{
		return Contains(Make(Object, FunctionName));
	}

	void Broadcast(ParamTypes... Params) const
	{
		UE::Core::TScriptFrame<RetValType, ParamTypes...> Frame(Params...);
		ProcessMulticastDelegate<UObject>(Frame.GetMemory());
		Frame.CopyOutParameters(Params...);
	}
};

#define BindDynamic(UserObject, FuncName) __Internal_BindDynamic(UserObject, FuncName, STATIC_FUNCTION_FNAME(TEXT(#FuncName)))
#define AddDynamic(UserObject, FuncName) __Internal_AddDynamic(UserObject, FuncName, STATIC_FUNCTION_FNAME(TEXT(#FuncName)))
#define AddUniqueDynamic(UserObject, FuncName) __Internal_AddUniqueDynamic(UserObject, FuncName, STATIC_FUNCTION_FNAME(TEXT(#FuncName)))
#define RemoveDynamic(UserObject, FuncName) __Internal_RemoveDynamic(UserObject, FuncName, STATIC_FUNCTION_FNAME(TEXT(#FuncName)))
#define IsAlreadyBound(UserObject, FuncName) __Internal_IsAlreadyBound(UserObject, FuncName, STATIC_FUNCTION_FNAME(TEXT(#FuncName)))
