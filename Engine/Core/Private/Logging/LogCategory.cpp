#include "Logging/LogCategory.h"

#include "Logging/LogCategoryList.h"

#include <algorithm>
#include <mutex>
#include <vector>

namespace
{
struct FCategoryList
{
	std::mutex Mutex;
	std::vector<FLogCategoryBase*> Categories;
};

/** Never destroyed, because categories are statics of every module and die in any order. */
FCategoryList& GetCategoryList()
{
	static FCategoryList* const List = new FCategoryList();
	return *List;
}
}

FLogCategoryBase::FLogCategoryBase(
	const TCHAR* InCategoryName, ELogVerbosity::Type InDefaultVerbosity, ELogVerbosity::Type InCompileTimeVerbosity)
	: Verbosity(std::min(InDefaultVerbosity, InCompileTimeVerbosity))
	, DefaultVerbosity(InDefaultVerbosity)
	, CompileTimeVerbosity(InCompileTimeVerbosity)
	, CategoryName(InCategoryName)
{
	FCategoryList& List = GetCategoryList();
	const std::lock_guard Lock(List.Mutex);
	List.Categories.push_back(this);
}

FLogCategoryBase::~FLogCategoryBase()
{
	FCategoryList& List = GetCategoryList();
	const std::lock_guard Lock(List.Mutex);
	std::erase(List.Categories, this);
}

void FLogCategoryBase::SetVerbosity(ELogVerbosity::Type InVerbosity)
{
	const uint8 Wanted = InVerbosity & ELogVerbosity::VerbosityMask;
	Verbosity.store(std::min<uint8>(Wanted, CompileTimeVerbosity), std::memory_order_relaxed);
}

void ForEachLogCategory(TFunctionRef<void(FLogCategoryBase&)> Function)
{
	FCategoryList& List = GetCategoryList();
	const std::lock_guard Lock(List.Mutex);
	for (FLogCategoryBase* const Category : List.Categories)
	{
		Function(*Category);
	}
}

bool FLogCategoryBase::SetVerbosityByName(const TCHAR* InCategoryName, ELogVerbosity::Type InVerbosity)
{
	bool bFound = false;
	ForEachLogCategory([&](FLogCategoryBase& Category)
		{
			if (Category.GetCategoryName() == InCategoryName)
			{
				Category.SetVerbosity(InVerbosity);
				bFound = true;
			} });
	return bFound;
}
