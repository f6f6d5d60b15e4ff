#include "ObjectTools.h"

#include "Misc/PackageName.h"
#include "UObject/LinkerLoad.h"
#include "UObject/PackageSections.h"

bool ThumbnailTools::LoadThumbnailsFromPackage(
	const FString& InPackageFileName, const TSet<FName>& InObjectFullNames, FThumbnailMap& InOutThumbnails)
{
	FString Error;
	FString PackageName;
	TArray<FPackageThumbnail> Entries;
	const TUniquePtr<FLinkerLoad> Linker = FLinkerLoad::Create(InPackageFileName, nullptr, Error);
	if (!Linker || !FPackageName::TryConvertFilenameToLongPackageName(InPackageFileName, PackageName) ||
		!FPackageSections::ReadThumbnails(*Linker, Entries, Error))
	{
		return false;
	}
	for (const FPackageThumbnail& Entry : Entries)
	{
		const FString FullName = FString::Printf(TEXT("%s %s.%s"), *Entry.ObjectClass, *PackageName, *Entry.ObjectPath);
		if (FullName.Len() >= NAME_SIZE || !InObjectFullNames.Contains(FName(*FullName)) || Entry.ImageBytes <= 0)
		{
			continue;
		}
		// The sizes stand before the image, with its length; a negative height marks the image as JPEG.
		const int64 ImageOffset = Entry.Offset + 3 * sizeof(int32);
		FObjectThumbnail& Thumbnail = InOutThumbnails.Add(FName(*FullName));
		Thumbnail.SetImageSize(Entry.Width, FMath::Abs(Entry.Height));
		Thumbnail.AccessCompressedImageData() = Linker->ReadBytes(ImageOffset, Entry.ImageBytes);
	}
	return true;
}
