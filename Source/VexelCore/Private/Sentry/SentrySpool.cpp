#include "Sentry/SentrySpool.h"

#include "HAL/FileManager.h"
#include "Misc/DateTime.h"
#include "Misc/FileHelper.h"
#include "Misc/Guid.h"
#include "Misc/Paths.h"
#include "VexelFile.h"

FSentrySpool::FSentrySpool(const FString& InDirectory)
	: Directory(InDirectory)
{
}

void FSentrySpool::Add(const FString& Envelope)
{
	if (Envelope.Len() > MaxFileBytes)
	{
		return;
	}
	const TArray<FString> Names = List();
	for (int32 Index = 0; Index <= Names.Num() - MaxFiles; ++Index)
	{
		IFileManager::Get().Delete(*(Directory / Names[Index]), false, true, true);
	}
	const FString Name = FString::Printf(TEXT("%020lld-%s.envelope"), int64(FDateTime::UtcNow().GetTicks()), *FGuid::NewGuid().ToString());
	// There is nobody to tell that a report is lost.
	(void)FVexelFile::SaveWhole(Directory / Name, Envelope);
}

TOptional<FSentrySpool::FWaiting> FSentrySpool::FindOldest() const
{
	for (const FString& Name : List())
	{
		FWaiting Waiting{Directory / Name, FString()};
		const int64 NumBytes = IFileManager::Get().FileSize(*Waiting.Path);
		if (NumBytes > 0 && NumBytes <= MaxFileBytes && FFileHelper::LoadFileToString(Waiting.Envelope, *Waiting.Path))
		{
			return Waiting;
		}
		IFileManager::Get().Delete(*Waiting.Path, false, true, true);
	}
	return NullOpt;
}

void FSentrySpool::Remove(const FWaiting& Waiting)
{
	IFileManager::Get().Delete(*Waiting.Path, false, true, true);
}

TArray<FString> FSentrySpool::List() const
{
	TArray<FString> Names;
	IFileManager::Get().FindFiles(Names, *(Directory / TEXT("*.envelope")), true, false);
	Names.Sort();
	return Names;
}
