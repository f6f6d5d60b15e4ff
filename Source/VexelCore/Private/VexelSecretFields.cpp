#include "VexelSecretFields.h"

#include "Storage/SecretBytes.h"
#include "VexelCrypto.h"

#include <openssl/crypto.h>
#include <rapidjson/reader.h>
#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

namespace
{
/** What RapidJSON writes into: blocks that are overwritten before they are given back, also when a text grows out of one. */
class FWipingAllocator
{
public:
	void* Malloc(size_t NumBytes)
	{
		if (NumBytes == 0)
		{
			return nullptr;
		}
		size_t* const Block = static_cast<size_t*>(FMemory::Malloc(NumBytes + HeaderBytes));
		*Block = NumBytes;
		return reinterpret_cast<uint8*>(Block) + HeaderBytes;
	}

	void* Realloc(void* Old, size_t NumOldBytes, size_t NumBytes)
	{
		void* const Larger = Malloc(NumBytes);
		if (Old && Larger)
		{
			FMemory::Memcpy(Larger, Old, FMath::Min(NumOldBytes, NumBytes));
		}
		Free(Old);
		return Larger;
	}

	static void Free(void* Bytes)
	{
		if (Bytes)
		{
			void* const Block = static_cast<uint8*>(Bytes) - HeaderBytes;
			OPENSSL_cleanse(Bytes, *static_cast<size_t*>(Block));
			FMemory::Free(Block);
		}
	}

private:
	/** Keeps what follows it as aligned as the block itself. */
	static constexpr size_t HeaderBytes = alignof(std::max_align_t);
};

using FJsonBuffer = rapidjson::GenericStringBuffer<rapidjson::UTF8<>, FWipingAllocator>;
using FJsonWriter = rapidjson::Writer<FJsonBuffer>;

template <typename CallType>
void WriteText(const FString& Text, CallType Call)
{
	const FWipedUtf8 Utf8(*Text, Text.Len());
	Call(Utf8.Get(), rapidjson::SizeType(Utf8.Length()));
}

FString MakeText(const ANSICHAR* Utf8, rapidjson::SizeType Length)
{
	const FWipedTChar Text(Utf8, int32(Length));
	return FString::ConstructFromPtrSize(Text.Get(), Text.Length());
}
}

/** Takes the members of the outermost object. The texts that it is given lie in the bytes that are read. */
class FVexelSecretFields::FReader
{
public:
	explicit FReader(FVexelSecretFields& InFields)
		: Fields(InFields)
	{
	}

	/** Reads in place: the bytes are not what they were afterwards. They end with a null. */
	bool Read(FSecretBytes& Bytes)
	{
		rapidjson::Reader Parser;
		rapidjson::InsituStringStream Stream(reinterpret_cast<char*>(Bytes.GetData()));
		constexpr unsigned Flags = rapidjson::kParseIterativeFlag | rapidjson::kParseNumbersAsStringsFlag | rapidjson::kParseInsituFlag |
			rapidjson::kParseValidateEncodingFlag;
		const bool bRead = !Parser.Parse<Flags>(Stream, *this).IsError();
		// The parser takes a null for the end of the text.
		return bRead && bObject && Stream.Tell() == size_t(Bytes.Num()) - 1;
	}

	bool Null() { return true; }
	bool Bool(bool bValue) { return Take(EKind::Boolean, bValue ? TEXT("true") : TEXT("false")); }
	bool RawNumber(const char* Text, rapidjson::SizeType Length, bool) { return Take(EKind::Number, MakeText(Text, Length)); }
	bool String(const char* Text, rapidjson::SizeType Length, bool) { return Take(EKind::Text, MakeText(Text, Length)); }
	bool Key(const char* Text, rapidjson::SizeType Length, bool)
	{
		LatestKey = Depth == 1 ? MakeText(Text, Length) : FString();
		return true;
	}
	bool StartObject()
	{
		bObject = bObject || Depth == 0;
		++Depth;
		return true;
	}
	bool StartArray()
	{
		// Of the outermost level it is no object, and nothing is worth reading.
		return Depth++ > 0;
	}
	bool EndObject(rapidjson::SizeType) { return --Depth >= 0; }
	bool EndArray(rapidjson::SizeType) { return --Depth >= 0; }
	// Never called, since numbers come as their text.
	bool Int(int) { return false; }
	bool Uint(unsigned) { return false; }
	bool Int64(int64_t) { return false; }
	bool Uint64(uint64_t) { return false; }
	bool Double(double) { return false; }

private:
	bool Take(EKind Kind, FString&& Value)
	{
		if (Depth == 1)
		{
			Fields.Fields.Emplace(LatestKey, Kind, MoveTemp(Value));
		}
		else
		{
			FVexelCrypto::Wipe(Value);
		}
		return true;
	}

