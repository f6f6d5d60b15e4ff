#pragma once

#include "CoreMinimal.h"
#include "Dom/JsonObject.h"
#include "VexelSentry.h"

/** A log line that a report remembers. */
struct FSentryBreadcrumb
{
	FString Time;
	ELogVerbosity::Type Verbosity;
	FString Line;
};

/** Reports as the service takes them. */
namespace SentryEvent
{
/** The event of an error, without secrets. */
TSharedRef<FJsonObject> Make(const FVexelError& Error, const FVexelErrorPlace& Place, const TCHAR* Level, const FVexelSentryUser& User,
	const TArray<FSentryBreadcrumb>& Breadcrumbs);

/** An event in its envelope: three lines of JSON. */
FString MakeEnvelope(const TSharedRef<FJsonObject>& Event);

/** "2026-01-31T12:00:00.000Z" */
FString GetTime();
}
