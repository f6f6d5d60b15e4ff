#include "Serialization/JsonSerializer.h"

#include "Containers/StringConv.h"

// RapidJSON asserts that an escape is no lone low surrogate. Texts are outside bytes: such a one becomes U+FFFD like any bad one.
#define RAPIDJSON_ASSERT(Condition) static_cast<void>(Condition)
#include <rapidjson/error/en.h>
#include <rapidjson/reader.h>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <string>

namespace
{
/** An integer beyond this may lose digits as a double, and one beyond it may round to just this. */
constexpr double MaxExactInteger = double(1ll << 53);
/** Integers of so many digits are exact whatever they are. */
constexpr size_t MaxExactDigits = 15;
constexpr ANSICHAR ByteOrderMark[] = "\xEF\xBB\xBF";

bool IsAscii(const ANSICHAR* Text, size_t Length)
{
	uint8 Any = 0;
	for (size_t Index = 0; Index < Length; ++Index)
	{
		Any |= static_cast<uint8>(Text[Index]);
	}
	return Any < 0x80;
}

FString ToString(const ANSICHAR* Utf8, size_t Length)
{
	if (!IsAscii(Utf8, Length))
	{
		const FUTF8ToTCHAR Converted(Utf8, int32(Length));
		return FString::ConstructFromPtrSize(Converted.Get(), Converted.Length());
	}
	FString Text;
	if (Length > 0)
	{
		TArray<TCHAR>& Characters = Text.GetCharArray();
		// Texts of a document seldom grow, so they get no room to.
		Characters.Reserve(int32(Length) + 1);
		Characters.SetNumUninitialized(int32(Length) + 1);
		TCHAR* const Out = Characters.GetData();
		for (size_t Index = 0; Index < Length; ++Index)
		{
			Out[Index] = static_cast<uint8>(Utf8[Index]);
		}
		Out[Length] = 0;
	}
	return Text;
}

/** The text as UTF-8. Runs of ASCII, which most of a document is, are narrowed without looking at each character's kind. */
std::string ToUtf8(FStringView Text)
{
	std::string Result;
	Result.resize(size_t(Text.Len()));
	const TCHAR* const End = Text.GetData() + Text.Len();
	size_t Used = 0;
	for (const TCHAR* Next = Text.GetData(); Next != End;)
	{
		const TCHAR* Run = Next;
		for (; Run != End && *Run < 0x80; ++Run)
		{
			Result[Used++] = static_cast<char>(*Run);
		}
		for (Next = Run; Next != End && *Next >= 0x80; ++Next)
		{
		}
		if (Run != Next)
		{
			const FTCHARToUTF8 Wide(Run, int32(Next - Run));
			Result.resize(Used + size_t(Wide.Length()) + size_t(End - Next));
			FMemory::Memcpy(Result.data() + Used, Wide.Get(), size_t(Wide.Length()));
			Used += size_t(Wide.Length());
		}
	}
	Result.resize(Used);
	return Result;
}

/** Values that never change need not be made more than once. */
const TSharedPtr<FJsonValue>& GetBoolean(bool bValue)
{
	static const TSharedPtr<FJsonValue> True = MakeShared<FJsonValueBoolean>(true);
	static const TSharedPtr<FJsonValue> False = MakeShared<FJsonValueBoolean>(false);
	return bValue ? True : False;
}

const TSharedPtr<FJsonValue>& GetNull()
{
	static const TSharedPtr<FJsonValue> Null = MakeShared<FJsonValueNull>();
	return Null;
}

/** Builds the document from RapidJSON's events. */
class FDocumentBuilder
{
public:
	bool Null() { return Add(TSharedPtr<FJsonValue>(GetNull())); }
	bool Bool(bool bValue) { return Add(TSharedPtr<FJsonValue>(GetBoolean(bValue))); }
	bool RawNumber(const ANSICHAR* Text, rapidjson::SizeType Length, bool) { return Number(FAnsiStringView(Text, int32(Length))); }
	// Never called, since numbers come as their text.
	bool Int(int) { return false; }
	bool Uint(unsigned) { return false; }
	bool Int64(int64_t) { return false; }
	bool Uint64(uint64_t) { return false; }
	bool Double(double) { return false; }
	bool String(const ANSICHAR* Text, rapidjson::SizeType Length, bool)
	{
		return Add(MakeShared<FJsonValueString>(ToString(Text, Length)));
	}
	bool StartObject() { return Open(); }
	bool Key(const ANSICHAR* Text, rapidjson::SizeType Length, bool)
	{
		Keys.Add(ToString(Text, Length));
		return true;
	}
	bool EndObject(rapidjson::SizeType Count) { return CloseObject(int32(Count)); }
	bool StartArray() { return Open(); }
	bool EndArray(rapidjson::SizeType Count) { return CloseArray(int32(Count)); }

