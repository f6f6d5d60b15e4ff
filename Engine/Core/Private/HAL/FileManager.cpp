#include "HAL/FileManager.h"

#include "CoreGlobals.h"
#include "HAL/PlatformFileManager.h"
#include "HAL/PlatformMisc.h"
#include "Misc/Paths.h"
#include "Serialization/Archive.h"
#include "Templates/UniquePtr.h"

#include <algorithm>
#include <vector>

namespace
{
IPlatformFile& GetPlatformFile()
{
	return IPlatformFile::GetPlatformPhysical();
}

class FFileReaderArchive final : public FArchive
{
public:
	FFileReaderArchive(IFileHandle* InHandle, const TCHAR* InFilename)
		: Handle(InHandle)
		, Filename(InFilename)
		, FileSize(Handle->Size())
	{
		SetIsLoading(true);
		SetIsPersistent(true);
	}

	void Serialize(void* Data, int64 Num) override
	{
		uint8* Target = static_cast<uint8*>(Data);
		if (Num < 0 || Num > FileSize - Position || IsError())
		{
			FMemory::Memzero(Data, static_cast<SIZE_T>(std::max<int64>(Num, 0)));
			SetError();
			return;
		}
		while (Num > 0)
		{
			if ((Position < BlockStart || Position >= BlockStart + static_cast<int64>(Block.size())) && !ReadBlock())
			{
				FMemory::Memzero(Target, static_cast<SIZE_T>(Num));
				SetError();
				return;
			}
			const int64 Offset = Position - BlockStart;
			const int64 Copied = std::min(Num, static_cast<int64>(Block.size()) - Offset);
			FMemory::Memcpy(Target, Block.data() + Offset, static_cast<SIZE_T>(Copied));
			Target += Copied;
			Position += Copied;
			Num -= Copied;
		}
	}

	int64 Tell() override { return Position; }
	int64 TotalSize() override { return FileSize; }
	void Seek(int64 InPosition) override
	{
		if (InPosition < 0 || InPosition > FileSize)
		{
			SetError();
			return;
		}
		Position = InPosition;
	}
	bool Close() override
	{
		Handle.Reset();
		return !IsError();
	}
	FString GetArchiveName() const override { return Filename; }

private:
	bool ReadBlock()
	{
		constexpr int64 BlockSize = 64 * 1024;
		BlockStart = Position;
		Block.resize(static_cast<size_t>(std::min(BlockSize, FileSize - Position)));
		const bool bRead = Handle && Handle->Seek(Position) && Handle->Read(Block.data(), static_cast<int64>(Block.size()));
		if (!bRead)
		{
			Block.clear();
		}
		return bRead;
	}

	TUniquePtr<IFileHandle> Handle;
	const FString Filename;
	const int64 FileSize;
	int64 Position = 0;
	int64 BlockStart = 0;
	std::vector<uint8> Block;
};

class FFileWriterArchive final : public FArchive
{
public:
	FFileWriterArchive(IFileHandle* InHandle, const TCHAR* InFilename, int64 InPosition)
		: Handle(InHandle)
		, Filename(InFilename)
		, Position(InPosition)
	{
		SetIsSaving(true);
		SetIsPersistent(true);
	}
	~FFileWriterArchive() override { CloseHandle(); }

	void Serialize(void* Data, int64 Num) override
	{
		constexpr size_t BlockSize = 64 * 1024;
		const uint8* const Bytes = static_cast<const uint8*>(Data);
		Block.insert(Block.end(), Bytes, Bytes + Num);
		Position += Num;
		if (Block.size() >= BlockSize)
		{
			WriteBlock();
		}
	}

	int64 Tell() override { return Position; }
	int64 TotalSize() override
	{
		WriteBlock();
		return Handle ? Handle->Size() : int64{INDEX_NONE};
	}
	void Seek(int64 InPosition) override
	{
		WriteBlock();
		if (!Handle || !Handle->Seek(InPosition))
		{
			SetError();
			return;
		}
		Position = InPosition;
	}
	void Flush() override
	{
		WriteBlock();
		if (Handle && !Handle->Flush(false))
		{
			SetError();
		}
	}
	bool Close() override
	{
		CloseHandle();
		return !IsError();
	}
	FString GetArchiveName() const override { return Filename; }

private:
	void WriteBlock()
	{
		if (!Block.empty() && (!Handle || !Handle->Write(Block.data(), static_cast<int64>(Block.size()))))
		{
			if (!IsError())
			{
				TCHAR Message[256];
				UE_LOG(LogCore, Error, TEXT("Writing %s failed: %s"), *Filename, FPlatformMisc::GetSystemErrorMessage(Message, 256, 0));
			}
			SetError();
		}
		Block.clear();
	}

