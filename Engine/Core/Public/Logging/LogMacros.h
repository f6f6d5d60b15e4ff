#pragma once

#include "CoreTypes.h"
#include "Logging/LogCategory.h"
#include "Logging/LogVerbosity.h"
#include "String/FormatStringSan.h"

/** What UE_LOG calls. */
struct CORE_API FMsg
{
	/** Formats and hands the line to GLog. A Fatal line ends the program. */
	static void LogfImpl(const ANSICHAR* File, int32 Line, const FName& Category, ELogVerbosity::Type Verbosity, const TCHAR* Format,
		const UE::Core::FFormatArgument* Arguments, int32 NumArguments);

	template <typename... Types>
	static void Logf(const ANSICHAR* File, int32 Line, const FName& Category, ELogVerbosity::Type Verbosity,
		UE::Core::TCheckedFormatString<TCHAR, Types...> Format, Types... Args)
	{
		const UE::Core::FFormatArgument Arguments[] = {UE::Core::FFormatArgument(Args)..., UE::Core::FFormatArgument()};
		LogfImpl(File, Line, Category, Verbosity, Format.GetFormatString(), Arguments, static_cast<int32>(sizeof...(Types)));
	}
};

#define COMPILED_IN_MINIMUM_VERBOSITY VeryVerbose

#define UE_LOG_ACTIVE(CategoryName, Verbosity) \
	(::ELogVerbosity::Verbosity <= ::ELogVerbosity::COMPILED_IN_MINIMUM_VERBOSITY && \
		::ELogVerbosity::Verbosity <= CategoryName.GetCompileTimeVerbosity() && !CategoryName.IsSuppressed(::ELogVerbosity::Verbosity))

/** Arguments are evaluated only when the line will be written. */
#define UE_LOG(CategoryName, Verbosity, Format, ...) UE_CLOG(true, CategoryName, Verbosity, Format __VA_OPT__(, ) __VA_ARGS__)

#define UE_CLOG(Condition, CategoryName, Verbosity, Format, ...) \
	do \
	{ \
		if (UE_LOG_ACTIVE(CategoryName, Verbosity)) \
		{ \
			if (Condition) \
			{ \
				FMsg::Logf( \
					__FILE__, __LINE__, CategoryName.GetCategoryName(), ::ELogVerbosity::Verbosity, Format __VA_OPT__(, ) __VA_ARGS__); \
			} \
		} \
	} while (false)

#define DECLARE_LOG_CATEGORY_EXTERN(CategoryName, DefaultVerbosity, CompileTimeVerbosity) \
	extern struct FLogCategory##CategoryName \
		: public FLogCategory<::ELogVerbosity::DefaultVerbosity, ::ELogVerbosity::CompileTimeVerbosity> \
	{ \
		FLogCategory##CategoryName() \
			: FLogCategory(TEXT(#CategoryName)) \
		{ \
		} \
	} CategoryName

#define DEFINE_LOG_CATEGORY(CategoryName) FLogCategory##CategoryName CategoryName

#define DEFINE_LOG_CATEGORY_STATIC(CategoryName, DefaultVerbosity, CompileTimeVerbosity) \
	static struct FLogCategory##CategoryName \
		: public FLogCategory<::ELogVerbosity::DefaultVerbosity, ::ELogVerbosity::CompileTimeVerbosity> \
	{ \
		FLogCategory##CategoryName() \
			: FLogCategory(TEXT(#CategoryName)) \
		{ \
		} \
	} CategoryName

#define DECLARE_LOG_CATEGORY_CLASS(CategoryName, DefaultVerbosity, CompileTimeVerbosity) \
	static inline auto CategoryName = \
		FLogCategory<::ELogVerbosity::DefaultVerbosity, ::ELogVerbosity::CompileTimeVerbosity>(TEXT(#CategoryName))
