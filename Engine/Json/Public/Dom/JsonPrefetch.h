#pragma once

#include "Dom/JsonObject.h"

namespace UE::Json::Private
{
/** Values of a large document are seldom in the cache: those that a walk comes to next are asked for before it needs them. */
inline void FetchFields(const FJsonObject& Object)
{
	constexpr int32 MaxFields = 16;
	int32 Count = 0;
	for (const auto& [Name, Value] : Object.Values)
	{
		__builtin_prefetch(Value.Get());
		__builtin_prefetch(*Name);
		if (++Count == MaxFields)
		{
			return;
		}
	}
}

/** The same for a walk along an array, whose objects are two steps away; Advance is called once an element. */
class FElementFetcher
{
public:
	explicit FElementFetcher(const TArray<TSharedPtr<FJsonValue>>& InArray)
		: Array(InArray)
	{
		for (int32 Index = 0; Index < FMath::Min(Distance, Array.Num()); ++Index)
		{
			__builtin_prefetch(Array[Index].Get());
		}
	}

	void Advance()
	{
		++Position;
		if (Position + Distance < Array.Num())
		{
			__builtin_prefetch(Array[Position + Distance].Get());
		}
		const FJsonValue* const Next = Position + 1 < Array.Num() ? Array[Position + 1].Get() : nullptr;
		if (Next && Next->Type == EJson::Object)
		{
			__builtin_prefetch(Next->AsObject().Get());
		}
	}

private:
	static constexpr int32 Distance = 4;

	const TArray<TSharedPtr<FJsonValue>>& Array;
	int32 Position = INDEX_NONE;
};
}