	void CloseHandle()
	{
		WriteBlock();
		Handle.Reset();
	}

	TUniquePtr<IFileHandle> Handle;
	const FString Filename;
	int64 Position;
	std::vector<uint8> Block;
};

class FFileManagerImpl final : public IFileManager
{
public:
	FArchive* CreateFileReader(const TCHAR* Filename, uint32 ReadFlags) override
	{
		IFileHandle* const Handle = GetPlatformFile().OpenRead(Filename, (ReadFlags & FILEREAD_AllowWrite) != 0);
		checkf(Handle != nullptr || (ReadFlags & FILEREAD_NoFail) == 0, TEXT("Failed to read file: %s"), Filename);
		return Handle != nullptr ? new FFileReaderArchive(Handle, Filename) : nullptr;
	}

	FArchive* CreateFileWriter(const TCHAR* Filename, uint32 WriteFlags) override
	{
		GetPlatformFile().CreateDirectoryTree(*FPaths::GetPath(FString(Filename)));
		if ((WriteFlags & FILEWRITE_NoReplaceExisting) != 0 && FileExists(Filename))
		{
			return nullptr;
		}
		if ((WriteFlags & FILEWRITE_EvenIfReadOnly) != 0)
		{
			GetPlatformFile().SetReadOnly(Filename, false);
		}
		const bool bAppend = (WriteFlags & FILEWRITE_Append) != 0;
		IFileHandle* const Handle = GetPlatformFile().OpenWrite(Filename, bAppend, (WriteFlags & FILEWRITE_AllowRead) != 0);
		checkf(Handle != nullptr || (WriteFlags & FILEWRITE_NoFail) == 0, TEXT("Failed to create file: %s"), Filename);
		return Handle != nullptr ? new FFileWriterArchive(Handle, Filename, Handle->Tell()) : nullptr;
	}

	int64 FileSize(const TCHAR* Filename) override { return GetPlatformFile().FileSize(Filename); }

	bool Delete(const TCHAR* Filename, bool bRequireExists, bool bEvenReadOnly, bool bQuiet) override
	{
		if (!FileExists(Filename))
		{
			return !bRequireExists;
		}
		if (!bEvenReadOnly && IsReadOnly(Filename))
		{
			return false;
		}
		return GetPlatformFile().DeleteFile(Filename);
	}

	bool IsReadOnly(const TCHAR* Filename) override { return GetPlatformFile().IsReadOnly(Filename); }

	bool Move(const TCHAR* Dest, const TCHAR* Src, bool bReplace, bool bEvenIfReadOnly, bool bAttributes, bool bDoNotRetryOrError) override
	{
		return MayWrite(Dest, bReplace, bEvenIfReadOnly) && GetPlatformFile().MoveFile(Dest, Src);
	}

	uint32 Copy(const TCHAR* Dest, const TCHAR* Src, bool bReplace, bool bEvenIfReadOnly, bool bAttributes) override
	{
		const bool bCopied = MayWrite(Dest, bReplace, bEvenIfReadOnly) && GetPlatformFile().CopyFile(Dest, Src);
		return bCopied ? COPY_OK : COPY_Fail;
	}

	bool FileExists(const TCHAR* Filename) override { return GetPlatformFile().FileExists(Filename); }
	bool DirectoryExists(const TCHAR* Directory) override { return GetPlatformFile().DirectoryExists(Directory); }

	bool MakeDirectory(const TCHAR* Path, bool bTree) override
	{
		return bTree ? GetPlatformFile().CreateDirectoryTree(Path) : GetPlatformFile().CreateDirectory(Path);
	}

	bool DeleteDirectory(const TCHAR* Path, bool bRequireExists, bool bTree) override
	{
		if (!DirectoryExists(Path))
		{
			return !bRequireExists;
		}
		return bTree ? GetPlatformFile().DeleteDirectoryRecursively(Path) : GetPlatformFile().DeleteDirectory(Path);
	}

