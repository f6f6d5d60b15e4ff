#pragma once

#include "CoreMinimal.h"
#include "Policies/PrettyJsonPrintPolicy.h"
#include "Serialization/JsonTypes.h"

class FArchive;

namespace UE::Json::Private
{
/** Puts a document's pieces into text, laid out as the engine does. The pieces must come in a document's order. */
class JSON_API FDocumentWriter
{
public:
	explicit FDocumentWriter(bool bInPretty)
		: bPretty(bInPretty)
	{
	}

	void StartObject();
	void EndObject();
	void StartArray();
	void EndArray();
	void Key(FStringView Name);
	void String(FStringView Value);
	/** A number that is JSON text already. */
	void RawNumber(FStringView Text);
	void Number(double Value);
	void Integer(int64 Value);
	void Unsigned(uint64 Value);
	void Bool(bool bValue);
	void Null();

	/** Whether one whole document was written. */
	bool IsComplete() const { return Open.IsEmpty() && Previous != EJsonToken::None; }
	/** What was written since the writer was made, or since the text was last cleared or taken. */
	FStringView GetText() const { return FStringView(Characters.GetData(), Characters.Num()); }
	void ClearText() { Characters.Reset(); }
	/** Moves that text to the end of Output, which costs nothing where Output is empty. */
	void TakeText(FString& Output);

private:
	/** Room for that many characters behind the last, which the caller sets. */
	TCHAR* Add(int32 Count)
	{
		const int32 First = Characters.AddUninitialized(Count);
		return Characters.GetData() + First;
	}
	void Append(FAnsiStringView Text);
	void AppendQuoted(FStringView Text);
	void AppendEscaped(FStringView Text);
	void BreakLine(int32 NumTabs);
	void PlaceSpace();
	/** Places what stands between the piece before and a value that begins with the token. */
	void BeginValue(EJsonToken Token);

	TArray<TCHAR> Characters;
	/** EJson::Object or EJson::Array for each that is not ended, outermost first. */
	TArray<EJson> Open;
	EJsonToken Previous = EJsonToken::None;
	bool bPretty;
};

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

	void WriteObjectStart() { Document.StartObject(); }
	void WriteObjectStart(FStringView Identifier)
	{
		WriteIdentifierPrefix(Identifier);
		WriteObjectStart();
	}
	void WriteObjectEnd() { Document.EndObject(); }
	void WriteArrayStart() { Document.StartArray(); }
	void WriteArrayStart(FStringView Identifier)
	{
		WriteIdentifierPrefix(Identifier);
		WriteArrayStart();
	}
	void WriteArrayEnd() { Document.EndArray(); }

	void WriteIdentifierPrefix(FStringView Identifier) { Document.Key(Identifier); }

	void WriteValue(bool Value) { Document.Bool(Value); }
	void WriteValue(double Value) { Document.Number(Value); }
	void WriteValue(float Value) { WriteValue(double(Value)); }
	void WriteValue(int32 Value) { WriteValue(int64(Value)); }
	void WriteValue(uint32 Value) { WriteValue(int64(Value)); }
	void WriteValue(int64 Value) { Document.Integer(Value); }
	void WriteValue(uint64 Value) { Document.Unsigned(Value); }
	void WriteValue(const TCHAR* Value) { Document.String(FStringView(Value)); }
	void WriteValue(const FString& Value) { Document.String(Value); }
	void WriteValue(FStringView Value) { Document.String(Value); }
	void WriteRawJSONValue(FStringView Number) { Document.RawNumber(Number); }
	void WriteNull() { Document.Null(); }

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
		return Document.IsComplete();
	}

private:
	void Flush()
	{
		if (StringOutput)
		{
			Document.TakeText(*StringOutput);
			return;
		}
		UE::Json::Private::WriteText(*ArchiveOutput, Document.GetText(), sizeof(CharType) == 1);
		Document.ClearText();
	}

	UE::Json::Private::FDocumentWriter Document = UE::Json::Private::FDocumentWriter(PrintPolicy::bPretty);
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
