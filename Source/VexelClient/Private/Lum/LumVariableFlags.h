#pragma once

#include "CoreMinimal.h"
#include "Lum/LumVariable.h"

class UBlueprint;
struct FBPVariableDescription;
struct FEdGraphPinType;

/** The flags of member variables, as the editor keeps them: some as property flags, some as metadata. */
namespace LumVariableFlags
{
TArray<ELumVarFlag> Read(const FBPVariableDescription& Variable);

/** Fails where a variable of the type cannot have a flag that the descriptor sets. */
TVexelExpected<void> Check(const FLumVarDesc& Desc, const FEdGraphPinType& Type);
/** Fails where the descriptor names any: for what is no member variable. */
TVexelExpected<void> CheckNone(const FLumVarDesc& Desc);

void Apply(UBlueprint& Blueprint, FName Name, const FLumVarDesc& Desc);
}
