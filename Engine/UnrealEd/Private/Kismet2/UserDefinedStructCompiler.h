#pragma once

#include "CoreMinimal.h"

class UBlueprint;
class UStruct;
class UUserDefinedStruct;

/**
 * Builds a structure again from its editor data. What has values of it keeps them: the old layout goes to a structure of its
 * own, which those values have until the structures and classes that contain them are built again too.
 */
class FUserDefinedStructCompiler
{
public:
	explicit FUserDefinedStructCompiler(UUserDefinedStruct& Struct);

	void Compile();

private:
	struct FRebuiltStruct
	{
		UUserDefinedStruct* Struct = nullptr;
		UUserDefinedStruct* OldStruct = nullptr;
	};

	void AddWithContainers(UUserDefinedStruct& Struct, const TArray<UUserDefinedStruct*>& All);
	bool UsesRebuilt(const UStruct& Owner) const;
	void PointToOldStructs(UStruct& Owner) const;
	static void BuildMembers(UUserDefinedStruct& Struct);

	/** Contained structures first. */
	TArray<FRebuiltStruct> Structs;
};
