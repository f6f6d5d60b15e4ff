#include "Serialization/JsonWriter.h"

#include <rapidjson/prettywriter.h>
#include <rapidjson/writer.h>

namespace UE::Json::Private
{
namespace
{
using FEncoding = rapidjson::UTF16<TCHAR>;

/** RapidJSON's output stream over an FString. */
struct FStringStream
{
	using Ch = TCHAR;

	void Put(TCHAR Character) { Output.AppendChar(Character); }
	void Flush() {}

	FString& Output;
};

template <typename WriterType>
class TDocumentWriter final : public IDocumentWriter
{
public:
	explicit TDocumentWriter(FString& Output)
		: Stream{Output}
		, Writer(Stream)
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
	virtual void String(FStringView Value) override { Writer.String(Value.GetData() ? Value.GetData() : TEXT(""), rapidjson::SizeType(Value.Len())); }
	virtual void RawNumber(FStringView Text) override { Writer.RawValue(Text.GetData(), size_t(Text.Len()), rapidjson::kNumberType); }
	virtual void Bool(bool bValue) override { Writer.Bool(bValue); }
	virtual void Null() override { Writer.Null(); }
	virtual bool IsComplete() const override { return Writer.IsComplete(); }

private:
	FStringStream Stream;
	WriterType Writer;
};
}

TUniquePtr<IDocumentWriter> MakeDocumentWriter(FString& Output, bool bPretty)
{
	if (bPretty)
	{
		return MakeUnique<TDocumentWriter<rapidjson::PrettyWriter<FStringStream, FEncoding, FEncoding>>>(Output);
	}
	return MakeUnique<TDocumentWriter<rapidjson::Writer<FStringStream, FEncoding, FEncoding>>>(Output);
}

FString NumberToText(double Value)
{
	return FMath::IsFinite(Value) ? FString::Printf(TEXT("%.17g"), Value) : FString(TEXT("0"));
}
}
