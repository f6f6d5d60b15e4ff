#include "Misc/ScopedSlowTask.h"

#include "CoreGlobals.h"

FScopedSlowTask::FScopedSlowTask(float InAmountOfWork, const FText& InDefaultMessage, bool bInEnabled)
	: TotalAmountOfWork(InAmountOfWork > 0.0f ? InAmountOfWork : 1.0f)
	, DefaultMessage(InDefaultMessage)
	, bEnabled(bInEnabled)
{
	check(!bEnabled || IsInGameThread());
}

FScopedSlowTask::~FScopedSlowTask()
{
	if (bEnabled && bVisible)
	{
		UE_LOG(LogCore, Log, TEXT("%s (100%%)"), *DefaultMessage.ToString());
	}
}

void FScopedSlowTask::EnterProgressFrame(float ExpectedWorkThisFrame, const FText& Text)
{
	CompletedWork += CurrentFrameScope;
	CurrentFrameScope = ExpectedWorkThisFrame;
	const int32 Tenths = static_cast<int32>(CompletedWork * 10.0f / TotalAmountOfWork);
	if (!bEnabled || !bVisible || Tenths == LoggedTenths)
	{
		return;
	}
	LoggedTenths = Tenths;
	UE_LOG(LogCore, Log, TEXT("%s (%d%%)"), *(Text.IsEmpty() ? DefaultMessage : Text).ToString(), Tenths * 10);
}