	FVexelSecretFields& Fields;
	FString LatestKey;
	int32 Depth = 0;
	bool bObject = false;
};

FVexelSecretFields::FField::FField(const FString& InKey, EKind InKind, FString&& InValue)
	: Key(InKey)
	, Kind(InKind)
	, Value(MoveTemp(InValue))
{
}

FVexelSecretFields::FField::~FField()
{
	FVexelCrypto::Wipe(Value);
}

TOptional<FVexelSecretFields> FVexelSecretFields::FromJson(TConstArrayView<uint8> Json)
{
	FSecretBytes Bytes(Json.Num() + 1);
	FMemory::Memcpy(Bytes.GetData(), Json.GetData(), SIZE_T(Json.Num()));
	Bytes.GetData()[Json.Num()] = 0;
	FVexelSecretFields Read;
	return FReader(Read).Read(Bytes) ? TOptional<FVexelSecretFields>(MoveTemp(Read)) : NullOpt;
}

FVexelSecretFields& FVexelSecretFields::AddText(const FString& Key, const FString& Value)
{
	Fields.Emplace(Key, EKind::Text, FString(Value));
	return *this;
}

FVexelSecretFields& FVexelSecretFields::AddBoolean(const FString& Key, bool bValue)
{
	Fields.Emplace(Key, EKind::Boolean, FString(bValue ? TEXT("true") : TEXT("false")));
	return *this;
}

const FVexelSecretFields::FField* FVexelSecretFields::Find(const FString& Key) const
{
	// Of two members of one name the last one counts, as for other readers.
	for (int32 Index = Fields.Num() - 1; Index >= 0; --Index)
	{
		if (Fields[Index].Key.Equals(Key))
		{
			return &Fields[Index];
		}
	}
	return nullptr;
}

bool FVexelSecretFields::TryGetString(const FString& Key, FString& OutValue) const
{
	const FField* const Field = Find(Key);
	if (!Field || Field->Kind != EKind::Text)
	{
		return false;
	}
	OutValue = Field->Value;
	return true;
}

bool FVexelSecretFields::TryGetNumber(const FString& Key, double& OutValue) const
{
	const FField* const Field = Find(Key);
	if (!Field || Field->Kind == EKind::Boolean || (Field->Kind == EKind::Text && !Field->Value.IsNumeric()))
	{
		return false;
	}
	OutValue = FCString::Atod(*Field->Value);
	return FMath::IsFinite(OutValue);
}

TArray<uint8> FVexelSecretFields::ToJson() const
{
	FJsonBuffer Buffer;
	FJsonWriter Writer(Buffer);
	Writer.StartObject();
	for (const FField& Field : Fields)
	{
		WriteText(Field.Key, [&](const char* Text, rapidjson::SizeType Length)
			{ Writer.Key(Text, Length); });
		WriteText(Field.Value, [&](const char* Text, rapidjson::SizeType Length)
			{ Field.Kind == EKind::Text ? Writer.String(Text, Length)
										: Writer.RawValue(Text, Length, rapidjson::kNumberType); });
	}
	Writer.EndObject();
	return TArray<uint8>(reinterpret_cast<const uint8*>(Buffer.GetString()), int32(Buffer.GetSize()));
}

bool VexelInternal::Http::TPayloadHelper<FVexelSecretFields>::SetRequestData(const FVexelSecretFields& Payload, IRequest& Request)
{
	Request.SetContentBytes(TEXT("application/json"), Payload.ToJson());
	return true;
}
