#pragma once

#include "Assistant/Edits/EditRequest.h"

#include <optional>

namespace VexelService
{

/** Requests about what a Blueprint has, each as FEditFamily::Read. */

/** "Add a float variable Health with default 100." */
std::optional<FEditRequest> ReadAddVariable(const FEditMessage& Message);

/** "Rename Health to Life", "make Health an integer", "remove Health", "put Health in the category Stats". */
std::optional<FEditRequest> ReadChangeMember(const FEditMessage& Message);

/** "Add a function Heal with an input Amount of type float." */
std::optional<FEditRequest> ReadAddFunction(const FEditMessage& Message);

/** "Add an integer input Count to the custom event OnHit." */
std::optional<FEditRequest> ReadAddParameter(const FEditMessage& Message);

/** "Set the second element of Waypoints to 1, 2, 3", "add Gold to the array Loot", "remove the first element of Loot". */
std::optional<FEditRequest> ReadEditElement(const FEditMessage& Message);

/** "Set OpenAngle to 120", "make the mesh invisible". */
std::optional<FEditRequest> ReadSetValue(const FEditMessage& Message);

}
