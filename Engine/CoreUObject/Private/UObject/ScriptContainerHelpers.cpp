#include "UObject/ScriptContainerHelpers.h"

namespace
{
TArray<uint8> MakeElementBuffer(int32 Size)
{
	TArray<uint8> Buffer;
	Buffer.SetNumZeroed(Size);
	return Buffer;
}

/** Swaps bytes of two relocatable values. */
void SwapBytes(void* A, void* B, int32 Size)
{
	TArray<uint8> Buffer = MakeElementBuffer(Size);
	FMemory::Memcpy(Buffer.GetData(), A, Size);
	FMemory::Memcpy(A, B, Size);
	FMemory::Memcpy(B, Buffer.GetData(), Size);
}

template <typename HelperType>
int32 FindSparseInternalIndex(const HelperType& Helper, int32 LogicalIndex)
{
	TScriptContainerIterator<HelperType> It(Helper);
	while (It && It.GetLogicalIndex() < LogicalIndex)
	{
		++It;
	}
	return It && LogicalIndex >= 0 ? It.GetInternalIndex() : INDEX_NONE;
}

template <typename HelperType>
int32 FindSparseLogicalIndex(const HelperType& Helper, int32 InternalIndex)
{
	for (TScriptContainerIterator<HelperType> It(Helper); It; ++It)
	{
		if (It.GetInternalIndex() == InternalIndex)
		{
			return It.GetLogicalIndex();
		}
	}
	return INDEX_NONE;
}
}

FScriptArrayHelper::FScriptArrayHelper(const FArrayProperty* InProperty, const void* InArray)
	: InnerProperty(InProperty->Inner)
	, Array(static_cast<FScriptArray*>(const_cast<void*>(InArray)))
	, ElementSize(InnerProperty->GetElementSize())
	, ElementAlignment(static_cast<uint32>(FMath::Max(InnerProperty->GetMinAlignment(), 1)))
{
	check(Array && ElementSize > 0);
}

uint8* FScriptArrayHelper::GetRawPtr(int32 Index) const
{
	return IsValidIndex(Index) ? static_cast<uint8*>(Array->GetData()) + static_cast<SIZE_T>(Index) * ElementSize : nullptr;
}

void FScriptArrayHelper::EmptyValues(int32 Slack)
{
	DestructItems(0, Num());
	Array->Empty(Slack, ElementSize, ElementAlignment);
}

void FScriptArrayHelper::EmptyAndAddValues(int32 Count)
{
	EmptyValues(Count);
	AddValues(Count);
}

bool FScriptArrayHelper::ExpandForIndex(int32 Index)
{
	if (Index < Num())
	{
		return false;
	}
	AddValues(Index - Num() + 1);
	return true;
}

void FScriptArrayHelper::Resize(int32 Count)
{
	if (Count > Num())
	{
		AddValues(Count - Num());
	}
	else if (Count < Num())
	{
		RemoveValues(Count, Num() - Count);
	}
}

int32 FScriptArrayHelper::AddValues(int32 Count)
{
	const int32 Index = AddUninitializedValues(Count);
	ConstructItems(Index, Count);
	return Index;
}

int32 FScriptArrayHelper::AddUninitializedValues(int32 Count)
{
	check(Count >= 0);
	return Array->Add(Count, ElementSize, ElementAlignment);
}

void FScriptArrayHelper::InsertValues(int32 Index, int32 Count)
{
	check(Index >= 0 && Index <= Num() && Count >= 0);
	Array->Insert(Index, Count, ElementSize, ElementAlignment);
	ConstructItems(Index, Count);
}

void FScriptArrayHelper::RemoveValues(int32 Index, int32 Count)
{
	check(Index >= 0 && Count >= 0 && Index + Count <= Num());
	DestructItems(Index, Count);
	Array->Remove(Index, Count, ElementSize, ElementAlignment);
}

void FScriptArrayHelper::SwapValues(int32 A, int32 B)
{
	check(IsValidIndex(A) && IsValidIndex(B));
	if (A != B)
	{
		SwapBytes(GetRawPtr(A), GetRawPtr(B), ElementSize);
	}
}

