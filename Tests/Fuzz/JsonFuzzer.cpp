#include "Containers/StringConv.h"
#include "Dom/JsonObject.h"
#include "Policies/CondensedJsonPrintPolicy.h"
#include "Serialization/JsonReader.h"
#include "Serialization/JsonSerializer.h"
#include "Serialization/JsonWriter.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace
{
FString Write(const TSharedRef<FJsonObject>& Object)
{
	FString Text;
	const auto Writer = TJsonWriterFactory<TCHAR, TCondensedJsonPrintPolicy<TCHAR>>::Create(&Text);
	if (!FJsonSerializer::Serialize(Object, Writer))
	{
		abort();
	}
	return Text;
}

TSharedPtr<FJsonObject> Read(const FString& Text)
{
	TSharedPtr<FJsonObject> Object;
	FJsonSerializer::Deserialize(TJsonReaderFactory<>::Create(Text), Object);
	return Object;
}
}

/** What was read is written, read again and written again: the second text must be the first. */
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* Data, size_t Size)
{
	const FUTF8ToTCHAR Text(reinterpret_cast<const ANSICHAR*>(Data), int32(Size));
	const TSharedPtr<FJsonObject> Object = Read(FString::ConstructFromPtrSize(Text.Get(), Text.Length()));
	if (!Object)
	{
		return 0;
	}
	const FString First = Write(Object.ToSharedRef());
	const TSharedPtr<FJsonObject> Again = Read(First);
	if (!Again || !Write(Again.ToSharedRef()).Equals(First, ESearchCase::CaseSensitive))
	{
		abort();
	}
	return 0;
}
