#include "VexelJson.h"

#include "Policies/CondensedJsonPrintPolicy.h"
#include "Policies/PrettyJsonPrintPolicy.h"
#include "Serialization/JsonReader.h"
#include "Serialization/JsonSerializer.h"
#include "Serialization/JsonWriter.h"
#include "VexelLog.h"

namespace
{
template <typename PrintPolicy>
bool WriteObject(const TSharedRef<FJsonObject>& Object, FString& OutText)
{
	const auto Writer = TJsonWriterFactory<TCHAR, PrintPolicy>::Create(&OutText);
	return FJsonSerializer::Serialize(Object, Writer);
}
}

bool FVexelJsonConversions::StringToJson(const FString& Text, TSharedPtr<FJsonObject>& OutObject, FString* OutError)
{
	const TSharedRef<TJsonReader<>> Reader = TJsonReaderFactory<>::Create(Text);
	if (FJsonSerializer::Deserialize(Reader, OutObject) && OutObject.IsValid())
	{
		return true;
	}
	if (OutError)
	{
		*OutError = Reader->GetErrorMessage();
	}
	return false;
}

bool FVexelJsonConversions::JsonToString(const TSharedRef<FJsonObject>& Object, FString& OutText)
{
	return WriteObject<TCondensedJsonPrintPolicy<TCHAR>>(Object, OutText);
}

bool FVexelJsonConversions::JsonToPrettyString(const TSharedRef<FJsonObject>& Object, FString& OutText)
{
	return WriteObject<TPrettyJsonPrintPolicy<TCHAR>>(Object, OutText);
}

FString IVexelJsonable::ToJsonString() const
{
	FString Text;
	FVexelJsonConversions::JsonToString(ToJson(), Text);
	return Text;
}

bool IVexelJsonable::FromJsonString(const FString& Text)
{
	TSharedPtr<FJsonObject> Object;
	FString Error;
	if (!FVexelJsonConversions::StringToJson(Text, Object, &Error))
	{
		VEXEL_LOG(Warning, "The text is not a JSON object: %s", *Error);
		return false;
	}
	return FromJson(Object.ToSharedRef());
}

TSharedRef<FJsonValue> TVexelJsonTraits<FString>::ToJson(const FString& Value)
{
	return MakeShared<FJsonValueString>(Value);
}

bool TVexelJsonTraits<FString>::FromJson(const TSharedPtr<FJsonValue>& Json, FString& OutValue)
{
	if (!Json || Json->Type != EJson::String)
	{
		return false;
	}
	OutValue = Json->AsString();
	return true;
}

TSharedRef<FJsonValue> TVexelJsonTraits<FGuid>::ToJson(const FGuid& Value)
{
	return MakeShared<FJsonValueString>(Value.ToString(EGuidFormats::DigitsWithHyphensLower));
}

bool TVexelJsonTraits<FGuid>::FromJson(const TSharedPtr<FJsonValue>& Json, FGuid& OutValue)
{
	FString Text;
	return TVexelJsonTraits<FString>::FromJson(Json, Text) && FGuid::Parse(Text, OutValue);
}
