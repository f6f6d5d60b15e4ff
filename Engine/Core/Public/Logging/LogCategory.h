#pragma once

#include "CoreTypes.h"
#include "Logging/LogVerbosity.h"
#include "UObject/NameTypes.h"

#include <atomic>

/** A subject that is logged about, with a verbosity that can be changed at run time from any thread. */
struct CORE_API FLogCategoryBase
{
	FLogCategoryBase(const TCHAR* CategoryName, ELogVerbosity::Type DefaultVerbosity, ELogVerbosity::Type CompileTimeVerbosity);
	~FLogCategoryBase();
	UE_NONCOPYABLE(FLogCategoryBase)

	bool IsSuppressed(ELogVerbosity::Type Level) const
	{
		return (Level & ELogVerbosity::VerbosityMask) > Verbosity.load(std::memory_order_relaxed);
	}
	FName GetCategoryName() const { return CategoryName; }
	ELogVerbosity::Type GetVerbosity() const { return static_cast<ELogVerbosity::Type>(Verbosity.load(std::memory_order_relaxed)); }
	ELogVerbosity::Type GetDefaultVerbosity() const { return DefaultVerbosity; }
	/** Never more than the category was compiled with. */
	void SetVerbosity(ELogVerbosity::Type Verbosity);
	ELogVerbosity::Type GetCompileTimeVerbosity() const { return CompileTimeVerbosity; }

	/** Changes a category by name; false when there is none. For settings and command lines; ours, not the engine's. */
	static bool SetVerbosityByName(const TCHAR* CategoryName, ELogVerbosity::Type Verbosity);

private:
	std::atomic<uint8> Verbosity;
	const ELogVerbosity::Type DefaultVerbosity;
	const ELogVerbosity::Type CompileTimeVerbosity;
	FName CategoryName;
};

template <ELogVerbosity::Type InDefaultVerbosity, ELogVerbosity::Type InCompileTimeVerbosity>
struct FLogCategory : public FLogCategoryBase
{
	static constexpr ELogVerbosity::Type CompileTimeVerbosity = InCompileTimeVerbosity;

	explicit FLogCategory(const TCHAR* InCategoryName)
		: FLogCategoryBase(InCategoryName, InDefaultVerbosity, InCompileTimeVerbosity)
	{
	}
};
