#pragma once

#include "CoreMinimal.h"

class FNodeTexts;
class UBlueprint;
class UWorld;

/** The sample's Blueprints. They refer to each other, so all of them are there before the first one is written. */
struct FLighthouse
{
	UBlueprint* Door = nullptr;
	UBlueprint* Enemy = nullptr;
	UBlueprint* Player = nullptr;

	/** Makes every Blueprint in memory and compiles it. */
	static FLighthouse Make(const FNodeTexts& Texts);
	TArray<UBlueprint*> GetAll() const { return {Door, Enemy, Player}; }
};

/** Variables and functions with their parameters: what the other Blueprints may call. */
void DeclareDoor(const FLighthouse& Lighthouse, const FNodeTexts& Texts);
void DeclareEnemy(const FLighthouse& Lighthouse, const FNodeTexts& Texts);
void DeclarePlayer(const FLighthouse& Lighthouse, const FNodeTexts& Texts);

/** Graphs. */
void WriteDoor(const FLighthouse& Lighthouse, const FNodeTexts& Texts);
void WriteEnemy(const FLighthouse& Lighthouse, const FNodeTexts& Texts);
void WritePlayer(const FLighthouse& Lighthouse, const FNodeTexts& Texts);

/** The level, with actors of the finished Blueprints in it and a Blueprint of its own. */
UWorld& MakeLevel(const FLighthouse& Lighthouse, const FNodeTexts& Texts);
