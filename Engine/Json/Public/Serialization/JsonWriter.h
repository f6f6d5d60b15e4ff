#pragma once

#include "CoreMinimal.h"
#include "Policies/PrettyJsonPrintPolicy.h"
#include "Serialization/JsonTypes.h"
#include "Templates/UniquePtr.h"

namespace UE::Json::Private
{
/** Puts a document's pieces into text. The pieces must come in a document's order. */
class IDocumentWriter
{
public:
	virtual ~IDocumentWriter() = default;

	virtual void StartObject() = 0;
	virtual void EndObject() = 0;
	virtual void StartArray() = 0;
	virtual void EndArray() = 0;
	virtual void Key(FStringView Name) = 0;
	virtual void String(FStringView Value) = 0;
	virtual void RawNumber(FStringView Text) = 0;
	virtual void Bool(bool bValue) = 0;
	virtual void Null() = 0;
	virtual bool IsComplete() const = 0;
};

JSON_API TUniquePtr<IDocumentWriter> MakeDocumentWriter(FString& Output, bool bPretty);
JSON_API FString NumberToText(double Value);
}

/**
 * Writes a JSON document to a string, piece by piece. A double is written with up to 17 digits, so that it reads back exactly;
 * one that is not finite, for which JSON has no form, is written as 0.
 */
template <class CharType = TCHAR, class PrintPolicy = TPrettyJsonPrintPolicy<CharType>>
class TJsonWriter
{
public:
	explicit TJsonWriter(FString& Output)
		: Document(UE::Json::Private::MakeDocumentWriter(Output, PrintPolicy::bPretty))
	{
	}

	void WriteObjectStart() { Document->StartObject(); }
	void WriteObjectStart(FStringView Identifier)
	{
		WriteIdentifierPrefix(Identifier);
		WriteObjectStart();
	}
	void WriteObjectEnd() { Document->EndObject(); }
	void WriteArrayStart() { Document->StartArray(); }
	void WriteArrayStart(FStringView Identifier)
	{
		WriteIdentifierPrefix(Identifier);
		WriteArrayStart();
	}
	void WriteArrayEnd() { Document->EndArray(); }

	void WriteIdentifierPrefix(FStringView Identifier) { Document->Key(Identifier); }

	void WriteValue(bool Value) { Document->Bool(Value); }
	void WriteValue(double Value) { Document->RawNumber(UE::Json::Private::NumberToText(Value)); }
	void WriteValue(float Value) { WriteValue(double(Value)); }
	void WriteValue(int32 Value) { WriteValue(int64(Value)); }
	void WriteValue(uint32 Value) { WriteValue(int64(Value)); }
	void WriteValue(int64 Value) { Document->RawNumber(FString::Printf(TEXT("%lld"), Value)); }
	void WriteValue(uint64 Value) { Document->RawNumber(FString::Printf(TEXT("%llu"), Value)); }
	void WriteValue(const TCHAR* Value) { Document->String(FStringView(Value)); }
	void WriteValue(const FString& Value) { Document->String(Value); }
	void WriteValue(FStringView Value) { Document->String(Value); }
	void WriteRawJSONValue(FStringView Number) { Document->RawNumber(Number); }
	void WriteNull() { Document->Null(); }

	template <typename ValueType>
	void WriteValue(FStringView Identifier, const ValueType& Value)
	{
		WriteIdentifierPrefix(Identifier);
		WriteValue(Value);
	}
	void WriteNull(FStringView Identifier)
	{
		WriteIdentifierPrefix(Identifier);
		WriteNull();
	}

	/** Whether one whole document was written. */
	bool Close() { return Document->IsComplete(); }

private:
	TUniquePtr<UE::Json::Private::IDocumentWriter> Document;
};

template <class CharType = TCHAR, class PrintPolicy = TPrettyJsonPrintPolicy<CharType>>
class TJsonWriterFactory
{
public:
	static TSharedRef<TJsonWriter<CharType, PrintPolicy>> Create(FString* Output)
	{
		return MakeShared<TJsonWriter<CharType, PrintPolicy>>(*Output);
	}
};
