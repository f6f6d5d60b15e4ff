#include "GenericPlatform/GenericPlatformFile.h"

#include "Containers/StringConv.h"
#include "HAL/PlatformFileManager.h"
#include "Misc/Paths.h"
#include "Templates/UniquePtr.h"

#include <algorithm>
#include <cerrno>
#include <dirent.h>
#include <fcntl.h>
#include <string>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>
#include <vector>

namespace
{
std::string ToUtf8(const TCHAR* Path)
{
	return reinterpret_cast<const char*>(TCHAR_TO_UTF8(Path));
}

FDateTime ToDateTime(const timespec& Time)
{
	return FDateTime::FromUnixTimestamp(Time.tv_sec) + FTimespan(Time.tv_nsec / ETimespan::NanosecondsPerTick);
}

class FPosixFileHandle final : public IFileHandle
{
public:
	explicit FPosixFileHandle(int InDescriptor)
		: Descriptor(InDescriptor)
	{
	}
	~FPosixFileHandle() override { close(Descriptor); }

	int64 Tell() override { return lseek(Descriptor, 0, SEEK_CUR); }
	bool Seek(int64 NewPosition) override { return NewPosition >= 0 && lseek(Descriptor, NewPosition, SEEK_SET) >= 0; }
	bool SeekFromEnd(int64 NewPositionRelativeToEnd) override { return lseek(Descriptor, NewPositionRelativeToEnd, SEEK_END) >= 0; }

	bool Read(uint8* Destination, int64 BytesToRead) override
	{
		return Transfer(BytesToRead, [&](int64 Done)
			{ return read(Descriptor, Destination + Done, static_cast<size_t>(BytesToRead - Done)); });
	}
	bool Write(const uint8* Source, int64 BytesToWrite) override
	{
		return Transfer(BytesToWrite, [&](int64 Done)
			{ return write(Descriptor, Source + Done, static_cast<size_t>(BytesToWrite - Done)); });
	}

	bool Flush(const bool bFullFlush) override { return !bFullFlush || fsync(Descriptor) == 0; }
	bool Truncate(int64 NewSize) override { return ftruncate(Descriptor, NewSize) == 0; }
	int64 Size() override
	{
		struct stat Info
		{
		};
		return fstat(Descriptor, &Info) == 0 ? Info.st_size : -1;
	}

private:
	template <class StepType>
	static bool Transfer(int64 Wanted, StepType Step)
	{
		int64 Done = 0;
		while (Done < Wanted)
		{
			const ssize_t Num = Step(Done);
			if (Num > 0)
			{
				Done += Num;
			}
			else if (Num == 0 || errno != EINTR)
			{
				return false;
			}
		}
		return true;
	}

	int Descriptor;
};

class FPosixPlatformFile final : public IPlatformFile
{
public:
	using IPlatformFile::IterateDirectory;

	bool FileExists(const TCHAR* Filename) override
	{
		const FFileStatData Data = GetStatData(Filename);
		return Data.bIsValid && !Data.bIsDirectory;
	}
	int64 FileSize(const TCHAR* Filename) override { return GetStatData(Filename).FileSize; }
	bool DeleteFile(const TCHAR* Filename) override { return unlink(ToUtf8(Filename).c_str()) == 0; }
	bool IsReadOnly(const TCHAR* Filename) override { return GetStatData(Filename).bIsReadOnly; }

	bool MoveFile(const TCHAR* To, const TCHAR* From) override
	{
		if (rename(ToUtf8(From).c_str(), ToUtf8(To).c_str()) == 0)
		{
			return true;
		}
		return errno == EXDEV && CopyFile(To, From) && DeleteFile(From);
	}

	bool SetReadOnly(const TCHAR* Filename, bool bNewReadOnlyValue) override
	{
		const std::string Path = ToUtf8(Filename);
		struct stat Info
		{
		};
		if (stat(Path.c_str(), &Info) != 0)
		{
			return false;
		}
		constexpr mode_t AllWrite = S_IWUSR | S_IWGRP | S_IWOTH;
		const mode_t Mode = bNewReadOnlyValue ? Info.st_mode & ~AllWrite : Info.st_mode | S_IWUSR;
		return chmod(Path.c_str(), Mode) == 0;
	}

	FDateTime GetTimeStamp(const TCHAR* Filename) override { return GetStatData(Filename).ModificationTime; }

