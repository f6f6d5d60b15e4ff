#include "VexelSecureStorage.h"

#include "HAL/CriticalSection.h"
#include "HAL/PlatformMisc.h"
#include "Misc/Paths.h"
#include "Misc/ScopeLock.h"
#include "Storage/FileSecretStore.h"
#include "Storage/KeyringSecretStore.h"
#include "Storage/PrivateFile.h"
#include "VexelCrypto.h"
#include "VexelErrorKinds.h"
#include "VexelInternalConfig.h"
#include "VexelLog.h"
#include "VexelSecrets.h"
#include "VexelStringUtil.h"

#include <pwd.h>
#include <unistd.h>

namespace
{
/** Longest key and longest value, in characters. */
constexpr int32 MaxLength = 1 << 20;
constexpr int32 MaxReadableName = 64;
constexpr int32 DigestBytesInName = 9;

FConfigValueBase StoreSetting(TEXT("SecretStore"), TEXT("auto"));

struct FStoreSettings
{
	FCriticalSection Lock;
	FString Directory;
	FString Scope;
};

/** Made at its first use and never destroyed: programs choose the directory before the engine has started. */
FStoreSettings& GetSettings()
{
	static FStoreSettings* const Settings = new FStoreSettings;
	return *Settings;
}

FString GetHomeDirectory()
{
	const FString Home = FPlatformMisc::GetEnvironmentVariable(TEXT("HOME"));
	if (!Home.IsEmpty())
	{
		return Home;
	}
	const passwd* const User = getpwuid(geteuid());
	return User && User->pw_dir ? FString(UTF8_TO_TCHAR(User->pw_dir)) : FString();
}

FString GetDefaultDirectory()
{
	const FString DataHome = FPlatformMisc::GetEnvironmentVariable(TEXT("XDG_DATA_HOME"));
	// The convention has a relative path ignored.
	return DataHome.StartsWith(TEXT("/")) ? DataHome / TEXT("vexel") : GetHomeDirectory() / TEXT(".local/share/vexel");
}

/** A scope as the name of a directory: what it is, for people, and a digest of it, for two that look alike. */
FString ToDirectoryName(const FString& Scope)
{
	FString Name;
	for (const TCHAR Character : Scope.Left(MaxReadableName))
	{
		Name.AppendChar(Character < 127 && FChar::IsAlnum(Character) ? Character : TEXT('_'));
	}
	const FTCHARToUTF8 Utf8(*Scope, Scope.Len());
	const TArray<uint8> Digest =
		FVexelCrypto::Sha256(TConstArrayView<uint8>(reinterpret_cast<const uint8*>(Utf8.Get()), Utf8.Length()));
	return Name + TEXT("-") + FVexelCrypto::Base64UrlEncode(MakeArrayView(Digest).Left(DigestBytesInName));
}

/** Where the secrets of the moment are. */
struct FPlace
{
	FString Scope;
	/** Of the encrypted file, and of the lock whatever the session has. */
	FString Directory;
	/** Whether the directory was chosen, and no keyring is asked. */
	bool bFileAlone = false;
};

FPlace GetPlace()
{
	FPlace Place;
	{
		FStoreSettings& Settings = GetSettings();
		FScopeLock Guard(&Settings.Lock);
		Place = {Settings.Scope, Settings.Directory, !Settings.Directory.IsEmpty()};
	}
	if (!Place.bFileAlone)
	{
		Place.Directory =
			Place.Scope.IsEmpty() ? GetDefaultDirectory() : GetDefaultDirectory() / TEXT("services") / ToDirectoryName(Place.Scope);
	}
	return Place;
}

/** The stores of the moment, the best first. A secret is stored in the first one that takes it. */
TArray<TUniquePtr<ISecretStore>> MakeStores()
{
	const FPlace Place = GetPlace();
	TArray<TUniquePtr<ISecretStore>> Stores;
	if (!Place.bFileAlone && StoreSetting.Get() != TEXT("file") && FKeyringSecretStore::IsAvailable())
	{
		Stores.Add(MakeUnique<FKeyringSecretStore>(Place.Scope));
	}
	Stores.Add(MakeUnique<FFileSecretStore>(Place.Directory));
	return Stores;
}
}

