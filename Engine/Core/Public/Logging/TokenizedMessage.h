#pragma once

#include "Containers/Array.h"
#include "CoreTypes.h"
#include "Internationalization/Text.h"
#include "Templates/SharedPointer.h"
#include "UObject/NameTypes.h"

/** How bad what a message says is. The values are stored in graphs and shown to callers; zero was a level of its own once. */
namespace EMessageSeverity
{
enum Type : int
{
	Error = 1,
	PerformanceWarning = 2,
	Warning = 3,
	Info = 4
};
}

/** What a piece of a message refers to. */
namespace EMessageToken
{
enum Type
{
	Text,
	Severity,
	Object,
	EdGraph
};
}

/** A piece of a message: its words, or something that the message is about. */
class CORE_API IMessageToken
{
public:
	virtual ~IMessageToken() = default;
	virtual EMessageToken::Type GetType() const = 0;
	const FText& ToText() const { return CachedText; }

protected:
	FText CachedText;
};

/** Words. */
class CORE_API FTextToken : public IMessageToken
{
public:
	static TSharedRef<FTextToken> Create(const FText& InMessage) { return MakeShareable(new FTextToken(InMessage)); }
	virtual EMessageToken::Type GetType() const override { return EMessageToken::Text; }

private:
	explicit FTextToken(const FText& InMessage) { CachedText = InMessage; }
};

/** A message made of pieces, some of which refer to what it is about. */
class CORE_API FTokenizedMessage : public TSharedFromThis<FTokenizedMessage>
{
public:
	static TSharedRef<FTokenizedMessage> Create(EMessageSeverity::Type InSeverity, const FText& InMessageText = FText());

	/** The pieces one after the other, with a space where two would run together. */
	FText ToText() const;
	TSharedRef<FTokenizedMessage> AddToken(const TSharedRef<IMessageToken>& InMessageToken);
	TSharedRef<FTokenizedMessage> AddText(const FText& InText) { return AddToken(FTextToken::Create(InText)); }
	void SetSeverity(const EMessageSeverity::Type InSeverity) { Severity = InSeverity; }
	EMessageSeverity::Type GetSeverity() const { return Severity; }
	static FText GetSeverityText(EMessageSeverity::Type InSeverity);
	const TArray<TSharedRef<IMessageToken>>& GetMessageTokens() const { return MessageTokens; }
	/** Names the kind of message, whatever its words. */
	void SetIdentifier(const FName InIdentifier) { Identifier = InIdentifier; }
	FName GetIdentifier() const { return Identifier; }

private:
	FTokenizedMessage() = default;

	TArray<TSharedRef<IMessageToken>> MessageTokens;
	EMessageSeverity::Type Severity = EMessageSeverity::Info;
	FName Identifier;
};
