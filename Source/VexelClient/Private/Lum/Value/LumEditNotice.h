#pragma once

#include "CoreMinimal.h"
#include "UObject/ObjectMacros.h"

class FProperty;
class UObject;

/** What objects are told of an edit of theirs. Members lead from one of the object's own down to what is edited. */
namespace LumEditNotice
{
/** Saves the object for undo, too. */
void TellBefore(UObject& Object, const TArray<FProperty*>& Members);
void TellAfter(UObject& Object, const TArray<FProperty*>& Members, EPropertyChangeType::Type Type);
}
