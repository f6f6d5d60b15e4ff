#include "Storage/FileSecretStore.h"

#include "Storage/PrivateFile.h"
#include "Storage/SecretVault.h"
#include "VexelErrorKinds.h"
#include "VexelStringUtil.h"

FFileSecretStore::FFileSecretStore(const FString& InDirectory)
	: Directory(FVexelStringUtil::ToStdStringUtf8(InDirectory))
{
}

TVexelExpected<void> FFileSecretStore::Store(const FString& Key, const FString& Value)
{
	VEXEL_TRY_VOID(PrivateFile::MakeDirectory(Directory));
	VEXEL_TRY(const FVexelFileLock Lock, TakeLock());
	VEXEL_TRY(FSecretVault Vault, FSecretVault::Open(Directory));
	Vault.Set(FSecretBytes(Key), FSecretBytes(Value));
	return Vault.Save(Directory);
}

TVexelExpected<TOptional<FString>> FFileSecretStore::Load(const FString& Key)
{
	if (!PrivateFile::Exists(Directory))
	{
		return TOptional<FString>();
	}
	VEXEL_TRY(const FVexelFileLock Lock, TakeLock());
	VEXEL_TRY(const FSecretVault Vault, FSecretVault::Open(Directory));
	const FSecretBytes* const Value = Vault.Find(FSecretBytes(Key));
	return Value ? TOptional<FString>(Value->ToText()) : TOptional<FString>();
}

TVexelExpected<void> FFileSecretStore::Delete(const FString& Key)
{
	if (!PrivateFile::Exists(Directory))
	{
		return TVexelExpected<void>();
	}
	VEXEL_TRY(const FVexelFileLock Lock, TakeLock());
	VEXEL_TRY(FSecretVault Vault, FSecretVault::Open(Directory));
	return Vault.Remove(FSecretBytes(Key)) ? Vault.Save(Directory) : TVexelExpected<void>();
}

TVexelExpected<FVexelFileLock> FFileSecretStore::TakeLock() const
{
	TVexelExpected<FVexelFileLock> Lock = FVexelFileLock::Take(UTF8_TO_TCHAR((Directory + "/secrets.lock").c_str()));
	if (Lock.HasError())
	{
		return VEXEL_ERROR_CAUSED(FVexelError_SecureStorage, Lock.GetError(), "The secrets are in use");
	}
	return Lock;
}
