#pragma once

#include "UObject/Object.h"

/** Where an asset puts its registry tags. A tag of the same name is replaced. */
class FAssetRegistryTagsContext
{
public:
	explicit FAssetRegistryTagsContext(const UObject* InObject, TMap<FName, UObject::FAssetRegistryTag>& InTags)
		: Object(InObject)
		, Tags(&InTags)
	{
	}
	void AddTag(UObject::FAssetRegistryTag Tag)
	{
		const FName Name = Tag.Name;
		Tags->Add(Name, MoveTemp(Tag));
	}
	const UObject* GetObject() const { return Object; }
	bool IsCooking() const { return false; }
	bool IsProceduralSave() const { return false; }

private:
	const UObject* Object;
	TMap<FName, UObject::FAssetRegistryTag>* Tags;
};
