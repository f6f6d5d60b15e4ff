#include "VexelHttpPayload.h"

#include "Dom/JsonObject.h"
#include "HAL/FileManager.h"
#include "Misc/Guid.h"
#include "Storage/SecretBytes.h"
#include "VexelCrypto.h"
#include "VexelJson.h"

namespace
{
/** Three escaped bytes, which a character takes at most; one beyond 16 bits takes four, and two characters. */
constexpr int32 LongestEscape = 9;

void AppendUtf8(TArray<uint8>& Bytes, const FString& Text)
{
	const FWipedUtf8 Utf8(*Text, Text.Len());
	Bytes.Append(reinterpret_cast<const uint8*>(Utf8.Get()), Utf8.Length());
}

bool IsUnreserved(uint8 Byte)
{
	const bool bLetter = (Byte >= 'a' && Byte <= 'z') || (Byte >= 'A' && Byte <= 'Z');
	const bool bDigit = Byte >= '0' && Byte <= '9';
	return bLetter || bDigit || Byte == '-' || Byte == '.' || Byte == '_' || Byte == '~';
}

void AppendUrlEncoded(FString& Out, const FString& Text)
{
	const FWipedUtf8 Utf8(*Text, Text.Len());
	for (int32 Index = 0; Index < Utf8.Length(); ++Index)
	{
		const uint8 Byte = uint8(Utf8.Get()[Index]);
		if (IsUnreserved(Byte))
		{
			Out.AppendChar(TCHAR(Byte));
		}
		else
		{
			Out.Appendf(TEXT("%%%02X"), uint32(Byte));
		}
	}
}

/** A name inside a part's header, which a quote or a line end would break out of. */
FString ToQuotedName(const FString& Name)
{
	return Name.Replace(TEXT("\""), TEXT("%22")).Replace(TEXT("\r"), TEXT("%0D")).Replace(TEXT("\n"), TEXT("%0A"));
}
}

FVexelHttpUrlParams::~FVexelHttpUrlParams()
{
	for (TTuple<FString, FString>& Pair : Pairs)
	{
		FVexelCrypto::Wipe(Pair.Get<1>());
	}
}

FVexelHttpUrlParams& FVexelHttpUrlParams::Add(const FString& Key, const FString& Value)
{
	Pairs.Emplace(Key, Value);
	return *this;
}

FString FVexelHttpUrlParams::ToUrlEncodedString() const
{
	int32 LongestText = 0;
	for (const TTuple<FString, FString>& Pair : Pairs)
	{
		LongestText += LongestEscape * (Pair.Get<0>().Len() + Pair.Get<1>().Len()) + 2;
	}
	// At once, because a text that grows leaves its values behind in the memory that it gives up.
	FString Text;
	Text.Reserve(LongestText);
	for (const TTuple<FString, FString>& Pair : Pairs)
	{
		if (!Text.IsEmpty())
		{
			Text += TEXT("&");
		}
		AppendUrlEncoded(Text, Pair.Get<0>());
		Text += TEXT("=");
		AppendUrlEncoded(Text, Pair.Get<1>());
	}
	return Text;
}

FVexelHttpMultipartPayload::FVexelHttpMultipartPayload()
	: Boundary(TEXT("vexel-") + FGuid::NewGuid().ToString())
{
}

void FVexelHttpMultipartPayload::AppendBinaryFile(const FString& FieldName, const FString& FileName, TConstArrayView<uint8> FileBytes)
{
	BeginPart(FieldName, FileName);
	GetOpenBytes().Append(FileBytes.GetData(), FileBytes.Num());
	AppendUtf8(GetOpenBytes(), TEXT("\r\n"));
}

bool FVexelHttpMultipartPayload::AppendFileFromDisk(const FString& FieldName, const FString& FileName, const FString& Path)
{
	const int64 NumFileBytes = IFileManager::Get().FileSize(*Path);
	if (NumFileBytes < 0)
	{
		return false;
	}
	BeginPart(FieldName, FileName);
	VexelInternal::Http::FBodyPiece& Piece = Pieces.AddDefaulted_GetRef();
	Piece.Path = Path;
	Piece.NumFileBytes = NumFileBytes;
	AppendUtf8(GetOpenBytes(), TEXT("\r\n"));
	return true;
}

