#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <string>

namespace
{
const std::filesystem::path Sample = VEXEL_SOURCE_DIR "/Samples/Lighthouse";

/** A folder that goes with the test. */
class FTemporaryFolder
{
public:
	FTemporaryFolder()
	{
		std::string Pattern = (std::filesystem::temp_directory_path() / "vexel-sample-XXXXXX").string();
		Path = mkdtemp(Pattern.data());
	}

	~FTemporaryFolder()
	{
		std::error_code Ignored;
		std::filesystem::remove_all(Path, Ignored);
	}

	std::filesystem::path Path;
};

int RunMaker(const std::string& Arguments)
{
	return std::system((std::string("\"" VEXEL_SAMPLE_MAKER "\" ") + Arguments + " > /dev/null 2>&1").c_str());
}

std::string ReadFile(const std::filesystem::path& Path)
{
	std::ifstream Stream(Path, std::ios::binary);
	return std::string(std::istreambuf_iterator<char>(Stream), {});
}
}

TEST(SampleMaker, WritesTheCommittedPackagesByteForByte)
{
	const FTemporaryFolder Project;
	std::filesystem::copy(Sample / "Lighthouse.uproject", Project.Path);
	ASSERT_EQ(RunMaker("\"" + Project.Path.string() + "\""), 0);
	for (const auto& Entry : std::filesystem::recursive_directory_iterator(Sample / "Content"))
	{
		const std::filesystem::path Relative = Entry.path().lexically_relative(Sample);
		if (Entry.is_regular_file())
		{
			EXPECT_TRUE(ReadFile(Project.Path / Relative) == ReadFile(Entry.path())) << Relative << ": run SampleMaker on the sample again";
		}
	}
}

TEST(SampleMaker, RefusesAFolderThatIsNoProject)
{
	const FTemporaryFolder Folder;
	EXPECT_NE(RunMaker("\"" + Folder.Path.string() + "\""), 0);
	EXPECT_TRUE(std::filesystem::is_empty(Folder.Path));
}
