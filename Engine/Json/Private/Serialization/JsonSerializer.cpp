#include "Serialization/JsonSerializer.h"

#include "Containers/StringConv.h"

// RapidJSON asserts that an escape is no lone low surrogate. Texts are outside bytes: such a one becomes U+FFFD like any bad one.
#define RAPIDJSON_ASSERT(Condition) static_cast<void>(Condition)
#include <rapidjson/encodedstream.h>
#include <rapidjson/error/en.h>
#include <rapidjson/memorystream.h>
#include <rapidjson/reader.h>

#include <charconv>
#include <cmath>

namespace
{
/** An integer beyond this may lose digits as a double, and one beyond it may round to just this. */
constexpr double MaxExactInteger = double(1ll << 53);

/** Builds the document from RapidJSON's events. */
class FDocumentBuilder
{
public:
	bool Null() { return Add(MakeShared<FJsonValueNull>()); }
	bool Bool(bool bValue) { return Add(MakeShared<FJsonValueBoolean>(bValue)); }
	bool RawNumber(const ANSICHAR* Text, rapidjson::SizeType Length, bool) { return Number(FAnsiStringView(Text, int32(Length))); }
	// Never called, since numbers come as their text.
	bool Int(int) { return false; }
	bool Uint(unsigned) { return false; }
	bool Int64(int64_t) { return false; }
	bool Uint64(uint64_t) { return false; }
	bool Double(double) { return false; }
	bool String(const ANSICHAR* Text, rapidjson::SizeType Length, bool) { return Add(MakeShared<FJsonValueString>(ToString(Text, Length))); }
	bool StartObject() { return Open(true); }
	bool Key(const ANSICHAR* Text, rapidjson::SizeType Length, bool)
	{
		Levels.Last().Key = ToString(Text, Length);
		return true;
	}
	bool EndObject(rapidjson::SizeType) { return Close(); }
	bool StartArray() { return Open(false); }
	bool EndArray(rapidjson::SizeType) { return Close(); }

	/** Why the builder stopped the reader; null when it did not. */
	const ANSICHAR* GetFailure() const { return Failure; }
	TSharedPtr<FJsonValue> Document;

private:
	struct FLevel
	{
		/** Null for an array. */
		TSharedPtr<FJsonObject> Object;
		TArray<TSharedPtr<FJsonValue>> Elements;
		FString Key;
	};

	bool Open(bool bObject)
	{
		if (Levels.Num() == FJsonSerializer::MaxDepth)
		{
			return Fail("The document is nested too deeply.");
		}
		Levels.AddDefaulted();
		if (bObject)
		{
			Levels.Last().Object = MakeShared<FJsonObject>();
		}
		return true;
	}

	bool Close()
	{
		FLevel Level = Levels.Pop();
		return Level.Object ? Add(MakeShared<FJsonValueObject>(Level.Object)) : Add(MakeShared<FJsonValueArray>(MoveTemp(Level.Elements)));
	}

	bool Add(const TSharedPtr<FJsonValue>& Value)
	{
		if (Levels.IsEmpty())
		{
			Document = Value;
		}
		else if (Levels.Last().Object)
		{
			Levels.Last().Object->SetField(MoveTemp(Levels.Last().Key), Value);
		}
		else
		{
			Levels.Last().Elements.Add(Value);
		}
		return true;
	}

	bool Number(FAnsiStringView Text)
	{
		// Wider than the answer, because a number too small for a double is 0 and one too large for it is an error.
		long double Wide = 0.0;
		const std::errc Failed = std::from_chars(Text.GetData(), Text.GetData() + Text.Len(), Wide).ec;
		double Value = 0.0;
		if (Failed != std::errc() || (std::from_chars(Text.GetData(), Text.GetData() + Text.Len(), Value).ec != std::errc() && std::abs(Wide) > 1.0))
		{
			return Fail("A number is out of range.");
		}
		int32 Ignored = INDEX_NONE;
		const bool bInteger = !Text.FindChar('.', Ignored) && !Text.FindChar('e', Ignored) && !Text.FindChar('E', Ignored);
		if (bInteger && FMath::Abs(Value) >= MaxExactInteger)
		{
			return Add(MakeShared<FJsonValueNumberString>(ToString(Text.GetData(), size_t(Text.Len()))));
		}
		return Add(MakeShared<FJsonValueNumber>(Value));
	}

	static FString ToString(const ANSICHAR* Utf8, size_t Length)
	{
		const FUTF8ToTCHAR Converted(Utf8, int32(Length));
		return FString::ConstructFromPtrSize(Converted.Get(), Converted.Length());
	}

