#pragma once

#include "CoreMinimal.h"
#include "VexelHttpPayload.h"

class IFileHandle;

/** Reads a body's pieces one after another, files from the disk as they are needed. One thread at a time. */
class FVexelHttpBodyReader
{
public:
	explicit FVexelHttpBodyReader(const VexelInternal::Http::FRequestBody& Body);
	~FVexelHttpBodyReader();
	UE_NONCOPYABLE(FVexelHttpBodyReader)

	/** Bytes read, 0 at the end; negative when a file cannot be read or is not as long as it was said to be. */
	int64 Read(uint8* Out, int64 MaxBytes);
	/** Goes to a position between 0 and the body's size; false for another. */
	bool Seek(int64 Position);
	/** The file that could not be read; empty unless Read() failed. */
	const FString& GetFailedPath() const { return FailedPath; }

private:
	int64 ReadPiece(const VexelInternal::Http::FBodyPiece& Piece, uint8* Out, int64 MaxBytes);

	const VexelInternal::Http::FRequestBody& Body;
	int32 PieceIndex = 0;
	int64 PiecePosition = 0;
	TUniquePtr<IFileHandle> File;
	FString FailedPath;
};
