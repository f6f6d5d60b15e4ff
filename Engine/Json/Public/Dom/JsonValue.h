#pragma once

#include "CoreMinimal.h"
#include "Serialization/JsonTypes.h"

class FJsonObject;

/**
 * A value of a JSON document. The Try forms answer false where the value is of another type; the As forms log an error and answer a
 * default.
 */
class JSON_API FJsonValue
{
public:
	virtual ~FJsonValue() = default;

	double AsNumber() const;
	FString AsString() const;
	bool AsBool() const;
	const TArray<TSharedPtr<FJsonValue>>& AsArray() const;
	virtual const TSharedPtr<FJsonObject>& AsObject() const;

	virtual bool TryGetNumber(double& OutNumber) const { return false; }
	bool TryGetNumber(float& OutNumber) const;
	/** False also for a number that the type cannot hold. A fraction is rounded to the nearest. */
	virtual bool TryGetNumber(int8& OutNumber) const;
	virtual bool TryGetNumber(int16& OutNumber) const;
	virtual bool TryGetNumber(int32& OutNumber) const;
	virtual bool TryGetNumber(int64& OutNumber) const;
	virtual bool TryGetNumber(uint8& OutNumber) const;
	virtual bool TryGetNumber(uint16& OutNumber) const;
	virtual bool TryGetNumber(uint32& OutNumber) const;
	virtual bool TryGetNumber(uint64& OutNumber) const;
	virtual bool TryGetString(FString& OutString) const { return false; }
	virtual bool TryGetBool(bool& OutBool) const { return false; }
	virtual bool TryGetArray(const TArray<TSharedPtr<FJsonValue>>*& OutArray) const { return false; }
	virtual bool TryGetObject(const TSharedPtr<FJsonObject>*& OutObject) const { return false; }

	bool IsNull() const { return Type == EJson::Null || Type == EJson::None; }

	static bool CompareEqual(const FJsonValue& Lhs, const FJsonValue& Rhs);
	static TSharedPtr<FJsonValue> Duplicate(const TSharedPtr<const FJsonValue>& Src);

	const EJson Type;

protected:
	explicit FJsonValue(EJson InType = EJson::None)
		: Type(InType)
	{
	}

	virtual FString GetType() const = 0;

	/** The text that the value holds, to be written without a copy; null for a value that holds none. */
	virtual const FString* FindText() const { return nullptr; }

	void ErrorMessage(const TCHAR* InType) const;

	friend class FJsonSerializer;
};

inline bool operator==(const FJsonValue& Lhs, const FJsonValue& Rhs)
{
	return FJsonValue::CompareEqual(Lhs, Rhs);
}

class JSON_API FJsonValueString : public FJsonValue
{
public:
	explicit FJsonValueString(FString InString)
		: FJsonValue(EJson::String)
		, Value(MoveTemp(InString))
	{
	}

	using FJsonValue::TryGetNumber;
	virtual bool TryGetString(FString& OutString) const override;
	virtual bool TryGetNumber(double& OutNumber) const override;
	virtual bool TryGetBool(bool& OutBool) const override;

protected:
	virtual FString GetType() const override { return TEXT("String"); }
	virtual const FString* FindText() const override { return &Value; }

	FString Value;
};

class JSON_API FJsonValueNumber : public FJsonValue
{
public:
	explicit FJsonValueNumber(double InNumber)
		: FJsonValue(EJson::Number)
		, Value(InNumber)
	{
	}

	using FJsonValue::TryGetNumber;
	virtual bool TryGetNumber(double& OutNumber) const override;
	virtual bool TryGetBool(bool& OutBool) const override;
	virtual bool TryGetString(FString& OutString) const override;

protected:
	virtual FString GetType() const override { return TEXT("Number"); }

	double Value;
};

/** A number kept as its text, because a double would lose digits of it. */
class JSON_API FJsonValueNumberString : public FJsonValue
{
public:
	explicit FJsonValueNumberString(FString InString)
		: FJsonValue(EJson::Number)
		, Value(MoveTemp(InString))
	{
	}

	using FJsonValue::TryGetNumber;
	virtual bool TryGetString(FString& OutString) const override;
	virtual bool TryGetNumber(double& OutNumber) const override;
	virtual bool TryGetNumber(int64& OutNumber) const override;
	virtual bool TryGetNumber(uint64& OutNumber) const override;
	virtual bool TryGetBool(bool& OutBool) const override;

protected:
	virtual FString GetType() const override { return TEXT("NumberString"); }
	virtual const FString* FindText() const override { return &Value; }

	FString Value;
};

class JSON_API FJsonValueBoolean : public FJsonValue
{
public:
	explicit FJsonValueBoolean(bool InBool)
		: FJsonValue(EJson::Boolean)
		, Value(InBool)
	{
	}

	using FJsonValue::TryGetNumber;
	virtual bool TryGetNumber(double& OutNumber) const override;
	virtual bool TryGetBool(bool& OutBool) const override;
	virtual bool TryGetString(FString& OutString) const override;

protected:
	virtual FString GetType() const override { return TEXT("Boolean"); }

	bool Value;
};

class JSON_API FJsonValueArray : public FJsonValue
{
public:
	explicit FJsonValueArray(TArray<TSharedPtr<FJsonValue>> InArray)
		: FJsonValue(EJson::Array)
		, Value(MoveTemp(InArray))
	{
	}

	virtual bool TryGetArray(const TArray<TSharedPtr<FJsonValue>>*& OutArray) const override;

protected:
	virtual FString GetType() const override { return TEXT("Array"); }

	TArray<TSharedPtr<FJsonValue>> Value;
};

class JSON_API FJsonValueObject : public FJsonValue
{
public:
	explicit FJsonValueObject(TSharedPtr<FJsonObject> InObject)
		: FJsonValue(EJson::Object)
		, Value(MoveTemp(InObject))
	{
	}

	virtual bool TryGetObject(const TSharedPtr<FJsonObject>*& OutObject) const override;
	virtual const TSharedPtr<FJsonObject>& AsObject() const override { return Value; }

protected:
	virtual FString GetType() const override { return TEXT("Object"); }

	TSharedPtr<FJsonObject> Value;
};

class JSON_API FJsonValueNull : public FJsonValue
{
public:
	FJsonValueNull()
		: FJsonValue(EJson::Null)
	{
	}

protected:
	virtual FString GetType() const override { return TEXT("Null"); }
};
