#pragma once

#include "CoreMinimal.h"
#include "VexelErrorContext.h"

/** One kind in the tree of error kinds. Kinds are made once, live for the whole process and are compared by address. */
class VEXELCORE_API FVexelErrorKind
{
public:
	/** The kind of that name, made at the first call; a second registration of a name answers the first one's kind. Any thread. */
	static const FVexelErrorKind& Register(const TCHAR* Name, const FVexelErrorKind* Parent, const TCHAR* Title);

	/** "FVexelError_TaskAlreadyRunning" */
	const FString& GetName() const { return Name; }
	/** Null for the root alone. */
	const FVexelErrorKind* GetParent() const { return Parent; }
	/** Title of errors whose raising code gives none; empty where each site gives its own. */
	const FString& GetTitle() const { return Title; }
	/** Whether this is Ancestor or lies below it. */
	bool IsA(const FVexelErrorKind& Ancestor) const;

private:
	FVexelErrorKind(const TCHAR* InName, const FVexelErrorKind* InParent, const TCHAR* InTitle);

	FString Name;
	const FVexelErrorKind* Parent;
	FString Title;
};

/** Where in the source an error was raised. Points at literals. */
struct FVexelErrorPlace
{
	/** Path as the compiler was given it. */
	const ANSICHAR* File;
	int32 Line;
	/** Full signature of the function. */
	const ANSICHAR* Function;
};

#if defined(_MSC_VER)
#define VEXEL_FUNCTION_SIGNATURE __FUNCSIG__
#else
#define VEXEL_FUNCTION_SIGNATURE __PRETTY_FUNCTION__
#endif
#define VEXEL_HERE (FVexelErrorPlace{__FILE__, __LINE__, VEXEL_FUNCTION_SIGNATURE})

/**
 * Why an operation failed: a kind, a short title for display, a message that grows a line for each activity it passes through
 * on its way out ("while loading node type cache"), the place that raised it, and what led to it. A plain value.
 */
class VEXELCORE_API FVexelError
{
public:
	FVexelError(const FVexelErrorPlace& Place, FString Title, FString Message, const FVexelError* Cause = nullptr);

	static const FVexelErrorKind& StaticKind();

	const FVexelErrorKind& GetKind() const { return *Kind; }
	const FString& GetTitle() const { return Title; }
	/** The detail, then the context lines from the innermost to the outermost, each on a line of its own. */
	const FString& GetMessage() const { return Message; }
	/** Bare file name of the raising source, without its extension. */
	const FString& GetSourceFile() const { return Context->SourceFile; }
	int32 GetSourceLine() const { return Context->SourceLine; }
	const FString& GetFunction() const { return Context->Function; }
	/** Scopes that were open where the error was raised. */
	const FVexelErrorContext& GetContext() const { return Context->Scopes; }
	/** The earlier error that this one wraps; null where there is none. */
	const FVexelError* GetCause() const { return Context->Cause.Get(); }

	bool IsA(const FVexelErrorKind& Ancestor) const { return Kind->IsA(Ancestor); }
	template <typename KindType>
	bool IsA() const
	{
		return IsA(KindType::StaticKind());
	}

	/** Whether this error or one of its causes is of the kind. */
	template <typename KindType>
	bool IsCausedBy() const
	{
		for (const FVexelError* Error = this; Error; Error = Error->GetCause())
		{
			if (Error->IsA<KindType>())
			{
				return true;
			}
		}
		return false;
	}

	/** Adds what was being done, a clause that begins with "while". */
	void AppendContext(FStringView While);

	/** Title and message on one line, without causes: for a user. */
	FString ToShortString() const;

	/** The short strings of this error and of its causes, joined with ": ", on one line: for a user who has to act on it. */
	FString ToChainString() const;

	/** The whole chain for a log: title, message, kind and place of this error, then of each cause behind "caused by". */
	FString ToString() const;

protected:
	FVexelError(const FVexelErrorKind& Kind, const FVexelErrorPlace& Place, FString Title, FString Message, const FVexelError* Cause);

private:
	/** What is known when the error is raised and never changes; all copies share it. */
	struct FCapturedContext
	{
		FString SourceFile;
		int32 SourceLine;
		FString Function;
		FVexelErrorContext Scopes;
		TSharedPtr<const FVexelError> Cause;
	};

	static TSharedRef<const FCapturedContext, ESPMode::ThreadSafe> CaptureContext(const FVexelErrorPlace& Place, const FVexelError* Cause);

	const FVexelErrorKind* Kind;
	FString Title;
	FString Message;
	TSharedRef<const FCapturedContext, ESPMode::ThreadSafe> Context;
};

/**
 * Declares one error kind as a type of FVexelError's layout. A kind's constructor takes the kind's own title where the raising
 * code gives none.
 */
#define VEXEL_DECLARE_ERROR_KIND(KindName, ParentName, KindTitle) \
	class KindName : public ParentName \
	{ \
	public: \
		using Super = ParentName; \
		static const FVexelErrorKind& StaticKind() \
		{ \
			static const FVexelErrorKind& Kind = FVexelErrorKind::Register(TEXT(#KindName), &ParentName::StaticKind(), TEXT(KindTitle)); \
			return Kind; \
		} \
		KindName(const FVexelErrorPlace& Place, FString Message, const FVexelError* Cause = nullptr) \
			: Super(StaticKind(), Place, FString(TEXT(KindTitle)), MoveTemp(Message), Cause) \
		{ \
		} \
		KindName(const FVexelErrorPlace& Place, FString Title, FString Message, const FVexelError* Cause = nullptr) \
			: Super(StaticKind(), Place, MoveTemp(Title), MoveTemp(Message), Cause) \
		{ \
		} \
\
	protected: \
		KindName(const FVexelErrorKind& Kind, const FVexelErrorPlace& Place, FString Title, FString Message, const FVexelError* Cause) \
			: Super(Kind, Place, MoveTemp(Title), MoveTemp(Message), Cause) \
		{ \
		} \
	};

/** Raises an error of a kind with the kind's own title: VEXEL_ERROR(FVexelError_ToolNotFound, "Tool '%s' not found", *Name). */
#define VEXEL_ERROR(KindName, Format, ...) KindName(VEXEL_HERE, FString::Printf(TEXT(Format) __VA_OPT__(, ) __VA_ARGS__))

/** The same with a title of its own. */
#define VEXEL_ERROR_TITLED(KindName, Title, Format, ...) \
	KindName(VEXEL_HERE, FString(TEXT(Title)), FString::Printf(TEXT(Format) __VA_OPT__(, ) __VA_ARGS__))

/** The same with the earlier error that led to it. */
#define VEXEL_ERROR_CAUSED(KindName, Cause, Format, ...) \
	KindName(VEXEL_HERE, FString::Printf(TEXT(Format) __VA_OPT__(, ) __VA_ARGS__), &(Cause))
