#include "Dom/JsonObject.h"

#include "JsonGlobals.h"

TSharedPtr<FJsonValue> FJsonObject::TryGetField(FStringView FieldName) const
{
	const TSharedPtr<FJsonValue>* const Field = Values.FindByHash(GetTypeHash(FieldName), FieldName);
	return Field ? *Field : nullptr;
}

bool FJsonObject::HasField(FStringView FieldName) const
{
	return TryGetField(FieldName).IsValid();
}

void FJsonObject::SetField(FString FieldName, const TSharedPtr<FJsonValue>& Value)
{
	Values.Add(MoveTemp(FieldName), Value);
}

void FJsonObject::SetField(FString FieldName, TSharedPtr<FJsonValue>&& Value)
{
	Values.Add(MoveTemp(FieldName), MoveTemp(Value));
}

void FJsonObject::RemoveField(FStringView FieldName)
{
	Values.Remove(FString(FieldName));
}

double FJsonObject::GetNumberField(FStringView FieldName) const
{
	return GetField<EJson::None>(FieldName)->AsNumber();
}

int32 FJsonObject::GetIntegerField(FStringView FieldName) const
{
	int32 Number = 0;
	GetField<EJson::None>(FieldName)->TryGetNumber(Number);
	return Number;
}

void FJsonObject::SetNumberField(FString FieldName, double Number)
{
	SetField(MoveTemp(FieldName), MakeShared<FJsonValueNumber>(Number));
}

FString FJsonObject::GetStringField(FStringView FieldName) const
{
	return GetField<EJson::None>(FieldName)->AsString();
}

bool FJsonObject::TryGetStringField(FStringView FieldName, FString& OutString) const
{
	const TSharedPtr<FJsonValue> Field = TryGetField(FieldName);
	return Field && Field->TryGetString(OutString);
}

bool FJsonObject::TryGetStringArrayField(FStringView FieldName, TArray<FString>& OutArray) const
{
	const TArray<TSharedPtr<FJsonValue>>* Array = nullptr;
	if (!TryGetArrayField(FieldName, Array))
	{
		return false;
	}
	for (const TSharedPtr<FJsonValue>& Element : *Array)
	{
		if (!Element->TryGetString(OutArray.AddDefaulted_GetRef()))
		{
			OutArray.Pop();
			return false;
		}
	}
	return true;
}

void FJsonObject::SetStringField(FString FieldName, FString StringValue)
{
	SetField(MoveTemp(FieldName), MakeShared<FJsonValueString>(MoveTemp(StringValue)));
}

bool FJsonObject::GetBoolField(FStringView FieldName) const
{
	return GetField<EJson::None>(FieldName)->AsBool();
}

bool FJsonObject::TryGetBoolField(FStringView FieldName, bool& OutBool) const
{
	const TSharedPtr<FJsonValue> Field = TryGetField(FieldName);
	return Field && Field->TryGetBool(OutBool);
}

void FJsonObject::SetBoolField(FString FieldName, bool InValue)
{
	SetField(MoveTemp(FieldName), MakeShared<FJsonValueBoolean>(InValue));
}

const TArray<TSharedPtr<FJsonValue>>& FJsonObject::GetArrayField(FStringView FieldName) const
{
	return GetField<EJson::Array>(FieldName)->AsArray();
}

bool FJsonObject::TryGetArrayField(FStringView FieldName, const TArray<TSharedPtr<FJsonValue>>*& OutArray) const
{
	const TSharedPtr<FJsonValue> Field = TryGetField(FieldName);
	return Field && Field->TryGetArray(OutArray);
}

void FJsonObject::SetArrayField(FString FieldName, const TArray<TSharedPtr<FJsonValue>>& Array)
{
	SetField(MoveTemp(FieldName), MakeShared<FJsonValueArray>(Array));
}

void FJsonObject::SetArrayField(FString FieldName, TArray<TSharedPtr<FJsonValue>>&& Array)
{
	SetField(MoveTemp(FieldName), MakeShared<FJsonValueArray>(MoveTemp(Array)));
}

const TSharedPtr<FJsonObject>& FJsonObject::GetObjectField(FStringView FieldName) const
{
	return GetField<EJson::Object>(FieldName)->AsObject();
}

bool FJsonObject::TryGetObjectField(FStringView FieldName, const TSharedPtr<FJsonObject>*& OutObject) const
{
	const TSharedPtr<FJsonValue> Field = TryGetField(FieldName);
	return Field && Field->TryGetObject(OutObject);
}

void FJsonObject::SetObjectField(FString FieldName, const TSharedPtr<FJsonObject>& JsonObject)
{
	if (JsonObject)
	{
		SetField(MoveTemp(FieldName), MakeShared<FJsonValueObject>(JsonObject));
	}
	else
	{
		SetField(MoveTemp(FieldName), MakeShared<FJsonValueNull>());
	}
}

void FJsonObject::Duplicate(const TSharedPtr<const FJsonObject>& Source, const TSharedPtr<FJsonObject>& Dest)
{
	if (!Source || !Dest)
	{
		return;
	}
	Dest->Values.Empty(Source->Values.Num());
	for (const auto& [Name, Value] : Source->Values)
	{
		Dest->SetField(Name, FJsonValue::Duplicate(Value));
	}
}

void FJsonObject::ReportMissing(FStringView FieldName)
{
	UE_LOG(LogJson, Error, TEXT("Field %s was not found or is of another type."), *FString(FieldName));
}
