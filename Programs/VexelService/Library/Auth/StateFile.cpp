#include "Auth/StateFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <fstream>
#include <iterator>
#include <system_error>
#include <utility>

namespace VexelService
{

namespace
{

constexpr const char* FileName = "state.json";
constexpr const char* TemporaryName = "state.json.new";
constexpr std::uintmax_t MaxStateBytes = 8u << 20;

bool WriteAll(int Descriptor, const std::string& Text)
{
	std::size_t Written = 0;
	while (Written < Text.size())
	{
		const ssize_t Count = write(Descriptor, Text.data() + Written, Text.size() - Written);
		if (Count < 0 && errno == EINTR)
		{
			continue;
		}
		if (Count <= 0)
		{
			return false;
		}
		Written += static_cast<std::size_t>(Count);
	}
	return fsync(Descriptor) == 0;
}

// Without this a crash of the machine could lose the rename although the file itself was written.
void SyncFolder(const std::filesystem::path& Folder)
{
	const int Descriptor = open(Folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
	if (Descriptor >= 0)
	{
		fsync(Descriptor);
		close(Descriptor);
	}
}

}

FStateFile::FStateFile(std::filesystem::path InFolder)
	: Folder(std::move(InFolder))
{
}

TOrRefusal<FJson> FStateFile::Load() const
{
	std::error_code Error;
	const std::filesystem::path Path = Folder / FileName;
	if (Folder.empty() || !std::filesystem::exists(Path, Error))
	{
		return FJson();
	}
	if (std::filesystem::file_size(Path, Error) > MaxStateBytes || Error)
	{
		return FRefusal{500, Path.string() + " is too large to be the service's state"};
	}
	std::ifstream Stream(Path, std::ios::binary);
	const std::string Text{std::istreambuf_iterator<char>(Stream), std::istreambuf_iterator<char>()};
	std::optional<FJson> Document = ParseJson(Text);
	if (!Stream || !Document || !Document->is_object())
	{
		return FRefusal{500, Path.string() + " is not readable as the service's state"};
	}
	return std::move(*Document);
}

bool FStateFile::Save(const FJson& Document) const
{
	if (Folder.empty())
	{
		return true;
	}
	std::error_code Error;
	std::filesystem::create_directories(Folder, Error);
	std::filesystem::permissions(Folder, std::filesystem::perms::owner_all, Error);
	if (Error)
	{
		return false;
	}

	const std::filesystem::path Temporary = Folder / TemporaryName;
	// A leftover of a crash could have other permissions, which opening would keep.
	unlink(Temporary.c_str());
	const int Descriptor = open(Temporary.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW, S_IRUSR | S_IWUSR);
	if (Descriptor < 0)
	{
		return false;
	}
	const bool bWritten = WriteAll(Descriptor, JsonLine(Document) + "\n");
	if (close(Descriptor) != 0 || !bWritten)
	{
		unlink(Temporary.c_str());
		return false;
	}
	std::filesystem::rename(Temporary, Folder / FileName, Error);
	if (Error)
	{
		return false;
	}
	SyncFolder(Folder);
	return true;
}

}