TVexelExpected<void> FVexelSecureStorage::StoreValueString(const FString& Key, const FString& Value)
{
	if (Key.Len() > MaxLength || Value.Len() > MaxLength)
	{
		return VEXEL_ERROR(FVexelError_SecureStorage, "A key or value of the secure store is at most %d characters long", MaxLength);
	}
	FVexelSecrets::Add(Value);
	const TArray<TUniquePtr<ISecretStore>> Stores = MakeStores();
	for (int32 Index = 0; Index < Stores.Num(); ++Index)
	{
		TVexelExpected<void> Stored = Stores[Index]->Store(Key, Value);
		const bool bLast = Index == Stores.Num() - 1;
		if (Stored.HasError() && bLast)
		{
			VEXEL_TRY_VOID(MoveTemp(Stored), "while storing value '%s'", *Key);
		}
		if (Stored.HasError())
		{
			VEXEL_LOG(Warning, "%s", *Stored.GetError().ToShortString());
			continue;
		}
		// An older value behind this one would come back when the keyring is away.
		for (int32 Behind = Index + 1; Behind < Stores.Num(); ++Behind)
		{
			VEXEL_TRY_VOID(Stores[Behind]->Delete(Key), "while storing value '%s'", *Key);
		}
		break;
	}
	return TVexelExpected<void>();
}

TVexelExpected<FString> FVexelSecureStorage::LoadValueString(const FString& Key)
{
	// A store that cannot be read does not hide what another took in its place.
	TOptional<FVexelError> Failure;
	for (const TUniquePtr<ISecretStore>& Store : MakeStores())
	{
		TVexelExpected<TOptional<FString>> Loaded = Store->Load(Key);
		if (Loaded.HasError())
		{
			Failure = Failure ? Failure : Loaded.GetError();
		}
		else if (TOptional<FString>& Value = Loaded.GetValue())
		{
			FVexelSecrets::Add(*Value);
			return MoveTemp(*Value);
		}
	}
	if (Failure)
	{
		Failure->AppendContext(FString::Printf(TEXT("while loading value '%s'"), *Key));
		return *Failure;
	}
	return VEXEL_ERROR(FVexelError_SecureStorage, "No stored value for '%s'", *Key);
}

TVexelExpected<void> FVexelSecureStorage::DeleteValue(const FString& Key)
{
	TVexelExpected<void> Result;
	for (const TUniquePtr<ISecretStore>& Store : MakeStores())
	{
		const TVexelExpected<void> Deleted = Store->Delete(Key);
		Result = Result.HasValue() ? Deleted : Result;
	}
	VEXEL_TRY_VOID(MoveTemp(Result), "while deleting value '%s'", *Key);
	return TVexelExpected<void>();
}

TVexelExpected<TOptional<FVexelFileLock>> FVexelSecureStorage::TryTakeTurn()
{
	const FString Directory = GetPlace().Directory;
	VEXEL_TRY_VOID(PrivateFile::MakeDirectory(FVexelStringUtil::ToStdStringUtf8(Directory)));
	TVexelExpected<TOptional<FVexelFileLock>> Turn = FVexelFileLock::TryTake(Directory / TEXT("turn.lock"));
	if (Turn.HasError())
	{
		return VEXEL_ERROR_CAUSED(FVexelError_SecureStorage, Turn.GetError(), "No turn to replace a secret");
	}
	return Turn;
}

void FVexelSecureStorage::SetScope(const FString& Scope)
{
	FStoreSettings& Settings = GetSettings();
	FScopeLock Guard(&Settings.Lock);
	Settings.Scope = Scope;
}

void FVexelSecureStorage::SetDirectory(const FString& Directory)
{
	FStoreSettings& Settings = GetSettings();
	FScopeLock Guard(&Settings.Lock);
	Settings.Directory = Directory.IsEmpty() ? FString() : FPaths::ConvertRelativePathToFull(Directory);
}
