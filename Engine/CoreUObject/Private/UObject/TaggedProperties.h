#pragma once

class FArchive;

namespace UE::CoreUObject::Private
{
/** Flags before an object's properties: whether it overrides its archetype's values by operations. Older packages have none. */
void SerializeClassControl(FArchive& Ar);
}
