#include "VexelSecureStorage.h"

#include "HAL/CriticalSection.h"
#include "HAL/PlatformMisc.h"
#include "Misc/Paths.h"
#include "Misc/ScopeLock.h"
#include "Storage/PrivateFile.h"
#include "Storage/SecretVault.h"
#include "VexelErrorKinds.h"
#include "VexelStringUtil.h"

#include <pwd.h>
#include <unistd.h>

namespace
{
/** Longest key and longest value, in characters. */
constexpr int32 MaxLength = 1 << 20;

struct FStoreSettings
{
	FCriticalSection Lock;
	FString Directory;
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

std::string GetDirectory()
{
	FStoreSettings& Settings = GetSettings();
	FScopeLock Guard(&Settings.Lock);
	return FVexelStringUtil::ToStdStringUtf8(Settings.Directory.IsEmpty() ? GetDefaultDirectory() : Settings.Directory);
}

std::string GetLockPath(const std::string& Directory)
{
	return Directory + "/secrets.lock";
}
}

TVexelExpected<void> FVexelSecureStorage::StoreValueString(const FString& Key, const FString& Value)
{
	if (Key.Len() > MaxLength || Value.Len() > MaxLength)
	{
		return VEXEL_ERROR(FVexelError_SecureStorage, "A key or value of the secure store is at most %d characters long", MaxLength);
	}
	const std::string Directory = GetDirectory();
	VEXEL_TRY_VOID(PrivateFile::MakeDirectory(Directory), "while storing value '%s'", *Key);
	VEXEL_TRY(const FFileLock Lock, FFileLock::Take(GetLockPath(Directory)), "while storing value '%s'", *Key);
	VEXEL_TRY(FSecretVault Vault, FSecretVault::Open(Directory), "while storing value '%s'", *Key);
	Vault.Set(FSecretBytes(Key), FSecretBytes(Value));
	VEXEL_TRY_VOID(Vault.Save(Directory), "while storing value '%s'", *Key);
	return TVexelExpected<void>();
}

TVexelExpected<FString> FVexelSecureStorage::LoadValueString(const FString& Key)
{
	const std::string Directory = GetDirectory();
	if (PrivateFile::Exists(Directory))
	{
		VEXEL_TRY(const FFileLock Lock, FFileLock::Take(GetLockPath(Directory)), "while loading value '%s'", *Key);
		VEXEL_TRY(const FSecretVault Vault, FSecretVault::Open(Directory), "while loading value '%s'", *Key);
		if (const FSecretBytes* const Value = Vault.Find(FSecretBytes(Key)))
		{
			return Value->ToText();
		}
	}
	return VEXEL_ERROR(FVexelError_SecureStorage, "No stored value for '%s'", *Key);
}

TVexelExpected<void> FVexelSecureStorage::DeleteValue(const FString& Key)
{
	const std::string Directory = GetDirectory();
	if (!PrivateFile::Exists(Directory))
	{
		return TVexelExpected<void>();
	}
	VEXEL_TRY(const FFileLock Lock, FFileLock::Take(GetLockPath(Directory)), "while deleting value '%s'", *Key);
	VEXEL_TRY(FSecretVault Vault, FSecretVault::Open(Directory), "while deleting value '%s'", *Key);
	if (Vault.Remove(FSecretBytes(Key)))
	{
		VEXEL_TRY_VOID(Vault.Save(Directory), "while deleting value '%s'", *Key);
	}
	return TVexelExpected<void>();
}

void FVexelSecureStorage::SetDirectory(const FString& Directory)
{
	FStoreSettings& Settings = GetSettings();
	FScopeLock Guard(&Settings.Lock);
	Settings.Directory = Directory.IsEmpty() ? FString() : FPaths::ConvertRelativePathToFull(Directory);
}
