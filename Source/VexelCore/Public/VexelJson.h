#pragma once

#include "CoreMinimal.h"
#include "Dom/JsonObject.h"
#include "Dom/JsonValue.h"

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