void FVexelHttpMultipartPayload::CloseForm()
{
	checkf(!bClosed, TEXT("The form is closed already"));
	AppendUtf8(GetOpenBytes(), FString::Printf(TEXT("--%s--\r\n"), *Boundary));
	bClosed = true;
}

void FVexelHttpMultipartPayload::BeginPart(const FString& FieldName, const FString& FileName)
{
	checkf(!bClosed, TEXT("A closed form takes no more parts"));
	const FString Disposition =
		FString::Printf(TEXT("form-data; name=\"%s\"; filename=\"%s\""), *ToQuotedName(FieldName), *ToQuotedName(FileName));
	AppendUtf8(GetOpenBytes(),
		FString::Printf(
			TEXT("--%s\r\nContent-Disposition: %s\r\nContent-Type: application/octet-stream\r\n\r\n"), *Boundary, *Disposition));
}

TArray<uint8>& FVexelHttpMultipartPayload::GetOpenBytes()
{
	if (Pieces.IsEmpty() || !Pieces.Last().Path.IsEmpty())
	{
		Pieces.AddDefaulted();
	}
	return Pieces.Last().Bytes;
}

namespace VexelInternal::Http
{
FString UrlEncode(const FString& Text)
{
	FString Encoded;
	Encoded.Reserve(LongestEscape * Text.Len());
	AppendUrlEncoded(Encoded, Text);
	return Encoded;
}

void IRequest::SetContentBytes(const FString& ContentType, TArray<uint8> Bytes)
{
	TArray<FBodyPiece> Pieces;
	Pieces.AddDefaulted_GetRef().Bytes = MoveTemp(Bytes);
	SetContent(ContentType, MoveTemp(Pieces));
}

FRequestBody::~FRequestBody()
{
	for (FBodyPiece& Piece : Pieces)
	{
		if (bSecret)
		{
			FVexelCrypto::Wipe(Piece.Bytes);
		}
	}
}

void FRequestBody::SetContent(const FString& InContentType, TArray<FBodyPiece> InPieces)
{
	ContentType = InContentType;
	Pieces = MoveTemp(InPieces);
}

int64 FRequestBody::GetNum() const
{
	int64 Num = 0;
	for (const FBodyPiece& Piece : Pieces)
	{
		Num += Piece.GetNum();
	}
	return Num;
}

bool TPayloadHelper<TSharedPtr<FJsonObject>>::SetRequestData(const TSharedPtr<FJsonObject>& Payload, IRequest& Request)
{
	FString Text;
	if (!Payload || !FVexelJsonConversions::JsonToString(Payload.ToSharedRef(), Text))
	{
		return false;
	}
	TArray<uint8> Bytes;
	AppendUtf8(Bytes, Text);
	Request.SetContentBytes(TEXT("application/json"), MoveTemp(Bytes));
	return true;
}

bool TPayloadHelper<TSharedRef<FJsonObject>>::SetRequestData(const TSharedRef<FJsonObject>& Payload, IRequest& Request)
{
	return TPayloadHelper<TSharedPtr<FJsonObject>>::SetRequestData(Payload, Request);
}

bool TPayloadHelper<FVexelHttpUrlParams>::SetRequestData(const FVexelHttpUrlParams& Payload, IRequest& Request)
{
	TArray<uint8> Bytes;
	FString Text = Payload.ToUrlEncodedString();
	AppendUtf8(Bytes, Text);
	FVexelCrypto::Wipe(Text);
	Request.SetContentBytes(TEXT("application/x-www-form-urlencoded"), MoveTemp(Bytes));
	return true;
}

bool TPayloadHelper<FVexelHttpTextPayload>::SetRequestData(const FVexelHttpTextPayload& Payload, IRequest& Request)
{
	TArray<uint8> Bytes;
	AppendUtf8(Bytes, Payload.Text);
	Request.SetContentBytes(Payload.ContentType, MoveTemp(Bytes));
	return !Payload.ContentType.IsEmpty();
}

bool TPayloadHelper<FVexelHttpMultipartPayload>::SetRequestData(const FVexelHttpMultipartPayload& Payload, IRequest& Request)
{
	if (!Payload.IsClosed())
	{
		return false;
	}
	Request.SetContent(TEXT("multipart/form-data; boundary=") + Payload.GetBoundary(), Payload.GetPieces());
	return true;
}
}