void FScriptArrayHelper::MoveAssign(void* InOtherArray)
{
	if (InOtherArray == Array)
	{
		return;
	}
	EmptyValues();
	Array->MoveAssign(*static_cast<FScriptArray*>(InOtherArray), ElementSize, ElementAlignment);
}

void FScriptArrayHelper::ConstructItems(int32 Index, int32 Count)
{
	for (int32 Done = 0; Done < Count; ++Done)
	{
		InnerProperty->InitializeValue(GetRawPtr(Index + Done));
	}
}

void FScriptArrayHelper::DestructItems(int32 Index, int32 Count)
{
	if (InnerProperty->HasAnyPropertyFlags(CPF_NoDestructor))
	{
		return;
	}
	for (int32 Done = 0; Done < Count; ++Done)
	{
		InnerProperty->DestroyValue(GetRawPtr(Index + Done));
	}
}

FScriptMapHelper::FScriptMapHelper(const FMapProperty* InProperty, const void* InMap)
	: KeyProp(InProperty->KeyProp)
	, ValueProp(InProperty->ValueProp)
	, Map(static_cast<FScriptMap*>(const_cast<void*>(InMap)))
	, MapLayout(InProperty->MapLayout)
{
	check(Map && KeyProp && ValueProp);
}

uint8* FScriptMapHelper::GetPairPtr(int32 Index) const
{
	check(IsValidIndex(Index));
	return static_cast<uint8*>(Map->GetData(Index, MapLayout));
}

int32 FScriptMapHelper::FindInternalIndex(int32 LogicalIndex) const
{
	return FindSparseInternalIndex(*this, LogicalIndex);
}

int32 FScriptMapHelper::FindLogicalIndex(int32 InternalIndex) const
{
	return FindSparseLogicalIndex(*this, InternalIndex);
}

void FScriptMapHelper::EmptyValues(int32 Slack)
{
	for (FIterator It(*this); It; ++It)
	{
		KeyProp->DestroyValue(GetKeyPtr(*It));
		ValueProp->DestroyValue(GetValuePtr(*It));
	}
	Map->Empty(Slack, MapLayout);
}

int32 FScriptMapHelper::AddUninitializedValue()
{
	return Map->AddUninitialized(MapLayout);
}

void FScriptMapHelper::ConstructPair(int32 Index)
{
	KeyProp->InitializeValue(GetKeyPtr(Index));
	ValueProp->InitializeValue(GetValuePtr(Index));
}

int32 FScriptMapHelper::AddDefaultValue_Invalid_NeedsRehash()
{
	const int32 Index = AddUninitializedValue();
	ConstructPair(Index);
	return Index;
}

void FScriptMapHelper::Rehash()
{
	Map->Rehash(MapLayout, [this](const void* Key)
		{ return KeyProp->GetValueTypeHash(Key); });
}

void FScriptMapHelper::RemoveAt(int32 InternalIndex, int32 Count)
{
	for (int32 Index = InternalIndex; Count > 0 && Index < GetMaxIndex(); ++Index)
	{
		if (!IsValidIndex(Index))
		{
			continue;
		}
		KeyProp->DestroyValue(GetKeyPtr(Index));
		ValueProp->DestroyValue(GetValuePtr(Index));
		Map->RemoveAt(Index, MapLayout);
		--Count;
	}
}

int32 FScriptMapHelper::FindMapIndexWithKey(const void* KeyPtr) const
{
	if (Num() == 0)
	{
		return INDEX_NONE;
	}
	return Map->FindPairIndex(
		KeyPtr, MapLayout, [this](const void* Key)
		{ return KeyProp->GetValueTypeHash(Key); },
		[this](const void* A, const void* B)
		{ return KeyProp->Identical(A, B); });
}

uint8* FScriptMapHelper::FindValueFromHash(const void* KeyPtr) const
{
	const int32 Index = FindMapIndexWithKey(KeyPtr);
	return Index == INDEX_NONE ? nullptr : GetValuePtr(Index);
}

