#pragma once

#include "Support/JsonText.h"
#include "Support/Refusal.h"

#include <filesystem>
#include <optional>

namespace VexelService
{

/** One JSON document on disk, readable by its owner alone and replaced whole. Without a folder it keeps nothing. */
class FStateFile
{
public:
	/** An empty folder means memory only. */
	explicit FStateFile(std::filesystem::path InFolder);

	/** What was saved last; null JSON when nothing was. A document that cannot be read is refused rather than overwritten. */
	TOrRefusal<FJson> Load() const;

	/** Returns false, and leaves the earlier document, when the new one could not be written. */
	[[nodiscard]] bool Save(const FJson& Document) const;

private:
	std::filesystem::path Folder;
};

}
