#include "Serialization/ArchiveUObject.h"

FArchive& FArchiveUObject::operator<<(FLazyObjectPtr& Value)
{
	FUniqueObjectGuid Guid = Value.GetUniqueID();
	*this << Guid;
	if (IsLoading())
	{
		Value = Guid;
	}
	return *this;
}

FArchive& FArchiveUObject::operator<<(FObjectPtr& Value)
{
	return *this << Value.GetRaw();
}

FArchive& FArchiveUObject::operator<<(FSoftObjectPath& Value)
{
	Value.SerializePath(*this);
	return *this;
}

FArchive& FArchiveUObject::operator<<(FSoftObjectPtr& Value)
{
	if (IsLoading())
	{
		Value.ResetWeakPtr();
	}
	return *this << Value.GetUniqueID();
}

FArchive& FArchiveUObject::operator<<(FWeakObjectPtr& Value)
{
	UObject* Object = Value.Get(true);
	*this << Object;
	if (IsLoading())
	{
		Value = Object;
	}
	return *this;
}
