#include "Storage/SecretVault.h"

#include "Storage/PrivateFile.h"
#include "VexelErrorKinds.h"

#include <memory>
#include <openssl/evp.h>
#include <openssl/rand.h>

namespace
{
constexpr uint8 Magic[] = {'V', 'X', 'S', 'E', 'C', 'R', 'T', 1};
constexpr int32 MagicBytes = int32(sizeof(Magic));
constexpr int32 KeyBytes = 32;
constexpr int32 NonceBytes = 12;
constexpr int32 TagBytes = 16;
constexpr int32 LengthBytes = 4;
/** A store is for short strings; a larger file is not ours. */
constexpr int32 MaxStoreBytes = 4 << 20;

using FCipher = std::unique_ptr<EVP_CIPHER_CTX, decltype(&EVP_CIPHER_CTX_free)>;

std::string GetStorePath(const std::string& Directory)
{
	return Directory + "/secrets.bin";
}

std::string GetKeyPath(const std::string& Directory)
{
	return Directory + "/secrets.key";
}

TVexelExpected<FSecretBytes> ReadKey(const std::string& Directory)
{
	VEXEL_TRY(FSecretBytes Key, PrivateFile::Read(GetKeyPath(Directory), KeyBytes));
	if (Key.Num() != KeyBytes)
	{
		return VEXEL_ERROR(FVexelError_SecureStorage, "'%s' is damaged", UTF8_TO_TCHAR(GetKeyPath(Directory).c_str()));
	}
	return Key;
}

TVexelExpected<FSecretBytes> ReadOrMakeKey(const std::string& Directory)
{
	if (PrivateFile::Exists(GetKeyPath(Directory)))
	{
		return ReadKey(Directory);
	}
	FSecretBytes Key(KeyBytes);
	if (RAND_priv_bytes(Key.GetData(), KeyBytes) != 1)
	{
		return VEXEL_ERROR(FVexelError_SecureStorage, "There is no source of random bytes");
	}
	VEXEL_TRY_VOID(PrivateFile::Write(GetKeyPath(Directory), Key.View()));
	return Key;
}

/** False when the cipher text is not what was written under this key. */
bool Decrypt(const FSecretBytes& Key, const FSecretBytes& Stored, FSecretBytes& OutPlain)
{
	const int32 NumCipher = Stored.Num() - MagicBytes - NonceBytes - TagBytes;
	if (NumCipher < 0 || FMemory::Memcmp(Stored.GetData(), Magic, MagicBytes) != 0)
	{
		return false;
	}
	const uint8* const Nonce = Stored.GetData() + MagicBytes;
	const uint8* const CipherText = Nonce + NonceBytes;
	uint8* const Tag = const_cast<uint8*>(CipherText) + NumCipher;
	OutPlain = FSecretBytes(NumCipher);
	const FCipher Cipher(EVP_CIPHER_CTX_new(), &EVP_CIPHER_CTX_free);
	if (!Cipher || EVP_DecryptInit_ex(Cipher.get(), EVP_aes_256_gcm(), nullptr, Key.GetData(), Nonce) != 1)
	{
		return false;
	}
	int NumDone = 0;
	if (EVP_DecryptUpdate(Cipher.get(), nullptr, &NumDone, Magic, MagicBytes) != 1)
	{
		return false;
	}
	if (NumCipher > 0 && EVP_DecryptUpdate(Cipher.get(), OutPlain.GetData(), &NumDone, CipherText, NumCipher) != 1)
	{
		return false;
	}
	uint8 NoBytes = 0;
	const bool bTagSet = EVP_CIPHER_CTX_ctrl(Cipher.get(), EVP_CTRL_GCM_SET_TAG, TagBytes, Tag) == 1;
	return bTagSet && EVP_DecryptFinal_ex(Cipher.get(), &NoBytes, &NumDone) == 1;
}

bool Encrypt(const FSecretBytes& Key, const FSecretBytes& Plain, TArray<uint8>& OutStored)
{
	OutStored.SetNumZeroed(MagicBytes + NonceBytes + Plain.Num() + TagBytes);
	FMemory::Memcpy(OutStored.GetData(), Magic, MagicBytes);
	uint8* const Nonce = OutStored.GetData() + MagicBytes;
	uint8* const CipherText = Nonce + NonceBytes;
	uint8* const Tag = CipherText + Plain.Num();
	const FCipher Cipher(EVP_CIPHER_CTX_new(), &EVP_CIPHER_CTX_free);
	if (!Cipher || RAND_bytes(Nonce, NonceBytes) != 1)
	{
		return false;
	}
	int NumDone = 0;
	const bool bStarted = EVP_EncryptInit_ex(Cipher.get(), EVP_aes_256_gcm(), nullptr, Key.GetData(), Nonce) == 1;
	if (!bStarted || EVP_EncryptUpdate(Cipher.get(), nullptr, &NumDone, Magic, MagicBytes) != 1)
	{
		return false;
	}
	if (Plain.Num() > 0 && EVP_EncryptUpdate(Cipher.get(), CipherText, &NumDone, Plain.GetData(), Plain.Num()) != 1)
	{
		return false;
	}
	uint8 NoBytes = 0;
	const bool bFinished = EVP_EncryptFinal_ex(Cipher.get(), &NoBytes, &NumDone) == 1;
	return bFinished && EVP_CIPHER_CTX_ctrl(Cipher.get(), EVP_CTRL_GCM_GET_TAG, TagBytes, Tag) == 1;
}

void WriteField(uint8*& At, const FSecretBytes& Bytes)
{
	for (int32 Index = 0; Index < LengthBytes; ++Index)
	{
		*At++ = uint8(uint32(Bytes.Num()) >> (8 * Index));
	}
	FMemory::Memcpy(At, Bytes.GetData(), SIZE_T(Bytes.Num()));
	At += Bytes.Num();
}

bool ReadField(TConstArrayView<uint8>& Rest, FSecretBytes& OutBytes)
{
	if (Rest.Num() < LengthBytes)
	{
		return false;
	}
	uint32 Length = 0;
	for (int32 Index = 0; Index < LengthBytes; ++Index)
	{
		Length |= uint32(Rest[Index]) << (8 * Index);
	}
	Rest = Rest.RightChop(LengthBytes);
	if (Length > uint32(Rest.Num()))
	{
		return false;
	}
	OutBytes = FSecretBytes(Rest.Left(int32(Length)));
	Rest = Rest.RightChop(int32(Length));
	return true;
}
}

