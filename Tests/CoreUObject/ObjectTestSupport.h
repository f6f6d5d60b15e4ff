#pragma once

#include "ReflectedTestTypes.h"
#include "UObject/GarbageCollection.h"
#include "UObject/Package.h"

#include <gtest/gtest.h>

/** Each test has a package of its own, collected with what it made when the test ends. */
class FObjectTest : public testing::Test
{
protected:
	void SetUp() override
	{
		ProcessNewlyLoadedUObjects();
		static int32 Number = 0;
		Package = CreatePackage(*FString::Printf(TEXT("/Temp/ObjectTest%d"), ++Number));
		Package->AddToRoot();
	}
	void TearDown() override
	{
		Package->RemoveFromRoot();
		CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
	}

	UReflectedThing* MakeThing(const TCHAR* Name = nullptr, UObject* Outer = nullptr) const
	{
		return NewObject<UReflectedThing>(Outer ? Outer : Package, Name ? FName(Name) : FName());
	}

	UPackage* Package = nullptr;
};