	/** Why the builder stopped the reader; null when it did not. */
	const ANSICHAR* GetFailure() const { return Failure; }
	TSharedPtr<FJsonValue> Document;

private:
	bool Open()
	{
		return ++Depth <= FJsonSerializer::MaxDepth || Fail("The document is nested too deeply.");
	}

	/** The last values and keys are the object's. Its table gets its size at once, which costs it two allocations in all. */
	bool CloseObject(int32 Count)
	{
		--Depth;
		TSharedPtr<FJsonObject> Object = MakeShared<FJsonObject>();
		Object->Values.Reserve(Count);
		const int32 FirstKey = Keys.Num() - Count;
		const int32 FirstValue = Values.Num() - Count;
		for (int32 Index = 0; Index < Count; ++Index)
		{
			Object->Values.Add(MoveTemp(Keys[FirstKey + Index]), MoveTemp(Values[FirstValue + Index]));
		}
		Keys.SetNum(FirstKey, EAllowShrinking::No);
		Values.SetNum(FirstValue, EAllowShrinking::No);
		return Add(MakeShared<FJsonValueObject>(MoveTemp(Object)));
	}

	bool CloseArray(int32 Count)
	{
		--Depth;
		TArray<TSharedPtr<FJsonValue>> Elements;
		Elements.Reserve(Count);
		const int32 First = Values.Num() - Count;
		for (int32 Index = 0; Index < Count; ++Index)
		{
			Elements.Add(MoveTemp(Values[First + Index]));
		}
		Values.SetNum(First, EAllowShrinking::No);
		return Add(MakeShared<FJsonValueArray>(MoveTemp(Elements)));
	}

	bool Add(TSharedPtr<FJsonValue>&& Value)
	{
		if (Depth == 0)
		{
			Document = MoveTemp(Value);
			return true;
		}
		Values.Add(MoveTemp(Value));
		return true;
	}

	bool Number(FAnsiStringView Text)
	{
		const ANSICHAR* const First = Text.GetData();
		const ANSICHAR* const End = First + Text.Len();
		const bool bInteger = std::all_of(First, End, [](ANSICHAR Character)
			{ return Character == '-' || (Character >= '0' && Character <= '9'); });
		if (bInteger && size_t(Text.Len()) <= MaxExactDigits)
		{
			int64 Small = 0;
			std::from_chars(First, End, Small);
			return Add(MakeShared<FJsonValueNumber>(Small == 0 && *First == '-' ? -0.0 : double(Small)));
		}
		double Value = 0.0;
		if (std::from_chars(First, End, Value).ec != std::errc())
		{
			// Wider than the answer, because a number too small for a double is 0 and one too large for it is an error.
			long double Wide = 0.0;
			if (std::from_chars(First, End, Wide).ec != std::errc() || std::abs(Wide) > 1.0)
			{
				return Fail("A number is out of range.");
			}
			Value = 0.0;
		}
		if (bInteger && FMath::Abs(Value) >= MaxExactInteger)
		{
			return Add(MakeShared<FJsonValueNumberString>(ToString(First, size_t(Text.Len()))));
		}
		return Add(MakeShared<FJsonValueNumber>(Value));
	}

	bool Fail(const ANSICHAR* Reason)
	{
		Failure = Reason;
		return false;
	}

