#pragma once

#include "CoreTypes.h"

enum EThreadPriority
{
	TPri_Normal,
	TPri_AboveNormal,
	TPri_BelowNormal,
	TPri_Highest,
	TPri_Lowest,
	TPri_SlightlyBelowNormal,
	TPri_TimeCritical,
	TPri_Num
};

struct FPlatformAffinity
{
	static constexpr uint64 GetNoAffinityMask() { return ~0ull; }
};
