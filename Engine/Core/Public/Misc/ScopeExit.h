#pragma once

#include "CoreTypes.h"
#include "Templates/UnrealTemplate.h"

namespace ScopeExitSupport
{
template <typename FuncType>
class TScopeGuard
{
public:
	explicit TScopeGuard(FuncType&& InFunc)
		: Func(static_cast<FuncType&&>(InFunc))
	{
	}
	TScopeGuard(const TScopeGuard&) = delete;
	TScopeGuard& operator=(const TScopeGuard&) = delete;
	~TScopeGuard() { Func(); }

private:
	FuncType Func;
};

struct FScopeGuardSyntaxSupport
{
	template <typename FuncType>
	TScopeGuard<FuncType> operator+(FuncType&& Func)
	{
		return TScopeGuard<FuncType>(Forward<FuncType>(Func));
	}
};
}

/** Runs the block that follows when the scope is left: `ON_SCOPE_EXIT { Close(Handle); };` */
#define ON_SCOPE_EXIT const auto UE_JOIN(ScopeGuard_, __LINE__) = ::ScopeExitSupport::FScopeGuardSyntaxSupport() + [&]()
