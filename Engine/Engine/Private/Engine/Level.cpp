#include "Engine/Level.h"

#include "Engine/BlueprintGeneratedClass.h"
#include "Engine/LevelScriptActor.h"
#include "Engine/LevelScriptBlueprint.h"
#include "Engine/World.h"
#include "GameFramework/WorldSettings.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UObjectHash.h"

ULevel::FMakeLevelScriptBlueprint ULevel::MakeLevelScriptBlueprint;

ULevelScriptBlueprint* ULevel::GetLevelScriptBlueprint(bool bDontCreate)
{
	if (LevelScriptBlueprint || bDontCreate)
	{
		return LevelScriptBlueprint;
	}
	const FString Name = ULevelScriptBlueprint::CreateLevelScriptNameFromLevel(this);
	if (MakeLevelScriptBlueprint.IsBound())
	{
		LevelScriptBlueprint = MakeLevelScriptBlueprint.Execute(this, FName(*Name));
	}
	else
	{
		LevelScriptBlueprint = NewObject<ULevelScriptBlueprint>(this, FName(*Name), RF_Transactional);
		LevelScriptBlueprint->ParentClass = ALevelScriptActor::StaticClass();
		LevelScriptBlueprint->BlueprintType = BPTYPE_LevelScript;
		LevelScriptBlueprint->Status = BS_Dirty;
		LevelScriptBlueprint->GenerateNewGuid();
	}
	return LevelScriptBlueprint;
}

AWorldSettings* ULevel::GetWorldSettings() const
{
	return WorldSettings;
}

void ULevel::SetWorldSettings(AWorldSettings* NewWorldSettings)
{
	WorldSettings = NewWorldSettings;
}

TArray<UBlueprint*> ULevel::GetLevelBlueprints() const
{
	TArray<UBlueprint*> Blueprints;
	if (LevelScriptBlueprint)
	{
		Blueprints.Add(LevelScriptBlueprint);
	}
	return Blueprints;
}

void ULevel::PostLoad()
{
	Super::PostLoad();
	if (!Actors.IsEmpty())
	{
		return;
	}
	// The list could not be read; its bytes are kept for saving.
	TArray<UObject*> Inners;
	GetObjectsWithOuter(this, Inners, false);
	for (UObject* const Inner : Inners)
	{
		if (AActor* const Actor = Cast<AActor>(Inner))
		{
			Actors.AddUnique(Actor);
		}
	}
}

UWorld* ULevel::GetWorld() const
{
	return OwningWorld ? OwningWorld.Get() : GetTypedOuter<UWorld>();
}

ULevel* ULevelScriptBlueprint::GetLevel() const
{
	return GetTypedOuter<ULevel>();
}

FString ULevelScriptBlueprint::CreateLevelScriptNameFromLevel(const ULevel* Level)
{
	// The persistent level is named alike in every world; the world's name tells them apart.
	const UObject* const World = Level->GetTypedOuter<UWorld>();
	return World ? World->GetName() : Level->GetName();
}
