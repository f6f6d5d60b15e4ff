#pragma once

#include "CoreMinimal.h"
#include "Misc/ObjectThumbnail.h"

namespace ThumbnailTools
{
/** Adds the thumbnails of those of the objects that have one in the file. False when the file cannot be read. Game thread. */
UNREALED_API bool LoadThumbnailsFromPackage(
	const FString& InPackageFileName, const TSet<FName>& InObjectFullNames, FThumbnailMap& InOutThumbnails);
}
