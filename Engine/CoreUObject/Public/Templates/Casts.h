#pragma once

#include "Templates/SubclassOf.h"
#include "UObject/Class.h"
#include "UObject/ObjectPtr.h"
#include "UObject/WeakObjectPtrTemplates.h"

#include <type_traits>
#include <typeinfo>

/** Ends the program: a checked cast met an object of another class. */
[[noreturn]] COREUOBJECT_API void CastLogError(const FString& FromType, const FString& ToType);

namespace UE::CoreUObject::Private
{
/** A class with a reflected body, as against the I-class of an interface. */
template <typename T>
constexpr bool TIsObjectClass = std::is_base_of_v<UObject, std::remove_const_t<T>>;

template <typename From>
FORCEINLINE const UObject* ToObject(const From* Src)
{
	if constexpr (TIsObjectClass<From>)
	{
		return Src;
	}
	else
	{
		return Src ? Src->_getUObject() : nullptr;
	}
}
}

/** Src as To, or null when it is something else. To may be an object class or the I-class of an interface; so may From. */
template <typename To, typename From>
FORCEINLINE To* Cast(From* Src)
{
	using namespace UE::CoreUObject::Private;
	if (!Src)
	{
		return nullptr;
	}
	UObject* const Object = const_cast<UObject*>(ToObject(Src));
	if (!Object)
	{
		return nullptr;
	}
	if constexpr (TIsObjectClass<To>)
	{
		if constexpr (std::is_base_of_v<To, From>)
		{
			return Src;
		}
		else
		{
			return Object->GetClass()->IsChildOf(std::remove_const_t<To>::StaticClass()) ? static_cast<To*>(Object) : nullptr;
		}
	}
	else
	{
		return static_cast<To*>(Object->GetNativeInterfaceAddress(std::remove_const_t<To>::UClassType::StaticClass()));
	}
}

template <typename To, typename From>
FORCEINLINE std::conditional_t<std::is_const_v<From>, const To*, To*> Cast(const TObjectPtr<From>& Src)
{
	return Cast<std::conditional_t<std::is_const_v<From>, const To, To>>(Src.Get());
}
template <typename To, typename From>
FORCEINLINE To* Cast(const TSubclassOf<From>& Src)
{
	return Cast<To>(static_cast<UObject*>(Src.Get()));
}
template <typename To, typename From>
FORCEINLINE To* Cast(const TWeakObjectPtr<From>& Src)
{
	return Cast<To>(Src.Get());
}
template <typename To, typename From>
requires(!std::is_const_v<To>)
	FORCEINLINE const To* Cast(const From* Src)
{
	return Cast<const To, const From>(Src);
}

namespace ECastCheckedType
{
enum Type
{
	NullAllowed,
	NullChecked
};
}

template <typename To, typename From>
FORCEINLINE auto CastChecked(From* Src, ECastCheckedType::Type CheckType = ECastCheckedType::NullChecked)
{
	auto* const Result = Cast<To>(Src);
	if (!Result && (Src || CheckType == ECastCheckedType::NullChecked))
	{
		CastLogError(Src ? GetFullNameSafe(static_cast<const UObjectBaseUtility*>(UE::CoreUObject::Private::ToObject(Src)))
						 : FString(TEXT("nullptr")),
			FString(ANSI_TO_TCHAR(typeid(To).name())));
	}
	return Result;
}
template <typename To, typename From>
FORCEINLINE auto CastChecked(const TObjectPtr<From>& Src, ECastCheckedType::Type CheckType = ECastCheckedType::NullChecked)
{
	return CastChecked<To>(Src.Get(), CheckType);
}
template <typename To, typename From>
FORCEINLINE auto CastChecked(const TSubclassOf<From>& Src, ECastCheckedType::Type CheckType = ECastCheckedType::NullChecked)
{
	return CastChecked<To>(static_cast<UObject*>(Src.Get()), CheckType);
}

/** Src as T when T is exactly its class. */
template <typename T>
FORCEINLINE T* ExactCast(UObject* Src)
{
	return Src && Src->GetClass() == T::StaticClass() ? static_cast<T*>(Src) : nullptr;
}
template <typename T>
FORCEINLINE const T* ExactCast(const UObject* Src)
{
	return Src && Src->GetClass() == T::StaticClass() ? static_cast<const T*>(Src) : nullptr;
}

template <typename T>
struct TIsIInterface
{
	static constexpr bool Value = !std::is_base_of_v<UObject, T> && requires { typename T::UClassType; };
};