	bool Fail(const ANSICHAR* Reason)
	{
		Failure = Reason;
		return false;
	}

	TArray<FLevel> Levels;
	const ANSICHAR* Failure = nullptr;
};

/** "Missing a comma or '}' after an object member. Line: 3 Ch: 14" */
FString MakeErrorMessage(FAnsiStringView Utf8, size_t Offset, const ANSICHAR* Reason)
{
	int32 Line = 1;
	int32 Character = 1;
	for (int32 Index = 0; Index < Utf8.Len() && size_t(Index) < Offset; ++Index)
	{
		const ANSICHAR Byte = Utf8[Index];
		const bool bContinuation = (uint8(Byte) & 0xC0) == 0x80;
		Line += Byte == '\n' ? 1 : 0;
		Character = Byte == '\n' ? 1 : bContinuation ? Character
													 : Character + 1;
	}
	return FString::Printf(TEXT("%s Line: %d Ch: %d"), *FString(Reason), Line, Character);
}
}

bool FJsonSerializer::Deserialize(const TSharedRef<TJsonReader<TCHAR>>& Reader, TSharedPtr<FJsonValue>& OutValue)
{
	OutValue.Reset();
	// RapidJSON reads UTF-8: its numbers-as-text mode is sound for no other encoding.
	const FTCHARToUTF8 Utf8(*Reader->GetText(), Reader->GetText().Len());
	const FAnsiStringView Text(reinterpret_cast<const ANSICHAR*>(Utf8.Get()), Utf8.Length());
	FDocumentBuilder Builder;
	rapidjson::Reader Parser;
	rapidjson::MemoryStream Bytes(Text.GetData(), size_t(Text.Len()));
	rapidjson::EncodedInputStream<rapidjson::UTF8<>, rapidjson::MemoryStream> Stream(Bytes);
	// Iterative, so that a hostile text cannot exhaust the stack. Numbers as their text, because the reader's own exact conversion
	// asserts on some that are long or far out of range.
	constexpr unsigned Flags = rapidjson::kParseIterativeFlag | rapidjson::kParseNumbersAsStringsFlag;
	const rapidjson::ParseResult Result = Parser.Parse<Flags>(Stream, Builder);
	if (Result.IsError())
	{
		const ANSICHAR* const Reason = Builder.GetFailure() ? Builder.GetFailure() : rapidjson::GetParseError_En(Result.Code());
		Reader->SetErrorMessage(MakeErrorMessage(Text, Result.Offset(), Reason));
		return false;
	}
	// RapidJSON takes a null character for the end of the text.
	if (Stream.Tell() != size_t(Text.Len()))
	{
		Reader->SetErrorMessage(MakeErrorMessage(Text, Stream.Tell(), "A null character is in the text."));
		return false;
	}
	if (Builder.Document->Type != EJson::Object && Builder.Document->Type != EJson::Array)
	{
		Reader->SetErrorMessage(MakeErrorMessage(Text, 0, "An object or an array is expected."));
		return false;
	}
	OutValue = Builder.Document;
	return true;
}

bool FJsonSerializer::Deserialize(const TSharedRef<TJsonReader<TCHAR>>& Reader, TSharedPtr<FJsonObject>& OutObject)
{
	OutObject.Reset();
	TSharedPtr<FJsonValue> Value;
	if (!Deserialize(Reader, Value))
	{
		return false;
	}
	const TSharedPtr<FJsonObject>* Object = nullptr;
	if (!Value->TryGetObject(Object))
	{
		Reader->SetErrorMessage(MakeErrorMessage({}, 0, "An object is expected."));
		return false;
	}
	OutObject = *Object;
	return true;
}

bool FJsonSerializer::Deserialize(const TSharedRef<TJsonReader<TCHAR>>& Reader, TArray<TSharedPtr<FJsonValue>>& OutArray)
{
	OutArray.Reset();
	TSharedPtr<FJsonValue> Value;
	if (!Deserialize(Reader, Value))
	{
		return false;
	}
	const TArray<TSharedPtr<FJsonValue>>* Array = nullptr;
	if (!Value->TryGetArray(Array))
	{
		Reader->SetErrorMessage(MakeErrorMessage({}, 0, "An array is expected."));
		return false;
	}
	OutArray = *Array;
	return true;
}

FString FJsonSerializer::NumberToText(const FJsonValue& Value)
{
	FString Text;
	// A FJsonValueNumberString answers its own text; for a number the writer's form is wanted, which has all digits.
	if (dynamic_cast<const FJsonValueNumberString*>(&Value) && Value.TryGetString(Text))
	{
		return Text;
	}
	return UE::Json::Private::NumberToText(Value.AsNumber());
}