void* FScriptMapHelper::FindOrAdd(const void* KeyPtr)
{
	const auto Construct = [this, KeyPtr](void* Key, void* Value)
	{
		KeyProp->InitializeValue(Key);
		KeyProp->CopySingleValue(Key, KeyPtr);
		ValueProp->InitializeValue(Value);
	};
	return Map->FindOrAdd(
		KeyPtr, MapLayout, [this](const void* Key)
		{ return KeyProp->GetValueTypeHash(Key); },
		[this](const void* A, const void* B)
		{ return KeyProp->Identical(A, B); },
		Construct);
}

void FScriptMapHelper::AddPair(const void* KeyPtr, const void* ValuePtr)
{
	ValueProp->CopySingleValue(FindOrAdd(KeyPtr), ValuePtr);
}

bool FScriptMapHelper::RemovePair(const void* KeyPtr)
{
	const int32 Index = FindMapIndexWithKey(KeyPtr);
	if (Index == INDEX_NONE)
	{
		return false;
	}
	RemoveAt(Index);
	return true;
}

FScriptSetHelper::FScriptSetHelper(const FSetProperty* InProperty, const void* InSet)
	: ElementProp(InProperty->ElementProp)
	, Set(static_cast<FScriptSet*>(const_cast<void*>(InSet)))
	, SetLayout(InProperty->SetLayout)
{
	check(Set && ElementProp);
}

uint8* FScriptSetHelper::GetElementPtr(int32 Index) const
{
	check(IsValidIndex(Index));
	return static_cast<uint8*>(Set->GetData(Index, SetLayout));
}

int32 FScriptSetHelper::FindInternalIndex(int32 LogicalIndex) const
{
	return FindSparseInternalIndex(*this, LogicalIndex);
}

int32 FScriptSetHelper::FindLogicalIndex(int32 InternalIndex) const
{
	return FindSparseLogicalIndex(*this, InternalIndex);
}

void FScriptSetHelper::EmptyElements(int32 Slack)
{
	for (FIterator It(*this); It; ++It)
	{
		ElementProp->DestroyValue(GetElementPtr(*It));
	}
	Set->Empty(Slack, SetLayout);
}

int32 FScriptSetHelper::AddUninitializedValue()
{
	return Set->AddUninitialized(SetLayout);
}

int32 FScriptSetHelper::AddDefaultValue_Invalid_NeedsRehash()
{
	const int32 Index = AddUninitializedValue();
	ElementProp->InitializeValue(GetElementPtr(Index));
	return Index;
}

void FScriptSetHelper::Rehash()
{
	Set->Rehash(SetLayout, [this](const void* Element)
		{ return ElementProp->GetValueTypeHash(Element); });
}

void FScriptSetHelper::RemoveAt(int32 InternalIndex, int32 Count)
{
	for (int32 Index = InternalIndex; Count > 0 && Index < GetMaxIndex(); ++Index)
	{
		if (!IsValidIndex(Index))
		{
			continue;
		}
		ElementProp->DestroyValue(GetElementPtr(Index));
		Set->RemoveAt(Index, SetLayout);
		--Count;
	}
}

int32 FScriptSetHelper::FindElementIndex(const void* ElementToFind) const
{
	if (Num() == 0)
	{
		return INDEX_NONE;
	}
	return Set->FindIndex(
		ElementToFind, SetLayout, [this](const void* Element)
		{ return ElementProp->GetValueTypeHash(Element); },
		[this](const void* A, const void* B)
		{ return ElementProp->Identical(A, B); });
}

void FScriptSetHelper::AddElement(const void* ElementToAdd)
{
	const auto Construct = [this, ElementToAdd](void* Element)
	{
		ElementProp->InitializeValue(Element);
		ElementProp->CopySingleValue(Element, ElementToAdd);
	};
	Set->FindOrAdd(
		ElementToAdd, SetLayout, [this](const void* Element)
		{ return ElementProp->GetValueTypeHash(Element); },
		[this](const void* A, const void* B)
		{ return ElementProp->Identical(A, B); },
		Construct);
}

bool FScriptSetHelper::RemoveElement(const void* ElementToRemove)
{
	const int32 Index = FindElementIndex(ElementToRemove);
	if (Index == INDEX_NONE)
	{
		return false;
	}
	RemoveAt(Index);
	return true;
}
