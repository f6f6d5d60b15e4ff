#pragma once

#include "CoreMinimal.h"

class FVexelBlueprintRequestHelper;
class ILumCompound;
struct FEditRequest;
struct FEditRequestOperationOnProp;
struct FEditRequestOperationOnVar;

/**
 * What may have been meant where an operation names what there is not, for the end of its error: ". Nearest: 'OpenAngle' of scope 'member'";
 * or how a value is given, where it was given as it is shown. Empty where nothing is near, where the error is another, and where many of a
 * call are wrong.
 */
namespace VexelObjectEditHints
{
FString Describe(const TSharedRef<ILumCompound>& Target, const FEditRequestOperationOnProp& Operation);
FString Describe(const TSharedRef<ILumCompound>& Target, const FEditRequestOperationOnVar& Operation);
/** Of a request whose target is not there. */
FString Describe(const FVexelBlueprintRequestHelper& Blueprint, const FEditRequest& Request);
}
