#include "Misc/AtomicFile.h"

#include "Containers/StringConv.h"
#include "Misc/Paths.h"

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

namespace
{
FString Describe(const TCHAR* Step, const FString& Path, int Error)
{
	char Text[256] = {};
	const char* const Reason = strerror_r(Error, Text, sizeof(Text));
	return FString::Printf(TEXT("%s '%s' failed: %s"), Step, *Path, UTF8_TO_TCHAR(Reason));
}

bool WriteAll(int Descriptor, const uint8* Bytes, int64 Num)
{
	while (Num > 0)
	{
		const ssize_t Written = write(Descriptor, Bytes, static_cast<size_t>(Num));
		if (Written < 0 && errno == EINTR)
		{
			continue;
		}
		if (Written <= 0)
		{
			return false;
		}
		Bytes += Written;
		Num -= Written;
	}
	return true;
}

/** The new file has the mode of the one that it replaces, or that of any new file. */
mode_t GetMode(const std::string& Path)
{
	struct stat Info
	{
	};
	if (stat(Path.c_str(), &Info) == 0)
	{
		return Info.st_mode & 07777;
	}
	return 0644;
}

/** The name is on the disk only when its folder is. File systems that cannot say so are let be. */
void SyncFolder(const FString& Path)
{
	const FString Folder = FPaths::GetPath(Path);
	const int Descriptor = open(Folder.IsEmpty() ? "." : TCHAR_TO_UTF8(*Folder), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
	if (Descriptor >= 0)
	{
		fsync(Descriptor);
		close(Descriptor);
	}
}
}

bool UE::SaveFileAtomically(const FString& Path, TArrayView<const uint8> Bytes, FString& OutError)
{
	const std::string Target = TCHAR_TO_UTF8(*Path);
	std::string Temporary = Target + ".XXXXXX";
	const int Descriptor = mkostemp(Temporary.data(), O_CLOEXEC);
	if (Descriptor < 0)
	{
		OutError = Describe(TEXT("Creating a temporary file beside"), Path, errno);
		return false;
	}
	const bool bWritten = WriteAll(Descriptor, Bytes.GetData(), Bytes.Num()) && fchmod(Descriptor, GetMode(Target)) == 0 &&
		fsync(Descriptor) == 0;
	const int WriteError = errno;
	const bool bClosed = close(Descriptor) == 0;
	if (!bWritten || !bClosed)
	{
		OutError = Describe(TEXT("Writing"), Path, bWritten ? errno : WriteError);
		unlink(Temporary.c_str());
		return false;
	}
	if (rename(Temporary.c_str(), Target.c_str()) != 0)
	{
		OutError = Describe(TEXT("Replacing"), Path, errno);
		unlink(Temporary.c_str());
		return false;
	}
	SyncFolder(Path);
	return true;
}

bool UE::SaveFileAtomically(const FString& Path, const FString& Text, FString& OutError)
{
	const FTCHARToUTF8 Utf8(*Text, Text.Len());
	return SaveFileAtomically(Path, TArrayView<const uint8>(reinterpret_cast<const uint8*>(Utf8.Get()), Utf8.Length()), OutError);
}