	void SetTimeStamp(const TCHAR* Filename, FDateTime DateTime) override
	{
		const int64 Seconds = DateTime.ToUnixTimestamp();
		const int64 Fraction = (DateTime - FDateTime::FromUnixTimestamp(Seconds)).GetTicks();
		const timespec Times[2] = {
			{Seconds, Fraction * ETimespan::NanosecondsPerTick}, {Seconds, Fraction * ETimespan::NanosecondsPerTick}};
		utimensat(AT_FDCWD, ToUtf8(Filename).c_str(), Times, 0);
	}

	ESymlinkResult IsSymlink(const TCHAR* Filename) override
	{
		struct stat Info
		{
		};
		const bool bLink = lstat(ToUtf8(Filename).c_str(), &Info) == 0 && S_ISLNK(Info.st_mode);
		return bLink ? ESymlinkResult::Symlink : ESymlinkResult::NonSymlink;
	}

	FFileStatData GetStatData(const TCHAR* FilenameOrDirectory) override
	{
		const std::string Path = ToUtf8(FilenameOrDirectory);
		struct stat Info
		{
		};
		FFileStatData Result;
		if (stat(Path.c_str(), &Info) != 0)
		{
			return Result;
		}
		Result.bIsValid = true;
		Result.bIsDirectory = S_ISDIR(Info.st_mode);
		Result.bIsReadOnly = (Info.st_mode & (S_IWUSR | S_IWGRP | S_IWOTH)) == 0 || (access(Path.c_str(), W_OK) != 0 && errno != ENOENT);
		Result.FileSize = Result.bIsDirectory ? -1 : Info.st_size;
		Result.CreationTime = ToDateTime(Info.st_ctim);
		Result.AccessTime = ToDateTime(Info.st_atim);
		Result.ModificationTime = ToDateTime(Info.st_mtim);
		return Result;
	}

	IFileHandle* OpenRead(const TCHAR* Filename, bool bAllowWrite) override
	{
		const int Descriptor = open(ToUtf8(Filename).c_str(), O_RDONLY | O_CLOEXEC);
		struct stat Info
		{
		};
		if (Descriptor >= 0 && fstat(Descriptor, &Info) == 0 && S_ISDIR(Info.st_mode))
		{
			close(Descriptor);
			errno = EISDIR;
			return nullptr;
		}
		return Descriptor >= 0 ? new FPosixFileHandle(Descriptor) : nullptr;
	}

	IFileHandle* OpenWrite(const TCHAR* Filename, bool bAppend, bool bAllowRead) override
	{
		const int Flags = O_CREAT | O_CLOEXEC | (bAllowRead ? O_RDWR : O_WRONLY) | (bAppend ? 0 : O_TRUNC);
		const int Descriptor = open(ToUtf8(Filename).c_str(), Flags, 0644);
		if (Descriptor < 0)
		{
			return nullptr;
		}
		if (bAppend)
		{
			lseek(Descriptor, 0, SEEK_END);
		}
		return new FPosixFileHandle(Descriptor);
	}

	bool DirectoryExists(const TCHAR* Directory) override { return GetStatData(Directory).bIsDirectory; }

	bool CreateDirectory(const TCHAR* Directory) override
	{
		return mkdir(ToUtf8(Directory).c_str(), 0755) == 0 || (errno == EEXIST && DirectoryExists(Directory));
	}

	bool DeleteDirectory(const TCHAR* Directory) override { return rmdir(ToUtf8(Directory).c_str()) == 0; }

	bool IterateDirectory(const TCHAR* Directory, FDirectoryVisitorFunc Visitor) override
	{
		const std::string Path = *Directory != 0 ? ToUtf8(Directory) : std::string(".");
		DIR* const Stream = opendir(Path.c_str());
		if (Stream == nullptr)
		{
			return false;
		}
		std::vector<std::pair<std::string, bool>> Entries;
		while (const dirent* const Entry = readdir(Stream))
		{
			const std::string Name = Entry->d_name;
			if (Name != "." && Name != "..")
			{
				struct stat Info
				{
				};
				const bool bFound = fstatat(dirfd(Stream), Entry->d_name, &Info, 0) == 0;
				Entries.emplace_back(Name, bFound && S_ISDIR(Info.st_mode));
			}
		}
		closedir(Stream);
		std::sort(Entries.begin(), Entries.end());
		const FString Folder(Directory);
		for (const auto& [Name, bIsDirectory] : Entries)
		{
			if (!Visitor(*FPaths::Combine(Folder, FString(UTF8_TO_TCHAR(Name.c_str()))), bIsDirectory))
			{
				return false;
			}
		}
		return true;
	}
};

bool IsSymbolicLink(const TCHAR* Path)
{
	struct stat Info
	{
	};
	return lstat(ToUtf8(Path).c_str(), &Info) == 0 && S_ISLNK(Info.st_mode);
}

bool HasExtension(const TCHAR* Filename, const TCHAR* Extension)
{
	if (Extension == nullptr || *Extension == 0)
	{
		return true;
	}
	const FString Wanted = *Extension == TEXT('.') ? FString(Extension) : TEXT(".") + FString(Extension);
	return FString(Filename).EndsWith(Wanted);
}
}

