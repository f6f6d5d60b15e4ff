#include "Lum/Value/LumValueOwner.h"

TVexelExpected<void> ILumValueOwner::Change(
	const FLumValuePlace& Place, EPropertyChangeType::Type Type, TFunctionRef<TVexelExpected<void>()> Work)
{
	if (OpenChange)
	{
		return Work();
	}
	FChange Change{Place, Type};
	OpenChange = &Change;
	TVexelExpected<void> Result = Work();
	OpenChange = nullptr;
	if (!Change.bHasBegun)
	{
		return Result;
	}
	// What was written before Work failed stays, so its end is told all the same.
	TVexelExpected<void> End = OnEnd(Change);
	return Result.HasError() ? MoveTemp(Result) : MoveTemp(End);
}

TVexelExpected<void> ILumValueOwner::BeginWrite()
{
	check(OpenChange);
	if (!OpenChange->bHasBegun)
	{
		VEXEL_TRY_VOID(OnBegin(*OpenChange));
		OpenChange->bHasBegun = true;
	}
	return {};
}
