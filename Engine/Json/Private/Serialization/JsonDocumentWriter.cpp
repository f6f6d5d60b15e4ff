#include "Serialization/JsonWriter.h"

#include "Containers/StringConv.h"
#include "Serialization/Archive.h"

#include <rapidjson/prettywriter.h>
#include <rapidjson/writer.h>

#include <algorithm>
#include <charconv>
#include <cmath>

namespace UE::Json::Private
{
namespace
{
using FEncoding = rapidjson::UTF16<TCHAR>;

/** Where RapidJSON puts its characters: an array that becomes the text of a string without a copy. */
class FTextStream
{
public:
	using Ch = TCHAR;

	/** Room for that many characters behind the last, which the caller sets. */
	TCHAR* Add(size_t Count)
	{
		const int32 First = Characters.AddUninitialized(int32(Count));
		return Characters.GetData() + First;
	}
	void Remove(size_t Count) { Characters.SetNumUninitialized(Characters.Num() - int32(Count), EAllowShrinking::No); }
	void Put(TCHAR Character) { *Add(1) = Character; }
	void Flush() {}

	FStringView GetText() const { return FStringView(Characters.GetData(), Characters.Num()); }
	void Clear() { Characters.Reset(); }
	TArray<TCHAR> Take() { return MoveTemp(Characters); }

private:
	TArray<TCHAR> Characters;
};

/** "-1.7976931348623157e+308" has 24 characters. */
constexpr size_t MaxNumberChars = 32;
constexpr int32 DigitsOfDouble = 17;
/** Whole numbers below have so few digits that their form with 17 digits is the plain one. */
constexpr double MaxPlainInteger = 1e15;

/** RapidJSON's writer, with a short way for what needs no escape. */
template <typename BaseType>
class TTextWriter : public BaseType
{
public:
	using BaseType::BaseType;

	void Text(FStringView Value)
	{
		const size_t Length = size_t(Value.Len());
		BeginValue(rapidjson::kStringType);
		TCHAR* const Out = this->os_->Add(Length + 2);
		bool bNeedsEscape = false;
		Out[0] = '"';
		for (size_t Index = 0; Index < Length; ++Index)
		{
			const TCHAR Character = Value[int32(Index)];
			bNeedsEscape |= Character < 0x20 || Character == '"' || Character == '\\';
			Out[Index + 1] = Character;
		}
		Out[Length + 1] = '"';
		if (bNeedsEscape)
		{
			this->os_->Remove(Length + 2);
			this->WriteString(Value.GetData(), rapidjson::SizeType(Length));
		}
		this->EndValue(true);
	}

	/** A text that is JSON already. */
	template <typename CharacterType>
	void Raw(const CharacterType* First, size_t Length)
	{
		BeginValue(rapidjson::kNumberType);
		std::copy_n(First, Length, this->os_->Add(Length));
		this->EndValue(true);
	}

private:
	void BeginValue(rapidjson::Type Type)
	{
		if constexpr (requires { this->PrettyPrefix(Type); })
		{
			this->PrettyPrefix(Type);
		}
		else
		{
			this->Prefix(Type);
		}
	}
};

template <typename WriterType>
class TDocumentWriter final : public IDocumentWriter
{
public:
	TDocumentWriter()
		: Writer(Stream)
	{
		if constexpr (requires { Writer.SetIndent(TEXT('\t'), 1u); })
		{
			Writer.SetIndent('\t', 1u);
		}
	}

	virtual void StartObject() override { Writer.StartObject(); }
	virtual void EndObject() override { Writer.EndObject(); }
	virtual void StartArray() override { Writer.StartArray(); }
	virtual void EndArray() override { Writer.EndArray(); }
	virtual void Key(FStringView Name) override { Writer.Text(Name); }
	virtual void String(FStringView Value) override { Writer.Text(Value); }
	virtual void RawNumber(FStringView Text) override { Writer.Raw(Text.GetData(), size_t(Text.Len())); }
	virtual void Number(double Value) override
	{
		if (std::abs(Value) < MaxPlainInteger && Value == std::trunc(Value) && !(Value == 0.0 && std::signbit(Value)))
		{
			Writer.Int64(int64_t(Value));
			return;
		}
		if (!std::isfinite(Value))
		{
			Writer.Int(0);
			return;
		}
		ANSICHAR Text[MaxNumberChars];
		const ANSICHAR* const End = std::to_chars(Text, Text + MaxNumberChars, Value, std::chars_format::general, DigitsOfDouble).ptr;
		Writer.Raw(Text, size_t(End - Text));
	}
	virtual void Integer(int64 Value) override { Writer.Int64(Value); }
	virtual void Unsigned(uint64 Value) override { Writer.Uint64(Value); }
	virtual void Bool(bool bValue) override { Writer.Bool(bValue); }
	virtual void Null() override { Writer.Null(); }
	virtual bool IsComplete() const override { return Writer.IsComplete(); }
	virtual FStringView GetText() const override { return Stream.GetText(); }
	virtual void ClearText() override { Stream.Clear(); }
	virtual void TakeText(FString& Output) override
	{
		if (!Output.IsEmpty() || Stream.GetText().IsEmpty())
		{
			Output.Append(Stream.GetText());
			Stream.Clear();
			return;
		}
		Stream.Put('\0');
		Output.GetCharArray() = Stream.Take();
	}

private:
	FTextStream Stream;
	TTextWriter<WriterType> Writer;
};
}

TUniquePtr<IDocumentWriter> MakeDocumentWriter(bool bPretty)
{
	if (bPretty)
	{
		return MakeUnique<TDocumentWriter<rapidjson::PrettyWriter<FTextStream, FEncoding, FEncoding>>>();
	}
	return MakeUnique<TDocumentWriter<rapidjson::Writer<FTextStream, FEncoding, FEncoding>>>();
}

void WriteText(FArchive& Archive, FStringView Text, bool bUtf8)
{
	if (!bUtf8)
	{
		Archive.Serialize(const_cast<TCHAR*>(Text.GetData()), int64(Text.Len()) * int64(sizeof(TCHAR)));
		return;
	}
	const FTCHARToUTF8 Utf8(Text.GetData(), Text.Len());
	Archive.Serialize(const_cast<void*>(static_cast<const void*>(Utf8.Get())), Utf8.Length());
}
}
