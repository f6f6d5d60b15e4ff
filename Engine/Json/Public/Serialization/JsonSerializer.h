#pragma once

#include "CoreMinimal.h"
#include "Dom/JsonObject.h"
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
	static bool Deserialize(const TSharedRef<TJsonReader<TCHAR>>& Reader, TSharedPtr<FJsonValue>& OutValue);
	static bool Deserialize(const TSharedRef<TJsonReader<TCHAR>>& Reader, TSharedPtr<FJsonObject>& OutObject);
	static bool Deserialize(const TSharedRef<TJsonReader<TCHAR>>& Reader, TArray<TSharedPtr<FJsonValue>>& OutArray);

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
	template <typename WriterType>
	static bool WriteObject(const FJsonObject& Object, WriterType& Writer, int32 Depth)
	{
		if (Depth == MaxDepth)
		{
			return false;
		}
		Writer.WriteObjectStart();
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
		for (const TSharedPtr<FJsonValue>& Value : Array)
		{
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
				Writer.WriteValue(Value->AsString());
				return true;
			case EJson::Number:
				Writer.WriteRawJSONValue(NumberToText(*Value));
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

	/** A number as it is written: one that was kept as its text, as that text. */
	static FString NumberToText(const FJsonValue& Value);
};
