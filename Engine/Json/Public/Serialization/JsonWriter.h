#pragma once

#include "CoreMinimal.h"
#include "Policies/PrettyJsonPrintPolicy.h"
#include "Serialization/JsonTypes.h"
#include "Templates/UniquePtr.h"

class FArchive;

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
	virtual void Number(double Value) = 0;
	virtual void Integer(int64 Value) = 0;
	virtual void Unsigned(uint64 Value) = 0;
	virtual void Bool(bool bValue) = 0;
	virtual void Null() = 0;
	virtual bool IsComplete() const = 0;
	/** What was written since the writer was made, or since this was last asked. */
	virtual FStringView GetText() const = 0;
	virtual void ClearText() = 0;
	/** Moves that text to the end of Output, which costs nothing where Output is empty. */
	virtual void TakeText(FString& Output) = 0;
};

JSON_API TUniquePtr<IDocumentWriter> MakeDocumentWriter(bool bPretty);
/** Puts the text into an archive: as UTF-8, or as the UTF-16 that it is. */
JSON_API void WriteText(FArchive& Archive, FStringView Text, bool bUtf8);
}

/**
 * Writes a JSON document to a string or an archive, which get it when the writer is closed or destroyed. A double is written with up
 * to 17 digits, so that it reads back exactly; one that is not finite, for which JSON has no form, is written as 0. CharType is what
 * an archive gets: TCHAR, or UTF8CHAR for UTF-8.
 */
template <class CharType = TCHAR, class PrintPolicy = TPrettyJsonPrintPolicy<CharType>>
class TJsonWriter
{
public:
	explicit TJsonWriter(FString& Output)
		: StringOutput(&Output)
	{
	}
	explicit TJsonWriter(FArchive& Output)
		: ArchiveOutput(&Output)
	{
	}
	~TJsonWriter() { Flush(); }
	TJsonWriter(const TJsonWriter&) = delete;
	TJsonWriter& operator=(const TJsonWriter&) = delete;

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
	void WriteValue(double Value) { Document->Number(Value); }
	void WriteValue(float Value) { WriteValue(double(Value)); }
	void WriteValue(int32 Value) { WriteValue(int64(Value)); }
	void WriteValue(uint32 Value) { WriteValue(int64(Value)); }
	void WriteValue(int64 Value) { Document->Integer(Value); }
	void WriteValue(uint64 Value) { Document->Unsigned(Value); }
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
	bool Close()
	{
		Flush();
		return Document->IsComplete();
	}

private:
	void Flush()
	{
		if (StringOutput)
		{
			Document->TakeText(*StringOutput);
			return;
		}
		UE::Json::Private::WriteText(*ArchiveOutput, Document->GetText(), sizeof(CharType) == 1);
		Document->ClearText();
	}

	TUniquePtr<UE::Json::Private::IDocumentWriter> Document = UE::Json::Private::MakeDocumentWriter(PrintPolicy::bPretty);
	/** One of the two is set. */
	FString* StringOutput = nullptr;
	FArchive* ArchiveOutput = nullptr;
};

template <class CharType = TCHAR, class PrintPolicy = TPrettyJsonPrintPolicy<CharType>>
class TJsonWriterFactory
{
public:
	static TSharedRef<TJsonWriter<CharType, PrintPolicy>> Create(FString* Output)
	{
		return MakeShared<TJsonWriter<CharType, PrintPolicy>>(*Output);
	}
	static TSharedRef<TJsonWriter<CharType, PrintPolicy>> Create(FArchive* Output)
	{
		return MakeShared<TJsonWriter<CharType, PrintPolicy>>(*Output);
	}
};