	/** Of what is open: values that are read, innermost last, and the keys of those that are fields. */
	TArray<TSharedPtr<FJsonValue>> Values;
	TArray<FString> Keys;
	int32 Depth = 0;
	const ANSICHAR* Failure = nullptr;
};

/** "Missing a comma or '}' after an object member. Line: 3 Ch: 14" */
FString MakeErrorMessage(const std::string& Utf8, size_t Offset, const ANSICHAR* Reason)
{
	int32 Line = 1;
	int32 Character = 1;
	for (size_t Index = 0; Index < Utf8.size() && Index < Offset; ++Index)
	{
		const ANSICHAR Byte = Utf8[Index];
		const bool bContinuation = (uint8(Byte) & 0xC0) == 0x80;
		Line += Byte == '\n' ? 1 : 0;
		Character = Byte == '\n' ? 1 : Character + (bContinuation ? 0 : 1);
	}
	return FString::Printf(TEXT("%s Line: %d Ch: %d"), *FString(Reason), Line, Character);
}

/** What was wrong with a text: the place in its bytes, and the reason; null for a text that was read. */
struct FReadResult
{
	size_t Offset = 0;
	const ANSICHAR* Reason = nullptr;
};

/** The bytes are read in place, and are not what they were afterwards. */
FReadResult ReadDocument(std::string& Bytes, TSharedPtr<FJsonValue>& OutValue)
{
	const size_t Start = Bytes.starts_with(ByteOrderMark) ? sizeof(ByteOrderMark) - 1 : 0;
	FDocumentBuilder Builder;
	rapidjson::Reader Parser;
	rapidjson::InsituStringStream Stream(Bytes.data() + Start);
	// Iterative, so that a hostile text cannot exhaust the stack. Numbers as their text, because the reader's own exact conversion
	// asserts on some that are long or far out of range.
	constexpr unsigned Flags = rapidjson::kParseIterativeFlag | rapidjson::kParseNumbersAsStringsFlag | rapidjson::kParseInsituFlag;
	const rapidjson::ParseResult Result = Parser.Parse<Flags>(Stream, Builder);
	if (Result.IsError())
	{
		return {Start + Result.Offset(), Builder.GetFailure() ? Builder.GetFailure() : rapidjson::GetParseError_En(Result.Code())};
	}
	// RapidJSON takes a null character for the end of the text.
	if (Start + Stream.Tell() != Bytes.size())
	{
		return {Start + Stream.Tell(), "A null character is in the text."};
	}
	if (Builder.Document->Type != EJson::Object && Builder.Document->Type != EJson::Array)
	{
		return {0, "An object or an array is expected."};
	}
	OutValue = MoveTemp(Builder.Document);
	return {};
}

template <typename ToBytesType>
bool ReadText(ToBytesType ToBytes, TSharedPtr<FJsonValue>& OutValue, FString& OutError)
{
	OutValue.Reset();
	std::string Bytes = ToBytes();
	const FReadResult Result = ReadDocument(Bytes, OutValue);
	if (Result.Reason)
	{
		OutError = MakeErrorMessage(ToBytes(), Result.Offset, Result.Reason);
	}
	return Result.Reason == nullptr;
}
}

bool FJsonSerializer::Read(FStringView Text, TSharedPtr<FJsonValue>& OutValue, FString& OutError)
{
	// RapidJSON reads UTF-8: its numbers-as-text mode is sound for no other encoding.
	return ReadText([Text]
		{ return ToUtf8(Text); },
		OutValue, OutError);
}

bool FJsonSerializer::Read(FUtf8StringView Text, TSharedPtr<FJsonValue>& OutValue, FString& OutError)
{
	return ReadText([Text]
		{ return std::string(reinterpret_cast<const char*>(Text.GetData()), size_t(Text.Len())); },
		OutValue, OutError);
}

bool FJsonSerializer::TakeObject(const TSharedPtr<FJsonValue>& Value, TSharedPtr<FJsonObject>& OutObject, FString& OutError)
{
	const TSharedPtr<FJsonObject>* Object = nullptr;
	if (!Value->TryGetObject(Object))
	{
		OutError = MakeErrorMessage({}, 0, "An object is expected.");
		return false;
	}
	OutObject = *Object;
	return true;
}

bool FJsonSerializer::TakeArray(const TSharedPtr<FJsonValue>& Value, TArray<TSharedPtr<FJsonValue>>& OutArray, FString& OutError)
{
	const TArray<TSharedPtr<FJsonValue>>* Array = nullptr;
	if (!Value->TryGetArray(Array))
	{
		OutError = MakeErrorMessage({}, 0, "An array is expected.");
		return false;
	}
	OutArray = *Array;
	return true;
}