IPlatformFile& IPlatformFile::GetPlatformPhysical()
{
	static FPosixPlatformFile* const Physical = new FPosixPlatformFile;
	return *Physical;
}

FPlatformFileManager& FPlatformFileManager::Get()
{
	static FPlatformFileManager Manager;
	return Manager;
}

bool IPlatformFile::IterateDirectory(const TCHAR* Directory, FDirectoryVisitor& Visitor)
{
	return IterateDirectory(Directory, [&Visitor](const TCHAR* Path, bool bIsDirectory)
		{ return Visitor.Visit(Path, bIsDirectory); });
}

bool IPlatformFile::IterateDirectoryRecursively(const TCHAR* Directory, FDirectoryVisitorFunc Visitor)
{
	const auto Visit = [this, &Visitor](const TCHAR* Path, bool bIsDirectory)
	{
		if (!Visitor(Path, bIsDirectory))
		{
			return false;
		}
		return !bIsDirectory || IsSymbolicLink(Path) || IterateDirectoryRecursively(Path, Visitor);
	};
	return IterateDirectory(Directory, Visit);
}

bool IPlatformFile::IterateDirectoryRecursively(const TCHAR* Directory, FDirectoryVisitor& Visitor)
{
	return IterateDirectoryRecursively(Directory, [&Visitor](const TCHAR* Path, bool bIsDirectory)
		{ return Visitor.Visit(Path, bIsDirectory); });
}

void IPlatformFile::FindFiles(TArray<FString>& FoundFiles, const TCHAR* Directory, const TCHAR* FileExtension)
{
	const auto Visit = [&](const TCHAR* Path, bool bIsDirectory)
	{
		if (!bIsDirectory && HasExtension(Path, FileExtension))
		{
			FoundFiles.Add(Path);
		}
		return true;
	};
	IterateDirectory(Directory, Visit);
}

void IPlatformFile::FindFilesRecursively(TArray<FString>& FoundFiles, const TCHAR* Directory, const TCHAR* FileExtension)
{
	const auto Visit = [&](const TCHAR* Path, bool bIsDirectory)
	{
		if (!bIsDirectory && HasExtension(Path, FileExtension))
		{
			FoundFiles.Add(Path);
		}
		return true;
	};
	IterateDirectoryRecursively(Directory, Visit);
}

bool IPlatformFile::DeleteDirectoryRecursively(const TCHAR* Directory)
{
	if (IsSymbolicLink(Directory))
	{
		return DeleteFile(Directory);
	}
	const auto Visit = [this](const TCHAR* Path, bool bIsDirectory)
	{
		return bIsDirectory && !IsSymbolicLink(Path) ? DeleteDirectoryRecursively(Path) : DeleteFile(Path);
	};
	return IterateDirectory(Directory, Visit) && DeleteDirectory(Directory);
}

bool IPlatformFile::CreateDirectoryTree(const TCHAR* Directory)
{
	FString Path(Directory);
	FPaths::NormalizeDirectoryName(Path);
	if (Path.IsEmpty() || DirectoryExists(*Path))
	{
		return true;
	}
	const FString Parent = FPaths::GetPath(Path);
	return (Parent.IsEmpty() || CreateDirectoryTree(*Parent)) && CreateDirectory(*Path);
}

bool IPlatformFile::CopyFile(const TCHAR* To, const TCHAR* From)
{
	const TUniquePtr<IFileHandle> Source(OpenRead(From));
	if (!Source)
	{
		return false;
	}
	const TUniquePtr<IFileHandle> Target(OpenWrite(To));
	if (!Target)
	{
		return false;
	}
	constexpr int64 BlockSize = 1024 * 1024;
	std::vector<uint8> Block(BlockSize);
	for (int64 Left = Source->Size(); Left > 0;)
	{
		const int64 Num = std::min(Left, BlockSize);
		if (!Source->Read(Block.data(), Num) || !Target->Write(Block.data(), Num))
		{
			return false;
		}
		Left -= Num;
	}
	return true;
}
