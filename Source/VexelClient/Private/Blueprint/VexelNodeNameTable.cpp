#include "Blueprint/VexelNodeNameTable.h"

void FVexelNodeNameTable::Add(const FGuid& NodeGuid, const FString& Name)
{
	check(!FindName(NodeGuid) && !HasName(Name));
	NamesByGuid.Add(NodeGuid, Name);
	GuidsByName.Add(Name, NodeGuid);
}

FString FVexelNodeNameTable::MakeFreeName(const FString& Base) const
{
	const int32* const Known = FirstFreeNumbers.Find(Base);
	const int32 First = Known ? *Known : 0;
	int32 Number = First;
	FString Name = FString::Printf(TEXT("%s_%d"), *Base, Number);
	while (HasName(Name))
	{
		Name = FString::Printf(TEXT("%s_%d"), *Base, ++Number);
	}
	// Of what nobody is called, nothing is kept.
	if (Number != First)
	{
		FirstFreeNumbers.Add(Base, Number);
	}
	return Name;
}

TSharedRef<FJsonObject> FVexelNodeNameTable::ToJson() const
{
	const TSharedRef<FJsonObject> Object = MakeShared<FJsonObject>();
	for (const auto& [Guid, Name] : NamesByGuid)
	{
		Object->SetStringField(Guid.ToString(EGuidFormats::Digits), Name);
	}
	return Object;
}

void FVexelNodeNameTable::FromJson(const TSharedRef<FJsonObject>& Object)
{
	NamesByGuid.Reset();
	GuidsByName.Reset();
	FirstFreeNumbers.Reset();
	for (const auto& [Key, Value] : Object->Values)
	{
		FGuid Guid;
		FString Name;
		const bool bRead = FGuid::ParseExact(Key, EGuidFormats::Digits, Guid) && Value && Value->TryGetString(Name) && !Name.IsEmpty();
		if (bRead && !FindName(Guid) && !HasName(Name))
		{
			Add(Guid, Name);
		}
	}
}
