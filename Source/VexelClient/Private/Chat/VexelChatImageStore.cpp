#include "Chat/VexelChatImageStore.h"

#include "Chat/VexelChatHistoryFiles.h"
#include "Containers/StringConv.h"
#include "HAL/FileManager.h"
#include "Misc/FileHelper.h"
#include "Misc/Paths.h"
#include "VexelCrypto.h"
#include "VexelFile.h"
#include "VexelUrlUtils.h"

namespace
{
constexpr float FetchTimeoutSeconds = 60.0f;

struct FImageKind
{
	const TCHAR* Extension;
	/** What a file of the kind has at an offset. */
	FAnsiStringView Signature;
	int32 Offset;
};

constexpr FImageKind ImageKinds[] = {
	{TEXT(".png"), FAnsiStringView("\x89PNG\r\n\x1a\n", 8), 0},
	{TEXT(".jpg"), FAnsiStringView("\xFF\xD8\xFF", 3), 0},
	{TEXT(".gif"), FAnsiStringView("GIF8", 4), 0},
	{TEXT(".webp"), FAnsiStringView("WEBP", 4), 8},
};

bool Is(const FImageKind& Kind, TConstArrayView<uint8> Bytes)
{
	return Bytes.Num() >= Kind.Offset + Kind.Signature.Len() &&
		FMemory::Memcmp(Bytes.GetData() + Kind.Offset, Kind.Signature.GetData(), SIZE_T(Kind.Signature.Len())) == 0;
}

const FImageKind* FindKind(TConstArrayView<uint8> Bytes)
{
	for (const FImageKind& Kind : ImageKinds)
	{
		if (Is(Kind, Bytes))
		{
			return &Kind;
		}
	}
	return nullptr;
}

FString DigestOf(TConstArrayView<uint8> Bytes)
{
	constexpr int32 DigestBytes = 18;
	return FVexelCrypto::Base64UrlEncode(MakeArrayView(FVexelCrypto::Sha256(Bytes)).Left(DigestBytes));
}

/** An id as the name of one file. Ids of the service are outside text: one that is no such name is replaced by a digest of itself. */
FString ToFileName(const FString& Id)
{
	if (FVexelChatHistoryFiles::IsSafeChatId(Id))
	{
		return Id;
	}
	const FTCHARToUTF8 Utf8(*Id, Id.Len());
	return TEXT("id-") + DigestOf(TConstArrayView<uint8>(reinterpret_cast<const uint8*>(Utf8.Get()), Utf8.Length()));
}
}

FVexelChatImageStore::FVexelChatImageStore(FString InDirectory)
	: Directory(MoveTemp(InDirectory))
{
}

TVexelExpected<FString> FVexelChatImageStore::Attach(const FString& ChatId, TConstArrayView<uint8> Bytes) const
{
	const FString AssetId = TEXT("user-") + DigestOf(Bytes);
	VEXEL_TRY_VOID(Store(ChatId, AssetId, Bytes));
	return AssetId;
}

TVexelExpected<FString> FVexelChatImageStore::Store(const FString& ChatId, const FString& AssetId, TConstArrayView<uint8> Bytes) const
{
	if (Bytes.Num() > MaxImageBytes)
	{
		return VEXEL_ERROR_TITLED(FVexelError, "Image not taken", "It has %d bytes; the most is %d", Bytes.Num(), MaxImageBytes);
	}
	const FImageKind* const Kind = FindKind(Bytes);
	if (!Kind)
	{
		return VEXEL_ERROR_TITLED(FVexelError, "Image not taken", "It is no PNG, JPEG, GIF or WebP");
	}
	const FString Path = GetPath(ChatId, AssetId) + Kind->Extension;
	VEXEL_TRY_VOID(FVexelFile::SaveWhole(Path, Bytes), "while storing an image of conversation '%s'", *ChatId);
	return Path;
}

TVexelTaskResult<FString> FVexelChatImageStore::Fetch(
	FVexelHttp& Client, const FString& ServiceUrl, const FString& ChatId, const FString& AssetId, const FString& Url) const
{
	// The answer's words must not make this machine ask others in the clear, nor its own services.
	const TVexelExpected<FString> Origin = FVexelUrlUtils::GetOrigin(Url);
	const TVexelExpected<FString> ServiceOrigin = FVexelUrlUtils::GetOrigin(ServiceUrl);
	const bool bOfService = Origin && ServiceOrigin && Origin.GetValue().Equals(ServiceOrigin.GetValue());
	const bool bHttps = Origin && Origin.GetValue().StartsWith(TEXT("https://")) && !FVexelUrlUtils::IsLoopback(Url);
	if (!bOfService && !bHttps)
	{
		return VEXEL_ERROR_TITLED(FVexelError, "Image not taken", "It has no address of https");
	}
	return Client.Request(EVexelHttpVerb::Get, Url)
		.WithTimeout(FetchTimeoutSeconds)
		.WithAnswerLimit(MaxImageBytes)
		.SendAndAwait()
		.ThenOn(EVexelTaskThread::GameThread, [This = AsShared(), ChatId, AssetId](const TSharedRef<FVexelHttpResponse>& Response)
			{ return This->Store(ChatId, AssetId, Response->GetContent()); });
}

FString FVexelChatImageStore::FindPath(const FString& ChatId, const FString& AssetId) const
{
	for (const FImageKind& Kind : ImageKinds)
	{
		FString Path = GetPath(ChatId, AssetId) + Kind.Extension;
		if (IFileManager::Get().FileExists(*Path))
		{
			return Path;
		}
	}
	return FString();
}

TArray<uint8> FVexelChatImageStore::Load(const FString& ChatId, const FString& AssetId) const
{
	TArray<uint8> Bytes;
	const FString Path = FindPath(ChatId, AssetId);
	if (!Path.IsEmpty() && IFileManager::Get().FileSize(*Path) <= MaxImageBytes)
	{
		FFileHelper::LoadFileToArray(Bytes, *Path, FILEREAD_Silent);
	}
	return Bytes;
}

void FVexelChatImageStore::DeleteAll(const FString& ChatId) const
{
	IFileManager::Get().DeleteDirectory(*(Directory / ToFileName(ChatId)), false, true);
}

FString FVexelChatImageStore::GetPath(const FString& ChatId, const FString& AssetId) const
{
	return Directory / ToFileName(ChatId) / ToFileName(AssetId);
}
