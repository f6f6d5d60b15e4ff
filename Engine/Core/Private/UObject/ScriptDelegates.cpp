#include "UObject/ScriptDelegates.h"

#include "Misc/AssertionMacros.h"
#include "Serialization/Archive.h"

bool FScriptDelegate::IsBound() const
{
	return !FunctionName.IsNone() && UE::Core::DelegateObjectHasFunction(GetUObject(), FunctionName);
}

void FScriptDelegate::Process(void* Parameters) const
{
	const bool bCalled = UE::Core::CallDelegateObjectFunction(GetUObject(), FunctionName, Parameters);
	checkf(bCalled, TEXT("A dynamic delegate was executed that is not bound: function '%s'"), *FunctionName.ToString());
}

FArchive& operator<<(FArchive& Ar, FScriptDelegate& Delegate)
{
	UObject* Object = Delegate.GetUObject();
	FName FunctionName = Delegate.FunctionName;
	Ar << Object << FunctionName;
	if (Ar.IsLoading())
	{
		Delegate.BindUFunction(Object, FunctionName);
	}
	return Ar;
}

bool FMulticastScriptDelegate::IsBound() const
{
	return InvocationList.ContainsByPredicate([](const FScriptDelegate& Delegate)
		{ return Delegate.IsBound(); });
}

void FMulticastScriptDelegate::RemoveAll(const UObject* Object)
{
	InvocationList.RemoveAll([Object](const FScriptDelegate& Delegate)
		{ return Delegate.IsBoundToObject(Object) || Delegate.IsCompactable(); });
}

TArray<UObject*> FMulticastScriptDelegate::GetAllObjects() const
{
	TArray<UObject*> Result;
	for (const FScriptDelegate& Delegate : InvocationList)
	{
		if (UObject* const Object = Delegate.GetUObject())
		{
			Result.Add(Object);
		}
	}
	return Result;
}

void FMulticastScriptDelegate::Process(void* Parameters) const
{
	const TArray<FScriptDelegate> Copy = InvocationList;
	for (const FScriptDelegate& Delegate : Copy)
	{
		// One that an earlier call removed or whose object it ended must not be called.
		if (InvocationList.Contains(Delegate) && Delegate.IsBound())
		{
			Delegate.ProcessDelegate<UObject>(Parameters);
		}
	}
}

FArchive& operator<<(FArchive& Ar, FMulticastScriptDelegate& Delegate)
{
	return Ar << Delegate.InvocationList;
}

FName UE::Core::Private::GetFunctionNameOfMethod(const TCHAR* MethodExpression)
{
	FString Name;
	const bool bQualified = FString(MethodExpression).Split(TEXT("::"), nullptr, &Name, ESearchCase::CaseSensitive, ESearchDir::FromEnd);
	checkf(bQualified, TEXT("A dynamic delegate takes a method as &Class::Method"));
	return FName(*Name.TrimEnd());
}
