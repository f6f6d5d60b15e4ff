#include "Assistant/Edits/CompileEdits.h"
#include "Assistant/Edits/EditRequest.h"
#include "Assistant/Edits/FlowEdits.h"
#include "Assistant/Edits/WiringEdits.h"

#include "MemberFamilies.h"

namespace VexelService
{

const std::vector<FEditFamily>& GetEditFamilies()
{
	// What tells everything goes before what leaves something open, which another family may understand better.
	static const std::vector<FEditFamily> Families = {
		{ReadCompileRequest, "Compile BP_Door. Why does it not compile?", true},
		{ReadWiringRequest, "Connect BeginPlay to Print String. Disconnect the Delay. Remove the node Branch_2."},
		{ReadFlowRequest,
			"On overlap open the door, then close it after 3 seconds. When F is pressed toggle the light. Every 5 seconds spawn BP_Enemy."},
		{ReadAddFunction, "Add a function Heal to BP_Enemy with an input Amount of type float and an output NewHealth."},
		{ReadAddParameter, "Add an integer input Count to the custom event OnHit of BP_Enemy."},
		{ReadAddVariable, "Add a float variable Armor with default 100 to BP_Enemy."},
		{ReadEditElement, "Set the second element of PatrolPoints of BP_Enemy to 1, 2, 3. Add Gem to the array Loot of BP_Enemy."},
		{ReadChangeMember, "Rename Health of BP_Enemy to Life. Make PatrolIndex of BP_Enemy a float. Remove bLocked from BP_Door."},
		{ReadRemoveNode, "Remove the Flip Flop from BP_Door. Remove the Print String after BeginPlay."},
		{ReadSetValue, "Set OpenAngle of BP_Door to 120."},
		{ReadPartialFlowRequest, "When the player overlaps the trigger, print \"Welcome\" if bLocked is false, otherwise destroy the actor."},
	};
	return Families;
}

}
