#include "VexelStorage.h"

#include "Misc/Paths.h"
#include "VexelCrypto.h"
#include "VexelFile.h"
#include "VexelLog.h"
#include "VexelStringUtil.h"

namespace
{
constexpr int32 MaxNameLength = 100;
constexpr int32 DigestBytesInName = 9;

/**
 * A text as the name of one file or directory. A text that is no such name as it stands gets a digest of itself, so that two
 * different ones never become the same.
 */
FString ToFileName(const FString& Text, bool bWithExtension)
{
	FString Name;
	for (const TCHAR Character : Text)
	{
		const bool bKept = Character < 127 && (FChar::IsAlnum(Character) || Character == TEXT('-') || Character == TEXT('_'));
		const bool bDot = bWithExtension && Character == TEXT('.') && !Name.IsEmpty();
		Name.AppendChar(bKept || bDot ? Character : TEXT('_'));
	}
	if (Name.Equals(Text) && !Name.IsEmpty() && Name.Len() <= MaxNameLength)
	{
		return Name;
	}
	const std::string Utf8 = FVexelStringUtil::ToStdStringUtf8(Text);
	const TArray<uint8> Digest =
		FVexelCrypto::Sha256(TConstArrayView<uint8>(reinterpret_cast<const uint8*>(Utf8.data()), int32(Utf8.size())));
	const FString Mark = FVexelCrypto::Base64UrlEncode(MakeArrayView(Digest).Left(DigestBytesInName));
	const FString Extension = bWithExtension ? FPaths::GetExtension(Name, true).Left(MaxNameLength) : FString();
	return Name.LeftChop(Extension.Len()).Left(MaxNameLength) + TEXT("-") + Mark + Extension;
}

TOptional<FString> Store(const FString& ModelId, const FString& FileName, TConstArrayView<uint8> Bytes)
{
	const FString Path = FPaths::ProjectSavedDir() / TEXT("VexelStorage/Models") / ToFileName(ModelId, false) / FileName;
	const TVexelExpected<void> Saved = FVexelFile::SaveWhole(Path, Bytes);
	if (Saved.HasError())
	{
		VEXEL_LOG(Warning, "%s", *Saved.GetError().ToShortString());
		return NullOpt;
	}
	return Path;
}
}

TOptional<FString> FVexelStorage::StoreGeneratedModel(const FString& ModelId, const FString& Extension, TConstArrayView<uint8> Bytes)
{
	return Store(ModelId, ToFileName(TEXT("model") + Extension, true), Bytes);
}

TOptional<FString> FVexelStorage::StoreGeneratedAssetForModel(
	const FString& ModelId, const FString& FileName, TConstArrayView<uint8> Bytes)
{
	return Store(ModelId, ToFileName(FileName, true), Bytes);
}
