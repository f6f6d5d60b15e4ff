#pragma once

#include "CoreMinimal.h"

/** A JSON text on its way through FJsonSerializer::Deserialize, and what was wrong with it. */
template <class CharType = TCHAR>
class TJsonReader
{
public:
	explicit TJsonReader(FString InText)
		: Text(MoveTemp(InText))
	{
	}

	const FString& GetText() const { return Text; }
	/** What was expected, and the line and character where it was not; empty for a text that was read. */
	const FString& GetErrorMessage() const { return ErrorMessage; }
	void SetErrorMessage(FString Message) { ErrorMessage = MoveTemp(Message); }

private:
	FString Text;
	FString ErrorMessage;
};

template <class CharType = TCHAR>
class TJsonReaderFactory
{
public:
	static TSharedRef<TJsonReader<CharType>> Create(FString JsonString) { return MakeShared<TJsonReader<CharType>>(MoveTemp(JsonString)); }
	static TSharedRef<TJsonReader<CharType>> CreateFromView(FStringView JsonString) { return Create(FString(JsonString)); }
};
