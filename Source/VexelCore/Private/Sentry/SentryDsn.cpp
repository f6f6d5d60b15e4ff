#include "Sentry/SentryDsn.h"

#include "VexelUrlUtils.h"

TOptional<FSentryDsn> FSentryDsn::Parse(const FString& Text)
{
	FString Scheme;
	FString Rest;
	FString Key;
	FString Place;
	if (!Text.Split(TEXT("://"), &Scheme, &Rest) || !Rest.Split(TEXT("@"), &Key, &Place) || Key.IsEmpty())
	{
		return NullOpt;
	}
	const TVexelExpected<FString> Origin = FVexelUrlUtils::GetOrigin(Scheme + TEXT("://") + Place);
	int32 LastSlash = INDEX_NONE;
	if (Origin.HasError() || !Place.FindLastChar(TEXT('/'), LastSlash) || LastSlash + 1 == Place.Len())
	{
		return NullOpt;
	}
	for (const TCHAR Character : Key + Place.Mid(LastSlash + 1))
	{
		if (Character > 127 || !FChar::IsAlnum(Character))
		{
			return NullOpt;
		}
	}
	FSentryDsn Dsn;
	Dsn.PublicKey = Key;
	Dsn.EnvelopeUrl = Scheme + TEXT("://") + Place.Left(LastSlash) + TEXT("/api") + Place.Mid(LastSlash) + TEXT("/envelope/");
	return Dsn;
}
