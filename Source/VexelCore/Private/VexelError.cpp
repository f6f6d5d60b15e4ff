#include "VexelError.h"

#include "Containers/Map.h"
#include "Misc/ScopeLock.h"
#include "VexelLog.h"

namespace
{
/** Causes deeper than this are counted, not printed. */
constexpr int32 MaxPrintedCauses = 16;

struct FKindTable
{
	FCriticalSection Lock;
	TMap<FString, const FVexelErrorKind*> Kinds;
};

/** Kinds are registered from static initialisers too, so the table is made at its first use and outlives every static. */
FKindTable& GetKindTable()
{
	static FKindTable* const Table = new FKindTable;
	return *Table;
}

FString OneLine(const FString& Text)
{
	return Text.Replace(TEXT("\n"), TEXT(", "));
}
}

FVexelErrorKind::FVexelErrorKind(const TCHAR* InName, const FVexelErrorKind* InParent, const TCHAR* InTitle)
	: Name(InName)
	, Parent(InParent)
	, Title(InTitle)
{
}

const FVexelErrorKind& FVexelErrorKind::Register(const TCHAR* Name, const FVexelErrorKind* Parent, const TCHAR* Title)
{
	FKindTable& Table = GetKindTable();
	FScopeLock Guard(&Table.Lock);
	const FVexelErrorKind*& Kind = Table.Kinds.FindOrAdd(FString(Name), nullptr);
	if (!Kind)
	{
		Kind = new FVexelErrorKind(Name, Parent, Title);
	}
	checkf(Kind->Parent == Parent, TEXT("Error kind %s is registered below two parents"), Name);
	return *Kind;
}

bool FVexelErrorKind::IsA(const FVexelErrorKind& Ancestor) const
{
	for (const FVexelErrorKind* Kind = this; Kind; Kind = Kind->Parent)
	{
		if (Kind == &Ancestor)
		{
			return true;
		}
	}
	return false;
}

FVexelError::FVexelError(const FVexelErrorPlace& Place, FString InTitle, FString InMessage, const FVexelError* Cause)
	: FVexelError(StaticKind(), Place, MoveTemp(InTitle), MoveTemp(InMessage), Cause)
{
}

FVexelError::FVexelError(
	const FVexelErrorKind& InKind, const FVexelErrorPlace& Place, FString InTitle, FString InMessage, const FVexelError* Cause)
	: Kind(&InKind)
	, Title(MoveTemp(InTitle))
	, Message(MoveTemp(InMessage))
	, Context(CaptureContext(Place, Cause))
{
}

TSharedRef<const FVexelError::FCapturedContext> FVexelError::CaptureContext(const FVexelErrorPlace& Place, const FVexelError* Cause)
{
	const TSharedRef<FCapturedContext> Captured = MakeShared<FCapturedContext>();
	Captured->SourceFile = VexelInternal::GetBareFileName(Place.File);
	Captured->SourceLine = Place.Line;
	Captured->Function = FString(Place.Function);
	Captured->Scopes = FVexelErrorContext::Capture();
	if (Cause)
	{
		Captured->Cause = MakeShared<const FVexelError>(*Cause);
	}
	return Captured;
}

const FVexelErrorKind& FVexelError::StaticKind()
{
	static const FVexelErrorKind& Kind = FVexelErrorKind::Register(TEXT("FVexelError"), nullptr, TEXT(""));
	return Kind;
}

void FVexelError::AppendContext(FStringView While)
{
	if (!Message.IsEmpty())
	{
		Message += TEXT("\n");
	}
	Message += While;
}

FString FVexelError::ToShortString() const
{
	if (Message.IsEmpty())
	{
		return Title;
	}
	return Title.IsEmpty() ? OneLine(Message) : Title + TEXT(": ") + OneLine(Message);
}

FString FVexelError::ToChainString() const
{
	FString Text;
	int32 NumPrinted = 0;
	for (const FVexelError* Error = this; Error && NumPrinted < MaxPrintedCauses; Error = Error->GetCause())
	{
		Text += (NumPrinted++ == 0 ? TEXT("") : TEXT(": ")) + Error->ToShortString();
	}
	return Text;
}

FString FVexelError::ToString() const
{
	FString Text;
	int32 NumPrinted = 0;
	for (const FVexelError* Error = this; Error; Error = Error->GetCause())
	{
		if (NumPrinted == MaxPrintedCauses)
		{
			Text += TEXT("\n  caused by earlier errors");
			break;
		}
		Text += NumPrinted == 0 ? TEXT("") : TEXT("\n  caused by ");
		Text += Error->ToShortString();
		Text += FString::Printf(TEXT(" [%s at %s:%d]"), *Error->Kind->GetName(), *Error->GetSourceFile(), Error->GetSourceLine());
		++NumPrinted;
	}
	const FString Scopes = GetContext().ToString();
	return Scopes.IsEmpty() ? Text : Text + TEXT("\n  in ") + Scopes;
}
