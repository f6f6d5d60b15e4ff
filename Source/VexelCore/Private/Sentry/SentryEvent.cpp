#include "Sentry/SentryEvent.h"

#include "Containers/StringConv.h"
#include "Dom/JsonValue.h"
#include "Misc/DateTime.h"
#include "Misc/Guid.h"
#include "VexelCrypto.h"
#include "VexelJson.h"
#include "VexelLog.h"
#include "VexelPluginGenerated.h"
#include "VexelSecrets.h"

namespace
{
/** What one text of a report may take; a hostile service could make a message of megabytes. */
constexpr int32 MaxTextLength = 4096;
constexpr int32 MaxCauses = 16;
constexpr int32 MaxScopes = 16;

FString Clean(const FString& Text)
{
	return FVexelSecrets::Redact(Text).Left(MaxTextLength);
}

TSharedRef<FJsonObject> MakeException(const FVexelError& Error)
{
	const TSharedRef<FJsonObject> Frame = MakeShared<FJsonObject>();
	Frame->SetStringField(TEXT("filename"), Error.GetSourceFile());
	Frame->SetStringField(TEXT("function"), Error.GetFunction().Left(MaxTextLength));
	Frame->SetNumberField(TEXT("lineno"), Error.GetSourceLine());
	const TSharedRef<FJsonObject> Trace = MakeShared<FJsonObject>();
	Trace->SetArrayField(TEXT("frames"), {MakeShared<FJsonValueObject>(Frame)});
	const TSharedRef<FJsonObject> Exception = MakeShared<FJsonObject>();
	Exception->SetStringField(TEXT("type"), Error.GetKind().GetName());
	Exception->SetStringField(TEXT("value"), Clean(Error.ToShortString()));
	Exception->SetObjectField(TEXT("stacktrace"), Trace);
	return Exception;
}

/** The error and its causes; the service wants the oldest first. */
TArray<TSharedPtr<FJsonValue>> MakeExceptions(const FVexelError& Error)
{
	TArray<TSharedPtr<FJsonValue>> Values;
	for (const FVexelError* Each = &Error; Each && Values.Num() < MaxCauses; Each = Each->GetCause())
	{
		Values.Insert(MakeShared<FJsonValueObject>(MakeException(*Each)), 0);
	}
	return Values;
}

/** Each scope with its values as texts. */
TSharedRef<FJsonObject> MakeContexts(const FVexelErrorContext& Context)
{
	const TSharedRef<FJsonObject> Contexts = MakeShared<FJsonObject>();
	int32 NumScopes = 0;
	for (const FVexelErrorContext::FScope* Scope = Context.GetInnermost().Get(); Scope && NumScopes < MaxScopes; Scope = Scope->Outer.Get())
	{
		++NumScopes;
		const TSharedRef<FJsonObject> Values = MakeShared<FJsonObject>();
		FString Text;
		if (Scope->Data && FVexelJsonConversions::JsonToString(ConstCastSharedPtr<FJsonObject>(Scope->Data).ToSharedRef(), Text))
		{
			Values->SetStringField(TEXT("data"), Clean(Text));
		}
		const FString Name = Contexts->HasField(Scope->Name) ? FString::Printf(TEXT("%s %d"), *Scope->Name, NumScopes) : Scope->Name;
		Contexts->SetObjectField(Name, Values);
	}
	return Contexts;
}

TArray<TSharedPtr<FJsonValue>> MakeBreadcrumbs(const TArray<FSentryBreadcrumb>& Breadcrumbs)
{
	TArray<TSharedPtr<FJsonValue>> Values;
	for (const FSentryBreadcrumb& Breadcrumb : Breadcrumbs)
	{
		const TSharedRef<FJsonObject> Object = MakeShared<FJsonObject>();
		Object->SetStringField(TEXT("timestamp"), Breadcrumb.Time);
		Object->SetStringField(TEXT("level"), Breadcrumb.Verbosity <= ELogVerbosity::Error ? TEXT("error") : Breadcrumb.Verbosity == ELogVerbosity::Warning ? TEXT("warning")
																																							: TEXT("info"));
		Object->SetStringField(TEXT("message"), Clean(Breadcrumb.Line));
		Values.Add(MakeShared<FJsonValueObject>(Object));
	}
	return Values;
}

FString ToLine(const TSharedRef<FJsonObject>& Object)
{
	FString Text;
	FVexelJsonConversions::JsonToString(Object, Text);
	return Text;
}
}

TSharedRef<FJsonObject> SentryEvent::Make(const FVexelError& Error, const FVexelErrorPlace& Place, const TCHAR* Level,
	const FVexelSentryUser& User, const TArray<FSentryBreadcrumb>& Breadcrumbs)
{
	FGuid Id;
	FVexelCrypto::SecureRandomGuid(Id);
	const TSharedRef<FJsonObject> Event = MakeShared<FJsonObject>();
	Event->SetStringField(TEXT("event_id"), Id.ToString(EGuidFormats::Digits).ToLower());
	Event->SetStringField(TEXT("timestamp"), GetTime());
	Event->SetStringField(TEXT("platform"), TEXT("native"));
	Event->SetStringField(TEXT("level"), Level);
	Event->SetStringField(TEXT("logger"), TEXT("Client"));
	Event->SetStringField(TEXT("release"), TEXT("vexel@") + FVexelPluginGenerated::GetVersionString());
	Event->SetStringField(
		TEXT("transaction"), FString::Printf(TEXT("%s:%d"), *VexelInternal::GetBareFileName(Place.File), Place.Line));
	if (!User.Id.IsEmpty())
	{
		const TSharedRef<FJsonObject> UserObject = MakeShared<FJsonObject>();
		UserObject->SetStringField(TEXT("id"), User.Id);
		Event->SetObjectField(TEXT("user"), UserObject);
	}
	const TSharedRef<FJsonObject> Exceptions = MakeShared<FJsonObject>();
	Exceptions->SetArrayField(TEXT("values"), MakeExceptions(Error));
	Event->SetObjectField(TEXT("exception"), Exceptions);
	Event->SetObjectField(TEXT("contexts"), MakeContexts(Error.GetContext()));
	Event->SetArrayField(TEXT("breadcrumbs"), MakeBreadcrumbs(Breadcrumbs));
	return Event;
}

FString SentryEvent::MakeEnvelope(const TSharedRef<FJsonObject>& Event)
{
	const FString Payload = ToLine(Event);
	const TSharedRef<FJsonObject> Header = MakeShared<FJsonObject>();
	Header->SetStringField(TEXT("event_id"), Event->GetStringField(TEXT("event_id")));
	Header->SetStringField(TEXT("sent_at"), GetTime());
	const TSharedRef<FJsonObject> Item = MakeShared<FJsonObject>();
	Item->SetStringField(TEXT("type"), TEXT("event"));
	Item->SetNumberField(TEXT("length"), FTCHARToUTF8(*Payload, Payload.Len()).Length());
	Item->SetStringField(TEXT("content_type"), TEXT("application/json"));
	return ToLine(Header) + TEXT("\n") + ToLine(Item) + TEXT("\n") + Payload + TEXT("\n");
}

FString SentryEvent::GetTime()
{
	return FDateTime::UtcNow().ToIso8601();
}
