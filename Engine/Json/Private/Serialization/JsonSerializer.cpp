#include "Serialization/JsonSerializer.h"

#include "Containers/StringConv.h"

// RapidJSON asserts that an escape is no lone low surrogate. Texts are outside bytes: such a one becomes U+FFFD like any bad one.
#define RAPIDJSON_ASSERT(Condition) static_cast<void>(Condition)
#include <rapidjson/error/en.h>
#include <rapidjson/reader.h>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <string_view>

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

/** A text as RapidJSON reads it in place: UTF-8 with a terminator behind it. */
using FBytes = TArray<ANSICHAR>;

FBytes ToBytes(FUtf8StringView Text)
{
	FBytes Bytes;
	Bytes.Reserve(Text.Len() + 1);
	Bytes.Append(reinterpret_cast<const ANSICHAR*>(Text.GetData()), Text.Len());
	Bytes.Add(0);
	return Bytes;
}

/** Copies characters up to the first that is not ASCII, and answers how many. */
int32 CopyAscii(const TCHAR* Text, int32 Count, ANSICHAR* Out)
{
	// Most of a document is ASCII. A block is looked at as a whole, which the compiler makes a few instructions of.
	constexpr int32 BlockSize = 16;
	int32 Done = 0;
	TCHAR Any = 0;
	for (; Count - Done >= BlockSize && Any < 0x80; Done += Any < 0x80 ? BlockSize : 0)
	{
		for (int32 Index = Done; Index < Done + BlockSize; ++Index)
		{
			Any |= Text[Index];
			Out[Index] = static_cast<ANSICHAR>(Text[Index]);
		}
	}
	for (; Done < Count && Text[Done] < 0x80; ++Done)
	{
		Out[Done] = static_cast<ANSICHAR>(Text[Done]);
	}
	return Done;
}

