#include "VexelErrorContext.h"

namespace
{
thread_local TSharedPtr<const FVexelErrorContext::FScope> CurrentScope;
}

FVexelErrorContext FVexelErrorContext::Capture()
{
	FVexelErrorContext Context;
	Context.Innermost = CurrentScope;
	return Context;
}

FString FVexelErrorContext::ToString() const
{
	FString Text;
	for (const FScope* Scope = Innermost.Get(); Scope; Scope = Scope->Outer.Get())
	{
		Text = Text.IsEmpty() ? Scope->Name : Scope->Name + TEXT(" > ") + Text;
	}
	return Text;
}

FVexelErrorContextScope::FVexelErrorContextScope(FString Name, TSharedPtr<const FJsonObject> Data)
	: Previous(CurrentScope)
{
	CurrentScope = MakeShared<FVexelErrorContext::FScope>(FVexelErrorContext::FScope{MoveTemp(Name), MoveTemp(Data), Previous});
}

FVexelErrorContextScope::~FVexelErrorContextScope()
{
	CurrentScope = MoveTemp(Previous);
}

FVexelErrorContextRestore::FVexelErrorContextRestore(const FVexelErrorContext& Context)
	: Previous(MoveTemp(CurrentScope))
{
	CurrentScope = Context.Innermost;
}

FVexelErrorContextRestore::~FVexelErrorContextRestore()
{
	CurrentScope = MoveTemp(Previous);
}
