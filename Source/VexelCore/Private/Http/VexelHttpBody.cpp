#include "Http/VexelHttpBody.h"

#include "GenericPlatform/GenericPlatformFile.h"
#include "HAL/PlatformFileManager.h"

using namespace VexelInternal::Http;

FVexelHttpBodyReader::FVexelHttpBodyReader(const FRequestBody& InBody)
	: Body(InBody)
{
}

FVexelHttpBodyReader::~FVexelHttpBodyReader() = default;

int64 FVexelHttpBodyReader::Read(uint8* Out, int64 MaxBytes)
{
	while (Body.Pieces.IsValidIndex(PieceIndex))
	{
		const FBodyPiece& Piece = Body.Pieces[PieceIndex];
		const int64 NumNow = FMath::Min(MaxBytes, Piece.GetNum() - PiecePosition);
		if (NumNow > 0)
		{
			return ReadPiece(Piece, Out, NumNow);
		}
		++PieceIndex;
		PiecePosition = 0;
		File.Reset();
	}
	return 0;
}

bool FVexelHttpBodyReader::Seek(int64 Position)
{
	if (Position < 0 || Position > Body.GetNum())
	{
		return false;
	}
	File.Reset();
	PieceIndex = 0;
	while (Body.Pieces.IsValidIndex(PieceIndex) && Position > Body.Pieces[PieceIndex].GetNum())
	{
		Position -= Body.Pieces[PieceIndex++].GetNum();
	}
	PiecePosition = Position;
	return true;
}

int64 FVexelHttpBodyReader::ReadPiece(const FBodyPiece& Piece, uint8* Out, int64 NumBytes)
{
	if (Piece.Path.IsEmpty())
	{
		FMemory::Memcpy(Out, Piece.Bytes.GetData() + PiecePosition, SIZE_T(NumBytes));
	}
	else
	{
		if (!File)
		{
			File.Reset(FPlatformFileManager::Get().GetPlatformFile().OpenRead(*Piece.Path));
		}
		if (!File || !File->Seek(PiecePosition) || !File->Read(Out, NumBytes))
		{
			FailedPath = Piece.Path;
			return -1;
		}
	}
	PiecePosition += NumBytes;
	return NumBytes;
}
