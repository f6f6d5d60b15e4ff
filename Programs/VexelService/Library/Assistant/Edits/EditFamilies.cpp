#include "Assistant/Edits/EditRequest.h"

#include "MemberFamilies.h"

namespace VexelService
{

const std::vector<FEditFamily>& GetEditFamilies()
{
	static const std::vector<FEditFamily> Families = {
		{ReadAddFunction, "Add a function Heal to BP_Enemy with an input Amount of type float and an output NewHealth."},
		{ReadAddParameter, "Add an integer input Count to the custom event OnHit of BP_Enemy."},
		{ReadAddVariable, "Add a float variable Armor with default 100 to BP_Enemy."},
		{ReadEditElement, "Set the second element of PatrolPoints of BP_Enemy to 1, 2, 3. Add Gem to the array Loot of BP_Enemy."},
		{ReadChangeMember, "Rename Health of BP_Enemy to Life. Make PatrolIndex of BP_Enemy a float. Remove bLocked from BP_Door."},
		{ReadSetValue, "Set OpenAngle of BP_Door to 120."},
	};
	return Families;
}

}
