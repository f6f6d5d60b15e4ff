#pragma once

#include "Math/Vector.h"
#include "UObject/NameTypes.h"

/** Pseudo-random numbers that a seed decides: the same seed gives the same numbers everywhere. */
struct CORE_API FRandomStream
{
	FRandomStream()
		: FRandomStream(0)
	{
	}
	explicit FRandomStream(int32 InSeed) { Initialize(InSeed); }
	explicit FRandomStream(FName InName) { Initialize(InName); }

	void Initialize(int32 InSeed)
	{
		InitialSeed = InSeed;
		Seed = InSeed;
	}
	void Initialize(FName InName);
	void Reset() const { Seed = InitialSeed; }
	int32 GetInitialSeed() const { return InitialSeed; }
	int32 GetCurrentSeed() const { return Seed; }
	void GenerateNewSeed();

	/** In [0, 1). */
	float GetFraction() const;
	float FRand() const { return GetFraction(); }
	uint32 GetUnsignedInt() const;
	/** In [0, A), 0 if A is not positive. */
	int32 RandHelper(int32 A) const { return A > 0 ? FMath::Min(FMath::TruncToInt(GetFraction() * static_cast<float>(A)), A - 1) : 0; }
	/** In [Min, Max]. */
	int32 RandRange(int32 Min, int32 Max) const { return Min + RandHelper(Max - Min + 1); }
	float FRandRange(float Min, float Max) const { return Min + (Max - Min) * FRand(); }
	FVector VRand() const;

	FString ToString() const { return FString::Printf(TEXT("FRandomStream(InitialSeed=%i, Seed=%i)"), InitialSeed, Seed); }
	bool operator==(const FRandomStream& Other) const { return InitialSeed == Other.InitialSeed && Seed == Other.Seed; }

	int32 InitialSeed;
	mutable int32 Seed;

private:
	void MutateSeed() const;
};
