#pragma once

#include "CoreMinimal.h"
#include "Dom/JsonObject.h"
#include "Templates/Function.h"

/** What the tools' answers are put together with. */
namespace VexelToolJson
{
/** Sets a list of at most Max items; the whole number stands in "NAME_total" when there are more. */
template <typename T>
void SetList(FJsonObject& Object, const TCHAR* Name, const TArray<T>& Items, int32 Max, TFunctionRef<TSharedRef<FJsonValue>(const T&)> MakeValue)
{
	TArray<TSharedPtr<FJsonValue>> Values;
	for (int32 Index = 0; Index < FMath::Min(Items.Num(), Max); ++Index)
	{
		Values.Add(MakeValue(Items[Index]));
	}
	Object.SetArrayField(Name, MoveTemp(Values));
	if (Items.Num() > Max)
	{
		Object.SetNumberField(FString(Name) + TEXT("_total"), Items.Num());
	}
}

inline void SetStrings(FJsonObject& Object, const TCHAR* Name, const TArray<FString>& Items, int32 Max)
{
	SetList<FString>(Object, Name, Items, Max, [](const FString& Item) -> TSharedRef<FJsonValue>
		{ return MakeShared<FJsonValueString>(Item); });
}

/** Leaves out a text that is empty. */
inline void SetStringUnlessEmpty(FJsonObject& Object, const TCHAR* Name, const FString& Text)
{
	if (!Text.IsEmpty())
	{
		Object.SetStringField(Name, Text);
	}
}
}
