#pragma once

#include "CoreTypes.h"
#include "Misc/Build.h"
#include "String/FormatStringSan.h"

#include <atomic>

/** A failed assertion, as an assertion handler sees it. The strings live for the call alone. */
struct FAssertionFailure
{
	const ANSICHAR* Expression;
	const ANSICHAR* File;
	int32 Line;
	/** The formatted message; empty, never null. */
	const TCHAR* Message;
	/** A failed check ends the program after the handler; a failed ensure goes on. */
	bool bIsFatal;
};

/** Where failed assertions arrive. */
struct CORE_API FDebug
{
	/** Called on the failing thread. Answering true keeps the failure out of standard error and the log. */
	using FAssertHandler = bool (*)(const FAssertionFailure& Failure, void* Context);

	/** Puts a handler in place of the current one; null takes it away. For tests and crash reporting; ours, not the engine's. */
	static void SetAssertHandler(FAssertHandler Handler, void* Context);

	/** Failed ensures since the program started. */
	static SIZE_T GetNumEnsureFailures();

	/** Reports and aborts. */
	[[noreturn]] static void CheckVerifyFailed(const ANSICHAR* Expression, const ANSICHAR* File, int32 Line);

	template <typename... Types>
	[[noreturn]] static void CheckVerifyFailed(
		const ANSICHAR* Expression, const ANSICHAR* File, int32 Line, UE::Core::TCheckedFormatString<TCHAR, Types...> Format, Types... Args)
	{
		const UE::Core::FFormatArgument Arguments[] = {UE::Core::FFormatArgument(Args)..., UE::Core::FFormatArgument()};
		CheckFailedWithMessage(Expression, File, Line, Format.GetFormatString(), Arguments, sizeof...(Types));
	}

	/** Reports and answers false, so that it can stand in an ensure's expression. */
	static bool EnsureFailed(const ANSICHAR* Expression, const ANSICHAR* File, int32 Line);

	template <typename... Types>
	static bool EnsureFailed(
		const ANSICHAR* Expression, const ANSICHAR* File, int32 Line, UE::Core::TCheckedFormatString<TCHAR, Types...> Format, Types... Args)
	{
		const UE::Core::FFormatArgument Arguments[] = {UE::Core::FFormatArgument(Args)..., UE::Core::FFormatArgument()};
		return EnsureFailedWithMessage(Expression, File, Line, Format.GetFormatString(), Arguments, sizeof...(Types));
	}

private:
	[[noreturn]] static void CheckFailedWithMessage(const ANSICHAR* Expression, const ANSICHAR* File, int32 Line, const TCHAR* Format,
		const UE::Core::FFormatArgument* Arguments, int32 NumArguments);
	static bool EnsureFailedWithMessage(const ANSICHAR* Expression, const ANSICHAR* File, int32 Line, const TCHAR* Format,
		const UE::Core::FFormatArgument* Arguments, int32 NumArguments);
};

#define UE_CHECK_IMPL(expr) \
	{ \
		if (UNLIKELY(!(expr))) \
		{ \
			FDebug::CheckVerifyFailed(#expr, __FILE__, __LINE__); \
		} \
	}
#define UE_CHECK_F_IMPL(expr, format, ...) \
	{ \
		if (UNLIKELY(!(expr))) \
		{ \
			FDebug::CheckVerifyFailed(#expr, __FILE__, __LINE__, format __VA_OPT__(, ) __VA_ARGS__); \
		} \
	}

#define check(expr) UE_CHECK_IMPL(expr)
#define checkf(expr, format, ...) UE_CHECK_F_IMPL(expr, format __VA_OPT__(, ) __VA_ARGS__)
#define verify(expr) UE_CHECK_IMPL(expr)
#define verifyf(expr, format, ...) UE_CHECK_F_IMPL(expr, format __VA_OPT__(, ) __VA_ARGS__)
#define checkCode(Code) \
	do \
	{ \
		Code; \
	} while (false)
#define checkNoEntry() FDebug::CheckVerifyFailed("Enclosing block should never be called", __FILE__, __LINE__)
#define unimplemented() FDebug::CheckVerifyFailed("Unimplemented function called", __FILE__, __LINE__)

/** Fails when the enclosing block is entered a second time. */
#define checkNoReentry() \
	{ \
		static bool bBeenHere = false; \
		checkf(!bBeenHere, TEXT("Enclosing block was called more than once")); \
		bBeenHere = true; \
	}

#if DO_GUARD_SLOW
#define checkSlow(expr) UE_CHECK_IMPL(expr)
#define checkfSlow(expr, format, ...) UE_CHECK_F_IMPL(expr, format __VA_OPT__(, ) __VA_ARGS__)
#define verifySlow(expr) UE_CHECK_IMPL(expr)
#else
#define checkSlow(expr) \
	{ \
	}
#define checkfSlow(expr, format, ...) \
	{ \
	}
#define verifySlow(expr) \
	{ \
		if (expr) \
		{ \
		} \
	}
#endif

#define UE_ENSURE_IMPL(bAlways, expr, ...) \
	(LIKELY(!!(expr)) || \
			[&]() -> bool { \
		static std::atomic<bool> bReported{false}; \
		if (bReported.exchange(true) && !(bAlways)) \
		{ \
			return false; \
		} \
		return FDebug::EnsureFailed(#expr, __FILE__, __LINE__ __VA_OPT__(, ) __VA_ARGS__); \
	}())

/** True when the expression is; the first failure at each place is reported, and the program goes on. */
#define ensure(expr) UE_ENSURE_IMPL(false, expr)
#define ensureMsgf(expr, format, ...) UE_ENSURE_IMPL(false, expr, format __VA_OPT__(, ) __VA_ARGS__)
/** As ensure, but every failure is reported. */
#define ensureAlways(expr) UE_ENSURE_IMPL(true, expr)
#define ensureAlwaysMsgf(expr, format, ...) UE_ENSURE_IMPL(true, expr, format __VA_OPT__(, ) __VA_ARGS__)

/** Ends the program with an error that is the surroundings' fault, such as memory that cannot be had. */
#define LowLevelFatalError(format, ...) \
	FDebug::CheckVerifyFailed("LowLevelFatalError", __FILE__, __LINE__, format __VA_OPT__(, ) __VA_ARGS__)
