#pragma once

#include "CoreMinimal.h"
#include "VexelExpected.h"

class FJsonObject;
struct FAssetData;

/** What tools have to do with assets. Game thread. */
namespace VexelToolAsset
{
/** The asset of a path in any of the forms that people write; nothing is loaded. "Invalid input", or "Tool call failed" for a damaged file. */
TVexelExpected<FAssetData> Find(const FString& Path);

/** Sets "path", "name", "class", and of a Blueprint "parent_class". */
void SetIdentity(FJsonObject& Object, const FAssetData& Asset);
}
