#pragma once

#include "CoreMinimal.h"

/** Compression with zlib, in its own format (a ".zlib" file). Any thread. */
class VEXELCORE_API FVexelCompression
{
public:
	/** False, with Out empty, when the data is more than the format's 32-bit sizes or the memory hold. */
	static bool CompressData(TConstArrayView<uint8> In, TArray<uint8>& Out);

	/**
	 * False, with Out empty, for data that is torn, damaged or followed by something, and for data that would grow beyond the
	 * limit: a few bytes can stand for gigabytes.
	 */
	static bool DecompressData(TConstArrayView<uint8> In, TArray<uint8>& Out, int32 MaxBytes);
};
