#pragma once

#include "CoreTypes.h"

/** How the numbers of a surface become those of colours. */
enum ERangeCompressionMode
{
	RCM_UNorm,
	RCM_SNorm,
	RCM_MinMaxNorm,
	RCM_MinMax
};

/** How pixels are read. */
struct FReadSurfaceDataFlags
{
	FReadSurfaceDataFlags(ERangeCompressionMode InCompressionMode = RCM_UNorm)
		: CompressionMode(InCompressionMode)
	{
	}

	ERangeCompressionMode GetCompressionMode() const { return CompressionMode; }

private:
	ERangeCompressionMode CompressionMode;
};
