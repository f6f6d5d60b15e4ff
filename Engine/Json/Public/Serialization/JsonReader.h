#pragma once

#include "Containers/StringView.h"
#include "CoreMinimal.h"

class FJsonSerializer;

namespace UE::Json::Private
{
/** The text of a reader: UTF-16, or bytes of UTF-8. */
template <class CharType>
struct TText
{
	using FStorage = TArray<CharType>;
	using FView = TStringView<CharType>;
	static FView ToView(const FStorage& Storage) { return FView(Storage.GetData(), Storage.Num()); }
	static FStorage FromView(FView View) { return FStorage(View.GetData(), View.Len()); }
};

template <>
struct TText<TCHAR>
{
	using FStorage = FString;
	using FView = FStringView;
	static FView ToView(const FStorage& Storage) { return Storage; }
	static FStorage FromView(FView View) { return FString(View); }
};
}

/** A JSON text on its way through FJsonSerializer::Deserialize, and what was wrong with it. CharType is TCHAR, or UTF8CHAR for UTF-8. */
template <class CharType = TCHAR>
class TJsonReader
{
	using FText = UE::Json::Private::TText<CharType>;

public:
	explicit TJsonReader(typename FText::FStorage InText)
		: Text(MoveTemp(InText))
	{
	}

	const typename FText::FStorage& GetText() const { return Text; }
	typename FText::FView GetView() const { return FText::ToView(Text); }
	/** What was expected, and the line and character where it was not; empty for a text that was read. */
	const FString& GetErrorMessage() const { return ErrorMessage; }
	void SetErrorMessage(FString Message) { ErrorMessage = MoveTemp(Message); }

private:
	typename FText::FStorage Text;
	FString ErrorMessage;
};

template <class CharType = TCHAR>
class TJsonReaderFactory
{
	using FText = UE::Json::Private::TText<CharType>;

public:
	static TSharedRef<TJsonReader<CharType>> Create(typename FText::FStorage JsonString)
	{
		return MakeShared<TJsonReader<CharType>>(MoveTemp(JsonString));
	}
	static TSharedRef<TJsonReader<CharType>> CreateFromView(typename FText::FView JsonString)
	{
		return Create(FText::FromView(JsonString));
	}
};
