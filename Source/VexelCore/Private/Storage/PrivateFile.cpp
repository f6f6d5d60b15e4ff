#include "Storage/PrivateFile.h"

#include "HAL/PlatformMisc.h"
#include "Misc/Guid.h"
#include "VexelErrorKinds.h"
#include "VexelStringUtil.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{
constexpr mode_t OwnerOnlyFile = 0600;
constexpr mode_t OwnerOnlyDirectory = 0700;
constexpr mode_t ParentDirectory = 0755;
constexpr mode_t AccessOfOthers = 0077;

/** An open file, closed at the end. */
struct FDescriptor
{
	explicit FDescriptor(int InFile)
		: File(InFile)
	{
	}
	~FDescriptor()
	{
		if (File >= 0)
		{
			close(File);
		}
	}
	UE_NONCOPYABLE(FDescriptor)

	const int File;
};

FVexelError MakeSystemError(const TCHAR* What, const std::string& Path, int Number)
{
	TCHAR Reason[256] = {};
	FPlatformMisc::GetSystemErrorMessage(Reason, int32(UE_ARRAY_COUNT(Reason)), Number);
	return VEXEL_ERROR(FVexelError_SecureStorage, "%s '%s': %s", What, UTF8_TO_TCHAR(Path.c_str()), Reason);
}

bool WriteAll(int File, TConstArrayView<uint8> Bytes)
{
	for (int32 NumWritten = 0; NumWritten < Bytes.Num();)
	{
		const ssize_t NumNow = write(File, Bytes.GetData() + NumWritten, size_t(Bytes.Num() - NumWritten));
		if (NumNow < 0 && errno != EINTR)
		{
			return false;
		}
		NumWritten += NumNow > 0 ? int32(NumNow) : 0;
	}
	return fsync(File) == 0;
}

/** A rename is on the disk once its directory is. */
void FlushDirectoryOf(const std::string& Path)
{
	const std::string Directory = Path.substr(0, Path.find_last_of('/') + 1);
	const FDescriptor Opened(open(Directory.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
	if (Opened.File >= 0)
	{
		fsync(Opened.File);
	}
}
}

TVexelExpected<void> PrivateFile::MakeDirectory(const std::string& Path)
{
	for (size_t End = Path.find('/', 1); End != std::string::npos; End = Path.find('/', End + 1))
	{
		mkdir(Path.substr(0, End).c_str(), ParentDirectory);
	}
	if (mkdir(Path.c_str(), OwnerOnlyDirectory) != 0 && errno != EEXIST)
	{
		return MakeSystemError(TEXT("Cannot make the directory"), Path, errno);
	}
	const FDescriptor Opened(open(Path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
	struct stat Info = {};
	if (Opened.File < 0 || fstat(Opened.File, &Info) != 0)
	{
		return MakeSystemError(TEXT("Cannot open the directory"), Path, errno);
	}
	if ((Info.st_mode & AccessOfOthers) != 0 && fchmod(Opened.File, OwnerOnlyDirectory) != 0)
	{
		return MakeSystemError(TEXT("Cannot close to others the directory"), Path, errno);
	}
	return TVexelExpected<void>();
}

bool PrivateFile::Exists(const std::string& Path)
{
	struct stat Info = {};
	return lstat(Path.c_str(), &Info) == 0;
}

TVexelExpected<FSecretBytes> PrivateFile::Read(const std::string& Path, int32 MaxBytes)
{
	const FDescriptor Opened(open(Path.c_str(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK));
	struct stat Info = {};
	if (Opened.File < 0 || fstat(Opened.File, &Info) != 0)
	{
		return MakeSystemError(TEXT("Cannot open"), Path, errno);
	}
	if (!S_ISREG(Info.st_mode) || Info.st_uid != geteuid() || (Info.st_mode & AccessOfOthers) != 0)
	{
		return VEXEL_ERROR(FVexelError_SecureStorage, "'%s' is not a file that its owner alone can read", UTF8_TO_TCHAR(Path.c_str()));
	}
	if (Info.st_size > MaxBytes)
	{
		return VEXEL_ERROR(FVexelError_SecureStorage, "'%s' is too large", UTF8_TO_TCHAR(Path.c_str()));
	}
	FSecretBytes Bytes(int32(Info.st_size));
	for (int32 NumRead = 0; NumRead < Bytes.Num();)
	{
		const ssize_t NumNow = read(Opened.File, Bytes.GetData() + NumRead, size_t(Bytes.Num() - NumRead));
		if (NumNow == 0 || (NumNow < 0 && errno != EINTR))
		{
			return MakeSystemError(TEXT("Cannot read"), Path, NumNow == 0 ? EIO : errno);
		}
		NumRead += NumNow > 0 ? int32(NumNow) : 0;
	}
	return Bytes;
}

TVexelExpected<void> PrivateFile::Write(const std::string& Path, TConstArrayView<uint8> Bytes)
{
	const std::string Temporary = Path + "." + FVexelStringUtil::ToStdStringUtf8(FGuid::NewGuid().ToString()) + ".tmp";
	bool bWritten = false;
	int Number = 0;
	{
		const FDescriptor Opened(open(Temporary.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW, OwnerOnlyFile));
		if (Opened.File < 0)
		{
			return MakeSystemError(TEXT("Cannot write"), Path, errno);
		}
		bWritten = WriteAll(Opened.File, Bytes);
		Number = errno;
	}
	if (bWritten && rename(Temporary.c_str(), Path.c_str()) != 0)
	{
		bWritten = false;
		Number = errno;
	}
	if (!bWritten)
	{
		unlink(Temporary.c_str());
		return MakeSystemError(TEXT("Cannot write"), Path, Number);
	}
	FlushDirectoryOf(Path);
	return TVexelExpected<void>();
}
