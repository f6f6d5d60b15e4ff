#pragma once

#include "CoreMinimal.h"
#include "Containers/Map.h"
#include "Dom/JsonValue.h"

/**
 * A JSON object. Fields keep the order in which they were set. The Get forms log an error for a field that is missing or of another
 * type.
 */
class JSON_API FJsonObject
{
public:
	TMap<FString, TSharedPtr<FJsonValue>> Values;

	template <EJson JsonType>
	TSharedPtr<FJsonValue> GetField(FStringView FieldName) const
	{
		const TSharedPtr<FJsonValue> Field = TryGetField(FieldName);
		if (Field && (JsonType == EJson::None || Field->Type == JsonType))
		{
			return Field;
		}
		ReportMissing(FieldName);
		return MakeShared<FJsonValueNull>();
	}

	/** Null without such a field. */
	TSharedPtr<FJsonValue> TryGetField(FStringView FieldName) const;
	bool HasField(FStringView FieldName) const;

	template <EJson JsonType>
	bool HasTypedField(FStringView FieldName) const
	{
		const TSharedPtr<FJsonValue> Field = TryGetField(FieldName);
		return Field && Field->Type == JsonType;
	}

	void SetField(FString FieldName, const TSharedPtr<FJsonValue>& Value);
	void SetField(FString FieldName, TSharedPtr<FJsonValue>&& Value);
	void RemoveField(FStringView FieldName);

	double GetNumberField(FStringView FieldName) const;
	int32 GetIntegerField(FStringView FieldName) const;
	template <typename NumberType>
	bool TryGetNumberField(FStringView FieldName, NumberType& OutNumber) const
	{
		const TSharedPtr<FJsonValue> Field = TryGetField(FieldName);
		return Field && Field->TryGetNumber(OutNumber);
	}
	void SetNumberField(FString FieldName, double Number);

	FString GetStringField(FStringView FieldName) const;
	bool TryGetStringField(FStringView FieldName, FString& OutString) const;
	bool TryGetStringArrayField(FStringView FieldName, TArray<FString>& OutArray) const;
	void SetStringField(FString FieldName, FString StringValue);

	bool GetBoolField(FStringView FieldName) const;
	bool TryGetBoolField(FStringView FieldName, bool& OutBool) const;
	void SetBoolField(FString FieldName, bool InValue);

	const TArray<TSharedPtr<FJsonValue>>& GetArrayField(FStringView FieldName) const;
	bool TryGetArrayField(FStringView FieldName, const TArray<TSharedPtr<FJsonValue>>*& OutArray) const;
	void SetArrayField(FString FieldName, const TArray<TSharedPtr<FJsonValue>>& Array);
	void SetArrayField(FString FieldName, TArray<TSharedPtr<FJsonValue>>&& Array);

	const TSharedPtr<FJsonObject>& GetObjectField(FStringView FieldName) const;
	bool TryGetObjectField(FStringView FieldName, const TSharedPtr<FJsonObject>*& OutObject) const;
	/** A null object becomes a null field. */
	void SetObjectField(FString FieldName, const TSharedPtr<FJsonObject>& JsonObject);

	/** Makes Dest a deep copy of Source. */
	static void Duplicate(const TSharedPtr<const FJsonObject>& Source, const TSharedPtr<FJsonObject>& Dest);

private:
	static void ReportMissing(FStringView FieldName);
};
