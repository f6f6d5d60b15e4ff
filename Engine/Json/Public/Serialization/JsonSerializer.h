#pragma once

#include "CoreMinimal.h"
#include "Dom/JsonObject.h"
#include "Dom/JsonPrefetch.h"
#include "Dom/JsonValue.h"
#include "Serialization/JsonReader.h"
#include "Serialization/JsonWriter.h"

/** JSON text to values and back. Any thread, as long as each document is one thread's. */
class JSON_API FJsonSerializer
{
public:
	/** Values nested deeper, in a text or in a document, are refused. */
	static constexpr int32 MaxDepth = 256;

	/** A document that is an object or an array. False, with the reader's message, for anything else; the output is then unset. */
	template <class CharType, class OutType>
	static bool Deserialize(const TSharedRef<TJsonReader<CharType>>& Reader, OutType& OutDocument)
	{
		FString Error;
		const bool bRead = Read(Reader->GetView(), OutDocument, Error);
		Reader->SetErrorMessage(MoveTemp(Error));
		return bRead;
	}

	template <class CharType, class PrintPolicy>
	static bool Serialize(const TSharedRef<FJsonObject>& Object, const TSharedRef<TJsonWriter<CharType, PrintPolicy>>& Writer)
	{
		return WriteObject(*Object, *Writer, 0) && Writer->Close();
	}

	template <class CharType, class PrintPolicy>
	static bool Serialize(const TArray<TSharedPtr<FJsonValue>>& Array, const TSharedRef<TJsonWriter<CharType, PrintPolicy>>& Writer)
	{
		return WriteArray(Array, *Writer, 0) && Writer->Close();
	}

private:
	static bool Read(FStringView Text, TSharedPtr<FJsonValue>& OutValue, FString& OutError);
	static bool Read(FUtf8StringView Text, TSharedPtr<FJsonValue>& OutValue, FString& OutError);
	static bool TakeObject(const TSharedPtr<FJsonValue>& Value, TSharedPtr<FJsonObject>& OutObject, FString& OutError);
	static bool TakeArray(const TSharedPtr<FJsonValue>& Value, TArray<TSharedPtr<FJsonValue>>& OutArray, FString& OutError);

	template <class ViewType>
	static bool Read(ViewType Text, TSharedPtr<FJsonObject>& OutObject, FString& OutError)
	{
		OutObject.Reset();
		TSharedPtr<FJsonValue> Value;
		return Read(Text, Value, OutError) && TakeObject(Value, OutObject, OutError);
	}

	template <class ViewType>
	static bool Read(ViewType Text, TArray<TSharedPtr<FJsonValue>>& OutArray, FString& OutError)
	{
		OutArray.Reset();
		TSharedPtr<FJsonValue> Value;
		return Read(Text, Value, OutError) && TakeArray(Value, OutArray, OutError);
	}

	template <typename WriterType>
	static bool WriteObject(const FJsonObject& Object, WriterType& Writer, int32 Depth)
	{
		if (Depth == MaxDepth)
		{
			return false;
		}
		Writer.WriteObjectStart();
		UE::Json::Private::FetchFields(Object);
		for (const auto& [Name, Value] : Object.Values)
		{
			Writer.WriteIdentifierPrefix(Name);
			if (!WriteValue(Value.Get(), Writer, Depth + 1))
			{
				return false;
			}
		}
		Writer.WriteObjectEnd();
		return true;
	}

	template <typename WriterType>
	static bool WriteArray(const TArray<TSharedPtr<FJsonValue>>& Array, WriterType& Writer, int32 Depth)
	{
		if (Depth == MaxDepth)
		{
			return false;
		}
		Writer.WriteArrayStart();
		UE::Json::Private::FElementFetcher Fetcher(Array);
		for (const TSharedPtr<FJsonValue>& Value : Array)
		{
			Fetcher.Advance();
			if (!WriteValue(Value.Get(), Writer, Depth + 1))
			{
				return false;
			}
		}
		Writer.WriteArrayEnd();
		return true;
	}

	template <typename WriterType>
	static bool WriteValue(const FJsonValue* Value, WriterType& Writer, int32 Depth)
	{
		switch (Value ? Value->Type : EJson::Null)
		{
			case EJson::None:
			case EJson::Null:
				Writer.WriteNull();
				return true;
			case EJson::String:
				WriteText(*Value, Writer);
				return true;
			case EJson::Number:
				WriteNumber(*Value, Writer);
				return true;
			case EJson::Boolean:
				Writer.WriteValue(Value->AsBool());
				return true;
			case EJson::Array:
				return WriteArray(Value->AsArray(), Writer, Depth);
			case EJson::Object:
				if (const TSharedPtr<FJsonObject>& Object = Value->AsObject())
				{
					return WriteObject(*Object, Writer, Depth);
				}
				Writer.WriteNull();
				return true;
		}
		return false;
	}

	template <typename WriterType>
	static void WriteText(const FJsonValue& Value, WriterType& Writer)
	{
		if (const FString* const Text = Value.FindText())
		{
			Writer.WriteValue(*Text);
			return;
		}
		Writer.WriteValue(Value.AsString());
	}

	/** One that was kept as its text, as that text. */
	template <typename WriterType>
	static void WriteNumber(const FJsonValue& Value, WriterType& Writer)
	{
		if (const FString* const Text = Value.FindText())
		{
			Writer.WriteRawJSONValue(*Text);
			return;
		}
		Writer.WriteValue(Value.AsNumber());
	}
};
