#include "Lum/Value/LumEditNotice.h"

#include "UObject/Object.h"
#include "UObject/UnrealType.h"

namespace
{
FEditPropertyChain MakeChain(const TArray<FProperty*>& Members)
{
	FEditPropertyChain Chain;
	for (FProperty* const Member : Members)
	{
		Chain.AddTail(Member);
	}
	return Chain;
}
}

void LumEditNotice::TellBefore(UObject& Object, const TArray<FProperty*>& Members)
{
	// Objects that code made, such as the parts of a default object, are not always marked for undo.
	Object.SetFlags(RF_Transactional);
	FEditPropertyChain Chain = MakeChain(Members);
	Object.PreEditChange(Chain);
}

void LumEditNotice::TellAfter(UObject& Object, const TArray<FProperty*>& Members, EPropertyChangeType::Type Type)
{
	const UObject* const Edited[] = {&Object};
	FPropertyChangedEvent Event(Members.Last(), Type, Edited);
	Event.SetActiveMemberProperty(Members[0]);
	FEditPropertyChain Chain = MakeChain(Members);
	FPropertyChangedChainEvent ChainEvent(Chain, Event);
	Object.PostEditChangeChainProperty(ChainEvent);
}
