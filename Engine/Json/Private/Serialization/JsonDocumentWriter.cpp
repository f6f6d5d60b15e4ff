#include "Serialization/JsonWriter.h"

#include "Containers/StringConv.h"
#include "Serialization/Archive.h"

#include <rapidjson/prettywriter.h>
#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

#include <algorithm>
#include <charconv>
#include <cmath>

namespace UE::Json::Private
{
namespace
{
using FEncoding = rapidjson::UTF16<TCHAR>;
using FBuffer = rapidjson::GenericStringBuffer<FEncoding>;

/** "-1.7976931348623157e+308" has 24 characters. */
constexpr size_t MaxNumberChars = 32;
constexpr int32 DigitsOfDouble = 17;
/** Whole numbers below have so few digits that their form with 17 digits is the plain one. */
constexpr double MaxPlainInteger = 1e15;

template <typename WriterType>
class TDocumentWriter final : public IDocumentWriter
{
public:
	TDocumentWriter()
		: Writer(Buffer)
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
	virtual void Key(FStringView Name) override { Writer.Key(Name.GetData() ? Name.GetData() : TEXT(""), rapidjson::SizeType(Name.Len())); }
	virtual void String(FStringView Value) override
	{
		Writer.String(Value.GetData() ? Value.GetData() : TEXT(""), rapidjson::SizeType(Value.Len()));
	}
	virtual void RawNumber(FStringView Text) override { Writer.RawValue(Text.GetData(), size_t(Text.Len()), rapidjson::kNumberType); }
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
		TCHAR Wide[MaxNumberChars];
		std::copy(static_cast<const ANSICHAR*>(Text), End, Wide);
		RawNumber(FStringView(Wide, int32(End - Text)));
	}
	virtual void Integer(int64 Value) override { Writer.Int64(Value); }
	virtual void Unsigned(uint64 Value) override { Writer.Uint64(Value); }
	virtual void Bool(bool bValue) override { Writer.Bool(bValue); }
	virtual void Null() override { Writer.Null(); }
	virtual bool IsComplete() const override { return Writer.IsComplete(); }
	virtual FStringView GetText() const override { return FStringView(Buffer.GetString(), int32(Buffer.GetSize() / sizeof(TCHAR))); }
	virtual void ClearText() override { Buffer.Clear(); }

private:
	FBuffer Buffer;
	WriterType Writer;
};
}

TUniquePtr<IDocumentWriter> MakeDocumentWriter(bool bPretty)
{
	if (bPretty)
	{
		return MakeUnique<TDocumentWriter<rapidjson::PrettyWriter<FBuffer, FEncoding, FEncoding>>>();
	}
	return MakeUnique<TDocumentWriter<rapidjson::Writer<FBuffer, FEncoding, FEncoding>>>();
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
