#pragma once

#include "CoreMinimal.h"

class UK2Node;

/** What becomes of links where the type at one end has changed. */
namespace LumLinkMending
{
/**
 * Puts a conversion, as a user's drag would, into each link of the nodes that does not fit any more. What cannot be converted stays linked,
 * for a compile to complain of.
 */
void Mend(const TArray<UK2Node*>& Nodes);
}
