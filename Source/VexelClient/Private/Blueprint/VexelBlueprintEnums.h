#pragma once

#include "CoreMinimal.h"
#include "EdGraph/EdGraphPin.h"
#include "EdGraph/EdGraphSchema.h"
#include "Engine/Blueprint.h"

/** The words by which engine enumerators go in JSON. An enumerator without a word reads "unknown". */
namespace VexelBlueprintWords
{
const TCHAR* GetWord(EEdGraphPinDirection Direction);
const TCHAR* GetWord(EPinContainerType Container);
const TCHAR* GetWord(EGraphType GraphType);
const TCHAR* GetWord(EBlueprintType BlueprintType);

/** False, with the out-parameter untouched, for a word that no enumerator has. */
bool FindByWord(const FString& Word, EEdGraphPinDirection& OutDirection);
bool FindByWord(const FString& Word, EPinContainerType& OutContainer);
}
