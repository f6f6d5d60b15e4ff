#pragma once

#include "CoreMinimal.h"

/** Ends the program with exit status 1 and one line on standard error. Nothing is saved before all content has been made. */
[[noreturn]] void Fail(const FString& Reason);

/** The argument, or an end of the program that says what is missing. */
template <typename T>
T& Require(T* Object, const FString& What)
{
	if (!Object)
	{
		Fail(FString::Printf(TEXT("there is no %s"), *What));
	}
	return *Object;
}
