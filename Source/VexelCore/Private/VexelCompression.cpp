#include "VexelCompression.h"

#include <zlib.h>

namespace
{
/** The first allocation for what comes out; it doubles from there. */
constexpr int32 FirstOutputBytes = 64 * 1024;

/** Inflates until the end of the stream; false when it does not end where the data does, or grows beyond the limit. */
bool InflateAll(z_stream& Stream, TArray<uint8>& Out, int32 MaxBytes)
{
	int Status = Z_OK;
	while (Status == Z_OK)
	{
		const int32 NumDone = Out.Num();
		// One byte beyond the limit tells data that ends there from data that goes on.
		const int64 Wanted = FMath::Min(int64(MaxBytes) + 1, FMath::Max(int64(FirstOutputBytes), int64(NumDone) * 2));
		if (Wanted <= NumDone || Wanted > MAX_int32)
		{
			return false;
		}
		Out.SetNumUninitialized(int32(Wanted));
		Stream.next_out = Out.GetData() + NumDone;
		Stream.avail_out = uInt(Wanted - NumDone);
		Status = inflate(&Stream, Z_NO_FLUSH);
		Out.SetNum(int32(Wanted - Stream.avail_out));
		if (Status == Z_OK && Stream.avail_in == 0 && Stream.avail_out != 0)
		{
			return false;
		}
	}
	return Status == Z_STREAM_END && Stream.avail_in == 0 && Out.Num() <= MaxBytes;
}
}

bool FVexelCompression::CompressData(TConstArrayView<uint8> In, TArray<uint8>& Out)
{
	Out.Reset();
	const uLong Bound = compressBound(uLong(In.Num()));
	if (Bound > uLong(MAX_int32))
	{
		return false;
	}
	Out.SetNumUninitialized(int32(Bound));
	uLongf NumBytes = Bound;
	if (compress2(Out.GetData(), &NumBytes, In.GetData(), uLong(In.Num()), Z_DEFAULT_COMPRESSION) != Z_OK)
	{
		Out.Reset();
		return false;
	}
	Out.SetNum(int32(NumBytes));
	return true;
}

bool FVexelCompression::DecompressData(TConstArrayView<uint8> In, TArray<uint8>& Out, int32 MaxBytes)
{
	Out.Reset();
	z_stream Stream = {};
	if (MaxBytes < 0 || inflateInit(&Stream) != Z_OK)
	{
		return false;
	}
	Stream.next_in = const_cast<Bytef*>(In.GetData());
	Stream.avail_in = uInt(In.Num());
	const bool bWhole = InflateAll(Stream, Out, MaxBytes);
	inflateEnd(&Stream);
	if (!bWhole)
	{
		Out.Reset();
	}
	return bWhole;
}
