#include "Logging/TokenizedMessage.h"

#include "Misc/Char.h"

#define LOCTEXT_NAMESPACE "Core.MessageSeverity"

TSharedRef<FTokenizedMessage> FTokenizedMessage::Create(EMessageSeverity::Type InSeverity, const FText& InMessageText)
{
	const TSharedRef<FTokenizedMessage> Message = MakeShareable(new FTokenizedMessage());
	Message->SetSeverity(InSeverity);
	if (!InMessageText.IsEmpty())
	{
		Message->AddText(InMessageText);
	}
	return Message;
}

TSharedRef<FTokenizedMessage> FTokenizedMessage::AddToken(const TSharedRef<IMessageToken>& InMessageToken)
{
	MessageTokens.Add(InMessageToken);
	return AsShared();
}

FText FTokenizedMessage::ToText() const
{
	FString Whole;
	for (const TSharedRef<IMessageToken>& Token : MessageTokens)
	{
		const FString& Piece = Token->ToText().ToString();
		const bool bWouldRunTogether =
			!Whole.IsEmpty() && !Piece.IsEmpty() && FChar::IsAlnum(Whole[Whole.Len() - 1]) && FChar::IsAlnum(Piece[0]);
		Whole += bWouldRunTogether ? TEXT(" ") : TEXT("");
		Whole += Piece;
	}
	return FText::FromString(MoveTemp(Whole));
}

FText FTokenizedMessage::GetSeverityText(EMessageSeverity::Type InSeverity)
{
	switch (InSeverity)
	{
		case EMessageSeverity::Error:
			return LOCTEXT("Error", "Error");
		case EMessageSeverity::PerformanceWarning:
			return LOCTEXT("PerformanceWarning", "Performance Warning");
		case EMessageSeverity::Warning:
			return LOCTEXT("Warning", "Warning");
		case EMessageSeverity::Info:
			return LOCTEXT("Info", "Info");
	}
	return FText::GetEmpty();
}

#undef LOCTEXT_NAMESPACE
