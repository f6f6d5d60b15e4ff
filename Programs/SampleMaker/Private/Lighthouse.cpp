#include "Lighthouse.h"

#include "BlueprintWriter.h"
#include "Engine/Blueprint.h"
#include "Failure.h"
#include "GameFramework/Actor.h"
#include "UObject/UObjectGlobals.h"

FLighthouse FLighthouse::Make(const FNodeTexts& Texts)
{
	UClass& Character = Require(FindObject<UClass>(nullptr, TEXT("/Script/Engine.Character")), TEXT("class Character"));
	FLighthouse Lighthouse;
	Lighthouse.Door = &FBlueprintWriter::Create(TEXT("/Game/BP_Door"), *AActor::StaticClass(),
		TEXT("A door of the lighthouse. It opens for the player unless it is locked."));
	Lighthouse.Enemy = &FBlueprintWriter::Create(TEXT("/Game/BP_Enemy"), *AActor::StaticClass(),
		TEXT("A guard of the lighthouse. It walks its round, takes damage and drops its loot."));
	Lighthouse.Player = &FBlueprintWriter::Create(TEXT("/Game/BP_Player"), Character,
		TEXT("The player's character. It opens doors and collects coins and keys."));

	using FStep = void (*)(const FLighthouse&, const FNodeTexts&);
	for (const FStep Step : {&DeclareDoor, &DeclareEnemy, &DeclarePlayer, &WriteDoor, &WriteEnemy, &WritePlayer})
	{
		Step(Lighthouse, Texts);
	}
	for (UBlueprint* const Blueprint : Lighthouse.GetAll())
	{
		const FBlueprintWriter Writer(*Blueprint, Texts);
		Writer.PutSuggestionsBelow();
		Writer.Compile();
	}
	return Lighthouse;
}
