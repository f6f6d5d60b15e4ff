#include "Embed/VexelNodeTypeCache.h"

#include "EdGraph/EdGraph.h"
#include "EdGraphSchema_K2.h"
#include "Embed/VexelEmbed.h"
#include "Engine/Blueprint.h"
#include "Engine/BlueprintGeneratedClass.h"
#include "GameFramework/Actor.h"
#include "HAL/FileManager.h"
#include "Kismet2/BlueprintEditorUtils.h"
#include "Kismet2/KismetEditorUtilities.h"
#include "Misc/FileHelper.h"
#include "Misc/Paths.h"
#include "UObject/Package.h"
#include "VexelErrorKinds.h"
#include "VexelFile.h"
#include "VexelLog.h"
#include "VexelTask.h"
#include "VexelTry.h"

namespace
{
constexpr int64 MaxFileBytes = 1 << 30;

TVexelExpected<TArray<uint8>> ReadCacheFile(const FString& Path)
{
	const int64 NumBytes = IFileManager::Get().FileSize(*Path);
	if (NumBytes < 0)
	{
		return VEXEL_ERROR(FVexelError_EmbedLoadFileNotFound, "Embed database file not found");
	}
	if (NumBytes > MaxFileBytes)
	{
		return VEXEL_ERROR(FVexelError_EmbedLoadFileCorrupted, "The file has %lld bytes, more than any index", NumBytes);
	}
	TArray<uint8> Bytes;
	if (!FFileHelper::LoadFileToArray(Bytes, *Path))
	{
		return VEXEL_ERROR(FVexelError_EmbedLoadReaderFailed, "Embed database reader failed");
	}
	return Bytes;
}
}

TVexelExpected<FString> VexelNodeTypeCache::GetPath()
{
	const FString Directory = FPaths::ProjectSavedDir() / TEXT("VexelCache");
	if (!IFileManager::Get().MakeDirectory(*Directory, true))
	{
		return VEXEL_ERROR(FVexelError_Embed, "Failed to create node database directory `%s`", *Directory);
	}
	return Directory / TEXT("VexelDatabase.db");
}

TVexelTaskResult<void> VexelNodeTypeCache::Load()
{
	VEXEL_TRY(const FString Path, GetPath());
	return Try(VexelTask(EVexelTaskThread::BackgroundThread, [Path]
				   { return ReadCacheFile(Path); }))
		.Then([](const TArray<uint8>& Bytes)
			{ return FVexelEmbed::LoadFromBytes(Bytes); })
		.Then([]
			{ VEXEL_LOG(Log, "Node type cache loaded successfully."); })
		.Catch<FVexelError_EmbedLoadFileNotFound>([](const FVexelError&)
			{ VEXEL_LOG(Log, "Node type cache not found, starting fresh."); })
		.Catch<FVexelError_EmbedLoadFileOutdated>([](const FVexelError&)
			{ VEXEL_LOG(Log, "Node type cache is outdated, won't load."); })
		.Catch<FVexelError>([Path](const FVexelError& Error) -> TVexelExpected<void>
			{ return VEXEL_ERROR_CAUSED(FVexelError_Embed, Error, "Failed to load node type cache from %s", *Path); });
}

TVexelTaskResult<void> VexelNodeTypeCache::Save()
{
	VEXEL_TRY(const FString Path, GetPath());
	VEXEL_LOG(Log, "Saving node type cache...");
	return Try(FVexelEmbed::SaveToBytes())
		.ThenOn(EVexelTaskThread::BackgroundThread, [Path](const TSharedRef<TArray<uint8>>& Bytes)
			{ return FVexelFile::SaveWhole(Path, *Bytes); })
		.Catch<FVexelError_EmbedSaveUpToDate>([](const FVexelError&)
			{ VEXEL_LOG(Log, "Node type cache is already up to date."); })
		.Catch<FVexelError>([Path](const FVexelError& Error) -> TVexelExpected<void>
			{
				(void)FVexelEmbed::MarkNotSaved();
				return VEXEL_ERROR_CAUSED(FVexelError_EmbedSave, Error, "Failed to save node type cache to %s", *Path); });
}

TStrongObjectPtr<UBlueprint> VexelNodeTypeCache::MakeScratchBlueprint()
{
	UPackage* const Package = GetTransientPackage();
	const FName Name = MakeUniqueObjectName(Package, UBlueprint::StaticClass(), TEXT("VexelNodeTypes"));
	UBlueprint* const Blueprint = FKismetEditorUtilities::CreateBlueprint(AActor::StaticClass(), Package, Name, BPTYPE_Normal,
		UBlueprint::StaticClass(), UBlueprintGeneratedClass::StaticClass());
	if (Blueprint)
	{
		// An asset would stay until its package is closed; this one lives as long as it is held.
		Blueprint->ClearFlags(RF_Public | RF_Standalone);
		UEdGraph* const Graph = FBlueprintEditorUtils::CreateNewGraph(
			Blueprint, TEXT("VexelNodeTypeGraph"), UEdGraph::StaticClass(), UEdGraphSchema_K2::StaticClass());
		FBlueprintEditorUtils::AddUbergraphPage(Blueprint, Graph);
	}
	return TStrongObjectPtr<UBlueprint>(Blueprint);
}
