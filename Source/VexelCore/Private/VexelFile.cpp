#include "VexelFile.h"

#include "Containers/StringConv.h"
#include "GenericPlatform/GenericPlatformFile.h"
#include "HAL/FileManager.h"
#include "HAL/PlatformFileManager.h"
#include "Misc/Guid.h"
#include "Misc/Paths.h"

namespace
{
bool WriteAndFlush(IPlatformFile& Platform, const FString& Path, TConstArrayView<uint8> Bytes)
{
	const TUniquePtr<IFileHandle> Handle(Platform.OpenWrite(*Path));
	return Handle && (Bytes.IsEmpty() || Handle->Write(Bytes.GetData(), Bytes.Num())) && Handle->Flush(true);
}
}

TVexelExpected<void> FVexelFile::SaveWhole(const FString& Path, TConstArrayView<uint8> Bytes)
{
	IPlatformFile& Platform = FPlatformFileManager::Get().GetPlatformFile();
	const FString Directory = FPaths::GetPath(Path);
	if (!Directory.IsEmpty() && !Platform.CreateDirectoryTree(*Directory))
	{
		return VEXEL_ERROR_TITLED(FVexelError, "File not saved", "The directory '%s' cannot be made", *Directory);
	}
	const FString Temporary = FString::Printf(TEXT("%s.%s.tmp"), *Path, *FGuid::NewGuid().ToString(EGuidFormats::Short));
	if (!WriteAndFlush(Platform, Temporary, Bytes))
	{
		Platform.DeleteFile(*Temporary);
		return VEXEL_ERROR_TITLED(FVexelError, "File not saved", "'%s' cannot be written; the disk may be full", *Path);
	}
	if (!IFileManager::Get().Move(*Path, *Temporary, true, true))
	{
		Platform.DeleteFile(*Temporary);
		return VEXEL_ERROR_TITLED(FVexelError, "File not saved", "'%s' cannot be replaced", *Path);
	}
	return TVexelExpected<void>();
}

TVexelExpected<void> FVexelFile::SaveWhole(const FString& Path, const FString& Text)
{
	const FTCHARToUTF8 Utf8(*Text, Text.Len());
	return SaveWhole(Path, TConstArrayView<uint8>(reinterpret_cast<const uint8*>(Utf8.Get()), Utf8.Length()));
}
