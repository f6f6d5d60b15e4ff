#pragma once

#include "CoreMinimal.h"
#include "Dom/JsonObject.h"
#include "Dom/JsonValue.h"
#include "Misc/Guid.h"

/** Text to JSON objects and back. */
class VEXELCORE_API FVexelJsonConversions
{
public:
	/** Reads one JSON object; false, with the reader's reason, for anything else. */
	static bool StringToJson(const FString& Text, TSharedPtr<FJsonObject>& OutObject, FString* OutError = nullptr);

	/** Writes an object on one line. */
	static bool JsonToString(const TSharedRef<FJsonObject>& Object, FString& OutText);

	/** Writes an object over several lines, for files that people read. */
	static bool JsonToPrettyString(const TSharedRef<FJsonObject>& Object, FString& OutText);
};

/** A record that describes itself as JSON. */
class VEXELCORE_API IVexelJsonable
{
public:
	virtual ~IVexelJsonable() = default;

	virtual TSharedRef<FJsonObject> ToJson() const = 0;

	/** Fills the record; false leaves it in an unspecified but valid state, and the reason in the log. */
	virtual bool FromJson(const TSharedRef<FJsonObject>& Object) = 0;

	FString ToJsonString() const;
	bool FromJsonString(const FString& Text);
};

/** Converts single values of a type to JSON and back. One specialisation a type; FromJson answers false for a value of another. */
template <typename T>
struct TVexelJsonTraits;

template <>
struct VEXELCORE_API TVexelJsonTraits<FString>
{
	static TSharedRef<FJsonValue> ToJson(const FString& Value);
	static bool FromJson(const TSharedPtr<FJsonValue>& Json, FString& OutValue);
};

/** A GUID is a string of digits in groups: "01234567-89ab-cdef-0123-456789abcdef". Every form that FGuid reads is taken. */
template <>
struct VEXELCORE_API TVexelJsonTraits<FGuid>
{
	static TSharedRef<FJsonValue> ToJson(const FGuid& Value);
	static bool FromJson(const TSharedPtr<FJsonValue>& Json, FGuid& OutValue);
};