TVexelExpected<FSecretVault> FSecretVault::Open(const std::string& Directory)
{
	FSecretVault Vault;
	const std::string StorePath = GetStorePath(Directory);
	if (!PrivateFile::Exists(StorePath))
	{
		return Vault;
	}
	VEXEL_TRY(const FSecretBytes Key, ReadKey(Directory));
	VEXEL_TRY(const FSecretBytes Stored, PrivateFile::Read(StorePath, MaxStoreBytes));
	FSecretBytes Plain;
	if (!Decrypt(Key, Stored, Plain) || !Vault.ReadEntries(Plain.View()))
	{
		return VEXEL_ERROR(FVexelError_SecureStorage, "'%s' was changed by somebody else, or its key was; delete it to start anew",
			UTF8_TO_TCHAR(StorePath.c_str()));
	}
	return Vault;
}

const FSecretBytes* FSecretVault::Find(const FSecretBytes& Key) const
{
	const int32 Index = IndexOf(Key);
	return Index == INDEX_NONE ? nullptr : &Entries[Index].Value;
}

void FSecretVault::Set(FSecretBytes&& Key, FSecretBytes&& Value)
{
	const int32 Index = IndexOf(Key);
	if (Index != INDEX_NONE)
	{
		Entries[Index].Value = MoveTemp(Value);
		return;
	}
	Entries.Add(FEntry{MoveTemp(Key), MoveTemp(Value)});
}

bool FSecretVault::Remove(const FSecretBytes& Key)
{
	const int32 Index = IndexOf(Key);
	if (Index == INDEX_NONE)
	{
		return false;
	}
	Entries.RemoveAt(Index);
	return true;
}

TVexelExpected<void> FSecretVault::Save(const std::string& Directory) const
{
	VEXEL_TRY(const FSecretBytes Key, ReadOrMakeKey(Directory));
	const FSecretBytes Plain = WriteEntries();
	if (Plain.Num() > MaxStoreBytes - MagicBytes - NonceBytes - TagBytes)
	{
		return VEXEL_ERROR(FVexelError_SecureStorage, "The secure store is full");
	}
	TArray<uint8> Stored;
	if (!Encrypt(Key, Plain, Stored))
	{
		return VEXEL_ERROR(FVexelError_SecureStorage, "The secure store cannot be encrypted");
	}
	return PrivateFile::Write(GetStorePath(Directory), Stored);
}

int32 FSecretVault::IndexOf(const FSecretBytes& Key) const
{
	return Entries.IndexOfByPredicate([&](const FEntry& Entry)
		{ return Entry.Key == Key; });
}

bool FSecretVault::ReadEntries(TConstArrayView<uint8> Plain)
{
	while (!Plain.IsEmpty())
	{
		FEntry Entry;
		if (!ReadField(Plain, Entry.Key) || !ReadField(Plain, Entry.Value))
		{
			return false;
		}
		Entries.Add(MoveTemp(Entry));
	}
	return true;
}

FSecretBytes FSecretVault::WriteEntries() const
{
	int64 NumBytes = 0;
	for (const FEntry& Entry : Entries)
	{
		NumBytes += 2 * LengthBytes + Entry.Key.Num() + Entry.Value.Num();
	}
	// All but one were read from a store within its limit, and that one was limited by the caller.
	check(NumBytes <= MAX_int32);
	FSecretBytes Plain{int32(NumBytes)};
	uint8* At = Plain.GetData();
	for (const FEntry& Entry : Entries)
	{
		WriteField(At, Entry.Key);
		WriteField(At, Entry.Value);
	}
	return Plain;
}
