#include "UObject/MetaData.h"

#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"

namespace
{
const FString EmptyValue;
}

const FString& FMetaData::GetValue(const UObject* Object, const TCHAR* Key) const
{
	return GetValue(Object, FName(Key, FNAME_Find));
}

const FString& FMetaData::GetValue(const UObject* Object, FName Key) const
{
	const FString* const Value = FindValue(Object, Key);
	return Value ? *Value : EmptyValue;
}

const FString* FMetaData::FindValue(const UObject* Object, FName Key) const
{
	if (Key == NAME_None || !Object)
	{
		return nullptr;
	}
	const TMap<FName, FString>* const Values = ObjectMetaDataMap.Find(FWeakObjectPtr(Object));
	return Values ? Values->Find(Key) : nullptr;
}

bool FMetaData::HasObjectValues(const UObject* Object) const
{
	return ObjectMetaDataMap.Contains(FWeakObjectPtr(Object));
}

void FMetaData::SetObjectValues(const UObject* Object, const TMap<FName, FString>& ObjectValues)
{
	ObjectMetaDataMap.Add(FWeakObjectPtr(Object), ObjectValues);
}

void FMetaData::SetObjectValues(const UObject* Object, TMap<FName, FString>&& ObjectValues)
{
	ObjectMetaDataMap.Add(FWeakObjectPtr(Object), MoveTemp(ObjectValues));
}

void FMetaData::SetValue(const UObject* Object, FName Key, const TCHAR* Value)
{
	ObjectMetaDataMap.FindOrAdd(FWeakObjectPtr(Object)).Add(Key, FString(Value));
}

void FMetaData::RemoveValue(const UObject* Object, FName Key)
{
	if (TMap<FName, FString>* const Values = ObjectMetaDataMap.Find(FWeakObjectPtr(Object)))
	{
		Values->Remove(Key);
	}
}

TMap<FName, FString>* FMetaData::GetMapForObject(const UObject* Object)
{
	UPackage* const Package = Object->GetPackage();
	return Package->GetMetaData().ObjectMetaDataMap.Find(FWeakObjectPtr(Object));
}

void FMetaData::CopyMetadata(UObject* SourceObject, UObject* DestObject)
{
	if (const TMap<FName, FString>* const Source = GetMapForObject(SourceObject))
	{
		const TMap<FName, FString> Copy = *Source;
		TMap<FName, FString>& Destination = DestObject->GetPackage()->GetMetaData().ObjectMetaDataMap.FindOrAdd(FWeakObjectPtr(DestObject));
		for (const TPair<FName, FString>& Pair : Copy)
		{
			Destination.Add(Pair.Key, Pair.Value);
		}
	}
}

void FMetaData::RemoveMetaDataOutsidePackage(const UPackage* MetaDataOwner)
{
	for (auto It = ObjectMetaDataMap.CreateIterator(); It; ++It)
	{
		const UObject* const Object = It.Key().Get();
		if (!Object || Object->GetPackage() != MetaDataOwner)
		{
			It.RemoveCurrent();
		}
	}
}

UMetaData::UMetaData(const FObjectInitializer& ObjectInitializer)
	: UObject(ObjectInitializer)
{
}