FBytes ToBytes(FStringView Text)
{
	FBytes Bytes;
	Bytes.SetNumUninitialized(Text.Len() + 1);
	int32 Used = 0;
	while (!Text.IsEmpty())
	{
		const int32 NumAscii = CopyAscii(Text.GetData(), Text.Len(), Bytes.GetData() + Used);
		Used += NumAscii;
		Text.RemovePrefix(NumAscii);
		const auto IsAsciiUnit = [](TCHAR Unit)
		{ return Unit < 0x80; };
		const int32 NumWide = int32(std::find_if(Text.begin(), Text.end(), IsAsciiUnit) - Text.begin());
		if (NumWide > 0)
		{
			const FTCHARToUTF8 Wide(Text.GetData(), NumWide);
			Text.RemovePrefix(NumWide);
			Bytes.SetNumUninitialized(Used + Wide.Length() + Text.Len() + 1);
			FMemory::Memcpy(Bytes.GetData() + Used, Wide.Get(), size_t(Wide.Length()));
			Used += Wide.Length();
		}
	}
	Bytes[Used] = 0;
	return Bytes;
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

/** Null for a number that a double cannot hold. */
TSharedPtr<FJsonValue> MakeNumber(const ANSICHAR* Text, size_t Length)
{
	const ANSICHAR* const End = Text + Length;
	const bool bInteger = std::all_of(Text, End, [](ANSICHAR Character)
		{ return Character == '-' || (Character >= '0' && Character <= '9'); });
	if (bInteger && Length <= MaxExactDigits)
	{
		int64 Small = 0;
		std::from_chars(Text, End, Small);
		return MakeShared<FJsonValueNumber>(Small == 0 && *Text == '-' ? -0.0 : double(Small));
	}
	double Value = 0.0;
	if (std::from_chars(Text, End, Value).ec != std::errc())
	{
		// Wider than the answer, because a number too small for a double is 0 and one too large for it is an error.
		long double Wide = 0.0;
		if (std::from_chars(Text, End, Wide).ec != std::errc() || std::abs(Wide) > 1.0)
		{
			return nullptr;
		}
		Value = 0.0;
	}
	if (bInteger && FMath::Abs(Value) >= MaxExactInteger)
	{
		return MakeShared<FJsonValueNumberString>(ToString(Text, Length));
	}
	return MakeShared<FJsonValueNumber>(Value);
}

/**
 * Texts recur in a document: types, states, units. One that was made lately is not made again, for values never change. (Numbers recur
 * too seldom to be worth the search.)
 */
class FRecentTexts
{
public:
	/** The bytes must stay where they are, as those of a text that is read in place do. */
	TSharedPtr<FJsonValue> Get(const ANSICHAR* Text, size_t Length)
	{
		if (Length > MaxLength)
		{
			return MakeShared<FJsonValueString>(ToString(Text, Length));
		}
		const std::string_view Bytes(Text, Length);
		FSlot& Slot = Slots[std::hash<std::string_view>()(Bytes) % NumSlots];
		if (!Slot.Value || Slot.Bytes != Bytes)
		{
			Slot = {Bytes, MakeShared<FJsonValueString>(ToString(Text, Length))};
		}
		return Slot.Value;
	}

private:
	static constexpr size_t NumSlots = 256;
	static constexpr size_t MaxLength = 64;

	struct FSlot
	{
		std::string_view Bytes;
		TSharedPtr<FJsonValue> Value;
	};
	FSlot Slots[NumSlots];
};

/** Builds the document from RapidJSON's events. */
class FDocumentBuilder
{
public:
	bool Null() { return Add(TSharedPtr<FJsonValue>(GetNull())); }
	bool Bool(bool bValue) { return Add(TSharedPtr<FJsonValue>(GetBoolean(bValue))); }
	bool RawNumber(const ANSICHAR* Text, rapidjson::SizeType Length, bool)
	{
		TSharedPtr<FJsonValue> Number = MakeNumber(Text, Length);
		return Number ? Add(MoveTemp(Number)) : Fail("A number is out of range.");
	}
	// Never called, since numbers come as their text.
	bool Int(int) { return false; }
	bool Uint(unsigned) { return false; }
	bool Int64(int64_t) { return false; }
	bool Uint64(uint64_t) { return false; }
	bool Double(double) { return false; }
	bool String(const ANSICHAR* Text, rapidjson::SizeType Length, bool)
	{
		return Add(RecentTexts.Get(Text, Length));
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

	bool Fail(const ANSICHAR* Reason)
	{
		Failure = Reason;
		return false;
	}

	/** Of what is open: values that are read, innermost last, and the keys of those that are fields. */
	TArray<TSharedPtr<FJsonValue>> Values;
	TArray<FString> Keys;
	FRecentTexts RecentTexts;
	int32 Depth = 0;
	const ANSICHAR* Failure = nullptr;
};

/** "Missing a comma or '}' after an object member. Line: 3 Ch: 14" */
FString MakeErrorMessage(const FBytes& Bytes, size_t Offset, const ANSICHAR* Reason)
{
	int32 Line = 1;
	int32 Character = 1;
	for (int32 Index = 0; Index < Bytes.Num() && size_t(Index) < Offset; ++Index)
	{
		const ANSICHAR Byte = Bytes[Index];
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
FReadResult ReadDocument(FBytes& Bytes, TSharedPtr<FJsonValue>& OutValue)
{
	const size_t Size = size_t(Bytes.Num()) - 1;
	const size_t Start = std::string_view(Bytes.GetData(), Size).starts_with(ByteOrderMark) ? sizeof(ByteOrderMark) - 1 : 0;
	FDocumentBuilder Builder;
	rapidjson::Reader Parser;
	rapidjson::InsituStringStream Stream(Bytes.GetData() + Start);
	// Iterative, so that a hostile text cannot exhaust the stack. Numbers as their text, because the reader's own exact conversion
	// asserts on some that are long or far out of range.
	constexpr unsigned Flags = rapidjson::kParseIterativeFlag | rapidjson::kParseNumbersAsStringsFlag | rapidjson::kParseInsituFlag;
	const rapidjson::ParseResult Result = Parser.Parse<Flags>(Stream, Builder);
	if (Result.IsError())
	{
		return {Start + Result.Offset(), Builder.GetFailure() ? Builder.GetFailure() : rapidjson::GetParseError_En(Result.Code())};
	}
	// RapidJSON takes a null character for the end of the text.
	if (Start + Stream.Tell() != Size)
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

template <typename ViewType>
bool ReadText(ViewType Text, TSharedPtr<FJsonValue>& OutValue, FString& OutError)
{
	OutValue.Reset();
	FBytes Bytes = ToBytes(Text);
	const FReadResult Result = ReadDocument(Bytes, OutValue);
	if (Result.Reason)
	{
		OutError = MakeErrorMessage(ToBytes(Text), Result.Offset, Result.Reason);
	}
	return Result.Reason == nullptr;
}
}

bool FJsonSerializer::Read(FStringView Text, TSharedPtr<FJsonValue>& OutValue, FString& OutError)
{
	// RapidJSON reads UTF-8: its numbers-as-text mode is sound for no other encoding.
	return ReadText(Text, OutValue, OutError);
}

bool FJsonSerializer::Read(FUtf8StringView Text, TSharedPtr<FJsonValue>& OutValue, FString& OutError)
{
	return ReadText(Text, OutValue, OutError);
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