	void FindFiles(TArray<FString>& FileNames, const TCHAR* Filename, bool bFiles, bool bDirectories) override
	{
		const FString Path(Filename);
		const FString LastPart = FPaths::GetCleanFilename(Path);
		const bool bHasWildcard = LastPart.Contains(TEXT("*")) || LastPart.Contains(TEXT("?"));
		// A plain name asks for one entry of its folder, unless it is a folder itself.
		const bool bIsFolder = !bHasWildcard && DirectoryExists(Filename);
		const FString Folder = bIsFolder ? Path : FPaths::GetPath(Path);
		const FString Wildcard = bIsFolder ? FString(TEXT("*")) : LastPart;
		Collect(FileNames, *Folder, Wildcard, bFiles, bDirectories, false);
	}

	void FindFiles(TArray<FString>& FoundFiles, const TCHAR* Directory, const TCHAR* FileExtension) override
	{
		FString Extension(FileExtension != nullptr ? FileExtension : TEXT(""));
		Extension.RemoveFromStart(TEXT("*"));
		Extension.RemoveFromStart(TEXT("."));
		const FString Wildcard = Extension.IsEmpty() ? FString(TEXT("*")) : TEXT("*.") + Extension;
		Collect(FoundFiles, Directory, Wildcard, true, false, false);
	}

	void FindFilesRecursive(TArray<FString>& FileNames, const TCHAR* StartDirectory, const TCHAR* Filename, bool bFiles, bool bDirectories,
		bool bClearFileNames) override
	{
		if (bClearFileNames)
		{
			FileNames.Empty();
		}
		Collect(FileNames, StartDirectory, Filename, bFiles, bDirectories, true);
	}

	bool IterateDirectory(const TCHAR* Directory, IPlatformFile::FDirectoryVisitorFunc Visitor) override
	{
		return GetPlatformFile().IterateDirectory(Directory, Visitor);
	}
	bool IterateDirectoryRecursively(const TCHAR* Directory, IPlatformFile::FDirectoryVisitorFunc Visitor) override
	{
		return GetPlatformFile().IterateDirectoryRecursively(Directory, Visitor);
	}

	FDateTime GetTimeStamp(const TCHAR* Filename) override { return GetPlatformFile().GetTimeStamp(Filename); }
	bool SetTimeStamp(const TCHAR* Filename, FDateTime DateTime) override
	{
		GetPlatformFile().SetTimeStamp(Filename, DateTime);
		return FileExists(Filename);
	}
	FFileStatData GetStatData(const TCHAR* FilenameOrDirectory) override { return GetPlatformFile().GetStatData(FilenameOrDirectory); }

private:
	/** Below a folder, full paths are collected; else the clean names of its entries. */
	static void Collect(
		TArray<FString>& OutNames, const TCHAR* Directory, const FString& Wildcard, bool bFiles, bool bDirectories, bool bRecursive)
	{
		const auto Visit = [&](const TCHAR* Path, bool bIsDirectory)
		{
			const FString Name = FPaths::GetCleanFilename(FString(Path));
			if ((bIsDirectory ? bDirectories : bFiles) && Name.MatchesWildcard(Wildcard))
			{
				OutNames.Add(bRecursive ? FString(Path) : Name);
			}
			return true;
		};
		bRecursive ? GetPlatformFile().IterateDirectoryRecursively(Directory, Visit) : GetPlatformFile().IterateDirectory(Directory, Visit);
	}

	bool MayWrite(const TCHAR* Dest, bool bReplace, bool bEvenIfReadOnly)
	{
		GetPlatformFile().CreateDirectoryTree(*FPaths::GetPath(FString(Dest)));
		if (!FileExists(Dest))
		{
			return true;
		}
		if (bEvenIfReadOnly)
		{
			GetPlatformFile().SetReadOnly(Dest, false);
		}
		return bReplace && !IsReadOnly(Dest);
	}
};
}

IFileManager& IFileManager::Get()
{
	static FFileManagerImpl* const Manager = new FFileManagerImpl;
	return *Manager;
}

FString IFileManager::ConvertToAbsolute(const TCHAR* Filename)
{
	return FPaths::ConvertRelativePathToFull(FString(Filename));
}
