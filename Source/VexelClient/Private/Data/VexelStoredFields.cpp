#include "Data/VexelStoredFields.h"

FVexelStoredFields::FVexelStoredFields(const TSharedRef<FJsonObject>& InObject)
	: Object(InObject)
{
}

bool FVexelStoredFields::TryGetString(const TCHAR* Name, FString& OutText)
{
	return MarkRead(Name, Object->TryGetStringField(Name, OutText));
}

bool FVexelStoredFields::TryGetBool(const TCHAR* Name, bool& bOutValue)
{
	return MarkRead(Name, Object->TryGetBoolField(Name, bOutValue));
}

bool FVexelStoredFields::TryGetArray(const TCHAR* Name, const TArray<TSharedPtr<FJsonValue>>*& OutArray)
{
	return MarkRead(Name, Object->TryGetArrayField(Name, OutArray));
}

bool FVexelStoredFields::TryGetObject(const TCHAR* Name, const TSharedPtr<FJsonObject>*& OutObject)
{
	return MarkRead(Name, Object->TryGetObjectField(Name, OutObject));
}

TSharedPtr<FJsonObject> FVexelStoredFields::GetRest() const
{
	// The names are fields of the object, each once.
	if (Object->Values.Num() == NamesRead.Num())
	{
		return nullptr;
	}
	const TSharedRef<FJsonObject> Rest = MakeShared<FJsonObject>();
	for (const auto& Field : Object->Values)
	{
		const bool bRead = NamesRead.ContainsByPredicate([&](FStringView Name)
			{ return Name.Equals(Field.Key, ESearchCase::IgnoreCase); });
		if (!bRead)
		{
			Rest->SetField(FString(Field.Key), Field.Value);
		}
	}
	return Rest;
}

void FVexelStoredFields::WriteRest(const TSharedPtr<FJsonObject>& Rest, const TSharedRef<FJsonObject>& Record)
{
	if (!Rest)
	{
		return;
	}
	for (const auto& [Name, Value] : Rest->Values)
	{
		if (!Record->HasField(Name))
		{
			Record->SetField(FString(Name), Value);
		}
	}
}

bool FVexelStoredFields::MarkRead(const TCHAR* Name, bool bRead)
{
	if (bRead)
	{
		NamesRead.Add(Name);
	}
	return bRead;
}
